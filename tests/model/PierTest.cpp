// A substructure's members, forces, selection and result tables.
#include "model/Pier.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

CPier Allocated(const CMemberCounts& counts, int cases) {
    CPier pier;
    pier.AllocateMembers(counts, cases);
    return pier;
}

CMemberCounts AllMembers() {
    CMemberCounts counts;
    counts.piles = 2;
    counts.pileNodes = 4;
    counts.columns = 2;
    counts.columnNodes = 1;
    counts.spanElements = 5;
    counts.cantileverElements = 3;
    counts.extraMembers = 2;
    return counts;
}

TEST(NewPier, HasTheStartValues) {
    const CPier pier;
    EXPECT_EQ(pier.m_nCodeFamily, -1);
    EXPECT_EQ(pier.m_nFirstOfClass, (std::array{-1, -1, -1, -1}));
    EXPECT_EQ(pier.m_nXMemberElements, 1);
    EXPECT_FALSE(pier.m_bCombinations);
    EXPECT_EQ(pier.m_nLoadCases, 0);
    EXPECT_EQ(pier.m_dLocationX, 0.0);
    EXPECT_TRUE(pier.m_LoadCases.empty());
    EXPECT_TRUE(pier.m_ppMaxTension.empty());
}

TEST(NewLoadCase, IsNamedNone) {
    const CLoadCase loadCase;
    EXPECT_EQ(loadCase.m_sName, "none");
    EXPECT_EQ(loadCase.m_sLimitState, "none");
    EXPECT_EQ(loadCase.m_nNumber, 0);
    EXPECT_EQ(loadCase.m_nLimitClass, 0);
}

// A load that fails early leaves such a substructure behind.
TEST(NewPier, DiesInPeaceWithoutLoadCases) {
    CPier pier = Allocated({}, 0);
    EXPECT_EQ(pier.ElementCount(), 0);
    pier.AllocateCaseSelection(0);
    pier.SelectAllCases();
    pier.AllocateResultTables();
    EXPECT_EQ(pier.m_PileForces.Sections(), 0);
}

TEST(Members, StandInTheElementListOneBehindTheOther) {
    const CPier pier = Allocated(AllMembers(), 1);
    // piles 0-2, 3-5; columns 6-7, 8-9; left cantilever 10-12; spans 13-17; right 18-20; extra 21, 22
    EXPECT_EQ(pier.ElementCount(), 23);
    EXPECT_EQ(pier.PileElement(0, 0), 0);
    EXPECT_EQ(pier.PileElement(1, 2), 5);
    EXPECT_EQ(pier.m_Piles[1].m_nNodes, 4);
    EXPECT_EQ(pier.m_Piles[1].m_nElements, 3);
    EXPECT_EQ(pier.ColumnElement(1, 0), 8);
    EXPECT_EQ(pier.m_Frame.m_Columns[1].m_nElements, 2);
    EXPECT_EQ(pier.m_Frame.m_Cantilevers[0].m_nFirstElement, 10);
    EXPECT_EQ(pier.m_Frame.m_Beam.m_nFirstElement, 13);
    EXPECT_EQ(pier.m_Frame.m_Beam.m_nElements, 5);
    EXPECT_EQ(pier.m_Frame.m_Cantilevers[1].m_nFirstElement, 18);
    EXPECT_EQ(pier.m_Frame.m_XMembers[1].m_nFirstElement, 22);
    EXPECT_EQ(pier.m_Frame.m_XMembers[1].m_nElements, 1);
}

TEST(Members, APileOfTwoNodesHasOneElementThatIsHeadAndTip) {
    CMemberCounts counts;
    counts.piles = 1;
    counts.pileNodes = 2;
    const CPier pier = Allocated(counts, 1);
    EXPECT_EQ(pier.m_Piles[0].m_nElements, 1);
    EXPECT_EQ(pier.ElementCount(), 1);
}

TEST(Members, AColumnWithoutInteriorNodesHasAnElementAndACountOfNone) {
    CMemberCounts counts;
    counts.columns = 2;
    const CPier pier = Allocated(counts, 1);
    EXPECT_EQ(pier.ElementCount(), 2);
    EXPECT_EQ(pier.m_Frame.m_Columns[1].m_nFirstElement, 1);
    EXPECT_EQ(pier.m_Frame.m_Columns[1].m_nElements, 0);
}

