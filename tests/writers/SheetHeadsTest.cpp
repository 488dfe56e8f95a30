// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <utility>

#include "Worksheets.h"

namespace lumerin {

namespace {

using namespace sheets;
using testing::HasSubstr;
using testing::Not;

class SheetHeads : public SheetTest {
  protected:
    void Make(CodeFamily family) {
        MakePiers({{.type = kTypePier, .piles = 1, .columns = 1, .extraMembers = 1, .family = family}});
        Pier().m_nPileSections = Pier().m_nColumnSections = Pier().m_nXMemberSections = 1;
        AllocateResults();
        Pier().m_nCapShearPoints = Pier().m_nCapMomentPoints = 0;
        if (family == kFamilyLrfd) PresentClasses({kStrength, kService, kExtreme, kFatigue});
        if (family == kFamilyArema) PresentClasses({kStrength, kService});
    }
    // Index and width of every listed column.
    static std::vector<std::pair<int, std::string>> Columns(const std::string& sheet) {
        std::vector<std::pair<int, std::string>> columns;
        static const std::string mark = "  <Column ss:Index=\"";
        for (std::size_t at = sheet.find(mark); at != std::string::npos; at = sheet.find(mark, at + 1)) {
            const std::string line = sheet.substr(at, sheet.find('\n', at) - at);
            const std::string width = Attribute(line, "ss:Width");
            EXPECT_EQ(line, mark + Attribute(line, "ss:Index") + "\"  ss:Width=\"" + width + "\"/>");
            columns.emplace_back(std::stoi(Attribute(line, "ss:Index")), width);
        }
        return columns;
    }
};

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

// What stands before the first heading, so that its first characters are seen too.
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

// ---- column heads

std::string Cells(const std::vector<std::string>& texts) {
    std::string out;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        out += i == 0 ? "\t\t<Cell ss:Index=\"2\" ss:StyleID=\"s65\">" : "\t\t<Cell ss:StyleID=\"s65\">";
        out += "<Data ss:Type=\"String\">" + texts[i] + "</Data></Cell>\n";
    }
    return out;
}

struct ColumnCase {
    int table;
    const char* opening;
    std::vector<std::string> upper, lower;
    const char* closing;
};

TEST_F(SheetHeads, ColumnHeadsWithoutCombinations) {
    Make(kFamilyNone);
    data.m_nAnalysisMode = 1;
    const std::string k = "(kips)", m = "(kip-ft)";
    const ColumnCase cases[] = {
        {1,
         "  <Row></Row>\n<Row>",
         {"PROP", "PILE ", "ELEM ", "NODE ", "TIME ", "I/J", "FAX", "F22", "F33", "M22", "M33", "TORQUE",
          "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n  <Row ss"},
        {2,
         "  <Row></Row>\n\t<Row>",
         {"PROP", "COLUMN ", "ELEM ", "NODE ", "TIME ", "I/J", "FAX", "F22", "F33", "M22", "M33", "TORQUE",
          "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row><Row ss"},
        {3,
         "\n\t<Row>",
         {"LOCATION", "ELEM", "PROP", "NODE ", "TIME ", "I/J", "FAX", "F22", "F33", "M22", "M33", "TORQUE",
          "D/C"},
         {"&amp; SIDE", "NO. ", "NO. ", "NO. ", "STEP ", "", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n<Row></Row>"},
        {4,
         "\n\t<Row>",
         {"LOCATION", "ELEM", "PROP", "NODE ", "TIME ", "I/J", "FAX", "M22", "M33", "D/C"},
         {"&amp; SIDE", "NO. ", "NO. ", "NO. ", "STEP ", "", k, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n<Row></Row>\n"},
        {5,
         "  <Row></Row>\n<Row>\n ",
         {"PROP", "PILE ", "ELEM ", "NODE ", "TIME ", "I/J", "Max/Min", "FAX", "F22", "F33", "M22", "M33",
          "TORQUE", "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", "Force", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n  <Row>\n"},
        {6,
         "  <Row></Row>\n<Row>",
         {"PROP", "COLUMN ", "ELEM ", "NODE ", "TIME ", "I/J", "Max/Min", "FAX", "F22", "F33", "M22", "M33",
          "TORQUE", "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", "Force", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n  <Row>\n"},
        {7,
         "  <Row></Row>\n<Row>",
         {"PROP", "XMEMBR ", "ELEM ", "NODE ", "TIME ", "I/J", "Max/Min", "FAX", "F22", "F33", "M22", "M33",
          "TORQUE", "D/C"},
         {"NO.", "NO.", "NO.", "NO.", "STEP ", "", "Force", k, k, k, m, m, m, "(Ratio)"},
         "  </Row>\n<Row></Row>\n  <Row>\n"},
    };
    for (const ColumnCase& head : cases) {
        EXPECT_THAT(Written(head.table), HasSubstr(head.opening + Cells(head.upper) + "  </Row>\n  <Row>\n" +
                                                   Cells(head.lower) + head.closing))
            << head.table;
    }
}

// With combinations the family's word stands over an empty cell; a family without a word keeps the empty
// cell.
TEST_F(SheetHeads, ColumnHeadsNameTheDesignFamily) {
    const std::pair<CodeFamily, const char*> families[] = {{kFamilyLrfd, "AASHTO-LRFD"},
                                                           {kFamilyLfd, "AASHTO-LFD"},
                                                           {kFamilyArema, "AREMA"},
                                                           {CodeFamily{3}, nullptr}};
    data.m_sForceUnit = "kN";
    data.m_sMomentUnit = "kN-m";
    for (const auto& [family, word] : families) {
        Make(family);
        std::vector<std::string> upper = {"LOCATION", "ELEM", "PROP", "NODE ", "LOAD "};
        if (word != nullptr) upper.emplace_back(word);
        for (const char* text : {"I/J", "FAX", "M22", "M33", "D/C"}) upper.emplace_back(text);
        EXPECT_THAT(Written(kTableCapMoment),
                    HasSubstr("\n\t<Row>" + Cells(upper) + "  </Row>\n  <Row>\n" +
                              Cells({"&amp; SIDE", "NO. ", "NO. ", "NO. ", "COMB ", "", "", "(kN)", "(kN-m)",
                                     "(kN-m)", "(Ratio)"}) +
                              "  </Row>\n<Row></Row>\n"));
        upper = {"PROP", "PILE ", "ELEM ", "NODE ", "LOAD "};
        if (word != nullptr) upper.emplace_back(word);
        for (const char* text : {"I/J", "Max/Min", "FAX", "F22", "F33", "M22", "M33", "TORQUE", "D/C"}) {
            upper.emplace_back(text);
        }
        EXPECT_THAT(Written(kTablePileForces),
                    HasSubstr(Cells(upper) + "  </Row>\n  <Row>\n" +
                              Cells({"NO.", "NO.", "NO.", "NO.", "COMB ", "", "", "Force", "(kN)", "(kN)",
                                     "(kN)", "(kN-m)", "(kN-m)", "(kN-m)", "(Ratio)"}) +
                              "  </Row>\n<Row></Row>\n"));
    }
}

}  // namespace

}  // namespace lumerin
