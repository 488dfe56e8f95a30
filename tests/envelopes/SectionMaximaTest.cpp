// Highest D/C ratio and extreme forces of each cross section.
#include "SectionModel.h"

namespace {

constexpr int kMaxAxial = 0, kMinAxial = 1, kMaxF22 = 2, kMinF22 = 3, kMaxDc = 12;

CPier MakeColumns(int columns, int nodes, int cases, int codeFamily = -1) {
    CMemberCounts counts;
    counts.columns = columns;
    counts.columnNodes = nodes;
    CPier pier = MakePier(counts, cases, codeFamily);
    for (int e = 0; e < pier.ElementCount(); ++e) pier.Element(e).m_nSection = 2;
    return pier;
}

void ExpectNothing(const CRecordTable& table, int section, int slot) {
    for (int extreme = 0; extreme < table.Extremes(); ++extreme) {
        EXPECT_EQ(table.At(section, slot, extreme), kNotFoundRecord) << extreme;
    }
}

TEST(SectionMaxima, ASectionThatNoElementUsesStaysNotFound) {
    CPier pier = MakePiles(1, 2, 2);  // all elements of section 1; the tables have three
    pier.ComputePileForces();
    pier.ComputePileDemandCapacity();
    ExpectNothing(pier.m_PileForces, 1, 0);
    ExpectNothing(pier.m_PileForces, 2, 0);
    ExpectNothing(pier.m_PileDc, 1, 0);
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 0, 0, kEndJ));
}

TEST(SectionMaxima, ASlotWithoutCasesStaysNotFound) {
    CPier pier = MakePiles(1, 1, 2, 0);
    SetClass(pier, 0, 0);
    SetClass(pier, 1, 2);
    pier.ComputePileForces();
    pier.ComputePileDemandCapacity();
    ExpectNothing(pier.m_PileForces, 0, 1);
    ExpectNothing(pier.m_PileDc, 0, 1);
    EXPECT_EQ(pier.m_PileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndI));
    EXPECT_EQ(pier.m_PileDc.At(0, 2), RecordAt(1, 0, 0, 0, kEndI));
}

TEST(SectionMaxima, RatioOfZeroEverywhereFindsTheFirstIEnd) {
    CPier pier = MakePiles(3, 4, 2);
    pier.ComputePileDemandCapacity();
    EXPECT_EQ(pier.m_PileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndI));
}

// The search starts at -0.1: a float of -0.1 lies below the double, one of -0.05 above.
TEST(SectionMaxima, RatiosBelowTheStartFindNothing) {
    CPier pier = MakePiles(1, 2, 1);
    SetForceEverywhere(pier, kDemandCapacity, -0.1F);
    pier.ComputePileDemandCapacity();
    ExpectNothing(pier.m_PileDc, 0, 0);
    SetForce(pier, 0, 1, kEndJ, kDemandCapacity, -0.05F);
    pier.ComputePileDemandCapacity();
    EXPECT_EQ(pier.m_PileDc.At(0, 0), RecordAt(0, 0, 1, 1, kEndJ));
}

TEST(SectionMaxima, AllNegativeForcesHaveAGreatestClosestToZero) {
    CPier pier = MakePiles(1, 2, 2);
    const float axial[2][2][2] = {{{-50.0F, -60.0F}, {-20.0F, -70.0F}},   // case 0: element, end I, J
                                  {{-90.0F, -55.0F}, {-25.0F, -30.0F}}};  // case 1
    for (int c = 0; c < 2; ++c) {
        for (int e = 0; e < 2; ++e) {
            for (int end = 0; end < 2; ++end) SetForce(pier, c, e, end, kAxial, axial[c][e][end]);
        }
    }
    pier.ComputePileForces();
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 1, 1, kEndI));  // -20
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMinAxial), RecordAt(1, 0, 0, 0, kEndI));  // -90
}

