// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "WellFormed.h"
#include "Worksheets.h"

namespace lumerin {

namespace {

using namespace sheets;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class SheetSections : public SheetTest {
  protected:
    // One substructure with a pile, a column and an extra member, each of one element; the forces of load
    // case 2 are 1 to 7 at I and 11 to 17 at J, all with the fraction .25.
    void Make(CodeFamily family = kFamilyNone, StructureType type = kTypePier) {
        MakePiers(
            {{.type = type, .piles = 1, .columns = 1, .extraMembers = 1, .cases = 2, .family = family}});
        CPier& pier = Pier();
        pier.m_nPileSections = pier.m_nColumnSections = pier.m_nXMemberSections = 1;
        pier.m_nXMemberFirstSection = 4;
        pier.Element(2).m_nSection = 4;
        AllocateResults();
        if (family == kFamilyLrfd) PresentClasses({kStrength});
        for (int element = 0; element < 3; ++element) {
            SetForces(pier, 1, element, kEndI, {1.25F, 2.25F, 3.25F, 4.25F, 5.25F, 6.25F, 7.25F});
            SetForces(pier, 1, element, kEndJ, {11.25F, 12.25F, 13.25F, 14.25F, 15.25F, 16.25F, 17.25F});
        }
        pier.m_LoadCases[1].m_sLimitState = "SERVICE-I";
        Fill(Results().pileDc, kNotFoundRecord);
        Fill(Results().columnDc, kNotFoundRecord);
        Fill(Results().pileForces, kNotFoundRecord);
        Fill(Results().columnForces, kNotFoundRecord);
        Fill(Results().extraMemberForces, kNotFoundRecord);
    }
    static void Fill(CRecordTable& table, const CMaxRecord& record) {
        for (int section = 0; section < table.Sections(); ++section) {
            for (int slot = 0; slot < table.Slots(); ++slot) {
                for (int extreme = 0; extreme < table.Extremes(); ++extreme) {
                    table.At(section, slot, extreme) = record;
                }
            }
        }
    }
    // The rows after the last column head.
    static std::string Rows(const std::string& sheet, const std::string& headEnd) {
        const std::size_t at = sheet.find("(Ratio)</Data></Cell>\n" + headEnd);
        EXPECT_NE(at, std::string::npos);
        const std::size_t from = at + std::string("(Ratio)</Data></Cell>\n").size() + headEnd.size();
        return sheet.substr(from, sheet.find("</Table>") - from);
    }
    static int Count(const std::string& text, const std::string& part) {
        int count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
        return count;
    }
};

constexpr CMaxRecord Found(int end, int element) {
    return {1, 0, 0, element + 1, end, 10 * (element + 1) + end};
}

std::string Missing(int count) {
    std::string out;
    for (int i = 0; i < count; ++i)
        out += "    <Cell  ss:StyleID=\"s60\"><Data ss:Type=\"String\">***</Data></Cell>\n";
    return out;
}

// ---- tables 1 and 2

TEST_F(SheetSections, PileRatioRow) {
    Make();
    Results().pileDc.At(0, 0) = Found(kEndJ, 0);
    EXPECT_EQ(Rows(Written(kTablePileDc), "  </Row>\n<Row></Row>\n"),
              R"(  <Row ss:Height="21">
    <Cell ss:Index="2" ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">11</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">2</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="String">J</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">11.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">12.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">13.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">14.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">15.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">16.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">17.25</Data></Cell></Row>
)");
}

// Column properties count from 2; the limit state's cell has one blank.
TEST_F(SheetSections, ColumnRatioRowWithCombinations) {
    Make(kFamilyLfd);
    Results().columnDc.At(0, 0) = Found(kEndI, 1);
    EXPECT_EQ(Rows(Written(kTableColumnDc), "  </Row>\n<Row></Row>"),
              R"(<Row ss:Height="21">
    <Cell ss:Index="2" ss:StyleID="s60"><Data ss:Type="Number">2</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">2</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">20</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">2</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="String">      SERVICE-I</Data></Cell>
    <Cell ss:StyleID="s61"><Data ss:Type="String">I</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">1.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">2.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">3.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">4.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">5.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">6.25</Data></Cell>
    <Cell ss:StyleID="s62"><Data ss:Type="Number">7.25</Data></Cell></Row>
)");
}

// The numbers of the empty record are in their cells nevertheless.
TEST_F(SheetSections, RatioRowWithoutResult) {
    const std::string numbers =
        R"(  <Row ss:Height="21">
    <Cell ss:Index="2" ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">0</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">-1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">-1</Data></Cell>
    <Cell ss:StyleID="s60"><Data ss:Type="Number">0</Data></Cell>
)";
    Make();
    EXPECT_EQ(Rows(Written(kTablePileDc), "  </Row>\n<Row></Row>\n"), numbers + Missing(8) + "</Row>\n");
    Make(kFamilyLfd);
    EXPECT_EQ(Rows(Written(kTablePileDc), "  </Row>\n<Row></Row>\n"), numbers + Missing(9) + "</Row>\n");
}

// Records that fit another project must not be used as indices.
TEST_F(SheetSections, RecordOfNoExistingMemberPrintsLikeNoResult) {
    Make();
    const std::string none = Written(kTablePileDc);
    for (const CMaxRecord& record :
         {CMaxRecord{1, 1, 0, 5, 0, 50}, CMaxRecord{1, 0, 1, 5, 0, 50}, CMaxRecord{2, 0, 0, 5, 0, 50},
          CMaxRecord{1, -1, 0, 5, 0, 50}, CMaxRecord{1, 0, -1, 5, 0, 50}}) {
        Results().pileDc.At(0, 0) = record;
        EXPECT_EQ(Written(kTablePileDc), none);
    }
    const std::string noForces = Written(kTablePileForces);
    Results().pileForces.At(0, 0, 3) = {1, 7, 0, 5, 0, 50};
    EXPECT_EQ(Written(kTablePileForces), noForces);
}

// ---- tables 5, 6 and 7

std::string LineOfForces(const std::string& property, const std::string& limitState,
                         const std::string& word) {
    return "  <Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s60\"><Data ss:Type=\"Number\">" + property +
           R"(</Data></Cell>
    <Cell  ss:StyleID="s60"><Data ss:Type="Number">1</Data></Cell>
    <Cell  ss:StyleID="s60"><Data ss:Type="Number">3</Data></Cell>
    <Cell  ss:StyleID="s60"><Data ss:Type="Number">30</Data></Cell>
    <Cell  ss:StyleID="s60"><Data ss:Type="Number">2</Data></Cell>
)" + limitState +
           R"(    <Cell  ss:StyleID="s60"><Data ss:Type="String">I</Data></Cell>
    <Cell  ss:StyleID="s60"><Data ss:Type="String">)" +
           word + "\t" + R"(</Data></Cell>
    <Cell  ss:StyleID="s62"><Data ss:Type="Number">1.25</Data></Cell>
    <Cell  ss:StyleID="s62"><Data ss:Type="Number">2.25</Data></Cell>
    <Cell  ss:StyleID="s62"><Data ss:Type="Number">3.25</Data></Cell>
    <Cell  ss:StyleID="s62"><Data ss:Type="Number">4.25</Data></Cell>
    <Cell  ss:StyleID="s62"><Data ss:Type="Number">5.25</Data></Cell>
    <Cell  ss:StyleID="s62"><Data ss:Type="Number">6.25</Data></Cell>
    <Cell  ss:StyleID="s62"><Data ss:Type="Number">7.25</Data></Cell>
  </Row>
)";
}