TEST(Members, CountsBelowZeroCountAsZero) {
    CMemberCounts counts;
    counts.piles = counts.columns = counts.spanElements = -3;
    counts.pileNodes = counts.columnNodes = counts.cantileverElements = counts.extraMembers = -1;
    const CPier pier = Allocated(counts, -2);
    EXPECT_EQ(pier.ElementCount(), 0);
    EXPECT_EQ(pier.m_nLoadCases, 0);
    EXPECT_EQ(pier.m_Frame.m_Beam.m_nElements, 0);
}

TEST(Forces, StartAtZeroAndBelongToOneCaseAndElement) {
    CPier pier = Allocated(AllMembers(), 3);
    for (int c = 0; c < 3; ++c) {
        for (int e = 0; e < pier.ElementCount(); ++e) {
            EXPECT_TRUE(std::ranges::all_of(pier.Forces(c, e), [](float f) { return f == 0.0F; }));
            pier.MutableForces(c, e)[0] = static_cast<float>(100 * c + e);
            pier.MutableForces(c, e)[13] = static_cast<float>(-100 * c - e);
        }
    }
    for (int c = 0; c < 3; ++c) {
        for (int e = 0; e < pier.ElementCount(); ++e) {
            EXPECT_EQ(GetForce(pier.Forces(c, e), kEndI, kAxial), 100 * c + e);
            EXPECT_EQ(GetForce(pier.Forces(c, e), kEndJ, kDemandCapacity), -100 * c - e);
        }
    }
    EXPECT_EQ(pier.Forces(0, 1).data() - pier.Forces(0, 0).data(), 14);
    EXPECT_EQ(pier.Forces(1, 0).data() - pier.Forces(0, 22).data(), 14);
}

TEST(Forces, AreFoundByComponentAndEnd) {
    std::array<float, kForcesPerElement> forces{};
    for (std::size_t i = 0; i < forces.size(); ++i) forces[i] = static_cast<float>(i + 1);
    for (int component = 0; component < 7; ++component) {
        EXPECT_EQ(GetForce(forces, kEndI, component), component + 1);
        EXPECT_EQ(GetForce(forces, kEndJ, component), component + 8);
    }
}

TEST(Forces, OfAnUnknownComponentOrEndAreZero) {
    std::array<float, kForcesPerElement> forces;
    forces.fill(5.0F);
    EXPECT_EQ(GetForce(forces, kEndI, 7), 0.0);
    EXPECT_EQ(GetForce(forces, kEndI, -1), 0.0);
    EXPECT_EQ(GetForce(forces, kInsideElement, 0), 0.0);
    EXPECT_EQ(GetForce(forces, -1, 0), 0.0);
}

TEST(Sections, AreCollectedInOrderOfFirstAppearance) {
    CMemberCounts counts;
    counts.piles = 2;
    counts.pileNodes = 7;
    CPier pier = Allocated(counts, 1);
    const int sections[] = {3, 3, 1, 3, 2, 1};
    for (int e = 0; e < 6; ++e) pier.Element(pier.PileElement(1, e)).m_nSection = sections[e];
    EXPECT_EQ(pier.CollectSections(pier.m_Piles[1]), (std::vector{3, 1, 2}));
    EXPECT_EQ(pier.CollectSections(pier.m_Piles[0]), (std::vector{0}));
    EXPECT_EQ(pier.CollectSections(CPile{}), std::vector<int>{});
}

TEST(Sections, DataAndMaskBelongToTheFramesElements) {
    CPier pier = Allocated(AllMembers(), 1);
    pier.SectionData(6).m_dWidth = 36.0;
    pier.SectionData(22).m_dWidth = 48.0;
    EXPECT_EQ(pier.SectionData(6).m_dWidth, 36.0);
    EXPECT_EQ(pier.SectionData(22).m_dWidth, 48.0);
    EXPECT_ANY_THROW(pier.SectionData(23));
    EXPECT_ANY_THROW(pier.SectionData(5));  // a pile's
    pier.SetMasked(10, true);
    EXPECT_TRUE(pier.IsMasked(10));
    EXPECT_FALSE(pier.IsMasked(11));
    EXPECT_FALSE(pier.IsMasked(0));
    EXPECT_FALSE(pier.IsMasked(23));
    pier.SetMasked(10, false);
    EXPECT_FALSE(pier.IsMasked(10));
    // The frame's first and last element, and their neighbours that are none of the frame's.
    pier.SetMasked(6, true);
    pier.SetMasked(22, true);
    EXPECT_TRUE(pier.IsMasked(6));
    EXPECT_FALSE(pier.IsMasked(5));
    EXPECT_FALSE(pier.IsMasked(7));
    EXPECT_TRUE(pier.IsMasked(22));
    EXPECT_FALSE(pier.IsMasked(23));
}

