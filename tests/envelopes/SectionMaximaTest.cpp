// SPDX-License-Identifier: MIT
// Highest D/C ratio and extreme forces of each cross section.
#include <gtest/gtest.h>

#include <limits>

#include "support/Searches.h"

namespace lumerin {

namespace {

constexpr int kMaxAxial = 0, kMinAxial = 1, kMaxF22 = 2, kMinF22 = 3, kMaxDc = 12;

// Columns alone; all elements have section 2, the first of three.
PierShape Columns(int columns, int nodes, int cases) {
    return {.type = kTypePier,
            .columns = columns,
            .columnNodes = nodes,
            .cases = cases,
            .section = 2,
            .sections = 3};
}

void ExpectNothing(const CRecordTable& table, int section, int slot) {
    for (int extreme = 0; extreme < table.Extremes(); ++extreme) {
        EXPECT_EQ(table.At(section, slot, extreme), kNotFoundRecord) << extreme;
    }
}

TEST(SectionMaxima, ASectionThatNoElementUsesStaysNotFound) {
    SearchedPier model(Piles(1, 2, 2));  // all elements of section 1; the tables have three
    model.Search(kTablePileForces);
    model.Search(kTablePileDc);
    ExpectNothing(model.results.pileForces, 1, 0);
    ExpectNothing(model.results.pileForces, 2, 0);
    ExpectNothing(model.results.pileDc, 1, 0);
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 0, 0, kEndJ));
}

TEST(SectionMaxima, ASlotWithoutCasesStaysNotFound) {
    SearchedPier model(Piles(1, 1, 2, kFamilyLrfd));
    SetClass(model.pier, 0, 0);
    SetClass(model.pier, 1, 2);
    model.Search(kTablePileForces);
    model.Search(kTablePileDc);
    ExpectNothing(model.results.pileForces, 0, 1);
    ExpectNothing(model.results.pileDc, 0, 1);
    EXPECT_EQ(model.results.pileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndI));
    EXPECT_EQ(model.results.pileDc.At(0, 2), RecordAt(1, 0, 0, 0, kEndI));
}

TEST(SectionMaxima, RatioOfZeroEverywhereFindsTheFirstIEnd) {
    SearchedPier model(Piles(3, 4, 2));
    model.Search(kTablePileDc);
    EXPECT_EQ(model.results.pileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndI));
}

// The search starts at -0.1: a float of -0.1 is below the double, one of -0.05 above.
TEST(SectionMaxima, RatiosBelowTheStartFindNothing) {
    SearchedPier model(Piles(1, 2, 1));
    model.SetForceEverywhere(kDemandCapacity, -0.1F);
    model.Search(kTablePileDc);
    ExpectNothing(model.results.pileDc, 0, 0);
    model.SetForce(0, 1, kEndJ, kDemandCapacity, -0.05F);
    model.Search(kTablePileDc);
    EXPECT_EQ(model.results.pileDc.At(0, 0), RecordAt(0, 0, 1, 1, kEndJ));
}

TEST(SectionMaxima, AllNegativeForcesHaveAGreatestClosestToZero) {
    SearchedPier model(Piles(1, 2, 2));
    const float axial[2][2][2] = {{{-50.0F, -60.0F}, {-20.0F, -70.0F}},   // case 0: element, end I, J
                                  {{-90.0F, -55.0F}, {-25.0F, -30.0F}}};  // case 1
    for (int c = 0; c < 2; ++c) {
        for (int e = 0; e < 2; ++e) {
            for (int end = 0; end < 2; ++end) model.SetForce(c, e, end, kAxial, axial[c][e][end]);
        }
    }
    model.Search(kTablePileForces);
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 1, 1, kEndI));  // -20
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMinAxial), RecordAt(1, 0, 0, 0, kEndI));  // -90
}

TEST(SectionMaxima, EqualEndsGiveJForForcesAndIForTheRatio) {
    SearchedPier model(Piles(1, 1, 1));
    for (int component = 0; component < kComponents; ++component) model.SetForceEverywhere(component, 3.0F);
    model.Search(kTablePileForces);
    model.Search(kTablePileDc);
    for (int extreme = 0; extreme < kExtremes; ++extreme) {
        EXPECT_EQ(model.results.pileForces.At(0, 0, extreme), RecordAt(0, 0, 0, 0, kEndJ)) << extreme;
    }
    EXPECT_EQ(model.results.pileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndI));
}

