// SPDX-License-Identifier: MIT
#include "writers/SheetRows.h"

#include <algorithm>

#include "framework/Index.h"

namespace lumerin {

namespace {

// What the formulas take from the first substructure.
struct Terms {
    long long blocks;        // of one extreme
    long long combinations;  // 1 or 0
};

long long Blocks(const Report& report, TableId table) {
    const CPier& first = report.data.FirstPier();
    if (!first.m_bCombinations) return 1;
    if (first.m_nCodeFamily != kFamilyLrfd && first.m_nCodeFamily != kFamilyArema) return 1;
    // Fatigue has a block in the cap moment table alone.
    return std::ranges::count_if(first.Slots(), [&](LimitClass limitClass) {
        return report.selection.IsClassPresent(limitClass) &&
               (limitClass != kFatigue || table == kTableCapMoment);
    });
}

long long KeyRows(const CDataSet& data, TableId table) {
    const long long one = table == kTableCapShear ? 9 : 8;
    if (data.m_Piers.size() == 1) return one;
    return one - 1 + (data.HasStructureType(kTypePier) ? 1 : 0) +
           (data.HasStructureType(kTypePileBent) ? 1 : 0);
}

long long PileHeadTableRows(const CPier& pier, Terms t) {
    return (pier.m_nPiles + 3 * t.combinations + (t.combinations != 0 ? 3 : 4)) * t.blocks;
}

long long RatioRows(TableId table, const CPier& pier, Terms t) {
    const long long heading = t.combinations != 0 ? 2 : 3;
    if (table == kTablePileDc) return (pier.m_nPileSections + 3 + 3 * t.combinations) * t.blocks + heading;
    if (pier.m_nStructureType == kTypePileBent) return heading;
    return heading + (pier.m_nColumnSections + (t.combinations != 0 ? 6 : 3)) * t.blocks;
}

long long ForceRows(TableId table, const CPier& pier, Terms t) {
    constexpr long long kHeading = 2;
    if (table == kTableColumnForces && pier.m_nColumns <= 0) return kHeading;
    const int sections = table == kTablePileForces     ? pier.m_nPileSections
                         : table == kTableColumnForces ? pier.m_nColumnSections
                                                       : pier.m_nXMemberSections;
    return kHeading + (13LL * sections + 2 * t.combinations + 3) * t.blocks;
}

long long CapRows(TableId table, const CPier& pier, Terms t) {
    const bool shear = table == kTableCapShear;
    const long long rows = shear ? pier.m_nCapShearPoints : pier.m_nCapMomentPoints;
    return (shear ? 6 : 7) + (8 + 4 * t.combinations + 2 * rows) * t.blocks;
}

long long PierRows(TableId table, const CPier& pier, Terms t) {
    switch (table) {
        case kTableMaxAxial:
            return PileHeadTableRows(pier, t);
        case kTablePileDc:
        case kTableColumnDc:
            return RatioRows(table, pier, t);
        case kTableCapShear:
        case kTableCapMoment:
            return CapRows(table, pier, t);
        default:
            return ForceRows(table, pier, t);
    }
}

long long EachCaseRows(const CPier& pier, const CaseSelection& selection) {
    const long long selected = selection.SelectedCount(static_cast<int>(pier.m_LoadCases.size()));
    return static_cast<long long>(pier.m_Piles.size()) * selected + 5;
}

}  // namespace

long long ExpandedRows(const Report& report, TableId table, int pier) {
    const CDataSet& data = report.data;
    if (table == kTablePileHeads) {
        return EachCaseRows(data.m_Piers.at(Index(pier)), report.selection);
    }
    const bool cap = table == kTableCapShear || table == kTableCapMoment;
    const Terms terms{Blocks(report, table), data.HasCombinations() ? 1 : 0};
    long long rows = table == kTableMaxAxial ? 3 : cap ? 2 + KeyRows(data, table) : 1;
    for (const CPier& each : data.m_Piers) rows += PierRows(table, each, terms);
    if (cap) rows += static_cast<long long>(data.m_Piers.size()) - 1;
    return rows;
}

}  // namespace lumerin
