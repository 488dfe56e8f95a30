// SPDX-License-Identifier: MIT
#include "host/Keyboard.h"

namespace lumerin {

namespace {

// The keys between letters and number pad. Without the extended-key flag they would be the keys of the pad,
// which lose Shift while Num Lock is on.
bool IsExtended(WORD key) {
    return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE;
}

void Send(WORD key, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0UL) | (IsExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0UL);
    SendInput(1, &input, sizeof input);
}

}  // namespace

namespace keyboard {

void Hold(WORD key, bool down) {
    Send(key, !down);
}

void Press(WORD key, bool shift, bool control) {
    if (control) Send(VK_CONTROL, false);
    if (shift) Send(VK_SHIFT, false);
    Send(key, false);
    Send(key, true);
    if (shift) Send(VK_SHIFT, true);
    if (control) Send(VK_CONTROL, true);
}

bool Type(std::string_view text) {
    for (const char c : text) {
        const SHORT code = VkKeyScanA(c);
        if (code == -1) return false;
        Press(LOBYTE(code), (HIBYTE(code) & 1) != 0);
    }
    return true;
}

}  // namespace keyboard

}  // namespace lumerin
