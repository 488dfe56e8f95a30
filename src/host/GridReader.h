#pragma once

#include <string>
#include <vector>

#include "framework/GridView.h"
#include "host/HostWindows.h"

// The grid's cells, asked of its window.
namespace gridreader {

// The texts of all cells, row by row.
std::vector<std::vector<std::string>> ReadRows(HWND grid);

GridView ReadView(HWND grid);

// Moves the mouse over the cell. False: there is no such cell, or it is not visible.
bool Hover(HWND grid, int row, int column);

// Puts the focus on the cell. False: there is no such cell.
bool GoToCell(HWND grid, int row, int column);

}  // namespace gridreader
