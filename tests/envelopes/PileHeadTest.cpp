// Greatest tension and compression at the pile heads. The head is the J end of a pile's element 0.
#include "SectionModel.h"

namespace {

void SetHead(CPier& pier, int loadCase, int pile, float axial) {
    SetForce(pier, loadCase, pier.PileElement(pile, 0), kEndJ, kAxial, axial);
}

TEST(PileHeads, AxialForceOfZeroFindsNoCase) {
    CPier pier = MakePiles(1, 2, 3);
    SetHead(pier, 1, 0, -0.0F);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0][0], -1);
    EXPECT_EQ(pier.m_ppMaxCompression[0][0], -1);
}

TEST(PileHeads, EqualForcesReportTheEarlierCase) {
    CPier pier = MakePiles(1, 2, 4);
    SetHead(pier, 0, 0, -8.0F);
    SetHead(pier, 1, 0, 25.0F);
    SetHead(pier, 2, 0, 25.0F);
    SetHead(pier, 3, 0, -8.0F);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0][0], 1);
    EXPECT_EQ(pier.m_ppMaxCompression[0][0], 0);
}

TEST(PileHeads, EveryPileHasItsOwnCases) {
    CPier pier = MakePiles(2, 1, 2);
    SetHead(pier, 0, 0, -30.0F);
    SetHead(pier, 1, 0, -40.0F);
    SetHead(pier, 0, 1, 5.0F);
    SetHead(pier, 1, 1, 3.0F);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0], (std::vector{-1, 0}));  // pile 0 is never in tension
    EXPECT_EQ(pier.m_ppMaxCompression[0], (std::vector{1, -1}));
}

TEST(PileHeads, OnlyTheJEndOfTheFirstElementIsTheHead) {
    CPier pier = MakePiles(1, 2, 2);
    SetHead(pier, 0, 0, 1.0F);
    SetForce(pier, 1, pier.PileElement(0, 0), kEndI, kAxial, 99.0F);
    SetForce(pier, 1, pier.PileElement(0, 1), kEndJ, kAxial, 99.0F);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0][0], 0);
}

TEST(PileHeads, RatioBesideTheMaximumIsTheHeadsOfTheSameCase) {
    CPier pier = MakePiles(1, 2, 2);
    SetHead(pier, 0, 0, 10.0F);
    SetForce(pier, 0, 0, kEndJ, kDemandCapacity, 0.25F);
    SetForce(pier, 1, 0, kEndJ, kDemandCapacity, 0.75F);  // the pile's highest ratio, in another case
    pier.ComputeMaxAxialForces();
    const ElementForces head = pier.Forces(pier.m_ppMaxTension[0][0], pier.PileElement(0, 0));
    EXPECT_EQ(GetForce(head, kEndJ, kDemandCapacity), 0.25);
}

TEST(PileHeads, AClassWithoutCasesFindsNothing) {
    CPier pier = MakePiles(1, 1, 2, 0);
    SetHead(pier, 0, 0, 4.0F);
    SetHead(pier, 1, 0, 6.0F);
    SetClass(pier, 0, 0);
    SetClass(pier, 1, 2);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0][0], 0);
    EXPECT_EQ(pier.m_ppMaxTension[1][0], -1);
    EXPECT_EQ(pier.m_ppMaxTension[2][0], 1);
}

TEST(PileHeads, UnselectedStepIsNotConsidered) {
    CPier pier = MakePiles(1, 1, 3);
    SetHead(pier, 0, 0, 4.0F);
    SetHead(pier, 1, 0, 900.0F);
    SetHead(pier, 2, 0, 5.0F);
    pier.SetCaseSelected(1, false);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0][0], 2);
}

TEST(PileHeads, EmptySelectionLeavesNothing) {
    CPier pier = MakePiles(2, 1, 1);
    SetHead(pier, 0, 0, 4.0F);
    SetHead(pier, 0, 1, -4.0F);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0], (std::vector{0, -1}));
    pier.SetCaseSelected(0, false);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0], (std::vector{-1, -1}));
    EXPECT_EQ(pier.m_ppMaxCompression[0], (std::vector{-1, -1}));
}

// Nothing prints fatigue at the pile heads, so its slot is never searched.
TEST(PileHeads, FatigueSlotKeepsWhatItHad) {
    CPier pier = MakePiles(1, 1, 1, 0);
    SetHead(pier, 0, 0, 4.0F);
    SetClass(pier, 0, 3);
    pier.m_ppMaxTension[3][0] = 77;
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[3][0], 77);
    EXPECT_EQ(pier.m_ppMaxTension[0][0], -1);
}

TEST(PileHeads, OneClassFamilySearchesClassZero) {
    CPier pier = MakePiles(1, 1, 2, 1);
    SetHead(pier, 0, 0, 4.0F);
    SetHead(pier, 1, 0, 6.0F);
    SetClass(pier, 1, 1);
    pier.ComputeMaxAxialForces();
    ASSERT_EQ(pier.m_ppMaxTension.size(), 1U);
    EXPECT_EQ(pier.m_ppMaxTension[0][0], 0);
}

TEST(PileHeads, TwoClassFamilySearchesBoth) {
    CPier pier = MakePiles(1, 1, 3, 2);
    for (int c = 0; c < 3; ++c) SetHead(pier, c, 0, -1.0F - static_cast<float>(c));
    SetClass(pier, 1, 1);
    SetClass(pier, 2, 2);  // no class of this family
    pier.ComputeMaxAxialForces();
    ASSERT_EQ(pier.m_ppMaxCompression.size(), 2U);
    EXPECT_EQ(pier.m_ppMaxCompression[0][0], 0);
    EXPECT_EQ(pier.m_ppMaxCompression[1][0], 1);
}

TEST(PileHeads, WithoutCombinationsTheClassDoesNotMatter) {
    CPier pier = MakePiles(1, 1, 2);
    SetHead(pier, 0, 0, 4.0F);
    SetHead(pier, 1, 0, 6.0F);
    SetClass(pier, 1, 3);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0][0], 1);
}

TEST(PileHeads, NotANumberIsNeverChosen) {
    CPier pier = MakePiles(1, 1, 3);
    SetHead(pier, 0, 0, kNaN);
    SetHead(pier, 1, 0, 2.0F);
    SetHead(pier, 2, 0, kNaN);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[0][0], 1);
    EXPECT_EQ(pier.m_ppMaxCompression[0][0], -1);
}

TEST(PileHeads, ClassesOutsideTheFamilyAndPilesWithoutElementsAreLeftOut) {
    CPier pier = MakePiles(2, 0, 2, 2);
    SetClass(pier, 0, -5);
    SetClass(pier, 1, 900);
    pier.ComputeMaxAxialForces();
    EXPECT_EQ(pier.m_ppMaxTension[1], (std::vector{-1, -1}));
    CPier bare;
    bare.ComputeMaxAxialForces();
    EXPECT_TRUE(bare.m_ppMaxTension.empty());
}

TEST(PileHeads, CheckTellsOfHeadsThatAreNotFinite) {
    CPier pier = MakePiles(1, 1, 1);
    EXPECT_TRUE(pier.CheckMaxAxialData());
    pier.m_bPileForcesFinite = false;  // elsewhere along the piles
    EXPECT_TRUE(pier.CheckMaxAxialData());
    pier.m_bPileHeadsFinite = false;
    EXPECT_FALSE(pier.CheckMaxAxialData());
}

}  // namespace