TEST(SectionMaxima, OnATieTheEarliestCaseMemberAndElementAreKept) {
    SearchedPier model(Piles(2, 2, 2));
    // 9.0 at: case 0 pile 1 element 0 I, then J of the same element, pile 1 element 1, case 1 pile 0.
    model.SetForce(0, 2, kEndI, kF22, 9.0F);
    model.SetForce(0, 2, kEndJ, kF22, 9.0F);
    model.SetForce(0, 3, kEndJ, kF22, 9.0F);
    model.SetForce(1, 0, kEndJ, kF22, 9.0F);
    model.SetForce(0, 2, kEndI, kDemandCapacity, 9.0F);
    model.SetForce(0, 2, kEndJ, kDemandCapacity, 9.0F);
    model.SetForce(1, 0, kEndI, kDemandCapacity, 9.0F);
    model.Search(kTablePileForces);
    model.Search(kTablePileDc);
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxF22), RecordAt(0, 1, 0, 2, kEndJ));
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxDc), RecordAt(0, 1, 0, 2, kEndJ));
    EXPECT_EQ(model.results.pileDc.At(0, 0), RecordAt(0, 1, 0, 2, kEndI));
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMinF22), RecordAt(0, 0, 0, 0, kEndJ));  // zeros, the first
}

TEST(SectionMaxima, IEndTakesOverWhenItBeatsTheJEndOfItsElement) {
    SearchedPier model(Piles(1, 2, 1));
    model.SetForce(0, 1, kEndJ, kM33, 4.0F);
    model.SetForce(0, 1, kEndI, kM33, 5.0F);
    model.SetForce(0, 0, kEndI, kTorque, -1.0F);  // the seed is the J end's 0; the I end is below it
    model.Search(kTablePileForces);
    EXPECT_EQ(model.results.pileForces.At(0, 0, 2 * kM33), RecordAt(0, 0, 1, 1, kEndI));
    EXPECT_EQ(model.results.pileForces.At(0, 0, 2 * kTorque + 1), RecordAt(0, 0, 0, 0, kEndI));
}

// The thirteenth extreme seeds with the first value, the ratio table with -0.1.
TEST(SectionMaxima, RatioExtremeOfTheForceTableMayBeFarBelowZero) {
    SearchedPier model(Piles(1, 1, 2));
    model.SetForceEverywhere(kDemandCapacity, -7.0F);
    model.SetForce(1, 0, kEndI, kDemandCapacity, -6.0F);
    model.Search(kTablePileForces);
    model.Search(kTablePileDc);
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxDc), RecordAt(1, 0, 0, 0, kEndI));
    ExpectNothing(model.results.pileDc, 0, 0);
}

TEST(SectionMaxima, NotANumberIsSkippedAfterTheSeed) {
    SearchedPier model(Piles(1, 2, 1));
    model.SetForce(0, 0, kEndI, kF22, kNaN);
    model.SetForce(0, 1, kEndJ, kF22, kNaN);
    model.SetForce(0, 1, kEndI, kF22, 1.0F);
    model.SetForce(0, 0, kEndI, kDemandCapacity, kNaN);
    model.Search(kTablePileForces);
    model.Search(kTablePileDc);
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxF22), RecordAt(0, 0, 1, 1, kEndI));
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMinF22), RecordAt(0, 0, 0, 0, kEndJ));
    EXPECT_EQ(model.results.pileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndJ));
}

TEST(SectionMaxima, NotANumberAsTheSeedIsKept) {
    SearchedPier model(Piles(1, 2, 2));
    model.SetForce(0, 0, kEndJ, kAxial, kNaN);
    model.SetForce(0, 1, kEndJ, kAxial, 1000.0F);
    model.SetForce(1, 1, kEndI, kAxial, -1000.0F);
    model.Search(kTablePileForces);
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 0, 0, kEndJ));
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMinAxial), RecordAt(0, 0, 0, 0, kEndJ));
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxF22), RecordAt(0, 0, 0, 0, kEndJ));
}

TEST(SectionMaxima, ColumnSectionsStartAtTwo) {
    SearchedPier model(Columns(1, 2, 1));  // three elements
    model.pier.Element(0).m_nSection = 1;  // neither column nor cap
    model.pier.Element(2).m_nSection = 4;
    model.SetForce(0, 0, kEndI, kDemandCapacity, 5.0F);
    model.Search(kTableColumnForces);
    model.Search(kTableColumnDc);
    EXPECT_EQ(model.results.columnDc.At(0, 0), RecordAt(0, 0, 1, 1, kEndI));
    ExpectNothing(model.results.columnDc, 1, 0);
    EXPECT_EQ(model.results.columnDc.At(2, 0), RecordAt(0, 0, 2, 2, kEndI));
    EXPECT_EQ(model.results.columnForces.At(0, 0, kMaxDc), RecordAt(0, 0, 1, 1, kEndJ));
}

// Its own count of elements is 0, but the element is there and so are its forces.
TEST(SectionMaxima, AColumnWithoutInteriorNodesIsSearched) {
    SearchedPier model(Columns(2, 0, 1));
    ASSERT_EQ(model.pier.m_Frame.m_Columns[1].m_nElements, 0);
    model.SetForce(0, 1, kEndJ, kF33, 2.0F);
    model.Search(kTableColumnForces);
    EXPECT_EQ(model.results.columnForces.At(0, 0, 2 * kF33), RecordAt(0, 1, 0, 1, kEndJ));
}

