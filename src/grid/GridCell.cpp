// SPDX-License-Identifier: MIT
#include "grid/GridCell.h"

#include <utility>

#include "grid/GridCtrl.h"
#include "grid/InPlaceEdit.h"

namespace lumerin {

namespace {

constexpr Colour kSelectedBack = 0xf0d9c4;
constexpr Colour kFrame = 0x000000;
constexpr const char* kDefaultWidthText = " XXXXXXXXXXXX ";

void DrawFrame(CDC& dc, const GridRect& r, Colour colour) {
    dc.Line({r.left, r.top}, {r.right, r.top}, colour);
    dc.Line({r.left, r.bottom - 1}, {r.right, r.bottom - 1}, colour);
    dc.Line({r.left, r.top}, {r.left, r.bottom}, colour);
    dc.Line({r.right - 1, r.top}, {r.right - 1, r.bottom}, colour);
}

}  // namespace

const FontRecord& CGridCellBase::GetFont() const {
    static const FontRecord font;
    return font;
}

void CGridCellBase::CopyFrom(const CGridCellBase& other) {
    SetText(other.GetText());
    SetImage(other.GetImage());
    SetUserValue(other.GetUserValue());
    SetFormat(other.GetFormat());
    SetTextColour(other.GetTextColour());
    SetBackground(other.GetBackground());
    SetFont(other.IsDefaultFont() ? nullptr : &other.GetFont());
    SetMargin(other.GetMargin());
    SetGrid(other.GetGrid());
    SetState(other.GetState());
}

int CGridCellBase::TextWidth() const {
    return gridplatform::MeasureText(GetText(), GetFont()).width;
}

GridSize CGridCellBase::Extent() const {
    const GridSize text = gridplatform::MeasureText(GetText(), GetFont());
    return {text.width + 2 * GetMargin(), text.height + 2 * GetMargin()};
}

void CGridCellBase::Draw(CDC& dc, const GridRect& rect) const {
    const bool marked = IsSelected() && !IsFocused();
    dc.FillRect(rect, marked ? kSelectedBack : GetBackground());
    const int margin = GetMargin();
    const GridRect inner{rect.left + margin, rect.top, rect.right - margin, rect.bottom};
    const std::string text = GetText();
    if (!text.empty() && inner.Width() > 0) {
        const unsigned oneLine =
            GetFormat() | kTextSingleLine | kTextMiddle | kTextNoPrefix | kTextEndEllipsis;
        dc.DrawText(text, inner, oneLine, GetFont(), GetTextColour());
    }
    if (IsFocused()) DrawFrame(dc, rect, kFrame);
}

bool CGridCellBase::Edit(int, int, const GridRect&, GridPoint, int, unsigned) {
    return false;
}

void CGridCell::SetFont(const FontRecord* font) {
    if (font == nullptr) {
        m_pFont.reset();
    } else {
        m_pFont = std::make_unique<FontRecord>(*font);
    }
}

const CGridDefaultCell* CGridCell::DefaultCell() const {
    return m_pGrid == nullptr ? nullptr : &m_pGrid->DefaultCell(IsFixedRow(), IsFixedColumn());
}

unsigned CGridCell::GetFormat() const {
    const CGridDefaultCell* defaults = DefaultCell();
    return m_nFormat == kDefaultFormat && defaults != nullptr ? defaults->GetFormat() : m_nFormat;
}

Colour CGridCell::GetTextColour() const {
    const CGridDefaultCell* defaults = DefaultCell();
    return m_crText == kDefaultColour && defaults != nullptr ? defaults->GetTextColour() : m_crText;
}

Colour CGridCell::GetBackground() const {
    const CGridDefaultCell* defaults = DefaultCell();
    return m_crBack == kDefaultColour && defaults != nullptr ? defaults->GetBackground() : m_crBack;
}

const FontRecord& CGridCell::GetFont() const {
    if (m_pFont != nullptr) return *m_pFont;
    const CGridDefaultCell* defaults = DefaultCell();
    return defaults != nullptr ? defaults->GetFont() : CGridCellBase::GetFont();
}

int CGridCell::GetMargin() const {
    const CGridDefaultCell* defaults = DefaultCell();
    return m_nMargin < 0 && defaults != nullptr ? defaults->GetMargin() : m_nMargin;
}

void CGridCell::CopyFrom(const CGridCellBase& other) {
    const auto* cell = dynamic_cast<const CGridCell*>(&other);
    if (cell == nullptr) {
        CGridCellBase::CopyFrom(other);
        return;
    }
    // Copies the fields, not the getters' results, so that a default value still comes from the default cell.
    m_sText = cell->m_sText;
    m_nUserValue = cell->m_nUserValue;
    m_nImage = cell->m_nImage;
    m_nFormat = cell->m_nFormat;
    m_crText = cell->m_crText;
    m_crBack = cell->m_crBack;
    SetFont(cell->m_pFont.get());
    m_nMargin = cell->m_nMargin;
    m_pGrid = cell->m_pGrid;
    m_nState = cell->m_nState;
}

void CGridCell::Reset() {
    CGridCellBase::Reset();
    m_sText.clear();
    m_nUserValue = 0;
    m_nImage = -1;
    m_nFormat = kDefaultFormat;
    m_crText = m_crBack = kDefaultColour;
    m_pFont.reset();
    m_nMargin = -1;
}

bool CGridCell::OpenEditor(std::unique_ptr<CInPlaceEdit> editor, const GridRect& rect) {
    m_bEditing = true;
    m_pEditor = editor.get();
    bool opened = false;
    try {
        opened = m_pGrid->Host().OpenEditor(std::move(editor), rect);
    } catch (...) {
        EndEdit();  // the editor was destroyed with its window
        throw;
    }
    if (!opened) EndEdit();
    return opened;
}

bool CGridCell::Edit(int row, int column, const GridRect& rect, GridPoint, int id, unsigned key) {
    if (m_pGrid == nullptr) return false;
    return OpenEditor(std::make_unique<CInPlaceEdit>(*m_pGrid, row, column, id, m_sText, key), rect);
}

void CGridCell::EndEdit() {
    m_bEditing = false;
    m_pEditor = nullptr;
}

CGridDefaultCell::CGridDefaultCell() {
    m_nFormat = kTextLeft;
    m_nMargin = 3;
    m_crText = gridplatform::SystemColour(kColourWindowText);
    m_crBack = gridplatform::SystemColour(kColourWindow);
    Measure();
}

void CGridDefaultCell::SetFont(const FontRecord* font) {
    m_font = font != nullptr ? *font : FontRecord{};
    Measure();
}

void CGridDefaultCell::Measure() {
    const GridSize text = gridplatform::MeasureText(kDefaultWidthText, m_font);
    m_nWidth = text.width;
    m_nHeight = text.height + 2 * m_nMargin;
}

}  // namespace lumerin
