// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/Format.h"

namespace lumerin {

// A row of a printed table: its line, and where the cells of the line end. Forms of lines print the line as
// it is; a form of cells takes them from it, so that both have the same characters.
class RowText {
  public:
    struct Cell {
        std::size_t end = 0;          // in the line
        std::optional<double> ratio;  // of a cell with a D/C: what is printed, not rounded
    };

    std::string line;

    void Clear() {
        line.clear();
        m_cells.clear();
    }
    // What was added to the line since the last cell is a cell.
    void EndCell() { m_cells.push_back({line.size(), {}}); }
    void EndRatio(double ratio) { m_cells.push_back({line.size(), ratio}); }
    // Adds words between blanks, a cell each: "***" and "none" in place of results.
    void AppendWords(std::string_view words);

    std::span<const Cell> Cells() const { return m_cells; }
    // The text of a cell without the blanks around it; empty where a number is printed as blanks.
    std::string_view CellText(std::size_t cell) const;

  private:
    std::vector<Cell> m_cells;  // reused, as the line is: a row allocates no memory
};

// Functions that append pieces to a row without a temporary text.

inline void AppendLeftPadded(std::string& out, std::string_view text, std::size_t width) {
    if (text.size() < width) out.append(width - text.size(), ' ');
    out.append(text);
}

// A format with one "%i": the number takes its place.
inline void AppendNumbered(std::string& out, std::string_view format, long long number) {
    const std::size_t at = format.find("%i");
    out.append(format.substr(0, at));
    if (at == std::string_view::npos) return;
    AppendInt(out, number);
    out.append(format.substr(at + 2));
}

}  // namespace lumerin
