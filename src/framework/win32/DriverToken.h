// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {

// A driver of the dialogs, such as the stand-in host, asks the windows of grid and graph what they show. Any
// program can send such a message, and its answer is written through a pointer. So a question counts only
// when its first parameter is the token that the driver chose at random and put into the environment before
// it loaded the module. In a host that put nothing there no question is answered.

// A hexadecimal number from 1 to ffffffff.
inline constexpr const char* kDriverTokenVariable = "LUMERIN_DRIVER_TOKEN";

namespace win32 {

// Whether the parameter is the driver's token. The token is the one that was there when the module was
// loaded.
bool IsFromDriver(WPARAM token);

}  // namespace win32

}  // namespace lumerin
