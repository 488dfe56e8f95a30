// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "framework/Backend.h"

namespace lumerin {

// Reads "YYYY-MM-DDTHH:MM:SS" and works out the weekday. False: the text is no such moment.
bool ParseClock(std::string_view text, LocalTime& time);

// The moment that the environment variable LUMERIN_CLOCK holds still, so that two runs give the same bytes.
// False: the variable is not set, or is no moment.
bool ReadClockFromEnvironment(LocalTime& time);

}  // namespace lumerin
