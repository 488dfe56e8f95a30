// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {

// The messages by which the driver of the dialogs queries a grid's window. wParam is the driver's token
// (DriverToken.h), lParam the address of a record in the same process, which holds the question and receives
// the answer. The result is TRUE for an answered question; without the token nothing is read and nothing is
// written.

inline constexpr UINT kGridCounts = WM_USER + 1;    // GridCounts
inline constexpr UINT kGridCellText = WM_USER + 2;  // GridCellText; FALSE: no such cell
// GridCellPlace: scrolls the cell into view, puts the focus cell there and selects it. FALSE: no such cell.
inline constexpr UINT kGridGoTo = WM_USER + 3;
inline constexpr UINT kGridCellArea = WM_USER + 4;  // GridCellArea; FALSE: not visible
inline constexpr UINT kGridView = WM_USER + 5;      // GridViewRecord

// The identifier of the timer that scrolls during a drag.
inline constexpr UINT_PTR kGridDragTimer = 1;

struct GridCounts {
    int rows = 0, columns = 0;
};

struct GridCellPlace {
    int row = 0, column = 0;
};

struct GridCellText {
    int row = 0, column = 0;
    char* text = nullptr;  // receives at most `capacity` bytes, with the terminating zero
    int capacity = 0;
    int length = 0;  // of the whole text
};

// The place of a cell in the client area of the window; the last rows and columns may be partly outside.
struct GridCellArea {
    int row = 0, column = 0;
    RECT area{};
};

// A GridView in a form that passes between two modules.
struct GridViewRecord {
    int row, column, top, left, bottom, right, selected;
    int tipRow, tipColumn;
    int start, end;
    bool editing, outgrewCell;
    char text[256];  // what does not fit is cut off
};

}  // namespace lumerin
