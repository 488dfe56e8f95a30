// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "framework/GridView.h"
#include "grid/GridCtrl.h"

namespace lumerin {

// Functions that both dialogs use for their grids, and the state that the drivers read.

// The first `rows` rows and the first `columns` columns get the face colour and become read-only.
void ShadeFixedCells(CGridCtrl& grid, int rows, int columns);

// Text formats (TextFormat) by region: `rowFormat` in the fixed rows, `columnFormat` in the fixed columns,
// the corner among them, `bodyFormat` elsewhere. Counts below 1 take the grid's own.
void SetGridAlignment(CGridCtrl& grid, int fixedRows, int fixedColumns, unsigned columnFormat,
                      unsigned rowFormat, unsigned bodyFormat);

// Spreads `total` over the columns by weight; what integer division leaves goes to the first columns, one
// each. Both spans have one entry a column.
void SplitWidth(std::span<const int> weights, std::span<int> out, int total);

// Column widths by weight that fill the client area beside the vertical scroll bar. One entry a column in
// both; `out` receives the widths.
void FitColumns(CGridCtrl& grid, std::span<const int> weights, std::span<int> out);

// Focus cell, selection and open editor.
GridView ViewOf(const CGridCtrl& grid);

}  // namespace lumerin
