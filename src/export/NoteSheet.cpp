// SPDX-License-Identifier: MIT
#include "export/NoteSheet.h"

#include <xlsxwriter.h>

#include <algorithm>

#include "export/TableWriter.h"
#include "export/XlsxLibrary.h"

namespace lumerin {

namespace {

constexpr std::size_t kNumberWidth = 10, kNarrowest = 8, kWidest = 40;  // in characters

void Check(lxw_error code) {
    if (code != LXW_NO_ERROR)
        throw ExportError(std::string("a sheet cannot be written: ") + Xlsx().lxw_strerror(code));
}

}  // namespace

NoteSheet::NoteSheet(Workbook& workbook, const std::string& name, std::uint8_t paper)
    : m_workbook(workbook), m_sheet(workbook.AddSheet(name)) {
    Xlsx().worksheet_gridlines(m_sheet, LXW_HIDE_ALL_GRIDLINES);
    Xlsx().worksheet_set_landscape(m_sheet);
    Xlsx().worksheet_set_paper(m_sheet, paper);
    Xlsx().worksheet_fit_to_pages(m_sheet, 1, 0);
}

void NoteSheet::Line(const std::vector<NoteCell>& cells) {
    m_widths.resize(std::max(m_widths.size(), cells.size()), kNarrowest);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const auto column = static_cast<lxw_col_t>(i);
        lxw_format* format = m_workbook.Format(cells[i].style);
        std::size_t width = kNumberWidth;
        if (const auto* number = std::get_if<double>(&cells[i].content)) {
            Check(Xlsx().worksheet_write_number(m_sheet, m_row, column, *number, format));
        } else {
            const auto& text = std::get<std::string>(cells[i].content);
            if (text.empty()) continue;
            Check(Xlsx().worksheet_write_string(m_sheet, m_row, column, text.c_str(), format));
            width = text.size() + 2;
        }
        // The last cell of a line runs on over the empty ones after it.
        if (i + 1 < cells.size()) m_widths[i] = std::max(m_widths[i], std::min(width, kWidest));
    }
    ++m_row;
}

void NoteSheet::Finish() {
    for (std::size_t i = 0; i < m_widths.size(); ++i) {
        const auto column = static_cast<lxw_col_t>(i);
        Check(
            Xlsx().worksheet_set_column(m_sheet, column, column, static_cast<double>(m_widths[i]), nullptr));
    }
}

}  // namespace lumerin
