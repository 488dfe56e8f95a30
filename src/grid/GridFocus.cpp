// SPDX-License-Identifier: MIT
// The focus cell and how the keys move it. Rows and columns of size 0 are skipped.
#include <algorithm>

#include "framework/Index.h"
#include "grid/GridCtrl.h"

namespace lumerin {

namespace {

constexpr const char* kLoadTableText = "Load Table";
constexpr int kComputedLoadColumn = 8;

std::size_t U(int index) {
    return Index(index);
}

}  // namespace

bool CGridCtrl::MoveFocusCell(int row, int column) {
    if (!IsCellInRange(row, column)) return false;
    const CCellID before = m_FocusCell;
    m_FocusCell = {row, column};
    if (before == m_FocusCell) return true;
    HideTip();
    if (CGridCellBase* cell = GetCell(before.row, before.column)) {
        cell->SetState(cell->GetState() & ~unsigned{kCellFocus});
        RedrawCell(before.row, before.column);
    }
    CGridCellBase* cell = GetCell(row, column);
    cell->SetState(cell->GetState() | kCellFocus);
    RedrawCell(row, column);
    return true;
}

int CGridCtrl::NextRow(int row, int step) const {
    for (row += step; row >= m_nFixedRows && row < m_nRows; row += step) {
        if (m_RowHeights[U(row)] > 0) return row;
    }
    return -1;
}

int CGridCtrl::NextColumn(int column, int step) const {
    for (column += step; column >= m_nFixedCols && column < m_nCols; column += step) {
        if (m_ColumnWidths[U(column)] > 0) return column;
    }
    return -1;
}

CCellID CGridCtrl::FirstCell() const {
    const CCellID cell{NextRow(m_nFixedRows - 1, 1), NextColumn(m_nFixedCols - 1, 1)};
    return cell.IsValid() ? cell : CCellID{};
}

// The cell becomes the focus cell and the selection, or the selection's new corner.
void CGridCtrl::Choose(CCellID cell, bool extend) {
    if (!cell.IsValid()) return;
    if (extend) {
        ExtendSelectionTo(cell);
    } else {
        SelectRange(cell.row, cell.column, cell.row, cell.column, false, true);
    }
    MoveFocusCell(cell.row, cell.column);
}

void CGridCtrl::GoTo(CCellID cell, bool extend) {
    if (!cell.IsValid()) return;
    Choose(cell, extend);
    ScrollCellIntoView(cell.row, cell.column);
}

CCellID CGridCtrl::TabTarget(bool backwards) const {
    if (!m_FocusCell.IsValid()) return FirstCell();
    const int step = backwards ? -1 : 1;
    CCellID cell{m_FocusCell.row, NextColumn(m_FocusCell.column, step)};
    if (cell.column < 0) {
        cell.row = NextRow(m_FocusCell.row, step);
        cell.column = backwards ? NextColumn(m_nCols, -1) : NextColumn(m_nFixedCols - 1, 1);
    }
    if (!cell.IsValid()) return {};
    // The host's load table computes this column; Tab skips it.
    if (cell.column == kComputedLoadColumn && m_pHost->WindowText() == kLoadTableText) --cell.column;
    return cell;
}

bool CGridCtrl::MoveByTab(bool backwards) {
    const CCellID cell = TabTarget(backwards);
    if (cell.IsValid()) {
        GoTo(cell, false);
    } else {
        m_pHost->LeaveByTab(backwards);
    }
    return true;
}

int CGridCtrl::PageTarget(int direction) const {
    int target = m_FocusCell.row;
    for (int rows = PageRows(); rows > 0; --rows) {
        const int next = NextRow(target, direction);
        if (next < 0) break;
        target = next;
    }
    return target;
}

bool CGridCtrl::MoveByKey(unsigned key, KeyState keys) {
    if (key == kKeyTab) return m_bTabMoves && MoveByTab(keys.shift);
    if (key < kKeyPageUp || key > kKeyDown) return false;
    if (!m_FocusCell.IsValid()) {
        GoTo(FirstCell(), false);
        return true;
    }
    CCellID cell = m_FocusCell;
    const int firstRow = NextRow(m_nFixedRows - 1, 1), lastRow = NextRow(m_nRows, -1);
    switch (key) {
        case kKeyPageUp:
            cell.row = PageTarget(-1);
            break;
        case kKeyPageDown:
            cell.row = PageTarget(1);
            break;
        case kKeyHome:
            cell = {firstRow, keys.control ? NextColumn(m_nFixedCols - 1, 1) : cell.column};
            break;
        case kKeyEnd:
            cell = {lastRow, keys.control ? NextColumn(m_nCols, -1) : cell.column};
            break;
        case kKeyLeft:
            cell.column = NextColumn(cell.column, -1);
            break;
        case kKeyRight:
            cell.column = NextColumn(cell.column, 1);
            break;
        case kKeyUp:
            cell.row = NextRow(cell.row, -1);
            break;
        default:
            cell.row = NextRow(cell.row, 1);
            break;
    }
    GoTo(cell, keys.shift);  // at the edge there is no such cell and the focus stays
    return true;
}

void CGridCtrl::OnGotFocus() {
    // After Tab there must be a cell for the keys. A click sets its own cell, and the grid must not scroll
    // before.
    if (!m_FocusCell.IsValid() && !m_bTakingFocus) GoTo(FirstCell(), false);
}

}  // namespace lumerin
