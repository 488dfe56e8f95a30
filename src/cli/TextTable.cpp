// SPDX-License-Identifier: MIT
#include "cli/TextTable.h"

#include <algorithm>
#include <utility>

#include "text/Utf8.h"

namespace lumerin {

namespace {

constexpr std::string_view kGap = "  ";

}  // namespace

std::size_t CharacterCount(std::string_view text) {
    // Every character has one byte that is not 10xxxxxx.
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

void TextTable::Add(std::vector<std::string> cells) {
    for (std::string& cell : cells) cell = WithoutControls(cell);
    m_rows.push_back(std::move(cells));
}

void TextTable::Print(std::ostream& out, std::string_view indent) const {
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> heads;
    for (const Column& column : m_columns) heads.push_back(column.head);
    if (std::ranges::any_of(heads, [](const std::string& head) { return !head.empty(); })) {
        rows.push_back(heads);
    }
    rows.insert(rows.end(), m_rows.begin(), m_rows.end());
    std::vector<std::size_t> widths(m_columns.size(), 0);
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], CharacterCount(row[i]));
        }
    }
    for (const auto& row : rows) {
        std::string line(indent);
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (i > 0) line += kGap;
            const std::string blanks(widths[i] - CharacterCount(row[i]), ' ');
            line += m_columns[i].align == Align::left ? row[i] + blanks : blanks + row[i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

}  // namespace lumerin
