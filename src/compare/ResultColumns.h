// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "records/Table.h"

namespace lumerin {

// How the columns of a table of records are read by a comparison: which of them say what a row is, and which
// belong together because one case governs them. Worked out from the description of the table.

// Values that one case governs: the tension of a pile with its D/C ratio, or everything in the row of an
// extreme. A row has one result or several.
struct ResultColumns {
    std::string_view name;            // what they are of: "tension", "max_shear"; empty: of the whole row
    std::size_t loadCase = 0;         // column of the governing case; 0: the values have no case
    std::vector<std::size_t> values;  // forces, moments, ratios, lengths and counts
    std::vector<std::size_t> places;  // where it governs: member, element, node, end
};

struct TableColumns {
    explicit TableColumns(const Table& from);

    const Table* table;
    // What a row is, without the project and the case. A position among the rows is not part of it; the place
    // or the member that is there is.
    std::vector<std::size_t> identity;
    std::vector<ResultColumns> results;
    std::vector<std::size_t> verdicts;  // flags
    // 0: the table has no such column.
    std::size_t extreme = 0;
    std::size_t view = 0;    // says whether a case of the key is the row's own or the one that governs
    std::size_t member = 0;  // of an element that its member identifies; else its ELEM number does
};

// Whether the rows of a table are results, with values and columns that say what they are of.
bool HasResults(const Table& table);
// The tables of results, in the order of the documentation.
std::vector<const Table*> ComparableTables();
// Those that are compared where none are named: the verdict and the tables of extremes that are also printed.
std::vector<const Table*> UsualTables();

// The column that a row is the extreme of: f22 in the row of the greatest F22. `extreme`: the text of that
// column, empty where there is none. The table need not have the column.
std::string_view LeadingColumn(std::string_view table, std::string_view extreme);

// What a column is called in a sentence or a head: "F22", "D/C", "max shear".
std::string ColumnWords(std::string_view column);

}  // namespace lumerin
