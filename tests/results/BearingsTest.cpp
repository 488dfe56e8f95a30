// SPDX-License-Identifier: MIT

#include "support/ResultProject.h"

namespace lumerin {

TEST(Bearings, SevenLeftAndSixRightGiveTwoRowsOfThree) {
    ResultProject project;
    project.substructures[0] = MakePier();
    ResultSubstructure& sub = project.substructures[0];
    sub.leftBearings.assign(7, {0.0, 0.0, 0.0});
    sub.rightBearings.assign(6, {0.0, 0.0, 0.0});
    sub.leftBearingNodes = {6, 7, 5, 8, 11, 12};
    sub.rightBearingNodes = {7, 8, 9, 10, 11};
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    ASSERT_EQ(pier.m_nBearingRows, 2);
    ASSERT_EQ(pier.m_BearingRows[0].m_Bearings.size(), 3U);
    ASSERT_EQ(pier.m_BearingRows[1].m_Bearings.size(), 3U);
    EXPECT_EQ(pier.m_BearingRows[0].m_Bearings[2].m_nNode, 5);
    EXPECT_EQ(pier.m_BearingRows[1].m_Bearings[0].m_nNode, 7);
}

TEST(Bearings, RowsExactlyTheLimitApartAreOne) {
    ResultProject project;
    // The limit is that of US units in an SI project too.
    for (const int units : {0, 1}) {
        for (const auto& [distance, rows] : {std::pair{2.4, 1}, {2.5, 2}}) {
            project.substructures[0] = MakePier();
            ResultSubstructure& sub = project.substructures[0];
            sub.units = units;
            sub.leftBearings.assign(4, {0.0, 0.0, 0.0});
            sub.rightBearings.assign(4, {0.0, distance, 0.0});
            sub.leftBearingNodes = {6, 7, 5};
            sub.rightBearingNodes = {6, 7, 5};
            project.Write();
            ASSERT_TRUE(project.Load());
            EXPECT_EQ(project.Pier().m_nBearingRows, rows) << distance;
        }
    }
}

TEST(Bearings, ARightRowOnTheOtherSideCountsAsTheSameRow) {
    ResultProject project;
    project.substructures[0] = MakePier();
    ResultSubstructure& sub = project.substructures[0];
    // Nine less than the left row's y is not more than the limit.
    sub.leftBearings.assign(4, {0.0, 0.0, 0.0});
    sub.rightBearings.assign(4, {0.0, -9.0, 0.0});
    sub.leftBearingNodes = {6, 7, 5};
    sub.rightBearingNodes = {6, 7, 5};
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Pier().m_nBearingRows, 1);
}

TEST(Bearings, EntriesOfARowMayShareARecord) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    // Six entries are 144 bytes, a block of 128 and one of 16, so that the sixth is split between both. Only
    // this entry makes the two rows one.
    std::vector<int> counts(12, 0);
    counts[0] = counts[1] = 6;
    std::vector<double> left(18, 0.0), right(18, 0.0);
    for (std::size_t i = 0; i < 5; ++i) right[3 * i + 1] = 9.0;
    const std::vector<int> nodes{0, 6, 0, 0, 7, 0, 0, 5, 0, 0, 8, 0, 0, 11, 0};
    project.WriteFile(".pls",
                      SeqBytes().Ints(counts).Doubles(left).Doubles(right).Ints(nodes).Ints(nodes).End());
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    ASSERT_EQ(pier.m_nBearingRows, 1);
    ASSERT_EQ(pier.m_BearingRows[0].m_Bearings.size(), 3U);
    EXPECT_EQ(pier.m_BearingRows[0].m_Bearings[0].m_nNode, 6);
    EXPECT_EQ(pier.m_BearingRows[0].m_Bearings[1].m_nNode, 7);
    EXPECT_EQ(pier.m_BearingRows[0].m_Bearings[2].m_nNode, 5);
}

TEST(Bearings, NoEntriesGiveTwoRowsOfNone) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Pier().m_nBearingRows, 2);
    EXPECT_TRUE(project.Pier().m_BearingRows[1].m_Bearings.empty());
}

}  // namespace lumerin
