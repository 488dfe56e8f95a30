// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/HostWindows.h"
#include "script/JsonLines.h"

namespace lumerin {

// The contents of the screen: dialogs, message boxes and controls, read from their windows.

struct MessageBoxState {
    std::string text, title;
    MessageIcon icon = MessageIcon::none;
    HWND yes = nullptr, no = nullptr, ok = nullptr;  // null: no such button
};

std::string TextOf(HWND window);
bool HasStyle(HWND window, DWORD style);

// The one dialog or message box of this thread that takes input; null while there is none.
HWND FrontDialog();
// A box of the platform: it has no controls but texts, an icon and buttons.
bool IsMessageBox(HWND dialog);
MessageBoxState ReadMessageBox(HWND box);

// The direct children in the order of the resource.
std::vector<HWND> ControlsOf(HWND dialog);
// The kind by class and style of the window.
ControlKind KindOf(HWND control);
ControlState ReadControl(HWND control);

// The control of the dialog that has the focus, itself or by a child; null when none has.
HWND FocusedControl(HWND dialog);
FocusState ReadFocus(HWND dialog);

}  // namespace lumerin
