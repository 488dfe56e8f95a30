// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "envelopes/ResultTables.h"
#include "envelopes/TableSearch.h"
#include "model/CaseSelection.h"
#include "model/DataSet.h"
#include "results/ForceSource.h"
#include "text/Messages.h"

namespace lumerin {

// The input of a search. The caller owns all parts, and keeps data and messages as long as the search, the
// others during the call.
struct SearchInput {
    const CDataSet& data;
    const ForceSources& forces;  // by substructure
    const CaseSelection& selection;
    Messages& messages;  // a cap whose members do not fit together is reported here
};

// The tables that have a search: 0 to 7.
extern const std::span<const TableId> kSearchedTables;

// The searches of some tables over all substructures, fed by one pass over the forces of each. What they find
// is kept apart from any result table, so that a table can take its own part of it at any time.
class SearchPass {
  public:
    // Receives every case of every substructure (both from 0) besides the searches.
    using Taker = std::function<void(std::size_t pier, int loadCase, CaseForces forces)>;

    // Reads every case, selected or not. Throws CFileException.
    SearchPass(const SearchInput& input, std::span<const TableId> tables, const Taker& take = {});

    // Writes what was found for a table and runs the check of its numbers, which can clear the table's
    // validity in `results`. Tables 2 and 6 of a project whose first substructure has no columns are not
    // written, only made invalid. A table without a search is left as it is.
    void Store(TableId table, ResultTables& results) const;

    const CaseSelection& Selection() const { return m_selection; }
    // What is not finite in any case, by substructure.
    const std::vector<FiniteForces>& Finite() const { return m_finite; }

  private:
    struct TableSearches {
        TableId table;
        std::vector<std::unique_ptr<TableSearch>> piers;
    };

    const CDataSet& m_data;
    CaseSelection m_selection;
    std::vector<TableSearches> m_tables;
    std::vector<FiniteForces> m_finite;
};

// The search of one table alone, with its check.
void CollectTable(TableId table, const SearchInput& input, ResultTables& results);

}  // namespace lumerin
