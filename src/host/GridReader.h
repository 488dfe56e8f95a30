// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "framework/GridView.h"
#include "host/HostWindows.h"

namespace lumerin {

// Reads the grid's cells from its window.
namespace gridreader {

// The texts of all cells, row by row.
std::vector<std::vector<std::string>> ReadRows(HWND grid);

GridView ReadView(HWND grid);

// The place of the cell in the client area; the last cells may be partly outside. False: there is no such
// cell, or it is scrolled away.
bool FindCell(HWND grid, int row, int column, RECT& area);

int RowCount(HWND grid);

// Puts the focus on the cell. False: there is no such cell.
bool GoToCell(HWND grid, int row, int column);

}  // namespace gridreader

}  // namespace lumerin
