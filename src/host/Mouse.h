// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>

#include "framework/GridView.h"
#include "framework/MouseAction.h"
#include "host/HostWindows.h"

namespace lumerin {

// The real mouse: its pointer goes to a place on the screen and its buttons are pressed there, through the
// queue of the system, so that the platform decides which window gets what. An action is a row of steps, one
// a tick of the driver.
class Mouse {
  public:
    // Lays out the steps of the action. False: the place is not there or not visible, or the scroll bar has
    // nothing to scroll.
    bool Begin(HWND grid, const MouseAction& action);
    bool IsBusy() const { return !m_steps.empty(); }
    // Takes the next step, or looks whether what it waits for has come.
    void Step();
    // Releases a button that the script left pressed.
    void LetGo();

  private:
    // Waits for what the pointer started: a drag past the edge scrolls for a while.
    struct Stillness {
        GridView view;
        DWORD since = 0;
    };

    void Then(std::function<void()> step);
    void ThenWait(std::function<bool()> isOver);
    void MoveTo(POINT place);
    void Press(KeyState keys);
    void Release();
    void PressAgain(KeyState keys);
    void WaitForDoubleClickTime(POINT place);
    void WaitForStillness(HWND grid);
    void WaitForTipToGo(HWND grid);
    bool BeginAt(HWND grid, const MouseAction& action);
    bool BeginScroll(HWND grid, const MouseAction& action);
    void DrawSlider(HWND grid, bool toEnd);
    bool LoseCapture(HWND grid, bool broken);

    std::deque<std::function<bool()>> m_steps;  // true: done
    bool m_down = false;
    KeyState m_held;
    DWORD m_pressTime = 0;  // of the last press, and its place on the screen
    POINT m_pressed{};
};

}  // namespace lumerin
