// SPDX-License-Identifier: MIT
// The lists of sections along a cap, and their order with the bearings.
#include <gmock/gmock.h>

#include "support/Searches.h"

namespace lumerin {

using testing::ElementsAre;

namespace {

NextPoint NextShearPoint(const SearchedCap& model, int support, int bearing) {
    return NextCapPoint(model.results.shearSupportX, support, model.pier.m_BearingX, bearing);
}
NextPoint NextMomentPoint(const SearchedCap& model, int support, int bearing) {
    return NextCapPoint(model.results.momentSupportX, support, model.pier.m_BearingX, bearing);
}

}  // namespace

TEST(CapPoints, OneSupportWithoutCantileversHasItsCentrelineAlone) {
    CapShape shape = TwoColumnsWithoutCantilevers();
    shape.supports = 1;
    shape.x = {10};
    SearchedCap model(shape);
    model.ComputeShear();
    model.ComputeMoment();
    EXPECT_TRUE(model.results.shearSupportX.empty());
    EXPECT_THAT(model.results.momentSupportX, ElementsAre(10));
}

TEST(CapPoints, SupportsComeBeforeBearingsAtTheSameX) {
    CapShape shape = TwoColumns();
    shape.width = 10;               // faces at 5 15 25 35
    shape.bearingNodes = {{7, 8}};  // 5 20
    SearchedCap model(shape);
    model.ComputeShear();
    model.ComputeMoment();
    EXPECT_THAT(model.results.shearPointX, ElementsAre(5, 5, 5, 10, 10, 15, 20, 20, 25, 30, 30, 35));
    EXPECT_THAT(model.results.momentPointX, ElementsAre(5, 5, 10, 15, 20, 25, 30, 35));
    EXPECT_EQ(NextShearPoint(model, 0, 0), NextPoint::support);  // the face at 5 before the bearing at 5
    EXPECT_EQ(NextShearPoint(model, 1, 0), NextPoint::bearing);  // 5 before 10
    EXPECT_EQ(NextShearPoint(model, 8, 1), NextPoint::bearing);  // supports have run out
    EXPECT_EQ(NextShearPoint(model, 8, 2), NextPoint::nothing);
    EXPECT_EQ(NextMomentPoint(model, 5, 2), NextPoint::support);  // bearings have run out
}

TEST(CapPoints, RebuildingGivesTheSameLists) {
    SearchedCap model(TwoColumns());
    model.ComputeShear();
    const std::vector<double> first = model.results.shearPointX;
    model.ComputeShear();
    EXPECT_EQ(model.results.shearPointX, first);
    EXPECT_THAT(model.results.shearSupportX, ElementsAre(8, 10, 10, 12, 28, 30, 30, 32));
}

TEST(CapPoints, WithoutCantileversTheShearListDropsTheLastCentreline) {
    SearchedCap model(TwoColumnsWithoutCantilevers());
    model.ComputeShear();
    // Six locations exist: 1 LCL, 1 RCL, 1 RF, 2 LF, 2 LCL, 2 RCL; the list has four entries.
    EXPECT_THAT(model.results.shearSupportX, ElementsAre(10, 10, 12, 28));
    EXPECT_EQ(model.results.shearSupportList[3].m_nSupport, 1);
    EXPECT_EQ(model.results.shearSupportList[3].m_nKind, 0);
    EXPECT_EQ(model.results.shearPointX.size(), 4U);
}

TEST(CapPoints, CantileverShorterThanTheFaceLeavesTrailingZeros) {
    CapShape shape = TwoColumns();
    shape.width = 22;  // the left face would be at -1, left of the tip at 0; the right one at 41, past 40
    SearchedCap model(shape);
    EXPECT_FALSE(model.pier.IsShearSection(0, 0));
    EXPECT_FALSE(model.pier.IsShearSection(1, 3));
    EXPECT_TRUE(model.pier.IsShearSection(0, 3));
    model.ComputeShear();
    model.ComputeMoment();
    EXPECT_THAT(model.results.shearSupportX, ElementsAre(10, 10, 21, 19, 30, 30, 0, 0));
    EXPECT_THAT(model.results.momentSupportX, ElementsAre(10, 21, 19, 30, 0, 0));
    EXPECT_EQ(model.results.momentSupportList[5].m_nSupport, 0);
    EXPECT_EQ(model.results.momentSupportList[5].m_nKind, 0);
    // The unused entries at 0 come last in the walk, because supports are taken in list order.
    EXPECT_THAT(model.results.momentPointX, ElementsAre(10, 21, 19, 30, 0, 0));
}

TEST(CapPoints, MastKeepsItsTablesEmpty) {
    CapShape shape = TwoColumns();
    shape.type = kTypeMast;
    shape.bearingNodes = {{6}};
    SearchedCap model(shape);
    model.ComputeShear();
    model.ComputeMoment();
    EXPECT_EQ(model.pier.m_nCapShearPoints, 0);
    EXPECT_EQ(model.pier.m_nCapMomentPoints, 0);
    EXPECT_TRUE(model.results.shearSupports.Entries().empty());
    EXPECT_TRUE(model.results.momentBearings.Entries().empty());
    EXPECT_EQ(NextShearPoint(model, 0, 0), NextPoint::nothing);
    EXPECT_TRUE(model.IsValid(kTableCapShear));
}

TEST(CapPoints, CountsThatTheModelDoesNotHoldAreSearchedWithinIt) {
    SearchedCap model(TwoColumns());
    model.pier.m_nColumns = 1 << 30;
    model.pier.m_nSpanNodes = 1 << 30;
    model.pier.m_nCantileverNodes = 1 << 30;
    model.pier.BuildCapGeometry();
    model.Clear();
    EXPECT_LE(model.pier.m_CapPointX.size(), 7U);
    EXPECT_EQ(model.pier.m_nCapShearSupports, 8);
    model.ComputeShear();
    model.ComputeMoment();
    model.pier.m_nSpanNodes = -5;
    model.pier.m_nColumnNodes = -9;
    model.pier.m_nCantileverNodes = -7;
    model.pier.BuildCapGeometry();
    model.Clear();
    model.ComputeShear();
    model.ComputeMoment();
    EXPECT_LE(model.pier.m_CapPointX.size(), 7U);
}

TEST(CapPoints, SingleColumnHasNoRightFaceInTheMomentList) {
    CapShape shape;
    shape.supports = 1;
    shape.foundationNodes = 0;
    shape.x = {0, 5, 10, 15, 20};
    SearchedCap model(shape);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentSupportX, (std::vector<double>{8, 10, 0}));
}

}  // namespace lumerin