TEST(SectionMaxima, EqualEndsGiveJForForcesAndIForTheRatio) {
    CPier pier = MakePiles(1, 1, 1);
    for (int component = 0; component < kComponents; ++component) SetForceEverywhere(pier, component, 3.0F);
    pier.ComputePileForces();
    pier.ComputePileDemandCapacity();
    for (int extreme = 0; extreme < kExtremes; ++extreme) {
        EXPECT_EQ(pier.m_PileForces.At(0, 0, extreme), RecordAt(0, 0, 0, 0, kEndJ)) << extreme;
    }
    EXPECT_EQ(pier.m_PileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndI));
}

TEST(SectionMaxima, OnATieTheEarliestCaseMemberAndElementStand) {
    CPier pier = MakePiles(2, 2, 2);
    // 9.0 at: case 0 pile 1 element 0 I, then J of the same element, pile 1 element 1, case 1 pile 0.
    SetForce(pier, 0, 2, kEndI, kF22, 9.0F);
    SetForce(pier, 0, 2, kEndJ, kF22, 9.0F);
    SetForce(pier, 0, 3, kEndJ, kF22, 9.0F);
    SetForce(pier, 1, 0, kEndJ, kF22, 9.0F);
    SetForce(pier, 0, 2, kEndI, kDemandCapacity, 9.0F);
    SetForce(pier, 0, 2, kEndJ, kDemandCapacity, 9.0F);
    SetForce(pier, 1, 0, kEndI, kDemandCapacity, 9.0F);
    pier.ComputePileForces();
    pier.ComputePileDemandCapacity();
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxF22), RecordAt(0, 1, 0, 2, kEndJ));
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxDc), RecordAt(0, 1, 0, 2, kEndJ));
    EXPECT_EQ(pier.m_PileDc.At(0, 0), RecordAt(0, 1, 0, 2, kEndI));
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMinF22), RecordAt(0, 0, 0, 0, kEndJ));  // zeros, the first
}

TEST(SectionMaxima, IEndTakesOverWhenItBeatsTheJEndOfItsElement) {
    CPier pier = MakePiles(1, 2, 1);
    SetForce(pier, 0, 1, kEndJ, kM33, 4.0F);
    SetForce(pier, 0, 1, kEndI, kM33, 5.0F);
    SetForce(pier, 0, 0, kEndI, kTorque, -1.0F);  // the seed is the J end's 0; the I end lies below it
    pier.ComputePileForces();
    EXPECT_EQ(pier.m_PileForces.At(0, 0, 2 * kM33), RecordAt(0, 0, 1, 1, kEndI));
    EXPECT_EQ(pier.m_PileForces.At(0, 0, 2 * kTorque + 1), RecordAt(0, 0, 0, 0, kEndI));
}

// The thirteenth extreme seeds with the first value, the ratio table with -0.1.
TEST(SectionMaxima, RatioExtremeOfTheForceTableMayBeFarBelowZero) {
    CPier pier = MakePiles(1, 1, 2);
    SetForceEverywhere(pier, kDemandCapacity, -7.0F);
    SetForce(pier, 1, 0, kEndI, kDemandCapacity, -6.0F);
    pier.ComputePileForces();
    pier.ComputePileDemandCapacity();
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxDc), RecordAt(1, 0, 0, 0, kEndI));
    ExpectNothing(pier.m_PileDc, 0, 0);
}

TEST(SectionMaxima, NotANumberIsSkippedBehindTheSeed) {
    CPier pier = MakePiles(1, 2, 1);
    SetForce(pier, 0, 0, kEndI, kF22, kNaN);
    SetForce(pier, 0, 1, kEndJ, kF22, kNaN);
    SetForce(pier, 0, 1, kEndI, kF22, 1.0F);
    SetForce(pier, 0, 0, kEndI, kDemandCapacity, kNaN);
    pier.ComputePileForces();
    pier.ComputePileDemandCapacity();
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxF22), RecordAt(0, 0, 1, 1, kEndI));
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMinF22), RecordAt(0, 0, 0, 0, kEndJ));
    EXPECT_EQ(pier.m_PileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndJ));
}

