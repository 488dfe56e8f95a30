// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "envelopes/PierInput.h"
#include "envelopes/ResultTables.h"

namespace lumerin {

// The search of one table in one substructure. It takes the cases in order, each once, whether they are
// selected or not, and keeps what it found; the forces of a case are valid during the call only.
class TableSearch {
  public:
    TableSearch() = default;
    TableSearch(const TableSearch&) = delete;
    TableSearch& operator=(const TableSearch&) = delete;
    virtual ~TableSearch() = default;

    virtual void Take(int loadCase, CaseForces forces) = 0;
    // After the last case, as often as wanted: writes what was found into the table's own entries. Entries
    // without a result keep what an earlier search left, where the table has such.
    virtual void Finish(PierResults& results) const = 0;
};

// Begins the search of a table (0 to 7) of the sizes of `results`; null for another table. The parts of the
// input are kept.
std::unique_ptr<TableSearch> BeginSearch(TableId table, const PierInput& input, const PierResults& results);

// The searches of a group of tables.
std::unique_ptr<TableSearch> BeginPileHeadSearch(const PierInput& input, const PierResults& results);
std::unique_ptr<TableSearch> BeginSectionSearch(TableId table, const PierInput& input,
                                                const PierResults& results);
std::unique_ptr<TableSearch> BeginCapSearch(TableId table, const PierInput& input);

}  // namespace lumerin
