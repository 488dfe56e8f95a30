// SPDX-License-Identifier: MIT
// Greatest tension and compression at the pile heads. The head is the J end of a pile's element 0.
#include <gtest/gtest.h>

#include "support/Searches.h"

namespace lumerin {

namespace {

void SetHead(SearchedPier& model, int loadCase, int pile, float axial) {
    model.SetForce(loadCase, model.pier.PileElement(pile, 0), kEndJ, kAxial, axial);
}

TEST(PileHeads, AxialForceOfZeroFindsNoCase) {
    SearchedPier model(Piles(1, 2, 3));
    SetHead(model, 1, 0, -0.0F);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0][0], -1);
    EXPECT_EQ(model.results.maxCompression[0][0], -1);
}

TEST(PileHeads, EqualForcesReportTheEarlierCase) {
    SearchedPier model(Piles(1, 2, 4));
    SetHead(model, 0, 0, -8.0F);
    SetHead(model, 1, 0, 25.0F);
    SetHead(model, 2, 0, 25.0F);
    SetHead(model, 3, 0, -8.0F);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0][0], 1);
    EXPECT_EQ(model.results.maxCompression[0][0], 0);
}

TEST(PileHeads, EveryPileHasItsOwnCases) {
    SearchedPier model(Piles(2, 1, 2));
    SetHead(model, 0, 0, -30.0F);
    SetHead(model, 1, 0, -40.0F);
    SetHead(model, 0, 1, 5.0F);
    SetHead(model, 1, 1, 3.0F);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0], (std::vector{-1, 0}));  // pile 0 is never in tension
    EXPECT_EQ(model.results.maxCompression[0], (std::vector{1, -1}));
}

TEST(PileHeads, OnlyTheJEndOfTheFirstElementIsTheHead) {
    SearchedPier model(Piles(1, 2, 2));
    SetHead(model, 0, 0, 1.0F);
    model.SetForce(1, model.pier.PileElement(0, 0), kEndI, kAxial, 99.0F);
    model.SetForce(1, model.pier.PileElement(0, 1), kEndJ, kAxial, 99.0F);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0][0], 0);
}

TEST(PileHeads, RatioBesideTheMaximumIsTheHeadsOfTheSameCase) {
    SearchedPier model(Piles(1, 2, 2));
    SetHead(model, 0, 0, 10.0F);
    model.SetForce(0, 0, kEndJ, kDemandCapacity, 0.25F);
    model.SetForce(1, 0, kEndJ, kDemandCapacity, 0.75F);  // the pile's highest ratio, in another case
    model.Search(kTableMaxAxial);
    const ForceRow head = model.Forces(model.results.maxTension[0][0], model.pier.PileElement(0, 0));
    EXPECT_EQ(GetForce(head, kEndJ, kDemandCapacity), 0.25);
}

TEST(PileHeads, AClassWithoutCasesFindsNothing) {
    SearchedPier model(Piles(1, 1, 2, kFamilyLrfd));
    SetHead(model, 0, 0, 4.0F);
    SetHead(model, 1, 0, 6.0F);
    SetClass(model.pier, 0, 0);
    SetClass(model.pier, 1, 2);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0][0], 0);
    EXPECT_EQ(model.results.maxTension[1][0], -1);
    EXPECT_EQ(model.results.maxTension[2][0], 1);
}

TEST(PileHeads, UnselectedStepIsNotConsidered) {
    SearchedPier model(Piles(1, 1, 3));
    SetHead(model, 0, 0, 4.0F);
    SetHead(model, 1, 0, 900.0F);
    SetHead(model, 2, 0, 5.0F);
    model.selection.SetCaseSelected(1, false);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0][0], 2);
}

TEST(PileHeads, EmptySelectionLeavesNothing) {
    SearchedPier model(Piles(2, 1, 1));
    SetHead(model, 0, 0, 4.0F);
    SetHead(model, 0, 1, -4.0F);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0], (std::vector{0, -1}));
    model.selection.SetCaseSelected(0, false);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0], (std::vector{-1, -1}));
    EXPECT_EQ(model.results.maxCompression[0], (std::vector{-1, -1}));
}

// Nothing prints fatigue at the pile heads, so its slot is never searched.
TEST(PileHeads, FatigueSlotKeepsWhatItHad) {
    SearchedPier model(Piles(1, 1, 1, kFamilyLrfd));
    SetHead(model, 0, 0, 4.0F);
    SetClass(model.pier, 0, 3);
    model.results.maxTension[3][0] = 77;
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[3][0], 77);
    EXPECT_EQ(model.results.maxTension[0][0], -1);
}

TEST(PileHeads, OneClassFamilySearchesClassZero) {
    SearchedPier model(Piles(1, 1, 2, kFamilyLfd));
    SetHead(model, 0, 0, 4.0F);
    SetHead(model, 1, 0, 6.0F);
    SetClass(model.pier, 1, 1);
    model.Search(kTableMaxAxial);
    ASSERT_EQ(model.results.maxTension.size(), 1U);
    EXPECT_EQ(model.results.maxTension[0][0], 0);
}

TEST(PileHeads, TwoClassFamilySearchesBoth) {
    SearchedPier model(Piles(1, 1, 3, kFamilyArema));
    for (int c = 0; c < 3; ++c) SetHead(model, c, 0, -1.0F - static_cast<float>(c));
    SetClass(model.pier, 1, 1);
    SetClass(model.pier, 2, 2);  // no class of this family
    model.Search(kTableMaxAxial);
    ASSERT_EQ(model.results.maxCompression.size(), 2U);
    EXPECT_EQ(model.results.maxCompression[0][0], 0);
    EXPECT_EQ(model.results.maxCompression[1][0], 1);
}

TEST(PileHeads, WithoutCombinationsTheClassDoesNotMatter) {
    SearchedPier model(Piles(1, 1, 2));
    SetHead(model, 0, 0, 4.0F);
    SetHead(model, 1, 0, 6.0F);
    SetClass(model.pier, 1, 3);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0][0], 1);
}

TEST(PileHeads, NotANumberIsNeverChosen) {
    SearchedPier model(Piles(1, 1, 3));
    SetHead(model, 0, 0, kNaN);
    SetHead(model, 1, 0, 2.0F);
    SetHead(model, 2, 0, kNaN);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[0][0], 1);
    EXPECT_EQ(model.results.maxCompression[0][0], -1);
}

TEST(PileHeads, ClassesOutsideTheFamilyAndPilesWithoutElementsAreLeftOut) {
    SearchedPier model(Piles(2, 0, 2, kFamilyArema));
    SetClass(model.pier, 0, -5);
    SetClass(model.pier, 1, 900);
    model.Search(kTableMaxAxial);
    EXPECT_EQ(model.results.maxTension[1], (std::vector{-1, -1}));
    RecordedMessages messages;
    PierResults bare;
    const CPier pier;
    const CaseSelection nothing;
    const auto search = BeginSearch(kTableMaxAxial, {pier, nothing, messages}, bare);
    search->Take(0, {});
    search->Finish(bare);
    EXPECT_TRUE(bare.maxTension.empty());
}

}  // namespace

}  // namespace lumerin
