// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {

namespace win32 {

// An object that gets the messages of a hooked window before the window itself.
class MessageTarget {
  public:
    virtual ~MessageTarget() = default;

    // True: the message was handled with that result; false: the window's own procedure goes on with it. An
    // exception ends the message with the result 0 and is reported.
    virtual bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) = 0;
    // The window was destroyed and the hook removed. The object may delete itself.
    virtual void OnGone() noexcept = 0;
};

// Sends the window's messages to the target. The caller owns the target and keeps it until UnhookWindow or
// OnGone. A window has one hook. Throws std::bad_alloc when the platform refuses it.
//
// The common controls have functions for this, but older versions export them only by number.
void HookWindow(HWND window, MessageTarget& target);
void UnhookWindow(HWND window) noexcept;

// Calls the window's own procedure.
LRESULT CallOwnProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

}  // namespace win32

}  // namespace lumerin