// A row without result: "none" under the force that the extreme concerns.
std::string MissingForceRow(const std::string& property, int numberCells, const std::string& word,
                            int force) {
    return "  <Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s60\"><Data ss:Type=\"Number\">" + property +
           "</Data></Cell>\n" + Missing(numberCells) +
           "    <Cell  ss:StyleID=\"s60\"><Data ss:Type=\"String\">" + word + "</Data></Cell>\n" +
           Missing(force) + "    <Cell  ss:StyleID=\"s60\"><Data ss:Type=\"String\">none</Data></Cell>\n" +
           Missing(6 - force) + "</Row>\n";
}

TEST_F(SheetSections, ExtraMemberForcesWithAndWithoutResult) {
    Make(kFamilyLfd);
    Results().extraMemberForces.At(0, 0, 0) = Found(kEndI, 2);
    const std::string state =
        "    <Cell  ss:StyleID=\"s60\"><Data ss:Type=\"String\">      SERVICE-I</Data></Cell>\n";
    const char* words[] = {"Min Axial", "Max f22", "Min f22", "Max f33",    "Min f33",   "Max m22",
                           "Min m22",   "Max m33", "Min m33", "Max Torque", "Min Torque"};
    std::string expected = LineOfForces("4", state, "Max Axial");
    for (int k = 1; k < 12; ++k) expected += MissingForceRow("4", 6, words[k - 1], k / 2);
    EXPECT_EQ(Rows(Written(kTableExtraMembers), "  </Row>\n<Row></Row>\n"), expected);
}

