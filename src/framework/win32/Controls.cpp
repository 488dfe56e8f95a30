// SPDX-License-Identifier: MIT
#include "framework/win32/Windows32.h"
// This header needs windows.h before it.
#include <commctrl.h>

#include <algorithm>
#include <vector>

#include "framework/Index.h"
#include "framework/win32/Bindings.h"

namespace lumerin {

// The controls of a dialog, each a window of the platform.

namespace {

LRESULT Send(WindowHandle window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return window == nullptr ? 0 : SendMessageA(ToHwnd(window), message, wParam, lParam);
}

bool HasStyle(WindowHandle window, DWORD style) {
    return (static_cast<DWORD>(GetWindowLongA(ToHwnd(window), GWL_STYLE)) & style) != 0;
}

}  // namespace

namespace backend {

void SetText(WindowHandle window, const std::string& text) {
    if (window != nullptr) SetWindowTextA(ToHwnd(window), text.c_str());
}

std::string Text(WindowHandle window) {
    if (window == nullptr) return {};
    const int length = GetWindowTextLengthA(ToHwnd(window));
    std::vector<char> text(Index(std::max(length, 0)) + 1);
    const int got = GetWindowTextA(ToHwnd(window), text.data(), static_cast<int>(text.size()));
    return std::string(text.data(), Index(std::max(got, 0)));
}

void Enable(WindowHandle window, bool enabled) {
    if (window != nullptr) EnableWindow(ToHwnd(window), enabled ? TRUE : FALSE);
}

bool IsEnabled(WindowHandle window) {
    return window != nullptr && IsWindowEnabled(ToHwnd(window)) != FALSE;
}

void Show(WindowHandle window, bool visible) {
    if (window != nullptr) ShowWindow(ToHwnd(window), visible ? SW_SHOW : SW_HIDE);
}

// The control's own flag, whether or not its dialog is shown yet.
bool IsVisible(WindowHandle window) {
    return window != nullptr && HasStyle(window, WS_VISIBLE);
}

void SetChecked(WindowHandle window, bool checked) {
    Send(window, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
}

bool IsChecked(WindowHandle window) {
    return Send(window, BM_GETCHECK) == BST_CHECKED;
}

void SetFocus(WindowHandle window) {
    if (window != nullptr) ::SetFocus(ToHwnd(window));
}

void SelectEditText(WindowHandle window, int start, int end) {
    Send(window, EM_SETSEL, static_cast<WPARAM>(start), static_cast<LPARAM>(end));
}

void ComboAdd(WindowHandle window, const std::string& entry) {
    Send(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
}

void ComboSelect(WindowHandle window, int index) {
    Send(window, CB_SETCURSEL, static_cast<WPARAM>(index));
}

int ComboSelection(WindowHandle window) {
    return window == nullptr ? -1 : static_cast<int>(Send(window, CB_GETCURSEL));
}

void SpinSetRange(WindowHandle window, int low, int high) {
    Send(window, UDM_SETRANGE32, static_cast<WPARAM>(low), static_cast<LPARAM>(high));
}

void SpinSetPosition(WindowHandle window, int position) {
    Send(window, UDM_SETPOS32, 0, static_cast<LPARAM>(position));
}

int SpinPosition(WindowHandle window) {
    return static_cast<int>(Send(window, UDM_GETPOS32));
}

WindowHandle Control(WindowHandle dialog, int id) {
    return dialog == nullptr || id == -1 ? nullptr : FromHwnd(GetDlgItem(ToHwnd(dialog), id));
}

void AttachObject(WindowHandle window, CWnd& object) {
    if (window != nullptr) win32::Bind(ToHwnd(window), object);
}

}  // namespace backend

}  // namespace lumerin
