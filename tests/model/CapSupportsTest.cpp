// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "support/CapModel.h"

namespace lumerin {

TEST(CapSupports, PierWithCantilevers) {
    const CapModel model(TwoColumns());
    // n 13, f 3, s 1, two cantilevers of 2 nodes: b = 13 - 1 - 6 - 4 + 1 = 3; 1 + 1 + 3 = 5; 4 + 3 + 3 + 1
    // = 11.
    EXPECT_EQ(model.pier.GetSupportNode(0), 5);
    EXPECT_EQ(model.pier.GetSupportNode(1), 11);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportX(0), 10);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportX(1), 30);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportWidth(1), 4);
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(0), 0);
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(1), 40);
}

TEST(CapSupports, WithoutCantileversLaterSupportsNameTheNextNode) {
    const CapModel model(TwoColumnsWithoutCantilevers());
    // The columns' tops are nodes 5 and 9. b = 9 - 1 - 6 + 1 = 3: 1 + 1 + 3 = 5, but 4 + 3 + 3 = 10.
    EXPECT_EQ(model.nodes.back(), 9);
    EXPECT_EQ(model.pier.GetSupportNode(0), 5);
    EXPECT_EQ(model.pier.GetSupportNode(1), 10);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportX(1), 30);
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(0), -999999.0);
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(1), -999999.0);
    EXPECT_EQ(model.pier.m_CapPointNode, (std::vector<int>{5, 6, 10}));
}

TEST(CapSupports, BentCountsItsPiles) {
    const CapModel model(TwoPileBent());
    EXPECT_EQ(model.pier.GetSupportNode(0), 1);
    EXPECT_EQ(model.pier.GetSupportNode(1), 2);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportX(1), 30);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportWidth(0), 4);
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(0), 0);
    // Heads 0 1, left 2 3, span 4, right 5 6: index 1 + 2 + 2 = 5 is the node before the tip.
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(1), 35);
}

TEST(CapSupports, BentLosesItsRightFaceToTheNodeBeforeTheTip) {
    CapShape shape = TwoPileBent();
    shape.width = 12;  // right face at 36, inside the cantilever that ends at 40 but past the node at 35
    const CapModel model(shape);
    EXPECT_FALSE(model.pier.IsMomentSection(1, 2));
    EXPECT_TRUE(model.pier.IsMomentSection(0, 0));
}

TEST(CapSupports, BentWithCantileversOfOneElementNeverHasItsRightFace) {
    CapShape shape = TwoPileBent();
    shape.cantileverNodes = 0;
    shape.x = {0, 10, 20, 30, 40};
    {
        const CapModel model(shape);
        // Heads 0 1, left 2, span 3, right 4: index 1 + 2 + 0 = 3 is the span's node, left of the last pile.
        EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(1), 20);
        EXPECT_FALSE(model.pier.IsMomentSection(1, 2));
        EXPECT_FALSE(model.pier.IsShearSection(1, 3));
        EXPECT_TRUE(model.pier.IsShearSection(0, 0));
    }
    shape.spanNodes = 0;
    shape.x = {0, 10, 30, 40};
    const CapModel model(shape);
    // Heads 0 1, left 2, right 3: index 0 + 2 + 0 = 2 is the left cantilever's node.
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(1), 0);
    EXPECT_FALSE(model.pier.IsMomentSection(1, 2));
}

TEST(CapSupports, SingleColumnTakesTheLeftCantileversLastNodeForItsRightTip) {
    CapShape shape;
    shape.supports = 1;
    shape.foundationNodes = 0;
    shape.x = {0, 5, 10, 15, 20};
    const CapModel model(shape);
    // Column nodes 1 2 3, left cantilever 4 5, right 6 7; index 3 + 1 = 4 is node 5 at x 5.
    EXPECT_EQ(model.pier.GetSupportNode(0), 3);
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(1), 5);
    EXPECT_TRUE(model.pier.IsShearSection(0, 0));
    EXPECT_FALSE(model.pier.IsShearSection(0, 3));
}

