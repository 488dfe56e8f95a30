// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "framework/Backend.h"

namespace lumerin {

// What each platform does in a way of its own, with windows or without.
namespace platform {

// The clock on the wall.
LocalTime LocalNow();

// Full path of the program that runs.
std::string RunningProgram();

// A new folder whose name begins with `start`, for this user alone. Empty: none can be made.
std::string MakeFolder(const std::string& start);

}  // namespace platform

}  // namespace lumerin
