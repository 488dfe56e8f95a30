// SPDX-License-Identifier: MIT
#include <array>

#include "framework/Index.h"
#include "records/Columns.h"
#include "records/RowBuffer.h"
#include "records/TableRows.h"
#include "tables/Words.h"

namespace lumerin {

namespace {

// ---- the greatest axial forces of the piles

constexpr auto kPileAxialColumns = JoinColumns(
    kPlaceColumns, Column{"pile", "number of the pile", ColumnType::integer, Quantity::none, true},
    kClassColumn,
    Column{"tension", "greatest tension at the head; empty: never in tension", ColumnType::real,
           Quantity::force},
    Column{"tension_case", "its case", ColumnType::integer},
    Column{"tension_limit_state", "limit state of that case", ColumnType::text},
    Column{"tension_dc", "demand over capacity at the head in that case", ColumnType::real, Quantity::ratio},
    Column{"compression", "greatest compression at the head, negative; empty: never in compression",
           ColumnType::real, Quantity::force},
    Column{"compression_case", "its case", ColumnType::integer},
    Column{"compression_limit_state", "limit state of that case", ColumnType::text},
    Column{"compression_dc", "demand over capacity at the head in that case", ColumnType::real,
           Quantity::ratio});

// The case that was found for a pile; -1: none.
int FoundCase(const CPier& pier, const std::vector<std::vector<int>>& cases, LimitClass slot, int pile) {
    const auto s = Index(slot);
    if (s >= cases.size() || Index(pile) >= cases[s].size()) return -1;
    const int loadCase = cases[s][Index(pile)];
    const bool exists = loadCase >= 0 && Index(loadCase) < pier.m_LoadCases.size() &&
                        pier.FindElement(kPileFamily, pile, 0) >= 0;
    return exists ? loadCase : -1;
}

void AddHead(const Evaluation& evaluation, std::size_t p, int pile, int loadCase, RowBuffer& row) {
    if (loadCase < 0) {
        row.Absent(4);
        return;
    }
    const CPier& pier = evaluation.Data().m_Piers[p];
    const ForceRow forces = evaluation.Rows().At(p, loadCase, pier.PileElement(pile, 0));
    row.Number(forces[kComponents + kAxial]);
    row.Integer(loadCase + 1LL).Text(LimitStateIn(evaluation.Data(), loadCase));
    row.Number(forces[kComponents + kDemandCapacity]);
}

void PileAxialRows(const Evaluation& evaluation, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    for (std::size_t p = 0; p < evaluation.Data().m_Piers.size(); ++p) {
        const CPier& pier = evaluation.Data().m_Piers[p];
        const PierResults& results = evaluation.Results().piers[p];
        for (const LimitClass slot : ClassesOf(evaluation)) {
            // The search has no slot for fatigue: driving capacities are not compared with it.
            if (slot == kFatigue) continue;
            for (int pile = 0; pile < static_cast<int>(pier.m_Piles.size()); ++pile) {
                row.Begin(p + 1).Integer(pile + 1LL).Text(ClassNameIn(evaluation, slot));
                AddHead(evaluation, p, pile, FoundCase(pier, results.maxTension, slot, pile), row);
                AddHead(evaluation, p, pile, FoundCase(pier, results.maxCompression, slot, pile), row);
                row.Hand();
            }
        }
    }
}

// ---- the extremes of cross sections

constexpr Column kFamilyColumn{"family", "pile, column or extra_member", ColumnType::text, Quantity::none,
                               true};
constexpr Column kMemberColumn{"member", "number of the pile, column or extra member", ColumnType::integer};
constexpr auto kSectionDcColumns =
    JoinColumns(kPlaceColumns, kFamilyColumn, AsKey(kSectionColumn), kClassColumn, kRatioColumn,
                kMemberColumn, kElementColumn, kNodeColumn, kEndColumn, kCaseColumns, kForceColumns);
constexpr auto kSectionForcesColumns = JoinColumns(
    kPlaceColumns, kFamilyColumn, AsKey(kSectionColumn), kClassColumn,
    Column{"extreme", "which force is the greatest or the least, as the printed tables name it",
           ColumnType::text, Quantity::none, true},
    kRatioColumn, kMemberColumn, kElementColumn, kNodeColumn, kEndColumn, kCaseColumns, kForceColumns);

// The sections of a family in a substructure, with what was found for them.
struct SectionFamily {
    std::string_view name;
    MemberFamily family;
    const CRecordTable* records;
    int sections, firstNumber;
};

// The families whose members the searches looked at.
std::vector<SectionFamily> FamiliesOf(const Evaluation& evaluation, std::size_t p, bool forces) {
    const CPier& pier = evaluation.Data().m_Piers[p];
    const PierResults& results = evaluation.Results().piers[p];
    std::vector<SectionFamily> families;
    if (!pier.m_Piles.empty()) {
        families.push_back(
            {"pile", kPileFamily, forces ? &results.pileForces : &results.pileDc, pier.m_nPileSections, 1});
    }
    // A bent's supports are piles; below a first substructure without a frame nothing of a frame is read.
    const bool hasColumns = pier.m_nColumns > 0 && pier.m_nStructureType != kTypePileBent &&
                            !HasNoFrame(pier.m_nStructureType) &&
                            !HasNoFrame(evaluation.Data().FirstPier().m_nStructureType);
    if (hasColumns) {
        families.push_back({"column", kColumnFamily, forces ? &results.columnForces : &results.columnDc,
                            pier.m_nColumnSections, 2});
    }
    if (forces && pier.m_nExtraMembers > 0) {
        families.push_back({"extra_member", kXMemberFamily, &results.extraMemberForces,
                            pier.m_nXMemberSections, pier.m_nXMemberFirstSection});
    }
    return families;
}

// A record that names a case and an element of the substructure.
bool IsFound(const CPier& pier, const SectionFamily& family, const CMaxRecord& record) {
    return record.m_nLoadCase >= 0 && Index(record.m_nLoadCase) < pier.m_LoadCases.size() &&
           pier.FindElement(family.family, record.m_nMember, record.m_nElement) >= 0;
}

void AddRecord(const Evaluation& evaluation, std::size_t p, const SectionFamily& family,
               const CMaxRecord& record, RowBuffer& row) {
    const CPier& pier = evaluation.Data().m_Piers[p];
    if (!IsFound(pier, family, record)) {
        row.Absent(7 + kForceColumns.size());
        return;
    }
    const int element = pier.FindElement(family.family, record.m_nMember, record.m_nElement);
    const ForceRow forces = evaluation.Rows().At(p, record.m_nLoadCase, element);
    const int end = record.m_nEnd == kEndI ? kEndI : kEndJ;
    row.Number(forces[Index(end) * kComponents + kDemandCapacity]);
    row.Integer(record.m_nMember + 1LL).Integer(record.m_nElementNumber).Integer(record.m_nNode);
    row.Text(EndName(end)).Integer(record.m_nLoadCase + 1LL);
    row.Text(LimitStateIn(evaluation.Data(), record.m_nLoadCase));
    row.Forces(forces, end, kDemandCapacity);
}

void SectionRows(const Evaluation& evaluation, bool forces, const RowTaker& take) {
    RowBuffer row(evaluation.Opened().name.name, take);
    for (std::size_t p = 0; p < evaluation.Data().m_Piers.size(); ++p) {
        for (const SectionFamily& family : FamiliesOf(evaluation, p, forces)) {
            for (const LimitClass slot : ClassesOf(evaluation)) {
                for (int section = 0; section < family.records->Sections(); ++section) {
                    const int number = section + family.firstNumber;
                    if (family.family == kXMemberFamily && !evaluation.Data().IsExtraMemberSection(p, number))
                        continue;
                    if (slot >= family.records->Slots()) continue;
                    for (int extreme = 0; extreme < (forces ? kPrintedExtremes : 1); ++extreme) {
                        row.Begin(p + 1).Text(family.name).Integer(number);
                        row.Text(ClassNameIn(evaluation, slot));
                        if (forces) row.Text(g_ExtremeNames[Index(extreme)]);
                        AddRecord(evaluation, p, family, family.records->At(section, slot, extreme), row);
                        row.Hand();
                    }
                }
            }
        }
    }
}

constexpr std::array<Table, 3> kTablesOfSection{{
    {"pile_axial",
     "a pile and limit class (no fatigue)",
     kPileAxialColumns,
     {SearchBit(kTableMaxAxial), false, false},
     PileAxialRows},
    {"section_dc",
     "a section of piles or columns and a limit class",
     kSectionDcColumns,
     {SearchBit(kTablePileDc) | SearchBit(kTableColumnDc), false, false},
     [](const Evaluation& evaluation, const RowTaker& take) { SectionRows(evaluation, false, take); }},
    {"section_forces",
     "a section of piles, columns or extra members, a limit class and an extreme",
     kSectionForcesColumns,
     {SearchBit(kTablePileForces) | SearchBit(kTableColumnForces) | SearchBit(kTableExtraMembers), false,
      false},
     [](const Evaluation& evaluation, const RowTaker& take) { SectionRows(evaluation, true, take); }},
}};

}  // namespace

const std::span<const Table> kSectionTables = kTablesOfSection;

}  // namespace lumerin
