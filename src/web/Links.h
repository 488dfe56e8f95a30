// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

namespace lumerin {

// The places of a report that lead to each other: marks in figures, by figure, substructure and the mark's
// own name, and rows of tables.
class Links {
  public:
    // The id of a mark in the page.
    static std::string MarkId(std::string_view figure, std::size_t substructure, std::string_view mark);

    void AddMark(const std::string& id) { m_marks.insert(id); }
    bool HasMark(const std::string& id) const { return m_marks.contains(id); }
    // The first row of a mark is the one that the mark leads to. False: the mark has one already.
    bool AddRow(const std::string& mark, const std::string& row) { return m_rows.emplace(mark, row).second; }
    // The row of a mark; empty: none.
    std::string_view RowOf(const std::string& mark) const;

  private:
    std::set<std::string> m_marks;
    std::map<std::string, std::string> m_rows;
};

}  // namespace lumerin