TEST(CapSupports, OuterFacesNeedCantilevers) {
    const CapModel model(TwoColumnsWithoutCantilevers());
    EXPECT_FALSE(model.pier.IsMomentSection(0, 0));
    EXPECT_TRUE(model.pier.IsMomentSection(0, 1));
    EXPECT_TRUE(model.pier.IsMomentSection(0, 2));
    EXPECT_TRUE(model.pier.IsMomentSection(1, 0));
    EXPECT_FALSE(model.pier.IsMomentSection(1, 2));
    EXPECT_TRUE(model.pier.IsShearSection(1, 2));
    EXPECT_FALSE(model.pier.IsShearSection(1, 3));
}

TEST(CapSupports, FaceOnTheTipExists) {
    CapShape shape = TwoColumns();
    shape.width = 20;  // faces at 0 and 40, the tips
    const CapModel model(shape);
    EXPECT_TRUE(model.pier.IsShearSection(0, 0));
    EXPECT_TRUE(model.pier.IsShearSection(1, 3));
}

TEST(CapSupports, MastHasNoRightFaceAtItsFirstSupport) {
    CapShape shape = TwoColumnsWithoutCantilevers();
    shape.type = kTypeMast;
    const CapModel model(shape);
    EXPECT_FALSE(model.pier.IsShearSection(0, 3));
    EXPECT_TRUE(model.pier.IsShearSection(0, 2));
    EXPECT_FALSE(model.pier.IsMomentSection(0, 2));
    // -999999 is not right of any face.
    EXPECT_TRUE(model.pier.IsShearSection(0, 0));
    EXPECT_TRUE(model.pier.IsShearSection(1, 3));
}

TEST(CapSupports, MastLookups) {
    CapShape shape = TwoColumns();
    shape.type = kTypeMast;
    shape.foundationNodes = 1;
    const CapModel model(shape);
    // n 12, f 3, s 1, k 2: 3 + (12 - 1 - 6 - 2) = 6, for every support.
    EXPECT_EQ(model.pier.GetSupportNode(0), 6);
    EXPECT_EQ(model.pier.GetSupportNode(1), 6);
    // The support's index itself is the place in the node list: the first column's foot and the node above
    // it.
    EXPECT_DOUBLE_EQ(model.pier.GetSupportX(1), model.pier.m_dNodes[1][0]);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportWidth(0), 4);
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(0), model.pier.m_dNodes[6][0]);
    EXPECT_DOUBLE_EQ(model.pier.GetCantileverEndX(1), model.pier.m_dNodes[0][0]);
}

TEST(CapSupports, OtherTypesHaveNoCap) {
    CapModel model(TwoColumns());
    model.pier.m_nStructureType = kTypeWallA;
    EXPECT_EQ(model.pier.GetSupportNode(0), -1);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportWidth(0), 0.0);
    EXPECT_TRUE(model.pier.IsMomentSection(0, 0));
    EXPECT_TRUE(model.pier.IsShearSection(1, 3));
}

TEST(CapSupports, WithoutACapEverySectionCounts) {
    CapModel model(TwoColumnsWithoutCantilevers());
    EXPECT_FALSE(model.pier.IsMomentSection(0, 0));
    EXPECT_FALSE(model.pier.IsShearSection(1, 3));
    model.pier.m_nStructureType = StructureType{4};
    EXPECT_TRUE(model.pier.IsMomentSection(0, 0));
    EXPECT_TRUE(model.pier.IsMomentSection(1, 2));
    EXPECT_TRUE(model.pier.IsShearSection(0, 0));
    EXPECT_TRUE(model.pier.IsShearSection(1, 3));
}

TEST(CapSupports, UnknownSupportsGiveNothing) {
    const CapModel model(TwoColumns());
    EXPECT_EQ(model.pier.GetSupportNode(-1), -1);
    EXPECT_EQ(model.pier.GetSupportNode(2), -1);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportX(2), 0.0);
    EXPECT_DOUBLE_EQ(model.pier.GetSupportWidth(2), 0.0);
}

}  // namespace lumerin
