// SPDX-License-Identifier: MIT
#include "web/Links.h"

namespace lumerin {

std::string Links::MarkId(std::string_view figure, std::size_t substructure, std::string_view mark) {
    std::string id = "f-" + std::string(figure) + "-" + std::to_string(substructure);
    return id.append("-").append(mark);
}

std::string_view Links::RowOf(const std::string& mark) const {
    const auto found = m_rows.find(mark);
    return found == m_rows.end() ? std::string_view() : found->second;
}

}  // namespace lumerin
