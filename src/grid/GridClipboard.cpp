// SPDX-License-Identifier: MIT
// The clipboard carries cells as text: a tab between cells, a line a row.
#include <string_view>

#include "framework/Index.h"
#include "grid/GridCtrl.h"

namespace lumerin {

namespace {

constexpr const char* kCellEnds = "\t,";

// Removes the text up to the first of `ends` from `text`, with that character, and returns it.
std::string_view TakeUpTo(std::string_view& text, std::string_view ends) {
    const std::size_t end = text.find_first_of(ends);
    const std::string_view part = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    return part;
}

}  // namespace

std::string CGridCtrl::SelectionToClipboardData() const {
    int left = m_nCols, right = -1;
    for (const auto& [key, cell] : m_Selection) {
        left = std::min(left, cell.column);
        right = std::max(right, cell.column);
    }
    std::string data;
    int row = -1, column = 0;
    for (const auto& [key, cell] : m_Selection) {
        if (cell.row != row) {
            if (row >= 0) data += std::string(Index(right - column), '\t') + "\r\n";
            row = cell.row;
            column = left;
        }
        // Cells between selected ones stay empty, so that columns line up.
        data.append(Index(cell.column - column), '\t');
        column = cell.column;
        data += GetCellText(cell.row, cell.column);
    }
    if (row >= 0) data.append(Index(right - column), '\t');
    return data;
}

bool CGridCtrl::PasteAt(int row, int column, const std::string& data) {
    if (!m_bEditable || !IsCellInRange(row, column) || IsCellReadOnly(row, column)) return false;
    std::string_view rest = data;
    for (int atRow = row; !rest.empty() && atRow < m_nRows; ++atRow) {
        std::string_view line = TakeUpTo(rest, "\n");
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        for (int atColumn = column; atColumn < m_nCols; ++atColumn) {
            const bool last = line.find_first_of(kCellEnds) == std::string_view::npos;
            const std::string text(TakeUpTo(line, kCellEnds));
            if (!IsCellReadOnly(atRow, atColumn)) SetCellText(atRow, atColumn, text);
            if (last) break;
        }
    }
    return true;
}

void CGridCtrl::OnCopy() {
    if (!m_Selection.empty()) m_pHost->SetClipboard(SelectionToClipboardData());
}

void CGridCtrl::OnCut() {
    if (!m_bEditable) return;
    OnCopy();
    ClearSelection();
}

void CGridCtrl::OnPaste() {
    const std::string data = m_pHost->Clipboard();
    if (!data.empty() && m_FocusCell.IsValid()) PasteAt(m_FocusCell.row, m_FocusCell.column, data);
}

void CGridCtrl::OnSelectAll() {
    SelectRange(m_nFixedRows, m_nFixedCols, m_nRows - 1, m_nCols - 1, false, true);
}

}  // namespace lumerin
