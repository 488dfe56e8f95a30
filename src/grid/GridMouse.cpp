// The mouse: a click moves the focus and starts a selection, a drag extends it, a double click edits, and the
// border of a heading cell can be dragged when the sizes may change.
#include <algorithm>
#include <cstdlib>

#include "grid/GridCtrl.h"

namespace {

constexpr int kBorderReach = 4;  // pixels on either side of a border that catch it

}  // namespace

void CGridCtrl::OnLeftDown(GridPoint point, KeyState keys) {
    m_TitleTip.Hide(*m_pHost);
    EndOpenEdit();
    m_pHost->TakeFocus();
    m_MousePoint = point;
    if (BeginResize(point)) {
        m_pHost->CaptureMouse(true);
        return;
    }
    const CCellID cell = CellAt(point);
    if (!cell.IsValid()) return;
    CGridCellBase& object = *GetCell(cell.row, cell.column);
    object.OnClick(point);
    if (object.IsFixed()) {
        if (object.IsFixedRow()) ClickOnHeadingRow(cell);
        if (object.IsFixedColumn()) ClickOnHeadingColumn(cell);
        return;
    }
    m_DragStartSelection.clear();
    if (keys.control) m_DragStartSelection = m_Selection;
    m_MouseMode = MouseMode::selecting;
    GoTo(cell, keys.shift);
    m_pHost->CaptureMouse(true);
}

// A click on a heading selects what the heading stands over.
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
        ShowTipAt(point);
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
    const CCellID cell = CellAt(inside);
    if (cell.IsValid()) ExtendSelectionTo(cell);
}

void CGridCtrl::OnLeftUp(GridPoint point) {
    m_MousePoint = point;
    if (m_MouseMode == MouseMode::none) return;
    m_MouseMode = MouseMode::none;
    m_nResized = -1;
    m_DragStartSelection.clear();
    m_pHost->CaptureMouse(false);
    if (m_bLayoutDirty) UpdateScrollBars();
}

void CGridCtrl::OnDoubleClick(GridPoint point) {
    m_TitleTip.Hide(*m_pHost);
    OnLeftUp(point);
    const CCellID cell = CellAt(point);
    if (!cell.IsValid()) return;
    GetCell(cell.row, cell.column)->OnDoubleClick(point);
    if (GetCell(cell.row, cell.column)->IsFixed()) return;
    GoTo(cell, false);
    BeginCellEdit(cell.row, cell.column, point, kKeyMouse);
}

void CGridCtrl::ShowTipAt(GridPoint point) {
    const CCellID cell = CellAt(point);
    GridRect rect;
    if (!cell.IsValid() || !CellRect(cell.row, cell.column, rect)) {
        m_TitleTip.Hide(*m_pHost);
        return;
    }
    if (m_TitleTip.IsShown() && m_TitleTip.Cell() != cell) m_TitleTip.Hide(*m_pHost);
    const CGridCellBase& object = *GetCell(cell.row, cell.column);
    if (object.IsEditing() || !CTitleTip::IsCutOff(object.TextWidth(), rect.Width(), object.GetMargin()))
        return;
    m_TitleTip.Show(*m_pHost, cell, rect, object.GetTipText(), object.GetFont(), object.GetMargin());
}
