// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <utility>

#include "SheetHeads.h"

namespace lumerin {

namespace {

using namespace sheets;
using testing::HasSubstr;
using testing::Not;

struct HeadCase {
    int table;
    const char* name;
    const char* columns[2];  // plain, with combinations
    const char* merged[2];
    std::vector<int> plainWidths, widths;
    const char* title;
};

const std::vector<HeadCase>& HeadCases() {
    static const std::vector<HeadCase> cases = {
        {0,
         "Max_Axial_Forces_Pile_Heads",
         {"11", "13"},
         {"8", "10"},
         {70, 35, 35, 58, 55, 45, 35, 58, 55},
         {70, 35, 35, 60, 58, 55, 45, 35, 60, 58, 55},
         "Maximum Axial Forces at All Pile Heads"},
        {1,
         "Max_DC_For_Pile_Sections",
         {"16", "16"},
         {"12", "13"},
         {35, 35, 35, 35, 35, 20, 58, 58, 58, 58, 58, 58, 55},
         {35, 35, 35, 35, 35, 60, 20, 58, 58, 58, 58, 58, 58, 55},
         "Maximum Demand/Capacity Ratio For All Pile Properties (Cross Sections)"},
        {2,
         "Max_DC_For_Column_Sections",
         {"16", "16"},
         {"12", "13"},
         {35, 45, 35, 35, 35, 20, 58, 58, 58, 58, 58, 58, 55},
         {35, 45, 35, 35, 35, 60, 20, 58, 58, 58, 58, 58, 58, 55},
         "Maximum Demand/Capacity Ratio for All Column Properties (Cross Sections)"},
        {3,
         "Max_PierCap_Shear_Design",
         {"16", "16"},
         {"12", "13"},
         {50, 50, 35, 50, 35, 20, 58, 58, 58, 58, 58, 58, 55},
         {50, 50, 35, 50, 35, 60, 20, 58, 58, 58, 58, 58, 58, 55},
         "Pier Cap Shear F22 Design"},
        {4,
         "Max_PierCap_Moment_Design",
         {"16", "16"},
         {"9", "10"},
         {50, 50, 35, 50, 35, 20, 58, 58, 58, 55},
         {50, 50, 35, 50, 35, 60, 20, 58, 58, 58, 55},
         "Pier Cap M33 Moment Design"},
        {5,
         "Max_Forces_For_All_Pile_Sects",
         {"16", "16"},
         {"13", "14"},
         {35, 35, 35, 35, 35, 20, 50, 58, 58, 58, 58, 58, 58, 55},
         {35, 35, 35, 35, 35, 60, 20, 50, 58, 58, 58, 58, 58, 58, 55},
         " Maximum Forces for All Pile Properties (Cross Sections)"},
        {6,
         "Max_Forces_For_All_Column_Sects",
         {"18", "18"},
         {"13", "14"},
         {35, 45, 35, 35, 35, 20, 50, 58, 58, 58, 58, 58, 58, 55},
         {35, 45, 35, 35, 35, 60, 20, 50, 58, 58, 58, 58, 58, 58, 55},
         "Maximum Forces for All Column Properties (Cross Sections)"},
        {7,
         "Max_Extra_Member_Forces",
         {"16", "16"},
         {"13", "14"},
         {35, 45, 35, 35, 35, 20, 50, 58, 58, 58, 58, 58, 58, 55},
         {35, 45, 35, 35, 35, 60, 20, 50, 58, 58, 58, 58, 58, 58, 55},
         "Maximum Forces for All Extra Member Properties"},
        {8,
         "Substructure 1",
         {"14", "14"},
         {"12", "12"},
         {86, 86, 86, 86, 86, 86, 86, 86, 86, 86, 86, 86},
         {86, 86, 86, 86, 86, 86, 86, 86, 86, 86, 86, 86},
         "Internal Forces at Pile Heads"},
    };
    return cases;
}

// The indexes run on from 2 without a gap, with and without the limit state column.
TEST_F(SheetHeads, ColumnsRunOnFromTwo) {
    for (const int mode : {0, 1}) {
        Make(mode == 0 ? kFamilyNone : kFamilyLfd);
        for (const HeadCase& head : HeadCases()) {
            const std::string sheet = Written(head.table);
            std::vector<std::pair<int, std::string>> expected;
            for (const int width : mode == 0 ? head.plainWidths : head.widths) {
                expected.emplace_back(static_cast<int>(expected.size()) + 2,
                                      std::to_string(width) + ".000000");
            }
            EXPECT_EQ(Columns(sheet), expected) << head.table << " " << mode;
        }
    }
}

TEST_F(SheetHeads, OpeningAndTitleRow) {
    for (const int mode : {0, 1}) {
        Make(mode == 0 ? kFamilyNone : kFamilyLfd);
        for (const HeadCase& head : HeadCases()) {
            const std::string sheet = Written(head.table);
            const std::string rows = Attribute(sheet, "ss:ExpandedRowCount");
            EXPECT_EQ(sheet.find(std::string("<Worksheet ss:Name=\"") + head.name +
                                 "\">\n<Table ss:ExpandedColumnCount=\"" + head.columns[mode] +
                                 "\" ss:ExpandedRowCount=\"" + rows +
                                 "\" x:FullColumns=\"1\"\nx:FullRows=\"1\" ss:DefaultRowHeight=\"15\">\n"
                                 "  <Column ss:Index=\"2\"  ss:Width=\""),
                      0U);
            const std::string blank = head.table == 0 || head.table == 8 ? "  " : " ";
            EXPECT_THAT(sheet, HasSubstr("  <Row ss:Height=\"41\">\n    <Cell><Data ss:Type=\"String\">"
                                         "                                            </Data></Cell>\n"
                                         "    <Cell ss:MergeAcross=\"" +
                                         std::string(head.merged[mode]) + "\"" + blank +
                                         "ss:StyleID=\"s87\"><Data ss:Type=\"String\">" + head.title +
                                         "</Data></Cell>\n  </Row>\n"));
        }
    }
}

TEST_F(SheetHeads, SheetNamesFitExcel) {
    Make(kFamilyNone);
    for (const HeadCase& head : HeadCases()) {
        for (const std::string& sheet : Worksheets(Written(head.table, false))) {
            EXPECT_LE(Attribute(sheet, "ss:Name").size(), 31U);
        }
    }
}

TEST_F(SheetHeads, PileHeadTableHasTwoSubtitles) {
    Make(kFamilyNone);
    EXPECT_THAT(
        Written(kTableMaxAxial),
        HasSubstr("  <Row ss:Height=\"21\">\n    <Cell><Data ss:Type=\"String\">"
                  "                                     </Data></Cell>\n"
                  "    <Cell ss:MergeAcross=\"8\" ss:StyleID=\"s66\"><Data ss:Type=\"String\">"
                  "(USE TO COMPARE TO PILE DRIVE CAPACITY)</Data></Cell>\n  </Row>\n"
                  "  <Row ss:Height=\"21\">\n    <Cell><Data ss:Type=\"String\">"
                  "                                </Data></Cell>\n"
                  "    <Cell ss:MergeAcross=\"8\" ss:StyleID=\"s66\"><Data ss:Type=\"String\">"
                  "MAXIMUM COMPRESSION AND MAXIMUM TENSION FORCES</Data></Cell>\n  </Row>\n\t<Row></Row>\n"));
}

// ---- headings of the limit classes, whole

#define BLANK_CELL "<Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
#define WORDS "    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">"

struct SectionCase {
    int table;
    const char* texts[6];  // LRFD strength, service, extreme; LFD; AREMA load factor, service load
};
const SectionCase kSections[] = {
    {1,
     {"  <Row>  </Row>\n  <Row>    " BLANK_CELL WORDS "MAXIMUM STRENGTH CASE DATA</Data></Cell>  </Row>\n",
      "  <Row>  </Row>\n  <Row>    " BLANK_CELL WORDS "MAXIMUM SERVICE CASE DATA</Data></Cell>  </Row><\n",
      "  <Row>  </Row>\n  <Row>    " BLANK_CELL WORDS "MAXIMUM EXTREME CASE DATA</Data></Cell>  </Row><\n",
      "  <Row>  </Row>\n  <Row>    " BLANK_CELL WORDS
      "MAXIMUM LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n",
      "  <Row>  </Row>\n  <Row>    " BLANK_CELL WORDS
      "MAXIMUM LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n",
      "  <Row>  </Row>\n  <Row>    " BLANK_CELL WORDS
      "MAXIMUM SERVICE LOAD DESIGN DATA</Data></Cell>  </Row><\n"}},
    {2,
     {"  <Row></Row>\n\t<Row>    " BLANK_CELL WORDS "MAXIMUM STRENGTH CASE DATA</Data></Cell>  </Row>\n< ",
      "  <Row></Row>\n\t<Row>    " BLANK_CELL WORDS "MAXIMUM SERVICE CASE DATA</Data></Cell>  </Row>\n  ",
      "   <Row></Row>\n\t<Row>    " BLANK_CELL WORDS "MAXIMUM EXTREME CASE DATA</Data></Cell>  </Row>\n  ",
      "   <Row></Row>\n\t<Row>    " BLANK_CELL WORDS
      "MAXIMUM LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n ",
      "  <Row></Row>\n\t<Row>    " BLANK_CELL WORDS
      "MAXIMUM LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n< ",
      "  <Row></Row>\n\t<Row>    " BLANK_CELL WORDS
      "MAXIMUM SERVICE LOAD DESIGN DATA</Data></Cell>  </Row>\n  "}},
    {3,
     {"  <Row></Row>\n<Row>    " BLANK_CELL WORDS "STRENGTH CASE DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row></Row>\n<Row>    " BLANK_CELL WORDS "SERVICE CASE DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row></Row>\n<Row>    " BLANK_CELL WORDS "EXTREME CASE DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row></Row>\n<Row>    " BLANK_CELL WORDS
      "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row></Row>\n<Row>    " BLANK_CELL WORDS
      "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row></Row>\n<Row>    " BLANK_CELL WORDS
      "SERVICE LOAD DESIGN DATA</Data></Cell>  </Row>\n<Row></Row>"}},
    {4,
     {"  <Row>    " BLANK_CELL WORDS "STRENGTH CASE DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row>    " BLANK_CELL WORDS "SERVICE CASE DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row>    " BLANK_CELL WORDS "EXTREME CASE DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row>    " BLANK_CELL WORDS "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row>    " BLANK_CELL WORDS "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n<Row></Row>",
      "  <Row>    " BLANK_CELL WORDS "SERVICE LOAD DESIGN DATA</Data></Cell>  </Row>\n<Row></Row>"}},
    {5,
     {"   <Row></Row>\n\t<Row>    " BLANK_CELL WORDS "STRENGTH CASE DATA</Data></Cell>  </Row>\n",
      "  <Row></Row>\n<Row>\n    " BLANK_CELL WORDS "SERVICE CASE DATA</Data></Cell>  </Row><\n",
      "   <Row></Row>\n\t<Row>\n    " BLANK_CELL WORDS "EXTREME CASE DATA</Data></Cell>  </Row>\n",
      "  <Row></Row>\n\t<Row>\n    " BLANK_CELL WORDS "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n",
      "   <Row></Row>\n\t<Row>    " BLANK_CELL WORDS "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n",
      "  <Row></Row>\n<Row>\n    " BLANK_CELL WORDS "SERVICE LOAD DESIGN DATA</Data></Cell>  </Row><\n"}},
    {6,
     {"   <Row>\n    " BLANK_CELL WORDS "STRENGTH CASE DATA</Data></Cell>  </Row>\n",
      "  <Row>\n   " BLANK_CELL WORDS "SERVICE CASE DATA</Data></Cell>  </Row>\n",
      "   <Row>\n    " BLANK_CELL WORDS "EXTREME CASE DATA</Data></Cell>  </Row>\n",
      "  <Row>\n    " BLANK_CELL WORDS "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n",
      "   <Row>\n    " BLANK_CELL WORDS "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n",
      "  <Row>\n   " BLANK_CELL WORDS "SERVICE LOAD DESIGN DATA</Data></Cell>  </Row>\n"}},
    {7,
     {"   <Row>    " BLANK_CELL WORDS "STRENGTH CASE DATA</Data></Cell>  </Row>\n",
      "  <Row>    " BLANK_CELL WORDS "SERVICE CASE DATA</Data></Cell>  </Row>\n",
      "   <Row>    " BLANK_CELL WORDS "EXTREME CASE DATA</Data></Cell>  </Row>\n",
      "  <Row>    " BLANK_CELL WORDS "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n",
      "   <Row>    " BLANK_CELL WORDS "LOAD FACTOR DESIGN DATA</Data></Cell>  </Row>\n",
      "  <Row>    " BLANK_CELL WORDS "SERVICE LOAD DESIGN DATA</Data></Cell>  </Row>\n"}},
};

// What follows each heading in that table, so that the heading's last characters are seen too.
const char* HeadOpening(int table) {
    switch (table) {
        case 2:
            return "  <Row></Row>\n\t<Row>\t\t<Cell ";
        case 3:
        case 4:
            return "\n\t<Row>\t\t<Cell ";
        case 5:
            return "  <Row></Row>\n<Row>\n \t\t<Cell ";
        default:
            return "  <Row></Row>\n<Row>\t\t<Cell ";
    }
}

// The text before the first heading, so that its first characters are compared, too.
const char* SubstructureEnd(int table) {
    switch (table) {
        case 2:
            return "</Data></Cell>\n</Row>\n\n";
        case 3:
            return "</Data></Cell>  </Row>\n";
        case 4:
            return "</Data></Cell>  </Row>\n<Row></Row>\n";
        case 6:
            return "</Data></Cell>\n</Row>\n";
        default:
            return "</Data></Cell>\n  </Row>\n";
    }
}

TEST_F(SheetHeads, SectionHeadingsOfEachFamily) {
    const std::pair<CodeFamily, int> families[] = {{kFamilyLrfd, 0}, {kFamilyLrfd, 1},  {kFamilyLrfd, 2},
                                                   {kFamilyLfd, 0},  {kFamilyArema, 0}, {kFamilyArema, 1}};
    for (std::size_t i = 0; i < std::size(families); ++i) {
        Make(families[i].first);
        if (families[i].first != kFamilyLfd) PresentClasses({families[i].second});
        for (const SectionCase& section : kSections) {
            EXPECT_THAT(Written(section.table),
                        HasSubstr(SubstructureEnd(section.table) + std::string(section.texts[i]) +
                                  HeadOpening(section.table)))
                << section.table << " " << i;
        }
    }
}

// Fatigue has a block in the cap moment table alone.
TEST_F(SheetHeads, FatigueHeadsACapMomentBlockOnly) {
    Make(kFamilyLrfd);
    for (int table = 0; table <= kTableExtraMembers; ++table) {
        const std::string sheet = Written(table);
        if (table == kTableCapMoment) {
            EXPECT_THAT(sheet, HasSubstr("  <Row>    " BLANK_CELL WORDS
                                         "FATIGUE CASE DATA</Data></Cell>  </Row>\n<Row></Row>\n\t<Row>"));
        } else {
            EXPECT_THAT(sheet, Not(HasSubstr("FATIGUE")));
        }
    }
}

}  // namespace

}  // namespace lumerin
