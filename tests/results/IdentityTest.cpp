// SPDX-License-Identifier: MIT
#include "support/ResultProject.h"

namespace lumerin {

// Element numbers, node numbers and sections of a substructure, worked out on the drawing of MakePier.

namespace {

void ExpectElement(const ResultProject& project, int element, int number, int nodeI, int nodeJ, int section) {
    const CElement& found = project.Pier().Element(element);
    EXPECT_EQ(found.m_nElementNumber, number);
    EXPECT_EQ(found.m_nNodeI, nodeI) << "element " << number;
    EXPECT_EQ(found.m_nNodeJ, nodeJ) << "element " << number;
    EXPECT_EQ(found.m_nSection, section) << "element " << number;
}

// A bent on three piles with a cantilever of one element on each side and spans of two.
ResultSubstructure MakeBent() {
    ResultSubstructure sub;
    sub.type = 7;
    sub.columns = 3;
    sub.cantilevers = 2;
    sub.cantileverNodes = 0;
    sub.spanNodes = 1;
    sub.piles = 3;
    sub.pileSections = {{1, 1}, {1, 1}, {2, 2}};
    sub.rowsB = 3;
    // Heads 1 to 3, left tip 4, span nodes 5 and 6, right tip 7.
    for (int i = 0; i < 7; ++i) sub.nodes.push_back({10.0 * i, 0.0, 0.0});
    for (int i = 1; i <= 6; ++i) sub.rows.push_back({i, 0, 0, 3});
    return sub;
}

}  // namespace

TEST(Identity, PilesAreNumberedAfterTheFrame) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    // 13 nodes and 18 element rows come before the piles; heads carry the pile's number.
    ExpectElement(project, pier.PileElement(0, 0), 19, 14, 1, 1);
    ExpectElement(project, pier.PileElement(0, 1), 20, 15, 14, 2);
    ExpectElement(project, pier.PileElement(1, 0), 21, 16, 2, 1);
    ExpectElement(project, pier.PileElement(1, 1), 22, 17, 16, 1);
}

TEST(Identity, APiersFrameIsNumberedColumnByColumn) {
    ResultProject project;
    project.substructures[0] = MakePier();
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    const CFrame& frame = pier.m_Frame;
    ExpectElement(project, pier.ColumnElement(0, 0), 9, 3, 4, 2);
    ExpectElement(project, pier.ColumnElement(0, 1), 10, 4, 5, 3);
    ExpectElement(project, frame.m_Cantilevers[0].m_nFirstElement, 11, 6, 7, 4);
    ExpectElement(project, frame.m_Cantilevers[0].m_nFirstElement + 1, 12, 7, 5, 4);
    ExpectElement(project, frame.m_Beam.m_nFirstElement, 13, 5, 8, 4);
    ExpectElement(project, frame.m_Beam.m_nFirstElement + 1, 14, 8, 11, 4);
    ExpectElement(project, pier.ColumnElement(1, 0), 15, 9, 10, 2);
    ExpectElement(project, pier.ColumnElement(1, 1), 16, 10, 11, 3);
    ExpectElement(project, frame.m_Cantilevers[1].m_nFirstElement, 17, 11, 12, 4);
    ExpectElement(project, frame.m_Cantilevers[1].m_nFirstElement + 1, 18, 12, 13, 4);
}

TEST(Identity, ABentsCapRestsOnItsPileHeads) {
    ResultProject project;
    project.substructures[0] = MakeBent();
    project.Write();
    ASSERT_TRUE(project.Load());
    const CFrame& frame = project.Pier().m_Frame;
    ExpectElement(project, frame.m_Cantilevers[0].m_nFirstElement, 1, 4, 1, 3);
    ExpectElement(project, frame.m_Beam.m_nFirstElement, 2, 1, 5, 3);
    ExpectElement(project, frame.m_Beam.m_nFirstElement + 1, 3, 5, 2, 3);
    ExpectElement(project, frame.m_Beam.m_nFirstElement + 2, 4, 2, 6, 3);
    ExpectElement(project, frame.m_Beam.m_nFirstElement + 3, 5, 6, 3, 3);
    ExpectElement(project, frame.m_Cantilevers[1].m_nFirstElement, 6, 3, 7, 3);
}

TEST(Identity, ABentReadsItsCapFromTheRowsInOrder) {
    ResultProject project;
    project.substructures[0] = MakeBent();
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    const CFrame& frame = pier.m_Frame;
    const int order[] = {frame.m_Cantilevers[0].m_nFirstElement, frame.m_Beam.m_nFirstElement,
                         frame.m_Beam.m_nFirstElement + 1,       frame.m_Beam.m_nFirstElement + 2,
                         frame.m_Beam.m_nFirstElement + 3,       frame.m_Cantilevers[1].m_nFirstElement};
    for (int i = 0; i < 6; ++i) {
        // Six pile records come first.
        EXPECT_EQ(GetForce(project.Forces(0, order[i]), kEndI, kAxial), (6 + i + 1) * 100 + 13);
    }
}

TEST(Identity, AColumnWithoutInteriorNodesHasOneElementAndACountOfNone) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0];
    sub = MakePier();
    sub.columnNodes = 0;
    sub.nodes.resize(11);
    sub.rows.erase(sub.rows.begin() + 14);
    sub.rows.erase(sub.rows.begin() + 8);
    for (std::size_t i = 0; i < sub.rows.size(); ++i) sub.rows[i].number = static_cast<int>(i) + 1;
    // Of the rows after the foundation's eight the first and the sixth are columns; each cap row has a
    // section of its own.
    for (std::size_t i = 8; i < sub.rows.size(); ++i) {
        if (i != 8 && i != 13) sub.rows[i].section = static_cast<int>(i) + 1;
    }
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    const CFrame& frame = pier.m_Frame;
    EXPECT_EQ(pier.m_Frame.m_Columns[0].m_nElements, 0);
    ExpectElement(project, pier.ColumnElement(0, 0), 9, 3, 4, 3);
    ExpectElement(project, pier.ColumnElement(1, 0), 14, 8, 9, 3);
    for (int e = 0; e < 2; ++e) {
        EXPECT_EQ(pier.Element(frame.m_Cantilevers[0].m_nFirstElement + e).m_nSection, 10 + e);
        EXPECT_EQ(pier.Element(frame.m_Beam.m_nFirstElement + e).m_nSection, 12 + e);
        EXPECT_EQ(pier.Element(frame.m_Cantilevers[1].m_nFirstElement + e).m_nSection, 15 + e);
    }
    // The cap meets the columns at the top of their one element.
    EXPECT_EQ(pier.Element(pier.m_Frame.m_Beam.m_nFirstElement).m_nNodeI, 4);
}

TEST(Identity, AMastsAndWallsSectionsAreInTheFirstColumnAlone) {
    ResultProject project;
    ResultSubstructure& sub = project.substructures[0];
    sub = MakePier();
    sub.type = 4;
    sub.cantilevers = 0;
    sub.cantileverNodes = -1;
    project.Write();
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    EXPECT_EQ(pier.Element(pier.ColumnElement(0, 0)).m_nSection, 2);
    EXPECT_EQ(pier.Element(pier.ColumnElement(1, 0)).m_nSection, 0);
    EXPECT_EQ(pier.Element(pier.ColumnElement(0, 0)).m_nElementNumber, 9);
}

}  // namespace lumerin