TEST_F(SheetSections, PlainForceRowsHaveNoLimitState) {
    Make();
    Results().extraMemberForces.At(0, 0, 11) = Found(kEndI, 2);
    const std::string rows = Rows(Written(kTableExtraMembers), "  </Row>\n<Row></Row>\n");
    EXPECT_THAT(rows, HasSubstr(MissingForceRow("4", 5, "Max m33", 4)));
    EXPECT_THAT(rows, EndsWith(LineOfForces("4", "", "Min Torque")));
}

// An empty row is between two sections and not after the last.
TEST_F(SheetSections, EmptyRowBetweenSections) {
    Make();
    Pier().m_nPileSections = 3;
    AllocateResults();
    Fill(Results().pileForces, kNotFoundRecord);
    const std::string rows = Rows(Written(kTablePileForces), "  </Row>\n<Row></Row>\n");
    EXPECT_EQ(Count(rows, "<Row></Row>\n"), 2);
    EXPECT_THAT(rows, HasSubstr(MissingForceRow("1", 5, "Min Torque", 5) + "<Row></Row>\n" +
                                MissingForceRow("2", 5, "Max Axial", 0)));
    EXPECT_THAT(rows, EndsWith(MissingForceRow("3", 5, "Min Torque", 5)));
}

// Sections 4 to 6 are announced, 4 and 6 have members; the gap after 6 would be that of the last section.
TEST_F(SheetSections, ExtraMemberSectionsWithoutMemberAreLeftOut) {
    MakePiers({{.extraMembers = 2}});
    CPier& pier = Pier();
    pier.m_nXMemberSections = 3;
    pier.m_nXMemberFirstSection = 4;
    pier.Element(0).m_nSection = 6;
    pier.Element(1).m_nSection = 4;
    AllocateResults();
    Fill(Results().extraMemberForces, kNotFoundRecord);
    const std::string sheet = Written(kTableExtraMembers);
    const std::string rows = Rows(sheet, "  </Row>\n<Row></Row>\n");
    EXPECT_EQ(Count(rows, "<Row></Row>\n"), 1);
    EXPECT_THAT(rows, HasSubstr(MissingForceRow("4", 5, "Min Torque", 5) + "<Row></Row>\n" +
                                MissingForceRow("6", 5, "Max Axial", 0)));
    EXPECT_THAT(rows, Not(HasSubstr("<Data ss:Type=\"Number\">5</Data>")));
}

TEST_F(SheetSections, SubstructureWithoutExtraMembersHasNoHeading) {
    MakePiers({{.piles = 1}, {.extraMembers = 1}});
    AllocateResults();
    const std::string sheet = Written(kTableExtraMembers);
    EXPECT_THAT(sheet, Not(HasSubstr("Substructure 1<")));
    EXPECT_THAT(sheet, HasSubstr("Extra Member Properties Data for Substructure 2</Data>"));
}

// ---- substructure headings

