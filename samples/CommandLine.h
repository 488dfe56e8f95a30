// SPDX-License-Identifier: MIT
// The program make-sample, apart from its streams.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace lumerin {

namespace samples {

// Takes the arguments without the program's name. Prints the path of the input file, or one line about
// the fault. Returns 0, or 2 for arguments or a folder that cannot be used.
int RunMakeSample(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& errors);

}  // namespace samples

}  // namespace lumerin
