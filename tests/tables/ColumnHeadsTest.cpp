// SPDX-License-Identifier: MIT
#include "support/ReportFixture.h"
#include "tables/TableLayout.h"

namespace lumerin {

class ColumnHeads : public ReportTest {
  protected:
    ColumnHeads() { AddPiers(1); }

    std::string Lines(TableId table) const {
        const ColumnHead head = BuildColumnHead(data, LayoutOf(table));
        std::string text;
        for (const std::string& line : head.lines) text += line + "\n";
        return text;
    }
    int Counted(TableId table) const { return BuildColumnHead(data, LayoutOf(table)).counted; }
};

TEST_F(ColumnHeads, TimeStepsReadTimeOverStep) {
    data.m_nAnalysisMode = 1;
    data.m_nUnits = 1;
    EXPECT_EQ(Lines(kTableMaxAxial),
              "   SUBSTRUCTURE   PILE  TIME  MAX TENSION      D/C  TIME     MAX COMP      D/C\n"
              "                        STEP         (kN)  (ratio)  STEP         (kN)  (ratio)\n");
    EXPECT_EQ(
        Lines(kTablePileDc),
        " PROP  PILE  ELEM  NODE  TIME  I/J          FAX          F22          F33          M22          M33"
        "       TORQUE       D/C\n"
        "  NO.   NO.   NO.   NO.  STEP              (kN)         (kN)         (kN)       (kN-m)       (kN-m)"
        "       (kN-m)   (Ratio)\n");
    EXPECT_EQ(Lines(kTableColumnForces),
              " PROP  COLUMN  ELEM  NODE  TIME  I/J    MAX/MIN        FAX        F22        F33        M22   "
              "     M33"
              "     TORQUE       D/C\n"
              "  NO.     NO.   NO.   NO.  STEP           FORCE       (kN)       (kN)       (kN)     (kN-m)   "
              "  (kN-m)"
              "     (kN-m)   (Ratio)\n");
}

TEST_F(ColumnHeads, CombinationsNameTheirFamily) {
    MakeCombinations(Pier(), kFamilyLfd, {});
    EXPECT_EQ(
        Lines(kTableExtraMembers),
        " PROP  XMEMBR  ELEM  NODE  LOAD     AASHTO-LFD  I/J    MAX/MIN        FAX        F22        F33"
        "        M22        M33     TORQUE       D/C\n"
        "  NO.     NO.   NO.   NO.  COMB                          FORCE     (Kips)     (Kips)     (Kips)"
        "   (Kip-ft)   (Kip-ft)   (Kip-ft)   (Ratio)\n");
    EXPECT_EQ(
        Lines(kTableCapMoment),
        "    LOCATION  ELEM  PROP       NODE  LOAD     AASHTO-LFD  I/J         FAX         M22         M33"
        "      D/C\n"
        "      & SIDE   NO.   NO.        NO.  COMB                          (Kips)    (Kip-ft)    (Kip-ft)"
        "  (Ratio)\n");
}

TEST_F(ColumnHeads, AremasWordIsABlankWiderInTheColumnRatiosAndNarrowerAfterTheTension) {
    MakeCombinations(Pier(), kFamilyArema, {});
    EXPECT_EQ(Lines(kTableColumnDc).substr(0, 58),
              " PROP  COLUMN  ELEM  NODE  LOAD           AREMA  I/J      ");
    EXPECT_EQ(Lines(kTablePileDc).substr(0, 55), " PROP  PILE  ELEM  NODE  LOAD          AREMA  I/J      ");
    EXPECT_EQ(
        Lines(kTableMaxAxial),
        "   SUBSTRUCTURE   PILE  LOAD          AREMA  MAX TENSION      D/C    LOAD         AREMA     MAX COMP"
        "      D/C\n"
        "                        COMB                      (kips)  (ratio)    COMB                      "
        "(kips)"
        "  (ratio)\n");
}

TEST_F(ColumnHeads, PilesThatAreColumnsAreCalledSo) {
    AddPiers(1, kTypeNoPileTables);
    EXPECT_EQ(Lines(kTablePileDc).substr(0, 31), " PROP COLMN  ELEM  NODE  LOAD  ");
    EXPECT_EQ(Lines(kTablePileForces).substr(0, 31), " PROP COLMN  ELEM  NODE  LOAD  ");
}

TEST_F(ColumnHeads, ModeTwoIsATimeStepInTheCapShearTableAlone) {
    data.m_nAnalysisMode = 2;
    data.m_nUnits = 1;
    EXPECT_EQ(Lines(kTableCapShear),
              "    LOCATION  ELEM  PROP       NODE  TIME  I/J         FAX         F22         F33         M22"
              "         M33      TORQUE      D/C\n"
              "      & SIDE   NO.   NO.        NO.  STEP             (kN)        (kN)        (kN)      (kN-M)"
              "      (kN-M)      (kN-M)  (Ratio)\n");
    EXPECT_EQ(
        Lines(kTableCapMoment),
        "    LOCATION  ELEM  PROP       NODE  LOAD  I/J         FAX         M22         M33      D/C\n"
        "      & SIDE   NO.   NO.        NO.  CASE             (kN)      (kN-M)      (kN-M)  (Ratio)\n");
    EXPECT_NE(Lines(kTablePileDc).find("  LOAD  I/J"), std::string::npos);
}

TEST_F(ColumnHeads, AnUnnamedFamilyHasNoUpperLineButAnEmptyOneInTheCapTables) {
    MakeCombinations(Pier(), CodeFamily{7}, {});
    EXPECT_EQ(Lines(kTablePileForces),
              "  NO.   NO.   NO.   NO.  COMB                          FORCE     (Kips)     (Kips)     (Kips)"
              "   (Kip-ft)   (Kip-ft)   (Kip-ft)   (Ratio)\n");
    EXPECT_EQ(
        Lines(kTableCapMoment),
        "\n      & SIDE   NO.   NO.        NO.  COMB                          (Kips)    (Kip-ft)    (Kip-ft)"
        "  (Ratio)\n");
    EXPECT_EQ(Counted(kTablePileForces), 3);
}

TEST_F(ColumnHeads, OtherModesHaveNoHeadButCountItsLines) {
    data.m_nAnalysisMode = 3;
    EXPECT_EQ(Lines(kTableMaxAxial), "");
    EXPECT_EQ(Lines(kTableColumnDc), "");
    EXPECT_EQ(Lines(kTableCapShear), "\n");
    EXPECT_EQ(Counted(kTableMaxAxial), 4);
    EXPECT_EQ(Counted(kTableColumnDc), 3);
    EXPECT_EQ(Counted(kTableCapShear), 3);
}

TEST_F(ColumnHeads, LimitStatesComeFromTheFirstSubstructure) {
    AddPiers(2);
    Fill(Pier(0), 1, 0, 0, 2);
    Pier(0).m_LoadCases[1].m_sLimitState = "SERVICE-I";
    EXPECT_EQ(LimitStateOf(data, 1), "SERVICE-I");
    EXPECT_EQ(LimitStateOf(data, 0), "none");
    // A later substructure may have more cases than the first one names.
    EXPECT_EQ(LimitStateOf(data, 2), "none");
    EXPECT_EQ(LimitStateOf(data, -1), "none");
}

}  // namespace lumerin