TEST(SectionMaxima, NotANumberAsTheSeedStands) {
    CPier pier = MakePiles(1, 2, 2);
    SetForce(pier, 0, 0, kEndJ, kAxial, kNaN);
    SetForce(pier, 0, 1, kEndJ, kAxial, 1000.0F);
    SetForce(pier, 1, 1, kEndI, kAxial, -1000.0F);
    pier.ComputePileForces();
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 0, 0, kEndJ));
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMinAxial), RecordAt(0, 0, 0, 0, kEndJ));
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxF22), RecordAt(0, 0, 0, 0, kEndJ));
}

TEST(SectionMaxima, ColumnSectionsStartAtTwo) {
    CPier pier = MakeColumns(1, 2, 1);  // three elements
    pier.Element(0).m_nSection = 1;     // neither column nor cap
    pier.Element(2).m_nSection = 4;
    SetForce(pier, 0, 0, kEndI, kDemandCapacity, 5.0F);
    pier.ComputeColumnForces();
    pier.ComputeColumnDemandCapacity();
    EXPECT_EQ(pier.m_ColumnDc.At(0, 0), RecordAt(0, 0, 1, 1, kEndI));
    ExpectNothing(pier.m_ColumnDc, 1, 0);
    EXPECT_EQ(pier.m_ColumnDc.At(2, 0), RecordAt(0, 0, 2, 2, kEndI));
    EXPECT_EQ(pier.m_ColumnForces.At(0, 0, kMaxDc), RecordAt(0, 0, 1, 1, kEndJ));
}

// Its own count of elements is 0, but the element is there and so are its forces.
TEST(SectionMaxima, AColumnWithoutInteriorNodesIsSearched) {
    CPier pier = MakeColumns(2, 0, 1);
    ASSERT_EQ(pier.m_Frame.m_Columns[1].m_nElements, 0);
    SetForce(pier, 0, 1, kEndJ, kF33, 2.0F);
    pier.ComputeColumnForces();
    EXPECT_EQ(pier.m_ColumnForces.At(0, 0, 2 * kF33), RecordAt(0, 1, 0, 1, kEndJ));
}

TEST(SectionMaxima, ExtraMembersCountFromTheirLowestSection) {
    CMemberCounts counts;
    counts.piles = 1;
    counts.pileNodes = 2;
    counts.extraMembers = 3;
    CPier pier = MakePier(counts, 1);
    pier.Element(1).m_nSection = 7;
    pier.Element(2).m_nSection = 9;
    pier.Element(3).m_nSection = 7;
    SetForce(pier, 0, 3, kEndI, kM22, 6.0F);
    pier.ComputeExtraMemberForces();
    EXPECT_EQ(pier.m_XMemberForces.At(0, 0, 2 * kM22), RecordAt(0, 2, 0, 3, kEndI));
    EXPECT_EQ(pier.m_XMemberForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 0, 1, kEndJ));
    ExpectNothing(pier.m_XMemberForces, 1, 0);
    EXPECT_EQ(pier.m_XMemberForces.At(2, 0, kMaxAxial), RecordAt(0, 1, 0, 2, kEndJ));
}

// The writers never print it, but the search fills it, unlike the search of the pile heads.
TEST(SectionMaxima, FatigueSlotIsFilled) {
    CPier pier = MakePiles(1, 1, 2, 0);
    SetClass(pier, 0, 3);
    SetClass(pier, 1, 3);
    SetForce(pier, 1, 0, kEndJ, kAxial, 8.0F);
    pier.ComputePileForces();
    EXPECT_EQ(pier.m_PileForces.At(0, 3, kMaxAxial), RecordAt(1, 0, 0, 0, kEndJ));
    ExpectNothing(pier.m_PileForces, 0, 0);
}

