// SPDX-License-Identifier: MIT
#include <string>

#include "support/ResultProject.h"

namespace lumerin {

// The sections of the keyed text file, with the widths that the cap faces are worked out from.

namespace {

double Width(const ResultProject& project, int element) {
    return project.Pier().SectionData(element).m_dWidth;
}

const CFrame& Frame(const ResultProject& project) {
    return project.Pier().m_Frame;
}

bool LoadPier(ResultProject& project, const std::string& text) {
    project.substructures[0] = MakePier();
    project.Write();
    project.WriteFile(".MIS", text);
    return project.Load();
}

}  // namespace

TEST(PierSections, EachElementMayHaveALineOfItsOwn) {
    ResultProject project;
    ASSERT_TRUE(LoadPier(project,
                         "PIERXSEC\nP= 1 L= 0\nskipped\nN= 9\nC= 1 B= 1 R= 1\n"
                         "S= 3 D= 7 W= 1 Z= 8 G= 9\nW= 2\nW= 3\nW= 4\nW= 5\nW= 6\nW= 7\nW= 8\n:\n"));
    const CPier& pier = project.Pier();
    EXPECT_EQ(Width(project, pier.ColumnElement(0, 0)), 1.0);
    EXPECT_EQ(Width(project, pier.ColumnElement(0, 1)), 2.0);
    EXPECT_EQ(Width(project, pier.ColumnElement(1, 0)), 1.0);
    EXPECT_EQ(Width(project, pier.ColumnElement(1, 1)), 2.0);
    EXPECT_EQ(Width(project, Frame(project).m_Beam.m_nFirstElement), 3.0);
    EXPECT_EQ(Width(project, Frame(project).m_Beam.m_nFirstElement + 1), 4.0);
    // The left cantilever is described from its last element to its first.
    EXPECT_EQ(Width(project, Frame(project).m_Cantilevers[0].m_nFirstElement + 1), 5.0);
    EXPECT_EQ(Width(project, Frame(project).m_Cantilevers[0].m_nFirstElement), 6.0);
    EXPECT_EQ(Width(project, Frame(project).m_Cantilevers[1].m_nFirstElement), 7.0);
    EXPECT_EQ(Width(project, Frame(project).m_Cantilevers[1].m_nFirstElement + 1), 8.0);
    const CSectionData& section = pier.SectionData(pier.ColumnElement(0, 0));
    EXPECT_EQ(section.m_nShape, 3);
    EXPECT_EQ(section.m_dD, 7.0);
    EXPECT_EQ(section.m_dZ, 8.0);
    EXPECT_EQ(section.m_dG, 9.0);
}

TEST(PierSections, OneLineMayServeAWholeMember) {
    ResultProject project;
    ASSERT_TRUE(
        LoadPier(project, "PIERXSEC\nP= 1 L= 0\nskipped\nN= 3\nC= 0 B= 0 R= 0\nW= 1\nW= 2\nW= 3\nW= 4\n:\n"));
    const CPier& pier = project.Pier();
    EXPECT_EQ(Width(project, pier.ColumnElement(1, 1)), 1.0);
    EXPECT_EQ(Width(project, Frame(project).m_Beam.m_nFirstElement + 1), 2.0);
    EXPECT_EQ(Width(project, Frame(project).m_Cantilevers[0].m_nFirstElement), 3.0);
    EXPECT_EQ(Width(project, Frame(project).m_Cantilevers[1].m_nFirstElement + 1), 3.0);
}

TEST(PierSections, AFirstBlockWithoutFlagsHasOneLineForEachMember) {
    ResultProject project;
    ASSERT_TRUE(
        LoadPier(project, "PIERXSEC\nP= 1 L= 0\nskipped\nN= 3\nno flags\nW= 1\nW= 2\nW= 3\nW= 4\nW= 5\n:\n"));
    const CPier& pier = project.Pier();
    EXPECT_EQ(Width(project, pier.ColumnElement(0, 0)), 1.0);
    EXPECT_EQ(Width(project, pier.ColumnElement(0, 1)), 1.0);
    EXPECT_EQ(Width(project, Frame(project).m_Beam.m_nFirstElement), 2.0);
    EXPECT_EQ(Width(project, Frame(project).m_Beam.m_nFirstElement + 1), 2.0);
    // The same line serves both cantilevers.
    for (const CCantilever& cantilever : Frame(project).m_Cantilevers) {
        EXPECT_EQ(Width(project, cantilever.m_nFirstElement), 3.0);
        EXPECT_EQ(Width(project, cantilever.m_nFirstElement + 1), 3.0);
    }
}

TEST(PierSections, AColumnWithoutInteriorNodesTakesNoWidth) {
    ResultProject project;
    project.substructures[0] = MakePier();
    ResultSubstructure& sub = project.substructures[0];
    sub.columnNodes = 0;
    sub.rows.erase(sub.rows.begin() + 15);  // each column has one element less
    sub.rows.erase(sub.rows.begin() + 9);
    for (std::size_t i = 0; i < sub.rows.size(); ++i) sub.rows[i].number = static_cast<int>(i) + 1;
    project.Write();
    project.WriteFile(".MIS", "PIERXSEC\nP= 1 L= 0\nskipped\nN= 3\nC= 0 B= 0 R= 0\nW= 9\nW= 2\nW= 3\n:\n");
    ASSERT_TRUE(project.Load());
    const CPier& pier = project.Pier();
    // The column's line is skipped: both faces of a support are at its centre.
    EXPECT_EQ(Width(project, pier.ColumnElement(0, 0)), 0.0);
    EXPECT_EQ(pier.GetSupportWidth(0), 0.0);
    EXPECT_EQ(Width(project, Frame(project).m_Beam.m_nFirstElement), 2.0);
}

TEST(PierSections, ACapWithoutSpansHasNoLine) {
    ResultProject project;
    project.substructures[0] = MakePier();
    ResultSubstructure& sub = project.substructures[0];
    sub.spanNodes = -1;
    sub.nodes.erase(sub.nodes.begin() + 7);
    sub.rows.erase(sub.rows.begin() + 12, sub.rows.begin() + 14);
    for (std::size_t i = 0; i < sub.rows.size(); ++i) sub.rows[i].number = static_cast<int>(i) + 1;
    project.Write();
    project.WriteFile(".MIS", "PIERXSEC\nP= 1 L= 0\nskipped\nN= 3\nC= 0 B= 0 R= 0\nW= 1\nW= 2\nW= 3\n:\n");
    ASSERT_TRUE(project.Load());
    ASSERT_EQ(Frame(project).m_Beam.m_nElements, 0);
    EXPECT_EQ(Width(project, project.Pier().ColumnElement(0, 0)), 1.0);
    for (const CCantilever& cantilever : Frame(project).m_Cantilevers) {
        EXPECT_EQ(Width(project, cantilever.m_nFirstElement), 2.0);
    }
}

TEST(PierSections, ATaperedColumnGoesOnHalfAStep) {
    ResultProject project;
    ASSERT_TRUE(LoadPier(project,
                         "PIERXSEC\nP= 1 L= 0\nskipped\nN= 3\nC= 2 B= 0 R= 0\n"
                         "D= 10 W= 20 Z= 30 G= 1\nD= 12 W= 26 Z= 31 G= 2\nW= 3\n:\n"));
    const CSectionData& last = project.Pier().SectionData(project.Pier().ColumnElement(0, 1));
    EXPECT_EQ(last.m_dD, 13.0);
    EXPECT_EQ(last.m_dWidth, 29.0);
    EXPECT_EQ(last.m_dZ, 31.5);
    EXPECT_EQ(last.m_dG, 2.0);
}

TEST(PierSections, SquaredWidthsBecomeTheirRootsOnALineWithAZ) {
    ResultProject project;
    ASSERT_TRUE(LoadPier(project,
                         "PIERXSEC\nP= 1 L= 1\nskipped\nN= 3\nC= 0 B= 0 R= 0\nW= 1296.0 Z= 16.0 G= 4\n"
                         "W= 49.0\nW= 1.0\n:\n"));
    const CPier& pier = project.Pier();
    EXPECT_EQ(Width(project, pier.ColumnElement(0, 0)), 36.0);
    EXPECT_EQ(pier.SectionData(pier.ColumnElement(0, 0)).m_dZ, 4.0);
    EXPECT_EQ(pier.SectionData(pier.ColumnElement(0, 0)).m_dG, 4.0);  // as it is in the file
    // What is copied from it is a square root too.
    EXPECT_EQ(Width(project, pier.ColumnElement(1, 0)), 36.0);
    EXPECT_EQ(Width(project, Frame(project).m_Beam.m_nFirstElement), 49.0);
}

TEST(PierSections, ALineMayContinueAfterABackslashAndKeysMayBeSmall) {
    ResultProject project;
    ASSERT_TRUE(LoadPier(project,
                         "PIERXSEC\nP= 1 L= 0\nskipped\nN= 3\nc= 0 B= 0 R= 0\n s= 3 d= 48.0 \\ dropped\n"
                         " w= 24.0\nW= 2\nW= 3\n:\n"));
    const CSectionData& column = project.Pier().SectionData(project.Pier().ColumnElement(0, 0));
    EXPECT_EQ(column.m_nShape, 3);
    EXPECT_EQ(column.m_dD, 48.0);
    EXPECT_EQ(column.m_dWidth, 24.0);
    EXPECT_EQ(Width(project, Frame(project).m_Beam.m_nFirstElement), 2.0);
}

TEST(PierSections, AValueThatIsNoNumberLeavesTheField) {
    ResultProject project;
    ASSERT_TRUE(LoadPier(
        project, "PIERXSEC\nP= 1 L= 0\nskipped\nN= 3\nC= 1 B= 0 R= 0\nW= 7\nW= wide\nW= 2\nW= 3\n:\n"));
    EXPECT_EQ(Width(project, project.Pier().ColumnElement(0, 0)), 7.0);
    EXPECT_EQ(Width(project, project.Pier().ColumnElement(0, 1)), 0.0);
}

TEST(PierSections, ABentsBlockHasItsOneColumnLineAndFlagsAreKept) {
    ResultProject project;
    project.substructures = {MakePier(), MakePier()};
    project.Write();
    // The second block names no flags: those of the first are kept.
    project.WriteFile(".MIS",
                      "PIERXSEC\nP= 2 L= 0\nskipped\nN= 3\nC= 0 B= 1 R= 0\nW= 1\nW= 2\nW= 3\nW= 4\n"
                      "skipped\nN= 3\nno flags\nW= 5\nW= 6\nW= 7\nW= 8\n:\n");
    ASSERT_TRUE(project.Load());
    const CPier& second = project.Data().m_Piers[1];
    EXPECT_EQ(second.SectionData(second.m_Frame.m_Beam.m_nFirstElement).m_dWidth, 6.0);
    EXPECT_EQ(second.SectionData(second.m_Frame.m_Beam.m_nFirstElement + 1).m_dWidth, 7.0);
    EXPECT_EQ(second.SectionData(second.m_Frame.m_Cantilevers[1].m_nFirstElement).m_dWidth, 8.0);
}

TEST(PierSections, KeywordsAreMatchedInTheirLetterCase) {
    ResultProject project;
    ASSERT_TRUE(LoadPier(project, "pierxsec\nP= 1 L= 0\ns\nN= 3\nC= 0 B= 0 R= 0\nW= 1\nW= 2\nW= 3\n:\n"));
    EXPECT_EQ(Width(project, project.Pier().ColumnElement(0, 0)), 0.0);
}

TEST(PierSections, AGroupHasNone) {
    ResultProject project;
    project.Write();
    project.WriteFile(".MIS", "PIERXSEC\nP= 1 L= 0\ns\nN= 3\nC= 0 B= 0 R= 0\nW= 1\n:\n");
    EXPECT_TRUE(project.Load());
}

TEST(ProjectData, TextsAreCutToTheirLength) {
    ResultProject project;
    project.Write();
    project.WriteFile(
        ".MIS",
        "PROJECTDATA\nL= 5 N= a bridge of 1901\nL= 40 D=   short one \nT= same length as the line "
        "before it, cut there\nL= 3 X= none\n:\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_sProjectN, "a bri");
    EXPECT_EQ(project.Data().m_sProjectD, "short one");
    EXPECT_EQ(project.Data().m_sProjectT, "same length as the line before it, cut t");
    EXPECT_EQ(project.Data().m_sProjectC, "");
}

TEST(PierData, LocationsGoBySubstructureNumber) {
    ResultProject project;
    project.substructures.resize(3);
    project.Write();
    // The second line names no location, the third no number; 9 and 0 name no substructure.
    project.WriteFile(".MIS", "PIERDATA\nN= 5\nP= 2 X= 12.5\nP= 3\nX= 7.0\nP= 9 X= 1\nP= 0 X= 1\n:\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_Piers[0].m_dLocationX, 0.0);
    EXPECT_EQ(project.Data().m_Piers[1].m_dLocationX, 12.5);
    EXPECT_EQ(project.Data().m_Piers[2].m_dLocationX, 7.0);
}

TEST(PierData, AFirstLineWithoutANumberNamesNoSubstructure) {
    ResultProject project;
    project.substructures.resize(2);
    project.Write();
    project.WriteFile(".MIS", "PIERDATA\nN= 2\nX= 7.0\nP= 2\n:\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_Piers[0].m_dLocationX, 0.0);
    EXPECT_EQ(project.Data().m_Piers[1].m_dLocationX, 7.0);  // that of the line before
}

TEST(KeyedText, AMissingFileSetsNothing) {
    ResultProject project;
    project.Write();
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_sProjectN, "");
}

TEST(KeyedText, ALineThatIsTooLongEndsTheScan) {
    ResultProject project;
    project.Write();
    project.WriteFile(".MIS", std::string(128, 'x') + "\nPROJECTDATA\nL= 5 N= never\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_sProjectN, "");
    project.WriteFile(".MIS", std::string(127, 'x') + "\r\nPROJECTDATA\nL= 5 N= legal\n");
    ASSERT_TRUE(project.Load());
    EXPECT_EQ(project.Data().m_sProjectN, "legal");
}

}  // namespace lumerin
