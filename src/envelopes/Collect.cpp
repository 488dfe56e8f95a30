// SPDX-License-Identifier: MIT
#include "envelopes/Collect.h"

#include <algorithm>

#include "envelopes/TableSearch.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr TableId kTables[] = {kTableMaxAxial,  kTablePileDc,     kTableColumnDc,     kTableCapShear,
                               kTableCapMoment, kTablePileForces, kTableColumnForces, kTableExtraMembers};

// The cap tables show interpolated values, so these are checked themselves, those of missing sections too.
// Records and lists hold whole numbers, which always pass.
bool HasValidValues(const CCapTable& table) {
    return std::ranges::all_of(table.Entries(), [](const CCapEntry& entry) {
        return std::ranges::all_of(entry.values, IsValidNumber);
    });
}

// The other tables show forces, and those of all cases, selected or not, were tested while they were read:
// their check only returns that result.
bool IsValid(TableId table, const FiniteForces& finite, const PierResults& results) {
    switch (table) {
        case kTableMaxAxial:
            return finite.pileHeads;
        case kTablePileDc:
        case kTablePileForces:
            return finite.piles;
        case kTableColumnDc:
        case kTableColumnForces:
            return finite.columns;
        case kTableExtraMembers:
            return finite.extraMembers;
        case kTableCapShear:
            return HasValidValues(results.shearSupports) && HasValidValues(results.shearBearings);
        case kTableCapMoment:
            return HasValidValues(results.momentSupports) && HasValidValues(results.momentBearings);
        default:
            return true;
    }
}

// Whether the first substructure's type has no columns to search. Unlike the tables' applicability this looks
// at type 8 and not at type 7.
bool LacksColumnData(const CDataSet& data) {
    return !data.IsPierless() && HasNoFrame(data.FirstPier().m_nStructureType);
}

}  // namespace

const std::span<const TableId> kSearchedTables = kTables;

std::unique_ptr<TableSearch> BeginSearch(TableId table, const PierInput& input, const PierResults& results) {
    switch (table) {
        case kTableMaxAxial:
            return BeginPileHeadSearch(input, results);
        case kTableCapShear:
        case kTableCapMoment:
            return BeginCapSearch(table, input);
        default:
            return BeginSectionSearch(table, input, results);
    }
}

SearchPass::SearchPass(const SearchInput& input, std::span<const TableId> tables, const Taker& take)
    : m_data(input.data), m_selection(input.selection) {
    const ResultTables sizes(m_data);
    for (const TableId table : tables) m_tables.push_back({table, {}});
    for (std::size_t p = 0; p < m_data.m_Piers.size(); ++p) {
        std::vector<TableSearch*> searches;
        for (TableSearches& table : m_tables) {
            const PierInput pier{m_data.m_Piers[p], m_selection, input.messages};
            table.piers.push_back(BeginSearch(table.table, pier, sizes.piers[p]));
            if (table.piers.back()) searches.push_back(table.piers.back().get());
        }
        m_finite.push_back(input.forces[p]->ReadCases([&](int loadCase, CaseForces forces) {
            for (TableSearch* search : searches) search->Take(loadCase, forces);
            if (take) take(p, loadCase, forces);
        }));
    }
}

void SearchPass::Store(TableId table, ResultTables& results) const {
    const auto found = std::ranges::find(m_tables, table, &TableSearches::table);
    if (found == m_tables.end()) return;
    if ((table == kTableColumnDc || table == kTableColumnForces) && LacksColumnData(m_data)) {
        results.valid[table] = false;
        return;
    }
    // A substructure that fails makes the table invalid for the rest of the session.
    for (std::size_t p = 0; p < found->piers.size(); ++p) {
        found->piers[p]->Finish(results.piers[p]);
        if (!IsValid(table, m_finite[p], results.piers[p])) results.valid[table] = false;
    }
}

void CollectTable(TableId table, const SearchInput& input, ResultTables& results) {
    if (table < kTableMaxAxial || table > kTableExtraMembers) return;
    SearchPass(input, std::span(&table, 1)).Store(table, results);
}

}  // namespace lumerin
