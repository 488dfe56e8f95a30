// SPDX-License-Identifier: MIT
#include <chrono>

#include "support/ResultProject.h"

namespace lumerin {

namespace {

const CPier& First(const ResultProject& project) {
    return project.Pier();
}

ResultProject& WithFamily(ResultProject& project, int family, int cases, const std::string& rows) {
    project.cases = cases;
    project.substructures[0].codeFamily = family;
    project.Write([](std::size_t, int, int, int) { return 0.0F; });
    project.WriteFile(".LIM", "LIMIT STATES\nA= 1 F= 2\ntext\nmore text\n" + rows + ":\n");
    return project;
}

// The first case of each limit class, with every case selected.
std::array<int, 4> FirstCases(const ResultProject& project) {
    const CaseSelection selection(project.Data());
    return {selection.FirstOfClass(kStrength), selection.FirstOfClass(kService),
            selection.FirstOfClass(kExtreme), selection.FirstOfClass(kFatigue)};
}

}  // namespace

TEST(Combinations, RowsOfTheListGiveNamesNumbersAndClasses) {
    ResultProject project;
    WithFamily(project, 0, 6, "101 1 3\n108 7 2\n");
    ASSERT_TRUE(project.Load());
    const int numbers[] = {1, 2, 3, 7, 8, 0};
    const char* names[] = {"STRENGTH-I", "STRENGTH-I", "STRENGTH-I", "SERVICE-I", "SERVICE-I", "none"};
    const int classes[] = {0, 0, 0, 1, 1, 0};
    for (std::size_t c = 0; c < 6; ++c) {
        EXPECT_EQ(First(project).m_LoadCases[c].m_nNumber, numbers[c]) << c;
        EXPECT_EQ(First(project).m_LoadCases[c].m_sLimitState, names[c]) << c;
        EXPECT_EQ(First(project).m_LoadCases[c].m_nLimitClass, classes[c]) << c;
    }
    EXPECT_THAT(FirstCases(project), testing::ElementsAre(0, 3, -1, -1));
    EXPECT_TRUE(First(project).m_bCombinations);
}

TEST(Combinations, AListOutOfUseLeavesEveryCaseWithoutALimitState) {
    ResultProject project;
    WithFamily(project, 0, 2, "101 1 2\n");
    project.WriteFile(".LIM", "x\nA= 0 F= 1\nx\nx\n112 1 2\n:\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(First(project).m_LoadCases[1].m_sLimitState, "none");
    EXPECT_EQ(First(project).m_LoadCases[1].m_nLimitClass, 0);
    EXPECT_THAT(FirstCases(project), testing::ElementsAre(0, -1, -1, -1));
}

TEST(Combinations, ARowOfNoneAssignsNothing) {
    ResultProject project;
    WithFamily(project, 0, 3, "101 1 1\n106 5 0\n108 2 1\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(First(project).m_LoadCases[1].m_sLimitState, "SERVICE-I");
    EXPECT_EQ(First(project).m_LoadCases[1].m_nNumber, 2);
    EXPECT_EQ(First(project).m_LoadCases[2].m_sLimitState, "none");
}

TEST(Combinations, ARowThatTakesBackCasesNeverWritesBeforeTheFirst) {
    ResultProject project;
    WithFamily(project, 0, 2, "101 1 -3\n112 1 4\n");
    ASSERT_TRUE(project.Load());
    // Three of the four positions are before the first case.
    EXPECT_EQ(First(project).m_LoadCases[0].m_sLimitState, "FATIGUE-I");
    EXPECT_EQ(First(project).m_LoadCases[0].m_nNumber, 4);
    EXPECT_EQ(First(project).m_LoadCases[1].m_sLimitState, "none");
}

TEST(Combinations, ALineWithoutThreeNumbersIsPassedOver) {
    ResultProject project;
    WithFamily(project, 0, 2, "words\n101 1\n\n101 1 2\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(First(project).m_LoadCases[1].m_sLimitState, "STRENGTH-I");
}

TEST(Combinations, TheSecondOfTheSkippedLinesMayHoldTheFirstRow) {
    ResultProject project;
    WithFamily(project, 0, 1, "");
    project.WriteFile(".LIM", "x\nA= 1 F= 1\nx\n106 4 1\n:\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(First(project).m_LoadCases[0].m_sLimitState, "EXTREME-I");
}

TEST(Combinations, TheFirstOfTheSkippedLinesIsNoRowWhateverItHolds) {
    ResultProject project;
    WithFamily(project, 0, 2, "");
    project.WriteFile(".LIM", "x\nA= 1 F= 1\n112 9 1\nx\n106 4 1\n:\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(First(project).m_LoadCases[0].m_sLimitState, "EXTREME-I");
    EXPECT_EQ(First(project).m_LoadCases[0].m_nNumber, 4);
    EXPECT_EQ(First(project).m_LoadCases[1].m_sLimitState, "none");
}

TEST(Combinations, MoreRowsThanCasesEndTheList) {
    ResultProject project;
    WithFamily(project, 0, 2, "101 1 1\n106 2 3\n112 9 1\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(First(project).m_LoadCases[1].m_nLimitClass, 2);
    EXPECT_THAT(FirstCases(project), testing::ElementsAre(0, -1, 1, -1));
}

TEST(Combinations, FatigueAloneLeavesTheOtherClassesAbsent) {
    ResultProject project;
    WithFamily(project, 0, 2, "112 1 2\n");
    ASSERT_TRUE(project.Load());
    EXPECT_THAT(FirstCases(project), testing::ElementsAre(-1, -1, -1, 0));
    EXPECT_TRUE(project.Data().HasOnlyFatigue(CaseSelection(project.Data())));
}

TEST(Combinations, LoadFactorDesignHasOneClassAndNoFirstCases) {
    ResultProject project;
    WithFamily(project, 1, 2, "201 1 1\n210 2 1\n");
    ASSERT_TRUE(project.Load());
    EXPECT_TRUE(First(project).m_bCombinations);
    EXPECT_EQ(First(project).m_LoadCases[1].m_sLimitState, "GROUP-IX");
    EXPECT_EQ(First(project).m_LoadCases[1].m_nLimitClass, 0);
    EXPECT_THAT(FirstCases(project), testing::ElementsAre(-1, -1, -1, -1));
}

TEST(Combinations, AnUnknownCodeIsReportedForEachCombinationAndCountsAsService) {
    ResultProject project;
    WithFamily(project, 2, 3, "101 1 2\n318 3 1\n");
    ASSERT_TRUE(project.Load());
    EXPECT_THAT(project.messages.texts, testing::ElementsAre("Invalid limit state", "Invalid limit state"));
    EXPECT_EQ(First(project).m_LoadCases[0].m_nLimitClass, 1);
    EXPECT_EQ(First(project).m_LoadCases[2].m_sLimitState, "SLD-GROUP-VIII");
}

TEST(Combinations, AnUnknownCodeIsReportedOnceForACombinationThatManyRowsUse) {
    ResultProject project;
    project.substructures[0].piles = 0;
    project.substructures[0].pileSections.clear();
    std::string rows;
    for (int i = 0; i < 20; ++i) rows += "999 1 2000\n999 1 -2000\n";
    WithFamily(project, 0, 2000, rows);
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.messages.texts.size(), 2000U);
    EXPECT_THAT(project.messages.texts, testing::Each("Invalid limit state"));
    EXPECT_EQ(First(project).m_LoadCases[1999].m_sLimitState, "ERROR 1");
    EXPECT_EQ(First(project).m_LoadCases[1999].m_nNumber, 2000);
    EXPECT_EQ(First(project).m_LoadCases[1999].m_nLimitClass, 1);
}

TEST(Combinations, AnUnknownCodeIsReportedForEachSubstructure) {
    ResultProject project;
    project.substructures.resize(3);
    project.substructures[1].codeFamily = 1;  // every code has the one class there
    project.substructures[2].codeFamily = 2;
    WithFamily(project, 0, 4, "999 1 3\n999 1 -2\n999 1 2\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.messages.texts.size(), 6U);
}

TEST(Combinations, TheLastOfTheRowsThatTakeACaseCounts) {
    ResultProject project;
    // Case:         0    1    2    3    4    5    6    7    8
    // 101 10 8    101  101  101  101  101  101  101  101
    // 999 20 5         999  999  999  999  999
    // 106 30 1                   106
    WithFamily(project, 0, 9, "101 10 8\n101 1 -7\n999 20 5\n101 1 -3\n106 30 1\n");
    ASSERT_TRUE(project.Load());
    const char* names[] = {"STRENGTH-I", "ERROR 1",    "ERROR 1",    "EXTREME-I", "ERROR 1",
                           "ERROR 1",    "STRENGTH-I", "STRENGTH-I", "none"};
    const int numbers[] = {10, 20, 21, 30, 23, 24, 16, 17, 0};
    const int classes[] = {0, 1, 1, 2, 1, 1, 0, 0, 0};
    for (std::size_t c = 0; c < 9; ++c) {
        EXPECT_EQ(First(project).m_LoadCases[c].m_sLimitState, names[c]) << c;
        EXPECT_EQ(First(project).m_LoadCases[c].m_nNumber, numbers[c]) << c;
        EXPECT_EQ(First(project).m_LoadCases[c].m_nLimitClass, classes[c]) << c;
    }
    // Case 3 is reported as well: its unknown code came before the valid one.
    EXPECT_EQ(project.messages.texts.size(), 5U);
}

TEST(Combinations, ManyRowsOverTheSameCasesTakeNoLongerThanTheRowsAndTheCases) {
    ResultProject project;
    constexpr int kManyCases = 20000, kManyPairs = 20000;
    project.substructures[0].piles = 0;
    project.substructures[0].pileSections.clear();
    std::string rows;
    for (int i = 0; i < kManyPairs; ++i) rows += "101 1 20000\n101 1 -20000\n";
    WithFamily(project, 0, kManyCases, rows + "112 5 20000\n");
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_TRUE(project.Load());
    // Row by row and case by case these are 400 million steps.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
    EXPECT_EQ(First(project).m_LoadCases[0].m_sLimitState, "FATIGUE-I");
    EXPECT_EQ(First(project).m_LoadCases[kManyCases - 1].m_nNumber, kManyCases + 4);
}

TEST(Combinations, ATitleMayLookLikeAMark) {
    ResultProject project;
    WithFamily(project, 0, 3, "101 1 3\n");
    project.WriteFile(
        ".CMB",
        "heading\r\n[Comb. 1]\r\n[Comb. in its title\r\n\r\nx\r\n[Comb. 2]\r\n  Dead and live \r\n"
        "a\nb\nc\nd\ne\n[Comb. 3]\nlate\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(First(project).m_LoadCases[0].m_sName, "[Comb. in its title");
    EXPECT_EQ(First(project).m_LoadCases[1].m_sName, "Dead and live ");
    // Four lines without a mark are looked at; the line after them is taken as the title.
    EXPECT_EQ(First(project).m_LoadCases[2].m_sName, "e");
}

TEST(Combinations, WithoutAFamilyFileTheTextFilesAreStillRead) {
    ResultProject project;
    project.Write();
    project.WriteFile(".LIM", "x\nA= 1\nx\nx\n101 5 1\n:\n");
    ASSERT_TRUE(project.Load());
    EXPECT_FALSE(First(project).m_bCombinations);
    EXPECT_EQ(First(project).m_nCodeFamily, -1);
    EXPECT_EQ(First(project).m_LoadCases[0].m_sName, "");
    EXPECT_EQ(First(project).m_LoadCases[0].m_nNumber, 5);
}

TEST(Combinations, AFamilyOfNoneLeavesTheTextFilesUnread) {
    ResultProject project;
    WithFamily(project, -1, 2, "101 1 2\n");
    ASSERT_TRUE(project.Load());
    EXPECT_FALSE(First(project).m_bCombinations);
    EXPECT_EQ(First(project).m_LoadCases[0].m_sName, "none");
    EXPECT_EQ(First(project).m_LoadCases[0].m_sLimitState, "none");
}

TEST(Combinations, NamesGoToTheFirstSubstructureAndClassesToEach) {
    ResultProject project;
    project.substructures.resize(2);
    project.substructures[1].codeFamily = 0;
    WithFamily(project, 0, 2, "106 3 2\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_Piers[1].m_LoadCases[0].m_nLimitClass, 2);
    EXPECT_EQ(project.Data().m_Piers[1].m_LoadCases[0].m_sLimitState, "none");
    EXPECT_EQ(project.Data().m_Piers[0].m_LoadCases[0].m_sLimitState, "EXTREME-I");
}

}  // namespace lumerin
