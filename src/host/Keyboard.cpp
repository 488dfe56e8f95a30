#include "host/Keyboard.h"

namespace {

void Send(WORD key, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    SendInput(1, &input, sizeof input);
}

}  // namespace

namespace keyboard {

void Press(WORD key) {
    Send(key, false);
    Send(key, true);
}

bool Type(std::string_view text) {
    for (const char c : text) {
        const SHORT code = VkKeyScanA(c);
        if (code == -1) return false;
        const bool shift = (HIBYTE(code) & 1) != 0;
        if (shift) Send(VK_SHIFT, false);
        Press(LOBYTE(code));
        if (shift) Send(VK_SHIFT, true);
    }
    return true;
}

}  // namespace keyboard