TEST(SectionMaxima, DeselectedCasesLeaveNothingOfAnEarlierSearch) {
    CPier pier = MakePiles(1, 2, 2);
    SetForce(pier, 1, 1, kEndJ, kAxial, 8.0F);
    pier.ComputePileForces();
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxAxial), RecordAt(1, 0, 1, 1, kEndJ));
    pier.SetCaseSelected(1, false);
    pier.ComputePileForces();
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxAxial), RecordAt(0, 0, 0, 0, kEndJ));
    pier.SetCaseSelected(0, false);
    pier.ComputePileForces();
    pier.ComputePileDemandCapacity();
    ExpectNothing(pier.m_PileForces, 0, 0);
    ExpectNothing(pier.m_PileDc, 0, 0);
}

TEST(SectionMaxima, WithoutCombinationsEverySlotHoldsAllCases) {
    CPier pier = MakePiles(1, 1, 2, 2);
    pier.m_bCombinations = false;
    SetClass(pier, 0, 1);
    SetForce(pier, 1, 0, kEndI, kAxial, 8.0F);
    pier.ComputePileForces();
    EXPECT_EQ(pier.m_PileForces.At(0, 0, kMaxAxial), RecordAt(1, 0, 0, 0, kEndI));
    EXPECT_EQ(pier.m_PileForces.At(0, 1, kMaxAxial), RecordAt(1, 0, 0, 0, kEndI));
    EXPECT_EQ(pier.m_PileForces.At(0, 1, kMinAxial), RecordAt(0, 0, 0, 0, kEndJ));
}

TEST(SectionMaxima, SectionsAndClassesOutsideTheTablesAreLeftOut) {
    CPier pier = MakePiles(1, 4, 2, 2);
    pier.Element(0).m_nSection = std::numeric_limits<int>::min();
    pier.Element(1).m_nSection = -1;
    pier.Element(2).m_nSection = 4;
    pier.Element(3).m_nSection = std::numeric_limits<int>::max();
    pier.ComputePileForces();
    for (int section = 0; section < 3; ++section) ExpectNothing(pier.m_PileForces, section, 0);
    pier.Element(2).m_nSection = 3;
    SetClass(pier, 0, -1);
    SetClass(pier, 1, 2);
    pier.ComputePileForces();
    for (int slot = 0; slot < 2; ++slot) ExpectNothing(pier.m_PileForces, 2, slot);
}

TEST(SectionMaxima, EmptyPiersAreSearchedInPeace) {
    CPier bare;
    bare.ComputePileDemandCapacity();
    bare.ComputeColumnDemandCapacity();
    bare.ComputePileForces();
    bare.ComputeColumnForces();
    bare.ComputeExtraMemberForces();
    EXPECT_EQ(bare.m_PileForces.Sections(), 0);
    CPier noCases = MakePiles(1, 1, 0);
    noCases.ComputePileForces();
    ExpectNothing(noCases.m_PileForces, 0, 0);
}

TEST(SectionMaxima, ChecksAnswerForTheirOwnFamily) {
    CPier pier = MakePiles(1, 1, 1);
    pier.m_bPileForcesFinite = false;
    EXPECT_FALSE(pier.CheckPileDemandCapacityData());
    EXPECT_FALSE(pier.CheckPileForceData());
    EXPECT_TRUE(pier.CheckColumnDemandCapacityData());
    EXPECT_TRUE(pier.CheckColumnForceData());
    EXPECT_TRUE(pier.CheckExtraMemberForceData());
    pier.m_bPileForcesFinite = true;
    pier.m_bColumnForcesFinite = false;
    EXPECT_TRUE(pier.CheckPileForceData());
    EXPECT_FALSE(pier.CheckColumnDemandCapacityData());
    EXPECT_FALSE(pier.CheckColumnForceData());
    pier.m_bColumnForcesFinite = true;
    pier.m_bXMemberForcesFinite = false;
    EXPECT_TRUE(pier.CheckColumnForceData());
    EXPECT_FALSE(pier.CheckExtraMemberForceData());
}

}  // namespace
