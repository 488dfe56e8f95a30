// SPDX-License-Identifier: MIT
// Painting of the window.
#include "framework/Index.h"
#include "grid/GridCtrl.h"
#include "grid/MemDC.h"

namespace lumerin {

void CGridCtrl::Paint(CDC& target, const GridRect& area) {
    if (m_bLayoutDirty) UpdateScrollBars();
    if (area.Width() <= 0 || area.Height() <= 0) return;
    Ovrelle::CMemDC dc(target, area);
    dc.FillRect(area, m_crBackground);
    OnDraw(dc);
}

void CGridCtrl::OnDraw(CDC& dc) {
    const GridSize client = m_pHost->ClientSize();
    int top = 0;
    for (int row = 0; row < m_nFixedRows && top < client.height; ++row) {
        DrawRow(dc, row, top, client.width);
        top += GetRowHeight(row);
    }
    for (int row = TopRow(); row < m_nRows && top < client.height; ++row) {
        DrawRow(dc, row, top, client.width);
        top += GetRowHeight(row);
    }
}

void CGridCtrl::DrawRow(CDC& dc, int row, int top, int clientWidth) {
    const int height = GetRowHeight(row);
    if (height == 0) return;
    int left = 0;
    const auto draw = [&](int column) {
        const int width = GetColumnWidth(column);
        if (width > 0) DrawCell(dc, row, column, {left, top, left + width, top + height});
        left += width;
    };
    for (int column = 0; column < m_nFixedCols && left < clientWidth; ++column) draw(column);
    for (int column = LeftColumn(); column < m_nCols && left < clientWidth; ++column) draw(column);
}

// The lines are the right and bottom pixels of a cell; the cell draws the rest.
GridRect CGridCtrl::WithoutLines(GridRect rect) const {
    if ((m_nLineMode & 1) != 0) --rect.bottom;
    if ((m_nLineMode & 2) != 0) --rect.right;
    return rect;
}

void CGridCtrl::DrawCell(CDC& dc, int row, int column, const GridRect& rect) {
    const GridRect inner = WithoutLines(rect);
    if (inner.bottom < rect.bottom) {
        dc.Line({rect.left, inner.bottom}, {rect.right, inner.bottom}, m_crGridLines);
    }
    if (inner.right < rect.right) {
        dc.Line({inner.right, rect.top}, {inner.right, rect.bottom}, m_crGridLines);
    }
    m_CellRows[Index(row)][Index(column)]->Draw(dc, inner);
}

}  // namespace lumerin
