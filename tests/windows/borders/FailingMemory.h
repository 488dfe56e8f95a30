// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostWindows.h"

namespace lumerin {

// Makes allocations of the module fail: its calls of the C library's allocation go through here.
namespace failing {

// Sends the module's calls through here from now on. False: it has no such calls.
bool Hook(HMODULE module);

// The module's allocation of that number fails, counted from 0 from now on; with `all` every later one too.
void Arm(long number, bool all = false);
// All succeed again. Returns whether one failed.
bool Disarm();

}  // namespace failing

}  // namespace lumerin
