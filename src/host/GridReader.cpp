// SPDX-License-Identifier: MIT
#include "host/GridReader.h"

#include <algorithm>
#include <array>

#include "framework/Index.h"
#include "grid/win32/GridMessages.h"
#include "host/Token.h"

namespace lumerin {

namespace {

template <typename Record>
bool Ask(HWND grid, UINT question, Record& record) {
    return SendMessageA(grid, question, token::Get(), reinterpret_cast<LPARAM>(&record)) != FALSE;
}

std::string CellText(HWND grid, int row, int column) {
    std::array<char, 1024> text{};
    GridCellText cell{row, column, text.data(), static_cast<int>(text.size()), 0};
    Ask(grid, kGridCellText, cell);
    return text.data();
}

}  // namespace

namespace gridreader {

std::vector<std::vector<std::string>> ReadRows(HWND grid) {
    GridCounts counts;
    Ask(grid, kGridCounts, counts);
    std::vector<std::vector<std::string>> rows(Index(std::max(counts.rows, 0)));
    for (int row = 0; row < counts.rows; ++row) {
        for (int column = 0; column < counts.columns; ++column) {
            rows[Index(row)].push_back(CellText(grid, row, column));
        }
    }
    return rows;
}

GridView ReadView(HWND grid) {
    GridViewRecord record{};
    Ask(grid, kGridView, record);
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

bool FindCell(HWND grid, int row, int column, RECT& area) {
    GridCellArea query{row, column, {}};
    if (!Ask(grid, kGridCellArea, query)) return false;
    area = query.area;
    return true;
}

int RowCount(HWND grid) {
    GridCounts counts;
    Ask(grid, kGridCounts, counts);
    return counts.rows;
}

bool GoToCell(HWND grid, int row, int column) {
    GridCellPlace place{row, column};
    return Ask(grid, kGridGoTo, place);
}

}  // namespace gridreader

}  // namespace lumerin
