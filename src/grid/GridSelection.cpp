// SPDX-License-Identifier: MIT
// The selection: a map of the selected cells, whose state bits follow it.
#include <algorithm>

#include "grid/GridCtrl.h"

namespace lumerin {

namespace {

// A key holds the column in its low bits, so that the map's order is row by row.
constexpr unsigned kColumnBits = 10;

std::uint32_t Key(int row, int column) {
    return (static_cast<std::uint32_t>(row) << kColumnBits) | static_cast<std::uint32_t>(column);
}

}  // namespace

void CGridCtrl::SetSelected(int row, int column, bool selected) {
    CGridCellBase* cell = GetCell(row, column);
    if (cell == nullptr) return;
    if (selected) {
        m_Selection[Key(row, column)] = {row, column};
    } else {
        m_Selection.erase(Key(row, column));
    }
    const unsigned bit = kCellSelected;
    cell->SetState(selected ? cell->GetState() | bit : cell->GetState() & ~bit);
    RedrawCell(row, column);
}

void CGridCtrl::SelectRange(int firstRow, int firstColumn, int lastRow, int lastColumn, bool force,
                            bool select) {
    if (!m_bSelectable) return;
    const int top = std::max(std::min(firstRow, lastRow), m_nFixedRows);
    const int left = std::max(std::min(firstColumn, lastColumn), m_nFixedCols);
    const int bottom = std::min(std::max(firstRow, lastRow), m_nRows - 1);
    const int right = std::min(std::max(firstColumn, lastColumn), m_nCols - 1);
    const auto inRange = [&](const CCellID& c) {
        return select && c.row >= top && c.row <= bottom && c.column >= left && c.column <= right;
    };
    const std::map<std::uint32_t, CCellID> before = m_Selection;
    for (const auto& [key, cell] : before) {
        if (!inRange(cell) && !m_DragStartSelection.contains(key)) SetSelected(cell.row, cell.column, false);
    }
    for (int row = top; select && row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            if (!before.contains(Key(row, column))) SetSelected(row, column, true);
        }
    }
    m_SelectionStart = select ? CCellID{firstRow, firstColumn} : CCellID{};
    m_SelectionEnd = select ? CCellID{lastRow, lastColumn} : CCellID{};
    if (force) RedrawAll();
}

bool CGridCtrl::IsCellSelected(int row, int column) const {
    return IsCellInRange(row, column) && m_Selection.contains(Key(row, column));
}

std::vector<CCellID> CGridCtrl::SelectedCells() const {
    std::vector<CCellID> cells;
    cells.reserve(m_Selection.size());
    for (const auto& entry : m_Selection) cells.push_back(entry.second);
    return cells;
}

void CGridCtrl::ExtendSelectionTo(CCellID cell) {
    const CCellID start = m_SelectionStart.IsValid() ? m_SelectionStart : m_FocusCell;
    if (!start.IsValid() || cell == m_SelectionEnd) return;
    SelectRange(start.row, start.column, cell.row, cell.column, false, true);
}

void CGridCtrl::ClearSelection() {
    if (!m_bEditable) return;
    for (const CCellID& cell : SelectedCells()) {
        if (!IsCellReadOnly(cell.row, cell.column)) SetCellText(cell.row, cell.column, "");
    }
}

}  // namespace lumerin
