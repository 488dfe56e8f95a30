// SPDX-License-Identifier: MIT
#include <climits>
#include <cstring>

#include "support/ResultProject.h"

namespace lumerin {

// What the pile file, the pile model file and the convergence file make of a substructure.

TEST(PierHeader, AConvergenceFileOfFiveRequestsLeavesTheOptionalValues) {
    ResultProject project;
    project.mode = 1;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_nAnalysisMode, 1);
    EXPECT_EQ(project.Data().m_dNcvReal, 0.0);
    EXPECT_EQ(project.Data().m_nNcvInteger, 0);
}

TEST(PierHeader, AConvergenceFileMayCarryARealAndAnInteger) {
    ResultProject project;
    project.Write();
    project.WriteFile(".ncv", ResultProject::Convergence(2).Ints({0}).Doubles({1.5}).Ints({8}).End());
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_dNcvReal, 1.5);
    EXPECT_EQ(project.Data().m_nNcvInteger, 8);
}

TEST(PierHeader, TheConvergedCountReplacesTheAnalysedCount) {
    ResultProject project;
    project.cases = 2;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_nLoadCases, 2);
    EXPECT_EQ(project.Pier().m_LoadCases.size(), 2U);
}

TEST(PierHeader, AnEmptyConvergenceFileLeavesTheAnalysedCount) {
    ResultProject project;
    project.cases = 3;
    project.Write();
    project.WriteFile(".ncv", SeqBytes().End());
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_nLoadCases, 3);
}

TEST(PierHeader, NothingAnalysedEndsTheLoadWithItsMessage) {
    ResultProject project;
    project.Write();
    project.WriteFile(".PIL", ResultProject::PileModel(project.substructures[0], 0));
    EXPECT_FALSE(project.Load());
    EXPECT_THAT(project.messages.texts,
                testing::ElementsAre("No load cases converged.  There are no results to view."));
}

TEST(PierHeader, NothingConvergedEndsTheLoadWithItsMessage) {
    ResultProject project;
    project.Write();
    project.WriteFile(".ncv", ResultProject::Convergence(0).End());
    EXPECT_FALSE(project.Load());
    EXPECT_THAT(project.messages.texts,
                testing::ElementsAre("No load cases converged. Results cannot be viewed."));
}

TEST(PierHeader, ADerivedTypeGoesByTheRowsOfPiles) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0];
    sub.type = -1;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_nStructureType, 1);
    sub.rowsB = 1;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_nStructureType, 2);
}

TEST(PierHeader, TheLastSubstructuresUnitsHeadAllTables) {
    ResultProject project;
    project.substructures.resize(2);
    project.substructures[0].units = 1;
    project.substructures[1].units = 0;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_nUnits, 0);
    EXPECT_EQ(project.Data().m_sForceUnit, "kips");
    EXPECT_EQ(project.Pier().m_nUnits, 1);
}

TEST(PierHeader, UnitsThreeAreUsUnits) {
    ResultProject project;
    for (const auto& [word, units, force, moment] : {std::tuple{3, 0, "kips", "kip-ft"},
                                                     {0, 0, "kips", "kip-ft"},
                                                     {1, 1, "kN", "kN-m"},
                                                     {2, 2, "kN", "kN-m"}}) {
        project.substructures[0].units = word;
        project.Write();
        ASSERT_TRUE(project.Load());
        EXPECT_EQ(project.Data().m_nUnits, units);
        EXPECT_EQ(project.Pier().m_nUnits, units);
        EXPECT_EQ(project.Data().m_sForceUnit, force);
        EXPECT_EQ(project.Data().m_sMomentUnit, moment);
    }
}

TEST(PierHeader, APilesWidthComesFromItsFirstElementsRecord) {
    ResultProject project;
    // Section 1 is round: its first dimension; section 2 is not: its second.
    project.substructures[0].pileSections = {{2, 1}, {1, 2}};
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Pier().m_Piles[0].m_dDimension, 16.0);
    EXPECT_EQ(project.Pier().m_Piles[1].m_dDimension, 12.0);
}

TEST(PierHeader, NoColumnSectionsCountAsOne) {
    ResultProject project;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_nColumnSections, 0);
    EXPECT_EQ(project.Pier().m_nColumnSections, 1);
}

// The words of the model header that describe a frame: columns, cantilevers, their nodes, nodes of a column
// and of a span, and column sections.
constexpr std::size_t kFrameWords[] = {0, 1, 2, 5, 6, 11};

namespace {

// Replaces one of the thirteen words in the bytes of a pile file. Its record is the only one of 52 bytes.
std::string WithHeaderWord(const ResultSubstructure& sub, std::size_t word, int value) {
    std::string file = ResultProject::PileFile(sub);
    const std::size_t frame = file.find(std::string(1, '\x34'), file.find(std::string(128, '\0') + "\x80\f"));
    EXPECT_EQ(file[frame + 53], '\x34');
    std::memcpy(file.data() + frame + 1 + 4 * word, &value, sizeof(value));
    return file;
}

}  // namespace

