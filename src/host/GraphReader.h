// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "framework/Automation.h"
#include "host/HostWindows.h"

namespace lumerin {

// Reads the plot from its window.
namespace graphreader {

// The calls of the last drawing; empty when the window does not report them.
std::vector<GraphCall> ReadDrawing(HWND graph);

// Posts a click of the mouse at that x of the data. False: the place is not on the plot.
bool Click(HWND graph, double x);

}  // namespace graphreader

}  // namespace lumerin
