// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "support/Searches.h"

namespace lumerin {

namespace {

constexpr int kShearLeftFace = 0, kLeftCentre = 1, kRightCentre = 2, kShearRightFace = 3;
}  // namespace

TEST(CapShear, FaceOnANodeComparesBothElements) {
    CapShape shape = TwoColumns();
    shape.width = 10;  // left face of column 1 at 5, node 7: element 21 ends there, 22 starts there
    shape.cases = 2;
    SearchedCap model(shape);
    model.Set(0, 0, kF22, 50, 10);
    model.Set(1, 0, kF22, 60, 20);
    model.Set(0, 1, kF22, 30, 90);
    model.Set(1, 1, kF22, -5, 80);
    model.Set(0, 1, kAxial, 7, 8);
    model.ComputeShear();
    // At the node: 10 and 20 from the left, 30 and -5 from the right.
    const CCapEntry& maximum = model.results.shearSupports.At(0, 0, kShearLeftFace, kMax);
    EXPECT_EQ(maximum.record, CapRecord(0, 2, 1, 22, kEndI, 7, kCapCantilever, 0));
    EXPECT_DOUBLE_EQ(maximum.values[kF22], 30);
    EXPECT_DOUBLE_EQ(maximum.values[kAxial], 7);
    const CCapEntry& minimum = model.results.shearSupports.At(0, 0, kShearLeftFace, kMin);
    EXPECT_EQ(minimum.record, CapRecord(1, 2, 1, 22, kEndI, 7, kCapCantilever, 0));
    EXPECT_DOUBLE_EQ(minimum.values[kF22], -5);
}

TEST(CapShear, EqualValuesOnBothSidesGoToTheLeft) {
    CapShape shape = TwoColumns();
    shape.width = 10;
    SearchedCap model(shape);
    model.Set(0, 0, kF22, 0, 40);
    model.Set(0, 1, kF22, 40, 0);
    model.ComputeShear();
    for (int sense : {kMax, kMin}) {
        EXPECT_EQ(model.results.shearSupports.At(0, 0, kShearLeftFace, sense).record.m_nElementNumber, 21);
    }
}

TEST(CapShear, FaceInsideAnElementInterpolates) {
    SearchedCap model(TwoColumns());  // right face of column 1 at 12: a fifth of the way along element 23
    model.Set(0, 2, kF22, 100, 50);
    model.Set(0, 2, kDemandCapacity, 1, 0);
    model.ComputeShear();
    const CCapEntry& entry = model.results.shearSupports.At(0, 0, kShearRightFace, kMax);
    EXPECT_EQ(entry.record, CapRecord(0, 3, 0, 23, kInsideElement, 5, kCapSpan, 0, 8));
    EXPECT_DOUBLE_EQ(entry.values[kF22], 90);  // 100 - 50 * 0.2
    EXPECT_DOUBLE_EQ(entry.values[kDemandCapacity], 0.8);
}

TEST(CapShear, DifferenceOfTheEndsIsFormedInSingleWidth) {
    SearchedCap model(TwoColumns());
    // 16777216 - (-1) is 16777217, which a 32-bit float rounds to 16777216.
    model.Set(0, 2, kF22, 16777216.0F, -1.0F);
    model.ComputeShear();
    const double t = (12.0 - 10.0) / 10.0;
    EXPECT_EQ(model.results.shearSupports.At(0, 0, kShearRightFace, kMax).values[kF22],
              16777216.0 - 16777216.0 * t);
}

TEST(CapShear, CentrelineEntriesReadOneSideEach) {
    SearchedCap model(TwoColumns());
    model.Set(0, 1, kF22, 0, -70);  // element 22 ends at the column's top, node 5
    model.Set(0, 2, kF22, 90, 0);   // element 23 starts there
    model.ComputeShear();
    for (int sense : {kMax, kMin}) {
        const CCapEntry& left = model.results.shearSupports.At(0, 0, kLeftCentre, sense);
        EXPECT_EQ(left.record, CapRecord(0, 2, 1, 22, kEndJ, 5, kCapCantilever, 0));
        EXPECT_DOUBLE_EQ(left.values[kF22], -70);
        const CCapEntry& right = model.results.shearSupports.At(0, 0, kRightCentre, sense);
        EXPECT_EQ(right.record, CapRecord(0, 3, 0, 23, kEndI, 5, kCapSpan, 0));
        EXPECT_DOUBLE_EQ(right.values[kF22], 90);
    }
}

TEST(CapShear, MaximumIsAlgebraic) {
    CapShape shape = TwoColumns();
    shape.cases = 3;
    SearchedCap model(shape);
    model.Set(0, 2, kF22, -70, 0);
    model.Set(1, 2, kF22, -20, 0);
    model.Set(2, 2, kF22, -90, 0);
    model.ComputeShear();
    EXPECT_EQ(model.results.shearSupports.At(0, 0, kRightCentre, kMax).record.m_nLoadCase, 1);
    EXPECT_DOUBLE_EQ(model.results.shearSupports.At(0, 0, kRightCentre, kMax).values[kF22], -20);
    EXPECT_EQ(model.results.shearSupports.At(0, 0, kRightCentre, kMin).record.m_nLoadCase, 2);
}

TEST(CapShear, EarliestCaseWinsATieWhateverItsRatio) {
    CapShape shape = TwoColumns();
    shape.cases = 3;
    SearchedCap model(shape);
    for (int c = 0; c < 3; ++c) {
        model.Set(c, 2, kF22, 5, 5);
        model.Set(c, 2, kDemandCapacity, static_cast<float>(c), 0);
    }
    model.selection.SetCaseSelected(0, false);
    model.ComputeShear();
    EXPECT_EQ(model.results.shearSupports.At(0, 0, kRightCentre, kMax).record.m_nLoadCase, 1);
    EXPECT_EQ(model.results.shearSupports.At(0, 0, kRightCentre, kMin).record.m_nLoadCase, 1);
}

TEST(CapShear, ANumberNeverDisplacesASeedThatIsNone) {
    CapShape shape = TwoColumns();
    shape.cases = 2;
    SearchedCap model(shape);
    model.Set(0, 2, kF22, kNaN, 0);
    model.Set(1, 2, kF22, 5, 0);
    model.ComputeShear();
    EXPECT_EQ(model.results.shearSupports.At(0, 0, kRightCentre, kMax).record.m_nLoadCase, 0);
    EXPECT_FALSE(model.IsValid(kTableCapShear));
}

TEST(CapShear, MaskedElementLeavesTheSectionToTheOtherSide) {
    CapShape shape = TwoColumns();
    shape.width = 10;
    SearchedCap model(shape);
    model.Set(0, 0, kF22, 0, 10);
    model.Set(0, 1, kF22, 90, 0);
    model.Mask(1);
    model.ComputeShear();
    EXPECT_EQ(model.results.shearSupports.At(0, 0, kShearLeftFace, kMax).record,
              CapRecord(0, 1, 0, 21, kEndJ, 7, kCapCantilever, 0));
}

TEST(CapShear, BothSidesMaskedIsMissingAndKeepsTheOtherWords) {
    CapShape shape = TwoColumns();
    shape.width = 10;
    SearchedCap model(shape);
    model.Set(0, 0, kF22, 0, 10);
    model.ComputeShear();
    model.Mask(0);
    model.Mask(1);
    model.ComputeShear();
    const CCapEntry& entry = model.results.shearSupports.At(0, 0, kShearLeftFace, kMax);
    // The words for load case, place and member are cleared; PROP, ELEM, end and NODE of the earlier search
    // stay.
    EXPECT_EQ(entry.record, CapRecord(-1, 1, -1, 21, kEndJ, 7, -1, -1, 0, 1));
    EXPECT_DOUBLE_EQ(entry.values[kF22], 10);
}

TEST(CapShear, MaskedElementInsideIsMissing) {
    SearchedCap model(TwoColumns());
    model.Mask(2);
    model.ComputeShear();
    EXPECT_EQ(model.results.shearSupports.At(0, 0, kShearRightFace, kMax).record,
              CapRecord(-1, 0, -1, 0, 0, 0, -1, -1, 0, 1));
}

TEST(CapShear, ClassesHaveTheirOwnExtremes) {
    CapShape shape = TwoColumns();
    shape.family = kFamilyLrfd;
    shape.limitClasses = {kService, kStrength, kService, kFatigue};
    shape.cases = 4;
    SearchedCap model(shape);
    const float shear[] = {10, -20, 30, 40};
    for (int c = 0; c < 4; ++c) model.Set(c, 2, kF22, shear[c], 0);
    model.ComputeShear();
    const auto loadCase = [&](int slot, int sense) {
        return model.results.shearSupports.At(0, slot, kRightCentre, sense).record.m_nLoadCase;
    };
    EXPECT_EQ(loadCase(0, kMax), 1);
    EXPECT_EQ(loadCase(0, kMin), 1);
    EXPECT_EQ(loadCase(1, kMax), 2);
    EXPECT_EQ(loadCase(1, kMin), 0);
    EXPECT_EQ(loadCase(3, kMax), 3);
}

TEST(CapShear, ClassWithoutCasesGivesNoLoadCaseButAPlace) {
    CapShape shape = TwoColumns();
    shape.family = kFamilyArema;
    shape.limitClasses = {kStrength};
    SearchedCap model(shape);
    model.Set(0, 2, kF22, 5, 0);
    model.ComputeShear();
    const CCapEntry& entry = model.results.shearSupports.At(0, 1, kRightCentre, kMax);
    EXPECT_EQ(entry.record, CapRecord(-1, 3, 0, 23, kEndI, 5, kCapSpan, 0));
    EXPECT_DOUBLE_EQ(entry.values[kF22], 0);
}

TEST(CapShear, ValuesStayWhereNoCaseIsLeft) {
    SearchedCap model(TwoColumns());
    model.Set(0, 2, kF22, 5, 0);
    model.ComputeShear();
    model.selection.SetCaseSelected(0, false);
    model.ComputeShear();
    const CCapEntry& entry = model.results.shearSupports.At(0, 0, kRightCentre, kMax);
    EXPECT_EQ(entry.record.m_nLoadCase, -1);
    EXPECT_EQ(entry.record.m_nMissing, 0);
    EXPECT_DOUBLE_EQ(entry.values[kF22], 5);
}

TEST(CapShear, WithoutCantileversTheSecondCentrelineLooksAtTheNextNode) {
    CapShape shape = TwoColumnsWithoutCantilevers();
    shape.supports = 3;
    shape.x = {10, 20, 30, 40, 50};  // nodes 5 6 9 10 13; elements 21 to 24
    SearchedCap model(shape);
    model.Set(0, 1, kF22, 0, 1);  // ends at the second column's top, node 9
    model.Set(0, 2, kF22, 2, 3);  // ends at node 10, in the span after it
    model.Set(0, 3, kF22, 4, 5);  // starts there
    model.ComputeShear();
    const CCapEntry& left = model.results.shearSupports.At(1, 0, kLeftCentre, kMax);
    EXPECT_EQ(left.record, CapRecord(0, 3, 0, 23, kEndJ, 10, kCapSpan, 1));
    EXPECT_DOUBLE_EQ(left.values[kF22], 3);
    EXPECT_DOUBLE_EQ(model.results.shearSupports.At(1, 0, kRightCentre, kMax).values[kF22], 4);
    // After the last column there is no further node: 5 9 13 are the tops, and there is no node 14.
    EXPECT_EQ(model.results.shearSupports.At(2, 0, kLeftCentre, kMax).record.m_nMissing, 1);
}

TEST(CapShearBearings, SidesAreTheElementsAroundTheNode) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{8}};  // element 23 ends there, 24 starts there
    shape.cases = 2;
    SearchedCap model(shape);
    model.Set(0, 2, kF22, 0, 10);
    model.Set(1, 2, kF22, 0, 20);
    model.Set(0, 3, kF22, 9, 0);
    model.Set(1, 3, kF22, 8, 0);
    model.ComputeShear();
    EXPECT_EQ(model.results.shearBearings.At(0, 0, 0, kMax).record,
              CapRecord(1, 3, 0, 23, kEndJ, 8, kCapSpan, 0));
    EXPECT_EQ(model.results.shearBearings.At(0, 0, 0, kMin).record.m_nLoadCase, 0);
    EXPECT_EQ(model.results.shearBearings.At(0, 0, 1, kMax).record,
              CapRecord(0, 4, 1, 24, kEndI, 8, kCapSpan, 0));
    EXPECT_DOUBLE_EQ(model.results.shearBearings.At(0, 0, 1, kMin).values[kF22], 8);
}

