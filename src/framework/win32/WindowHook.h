// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {

namespace win32 {

// An object that gets the messages of a hooked window before the window itself.
class MessageTarget {
  public:
    virtual ~MessageTarget() = default;

    // True: the message was handled with that result; false: the window's own procedure goes on with it. What
    // this throws ends the message with the result 0 and is reported.
    virtual bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) = 0;
    // The window is gone and the hook with it. The object may delete itself.
    virtual void OnGone() noexcept = 0;
};

// Sends the window's messages to the target, which stays the caller's and lives until UnhookWindow or OnGone.
// A window has one hook. Throws std::bad_alloc where the platform refuses it.
//
// The common controls have functions for this, but their older versions export them by number alone.
void HookWindow(HWND window, MessageTarget& target);
void UnhookWindow(HWND window) noexcept;

// What the hooked window does with a message by itself.
LRESULT CallOwnProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

}  // namespace win32

}  // namespace lumerin
