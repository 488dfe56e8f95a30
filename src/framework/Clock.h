// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "framework/Backend.h"

namespace lumerin {

// Reads "YYYY-MM-DDTHH:MM:SS" and works out the weekday. False: the text is not in this form.
bool ParseClock(std::string_view text, LocalTime& time);

// The fixed time in an environment variable. False: the name is null, or the variable is not set or is not a
// date and time.
bool ReadClockFromEnvironment(const char* variable, LocalTime& time);

}  // namespace lumerin
