// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// Full path of the host's program and of the module. A program without windows is its own host and contains
// the module's code: both then count as files of their usual names beside it.
std::string HostProgramPath();
std::string ModulePath();

}  // namespace lumerin
