// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// Keys of the keyboard, by the platform's codes. A key that is also a character below 128 has the code of
// that character; a letter's key has the code of the capital.
enum KeyCode : unsigned {
    kKeyMouse = 1,  // an edit that the mouse started
    kKeyBackspace = 8,
    kKeyTab = 9,
    kKeyReturn = 13,
    kKeyEscape = 27,
    kKeyBlank = 32,
    kKeyPageUp = 33,
    kKeyPageDown = 34,
    kKeyEnd = 35,
    kKeyHome = 36,
    kKeyLeft = 37,
    kKeyUp = 38,
    kKeyRight = 39,
    kKeyDown = 40,
    kKeyInsert = 45,
    kKeyDelete = 46,
};

// The keys that are held down with another one.
struct KeyState {
    bool shift = false, control = false;
};

}  // namespace lumerin
