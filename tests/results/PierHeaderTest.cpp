#include "ResultProject.h"
#include "results/CollectData.h"

// What the pile file, the pile model file and the convergence file make of a substructure.

TEST(PierHeader, AConvergenceFileOfFiveRequestsLeavesTheOptionalValues) {
    ResultProject project;
    project.mode = 1;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.m_nAnalysisMode, 1);
    EXPECT_EQ(g_DataSet.m_dNcvReal, 0.0);
    EXPECT_EQ(g_DataSet.m_nNcvInteger, 0);
}

TEST(PierHeader, AConvergenceFileMayCarryARealAndAnInteger) {
    ResultProject project;
    project.Write();
    project.WriteFile(".ncv", ResultProject::Convergence(2).Ints({0}).Doubles({1.5}).Ints({8}).End());
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.m_dNcvReal, 1.5);
    EXPECT_EQ(g_DataSet.m_nNcvInteger, 8);
}

TEST(PierHeader, TheConvergedCountReplacesTheAnalysedCount) {
    ResultProject project;
    project.cases = 2;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.m_nLoadCases, 2);
    EXPECT_EQ(g_DataSet.FirstPier().m_LoadCases.size(), 2U);
}

TEST(PierHeader, AnEmptyConvergenceFileLeavesTheAnalysedCount) {
    ResultProject project;
    project.cases = 3;
    project.Write();
    project.WriteFile(".ncv", SeqBytes().End());
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.m_nLoadCases, 3);
}

TEST(PierHeader, NothingAnalysedEndsTheLoadWithItsMessage) {
    ResultProject project;
    project.Write();
    project.WriteFile(".PIL", ResultProject::PileModel(project.substructures[0], 0));
    const MessageLog log;
    EXPECT_FALSE(project.Load());
    EXPECT_THAT(log.texts, testing::ElementsAre("No load cases converged.  There are no results to view."));
}

TEST(PierHeader, NothingConvergedEndsTheLoadWithItsMessage) {
    ResultProject project;
    project.Write();
    project.WriteFile(".ncv", ResultProject::Convergence(0).End());
    const MessageLog log;
    EXPECT_FALSE(project.Load());
    EXPECT_THAT(log.texts, testing::ElementsAre("No load cases converged. Results cannot be viewed."));
}

TEST(PierHeader, ADerivedTypeGoesByTheRowsOfPiles) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0];
    sub.type = -1;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.m_nStructureType, 1);
    sub.rowsB = 1;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.m_nStructureType, 2);
}

TEST(PierHeader, TheLastSubstructuresUnitsHeadAllTables) {
    ResultProject project;
    project.substructures.resize(2);
    project.substructures[0].units = 1;
    project.substructures[1].units = 0;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.m_nUnits, 0);
    EXPECT_EQ(g_DataSet.m_sForceUnit, "kips");
    EXPECT_EQ(g_DataSet.FirstPier().m_nUnits, 1);
}

TEST(PierHeader, UnitsThreeStandForUsUnits) {
    ResultProject project;
    for (const auto& [word, units, force, moment] : {std::tuple{3, 0, "kips", "kip-ft"},
                                                     {0, 0, "kips", "kip-ft"},
                                                     {1, 1, "kN", "kN-m"},
                                                     {2, 2, "kN", "kN-m"}}) {
        project.substructures[0].units = word;
        project.Write();
        ASSERT_TRUE(project.Load());
        EXPECT_EQ(g_DataSet.m_nUnits, units);
        EXPECT_EQ(g_DataSet.FirstPier().m_nUnits, units);
        EXPECT_EQ(g_DataSet.m_sForceUnit, force);
        EXPECT_EQ(g_DataSet.m_sMomentUnit, moment);
    }
}

TEST(PierHeader, APilesWidthComesFromItsFirstElementsRecord) {
    ResultProject project;
    // Section 1 is round: its first dimension; section 2 is not: its second.
    project.substructures[0].pileSections = {{2, 1}, {1, 2}};
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.FirstPier().m_Piles[0].m_dDimension, 16.0);
    EXPECT_EQ(g_DataSet.FirstPier().m_Piles[1].m_dDimension, 12.0);
}

TEST(PierHeader, NoColumnSectionsStandAsOne) {
    ResultProject project;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.m_nColumnSections, 0);
    EXPECT_EQ(g_DataSet.FirstPier().m_nColumnSections, 1);
}

TEST(PierHeader, GapsInTheElementNumbersAreMasked) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0];
    sub.type = 3;
    sub.nodes.assign(1, {0.0, 0.0, 0.0});
    sub.rows = {{1, 1, 1, 1}, {2, 1, 1, 1}, {5, 1, 1, 1}};
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(g_DataSet.m_nElementGaps, 2);
    EXPECT_THAT(g_DataSet.FirstPier().m_ElementMask, testing::ElementsAre(0, 0, 1, 1, 0));
}

TEST(PierHeader, AGroupHasNoMask) {
    ResultProject project;
    project.substructures[0].rows = {{1, 1, 1, 1}, {4, 1, 1, 1}};
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_TRUE(g_DataSet.FirstPier().m_ElementMask.empty());
    EXPECT_EQ(g_DataSet.m_nElementGaps, 2);
}

TEST(PierHeader, APiersOwnNodesStandWithoutItsFoundations) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = g_DataSet.FirstPier();
    // One span node, two columns of three nodes, two cantilevers of two.
    EXPECT_EQ(pier.m_nPierNodes, 11);
    EXPECT_EQ(pier.m_nFoundationNodes, 2);
    ASSERT_EQ(pier.m_dNodes.size(), 11U);
    EXPECT_EQ(pier.m_dNodes[0][0], 102.0);
}

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
    const CPier& pier = g_DataSet.FirstPier();
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
            EXPECT_EQ(g_DataSet.FirstPier().m_nBearingRows, rows) << distance;
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
    EXPECT_EQ(g_DataSet.FirstPier().m_nBearingRows, 1);
}

TEST(Bearings, EntriesOfARowMayShareARecord) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    // Six entries are 144 bytes, a block of 128 and one of 16, so that the sixth lies across both. It alone
    // brings the rows together.
    std::vector<int> counts(12, 0);
    counts[0] = counts[1] = 6;
    std::vector<double> left(18, 0.0), right(18, 0.0);
    for (std::size_t i = 0; i < 5; ++i) right[3 * i + 1] = 9.0;
    const std::vector<int> nodes{0, 6, 0, 0, 7, 0, 0, 5, 0, 0, 8, 0, 0, 11, 0};
    project.WriteFile(".pls",
                      SeqBytes().Ints(counts).Doubles(left).Doubles(right).Ints(nodes).Ints(nodes).End());
    ASSERT_TRUE(project.Load());
    const CPier& pier = g_DataSet.FirstPier();
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
    EXPECT_EQ(g_DataSet.FirstPier().m_nBearingRows, 2);
    EXPECT_TRUE(g_DataSet.FirstPier().m_BearingRows[1].m_Bearings.empty());
}