TEST(CapShearBearings, TipHasNoResultOnItsOuterSide) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{13, 99}};
    SearchedCap model(shape);
    model.ComputeShear();
    const CCapRecord none{-1, -1, -1, -1, -1, -1, -1, -1, -1, 1};
    EXPECT_EQ(model.results.shearBearings.At(0, 0, 1, kMax).record, none);
    EXPECT_EQ(model.results.shearBearings.At(0, 0, 0, kMax).record.m_nElementNumber, 26);
    EXPECT_EQ(model.results.shearBearings.At(1, 0, 0, kMin).record, none);
    EXPECT_EQ(model.results.shearBearings.At(1, 0, 1, kMin).record, none);
}

TEST(CapShearBearings, MaskedElementIsSearchedButHasNoForces) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{8}};
    shape.cases = 2;
    SearchedCap model(shape);
    model.Set(1, 2, kF22, 0, 20);
    model.Mask(2);
    model.ComputeShear();
    const CCapEntry& entry = model.results.shearBearings.At(0, 0, 0, kMax);
    EXPECT_EQ(entry.record, CapRecord(1, 3, 0, 23, kEndJ, 8, kCapSpan, 0));
    EXPECT_DOUBLE_EQ(entry.values[kF22], 0);
}

TEST(CapShearBearings, SecondRowHasItsOwnRecords) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{8}, {8, 12}};
    SearchedCap model(shape);
    model.Set(0, 4, kF22, 0, 6);
    model.ComputeShear();
    EXPECT_EQ(model.results.shearBearings.Kinds(), 4);
    EXPECT_DOUBLE_EQ(model.results.shearBearings.At(1, 0, 2, kMax).values[kF22], 6);
    EXPECT_EQ(model.results.shearBearings.At(0, 0, 3, kMax).record.m_nElementNumber, 24);
    // The shorter row's place in the longer dimension is never written.
    EXPECT_EQ(model.results.shearBearings.At(1, 0, 0, kMax).record, CCapRecord{});
}

}  // namespace lumerin
