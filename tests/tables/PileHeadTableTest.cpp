// SPDX-License-Identifier: MIT
#include "support/ReportFixture.h"

namespace lumerin {

class PileHeadTable : public ReportTest {
  protected:
    void SetHead(CPier& pier, int loadCase, int pile, float axial, float ratio) {
        SetForces(pier, loadCase, pier.PileElement(pile, 0), kEndJ, {axial, 0, 0, 0, 0, 0, ratio});
    }
    std::string Write() { return Text(kTableMaxAxial); }
};

TEST_F(PileHeadTable, PlainCasesInUsUnits) {
    AddPiers(1);
    Fill(Pier(), 2, 0, 0, 2);
    Results().maxTension = {{1, -1}};
    Results().maxCompression = {{-1, 0}};
    SetHead(Pier(), 1, 0, 12.345F, 0.5F);
    SetHead(Pier(), 0, 1, -1234.5F, 0.875F);
    EXPECT_EQ(Write(),
              "\t             Maximum Axial Forces at All Pile Heads\n"
              "                    (USE TO COMPARE TO PILE DRIVE CAPACITY)\n"
              "                MAXIMUM COMPRESSION AND MAXIMUM TENSION FORCES\n"
              "\n\n"
              "   SUBSTRUCTURE   PILE  LOAD  MAX TENSION      D/C  LOAD     MAX COMP      D/C\n"
              "                        CASE       (kips)  (ratio)  CASE       (kips)  (ratio)\n"
              "\n\n"
              "              1      1     2        12.35     0.50   ***         none      ***\n"
              "              1      2   ***         none      ***     1     -1234.50     0.88\n"
              "\n\n");
    EXPECT_EQ(m_lines, 5 + 4 + 2 + 2);
}

TEST_F(PileHeadTable, SectionsOfCombinationsAreParted) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 2);
    MakeCombinations(Pier(), kFamilyLrfd, {0, 2});
    Pier().m_LoadCases[0].m_sLimitState = "STRENGTH-IV";
    Pier().m_LoadCases[1].m_sLimitState = "EXTREME-II";
    Results().maxTension = {{-1}, {-1}, {1}, {0}};
    Results().maxCompression = {{0}, {-1}, {-1}, {0}};
    SetHead(Pier(), 0, 0, -7.0F, 0.25F);
    SetHead(Pier(), 1, 0, 7.0F, 1.25F);
    data.m_nUnits = 1;
    const std::string head =
        "   SUBSTRUCTURE   PILE  LOAD    AASHTO-LRFD  MAX TENSION      D/C    LOAD    AASHTO-LRFD     MAX "
        "COMP"
        "      D/C\n"
        "                        COMB                        (kN)  (ratio)    COMB                        "
        "(kN)"
        "  (ratio)\n"
        "\n\n";
    EXPECT_EQ(Write(), Blanks(41) + "Maximum Axial Forces at All Pile Heads\n" + Blanks(39) +
                           " (USE TO COMPARE TO PILE DRIVE CAPACITY)\n" + Blanks(36) +
                           "MAXIMUM COMPRESSION AND MAXIMUM TENSION FORCES\n\n\n"
                           " MAXIMUM STRENGTH CASE DATA\n\n" +
                           head +
                           "              1      1   ***            ***         none      ***"
                           "       1    STRENGTH-IV        -7.00     0.25\n"
                           "\n\n"  // a further section follows, though service has none
                           " MAXIMUM EXTREME CASE DATA\n\n" +
                           head +
                           "              1      1     2     EXTREME-II         7.00     1.25"
                           "     ***            ***         none      ***\n"
                           "\n\n");  // after the substructure; fatigue has no section
    EXPECT_EQ(m_lines, 5 + (2 + 4 + 1 + 2) + (2 + 4 + 1) + 2);
}

TEST_F(PileHeadTable, EverySubstructureEndsInTwoEmptyLines) {
    AddPiers(2);
    for (int i = 0; i < 2; ++i) {
        Fill(Pier(static_cast<std::size_t>(i)), 1, 0, 0, 1);
        Results(static_cast<std::size_t>(i)).maxTension = {{-1}};
        Results(static_cast<std::size_t>(i)).maxCompression = {{-1}};
    }
    const std::string text = Write();
    EXPECT_NE(text.find("              1      1   ***         none      ***   ***         none      ***\n\n\n"
                        "   SUBSTRUCTURE"),
              std::string::npos);
    EXPECT_NE(
        text.find("              2      1   ***         none      ***   ***         none      ***\n\n\n"),
        std::string::npos);
    EXPECT_EQ(m_lines, 5 + 2 * (4 + 1 + 2));
}

TEST_F(PileHeadTable, ACaseThatDoesNotExistPrintsNone) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 1);
    Results().maxTension = {{7}};
    Results().maxCompression.clear();
    EXPECT_NE(Write().find("   ***         none      ***   ***         none      ***\n"), std::string::npos);
}

TEST_F(PileHeadTable, ADisabledTableAndAnEmptyProjectWriteNothing) {
    EXPECT_EQ(Write(), "");
    EXPECT_EQ(m_lines, 0);
    AddPiers(1);
    enabled[kTableMaxAxial] = false;
    EXPECT_EQ(Write(), "");
    EXPECT_EQ(m_lines, 0);
}

}  // namespace lumerin
