// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>

namespace lumerin {

// Whether words on a stream may be coloured: it is standard output, on a terminal, and NO_COLOR is not set
// (https://no-color.org).
bool MayColour(const std::ostream& out);

}  // namespace lumerin
