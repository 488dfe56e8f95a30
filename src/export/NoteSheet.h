// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "export/Workbook.h"

namespace lumerin {

// A cell of a note sheet; an empty text is no cell.
struct NoteCell {
    std::variant<std::string, double> content;
    CellStyle style = CellStyle::text;
};

// A sheet of lines, such as a cover. Columns are as wide as their cells, but for those that have the line for
// themselves.
class NoteSheet {
  public:
    // `paper`: 1 Letter, 9 A4.
    NoteSheet(Workbook& workbook, const std::string& name, std::uint8_t paper);

    void Line(const std::vector<NoteCell>& cells);
    void Gap() { ++m_row; }
    // Sets the widths.
    void Finish();

  private:
    Workbook& m_workbook;
    lxw_worksheet* m_sheet;
    std::uint32_t m_row = 0;
    std::vector<std::size_t> m_widths;  // in characters
};

}  // namespace lumerin
