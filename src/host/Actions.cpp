// SPDX-License-Identifier: MIT
#include "host/Actions.h"
// This header needs windows.h before it.
#include <commctrl.h>

#include "host/GraphReader.h"
#include "host/GridReader.h"
#include "host/Keyboard.h"
#include "host/WindowReader.h"

namespace lumerin {

namespace {

HWND FindUsable(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    const bool usable = control != nullptr && IsWindowEnabled(control) && HasStyle(control, WS_VISIBLE);
    return usable ? control : nullptr;
}

HWND FindUsable(HWND dialog, int id, ControlKind kind) {
    const HWND control = FindUsable(dialog, id);
    return control != nullptr && KindOf(control) == kind ? control : nullptr;
}

// The first control of the kind, when it can be used.
HWND FindUsableKind(HWND dialog, ControlKind kind) {
    for (const HWND control : ControlsOf(dialog)) {
        if (KindOf(control) != kind) continue;
        return IsWindowEnabled(control) && HasStyle(control, WS_VISIBLE) ? control : nullptr;
    }
    return nullptr;
}

bool IsPressable(ControlKind kind) {
    return kind == ControlKind::button || kind == ControlKind::radio || kind == ControlKind::check;
}

bool TakesFocus(ControlKind kind) {
    return IsPressable(kind) || kind == ControlKind::edit || kind == ControlKind::combo ||
           kind == ControlKind::grid;
}

void MoveFocus(HWND dialog, HWND control) {
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void PostMouseClick(HWND control, int x, int y) {
    PostMessageA(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageA(control, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

}  // namespace

namespace actions {

bool Click(HWND dialog, int id) {
    const HWND control = FindUsable(dialog, id);
    if (control == nullptr) return false;
    const ControlKind kind = KindOf(control);
    if (IsPressable(kind)) {
        // A button that the mouse pressed becomes the one that Return presses.
        if (kind == ControlKind::button) MoveFocus(dialog, control);
        PostMessageA(control, BM_CLICK, 0, 0);
    } else if (kind == ControlKind::edit || (kind == ControlKind::text && HasStyle(control, SS_NOTIFY))) {
        PostMouseClick(control, 2, 2);
    } else if (kind == ControlKind::combo) {
        MoveFocus(dialog, control);
    }
    return true;
}

bool TypeText(HWND dialog, int id, const std::string& text) {
    const HWND control = FindUsable(dialog, id, ControlKind::edit);
    return control != nullptr && SetWindowTextA(control, text.c_str());
}

bool Focus(HWND dialog, int id) {
    const HWND control = FindUsable(dialog, id);
    if (control == nullptr || !TakesFocus(KindOf(control))) return false;
    MoveFocus(dialog, control);
    return true;
}

bool SelectEntry(HWND dialog, int id, int entry) {
    const HWND control = FindUsable(dialog, id, ControlKind::combo);
    if (control == nullptr) return false;
    if (entry < 0 || entry >= static_cast<int>(SendMessageA(control, CB_GETCOUNT, 0, 0))) return false;
    MoveFocus(dialog, control);
    SendMessageA(control, WM_KEYDOWN, VK_HOME, 1);
    for (int i = 0; i < entry; ++i) SendMessageA(control, WM_KEYDOWN, VK_DOWN, 1);
    return true;
}

bool Spin(HWND dialog, int id, bool up) {
    const HWND control = FindUsable(dialog, id, ControlKind::spin);
    if (control == nullptr) return false;
    RECT area{};
    GetClientRect(control, &area);
    PostMouseClick(control, area.right / 2, up ? area.bottom / 4 : area.bottom * 3 / 4);
    return true;
}

bool TypeCell(HWND dialog, int row, int column, const std::string& text) {
    const HWND grid = FindUsableKind(dialog, ControlKind::grid);
    if (grid == nullptr) return false;
    MoveFocus(dialog, grid);
    if (!gridreader::GoToCell(grid, row, column)) return false;
    keyboard::Type(text);
    keyboard::Press(VK_RETURN);
    return true;
}

bool PressKey(HWND dialog, const ScriptKey& key) {
    const HWND control = FocusedControl(dialog);
    if (!TakesKey(control == nullptr ? ControlKind::group : KindOf(control), key)) return false;
    keyboard::Press(static_cast<WORD>(key.code), key.keys.shift, key.keys.control);
    return true;
}

bool Type(HWND dialog, const std::string& text) {
    const HWND control = FocusedControl(dialog);
    if (control == nullptr || !TakesText(KindOf(control))) return false;
    keyboard::Type(text);
    return true;
}

HWND FindGrid(HWND dialog) {
    return FindUsableKind(dialog, ControlKind::grid);
}

bool ClickGraph(HWND dialog, double x) {
    const HWND graph = FindUsableKind(dialog, ControlKind::graph);
    return graph != nullptr && graphreader::Click(graph, x);
}

bool PressHelp(HWND dialog, int id) {
    const HWND control = GetDlgItem(dialog, id);
    if (control == nullptr) return false;
    // A radio button takes the focus as a press, and a text takes none: they get the message of the key.
    const ControlKind kind = KindOf(control);
    if (FindUsable(dialog, id) != nullptr && TakesFocus(kind) && kind != ControlKind::radio) {
        MoveFocus(dialog, control);
        keyboard::Press(VK_F1);
        return true;
    }
    HELPINFO help{};
    help.cbSize = sizeof help;
    help.iContextType = HELPINFO_WINDOW;
    help.iCtrlId = id;
    help.hItemHandle = control;
    SendMessageA(control, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    return true;
}

}  // namespace actions

}  // namespace lumerin