TEST_F(SheetSections, SubstructureHeadings) {
    Make();
    const std::string blanks = "                                     ";
    const std::pair<int, std::string> headings[] = {
        {1, "  <Row>  </Row>\n  <Row ss:Height=\"21\" >\n    <Cell><Data ss:Type=\"String\">" + blanks +
                "</Data></Cell>\n    <Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">"
                "Pile Properties Data for Substructure 1</Data></Cell>\n  </Row>\n"},
        {2, "<Row></Row>\n<Row ss:Height=\"21\" >\n\t<Cell><Data ss:Type=\"String\">" + blanks +
                "</Data></Cell>\n\t<Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">"
                "Column Properties Data for Substructure 1</Data></Cell>\n</Row>\n\n"},
        {5, "\t<Row></Row>\n<Row ss:Height=\"21\" >\n    <Cell><Data ss:Type=\"String\">" + blanks +
                "</Data></Cell>\n    <Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">"
                "Pile Properties Data for Substructure 1</Data></Cell>\n  </Row>\n"},
        {6, "<Row></Row>\n<Row ss:Height=\"21\" >\n\t<Cell><Data ss:Type=\"String\">" + blanks +
                "</Data></Cell>\n\t<Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">"
                "Column Properties Data for Substructure 1</Data></Cell>\n</Row>\n"},
        {7, "\t<Row></Row>\n  <Row ss:Height=\"21\">\n    <Cell><Data ss:Type=\"String\">" + blanks +
                "</Data></Cell>\n    <Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">"
                "Extra Member Properties Data for Substructure 1</Data></Cell>\n  </Row>\n"},
    };
    for (const auto& [table, heading] : headings) {
        EXPECT_THAT(Written(table), HasSubstr("</Data></Cell>\n  </Row>\n" + heading + "  <Row></Row>\n"));
    }
}

// A substructure whose members are called columns elsewhere keeps the fixed words here.
TEST_F(SheetSections, WordsOfTypeEightStayFixed) {
    Make(kFamilyNone, kTypeNoPileTables);
    EXPECT_THAT(Written(kTablePileDc), HasSubstr(">Pile Properties Data for Substructure 1<"));
    EXPECT_THAT(Written(kTablePileForces), HasSubstr(">PILE </Data>"));
}

// A pile bent has its heading, with the remark, and nothing else; the next substructure has its rows.
TEST_F(SheetSections, PileBentHasOnlyItsHeadingInColumnTables) {
    MakePiers({{.type = kTypePileBent, .piles = 1}, {.type = kTypePier, .columns = 1}});
    for (std::size_t p = 0; p < 2; ++p) {
        Pier(p).m_nColumnSections = 1;
        Results(p).columnDc.Allocate(1, 1, 1);
        Results(p).columnForces.Allocate(1, 1, kExtremes);
    }
    EXPECT_THAT(Written(kTableColumnDc),
                HasSubstr("Column Properties Data for Substructure 1 (Not applicable for Pile Bent)"
                          "</Data></Cell>\n</Row>\n\n<Row></Row>\n<Row ss:Height=\"21\" >\n"));
    EXPECT_THAT(Written(kTableColumnForces),
                HasSubstr("Column Properties Data for Substructure 1 (Not applicable for Pile Bent)"
                          "</Data></Cell>\n</Row>\n<Row></Row>\n<Row ss:Height=\"21\" >\n"));
    for (const int table : {kTableColumnDc, kTableColumnForces}) {
        EXPECT_EQ(Count(Written(table), ">COLUMN </Data>"), 1);
        EXPECT_THAT(Written(table), HasSubstr("Column Properties Data for Substructure 2</Data>"));
    }
}

// ---- the stray "<"

TEST_F(SheetSections, ServiceCombinationsLeaveAStrayBracketInThePileRatios) {
    Make(kFamilyLrfd);
    EXPECT_EQ(xml::Fault(Written(kTablePileDc)), "");
    PresentClasses({kStrength, kService});
    const std::string sheet = Written(kTablePileDc);
    EXPECT_THAT(sheet, HasSubstr("MAXIMUM SERVICE CASE DATA</Data></Cell>  </Row><\n  <Row></Row>\n"));
    EXPECT_NE(xml::Fault(sheet), "");
}

}  // namespace

}  // namespace lumerin
