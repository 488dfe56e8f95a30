// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "support/Searches.h"

namespace lumerin {

namespace {

constexpr int kLeftFace = 0, kCentre = 1, kRightFace = 2;
// Moments and ratios of the two elements at the first column's top, node 5: element 22 ends there, 23 starts.
void SetAtTop(SearchedCap& model, int loadCase, float leftMoment, float leftRatio, float rightMoment,
              float rightRatio) {
    model.Set(loadCase, 1, kM33, 0, leftMoment);
    model.Set(loadCase, 1, kDemandCapacity, 0, leftRatio);
    model.Set(loadCase, 2, kM33, rightMoment, 0);
    model.Set(loadCase, 2, kDemandCapacity, rightRatio, 0);
}

}  // namespace

TEST(CapMoment, CentrelineComparesBothElements) {
    CapShape shape = TwoColumns();
    shape.cases = 2;
    SearchedCap model(shape);
    SetAtTop(model, 0, 100, 0, 80, 0);
    SetAtTop(model, 1, -50, 0, -60, 0);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMax).record,
              CapRecord(0, 2, 1, 22, kEndJ, 5, kCapCantilever, 0));
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMin).record,
              CapRecord(1, 3, 0, 23, kEndI, 5, kCapSpan, 0));
    EXPECT_DOUBLE_EQ(model.results.momentSupports.At(0, 0, kCentre, kMin).values[kM33], -60);
}

TEST(CapMoment, EqualMomentsGoToTheCaseWithTheHigherRatio) {
    CapShape shape = TwoColumns();
    shape.cases = 4;
    SearchedCap model(shape);
    const float ratios[] = {0.5F, 0.9F, 0.9F, 0.7F};
    for (int c = 0; c < 4; ++c) SetAtTop(model, c, 10, ratios[c], -1000, 0);
    model.ComputeMoment();
    // Case 1 has the highest ratio, case 2 the same one later.
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMax).record.m_nLoadCase, 1);
}

TEST(CapMoment, EqualMomentsOfAMinimumGoToTheHigherRatioToo) {
    CapShape shape = TwoColumns();
    shape.cases = 2;
    SearchedCap model(shape);
    SetAtTop(model, 0, -10, 0.1F, 1000, 0);
    SetAtTop(model, 1, -10, 0.2F, 1000, 0);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMin).record.m_nLoadCase, 1);
}

TEST(CapMoment, EqualSidesGoToTheHigherRatioAndElseToTheRight) {
    CapShape shape = TwoColumns();
    shape.cases = 2;
    SearchedCap model(shape);
    SetAtTop(model, 0, 40, 0.9F, 10, 0);
    SetAtTop(model, 1, 10, 0, 40, 0.8F);
    model.ComputeMoment();
    // 40 on the left in case 0 with 0.9, 40 on the right in case 1 with 0.8.
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMax).record.m_nElementNumber, 22);
    SetAtTop(model, 1, 10, 0, 40, 0.9F);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMax).record,
              CapRecord(1, 3, 0, 23, kEndI, 5, kCapSpan, 0));
}

TEST(CapMoment, SideThatIsNoNumberIsDecidedByTheRatio) {
    SearchedCap model(TwoColumns());
    SetAtTop(model, 0, kNaN, 0.5F, 40, 0.4F);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMax).record.m_nElementNumber, 22);
    EXPECT_FALSE(model.IsValid(kTableCapMoment));
    SetAtTop(model, 0, kNaN, 0.4F, kNaN, 0.4F);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMin).record.m_nElementNumber, 23);
}

TEST(CapMoment, InsideAnElementTheMomentIsInterpolated) {
    CapShape shape = TwoColumns();
    shape.cases = 2;
    SearchedCap model(shape);
    model.Set(0, 3, kM33, 10, 60);  // element 24 from 20 to 30; left face of column 2 at 28, t 0.8
    model.Set(1, 3, kM33, 100, 0);
    model.ComputeMoment();
    const CCapEntry& maximum = model.results.momentSupports.At(1, 0, kLeftFace, kMax);
    EXPECT_EQ(maximum.record, CapRecord(0, 4, 1, 24, kInsideElement, 8, kCapSpan, 0, 11));
    EXPECT_DOUBLE_EQ(maximum.values[kM33], 50);  // 10 + 50 * 0.8
    const CCapEntry& minimum = model.results.momentSupports.At(1, 0, kLeftFace, kMin);
    EXPECT_EQ(minimum.record.m_nLoadCase, 1);
    EXPECT_DOUBLE_EQ(minimum.values[kM33], 100.0 - 100.0 * 0.8);
}

TEST(CapMoment, TieInsideAnElementGoesByTheInterpolatedRatio) {
    CapShape shape = TwoColumns();
    shape.cases = 2;
    SearchedCap model(shape);
    for (int c = 0; c < 2; ++c) model.Set(c, 3, kM33, 10, 10);
    model.Set(0, 3, kDemandCapacity, 1.0F, 0.0F);  // 0.2 at t 0.8
    model.Set(1, 3, kDemandCapacity, 0.0F, 0.5F);  // 0.4 there
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentSupports.At(1, 0, kLeftFace, kMax).record.m_nLoadCase, 1);
}

