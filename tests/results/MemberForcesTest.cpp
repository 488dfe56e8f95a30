// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "support/ResultProject.h"

namespace lumerin {

// Which record of the force file feeds which element, and with which sign.

namespace {

double Force(const ResultProject& project, int loadCase, int element, int end, int component) {
    return GetForce(project.Forces(loadCase, element), end, component);
}

// The record of a block that an element was fed from, by PlainWord: record * 100 + word 13 at FAX I.
int RecordOf(const ResultProject& project, int loadCase, int element) {
    return static_cast<int>(Force(project, loadCase, element, kEndI, kAxial) - 13 - loadCase * 10000) / 100;
}

float Ones(std::size_t, int, int, int) {
    return 1.0F;
}

}  // namespace

TEST(MemberForces, APileElementTurnsTheSignsOfItsRecord) {
    ResultProject project;
    project.Write(Ones);
    ASSERT_TRUE(project.Load());
    const double i[] = {1, -1, -1, 1, 1, -1, 1};
    const double j[] = {1, 1, 1, -1, -1, -1, 1};
    for (int component = 0; component < 7; ++component) {
        EXPECT_EQ(Force(project, 0, 0, kEndI, component), i[component]) << component;
        EXPECT_EQ(Force(project, 0, 0, kEndJ, component), j[component]) << component;
    }
}

TEST(MemberForces, AColumnElementKeepsTheTorqueAtI) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write(Ones);
    ASSERT_TRUE(project.Load());
    const int column = project.Pier().ColumnElement(1, 0);
    EXPECT_EQ(Force(project, 0, column, kEndI, kF22), -1.0);
    EXPECT_EQ(Force(project, 0, column, kEndJ, kF22), 1.0);
    EXPECT_EQ(Force(project, 0, column, kEndI, kTorque), 1.0);
    EXPECT_EQ(Force(project, 0, column, kEndJ, kTorque), -1.0);
}

TEST(MemberForces, EachWordGoesToItsComponent) {
    ResultProject project;
    project.Write([](std::size_t, int, int, int w) { return static_cast<float>(w); });
    ASSERT_TRUE(project.Load());
    const double i[] = {13, -1, -2, 6, 5, -15, 11};
    const double j[] = {14, 3, 4, -8, -7, -16, 12};
    for (int component = 0; component < 7; ++component) {
        EXPECT_EQ(Force(project, 1, 3, kEndI, component), i[component]) << component;
        EXPECT_EQ(Force(project, 1, 3, kEndJ, component), j[component]) << component;
    }
}

TEST(MemberForces, PilesComeInOrderFromTheHeadCaseAfterCase) {
    ResultProject project;
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    for (int c = 0; c < 2; ++c) {
        for (int p = 0; p < 2; ++p) {
            for (int e = 0; e < 2; ++e)
                EXPECT_EQ(RecordOf(project, c, pier.PileElement(p, e)), p * 2 + e + 1);
        }
    }
}

TEST(MemberForces, APiersElementsTakeTheRecordsOfTheirNumbers) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    // Four pile records come first; element number n is record 4 + n.
    const CFrame& frame = pier.m_Frame;
    for (int e = 0; e < 2; ++e) {
        EXPECT_EQ(RecordOf(project, 1, pier.ColumnElement(0, e)), 4 + 9 + e);
        EXPECT_EQ(RecordOf(project, 1, frame.m_Cantilevers[0].m_nFirstElement + e), 4 + 11 + e);
        EXPECT_EQ(RecordOf(project, 1, frame.m_Beam.m_nFirstElement + e), 4 + 13 + e);
        EXPECT_EQ(RecordOf(project, 1, pier.ColumnElement(1, e)), 4 + 15 + e);
        EXPECT_EQ(RecordOf(project, 1, frame.m_Cantilevers[1].m_nFirstElement + e), 4 + 17 + e);
    }
}

