// SPDX-License-Identifier: MIT
#include "tables/RowText.h"

#include <algorithm>

namespace lumerin {

void RowText::AppendWords(std::string_view words) {
    const std::size_t start = line.size();
    line.append(words);
    for (std::size_t at = line.find_first_not_of(' ', start); at != std::string::npos;
         at = line.find_first_not_of(' ', at)) {
        at = std::min(line.find(' ', at), line.size());
        m_cells.push_back({at, {}});
    }
}

std::string_view RowText::CellText(std::size_t cell) const {
    const std::size_t from = cell == 0 ? 0 : m_cells.at(cell - 1).end;
    return Trim(std::string_view(line).substr(from, m_cells.at(cell).end - from));
}

}  // namespace lumerin
