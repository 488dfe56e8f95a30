// SPDX-License-Identifier: MIT
// A substructure's members, forces and limit classes.
#include "model/Pier.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/Model.h"

namespace lumerin {

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
    EXPECT_EQ(pier.m_nXMemberElements, 1);
    EXPECT_FALSE(pier.m_bCombinations);
    EXPECT_EQ(pier.m_nLoadCases, 0);
    EXPECT_EQ(pier.m_dLocationX, 0.0);
    EXPECT_TRUE(pier.m_LoadCases.empty());
}

TEST(NewLoadCase, IsNamedNone) {
    const CLoadCase loadCase;
    EXPECT_EQ(loadCase.m_sName, "none");
    EXPECT_EQ(loadCase.m_sLimitState, "none");
    EXPECT_EQ(loadCase.m_nNumber, 0);
    EXPECT_EQ(loadCase.m_nLimitClass, 0);
}

// A load that fails early leaves such a substructure.
TEST(NewPier, DiesInPeaceWithoutLoadCases) {
    CPier pier = Allocated({}, 0);
    EXPECT_EQ(pier.ElementCount(), 0);
    pier.BuildCapGeometry();
    EXPECT_EQ(pier.m_nCapShearPoints, 0);
}

TEST(Members, FollowOneAnotherInTheElementList) {
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

TEST(Members, ThatAreNotCountedAreNone) {
    const CPier pier = Allocated({}, 0);
    EXPECT_TRUE(pier.m_Piles.empty());
    EXPECT_TRUE(pier.m_Frame.m_Columns.empty());
    EXPECT_TRUE(pier.m_Frame.m_XMembers.empty());
    EXPECT_EQ(pier.m_Frame.m_Cantilevers[0].m_nElements, 0);
    EXPECT_EQ(pier.m_Frame.m_Beam.m_nElements, 0);
    EXPECT_EQ(pier.m_Frame.m_Cantilevers[1].m_nElements, 0);
    // A pile without a count of nodes has no element.
    CMemberCounts onePile;
    onePile.piles = 1;
    EXPECT_EQ(Allocated(onePile, 0).m_Piles.at(0).m_nNodes, 0);
    EXPECT_EQ(Allocated(onePile, 0).ElementCount(), 0);
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
    // The frame's first and last element, and their neighbours outside the frame.
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
    EXPECT_EQ(pier.FindElement(kPileFamily, 1, 2), 5);
    EXPECT_EQ(pier.FindElement(kColumnFamily, 1, 1), 9);
    EXPECT_EQ(pier.FindElement(kXMemberFamily, 1, 0), 22);
}

TEST(RecordElements, ThatDoNotExistAreNotFound) {
    CPier pier = Allocated(AllMembers(), 1);
    pier.m_nColumnNodes = 1;
    for (const auto family : {kPileFamily, kColumnFamily, kXMemberFamily}) {
        EXPECT_EQ(pier.FindElement(family, -1, 0), -1);
        EXPECT_EQ(pier.FindElement(family, 0, -1), -1);
        EXPECT_EQ(pier.FindElement(family, 2, 0), -1);
        EXPECT_EQ(pier.FindElement(family, 0, 3), -1);
    }
    const CPier bare;  // a record of zeros points at no element here
    EXPECT_EQ(bare.FindElement(kColumnFamily, 0, 0), -1);
}

TEST(RecordElements, OfAColumnWithoutInteriorNodesAreFound) {
    CMemberCounts counts;
    counts.columns = 1;
    const CPier pier = Allocated(counts, 1);
    EXPECT_EQ(pier.FindElement(kColumnFamily, 0, 0), 0);
    EXPECT_EQ(pier.FindElement(kColumnFamily, 0, 1), -1);
}

// A substructure of a design family, and whether the classes of a selection are exactly the given set.
class WithClasses {
  public:
    WithClasses(int family, const std::vector<int>& classes) : m_selection(SelectionWithClasses(classes)) {
        m_pier.m_nCodeFamily = CodeFamily{family};
    }
    bool HasOnlyLimitClasses(int a, int b, int c, int d) const {
        return m_pier.HasOnlyLimitClasses(m_selection, a, b, c, d);
    }

  private:
    CPier m_pier;
    CaseSelection m_selection;
};

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

TEST(LimitClasses, HaveTheSlotsOfTheFamily) {
    for (const auto& [family, slots] :
         std::initializer_list<std::pair<int, int>>{{-1, 1}, {0, 4}, {1, 1}, {2, 2}, {3, 1}}) {
        CPier pier;
        pier.m_nCodeFamily = CodeFamily{family};
        EXPECT_EQ(pier.SlotCount(), slots) << family;
    }
}

}  // namespace

}  // namespace lumerin
