#include "grid/GridHelpers.h"

#include "session/OutputFiles.h"

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

void FitColumns(CGridCtrl& grid, std::span<const int> weights, std::span<int> out) {
    // With the bar forced on, the client area is what remains beside it.
    grid.EnableScrollBarCtrl(true);
    SplitWidth(weights, out, grid.Host().ClientSize().width);
    for (std::size_t i = 0; i < out.size(); ++i) grid.SetColumnWidth(static_cast<int>(i), out[i]);
    grid.EnableScrollBarCtrl(true);
}