TEST(PierHeader, WhereNoFrameIsReadItsWordsMayHoldAnything) {
    // A type of -1 becomes a pile group.
    for (const int type : {-1, 1, 2, 6, 8}) {
        ResultProject project;
        project.substructures[0].type = type;
        project.Write();
        for (const std::size_t word : kFrameWords) {
            for (const int value : {INT_MIN, -7, -1, 3, 1000000, INT_MAX}) {
                project.WriteFile(".PLF", WithHeaderWord(project.substructures[0], word, value));
                ASSERT_TRUE(project.Load()) << "type " << type << " word " << word << " of " << value;
                EXPECT_EQ(project.Forces(1, 3)[kAxial], 10413.0F);
            }
        }
    }
}

TEST(PierHeader, AllWordsOfAnUnreadFrameTogetherTakeNoMemory) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0];
    for (const int value : {1000000, INT_MAX, INT_MIN}) {
        sub.columns = sub.cantilevers = sub.cantileverNodes = sub.columnNodes = sub.spanNodes = value;
        sub.columnSections = value;
        project.Write();
        ASSERT_TRUE(project.Load()) << value;
        EXPECT_LE(project.Pier().ElementCount(), 5);
        EXPECT_EQ(project.Pier().m_nColumnSections, 1);
    }
}

TEST(PierHeader, APierAfterAGroupKeepsItsFrameAndAWrongTypeLeavesItOut) {
    ResultProject project;
    project.substructures = {ResultSubstructure{}, MakePier()};
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_Piers[1].m_Frame.m_Columns.size(), 2U);
    EXPECT_EQ(project.Data().m_Piers[1].m_CapPointX.size(), 7U);
    for (const std::size_t word : kFrameWords) {
        for (const int value : {INT_MIN, -7, 1000000, INT_MAX}) {
            project.WriteFile(".PLF2", WithHeaderWord(project.substructures[1], word, value));
            EXPECT_TRUE(project.Load()) << "word " << word << " of " << value;
        }
    }
    project.substructures[1].columns = project.substructures[1].columnNodes = 1000000;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_TRUE(project.Data().m_Piers[1].m_Frame.m_Columns.empty());
}

TEST(PierHeader, WhereAFrameIsReadItsWordsAreJudged) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    struct {
        std::size_t word;
        int value;
    } const lies[] = {{0, -1}, {0, 1000001}, {2, -2}, {5, -2}, {6, -2}, {6, 1000001}, {11, 1001}};
    for (const auto& lie : lies) {
        project.WriteFile(".PLF", WithHeaderWord(project.substructures[0], lie.word, lie.value));
        EXPECT_THROW(project.Load(), CFileException) << lie.word << " of " << lie.value;
    }
    // The same for a group after a pier: the first substructure decides what is read.
    project.substructures = {MakePier(), ResultSubstructure{}};
    project.substructures[1].columns = -1;
    project.Write();
    EXPECT_THROW(project.Load(), CFileException);
}

TEST(PierHeader, MinusOneNodesAreNoElements) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0] = MakePier();
    sub.cantileverNodes = sub.columnNodes = sub.spanNodes = -1;
    sub.nodes.resize(4);  // the foundation's two, and one for each column
    // Rows: the foundation's eight alone.
    sub.rows.resize(8);
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    EXPECT_EQ(pier.m_nPierNodes, 1);    // one for each column, less one for a span of -1
    EXPECT_EQ(pier.ElementCount(), 4);  // those of the piles
    EXPECT_EQ(pier.m_Frame.m_Columns.size(), 2U);
    EXPECT_EQ(pier.m_Frame.m_Beam.m_nElements, 0);
    EXPECT_EQ(pier.m_Frame.m_Cantilevers[0].m_nElements, 0);
}

TEST(PierHeader, ColumnsOfMinusOneNodesTakeNoRowOfTheElementTable) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0] = MakePier();
    // Two columns of one node each; cantilevers and span as before: six cap elements.
    sub.columnNodes = -1;
    sub.nodes.resize(9);  // foundation 2, each column 1, each cantilever 2, span 1
    sub.rows.resize(8);
    for (int i = 0; i < 6; ++i) sub.rows.push_back({9 + i, 0, 0, 11 + i});
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    const CFrame& frame = pier.m_Frame;
    const CElement& left = pier.Element(frame.m_Cantilevers[0].m_nFirstElement);
    EXPECT_EQ(left.m_nElementNumber, 9);
    EXPECT_EQ(left.m_nSection, 11);
    EXPECT_EQ(left.m_nNodeI, 4);  // column 0 is node 3
    EXPECT_EQ(pier.Element(frame.m_Cantilevers[0].m_nFirstElement + 1).m_nNodeJ, 3);
    const CElement& span = pier.Element(frame.m_Beam.m_nFirstElement);
    EXPECT_EQ(span.m_nElementNumber, 11);
    EXPECT_EQ(span.m_nSection, 13);
    EXPECT_EQ(span.m_nNodeI, 3);
    EXPECT_EQ(span.m_nNodeJ, 6);
    EXPECT_EQ(pier.Element(frame.m_Beam.m_nFirstElement + 1).m_nNodeJ, 7);  // column 1
    const CElement& right = pier.Element(frame.m_Cantilevers[1].m_nFirstElement);
    EXPECT_EQ(right.m_nElementNumber, 13);
    EXPECT_EQ(right.m_nSection, 15);
    EXPECT_EQ(right.m_nNodeI, 7);
    EXPECT_EQ(right.m_nNodeJ, 8);
    // Forces are found by the element number: record 4 + 9 of each case, piles first.
    EXPECT_EQ(project.Forces(0, frame.m_Cantilevers[0].m_nFirstElement)[kAxial], 1313.0F);
}