TEST(MemberForces, AnElementAtAGapStaysAtZero) {
    ResultProject project;
    project.substructures[0] = MakePier();
    ResultSubstructure& sub = project.substructures[0];
    // Number 14, the second element of the span, has no row: the rows after it move up by one record.
    sub.rows.erase(sub.rows.begin() + 13);
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    const CFrame& frame = pier.m_Frame;
    const int span = frame.m_Beam.m_nFirstElement;
    EXPECT_EQ(RecordOf(project, 0, span), 4 + 13);
    for (int component = 0; component < 7; ++component)
        EXPECT_EQ(Force(project, 0, span + 1, kEndI, component), 0.0);
    EXPECT_EQ(pier.Element(span + 1).m_nSection, -1);
    EXPECT_TRUE(pier.IsMasked(span + 1));
    EXPECT_FALSE(pier.IsMasked(span));
    EXPECT_EQ(RecordOf(project, 0, pier.ColumnElement(1, 0)), 4 + 14);
    EXPECT_EQ(RecordOf(project, 0, frame.m_Cantilevers[1].m_nFirstElement + 1), 4 + 17);
    EXPECT_EQ(pier.Element(frame.m_Cantilevers[1].m_nFirstElement).m_nSection, 4);
}

TEST(MemberForces, AGapInTheLeftCantileverMovesTheForcesOfTheSpans) {
    ResultProject project;
    project.substructures[0] = MakePier();
    ResultSubstructure& sub = project.substructures[0];
    // Number 11, the cantilever's first element, has no row.
    sub.rows.erase(sub.rows.begin() + 10);
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    const CFrame& frame = pier.m_Frame;
    const int left = frame.m_Cantilevers[0].m_nFirstElement, span = frame.m_Beam.m_nFirstElement;
    // The mask is at the gap. Number 12 goes to the cantilever's first element, and number 13 finds the
    // span's index moved by one; number 14 finds no element any more.
    EXPECT_TRUE(pier.IsMasked(left));
    EXPECT_FALSE(pier.IsMasked(left + 1));
    EXPECT_EQ(RecordOf(project, 0, left), 4 + 11);
    EXPECT_EQ(Force(project, 0, left + 1, kEndI, kAxial), 0.0);
    EXPECT_EQ(Force(project, 0, span, kEndI, kAxial), 0.0);
    EXPECT_EQ(RecordOf(project, 0, span + 1), 4 + 12);
    EXPECT_EQ(RecordOf(project, 0, frame.m_Cantilevers[1].m_nFirstElement), 4 + 16);
    EXPECT_EQ(RecordOf(project, 0, frame.m_Cantilevers[1].m_nFirstElement + 1), 4 + 17);
}

TEST(MemberForces, RatiosThatAreNoNumbersReadAsZeroInPilesAlone) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0];
    sub.extraMembers = 1;
    sub.xMemberSections = 1;
    sub.rows = {{1, 1, 2, 7}};
    const float nan = std::numeric_limits<float>::quiet_NaN();
    project.Write([nan](std::size_t, int, int, int w) { return w == 11 || w == 12 ? nan : 2.0F; });
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    EXPECT_EQ(Force(project, 0, 0, kEndI, kDemandCapacity), 0.0);
    EXPECT_EQ(Force(project, 0, 0, kEndJ, kDemandCapacity), 0.0);
    const int extra = pier.m_Frame.m_XMembers[0].m_nFirstElement;
    EXPECT_TRUE(std::isnan(Force(project, 0, extra, kEndI, kDemandCapacity)));
    EXPECT_TRUE(project.Finite().piles);
    EXPECT_FALSE(project.Finite().extraMembers);
}

TEST(MemberForces, TheLastRecordsOfABlockAreTheExtraMembers) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0];
    sub.extraMembers = 2;
    sub.xMemberSections = 2;
    sub.rows = {{1, 1, 1, 1}, {2, 4, 9, 8}, {3, 5, 10, 7}};
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    for (int x = 0; x < 2; ++x) {
        const int element = pier.m_Frame.m_XMembers[static_cast<std::size_t>(x)].m_nFirstElement;
        EXPECT_EQ(RecordOf(project, 0, element), 4 + 2 + x);
        EXPECT_EQ(pier.Element(element).m_nElementNumber, 2 + x);
        EXPECT_EQ(pier.Element(element).m_nNodeI, 4 + x);
        EXPECT_EQ(pier.Element(element).m_nNodeJ, 9 + x);
        EXPECT_EQ(pier.Element(element).m_nSection, 8 - x);
    }
    EXPECT_EQ(pier.m_nXMemberFirstSection, 7);
}

