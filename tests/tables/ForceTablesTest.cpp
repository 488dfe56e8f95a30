// SPDX-License-Identifier: MIT
#include "support/ReportFixture.h"

namespace lumerin {

// Tables 5, 6 and 7: the extremes of the six forces of each property.
namespace {

const std::string kUnits =
    "           FORCE     (Kips)     (Kips)     (Kips)   (Kip-ft)   (Kip-ft)   (Kip-ft)   (Ratio)\n\n";
const std::string kColumns =
    "  I/J    MAX/MIN        FAX        F22        F33        M22        M33     TORQUE       D/C\n";

// The twelve rows of a property without results, after the property column.
std::string MissingRows(const std::string& property, const std::string& filler) {
    const char* names[] = {"Max Axial", "Min Axial", "Max f22", "Min f22", "Max f33",    "Min f33",
                           "Max m22",   "Min m22",   "Max m33", "Min m33", "Max Torque", "Min Torque"};
    std::string rows;
    for (int e = 0; e < 12; ++e) {
        rows += property + filler + PadLeft(names[e], 11);
        for (int column = 0; column < 6; ++column) rows += column == e / 2 ? "       none" : "        ***";
        rows += "       ***\n";
    }
    return rows;
}

}  // namespace

class ForceTables : public ReportTest {
  protected:
    static CRecordTable NotFound(int sections, int slots = 1) {
        CRecordTable table;
        table.Allocate(sections, slots, kExtremes);
        for (int section = 0; section < sections; ++section) {
            for (int slot = 0; slot < slots; ++slot) {
                for (int e = 0; e < kExtremes; ++e) table.At(section, slot, e) = kNotFoundRecord;
            }
        }
        return table;
    }
};

TEST_F(ForceTables, PileForcesPrintTwelveRowsAPropertyAndAnEmptyLineBetween) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 3);
    Pier().m_nPileSections = 2;
    Results().pileForces = NotFound(2);
    Results().pileForces.At(0, 0, 0) = {2, 0, 0, 5, kEndJ, 6};
    Results().pileForces.At(0, 0, 11) = {0, 0, 0, 5, kEndI, 0};
    // The greatest ratio has a record of its own, which no form of the table prints.
    Results().pileForces.At(0, 0, 12) = {1, 0, 0, 99, kEndI, 99};
    // An exact half, such as 0.125, rounds to the even digit.
    SetForces(Pier(), 2, 0, kEndJ, {1.5F, -2.25F, 3.0F, -4.0F, 5.0F, -6.0F, 0.125F});
    SetForces(Pier(), 0, 0, kEndI, {10.0F, 20.0F, 30.0F, 40.0F, 50.0F, -60.0F, 7.0F});
    const std::string filler = "  ***   ***   ***   ***  ***";
    const std::string missing = MissingRows("    1 ", filler);
    const std::size_t row = missing.find('\n') + 1;
    const std::string middle = missing.substr(row, 10 * row);
    EXPECT_EQ(
        Text(kTablePileForces),
        "\t                                 Maximum Forces for All Pile Properties (Cross Sections)\n\n\n"
        "Pile Properties Data for Substructure 1\n\n"
        " PROP  PILE  ELEM  NODE  LOAD" +
            kColumns + "  NO.   NO.   NO.   NO.  CASE" + kUnits +
            "    1     1     5     6     3    J  Max Axial       1.50      -2.25       3.00      -4.00       "
            "5.00"
            "      -6.00      0.12\n" +
            middle +
            // Node 0 prints as blanks.
            "    1     1     5           1    I Min Torque      10.00      20.00      30.00      40.00      "
            "50.00"
            "     -60.00      7.00\n"
            "\n" +
            MissingRows("    2 ", filler) + "\n\n");
    EXPECT_EQ(m_lines, 3 + 2 + 3 + 12 + 1 + 12 + 2);
}

TEST_F(ForceTables, MissingRowsOfCombinationsHaveTheLimitStateGap) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 1);
    MakeCombinations(Pier(), kFamilyArema, {1});
    Pier().m_nPileSections = 1;
    Results().pileForces = NotFound(1, 2);
    const std::string text = Text(kTablePileForces);
    EXPECT_NE(text.find(" SERVICE LOAD DESIGN DATA\n\n"), std::string::npos);
    EXPECT_NE(text.find(MissingRows("    1 ", "  ***   ***   ***   ***            ***  ***")),
              std::string::npos);
    EXPECT_EQ(text.substr(0, text.find('\n')),
              Blanks(46) + "Maximum Forces for All Pile Properties (Cross Sections)");
    EXPECT_EQ(m_lines, 3 + 2 + 2 + 3 + 12 + 2);
}

