// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace lumerin {

// A small table for the terminal: columns as wide as their longest text, two blanks between them. Texts are
// UTF-8 and count one column a character.
class TextTable {
  public:
    enum class Align { left, right };
    struct Column {
        std::string head;
        Align align = Align::left;
    };

    explicit TextTable(std::vector<Column> columns) : m_columns(std::move(columns)) {}

    // As many cells as columns. A terminal may show them: their control characters are replaced.
    void Add(std::vector<std::string> cells);
    bool IsEmpty() const { return m_rows.empty(); }
    // The head line, where a column has a head, and the rows, each after `indent`.
    void Print(std::ostream& out, std::string_view indent) const;

  private:
    std::vector<Column> m_columns;
    std::vector<std::vector<std::string>> m_rows;
};

// The number of characters of a UTF-8 text.
std::size_t CharacterCount(std::string_view text);

}  // namespace lumerin
