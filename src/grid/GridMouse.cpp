// SPDX-License-Identifier: MIT
// The mouse: a click moves the focus and starts a selection, a drag extends it, a double click edits, and the
// border of a heading cell can be dragged when the sizes may change.
#include <algorithm>
#include <cstdlib>

#include "grid/GridCtrl.h"

namespace lumerin {

namespace {

constexpr int kBorderReach = 4;  // pixels on either side of a border that catch it

}  // namespace

void CGridCtrl::Press(GridPoint point, KeyState keys, unsigned time, bool onTip) {
    // The cell is looked up first: what follows may end an edit and run handlers of the dialog.
    const CCellID cell = CellAt(point);
    const bool second = m_TitleTip.IsSecondPress(cell, time, onTip);
    m_MousePoint = point;
    HideTip();
    if (second) {
        OnDoubleClick(point);
        return;
    }
    EndOpenEdit();
    const bool extend = keys.shift && m_FocusCell.IsValid();
    TakeFocusByMouse();
    if (BeginResize(point)) {
        m_pHost->CaptureMouse(true);
        return;
    }
    CGridCellBase* object = GetCell(cell.row, cell.column);
    if (object == nullptr) return;
    object->OnClick(point);
    if (object->IsFixed()) {
        if (object->IsFixedRow()) ClickOnHeadingRow(cell);
        if (object->IsFixedColumn()) ClickOnHeadingColumn(cell);
        return;
    }
    m_DragStartSelection.clear();
    if (keys.control) m_DragStartSelection = m_Selection;
    m_MouseMode = MouseMode::selecting;
    // A cell that is partly outside stays there: the second press of a double click must find it.
    Choose(cell, extend);
    m_pHost->CaptureMouse(true);
}

void CGridCtrl::TakeFocusByMouse() {
    struct Taking {
        bool& flag;
        explicit Taking(bool& taking) : flag(taking) { flag = true; }
        ~Taking() { flag = false; }
    } taking(m_bTakingFocus);
    m_pHost->TakeFocus();
    // After a click beside the cells the first visible cell is the focus cell.
    if (!m_FocusCell.IsValid()) {
        const CCellID first{NextRow(TopRow() - 1, 1), NextColumn(LeftColumn() - 1, 1)};
        if (first.IsValid()) Choose(first, false);
    }
}

// A click on a heading selects its row or column.
void CGridCtrl::ClickOnHeadingRow(CCellID cell) {
    if (m_bFixedRowClickSelects && cell.column >= m_nFixedCols) {
        SelectRange(m_nFixedRows, cell.column, m_nRows - 1, cell.column, false, true);
    }
}

void CGridCtrl::ClickOnHeadingColumn(CCellID cell) {
    if (m_bFixedColumnClickSelects && cell.row >= m_nFixedRows) {
        SelectRange(cell.row, m_nFixedCols, cell.row, m_nCols - 1, false, true);
    }
}

bool CGridCtrl::BeginResize(GridPoint point) {
    const CCellID cell = CellAt({std::max(point.x - kBorderReach, 0), point.y});
    GridRect rect;
    if (m_bColumnsResizable && cell.IsValid() && cell.row < m_nFixedRows &&
        CellRect(cell.row, cell.column, rect) && std::abs(point.x - rect.right) <= kBorderReach) {
        m_MouseMode = MouseMode::sizingColumn;
        m_nResized = cell.column;
        m_nResizeOrigin = rect.left;
        return true;
    }
    const CCellID above = CellAt({point.x, std::max(point.y - kBorderReach, 0)});
    if (m_bRowsResizable && above.IsValid() && above.column < m_nFixedCols &&
        CellRect(above.row, above.column, rect) && std::abs(point.y - rect.bottom) <= kBorderReach) {
        m_MouseMode = MouseMode::sizingRow;
        m_nResized = above.row;
        m_nResizeOrigin = rect.top;
        return true;
    }
    return false;
}

void CGridCtrl::ContinueResize(GridPoint point) {
    if (m_MouseMode == MouseMode::sizingColumn) {
        SetColumnWidth(m_nResized, std::max(point.x - m_nResizeOrigin, 0));
    } else {
        SetRowHeight(m_nResized, std::max(point.y - m_nResizeOrigin, 0));
    }
}

void CGridCtrl::OnMouseMove(GridPoint point, bool leftDown) {
    m_MousePoint = point;
    if (m_MouseMode != MouseMode::none && !leftDown) OnLeftUp(point);
    if (m_MouseMode == MouseMode::none) {
        // The platform repeats the last position of the mouse when a window above it closes; a tip that a key
        // removed would come back at once.
        if (point == m_TipEndPoint) return;
        m_TipEndPoint = kNoPoint;
        ShowTipOf(CellAt(point));
        return;
    }
    if (m_MouseMode != MouseMode::selecting) {
        ContinueResize(point);
        return;
    }
    const CCellID cell = CellAt(point);
    if (cell.IsValid() && cell.row >= m_nFixedRows && cell.column >= m_nFixedCols) ExtendSelectionTo(cell);
}

void CGridCtrl::OnDragTimer() {
    if (m_MouseMode != MouseMode::selecting) return;
    // Outside the window the drag scrolls towards the pointer, a row or column a tick.
    const GridSize client = m_pHost->ClientSize();
    int top = TopRow(), left = LeftColumn();
    if (m_MousePoint.y < FixedHeight()) --top;
    if (m_MousePoint.y >= client.height) ++top;
    if (m_MousePoint.x < FixedWidth()) --left;
    if (m_MousePoint.x >= client.width) ++left;
    if (top == TopRow() && left == LeftColumn()) return;
    SetTop(top, left);
    const GridPoint inside{
        std::clamp(m_MousePoint.x, FixedWidth(), std::max(client.width - 1, FixedWidth())),
        std::clamp(m_MousePoint.y, FixedHeight(), std::max(client.height - 1, FixedHeight()))};
    CCellID cell{RowAt(inside.y), ColumnAt(inside.x)};
    // When the rows end above the window's lower edge, the last row is used.
    if (cell.row < 0) cell.row = m_nRows - 1;
    if (cell.column < 0) cell.column = m_nCols - 1;
    if (cell.IsValid()) ExtendSelectionTo(cell);
}

void CGridCtrl::OnLeftUp(GridPoint point) {
    m_MousePoint = point;
    EndMouseMode();
}

void CGridCtrl::OnCaptureLost() {
    EndMouseMode();
}

void CGridCtrl::EndMouseMode() {
    if (m_MouseMode == MouseMode::none) return;
    m_MouseMode = MouseMode::none;
    m_nResized = -1;
    m_DragStartSelection.clear();
    m_pHost->CaptureMouse(false);
    if (m_bLayoutDirty) UpdateScrollBars();
}

void CGridCtrl::OnDoubleClick(GridPoint point) {
    HideTip();
    m_TitleTip.ForgetPress();
    OnLeftUp(point);
    const CCellID cell = CellAt(point);
    if (!cell.IsValid()) return;
    GetCell(cell.row, cell.column)->OnDoubleClick(point);
    if (GetCell(cell.row, cell.column)->IsFixed()) return;
    Choose(cell, false);
    BeginCellEdit(cell.row, cell.column, point, kKeyMouse);
}

void CGridCtrl::HideTip() {
    if (!m_TitleTip.IsShown()) return;
    m_TipEndPoint = m_MousePoint;
    m_TitleTip.Hide(*m_pHost);
}

// Shows the whole text of a cell that cuts it off, and no tip over any other.
void CGridCtrl::ShowTipOf(CCellID cell) {
    if (m_TitleTip.IsShown() && m_TitleTip.Cell() != cell) m_TitleTip.Hide(*m_pHost);
    GridRect rect;
    if (!CellRect(cell.row, cell.column, rect)) return;
    const CGridCellBase& object = *GetCell(cell.row, cell.column);
    const int margin = object.GetMargin();
    if (object.IsEditing() || !CTitleTip::IsCutOff(object.TextWidth(), WithoutLines(rect).Width(), margin)) {
        m_TitleTip.Hide(*m_pHost);
        return;
    }
    m_TitleTip.Show(*m_pHost, cell, rect, object.GetTipText(), object.GetFont(), margin);
}

}  // namespace lumerin