TEST(SectionMaxima, ExtraMembersCountFromTheirLowestSection) {
    SearchedPier model({.piles = 1, .extraMembers = 3, .section = 1, .sections = 3, .firstExtraSection = 7});
    model.pier.Element(1).m_nSection = 7;
    model.pier.Element(2).m_nSection = 9;
    model.pier.Element(3).m_nSection = 7;
    model.SetForce(0, 3, kEndI, kM22, 6.0F);
    model.Search(kTableExtraMembers);
    EXPECT_EQ(model.results.extraMemberForces.At(0, 0, 2 * kM22), RecordAt(0, 2, 0, 3, kEndI));
    EXPECT_EQ(model.results.extraMemberForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 0, 1, kEndJ));
    ExpectNothing(model.results.extraMemberForces, 1, 0);
    EXPECT_EQ(model.results.extraMemberForces.At(2, 0, kMaxAxial), RecordAt(0, 1, 0, 2, kEndJ));
}

// The writers never print it, but the search fills it, unlike the search of the pile heads.
TEST(SectionMaxima, FatigueSlotIsFilled) {
    SearchedPier model(Piles(1, 1, 2, kFamilyLrfd));
    SetClass(model.pier, 0, 3);
    SetClass(model.pier, 1, 3);
    model.SetForce(1, 0, kEndJ, kAxial, 8.0F);
    model.Search(kTablePileForces);
    EXPECT_EQ(model.results.pileForces.At(0, 3, kMaxAxial), RecordAt(1, 0, 0, 0, kEndJ));
    ExpectNothing(model.results.pileForces, 0, 0);
}

TEST(SectionMaxima, DeselectedCasesLeaveNothingOfAnEarlierSearch) {
    SearchedPier model(Piles(1, 2, 2));
    model.SetForce(1, 1, kEndJ, kAxial, 8.0F);
    model.Search(kTablePileForces);
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxAxial), RecordAt(1, 0, 1, 1, kEndJ));
    model.selection.SetCaseSelected(1, false);
    model.Search(kTablePileForces);
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 0, 0, kEndJ));
    model.selection.SetCaseSelected(0, false);
    model.Search(kTablePileForces);
    model.Search(kTablePileDc);
    ExpectNothing(model.results.pileForces, 0, 0);
    ExpectNothing(model.results.pileDc, 0, 0);
}

TEST(SectionMaxima, WithoutCombinationsEverySlotHoldsAllCases) {
    SearchedPier model(Piles(1, 1, 2, kFamilyArema));
    model.pier.m_bCombinations = false;
    SetClass(model.pier, 0, 1);
    model.SetForce(1, 0, kEndI, kAxial, 8.0F);
    model.Search(kTablePileForces);
    EXPECT_EQ(model.results.pileForces.At(0, 0, kMaxAxial), RecordAt(1, 0, 0, 0, kEndI));
    EXPECT_EQ(model.results.pileForces.At(0, 1, kMaxAxial), RecordAt(1, 0, 0, 0, kEndI));
    EXPECT_EQ(model.results.pileForces.At(0, 1, kMinAxial), RecordAt(0, 0, 0, 0, kEndJ));
}

TEST(SectionMaxima, SectionsAndClassesOutsideTheTablesAreLeftOut) {
    SearchedPier model(Piles(1, 4, 2, kFamilyArema));
    model.pier.Element(0).m_nSection = std::numeric_limits<int>::min();
    model.pier.Element(1).m_nSection = -1;
    model.pier.Element(2).m_nSection = 4;
    model.pier.Element(3).m_nSection = std::numeric_limits<int>::max();
    model.Search(kTablePileForces);
    for (int section = 0; section < 3; ++section) ExpectNothing(model.results.pileForces, section, 0);
    model.pier.Element(2).m_nSection = 3;
    SetClass(model.pier, 0, -1);
    SetClass(model.pier, 1, 2);
    model.Search(kTablePileForces);
    for (int slot = 0; slot < 2; ++slot) ExpectNothing(model.results.pileForces, 2, slot);
}

TEST(SectionMaxima, EmptyPiersAreSearchedInPeace) {
    const CPier bare;
    const CaseSelection nothing;
    RecordedMessages messages;
    PierResults results;
    for (const TableId table :
         {kTablePileDc, kTableColumnDc, kTablePileForces, kTableColumnForces, kTableExtraMembers}) {
        const auto search = BeginSearch(table, {bare, nothing, messages}, results);
        search->Take(0, {});
        search->Finish(results);
    }
    EXPECT_EQ(results.pileForces.Sections(), 0);
    SearchedPier noCases(Piles(1, 1, 0));
    noCases.Search(kTablePileForces);
    ExpectNothing(noCases.results.pileForces, 0, 0);
}

}  // namespace

}  // namespace lumerin