TEST(RecordElements, AreFoundByFamily) {
    CPier pier = Allocated(AllMembers(), 1);
    pier.m_nColumnNodes = 1;
    EXPECT_EQ(pier.FindElement(CPier::kPileFamily, 1, 2), 5);
    EXPECT_EQ(pier.FindElement(CPier::kColumnFamily, 1, 1), 9);
    EXPECT_EQ(pier.FindElement(CPier::kXMemberFamily, 1, 0), 22);
}

TEST(RecordElements, ThatDoNotExistAreNotFound) {
    CPier pier = Allocated(AllMembers(), 1);
    pier.m_nColumnNodes = 1;
    for (const auto family : {CPier::kPileFamily, CPier::kColumnFamily, CPier::kXMemberFamily}) {
        EXPECT_EQ(pier.FindElement(family, -1, 0), -1);
        EXPECT_EQ(pier.FindElement(family, 0, -1), -1);
        EXPECT_EQ(pier.FindElement(family, 2, 0), -1);
        EXPECT_EQ(pier.FindElement(family, 0, 3), -1);
    }
    const CPier bare;  // a record of zeros points at no element here
    EXPECT_EQ(bare.FindElement(CPier::kColumnFamily, 0, 0), -1);
}

TEST(RecordElements, OfAColumnWithoutInteriorNodesAreFound) {
    CMemberCounts counts;
    counts.columns = 1;
    const CPier pier = Allocated(counts, 1);
    EXPECT_EQ(pier.FindElement(CPier::kColumnFamily, 0, 0), 0);
    EXPECT_EQ(pier.FindElement(CPier::kColumnFamily, 0, 1), -1);
}

TEST(CaseSelection, CanBeSetCaseByCase) {
    CPier pier;
    pier.AllocateCaseSelection(3);
    EXPECT_FALSE(pier.IsCaseSelected(0));
    pier.SelectAllCases();
    pier.SetCaseSelected(1, false);
    EXPECT_TRUE(pier.IsCaseSelected(0));
    EXPECT_FALSE(pier.IsCaseSelected(1));
    EXPECT_TRUE(pier.IsCaseSelected(2));
}

TEST(CaseSelection, OutsideTheCasesIsNothing) {
    CPier pier;
    pier.AllocateCaseSelection(2);
    pier.SetCaseSelected(2, true);
    pier.SetCaseSelected(-1, true);
    EXPECT_FALSE(pier.IsCaseSelected(2));
    EXPECT_FALSE(pier.IsCaseSelected(-1));
    pier.AllocateCaseSelection(-4);
    EXPECT_FALSE(pier.IsCaseSelected(0));
}

TEST(CaseSelection, ACaseTakesPartInItsClassOrWithoutCombinationsInAll) {
    CPier pier = Allocated({}, 2);
    pier.AllocateCaseSelection(2);
    pier.SetCaseSelected(0, true);
    pier.m_LoadCases[0].m_nLimitClass = 2;
    EXPECT_TRUE(pier.TakesPart(0, 0));
    EXPECT_FALSE(pier.TakesPart(1, 0));
    pier.m_bCombinations = true;
    EXPECT_FALSE(pier.TakesPart(0, 0));
    EXPECT_TRUE(pier.TakesPart(0, 2));
}

CPier WithClasses(int family, std::initializer_list<int> classes) {
    CPier pier;
    pier.m_nCodeFamily = family;
    for (const int limitClass : classes) pier.m_nFirstOfClass[static_cast<std::size_t>(limitClass)] = 5;
    return pier;
}

