// SPDX-License-Identifier: MIT
#include "support/ReportFixture.h"

namespace lumerin {

// Tables 1 and 2: the greatest ratio of each property.
namespace {

const std::string kPileHead =
    " PROP  PILE  ELEM  NODE  LOAD  I/J          FAX          F22          F33          M22          M33"
    "       TORQUE       D/C\n"
    "  NO.   NO.   NO.   NO.  CASE            (Kips)       (Kips)       (Kips)     (Kip-ft)     (Kip-ft)"
    "     (Kip-ft)   (Ratio)\n\n";
const std::string kColumnHead =
    " PROP  COLUMN  ELEM  NODE  LOAD  I/J          FAX          F22          F33          M22          M33"
    "       TORQUE       D/C\n"
    "  NO.     NO.   NO.   NO.  CASE            (Kips)       (Kips)       (Kips)     (Kip-ft)     (Kip-ft)"
    "     (Kip-ft)   (Ratio)\n\n";
const std::string kNoColumnRatio =
    " none  ***          ***          ***          ***          ***          ***          ***       ***\n";

}  // namespace

class SectionTables : public ReportTest {
  protected:
    void AllocateRatios(std::size_t pier, int pileSections, int columnSections, int slots = 1) {
        Pier(pier).m_nPileSections = pileSections;
        Pier(pier).m_nColumnSections = columnSections;
        CRecordTable &piles = Results(pier).pileDc, &columns = Results(pier).columnDc;
        piles.Allocate(pileSections, slots, 1);
        columns.Allocate(columnSections, slots, 1);
        for (int slot = 0; slot < slots; ++slot) {
            for (int s = 0; s < pileSections; ++s) piles.At(s, slot) = kNotFoundRecord;
            for (int s = 0; s < columnSections; ++s) columns.At(s, slot) = kNotFoundRecord;
        }
    }
};

TEST_F(SectionTables, PileRatiosOfPlainCases) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 2);
    AllocateRatios(0, 2, 0);
    Results().pileDc.At(0, 0) = {1, 0, 0, 7, kEndJ, 12};
    SetForces(Pier(), 1, 0, kEndJ, {-12.5F, 3.25F, 0.0F, 100.75F, -0.001F, 1000000.5F, 0.987F});
    EXPECT_EQ(
        Text(kTablePileDc),
        "\t                     Maximum Demand/Capacity Ratio For All Pile Properties (Cross Sections)\n\n\n"
        "Pile Properties Data for Substructure 1\n\n" +
            kPileHead +
            "    1     1     7    12     2    J       -12.50         3.25         0.00       100.75        "
            "-0.00"
            "   1000000.50      0.99\n"
            // Member and case of an empty record are -1 + 1, which prints as blanks.
            "    2          -1    -1      No valid load case\n"
            "\n\n"
            "\n\n");
    EXPECT_EQ(m_lines, 3 + 2 + 3 + 2 + 2 + 2);
}

TEST_F(SectionTables, TheIEndAndTheLimitStateColumn) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 1);
    MakeCombinations(Pier(), kFamilyLfd, {});
    AllocateRatios(0, 1, 0);
    Pier().m_LoadCases[0].m_sLimitState = "GROUP-VESSEL";
    Results().pileDc.At(0, 0) = {0, 0, 0, 3, kEndI, 4};
    SetForces(Pier(), 0, 0, kEndI, {1.0F, 2.0F, 3.0F, 4.0F, 5.0F, 6.0F, 0.5F});
    EXPECT_EQ(Text(kTablePileDc),
              Blanks(36) +
                  "Maximum Demand/Capacity Ratio For All Pile Properties (Cross Sections)\n\n\n"
                  "Pile Properties Data for Substructure 1\n\n"
                  " MAXIMUM LOAD FACTOR DESIGN DATA\n\n"
                  " PROP  PILE  ELEM  NODE  LOAD     AASHTO-LFD  I/J          FAX          F22          F33"
                  "          M22          M33       TORQUE       D/C\n"
                  "  NO.   NO.   NO.   NO.  COMB                           (Kips)       (Kips)       (Kips)"
                  "     (Kip-ft)     (Kip-ft)     (Kip-ft)   (Ratio)\n\n"
                  "    1     1     3     4     1   GROUP-VESSEL    I         1.00         2.00         3.00"
                  "         4.00         5.00         6.00      0.50\n"
                  "\n\n\n\n");
}

