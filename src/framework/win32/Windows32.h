// SPDX-License-Identifier: MIT
#pragma once

#include "framework/Backend.h"
#include "framework/windows/System.h"

namespace lumerin {

// The backend on real windows: a window handle of the framework is the platform's own, under another type.

inline HWND ToHwnd(WindowHandle window) {
    return reinterpret_cast<HWND>(window);
}

inline WindowHandle FromHwnd(HWND window) {
    return reinterpret_cast<WindowHandle>(window);
}

// The number of the platform's wait cursor.
inline constexpr WORD kWaitCursor = 32514;

namespace win32 {

// The module that contains this code, whichever program loaded it; resources are loaded from it.
HINSTANCE ModuleInstance();

// Initialises OLE on this thread until the call of the export ends. False: the platform refuses it; the next
// call tries again.
bool UseOle() noexcept;

// No wait cursor is held and no handler runs.
void ResetWaitCursor() noexcept;

// The product's dialog that was opened last and is still open; null when there is none.
HWND FrontDialog();

// The window that owns the next dialog or message box: the front dialog, else the host's active window, else
// its main window on this thread. Null: the thread has no window that could be disabled.
HWND OwnerWindow();

// Called at the start and at the end of a dialog's handler. After the last one has ended, a wait cursor that
// it left is not held any more, and the next move of the mouse removes it.
class HandlerScope {
  public:
    HandlerScope();
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;
    ~HandlerScope();
};

}  // namespace win32

}  // namespace lumerin
