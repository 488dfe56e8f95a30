#include "writers/SheetRows.h"

#include <algorithm>

#include "model/DataSet.h"

namespace {

// What the formulas take from the first substructure.
struct Terms {
    long long blocks;        // of one extreme
    long long combinations;  // 1 or 0
};

long long Blocks(int table) {
    const CPier& first = g_DataSet.FirstPier();
    if (!first.m_bCombinations) return 1;
    if (first.m_nCodeFamily != kFamilyLrfd && first.m_nCodeFamily != kFamilyArema) return 1;
    const int lrfdClasses = table == kTableCapMoment ? 4 : 3;
    const int classes = first.m_nCodeFamily == kFamilyLrfd ? lrfdClasses : 2;
    long long blocks = 0;
    for (int c = 0; c < classes; ++c) blocks += first.IsClassPresent(c) ? 1 : 0;
    return blocks;
}

long long KeyRows(int table) {
    const long long one = table == kTableCapShear ? 9 : 8;
    if (g_DataSet.m_Piers.size() == 1) return one;
    return one - 1 + (g_DataSet.HasStructureType(kTypePier) ? 1 : 0) +
           (g_DataSet.HasStructureType(kTypePileBent) ? 1 : 0);
}

long long PileHeadTableRows(const CPier& pier, Terms t) {
    return (pier.m_nPiles + 3 * t.combinations + (t.combinations != 0 ? 3 : 4)) * t.blocks;
}

long long RatioRows(int table, const CPier& pier, Terms t) {
    const long long heading = t.combinations != 0 ? 2 : 3;
    if (table == kTablePileDc) return (pier.m_nPileSections + 3 + 3 * t.combinations) * t.blocks + heading;
    if (pier.m_nStructureType == kTypePileBent) return heading;
    return heading + (pier.m_nColumnSections + (t.combinations != 0 ? 6 : 3)) * t.blocks;
}

long long ForceRows(int table, const CPier& pier, Terms t) {
    constexpr long long kHeading = 2;
    if (table == kTableColumnForces && pier.m_nColumns <= 0) return kHeading;
    const int sections = table == kTablePileForces     ? pier.m_nPileSections
                         : table == kTableColumnForces ? pier.m_nColumnSections
                                                       : pier.m_nXMemberSections;
    return kHeading + (13LL * sections + 2 * t.combinations + 3) * t.blocks;
}

long long CapRows(int table, const CPier& pier, Terms t) {
    const bool shear = table == kTableCapShear;
    const long long rows = shear ? pier.m_nCapShearPoints : pier.m_nCapMomentPoints;
    return (shear ? 6 : 7) + (8 + 4 * t.combinations + 2 * rows) * t.blocks;
}

long long PierRows(int table, const CPier& pier, Terms t) {
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

long long EachCaseRows(const CPier& pier) {
    const auto selected = std::count_if(pier.m_CaseSelected.begin(), pier.m_CaseSelected.end(),
                                        [](std::uint8_t byte) { return byte != 0; });
    return static_cast<long long>(pier.m_Piles.size()) * selected + 5;
}

}  // namespace

long long ExpandedRows(int table, int pier) {
    if (table == kTablePileHeads) return EachCaseRows(g_DataSet.m_Piers.at(static_cast<std::size_t>(pier)));
    const bool cap = table == kTableCapShear || table == kTableCapMoment;
    const Terms terms{Blocks(table), g_DataSet.FirstPier().m_bCombinations ? 1 : 0};
    long long rows = table == kTableMaxAxial ? 3 : cap ? 2 + KeyRows(table) : 1;
    for (const CPier& each : g_DataSet.m_Piers) rows += PierRows(table, each, terms);
    if (cap) rows += static_cast<long long>(g_DataSet.m_Piers.size()) - 1;
    return rows;
}
