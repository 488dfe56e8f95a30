// SPDX-License-Identifier: MIT
#include "framework/win32/Bindings.h"

namespace lumerin {

namespace {

constexpr const char* kObjectProperty = "FrameworkObject";

BOOL CALLBACK UnbindControl(HWND control, LPARAM) {
    if (HANDLE property = RemovePropA(control, kObjectProperty))
        static_cast<CWnd*>(property)->m_hWnd = nullptr;
    return TRUE;
}

}  // namespace

namespace win32 {

void Bind(HWND control, CWnd& object) {
    SetPropA(control, kObjectProperty, &object);
}

void UnbindControls(HWND dialog) {
    EnumChildWindows(dialog, UnbindControl, 0);
}

}  // namespace win32

}  // namespace lumerin
