// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "support/CapModel.h"

namespace lumerin {

using testing::ElementsAre;

namespace {

std::vector<std::vector<int>> Locations(const std::vector<CBearingLocation>& list) {
    std::vector<std::vector<int>> rows;
    for (const CBearingLocation& b : list) {
        rows.push_back({b.m_nBearing, b.m_nRowCode, b.m_bElementStarts ? 1 : 0, b.m_bElementEnds ? 1 : 0});
    }
    return rows;
}

using Row = std::vector<int>;

}  // namespace

TEST(CapGeometry, PierCapPointsRunFromTipToTip) {
    const CapModel model(TwoColumns());
    EXPECT_THAT(model.pier.m_CapPointX, ElementsAre(0, 5, 10, 20, 30, 35, 40));
    // Column 1 is nodes 3 4 5, the left cantilever 6 7, the span 8, column 2 9 10 11, the right cantilever
    // 12 13.
    EXPECT_THAT(model.pier.m_CapPointNode, ElementsAre(6, 7, 5, 8, 11, 12, 13));
    EXPECT_EQ(model.nodes, model.pier.m_CapPointNode);
}

TEST(CapGeometry, BentCapPointsTakePileHeadsFromTheListsStart) {
    const CapModel model(TwoPileBent());
    EXPECT_THAT(model.pier.m_CapPointX, ElementsAre(0, 5, 10, 20, 30, 35, 40));
    EXPECT_THAT(model.pier.m_CapPointNode, ElementsAre(3, 4, 1, 5, 2, 6, 7));
}

TEST(CapGeometry, SizesGoByTheNumberOfSupports) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{6, 8, 13}};
    const CapModel with(shape);
    EXPECT_EQ(with.pier.m_nCapMomentSupports, 6);
    EXPECT_EQ(with.pier.m_nCapShearSupports, 8);
    EXPECT_EQ(with.pier.m_nCapBearings, 3);
    EXPECT_EQ(with.pier.m_nMaxRowBearings, 3);
    EXPECT_EQ(with.pier.m_nCapMomentPoints, 9);
    EXPECT_EQ(with.pier.m_nCapShearPoints, 14);

    const CapModel without(TwoColumnsWithoutCantilevers());
    EXPECT_EQ(without.pier.m_nCapMomentSupports, 4);
    EXPECT_EQ(without.pier.m_nCapShearSupports, 4);
    EXPECT_THAT(without.pier.m_CapPointX, ElementsAre(10, 20, 30));
}

TEST(CapGeometry, OneSupportWithoutCantileversHasNoShearEntries) {
    CapShape shape = TwoColumnsWithoutCantilevers();
    shape.supports = 1;
    shape.x = {10};
    const CapModel model(shape);
    EXPECT_EQ(model.pier.m_nCapShearSupports, 0);
    EXPECT_EQ(model.pier.m_nCapMomentSupports, 1);
}

TEST(CapGeometry, MastHasNoSections) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{6}};
    CapModel model(shape);
    EXPECT_EQ(model.pier.m_nCapShearPoints, 10);
    EXPECT_EQ(model.pier.m_nCapMomentPoints, 7);
    model.pier.m_nStructureType = kTypeMast;
    model.pier.BuildCapGeometry();
    EXPECT_EQ(model.pier.m_nCapShearPoints, 0);
    EXPECT_EQ(model.pier.m_nCapMomentPoints, 0);
    EXPECT_TRUE(model.pier.m_CapPointX.empty());
    EXPECT_TRUE(model.pier.m_BearingX.empty());
}

TEST(CapGeometry, CountsThatTheModelDoesNotHoldAllocateNothing) {
    CapModel model(TwoColumns());
    model.pier.m_nColumns = 1 << 30;
    model.pier.m_nSpanNodes = 1 << 30;
    model.pier.m_nCantileverNodes = 1 << 30;
    model.pier.BuildCapGeometry();
    EXPECT_LE(model.pier.m_CapPointX.size(), 7U);
    EXPECT_EQ(model.pier.m_nCapShearSupports, 8);
    model.pier.m_nSpanNodes = -5;
    model.pier.m_nColumnNodes = -9;
    model.pier.m_nCantileverNodes = -7;
    model.pier.BuildCapGeometry();
    EXPECT_LE(model.pier.m_CapPointX.size(), 7U);
}

TEST(CapBearings, OneRowKeepsItsOwnOrderWithCode2) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{8, 6, 13, 99}};
    const CapModel model(shape);
    // Node 6 is the left tip: an element starts there, none ends. Node 13 is the right tip. 99 is off the
    // cap.
    EXPECT_THAT(Locations(model.pier.m_BearingList),
                ElementsAre(Row{0, 2, 1, 1}, Row{1, 2, 1, 0}, Row{2, 2, 0, 1}, Row{3, 2, 0, 0}));
    EXPECT_THAT(model.pier.m_BearingX, ElementsAre(20, 0, 40, 0));
}

TEST(CapBearings, TwoRowsMergeByXAndShareAnEntryAtEqualX) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{7, 8}, {6, 8, 12}};  // x 5 20 and 0 20 35
    const CapModel model(shape);
    EXPECT_EQ(model.pier.m_nCapBearings, 4);
    EXPECT_EQ(model.pier.m_nMaxRowBearings, 3);
    EXPECT_THAT(Locations(model.pier.m_BearingList),
                ElementsAre(Row{0, 1, 1, 0}, Row{0, 0, 1, 1}, Row{1, 3, 1, 1}, Row{2, 1, 1, 1}));
    EXPECT_THAT(model.pier.m_BearingX, ElementsAre(0, 5, 20, 35));
}

TEST(CapBearings, EqualXOnDifferentNodesLeavesAnUnusedEntry) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{5}, {4}};  // the top of column 1 and the node below it: both at x 10
    const CapModel model(shape);
    // The length counts nodes, the merge compares x: two places for one entry, the second keeps zeros.
    EXPECT_EQ(model.pier.m_nCapBearings, 2);
    EXPECT_THAT(Locations(model.pier.m_BearingList), ElementsAre(Row{0, 3, 1, 1}, Row{0, 0, 0, 0}));
    EXPECT_THAT(model.pier.m_BearingX, ElementsAre(10, 0));
}

TEST(CapBearings, ListNeverGrowsPastItsLength) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{12, 6},
                          {6, 12}};  // left row 35 0, right row 0 35: no pair of cursors meets at first
    const CapModel model(shape);
    // Every node of the right row is one of the left, so the length is 2; the merge wants three: the right
    // bearing at 0, both at 35, the left one at 0.
    EXPECT_EQ(model.pier.m_nCapBearings, 2);
    EXPECT_THAT(Locations(model.pier.m_BearingList), ElementsAre(Row{0, 1, 1, 0}, Row{0, 3, 1, 1}));
}

}  // namespace lumerin
