// SPDX-License-Identifier: MIT
#pragma once

#include "framework/MouseAction.h"
#include "grid/GridTypes.h"

namespace lumerin {

class CGridCtrl;
class HeadlessGrid;

// The mouse over a grid without a screen. Events go to windows by the platform's rules: the tip is above the
// cells, an editor above its cell, and a captured mouse belongs to the grid everywhere. Two presses are a
// double click when the script has one and one window received both.
class HeadlessMouse {
  public:
    HeadlessMouse(CGridCtrl& grid, HeadlessGrid& window) : m_grid(grid), m_window(window) {}

    // False: the place is not there or not visible, or the bar has nothing to scroll.
    bool Play(const MouseAction& action);

  private:
    enum class Target { none, grid, tip, editor };

    bool FindPlace(const MouseSpot& spot, GridPoint& place) const;
    bool FindOnCell(const MouseSpot& spot, GridPoint& place) const;
    Target TargetAt(GridPoint place) const;
    void MoveTo(GridPoint place);
    void DragOutside();
    void Press(KeyState keys, bool soon);
    void Release();
    void PressRight();
    bool Scroll(ScrollPart part, int count);

    CGridCtrl& m_grid;
    HeadlessGrid& m_window;
    GridPoint m_place{-1000, -1000};  // in the grid's client area
    bool m_down = false;
    Target m_pressed = Target::none;  // of the last press, until a double click
    unsigned m_now = 0;               // milliseconds
};

}  // namespace lumerin
