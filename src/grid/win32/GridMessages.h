#pragma once

#include "framework/win32/Windows32.h"

// What a program in the same process can ask a grid's window, as it would a list control.

// The counts of rows and columns.
inline constexpr UINT kGridRowCount = WM_USER + 1;
inline constexpr UINT kGridColumnCount = WM_USER + 2;
// lParam: a GridCellText to fill. TRUE when the cell is there.
inline constexpr UINT kGridCellText = WM_USER + 3;
// wParam row, lParam column: scrolls the cell into view, puts the focus cell there and selects it. TRUE when
// the cell is there.
inline constexpr UINT kGridGoTo = WM_USER + 4;
// wParam row, lParam column; the result is the cell's place in the client area of the last kGridGoTo or
// paint, packed as x and y of its middle; -1 when it is not visible.
inline constexpr UINT kGridCellPoint = WM_USER + 5;

// lParam: a GridViewRecord to fill.
inline constexpr UINT kGridView = WM_USER + 6;

// A GridView in a form that passes between two modules.
struct GridViewRecord {
    int row, column, top, left, bottom, right, selected;
    int tipRow, tipColumn;
    int start, end;
    bool editing, outgrewCell;
    char text[256];  // what does not fit is cut off
};

struct GridCellText {
    int row = 0, column = 0;
    char* text = nullptr;  // receives at most `capacity` bytes, with the terminating zero
    int capacity = 0;
    int length = 0;  // of the whole text
};
