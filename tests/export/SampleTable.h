// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

#include "export/TableWriter.h"

namespace lumerin {

// A table with a column of each type, and rows of every kind of cell.
inline constexpr std::array<Column, 7> kSampleColumns{{
    {"project", "the project", ColumnType::text, Quantity::none, true},
    {"number", "of the row", ColumnType::integer, Quantity::none, true},
    {"case", "its load case", ColumnType::integer, Quantity::none, false},
    {"words", "a text", ColumnType::text},
    {"fax", "axial force", ColumnType::real, Quantity::force},
    {"dc", "demand over capacity", ColumnType::real, Quantity::ratio},
    {"masked", "whether it is left out", ColumnType::flag},
}};
inline constexpr Table kSampleTable{"samples", "a sample", kSampleColumns, {}, nullptr};
inline constexpr Table kOtherTable{"others", "another sample", kSampleColumns, {}, nullptr};

using SampleRow = std::vector<Value>;

inline SampleRow MakeRow(std::string_view project, std::int64_t number, std::string_view words, Value fax,
                         Value ratio) {
    return {project, number, std::int64_t{3}, words, fax, ratio, number % 2 == 1};
}

// Writes one table of one project.
inline void WriteRows(TableWriter& writer, std::string_view project, const Table& table,
                      const std::vector<SampleRow>& rows, UnitSystem system = UnitSystem::us) {
    writer.BeginProject(project);
    writer.BeginTable(table, system);
    for (const SampleRow& row : rows) writer.Row(row);
    writer.EndTable();
    writer.EndProject();
}

}  // namespace lumerin
