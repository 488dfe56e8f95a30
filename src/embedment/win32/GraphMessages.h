#pragma once

#include "framework/win32/Windows32.h"

// What a program in the same process can ask the window of the graph.

// The window class of the place that the dialog keeps for the graph.
inline constexpr const char* kGraphWindowClass = "LumerinGraph";

// lParam: a GraphDrawingText to fill with the calls of the last drawing, as GraphRecord writes them.
inline constexpr UINT kGraphDrawing = WM_APP + 1;
// lParam: a double, an x of the data. The result is its place in the client area, packed as x and y; -1: the
// control in the window is not the module's own.
inline constexpr UINT kGraphPointOf = WM_APP + 2;

struct GraphDrawingText {
    char* text = nullptr;  // receives at most `capacity` bytes, with the terminating zero
    int capacity = 0;
    int length = 0;  // of the whole text
};
