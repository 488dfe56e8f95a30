// SPDX-License-Identifier: MIT
// Opening and closing the in-place editor.
#include "grid/GridCtrl.h"

namespace lumerin {

bool CGridCtrl::BeginCellEdit(int row, int column, GridPoint point, unsigned key) {
    if (!m_bEditable || !IsCellInRange(row, column) || IsCellReadOnly(row, column)) return false;
    EndOpenEdit();
    ScrollCellIntoView(row, column);
    GridRect rect;
    if (!CellRect(row, column, rect)) return false;
    m_EditCell = {row, column};
    if (GetCell(row, column)->Edit(row, column, rect, point, kEditorId, key)) return true;
    m_EditCell = {};
    return false;
}

CInPlaceEdit* CGridCtrl::OpenEditor() const {
    const CGridCellBase* cell = GetCell(m_EditCell.row, m_EditCell.column);
    return cell == nullptr ? nullptr : cell->GetEditor();
}

void CGridCtrl::EndOpenEdit() {
    if (CInPlaceEdit* editor = OpenEditor()) editor->OnKillFocus();
}

bool CGridCtrl::AcceptEdit(int row, int column, const std::string& text) const {
    const CGridCellBase* cell = GetCell(row, column);
    return cell == nullptr || cell->AcceptText(text);
}

void CGridCtrl::FinishCellEdit(int row, int column, const std::string& text) {
    m_EditCell = {};
    CGridCellBase* cell = GetCell(row, column);
    if (cell == nullptr) return;
    cell->EndEdit();  // first: when memory runs out, the edit has ended and the cell keeps its text
    if (text != cell->GetText() && AcceptEdit(row, column, text)) {
        SetCellText(row, column, text);
        SetCellState(row, column, cell->GetState() | kCellChanged);
    }
    RedrawCell(row, column);
}

void CGridCtrl::AbandonEdit() {
    if (CGridCellBase* cell = GetCell(m_EditCell.row, m_EditCell.column)) cell->EndEdit();
    m_EditCell = {};
}

void CGridCtrl::OnNotify(const EditNotice& notice) {
    if (notice.id != kEditorId || notice.code != kEditEnded) return;
    FinishCellEdit(notice.row, notice.column, notice.text);
    if (notice.lastKey == 0) return;  // the focus went to another control already
    m_pHost->TakeFocus();
    const bool moves =
        notice.lastKey == kKeyTab || (notice.lastKey >= kKeyPageUp && notice.lastKey <= kKeyDown);
    if (moves) OnKeyDown(notice.lastKey, notice.keys);
}

int CGridCtrl::EditorTextWidth(int row, int column, const std::string& text) const {
    const CGridCellBase* cell = GetCell(row, column);
    return cell == nullptr ? 0 : gridplatform::MeasureText(text, cell->GetFont()).width;
}

}  // namespace lumerin
