// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "host/HostWindows.h"

namespace lumerin {

// The real keyboard: keys go to the window that has the focus, through the queue of the system. They arrive a
// while after the call.
namespace keyboard {

// Presses a key and keeps it down, or releases it.
void Hold(WORD key, bool down);
void Press(WORD key, bool shift = false, bool control = false);
// Types characters that the keyboard's layout has; false for one that it has not, which ends the typing.
bool Type(std::string_view text);

}  // namespace keyboard

}  // namespace lumerin
