// SPDX-License-Identifier: MIT
#include "grid/InPlaceEdit.h"

#include <algorithm>

#include "grid/GridCtrl.h"

namespace lumerin {

namespace {

// The end of an edit destroys its window, whatever the grid did with the text.
struct Closing {
    EditorWindow& window;
    ~Closing() { window.Close(); }
};

}  // namespace

CInPlaceEdit::CInPlaceEdit(CGridCtrl& grid, int row, int column, int id, const std::string& text,
                           unsigned startKey)
    : m_grid(grid), m_nRow(row), m_nColumn(column), m_nId(id), m_sInitial(text), m_nStartKey(startKey) {}

void CInPlaceEdit::Start(EditorWindow& window) {
    m_pWindow = &window;
    m_nCellRight = window.Place().right;
    EditText edit;
    edit.Set(m_sInitial);
    const bool atEnd = m_nStartKey == kKeyMouse || m_nStartKey == kKeyReturn || m_nStartKey == kKeyBackspace;
    if (!atEnd) edit.SelectAll();
    window.Write(edit);
    window.TakeFocus();
    // The codes of the paging and arrow keys are those of the characters from "!" to "(" too, so that these
    // characters open the editor without being typed.
    const bool onlyOpens = m_nStartKey == kKeyMouse || m_nStartKey == kKeyReturn || m_nStartKey == kKeyTab ||
                           (m_nStartKey >= kKeyBlank && m_nStartKey <= kKeyDown);
    if (onlyOpens) return;
    if (m_nStartKey < 128) {
        window.PostChar(m_nStartKey);
    } else {
        window.PostKey(m_nStartKey);
    }
}

bool CInPlaceEdit::OnChar(unsigned character) {
    if (m_bEnded || m_pWindow == nullptr) return true;
    // These act as keys; as characters they would only sound the bell.
    if (character == kKeyTab || character == kKeyReturn || character == kKeyEscape) return true;
    EditText edit = m_pWindow->Read();
    const FilterResult result = Filter(edit, character);
    if (result == FilterResult::passed) return false;
    if (result == FilterResult::replaced) {
        m_pWindow->Write(edit);
        OnTyped();
    }
    return true;
}

bool CInPlaceEdit::OnKeyDown(unsigned key, KeyState keys) {
    if (m_bEnded || m_pWindow == nullptr) return true;
    if (key == kKeyTab || key == kKeyReturn) {
        End(key, keys);
        return true;
    }
    if (key == kKeyEscape) {
        EditText edit;
        edit.Set(m_sInitial);
        m_pWindow->Write(edit);
        End(key, keys);
        return true;
    }
    const bool moves = key == kKeyPageUp || key == kKeyPageDown || (key >= kKeyLeft && key <= kKeyDown);
    if (moves && (m_nStartKey != kKeyMouse || keys.control)) {
        End(key, keys);
        return true;
    }
    return false;
}

void CInPlaceEdit::OnTyped() {
    if (m_bEnded || m_pWindow == nullptr) return;
    GridRect place = m_pWindow->Place();
    const int needed = m_grid.EditorTextWidth(m_nRow, m_nColumn, m_pWindow->Read().text + "  ");
    const int edge = std::max(m_grid.Host().ClientSize().width, m_nCellRight);
    const int right = std::clamp(place.left + needed, m_nCellRight, edge);
    // It grows with the text and keeps its size when the text shrinks.
    if (right <= place.right) return;
    place.right = right;
    m_pWindow->Move(place);
}

void CInPlaceEdit::End(unsigned key, KeyState keys) {
    // Closing the window takes the focus away from it, which ends the edit too.
    if (m_bEnded || m_pWindow == nullptr) return;
    m_bEnded = true;
    const Closing closing{*m_pWindow};
    EditNotice notice{m_nId, kEditEnded, m_nRow, m_nColumn, {}, key, keys};
    try {
        notice.text = m_pWindow->Read().text;
    } catch (...) {
        m_grid.AbandonEdit();
        throw;
    }
    m_grid.OnNotify(notice);
}

}  // namespace lumerin