TEST(PierHeader, ColumnSectionsBelowOneCountAsOne) {
    ResultProject project;
    project.substructures[0] = MakePier();
    for (const int sections : {1, 0, -1, -7, INT_MIN}) {
        project.substructures[0].columnSections = sections;
        project.Write();
        ASSERT_TRUE(project.Load()) << sections;
        EXPECT_EQ(project.Pier().m_nColumnSections, 1);
    }
}

TEST(PierHeader, NegativeExtraMembersAndTheirSectionsCountAsNone) {
    ResultProject project;
    for (const int count : {-1, -7, INT_MIN}) {
        project.substructures[0].extraMembers = project.substructures[0].xMemberSections = count;
        project.Write();
        ASSERT_TRUE(project.Load()) << count;
        const CPier& pier = project.Pier();
        EXPECT_EQ(pier.m_nExtraMembers, 0);
        EXPECT_EQ(pier.m_nXMemberSections, 0);
        EXPECT_FALSE(project.Data().HasExtraMembers());
    }
}

TEST(PierHeader, WhatNothingUsesAtTheEndOfAFileMayBeAbsent) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    // The records after the case count, one after the other.
    project.mode = 1;
    for (int records = 0; records < 4; ++records) {
        SeqBytes file;
        file.Ints({2});
        if (records > 0) file.Zeros(16);
        for (int i = 1; i < records; ++i) file.Zeros(4);
        for (const std::string& bytes : {file.End(), file.WithoutEnd()}) {
            project.WriteFile(".ncv", bytes);
            ASSERT_TRUE(project.Load()) << records;
            EXPECT_EQ(project.Data().m_nLoadCases, 2);
            EXPECT_EQ(project.Data().m_nAnalysisMode, 0);
        }
    }
    project.Write();
    // The closing counts of the pile file are eight bytes in their frame, and the end mark.
    const std::string pileFile = ResultProject::PileFile(project.substructures[0]);
    for (const std::size_t cut : {1U, 2U, 10U, 11U}) {
        project.WriteFile(".PLF", pileFile.substr(0, pileFile.size() - cut));
        ASSERT_TRUE(project.Load()) << cut;
        EXPECT_EQ(project.Data().m_nPlfExtraCount, 0);
    }
    project.Write();
    // The flags of two piles in the pile model file likewise.
    const std::string modelFile = ResultProject::PileModel(project.substructures[0]);
    for (const std::size_t cut : {1U, 2U, 10U, 11U}) {
        project.WriteFile(".PIL", modelFile.substr(0, modelFile.size() - cut));
        EXPECT_TRUE(project.Load()) << cut;
    }
    // What is used before them must be there.
    project.WriteFile(".PIL", modelFile.substr(0, modelFile.size() - 13));
    EXPECT_THROW(project.Load(), CFileException);
}

TEST(PierHeader, GapsInTheElementNumbersAreMasked) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0];
    sub.type = 3;
    sub.nodes.assign(1, {0.0, 0.0, 0.0});
    sub.rows = {{1, 1, 1, 1}, {2, 1, 1, 1}, {5, 1, 1, 1}};
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_nElementGaps, 2);
    EXPECT_THAT(project.Pier().m_ElementMask, testing::ElementsAre(0, 0, 1, 1, 0));
}

TEST(PierHeader, AGroupHasNoMask) {
    ResultProject project;
    project.substructures[0].rows = {{1, 1, 1, 1}, {4, 1, 1, 1}};
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_TRUE(project.Pier().m_ElementMask.empty());
    EXPECT_EQ(project.Data().m_nElementGaps, 2);
}

TEST(PierHeader, APiersOwnNodesAreReadWithoutItsFoundations) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    // One span node, two columns of three nodes, two cantilevers of two.
    EXPECT_EQ(pier.m_nPierNodes, 11);
    EXPECT_EQ(pier.m_nFoundationNodes, 2);
    ASSERT_EQ(pier.m_dNodes.size(), 11U);
    EXPECT_EQ(pier.m_dNodes[0][0], 102.0);
}

}  // namespace lumerin