// Their tables begin at the lowest section of all, wherever it is in the list.
TEST(MemberForces, TheFirstSectionOfTheExtraMembersIsTheLowest) {
    for (const std::vector<int>& sections : {std::vector<int>{5, 6, 7}, {6, 5, 7}, {7, 6, 5}, {5, 5, 9}}) {
        ResultProject project;
        ResultSubstructure& sub = project.substructures[0];
        sub.extraMembers = 3;
        sub.xMemberSections = 3;
        sub.rows = {{1, 1, 1, 1}, {2, 4, 9, sections[0]}, {3, 5, 10, sections[1]}, {4, 6, 11, sections[2]}};
        project.Write();
        ASSERT_TRUE(project.Load());
        EXPECT_EQ(project.Pier().m_nXMemberFirstSection, 5);
    }
}

TEST(MemberForces, AFirstGroupKeepsTheFramesOfLaterSubstructuresUnread) {
    ResultProject project;
    project.substructures = {ResultSubstructure{}, MakePier()};
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Data().m_Piers[1];
    EXPECT_EQ(GetForce(project.Forces(0, pier.ColumnElement(0, 0), 1), kEndI, kAxial), 0.0);
    EXPECT_NE(GetForce(project.Forces(0, pier.PileElement(0, 0), 1), kEndI, kAxial), 0.0);
}

TEST(MemberForces, AShortFileRepeatsTheRecordBeforeAndIsReportedOnce) {
    ResultProject project;
    project.Write();
    std::filesystem::resize_file(project.Path(".vmd"), 68 * 6 + 20);
    ASSERT_TRUE(project.Load());
    ASSERT_EQ(project.messages.texts.size(), 1U);
    EXPECT_THAT(project.messages.texts[0], testing::HasSubstr("p.vmd"));
    EXPECT_THAT(project.messages.texts[0], testing::HasSubstr(": 2 force records are missing"));
    EXPECT_EQ(project.Loaded().missingRecords, 2);
    const CPier& pier = project.Pier();
    // Case 1 has its first pile; both elements of the second take the second element's record.
    EXPECT_EQ(RecordOf(project, 1, pier.PileElement(0, 1)), 2);
    EXPECT_EQ(RecordOf(project, 1, pier.PileElement(1, 0)), 2);
    EXPECT_EQ(RecordOf(project, 1, pier.PileElement(1, 1)), 2);
}

TEST(MemberForces, AFileCutBetweenTwoCasesRepeatsTheLastRecordToo) {
    ResultProject project;
    project.Write();
    // Four records a case: the second of the two cases is missing as a whole.
    std::filesystem::resize_file(project.Path(".vmd"), 68 * 4);
    ASSERT_TRUE(project.Load());
    ASSERT_EQ(project.messages.texts.size(), 1U);
    EXPECT_THAT(project.messages.texts[0], testing::HasSubstr(": 4 force records are missing"));
    // Record 4 of case 0, word 13.
    for (int e = 0; e < 4; ++e) EXPECT_EQ(Force(project, 1, e, kEndI, kAxial), 413.0) << e;
}

TEST(MemberForces, AMissingFileIsNamed) {
    ResultProject project;
    project.Write();
    project.Remove(".vmd");
    try {
        project.Load();
        FAIL();
    } catch (const CFileException& error) {
        EXPECT_THAT(std::string(error.what()), testing::HasSubstr("p.vmd"));
    }
}

TEST(MemberForces, ALongFileIsReadInPiecesWithoutASeam) {
    ResultProject project;
    project.cases = 9000;  // 36000 records, more than one piece
    project.Write([](std::size_t, int c, int r, int) { return static_cast<float>(c * 4 + r); });
    ASSERT_TRUE(project.Load());
    for (const int c : {0, 1, 8190, 8191, 8192, 8193, 8999}) {
        for (int e = 0; e < 4; ++e) EXPECT_EQ(Force(project, c, e, kEndI, kAxial), c * 4 + e + 1);
    }
}

// A pass and a single row see the same: zeros whose signs are turned, as the conversion of any record does.
TEST(MemberForces, AForceFileWithoutRecordsGivesZerosWithTurnedSigns) {
    ResultProject project;
    project.Write(Ones);
    project.WriteFile(".vmd", "");
    ASSERT_TRUE(project.Load());
    const bool negative[] = {false, true, true, false, false, true, false};
    const ForceRow row = project.Forces(1, 0);
    for (std::size_t component = 0; component < 7; ++component) {
        EXPECT_EQ(row[component], 0.0F) << component;
        EXPECT_EQ(std::signbit(row[component]), negative[component]) << component;
    }
    project.Loaded().forces[0]->ReadCases([&](int, CaseForces forces) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            EXPECT_EQ(std::signbit(forces[i]), std::signbit(row[i])) << i;
        }
    });
}

}  // namespace lumerin
