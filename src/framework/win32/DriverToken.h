// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {

// A driver of the dialogs queries the windows of grid and graph by messages. Any
// program can send such a message, and the answer is written through a pointer. So a query is answered only
// when its first parameter is the token that the driver chose at random and put into the environment before
// it loaded the module. In a host that sets no token no query is answered.

namespace win32 {

// Reads the token, a hexadecimal number from 1 to ffffffff, from that environment variable. Called when the
// module is loaded: the driver removes it from the environment afterwards, so that the programs that the
// module starts do not get it.
void ReadDriverToken(const char* variable) noexcept;

// Whether the parameter is the token that was read; never so without one.
bool IsFromDriver(WPARAM token);

}  // namespace win32

}  // namespace lumerin
