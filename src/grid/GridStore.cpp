// SPDX-License-Identifier: MIT
// The store: dimensions, cells and their attributes.
#include <algorithm>
#include <stdexcept>
#include <utility>

#include "framework/Index.h"
#include "grid/GridCtrl.h"

namespace lumerin {

namespace {

constexpr Colour kGridLines = 0xc0c0c0;

std::size_t U(int index) {
    return Index(index);
}

}  // namespace

CGridCtrl::CGridCtrl() : m_pHost(std::make_unique<GridHost>()) {
    gridplatform::PrepareWindowClass();
    m_crWindowText = gridplatform::SystemColour(kColourWindowText);
    m_crWindow = gridplatform::SystemColour(kColourWindow);
    m_crFace = gridplatform::SystemColour(kColourFace);
    m_crShadow = gridplatform::SystemColour(kColourShadow);
    m_crBackground = m_crShadow;
    m_crGridLines = kGridLines;
    for (std::size_t i = 1; i < m_DefaultCells.size(); ++i) m_DefaultCells[i].SetBackground(m_crFace);
}

CGridCtrl::~CGridCtrl() {
    for (int row = 0; row < m_nRows; ++row) {
        for (int column = 0; column < m_nCols; ++column) CGridCtrl::FreeCell(row, column);
    }
}

void CGridCtrl::OnAttach() {
    // Every data exchange binds the control anew.
    if (m_hWnd == m_hAttached) return;
    SetHost(gridplatform::MakeHost(*this));
    m_hAttached = m_hWnd;
}

void CGridCtrl::SetHost(std::unique_ptr<GridHost> host) {
    m_pHost = std::move(host);
    m_Bars = {};
    LayoutChanged();
}

std::unique_ptr<CGridCellBase> CGridCtrl::MakeCell(int, int) {
    auto cell = std::make_unique<CGridCell>();
    cell->SetGrid(this);
    return cell;
}

void CGridCtrl::FreeCell(int row, int column) {
    m_CellRows[U(row)][U(column)].reset();
}

void CGridCtrl::ClearGrid() {
    if (m_bNoStore) return;
    SetRowCount(0);
    SetColumnCount(0);
    m_nFixedRows = m_nFixedCols = 0;
}

bool CGridCtrl::SetRowCount(int rows) {
    if (m_bNoStore || rows < 0) return false;
    // All memory is taken before anything changes: a grid that lacks cells must not be drawn.
    std::vector<CellRow> added;
    for (int row = m_nRows; row < rows; ++row) {
        CellRow& cells = added.emplace_back();
        for (int column = 0; column < m_nCols; ++column) cells.push_back(MakeCell(row, column));
    }
    m_CellRows.reserve(U(rows));
    m_RowHeights.reserve(U(rows));
    for (int row = rows; row < m_nRows; ++row) {
        for (int column = 0; column < m_nCols; ++column) FreeCell(row, column);
    }
    const int before = m_nRows;
    m_CellRows.resize(U(std::min(rows, before)));
    for (CellRow& cells : added) m_CellRows.push_back(std::move(cells));
    m_RowHeights.resize(U(rows), static_cast<unsigned>(DefaultCell(false, false).Height()));
    m_nRows = rows;
    m_nFixedRows = std::min(m_nFixedRows, rows);
    for (int row = before; row < rows; ++row) {
        for (int column = 0; column < m_nCols; ++column) MarkFixed(row, column);
    }
    ForgetCellsOutside();
    LayoutChanged();
    return true;
}

bool CGridCtrl::SetColumnCount(int columns) {
    if (m_bNoStore || columns < 0) return false;
    const int before = m_nCols;
    // All memory is taken before anything changes, as with the rows.
    CellRow added;
    for (int row = 0; row < m_nRows; ++row) {
        m_CellRows[U(row)].reserve(U(columns));
        for (int column = before; column < columns; ++column) added.push_back(MakeCell(row, column));
    }
    m_ColumnWidths.reserve(U(columns));
    auto next = added.begin();
    for (int row = 0; row < m_nRows; ++row) {
        for (int column = columns; column < before; ++column) FreeCell(row, column);
        CellRow& cells = m_CellRows[U(row)];
        cells.resize(U(std::min(columns, before)));
        for (int column = before; column < columns; ++column) cells.push_back(std::move(*next++));
    }
    m_ColumnWidths.resize(U(columns), static_cast<unsigned>(DefaultCell(false, false).Width()));
    m_nCols = columns;
    m_nFixedCols = std::min(m_nFixedCols, columns);
    for (int row = 0; row < m_nRows; ++row) {
        for (int column = before; column < columns; ++column) MarkFixed(row, column);
    }
    ForgetCellsOutside();
    LayoutChanged();
    return true;
}

void CGridCtrl::ForgetCellsOutside() {
    std::erase_if(m_Selection,
                  [this](const auto& e) { return !IsCellInRange(e.second.row, e.second.column); });
    if (!IsCellInRange(m_FocusCell.row, m_FocusCell.column)) m_FocusCell = {};
    if (!IsCellInRange(m_SelectionStart.row, m_SelectionStart.column)) m_SelectionStart = {};
    if (!IsCellInRange(m_SelectionEnd.row, m_SelectionEnd.column)) m_SelectionEnd = {};
    if (!IsCellInRange(m_FirstVisibleCell.row, m_FirstVisibleCell.column)) m_FirstVisibleCell = {};
    HideTip();
}

void CGridCtrl::MarkFixed(int row, int column) {
    CGridCellBase& cell = *m_CellRows[U(row)][U(column)];
    const bool inRow = row < m_nFixedRows, inColumn = column < m_nFixedCols;
    unsigned state = cell.GetState() & ~(unsigned{kCellFixed} | kCellFixedRow | kCellFixedColumn);
    if (inRow) state |= kCellFixedRow;
    if (inColumn) state |= kCellFixedColumn;
    if (inRow || inColumn) state |= kCellFixed;
    cell.SetState(state);
}

void CGridCtrl::RemarkFixed() {
    for (int row = 0; row < m_nRows; ++row) {
        for (int column = 0; column < m_nCols; ++column) MarkFixed(row, column);
    }
    LayoutChanged();
}

bool CGridCtrl::SetFixedRowCount(int rows) {
    if (m_bNoStore || rows < 0 || rows > m_nRows) return false;
    m_nFixedRows = rows;
    RemarkFixed();
    return true;
}

bool CGridCtrl::SetFixedColumnCount(int columns) {
    if (m_bNoStore || columns < 0 || columns > m_nCols) return false;
    m_nFixedCols = columns;
    RemarkFixed();
    return true;
}

bool CGridCtrl::SetRowHeight(int row, int pixels) {
    if (m_bNoStore || row < 0 || row >= m_nRows || pixels < 0) return false;
    m_RowHeights[U(row)] = static_cast<unsigned>(pixels);
    LayoutChanged();
    return true;
}

bool CGridCtrl::SetColumnWidth(int column, int pixels) {
    if (m_bNoStore || column < 0 || column >= m_nCols || pixels < 0) return false;
    m_ColumnWidths[U(column)] = static_cast<unsigned>(pixels);
    LayoutChanged();
    return true;
}

int CGridCtrl::GetRowHeight(int row) const {
    if (row < 0 || row >= m_nRows) throw std::invalid_argument("grid: no such row");
    return static_cast<int>(m_RowHeights[U(row)]);
}

int CGridCtrl::GetColumnWidth(int column) const {
    if (column < 0 || column >= m_nCols) throw std::invalid_argument("grid: no such column");
    return static_cast<int>(m_ColumnWidths[U(column)]);
}

CGridCellBase* CGridCtrl::GetCell(int row, int column) {
    return IsCellInRange(row, column) ? m_CellRows[U(row)][U(column)].get() : nullptr;
}

const CGridCellBase* CGridCtrl::GetCell(int row, int column) const {
    return IsCellInRange(row, column) ? m_CellRows[U(row)][U(column)].get() : nullptr;
}

bool CGridCtrl::SetCellText(int row, int column, const std::string& text) {
    CGridCellBase* cell = GetCell(row, column);
    if (m_bNoStore || cell == nullptr) return false;
    cell->SetText(text);
    RedrawCell(row, column);
    // A tip over the cell shows the new text, or is removed when the text fits.
    if (m_TitleTip.Cell() == CCellID{row, column}) ShowTipOf({row, column});
    return true;
}

std::string CGridCtrl::GetCellText(int row, int column) const {
    const CGridCellBase* cell = GetCell(row, column);
    return cell == nullptr ? std::string() : cell->GetText();
}

bool CGridCtrl::SetCellClass(int row, int column, const CRuntimeClass& cellClass) {
    CGridCellBase* old = GetCell(row, column);
    if (m_bNoStore || old == nullptr || cellClass.m_pfnCreate == nullptr) return false;
    if (!cellClass.IsDerivedFrom(CGridCellBase::classCGridCellBase)) return false;
    std::unique_ptr<CObject> object = cellClass.m_pfnCreate();
    std::unique_ptr<CGridCellBase> cell(dynamic_cast<CGridCellBase*>(object.get()));
    if (cell == nullptr) return false;
    static_cast<void>(object.release());  // the same object, owned by `cell` now
    EndOpenEdit();
    cell->SetGrid(this);
    cell->CopyFrom(*old);
    FreeCell(row, column);
    m_CellRows[U(row)][U(column)] = std::move(cell);
    RedrawCell(row, column);
    return true;
}

bool CGridCtrl::SetCellBackground(int row, int column, Colour colour) {
    CGridCellBase* cell = GetCell(row, column);
    if (m_bNoStore || cell == nullptr) return false;
    cell->SetBackground(colour);
    RedrawCell(row, column);
    return true;
}

bool CGridCtrl::SetCellState(int row, int column, unsigned state) {
    CGridCellBase* cell = GetCell(row, column);
    if (m_bNoStore || cell == nullptr) return false;
    cell->SetState(state);
    RedrawCell(row, column);
    return true;
}

unsigned CGridCtrl::GetCellState(int row, int column) const {
    const CGridCellBase* cell = GetCell(row, column);
    return cell == nullptr ? 0 : cell->GetState();
}

bool CGridCtrl::SetCellFormat(int row, int column, unsigned format) {
    CGridCellBase* cell = GetCell(row, column);
    if (m_bNoStore || cell == nullptr) return false;
    cell->SetFormat(format);
    RedrawCell(row, column);
    return true;
}

bool CGridCtrl::IsCellReadOnly(int row, int column) const {
    const CGridCellBase* cell = GetCell(row, column);
    return cell != nullptr && cell->IsReadOnly();
}

}  // namespace lumerin
