// SPDX-License-Identifier: MIT
// Positions of cells in the window, and scrolling. Fixed rows and columns stay at the top and left; after
// them the window shows whole rows and columns from FirstVisibleCell on. All loops end at the window's edge,
// so that the time of a redraw does not grow with the number of rows.
#include <algorithm>

#include "framework/Index.h"
#include "grid/GridCtrl.h"

namespace lumerin {

namespace {

std::size_t U(int index) {
    return Index(index);
}
int Size(const std::vector<unsigned>& sizes, int index) {
    return static_cast<int>(sizes[U(index)]);
}

int Sum(const std::vector<unsigned>& sizes, int first, int last) {
    int sum = 0;
    for (int i = first; i < last; ++i) sum += Size(sizes, i);
    return sum;
}

// The first entry from which all entries to the end fit into `room`; the last entry when even that does not
// fit.
int FirstOfLastPage(const std::vector<unsigned>& sizes, int lowest, int room) {
    const int count = static_cast<int>(sizes.size());
    int first = count;
    for (int used = 0; first > lowest; --first) {
        used += Size(sizes, first - 1);
        if (used > room) break;
    }
    return std::max(std::min(first, count - 1), lowest);
}

// The near edge of an entry, or -1 when it is scrolled out: fixed ones are at the start, the others follow
// from `top` on.
int NearEdge(const std::vector<unsigned>& sizes, int index, int fixed, int top, int room) {
    if (index < fixed) return Sum(sizes, 0, index);
    if (index < top) return -1;
    int at = Sum(sizes, 0, fixed);
    for (int i = top; i < index; ++i) {
        at += Size(sizes, i);
        if (at >= room) return -1;
    }
    return at;
}

// The entry at a distance from the start of the window; -1: none.
int EntryAt(const std::vector<unsigned>& sizes, int distance, int fixed, int top, int count) {
    if (distance < 0) return -1;
    for (int i = 0; i < fixed; ++i) {
        distance -= Size(sizes, i);
        if (distance < 0) return i;
    }
    for (int i = top; i < count; ++i) {
        distance -= Size(sizes, i);
        if (distance < 0) return i;
    }
    return -1;
}

int FitCount(const std::vector<unsigned>& sizes, int first, int room) {
    int used = 0, fit = 0;
    for (int i = first; i < static_cast<int>(sizes.size()); ++i, ++fit) {
        used += Size(sizes, i);
        if (used > room) break;
    }
    return fit;
}

}  // namespace

int CGridCtrl::TopRow() const {
    return std::max(m_FirstVisibleCell.row, m_nFixedRows);
}
int CGridCtrl::LeftColumn() const {
    return std::max(m_FirstVisibleCell.column, m_nFixedCols);
}
int CGridCtrl::FixedHeight() const {
    return Sum(m_RowHeights, 0, m_nFixedRows);
}
int CGridCtrl::FixedWidth() const {
    return Sum(m_ColumnWidths, 0, m_nFixedCols);
}

int CGridCtrl::LastTopRow() const {
    return FirstOfLastPage(m_RowHeights, m_nFixedRows, m_pHost->ClientSize().height - FixedHeight());
}

int CGridCtrl::LastLeftColumn() const {
    return FirstOfLastPage(m_ColumnWidths, m_nFixedCols, m_pHost->ClientSize().width - FixedWidth());
}

int CGridCtrl::PageRows() const {
    return std::max(FitCount(m_RowHeights, TopRow(), m_pHost->ClientSize().height - FixedHeight()), 1);
}

bool CGridCtrl::CellRect(int row, int column, GridRect& rect) const {
    if (!IsCellInRange(row, column)) return false;
    const GridSize client = m_pHost->ClientSize();
    const int top = NearEdge(m_RowHeights, row, m_nFixedRows, TopRow(), client.height);
    const int left = NearEdge(m_ColumnWidths, column, m_nFixedCols, LeftColumn(), client.width);
    const int height = Size(m_RowHeights, row), width = Size(m_ColumnWidths, column);
    if (top < 0 || left < 0 || height == 0 || width == 0) return false;
    rect = {left, top, left + width, top + height};
    return true;
}

int CGridCtrl::RowAt(int y) const {
    return EntryAt(m_RowHeights, y, m_nFixedRows, TopRow(), m_nRows);
}

int CGridCtrl::ColumnAt(int x) const {
    return EntryAt(m_ColumnWidths, x, m_nFixedCols, LeftColumn(), m_nCols);
}

CCellID CGridCtrl::CellAt(GridPoint point) const {
    const CCellID cell{RowAt(point.y), ColumnAt(point.x)};
    return cell.IsValid() ? cell : CCellID{};
}

void CGridCtrl::SetTop(int row, int column) {
    row = std::clamp(row, m_nFixedRows, std::max(LastTopRow(), m_nFixedRows));
    column = std::clamp(column, m_nFixedCols, std::max(LastLeftColumn(), m_nFixedCols));
    if (row == TopRow() && column == LeftColumn()) return;
    m_FirstVisibleCell = {row, column};
    HideTip();
    RedrawAll();
    UpdateScrollBars();
}

bool CGridCtrl::ScrollCellIntoView(int row, int column) {
    if (!IsCellInRange(row, column)) return false;
    const GridSize client = m_pHost->ClientSize();
    int top = TopRow(), left = LeftColumn();
    if (row >= m_nFixedRows) {
        if (row < top) top = row;
        // The first row from which the wanted one still fits.
        int first = row;
        for (int used = Size(m_RowHeights, row); first > top; --first) {
            used += Size(m_RowHeights, first - 1);
            if (used > client.height - FixedHeight()) break;
        }
        top = std::max(top, first);
    }
    if (column >= m_nFixedCols) {
        if (column < left) left = column;
        int first = column;
        for (int used = Size(m_ColumnWidths, column); first > left; --first) {
            used += Size(m_ColumnWidths, first - 1);
            if (used > client.width - FixedWidth()) break;
        }
        left = std::max(left, first);
    }
    SetTop(top, left);
    return true;
}

void CGridCtrl::LayoutChanged() {
    // Counts and sizes are set one by one for thousands of rows; the bars follow once, before the next paint.
    m_bLayoutDirty = true;
    HideTip();
    RedrawAll();
}

void CGridCtrl::UpdateScrollBars() {
    m_bLayoutDirty = false;
    const int lastTop = LastTopRow(), lastLeft = LastLeftColumn();
    if (TopRow() > std::max(lastTop, m_nFixedRows) || LeftColumn() > std::max(lastLeft, m_nFixedCols)) {
        m_FirstVisibleCell = {std::clamp(TopRow(), m_nFixedRows, std::max(lastTop, m_nFixedRows)),
                              std::clamp(LeftColumn(), m_nFixedCols, std::max(lastLeft, m_nFixedCols))};
        RedrawAll();
    }
    const std::array<ScrollPlace, 2> bars{
        ScrollPlace{m_nCols - m_nFixedCols, m_nCols - lastLeft, LeftColumn() - m_nFixedCols},
        ScrollPlace{m_nRows - m_nFixedRows, m_nRows - lastTop, TopRow() - m_nFixedRows}};
    for (std::size_t i = 0; i < 2; ++i) {
        if (bars[i] == m_Bars[i]) continue;
        m_Bars[i] = bars[i];
        m_pHost->SetScrollBar(i == 1, bars[i]);
    }
}

void CGridCtrl::EnableScrollBarCtrl(bool vertical, bool enable) {
    m_pHost->ForceScrollBar(vertical, enable);
}

void CGridCtrl::OnScroll(bool vertical, int position) {
    EndOpenEdit();
    if (vertical) {
        SetTop(m_nFixedRows + position, LeftColumn());
    } else {
        SetTop(TopRow(), m_nFixedCols + position);
    }
}

void CGridCtrl::OnMouseWheel(int steps) {
    constexpr int kRowsAStep = 3;
    EndOpenEdit();
    SetTop(TopRow() - steps * kRowsAStep, LeftColumn());
}

void CGridCtrl::OnSize() {
    EndOpenEdit();
    LayoutChanged();
}

void CGridCtrl::SetRedraw(bool on) {
    m_bRedraw = on;
    if (on) RedrawAll();
}

void CGridCtrl::RedrawAll() {
    if (m_bRedraw) m_pHost->InvalidateAll();
}

void CGridCtrl::RedrawCell(int row, int column) {
    GridRect rect;
    if (m_bRedraw && CellRect(row, column, rect)) m_pHost->Invalidate(rect);
}

}  // namespace lumerin
