// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// Starts the desktop's program for a file and does not wait for it. Returns the shell's code: above 32 for
// success, 31 where the desktop has no such program.
int StartViewer(const std::string& path);

}  // namespace lumerin
