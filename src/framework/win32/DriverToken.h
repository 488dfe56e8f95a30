// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {

// A driver of the dialogs, such as the stand-in host, queries the windows of grid and graph by messages. Any
// program can send such a message, and the answer is written through a pointer. So a query is answered only
// when its first parameter is the token that the driver chose at random and put into the environment before
// it loaded the module. In a host that sets no token no query is answered.

// A hexadecimal number from 1 to ffffffff.
inline constexpr const char* kDriverTokenVariable = "LUMERIN_DRIVER_TOKEN";

namespace win32 {

// Whether the parameter is the driver's token, as it was when the module was loaded.
bool IsFromDriver(WPARAM token);

}  // namespace win32

}  // namespace lumerin
