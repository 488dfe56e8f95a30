// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/HostWindows.h"
#include "script/Script.h"

namespace lumerin {

// What a user does to a control. Each returns false when it is refused: no such control, or a disabled or
// hidden one. A press is posted and handled after the return.
namespace actions {

bool Click(HWND dialog, int id);
bool TypeText(HWND dialog, int id, const std::string& text);
bool Focus(HWND dialog, int id);
bool SelectEntry(HWND dialog, int id, int entry);
bool Spin(HWND dialog, int id, bool up);
// Puts the focus on the cell of the grid; the text is typed on the keyboard then.
bool TypeCell(HWND dialog, int row, int column, const std::string& text);
// The key, and the text, go to the control that has the focus; refused when it does not use them.
bool PressKey(HWND dialog, const ScriptKey& key);
bool Type(HWND dialog, const std::string& text);
// The grid that the mouse can reach; null: there is none.
HWND FindGrid(HWND dialog);
// A click on the plot at that place of its x axis.
bool ClickGraph(HWND dialog, double x);
// The F1 key over a control, whether it can have the focus or not.
bool PressHelp(HWND dialog, int id);

}  // namespace actions

}  // namespace lumerin