TEST_F(ForceTables, ColumnForcesHaveAWiderMemberColumn) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    Pier().m_nColumnSections = 1;
    Results().columnForces = NotFound(1);
    Results().columnForces.At(0, 0, 0) = {0, 0, 0, 31, kEndJ, 9};
    const std::string missing = MissingRows("    2 ", "    ***   ***   ***   ***  ***");
    EXPECT_EQ(Text(kTableColumnForces),
              Blanks(46) +
                  "Maximum Forces for All Column Properties (Cross Sections)\n\n\n"
                  "Column Properties Data for Substructure 1\n\n"
                  " PROP  COLUMN  ELEM  NODE  LOAD" +
                  kColumns + "  NO.     NO.   NO.   NO.  CASE" + kUnits +
                  "    2       1    31     9     1    J  Max Axial       0.00       0.00       0.00       "
                  "0.00       0.00"
                  "       0.00      0.00\n" +
                  missing.substr(missing.find('\n') + 1) + "\n\n");
}

TEST_F(ForceTables, SubstructuresWithoutExtraMembersAreNotNamed) {
    AddPiers(2);
    Fill(Pier(0), 1, 0, 0, 1);
    Fill(Pier(1), 0, 0, 2, 1);
    CPier& pier = Pier(1);
    pier.m_nXMemberFirstSection = 4;
    pier.m_nXMemberSections = 3;  // 4, 5, 6, of which 5 is not an extra member's
    pier.Element(0).m_nSection = 4;
    pier.Element(1).m_nSection = 6;
    Results(1).extraMemberForces = NotFound(3);
    Results(1).extraMemberForces.At(2, 0, 0) = {0, 1, 0, 17, kEndI, 3};
    SetForces(pier, 0, 1, kEndI, {2.0F, 0, 0, 0, 0, 0, 0});
    const std::string filler = "     ***   ***   ***   ***  ***";
    const std::string last = MissingRows("    6 ", filler);
    EXPECT_EQ(
        Text(kTableExtraMembers),
        "\t                                        Maximum Forces for All Extra Member Properties \n\n\n"
        "Extra Member Properties Data for Substructure 2\n\n"
        " PROP  XMEMBR  ELEM  NODE  LOAD" +
            kColumns + "  NO.     NO.   NO.   NO.  CASE" + kUnits + MissingRows("    4 ", filler) + "\n" +
            "    6        2    17     3     1    I  Max Axial       2.00       0.00       0.00       0.00    "
            "   0.00"
            "       0.00      0.00\n" +
            last.substr(last.find('\n') + 1) + "\n\n");
    EXPECT_EQ(m_lines, 3 + 2 + 3 + 12 + 1 + 12 + 2);
}

TEST_F(ForceTables, AnEmptyLineFollowsAPropertyThatIsNotTheLastOfTheRange) {
    AddPiers(1);
    Fill(Pier(), 0, 0, 1, 1);
    Pier().m_nXMemberFirstSection = 2;
    Pier().m_nXMemberSections = 2;  // the last one is in no member, so an empty line ends the block's rows
    Pier().Element(0).m_nSection = 2;
    Results().extraMemberForces = NotFound(2);
    Text(kTableExtraMembers);
    EXPECT_EQ(m_lines, 3 + 2 + 3 + 12 + 1 + 2);
}

TEST_F(ForceTables, AnEmptyHeadCountsThreeLinesAndWritesNone) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 1);
    data.m_nAnalysisMode = 4;
    Pier().m_nPileSections = 1;
    Results().pileForces = NotFound(1);
    const std::string text = Text(kTablePileForces);
    EXPECT_NE(text.find("Pile Properties Data for Substructure 1\n\n    1   ***"), std::string::npos);
    EXPECT_EQ(m_lines, 3 + 2 + 3 + 12 + 2);
}

TEST_F(ForceTables, ResultTablesThatAreTooSmallPrintNone) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 1);
    MakeCombinations(Pier(), kFamilyArema, {0, 1});
    Pier().m_nPileSections = 2;
    Results().pileForces = NotFound(1, 1);
    Text(kTablePileForces);
    EXPECT_EQ(m_lines, 3 + 2 + 2 * (2 + 3 + 12 + 1 + 12 + 2));
}

}  // namespace lumerin
