// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// The names under which users, hosts and the environment know the product.

inline constexpr const char* kApplicationName = "Lumerin";  // the title of message boxes

// A date and time "YYYY-MM-DDTHH:MM:SS"; with it two runs write the same bytes.
inline constexpr const char* kClockVariable = "LUMERIN_CLOCK";

// The token of the dialogs' driver (framework/win32/DriverToken.h).
inline constexpr const char* kDriverTokenVariable = "LUMERIN_DRIVER_TOKEN";

}  // namespace lumerin
