// SPDX-License-Identifier: MIT
#include "grid/GridHelpers.h"

#include <algorithm>
#include <numeric>

#include "framework/Index.h"

namespace lumerin {

namespace {

void Shade(CGridCtrl& grid, int row, int column, Colour face) {
    grid.SetCellBackground(row, column, face);
    grid.SetCellState(row, column, grid.GetCellState(row, column) | kCellReadOnly);
}

}  // namespace

void ShadeFixedCells(CGridCtrl& grid, int rows, int columns) {
    const Colour face = gridplatform::SystemColour(kColourFace);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < grid.GetColumnCount(); ++column) Shade(grid, row, column, face);
    }
    for (int column = 0; column < columns; ++column) {
        for (int row = 0; row < grid.GetRowCount(); ++row) Shade(grid, row, column, face);
    }
}

void SetGridAlignment(CGridCtrl& grid, int fixedRows, int fixedColumns, unsigned columnFormat,
                      unsigned rowFormat, unsigned bodyFormat) {
    if (fixedRows < 1) fixedRows = grid.GetFixedRowCount();
    if (fixedColumns < 1) fixedColumns = grid.GetFixedColumnCount();
    for (int row = 0; row < grid.GetRowCount(); ++row) {
        for (int column = 0; column < grid.GetColumnCount(); ++column) {
            unsigned format = row < fixedRows ? rowFormat : bodyFormat;
            if (column < fixedColumns) format = columnFormat;
            grid.SetCellFormat(row, column, format);
        }
    }
}

void SplitWidth(std::span<const int> weights, std::span<int> out, int total) {
    const long long sum = std::accumulate(weights.begin(), weights.end(), 0LL);
    if (sum <= 0) return;
    long long fractions = 0;
    for (std::size_t i = 0; i < weights.size() && i < out.size(); ++i) {
        const long long share = static_cast<long long>(weights[i]) * total;
        out[i] = static_cast<int>(share / sum);
        fractions += share % sum;
    }
    const long long spread = fractions / sum;
    for (long long i = 0; i < spread && i < static_cast<long long>(out.size()); ++i) {
        ++out[Index(i)];
    }
}

void FitColumns(CGridCtrl& grid, std::span<const int> weights, std::span<int> out) {
    // With the bar forced on, the client area is what remains beside it.
    grid.EnableScrollBarCtrl(true);
    SplitWidth(weights, out, grid.Host().ClientSize().width);
    for (std::size_t i = 0; i < out.size(); ++i) grid.SetColumnWidth(static_cast<int>(i), out[i]);
    grid.EnableScrollBarCtrl(true);
}

GridView ViewOf(const CGridCtrl& grid) {
    GridView view;
    view.row = grid.FocusCell().row;
    view.column = grid.FocusCell().column;
    for (const CCellID& cell : grid.SelectedCells()) {
        const bool first = view.selected++ == 0;
        view.top = first ? cell.row : std::min(view.top, cell.row);
        view.left = first ? cell.column : std::min(view.left, cell.column);
        view.bottom = std::max(view.bottom, cell.row);
        view.right = std::max(view.right, cell.column);
    }
    view.tipRow = grid.TipCell().row;
    view.tipColumn = grid.TipCell().column;
    const CInPlaceEdit* editor = grid.OpenEditor();
    const EditorWindow* window = editor == nullptr ? nullptr : editor->Window();
    if (window == nullptr) return view;
    const EditText edit = window->Read();
    view.editing = true;
    view.text = edit.text;
    view.start = edit.start;
    view.end = edit.end;
    GridRect cell;
    view.outgrewCell = grid.CellRect(view.row, view.column, cell) && window->Place().right > cell.right;
    return view;
}

}  // namespace lumerin
