// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "export/Workbook.h"
#include "records/Table.h"

namespace lumerin {

// How a table is shown on a sheet.
struct SheetLook {
    std::string name;     // of the sheet
    std::string title;    // a line above the table; empty: none
    double limit = 1.0;   // ratios over it are red
    UnitSystem system{};  // of the values
};

// A table on a sheet of its own: a line of the columns' names and one of their units, which stay in view and
// are repeated on each printed page, then a line a row.
class TableSheet {
  public:
    // `columns` is valid as long as the object.
    TableSheet(Workbook& workbook, const SheetLook& look, std::span<const Column* const> columns);

    // Rows that the sheet has no place for are counted only.
    void Row(std::span<const Value* const> row);
    long long Rows() const { return m_rows; }
    // Sets widths, filter and colours. Throws ExportError when the sheet could not take all rows.
    void Finish();

    static constexpr long long kSheetRows = 1048576;

  private:
    void WriteHead();
    void WriteCell(std::size_t column, const Value& value);
    void WriteNumber(std::size_t column, double number, CellStyle style);
    void WriteText(std::size_t column, std::string_view text);
    void Check(int code) const;
    long long Capacity() const { return kSheetRows - m_firstRow; }

    Workbook& m_workbook;
    lxw_worksheet* m_sheet;
    SheetLook m_look;
    std::vector<const Column*> m_columns;
    std::vector<std::size_t> m_widths;  // in characters
    std::uint32_t m_headRow = 0, m_firstRow = 0;
    long long m_rows = 0;
    std::string m_text;  // of a cell, with the zero that the library needs
};

}  // namespace lumerin