TEST(CapMoment, FaceOnANodeReportsOneNode) {
    CapShape shape = TwoColumns();
    shape.width = 10;  // right face of column 2 at 35, node 12
    SearchedCap model(shape);
    model.Set(0, 4, kM33, 0, 5);
    model.Set(0, 5, kM33, 4, 0);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentSupports.At(1, 0, kRightFace, kMax).record,
              CapRecord(0, 5, 0, 25, kEndJ, 12, kCapCantilever, 1));
    EXPECT_EQ(model.results.momentSupports.At(1, 0, kRightFace, kMin).record,
              CapRecord(0, 6, 1, 26, kEndI, 12, kCapCantilever, 1));
}

TEST(CapMoment, FatigueAloneHasItsSlot) {
    CapShape shape = TwoColumns();
    shape.family = kFamilyLrfd;
    shape.limitClasses = {kFatigue};
    SearchedCap model(shape);
    SetAtTop(model, 0, 7, 0, 5, 0);
    model.ComputeMoment();
    EXPECT_DOUBLE_EQ(model.results.momentSupports.At(0, 3, kCentre, kMax).values[kM33], 7);
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMax).record.m_nLoadCase, -1);
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMax).record.m_nMissing, 0);
}

TEST(CapMoment, WithoutCantileversTheLastCentrelineIsMissing) {
    SearchedCap model(TwoColumnsWithoutCantilevers());
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentSupportX, (std::vector<double>{10, 12, 28, 30}));
    // The search uses node 10, which no element has; the column's top is node 9.
    EXPECT_EQ(model.results.momentSupports.At(1, 0, kCentre, kMax).record,
              CapRecord(-1, 0, -1, 0, 0, 0, -1, -1, 0, 1));
    // The first column's centreline has an element on its right only.
    EXPECT_EQ(model.results.momentSupports.At(0, 0, kCentre, kMax).record.m_nElementNumber, 21);
}

TEST(CapMomentBearings, LastNodeOfACapWithoutCantileversHasTheLeftSideAlone) {
    CapShape shape = TwoColumnsWithoutCantilevers();
    shape.bearingNodes = {{9}};
    SearchedCap model(shape);
    model.Set(0, 1, kM33, 0, -8);
    model.ComputeMoment();
    for (int sense : {kMax, kMin}) {
        const CCapEntry& entry = model.results.momentBearings.At(0, 0, 0, sense);
        EXPECT_EQ(entry.record, CapRecord(0, 2, 1, 22, kEndJ, 9, kCapSpan, 0));
        EXPECT_DOUBLE_EQ(entry.values[kM33], -8);
    }
}

TEST(CapMomentBearings, MoreCriticalSideIsReported) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{5}};
    shape.cases = 2;
    SearchedCap model(shape);
    SetAtTop(model, 0, 30, 0, 40, 0);
    SetAtTop(model, 1, -30, 0, -20, 0);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentBearings.At(0, 0, 0, kMax).record,
              CapRecord(0, 3, 0, 23, kEndI, 5, kCapSpan, 0));
    EXPECT_EQ(model.results.momentBearings.At(0, 0, 0, kMin).record,
              CapRecord(1, 2, 1, 22, kEndJ, 5, kCapCantilever, 0));
}

TEST(CapMomentBearings, MaskedSideGivesWayAndTwoOfThemAreMissing) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{5}};
    SearchedCap model(shape);
    SetAtTop(model, 0, 30, 0, 40, 0);
    model.Mask(2);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentBearings.At(0, 0, 0, kMax).record.m_nElementNumber, 22);
    model.Mask(1);
    model.ComputeMoment();
    // Load case and place are cleared; PROP, ELEM, end and NODE of the earlier search stay.
    EXPECT_EQ(model.results.momentBearings.At(0, 0, 0, kMax).record,
              CapRecord(-1, 2, -1, 22, kEndJ, 5, -1, -1, 0, 1));
}

TEST(CapMomentBearings, BearingOffTheCapLosesEveryWord) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{99}};
    SearchedCap model(shape);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentBearings.At(0, 0, 0, kMin).record,
              (CCapRecord{-1, -1, -1, -1, -1, -1, -1, -1, -1, 1}));
}

TEST(CapMomentBearings, ClassWithoutCasesGoesToTheRightSide) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{5}};
    shape.family = kFamilyArema;
    shape.limitClasses = {kStrength};
    SearchedCap model(shape);
    model.ComputeMoment();
    EXPECT_EQ(model.results.momentBearings.At(0, 1, 0, kMax).record,
              CapRecord(-1, 3, 0, 23, kEndI, 5, kCapSpan, 0));
}

}  // namespace lumerin
