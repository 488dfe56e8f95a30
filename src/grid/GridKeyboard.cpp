// SPDX-License-Identifier: MIT
// Keys of the grid's window.
#include "grid/GridCtrl.h"

namespace lumerin {

bool CGridCtrl::OnCommandKey(unsigned key, KeyState keys) {
    if (keys.control) {
        switch (key) {
            case kKeyInsert:
            case 'C':
                OnCopy();
                return true;
            case 'A':
                OnSelectAll();
                return true;
            case 'V':
                OnPaste();
                return true;
            case 'X':
                OnCut();
                return true;
            default:
                return false;
        }
    }
    if (keys.shift && key == kKeyInsert) {
        OnPaste();
        return true;
    }
    if (key == kKeyDelete) {
        DeleteFocusText();
        return true;
    }
    return false;
}

void CGridCtrl::DeleteFocusText() {
    const CGridCellBase* cell = GetCell(m_FocusCell.row, m_FocusCell.column);
    if (!m_bEditable || cell == nullptr || cell->IsReadOnly()) return;
    SetCellText(m_FocusCell.row, m_FocusCell.column, "");
}

bool CGridCtrl::OnKeyDown(unsigned key, KeyState keys) {
    HideTip();
    const bool used = OnCommandKey(key, keys) || MoveByKey(key, keys);
    if (m_bLayoutDirty) UpdateScrollBars();
    return used;
}

bool CGridCtrl::OnChar(unsigned character, KeyState keys) {
    HideTip();
    if (keys.control || m_MouseMode != MouseMode::none || character == kKeyEscape) return false;
    if (character == kKeyTab && m_bTabMoves) return false;
    if (!m_FocusCell.IsValid()) return false;
    return BeginCellEdit(m_FocusCell.row, m_FocusCell.column, {}, character);
}

}  // namespace lumerin