TEST_F(SectionTables, ColumnPropertiesCountFromTwo) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    AllocateRatios(0, 0, 2);
    Results().columnDc.At(0, 0) = {0, 0, 0, 21, kEndI, 8};
    SetForces(Pier(), 0, 0, kEndI, {-1.0F, 0, 0, 0, 0, 0, 0.25F});
    // The title of one substructure has no tab, limit states or not.
    EXPECT_EQ(Text(kTableColumnDc),
              Blanks(36) +
                  "Maximum Demand/Capacity Ratio For All Column Properties (Cross Sections)\n\n\n"
                  "Column Properties Data for Substructure 1\n\n" +
                  kColumnHead +
                  "    2       1    21     8     1    I        -1.00         0.00         0.00         0.00"
                  "         0.00         0.00      0.25\n"
                  "    3            -1    -1 " +
                  kNoColumnRatio + "\n\n");
    EXPECT_EQ(m_lines, 3 + 2 + 3 + 2 + 2);
}

TEST_F(SectionTables, AMissingColumnRatioOfCombinationsHasTheLimitStateGap) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    MakeCombinations(Pier(), kFamilyLfd, {});
    AllocateRatios(0, 0, 1);
    EXPECT_NE(
        Text(kTableColumnDc)
            .find("    2            -1    -1  none            ***  ***          ***          ***          ***"
                  "          ***          ***          ***       ***\n"),
        std::string::npos);
}

TEST_F(SectionTables, ABentBeforeAPierHasItsRemarkAndNoBlock) {
    AddPiers(2);
    Pier(0).m_nStructureType = kTypePileBent;
    Fill(Pier(0), 1, 0, 0, 1);
    Fill(Pier(1), 0, 1, 0, 1);
    AllocateRatios(0, 1, 1);
    AllocateRatios(1, 0, 1);
    EXPECT_EQ(Text(kTableColumnDc),
              "\t                     Maximum Demand/Capacity Ratio For All Column Properties (Cross "
              "Sections)\n\n\n"
              "Column Properties Data for Substructure 1 (Not applicable for Pile Bent)\n\n"
              "Column Properties Data for Substructure 2\n\n" +
                  kColumnHead + "    2            -1    -1 " + kNoColumnRatio + "\n\n");
    EXPECT_EQ(m_lines, 3 + 2 + 2 + 3 + 1 + 2);
}

TEST_F(SectionTables, ARecordWithoutItsMemberPrintsAsOneWithoutAResult) {
    AddPiers(1);
    Fill(Pier(), 0, 0, 0, 1);  // no columns at all
    AllocateRatios(0, 0, 1);
    Results().columnDc.At(0, 0) = CMaxRecord{};
    EXPECT_NE(Text(kTableColumnDc).find("    2            -1    -1 " + kNoColumnRatio), std::string::npos);
    Fill(Pier(), 1, 0, 0, 1);
    AllocateRatios(0, 1, 0);
    Results().pileDc.At(0, 0) = {4, 0, 0, 1, kEndI, 1};  // a case past the last one
    EXPECT_NE(Text(kTablePileDc).find("    1          -1    -1      No valid load case\n"),
              std::string::npos);
}

TEST_F(SectionTables, FatigueIsSkippedWithoutHeadingOrHead) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 1);
    MakeCombinations(Pier(), kFamilyLrfd, {1, 3});
    AllocateRatios(0, 1, 0, 4);
    const std::string text = Text(kTablePileDc);
    EXPECT_NE(text.find(" MAXIMUM SERVICE CASE DATA\n\n"), std::string::npos);
    EXPECT_EQ(text.find("FATIGUE"), std::string::npos);
    EXPECT_EQ(text.find(" PROP "), text.rfind(" PROP "));
    EXPECT_EQ(m_lines, 3 + 2 + (2 + 3 + 1 + 2) + 2);
}

TEST_F(SectionTables, MembersInThePileArraysAreCalledColumns) {
    AddPiers(2);
    Pier(0).m_nStructureType = kTypeNoPileTables;
    for (std::size_t i = 0; i < 2; ++i) {
        Fill(Pier(i), 1, 0, 0, 1);
        AllocateRatios(i, 1, 0);
    }
    const std::string piles = Text(kTablePileDc);
    // Headings go by each substructure's own type, the word in the head by the first one's.
    EXPECT_NE(piles.find("\nColumn Properties Data for Substructure 1\n\n PROP COLMN  ELEM"),
              std::string::npos);
    EXPECT_NE(piles.find("\nPile Properties Data for Substructure 2\n\n PROP COLMN  ELEM"),
              std::string::npos);
    const int lines = m_lines;
    EXPECT_EQ(Text(kTableColumnDc), piles);
    EXPECT_EQ(m_lines, lines);
    // The table that replaces it must be enabled itself.
    enabled[kTablePileDc] = false;
    EXPECT_EQ(Text(kTableColumnDc), "");
    EXPECT_EQ(m_lines, 0);
    enabled[kTablePileDc] = true;
    enabled[kTableColumnDc] = false;
    EXPECT_EQ(Text(kTableColumnDc), "");
}

}  // namespace lumerin