TEST(LimitClasses, AreComparedWithTheChosenSet) {
    EXPECT_TRUE(WithClasses(0, {3}).HasOnlyLimitClasses(-1, -1, -1, 3));
    EXPECT_FALSE(WithClasses(0, {0, 3}).HasOnlyLimitClasses(-1, -1, -1, 3));
    EXPECT_FALSE(WithClasses(0, {}).HasOnlyLimitClasses(-1, -1, -1, 3));
    EXPECT_TRUE(WithClasses(0, {0, 2}).HasOnlyLimitClasses(0, -1, 2, -1));
    EXPECT_FALSE(WithClasses(0, {0, 2}).HasOnlyLimitClasses(0, 1, 2, -1));
    EXPECT_TRUE(WithClasses(0, {}).HasOnlyLimitClasses(-1, -1, -1, -1));
    // Any value but its own number demands the absence of the class.
    EXPECT_TRUE(WithClasses(0, {1}).HasOnlyLimitClasses(3, 1, 0, 0));
}

TEST(LimitClasses, AreNeverOnlyTheChosenSetInFamiliesWithoutThem) {
    for (const int family : {-1, 1, 2}) {
        EXPECT_FALSE(WithClasses(family, {3}).HasOnlyLimitClasses(-1, -1, -1, 3)) << family;
    }
    EXPECT_TRUE(WithClasses(3, {}).HasOnlyLimitClasses(-1, -1, -1, 3));
    EXPECT_TRUE(WithClasses(-2, {0}).HasOnlyLimitClasses(-1, -1, -1, 3));
}

TEST(LimitClasses, ArePresentWithAFirstCase) {
    const CPier pier = WithClasses(0, {1});
    EXPECT_TRUE(pier.IsClassPresent(1));
    EXPECT_FALSE(pier.IsClassPresent(0));
    EXPECT_FALSE(pier.IsClassPresent(-1));
    EXPECT_FALSE(pier.IsClassPresent(4));
}

TEST(ResultTables, HaveTheSlotsOfTheFamily) {
    for (const auto& [family, slots] :
         std::initializer_list<std::pair<int, int>>{{-1, 1}, {0, 4}, {1, 1}, {2, 2}, {3, 1}}) {
        CPier pier;
        pier.m_nCodeFamily = family;
        EXPECT_EQ(pier.SlotCount(), slots) << family;
    }
}

TEST(ResultTables, AreSizedBySectionsSlotsAndExtremesAndHoldZeros) {
    CPier pier = Allocated(AllMembers(), 1);
    pier.m_nStructureType = 4;
    pier.m_nCodeFamily = 2;
    pier.m_nPileSections = 3;
    pier.m_nColumnSections = 1;
    pier.m_nXMemberSections = 2;
    pier.AllocateResultTables();
    EXPECT_EQ(pier.m_ppMaxTension, (std::vector<std::vector<int>>{{0, 0}, {0, 0}}));
    EXPECT_EQ(pier.m_ppMaxCompression, pier.m_ppMaxTension);
    EXPECT_EQ(pier.m_PileDc.Sections(), 3);
    EXPECT_EQ(pier.m_PileDc.Slots(), 2);
    EXPECT_EQ(pier.m_PileDc.Extremes(), 1);
    EXPECT_EQ(pier.m_ColumnDc.Sections(), 1);
    EXPECT_EQ(pier.m_PileForces.Extremes(), 13);
    EXPECT_EQ(pier.m_ColumnForces.Sections(), 1);
    EXPECT_EQ(pier.m_XMemberForces.Sections(), 2);
    EXPECT_EQ(pier.m_XMemberForces.At(1, 1, 12), CMaxRecord{});
    EXPECT_EQ(pier.m_ShearSupports.Positions(), 0);  // no cap
}

TEST(ResultTables, KeepTheirEntriesApartAndTheirBounds) {
    CRecordTable table;
    table.Allocate(2, 3, 13);
    int next = 0;
    for (int section = 0; section < 2; ++section) {
        for (int slot = 0; slot < 3; ++slot) {
            for (int extreme = 0; extreme < 13; ++extreme) table.At(section, slot, extreme).m_nNode = ++next;
        }
    }
    EXPECT_EQ(table.At(0, 0, 0).m_nNode, 1);
    EXPECT_EQ(table.At(0, 2, 12).m_nNode, 39);
    EXPECT_EQ(table.At(1, 2, 12).m_nNode, 78);
    EXPECT_ANY_THROW(table.At(2, 0, 0));
    EXPECT_ANY_THROW(table.At(-1, 0, 0));
    table.Allocate(1, 1, 1);
    EXPECT_EQ(table.At(0, 0).m_nNode, 0);
}

}  // namespace
