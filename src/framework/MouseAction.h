// SPDX-License-Identifier: MIT
#pragma once

#include "framework/Keys.h"

namespace lumerin {

// What a user does with the mouse on a grid and beside it. The mouse actions of scripts are made of these, in
// both drivers.

// Where the pointer goes, seen from the grid of the front dialog.
enum class MousePlace {
    here,        // where it is
    cell,        // the middle of a cell
    cellRight,   // the line at the right edge of a cell
    cellBottom,  // the line at its bottom edge
    beside,      // the area below the last row
    frame,       // the border of the grid's window
    above,       // outside of the grid's window, on that side of where the pointer is
    below,
    left,
    right,
    away,  // far from the grid
};

struct MouseSpot {
    MousePlace place = MousePlace::here;
    int row = 0, column = 0;  // of the cell
};

enum class MouseDeed {
    move,
    press,
    release,
    click,        // press and release
    doubleClick,  // two clicks within the double click time
    shakyDouble,  // the same, with a small move of the mouse between the two
    rightClick,
    wheel,   // count: notches, above 0 away from the hand
    scroll,  // the vertical scroll bar: `part`, `count` times
    lose,    // another window captures the mouse
    cancel,  // the platform ends the mouse action, as it does for a message box
};

// A part of the scroll bar: the arrows, the area beside the slider, and the slider dragged to an end.
enum class ScrollPart { lineUp, lineDown, pageUp, pageDown, first, last };

struct MouseAction {
    MouseDeed deed = MouseDeed::move;
    MouseSpot spot;
    KeyState keys;  // held down during press, click and double click
    ScrollPart part = ScrollPart::lineUp;
    int count = 1;
};

}  // namespace lumerin
