// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"

namespace lumerin {

// The messages by which the driver of the dialogs queries the window of the graph. wParam is the driver's
// token (DriverToken.h), lParam the address of a record in the same process, which holds the question and
// receives the answer. The result is TRUE for an answered question; without the token nothing is read and
// nothing is written.

// The window class of the place that the dialog keeps for the graph.
inline constexpr const char* kGraphWindowClass = "LumerinGraph";

// GraphDrawingText: the calls of the last drawing, as GraphRecord writes them.
inline constexpr UINT kGraphDrawing = WM_APP + 1;
// GraphPoint. FALSE: the place is not on the plot, or the control in the window is not the module's own.
inline constexpr UINT kGraphPointOf = WM_APP + 2;

struct GraphDrawingText {
    char* text = nullptr;  // receives at most `capacity` bytes, with the terminating zero
    int capacity = 0;
    int length = 0;  // of the whole text
};

struct GraphPoint {
    double x = 0.0;  // of the data
    POINT place{};   // in the client area
};

}  // namespace lumerin
