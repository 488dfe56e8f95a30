// SPDX-License-Identifier: MIT
#include "export/TableSheet.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cmath>

#include "export/Cells.h"
#include "export/TableWriter.h"
#include "export/XlsxLibrary.h"

namespace lumerin {

namespace {

constexpr std::size_t kFilterArrow = 3, kNarrowest = 6, kWidest = 60;  // in characters
constexpr std::size_t kDecimals = 3;                                   // with the point

std::size_t CharactersOf(std::string_view text) {
    constexpr unsigned char kContinuation = 0x80, kTopBits = 0xC0;
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & kTopBits) != kContinuation;
    }));
}

std::size_t CharactersOf(double number) {
    const double size = std::fabs(number);
    const auto digits = size < 10.0 ? std::size_t{1} : static_cast<std::size_t>(std::log10(size)) + 1;
    return digits + (number < 0.0 ? 1 : 0);
}

}  // namespace

TableSheet::TableSheet(Workbook& workbook, const SheetLook& look, std::span<const Column* const> columns)
    : m_workbook(workbook),
      m_sheet(workbook.AddSheet(look.name)),
      m_look(look),
      m_columns(columns.begin(), columns.end()),
      m_widths(columns.size(), kNarrowest) {
    WriteHead();
}

void TableSheet::Check(int code) const {
    if (code == LXW_NO_ERROR) return;
    throw ExportError("sheet " + m_look.name + ": " + Xlsx().lxw_strerror(static_cast<lxw_error>(code)));
}

void TableSheet::WriteHead() {
    if (!m_look.title.empty()) {
        Check(Xlsx().worksheet_write_string(m_sheet, 0, 0, m_look.title.c_str(),
                                            m_workbook.Format(CellStyle::title)));
        m_headRow = 2;
    }
    const std::uint32_t unitRow = m_headRow + 1;
    m_firstRow = unitRow + 1;
    for (int row = 0; row < 2; ++row) {
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const Column& column = *m_columns[i];
            m_text = row == 0 ? column.name : UnitName(column.quantity, m_look.system);
            const std::size_t arrow = row == 0 ? 0 : kFilterArrow;
            m_widths[i] = std::max(m_widths[i], CharactersOf(m_text) + 1 + arrow);
            Check(Xlsx().worksheet_write_string(
                m_sheet, row == 0 ? m_headRow : unitRow, static_cast<lxw_col_t>(i), m_text.c_str(),
                m_workbook.Format(row == 0 ? CellStyle::head : CellStyle::unit)));
        }
    }
    Xlsx().worksheet_freeze_panes(m_sheet, m_firstRow, 0);
    Check(Xlsx().worksheet_repeat_rows(m_sheet, m_headRow, unitRow));
    Xlsx().worksheet_set_landscape(m_sheet);
    Xlsx().worksheet_set_paper(m_sheet, m_look.system == UnitSystem::us ? 1 : 9);  // Letter, A4
    Xlsx().worksheet_fit_to_pages(m_sheet, 1, 0);
    Check(Xlsx().worksheet_set_footer(m_sheet, "&L&A&RPage &P of &N"));
}

void TableSheet::Row(std::span<const Value* const> row) {
    if (m_rows++ >= Capacity()) return;
    for (std::size_t i = 0; i < row.size(); ++i) WriteCell(i, *row[i]);
}

void TableSheet::WriteCell(std::size_t column, const Value& value) {
    if (IsNotFinite(value)) {
        // A worksheet has no such numbers; a text is seen, and counts in no sum.
        std::string text;
        AppendPlain(text, value);
        WriteText(column, text);
    } else if (const auto* single = std::get_if<float>(&value)) {
        WriteNumber(column, AsDouble(*single), CellStyle::real);
    } else if (const auto* real = std::get_if<double>(&value)) {
        WriteNumber(column, *real, CellStyle::real);
    } else if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        WriteNumber(column, static_cast<double>(*whole), CellStyle::integer);
    } else if (const auto* text = std::get_if<std::string_view>(&value)) {
        WriteText(column, *text);
    } else if (const auto* flag = std::get_if<bool>(&value)) {
        const auto line = static_cast<lxw_row_t>(m_firstRow + m_rows - 1);
        Check(Xlsx().worksheet_write_boolean(m_sheet, line, static_cast<lxw_col_t>(column), *flag ? 1 : 0,
                                             nullptr));
    }
}

void TableSheet::WriteNumber(std::size_t column, double number, CellStyle style) {
    const auto line = static_cast<lxw_row_t>(m_firstRow + m_rows - 1);
    const std::size_t decimals = style == CellStyle::real ? kDecimals : 0;
    m_widths[column] = std::max(m_widths[column], CharactersOf(number) + decimals + 1);
    Check(Xlsx().worksheet_write_number(m_sheet, line, static_cast<lxw_col_t>(column), number,
                                        m_workbook.Format(style)));
}

void TableSheet::WriteText(std::size_t column, std::string_view text) {
    if (text.empty()) return;
    const auto line = static_cast<lxw_row_t>(m_firstRow + m_rows - 1);
    m_text = text;
    m_widths[column] = std::max(m_widths[column], CharactersOf(text) + 1);
    Check(Xlsx().worksheet_write_string(m_sheet, line, static_cast<lxw_col_t>(column), m_text.c_str(),
                                        m_workbook.Format(CellStyle::text)));
}

void TableSheet::Finish() {
    if (m_rows > Capacity()) {
        throw ExportError("sheet " + m_look.name + ": the table has " + std::to_string(m_rows) +
                          " rows, and a sheet holds " + std::to_string(Capacity()) +
                          "; choose fewer cases, or another form");
    }
    const auto last = static_cast<lxw_row_t>(m_firstRow + std::max(m_rows, 1LL) - 1);
    const auto lastColumn = static_cast<lxw_col_t>(m_columns.size() - 1);
    Check(Xlsx().worksheet_autofilter(m_sheet, m_firstRow - 1, 0, last, lastColumn));
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const auto column = static_cast<lxw_col_t>(i);
        const auto width = static_cast<double>(std::min(m_widths[i], kWidest));
        Check(Xlsx().worksheet_set_column(m_sheet, column, column, width, nullptr));
        if (m_columns[i]->quantity != Quantity::ratio) continue;
        lxw_conditional_format over{};
        over.type = LXW_CONDITIONAL_TYPE_CELL;
        over.criteria = LXW_CONDITIONAL_CRITERIA_GREATER_THAN;
        over.value = m_look.limit;
        over.format = m_workbook.OverLimit();
        Check(Xlsx().worksheet_conditional_format_range(m_sheet, m_firstRow, column, last, column, &over));
    }
}

}  // namespace lumerin
