#include "host/GridReader.h"

#include <algorithm>
#include <array>

#include "grid/win32/GridMessages.h"

namespace {

int Count(HWND grid, UINT message) {
    return static_cast<int>(SendMessageA(grid, message, 0, 0));
}

std::string CellText(HWND grid, int row, int column) {
    std::array<char, 1024> text{};
    GridCellText cell{row, column, text.data(), static_cast<int>(text.size()), 0};
    SendMessageA(grid, kGridCellText, 0, reinterpret_cast<LPARAM>(&cell));
    return text.data();
}

}  // namespace

namespace gridreader {

std::vector<std::vector<std::string>> ReadRows(HWND grid) {
    const int rowCount = Count(grid, kGridRowCount), columnCount = Count(grid, kGridColumnCount);
    std::vector<std::vector<std::string>> rows(static_cast<std::size_t>(std::max(rowCount, 0)));
    for (int row = 0; row < rowCount; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            rows[static_cast<std::size_t>(row)].push_back(CellText(grid, row, column));
        }
    }
    return rows;
}

GridView ReadView(HWND grid) {
    GridViewRecord record{};
    SendMessageA(grid, kGridView, 0, reinterpret_cast<LPARAM>(&record));
    GridView view;
    view.row = record.row;
    view.column = record.column;
    view.top = record.top;
    view.left = record.left;
    view.bottom = record.bottom;
    view.right = record.right;
    view.selected = record.selected;
    view.tipRow = record.tipRow;
    view.tipColumn = record.tipColumn;
    view.editing = record.editing;
    view.text = record.text;
    view.start = record.start;
    view.end = record.end;
    view.outgrewCell = record.outgrewCell;
    return view;
}

bool Hover(HWND grid, int row, int column) {
    const LRESULT point =
        SendMessageA(grid, kGridCellPoint, static_cast<WPARAM>(row), static_cast<LPARAM>(column));
    if (point == -1) return false;
    SendMessageA(grid, WM_MOUSEMOVE, 0, point);
    return true;
}

bool GoToCell(HWND grid, int row, int column) {
    return SendMessageA(grid, kGridGoTo, static_cast<WPARAM>(row), static_cast<LPARAM>(column)) != FALSE;
}

}  // namespace gridreader
