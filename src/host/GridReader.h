// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "framework/GridView.h"
#include "host/HostWindows.h"

namespace lumerin {

// The grid's cells, asked of its window.
namespace gridreader {

// The texts of all cells, row by row.
std::vector<std::vector<std::string>> ReadRows(HWND grid);

GridView ReadView(HWND grid);

// Where the cell lies in the client area; the last ones may lie partly outside of it. False: there is no such
// cell, or it is scrolled away.
bool FindCell(HWND grid, int row, int column, RECT& area);

int RowCount(HWND grid);

// Puts the focus on the cell. False: there is no such cell.
bool GoToCell(HWND grid, int row, int column);

}  // namespace gridreader

}  // namespace lumerin
