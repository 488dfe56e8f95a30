// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "WellFormed.h"
#include "Worksheets.h"
#include "writers/WorkbookFrame.h"

namespace lumerin {

namespace {

using namespace sheets;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class SheetCaps : public SheetTest {
  protected:
    // Gives a substructure one support location and one bearing, both with results of load case 1.
    void GiveCap(std::size_t index, int slots, int rowCode = 2) {
        CPier& pier = Pier(index);
        PierResults& found = Results(index);
        const int row = rowCode == 1 ? 1 : 0;
        found.shearSupports.Allocate(1, slots, 4);
        found.momentSupports.Allocate(1, slots, 3);
        found.shearBearings.Allocate(1, slots, 4);
        found.momentBearings.Allocate(1, slots, 2);
        found.shearSupportList = found.momentSupportList = {{0, 0}};
        found.shearSupportX = found.momentSupportX = {10.0};
        pier.m_BearingList = {{0, rowCode, true, true}};
        pier.m_BearingX = {20.0};
        pier.m_nCapShearSupports = pier.m_nCapMomentSupports = pier.m_nCapBearings = 1;
        pier.m_nCapShearPoints = 3;
        pier.m_nCapMomentPoints = 2;
        found.shearPointX = {10.0, 20.0, 20.0};
        found.momentPointX = {10.0, 20.0};
        CCapEntry entry;
        entry.record = {0, 5, 0, 17, kEndJ, 23, kCapSpan, 0, 0, 0};
        entry.values = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 0.75};
        for (int slot = 0; slot < slots; ++slot) {
            for (int extreme = 0; extreme < 2; ++extreme) {
                found.shearSupports.At(0, slot, 0, extreme) = entry;
                found.momentSupports.At(0, slot, 0, extreme) = entry;
                found.shearBearings.At(0, slot, row * 2, extreme) = entry;
                found.shearBearings.At(0, slot, row * 2 + 1, extreme) = entry;
                found.momentBearings.At(0, slot, row, extreme) = entry;
            }
        }
    }
    void Make(CodeFamily family = kFamilyNone, StructureType type = kTypePier) {
        MakePiers({{.type = type, .family = family}});
        if (family == kFamilyLrfd) PresentClasses({kStrength});
        Pier().m_LoadCases[0].m_sLimitState = "STRENGTH-I";
        GiveCap(0, Pier().SlotCount());
    }
    CCapEntry& Support(int table, int kind = 0) {
        return (table == kTableCapShear ? Results().shearSupports : Results().momentSupports)
            .At(0, 0, kind, 0);
    }
};

std::string Label(const std::string& label) {
    return " <Row>   <Cell ss:Index=\"2\" ss:StyleID=\"s60\"><Data ss:Type=\"String\">" + label +
           "</Data></Cell>\n";
}
std::string TextCell(const std::string& text) {
    return "    <Cell  ss:StyleID=\"s60\"><Data ss:Type=\"String\">" + text + "</Data></Cell>\n";
}
std::string Whole(const std::string& number) {
    return "    <Cell  ss:StyleID=\"s60\"><Data ss:Type=\"Number\">" + number + "</Data></Cell>\n";
}
std::string Values(const std::vector<std::string>& numbers) {
    std::string out;
    for (const std::string& number : numbers) {
        out += "    <Cell  ss:StyleID=\"s62\"><Data ss:Type=\"Number\">" + number + "</Data></Cell>\n";
    }
    return out;
}
std::string Stars(int count, int none = -1) {
    std::string out;
    for (int i = 0; i < count; ++i) out += TextCell(i == none ? "none" : "***");
    return out;
}

const std::string kPlace = Whole("17") + Whole("5");  // ELEM, PROP
const std::string kShear = Values({"1.00", "2.00", "3.00", "4.00", "5.00", "6.00", "0.75"}) + "  </Row>\n";
const std::string kMoment = Values({"1.00", "4.00", "5.00", "0.75"}) + "  </Row>\n";

// ---- blocks

TEST_F(SheetCaps, ShearTableWithoutCombinations) {
    Make();
    const std::string sheet = Written(kTableCapShear);
    const auto heading = [](const std::string& text) {
        return "<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">" + text +
               "</Data></Cell>  </Row>\n";
    };
    const std::string place =
        " Shear Forces at the Left and Right of the Bearings and at the Left Face, Right Face and Centerline "
        "of "
        "Supports";
    const std::string row = kPlace + Whole("23") + Whole("1") + TextCell("J") + kShear;
    const std::string rows = Label("Col 1 LF") + row + Label("Brg 1 L") + row + Label("Brg 1 R") + row;
    EXPECT_THAT(sheet,
                HasSubstr("Pier Cap Shear F22 Design</Data></Cell>\n  </Row>\n<Row></Row>\n<Row></Row>\n" +
                          heading("Pier Cap Shear F22 Design, Substructure  1:") +
                          heading("Maximum (+)" + place) + "\n\t<Row>\t\t<Cell "));
    EXPECT_THAT(sheet, HasSubstr("<Row></Row>\n" + rows + "<Row></Row>\n" +
                                 heading("Pier Cap Shear F22 Design, Substructure  1:") +
                                 heading("Minimum (-)" + place) + "\n\t<Row>\t\t<Cell "));
    EXPECT_THAT(sheet, HasSubstr(rows + "<Row></Row><Row>\n"));  // the key follows the last row
    EXPECT_THAT(sheet, Not(HasSubstr("<Row></Row>/n")));
    EXPECT_EQ(xml::Fault(sheet), "");
}

TEST_F(SheetCaps, MomentTableWithoutCombinations) {
    Make(kFamilyNone, kTypePileBent);
    const std::string sheet = Written(kTableCapMoment);
    const auto heading = [](const std::string& text) {
        return "<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">" + text +
               "</Data></Cell>  </Row>\n";
    };
    const std::string place =
        " Moment Forces at the Bearings and at the Left Face, Right Face and Centerline of Supports";
    const std::string row = kPlace + Whole("23") + Whole("1") + TextCell("J") + kMoment;
    const std::string rows = Label("Pil 1 LF") + row + Label("Brg 1") + row + "<Row></Row>\n";
    EXPECT_THAT(sheet, HasSubstr(heading("Bent Cap Moment Design, Substructure  1:") +
                                 heading("Maximum (+)" + place) + heading("(+M33 = Tension at Bottom)\n") +
                                 "<Row></Row>\n\n\t<Row>\t\t<Cell "));
    EXPECT_THAT(sheet,
                HasSubstr("<Row></Row>\n" + rows + heading("Bent Cap Moment Design, Substructure  1:") +
                          heading("Minimum (-)" + place) + "<Row></Row>\n\n\t<Row>\t\t<Cell "));
    EXPECT_THAT(sheet, HasSubstr(rows + "<Row></Row><Row>\n"));
    EXPECT_EQ(xml::Fault(sheet), "");
}

TEST_F(SheetCaps, LimitStateFollowsTheLoadCase) {
    Make(kFamilyLrfd);
    const std::string row = kPlace + Whole("23") + Whole("1") + TextCell("     STRENGTH-I") + TextCell("J");
    EXPECT_THAT(Written(kTableCapShear), HasSubstr(Label("Col 1 LF") + row + kShear));
    EXPECT_THAT(Written(kTableCapMoment), HasSubstr(Label("Brg 1") + row + kMoment));
}

// ---- rows by end code and without result

TEST_F(SheetCaps, InsideAnElementBothNodesAreShown) {
    for (const int table : {kTableCapShear, kTableCapMoment}) {
        Make();
        Support(table).record.m_nEnd = kInsideElement;
        Support(table).record.m_nSecondNode = 24;
        EXPECT_THAT(Written(table), HasSubstr(Label("Col 1 LF") + kPlace + TextCell("23, 24") + Whole("1") +
                                              TextCell("I,J") + Values({"1.00"})));
    }
}

TEST_F(SheetCaps, UnsetEndHasStars) {
    Make();
    Support(kTableCapShear).record.m_nEnd = -1;
    EXPECT_THAT(Written(kTableCapShear), HasSubstr(Label("Col 1 LF") + kPlace + TextCell("***") + Whole("1") +
                                                   TextCell("***") + kShear));
}

TEST_F(SheetCaps, MissingSection) {
    const std::pair<int, int> cells[] = {{kTableCapShear, 11}, {kTableCapMoment, 8}};
    for (const auto& [table, count] : cells) {
        Make();
        Support(table).record.m_nMissing = 1;
        EXPECT_THAT(Written(table),
                    HasSubstr(Label("Col 1 LF") + TextCell("miss") + Stars(count, 2) + "\t</Row>\n"));
        Make(kFamilyLfd);
        Support(table).record.m_nMissing = 1;
        EXPECT_THAT(Written(table),
                    HasSubstr(Label("Col 1 LF") + TextCell("miss") + Stars(count + 1, 2) + "\t</Row>\n"));
    }
}

TEST_F(SheetCaps, NoLoadCase) {
    for (const int table : {kTableCapShear, kTableCapMoment}) {
        Make();
        Support(table).record.m_nLoadCase = -1;
        EXPECT_THAT(Written(table), HasSubstr(Label("Col 1 LF") + kPlace + Whole("23") + TextCell("none") +
                                              Stars(8) + "\t</Row>\n"));
        Make(kFamilyLfd);
        Support(table).record.m_nLoadCase = -1;
        EXPECT_THAT(Written(table), HasSubstr(Label("Col 1 LF") + kPlace + Whole("23") + TextCell("none") +
                                              Stars(9) + "\t</Row>\n"));
    }
}

// The left side uses the first flag (an element starts at the bearing), the right side by the second.
TEST_F(SheetCaps, SideOfABearingWithoutResult) {
    const std::string normal = kPlace + Whole("23") + Whole("1") + TextCell("J") + kShear;
    const auto none = [](int count) { return kPlace + Whole("23") + Stars(count, 2) + "\t</Row>\n"; };
    Make();
    Pier().m_BearingList[0].m_bElementStarts = false;
    EXPECT_THAT(Written(kTableCapShear), HasSubstr(Label("Brg 1 L") + none(9) + Label("Brg 1 R") + normal));
    Make();
    Pier().m_BearingList[0].m_bElementEnds = false;
    EXPECT_THAT(Written(kTableCapShear), HasSubstr(Label("Brg 1 L") + normal + Label("Brg 1 R") + none(9)));
    Make(kFamilyLfd);
    Pier().m_BearingList[0].m_bElementEnds = false;
    EXPECT_THAT(Written(kTableCapShear), HasSubstr(Label("Brg 1 R") + none(10)));
    // The moment table has no sides.
    EXPECT_THAT(Written(kTableCapMoment), Not(HasSubstr("***")));
}

TEST_F(SheetCaps, MissingFlagComesBeforeTheSide) {
    Make();
    Pier().m_BearingList[0].m_bElementStarts = false;
    Results().shearBearings.At(0, 0, 0, 0).record.m_nMissing = 1;
    EXPECT_THAT(Written(kTableCapShear),
                HasSubstr(Label("Brg 1 L") + TextCell("miss") + Stars(11, 2) + "\t</Row>\n"));
}

// ---- labels and order

TEST_F(SheetCaps, LabelsOfBearingRows) {
    const std::pair<int, std::vector<std::string>> rows[] = {
        {0, {"Brg 1 L LR", "Brg 1 R LR", "Brg 1 LR"}},
        {1, {"Brg 1 L RR", "Brg 1 R RR", "Brg 1 RR"}},
        {2, {"Brg 1 L", "Brg 1 R", "Brg 1"}},
        {3, {"Brg 1 L", "Brg 1 R", "Brg 1"}},
    };
    for (const auto& [code, labels] : rows) {
        Make();
        GiveCap(0, 1, code);
        const std::string shear = Written(kTableCapShear);
        EXPECT_THAT(shear, HasSubstr(Label(labels[0]) + kPlace));
        EXPECT_THAT(shear, HasSubstr(Label(labels[1]) + kPlace));
        EXPECT_THAT(Written(kTableCapMoment), HasSubstr(Label(labels[2]) + kPlace));
    }
}

TEST_F(SheetCaps, LabelsOfSupportKinds) {
    const char* shear[] = {"Mst 1 LF", "Mst 1 LCL", "Mst 1 RCL", "Mst 1 RF"};
    const char* moment[] = {"Mst 1 LF", "Mst 1 CL", "Mst 1 RF"};
    for (int kind = 0; kind < 4; ++kind) {
        Make(kFamilyNone, kTypeMast);
        Results().shearSupportList[0].m_nKind = kind;
        EXPECT_THAT(Written(kTableCapShear), HasSubstr(Label(shear[kind])));
        if (kind == 3) continue;
        Results().momentSupportList[0].m_nKind = kind;
        EXPECT_THAT(Written(kTableCapMoment), HasSubstr(Label(moment[kind])));
    }
}

// A support's section comes before a bearing at the same place, and after one to the left of it.
TEST_F(SheetCaps, RowsAreInOrderOfPosition) {
    Make();
    Pier().m_BearingX[0] = 10.0;
    std::string sheet = Written(kTableCapMoment);
    EXPECT_LT(sheet.find(Label("Col 1 LF")), sheet.find(Label("Brg 1")));
    Pier().m_BearingX[0] = 9.5;
    sheet = Written(kTableCapMoment);
    EXPECT_GT(sheet.find(Label("Col 1 LF")), sheet.find(Label("Brg 1")));
}

// ---- several substructures, Coords and the full report

TEST_F(SheetCaps, SecondSubstructureBringsTheSlipInTheShearTable) {
    MakePiers({{.type = kTypePier}, {.type = kTypeWallA}});
    GiveCap(0, 1);
    const std::string shear = Written(kTableCapShear);
    EXPECT_THAT(shear, HasSubstr("  </Row>\n<Row></Row>/n<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\">"
                                 "<Data ss:Type=\"String\">, Substructure  2:</Data></Cell>  </Row>\n"));
    const std::string moment = Written(kTableCapMoment);
    EXPECT_THAT(moment, Not(HasSubstr("/n<")));
    EXPECT_THAT(moment,
                HasSubstr("<Row></Row>\n<Row></Row>\n<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\">"
                          "<Data ss:Type=\"String\">, Substructure  2:</Data></Cell>  </Row>\n"));
}

TEST_F(SheetCaps, CoordsAccompanyATableThatIsWrittenAlone) {
    Make();
    const std::pair<int, std::string> coords[] = {
        {kTableCapShear, lumerin::CoordsSheet(MakeReport(), kTableCapShear)},
        {kTableCapMoment, lumerin::CoordsSheet(MakeReport(), kTableCapMoment)}};
    for (const auto& [table, sheet] : coords) {
        const std::string embedded = Written(table, true);
        EXPECT_EQ(Written(table, false), WorkbookHead(false, clock) + embedded + sheet + "</Workbook>\n");
        EXPECT_THAT(embedded, Not(HasSubstr("Coords")));
    }
}

// A full report: one head, the tables that are valid in their order, no coordinates.
TEST_F(SheetCaps, TablesOfAFullReportAreInOrderWithoutCoords) {
    MakePiers({{.type = kTypePier, .piles = 1, .columns = 1, .extraMembers = 1}});
    AllocateResults();
    GiveCap(0, 1);
    results.valid[kTableColumnDc] = false;
    {
        StoredStream out(Path());
        out << WorkbookHead(false, clock);
        for (int table = 0; table <= kTableExtraMembers; ++table) {
            if (results.valid[TableId{table}]) WriteTableSheet(MakeReport(), TableId{table}, out, true);
        }
        out << "</Workbook>\n";
        out.Close();
    }
    const std::string workbook = StoredText();
    std::vector<std::string> names;
    for (const std::string& sheet : Worksheets(workbook)) names.push_back(Attribute(sheet, "ss:Name"));
    EXPECT_THAT(names, testing::ElementsAre("Max_Axial_Forces_Pile_Heads", "Max_DC_For_Pile_Sections",
                                            "Max_PierCap_Shear_Design", "Max_PierCap_Moment_Design",
                                            "Max_Forces_For_All_Pile_Sects",
                                            "Max_Forces_For_All_Column_Sects", "Max_Extra_Member_Forces"));
    EXPECT_EQ(xml::Fault(workbook), "");
}

// The formulas reach two rows further than the shear table's and one further than the moment table's rows
// with combinations; without, the rows of each block's heading are added in the shear table.
TEST_F(SheetCaps, AnnouncedRowsReachTheLastRow) {
    const int beyond[][2] = {{4, 1}, {2, 1}, {2, 1}};
    const CodeFamily families[] = {kFamilyNone, kFamilyLrfd, kFamilyLfd};
    for (std::size_t i = 0; i < std::size(families); ++i) {
        Make(families[i]);
        const std::string shear = Written(kTableCapShear), moment = Written(kTableCapMoment);
        EXPECT_EQ(AnnouncedRows(shear) - CountedRows(shear), beyond[i][0]);
        EXPECT_EQ(AnnouncedRows(moment) - CountedRows(moment), beyond[i][1]);
    }
}

// ---- key

class SheetCapKey : public SheetCaps {
  protected:
    struct Entry {
        const char* shortForm;
        std::string longText;
    };
    static std::string Row(const Entry& left, const Entry* right = nullptr) {
        const auto cell = [](int index, const std::string& text) {
            return "<Cell ss:Index=\"" + std::to_string(index) +
                   "\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">" + text + "</Data></Cell>\n";
        };
        std::string out = "<Row>\n    " + cell(2, left.shortForm) + "   " + cell(3, "=") + "   " +
                          cell(4, left.longText) + "   ";
        if (right != nullptr) {
            out += cell(9, right->shortForm) + cell(10, "=") + cell(11, right->longText);
        }
        return out + "    </Row>\n";
    }
    static std::string Row(const Entry& left, const Entry& right) { return Row(left, &right); }
    std::string Key(int table) {
        const std::string sheet = Written(table);
        const std::size_t at = sheet.find("<Row></Row><Row>\n");
        return sheet.substr(at, sheet.find("</Table>") - at);
    }
    static std::string Head() {
        return "<Row></Row><Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">"
               " Location &amp; Side Key:</Data></Cell>  </Row>\n";
    }
    static std::string ShearLines(const std::string& word) {
        return Row({"LF", "Left Face of " + word}, {"L", "Left Side of Bearing"}) +
               Row({"RF", "Right Face of " + word}, {"R", "Right Side of Bearing"}) +
               Row({"LCL", "Left Centerline of " + word}, {"LR", "Bearing Is In The Left Row"}) +
               Row({"RCL", "Right Centerline of " + word}, {"RR", "Bearing Is In The Right Row"});
    }
    static std::string MomentLines(const std::string& word) {
        return Row({"LF", "Left Face of " + word}, {"LR", "Bearing Is In The Left Row"}) +
               Row({"RF", "Right Face of " + word}, {"RR", "Bearing Is In The Right Row"}) +
               Row({"CL", "Centerline of " + word});
    }
};

TEST_F(SheetCapKey, OneSubstructureNamesItsOwnSupports) {
    Make(kFamilyNone, kTypePier);
    EXPECT_EQ(Key(kTableCapShear),
              Head() + Row({"Col", "Column"}, {"Brg", "Bearing"}) + ShearLines("Column"));
    EXPECT_EQ(Key(kTableCapMoment),
              Head() + Row({"Col", "Column"}, {"Brg", "Bearing"}) + MomentLines("Column"));
    Make(kFamilyNone, kTypePileBent);
    EXPECT_EQ(Key(kTableCapMoment), Head() + Row({"Pil", "Pile"}, {"Brg", "Bearing"}) + MomentLines("Pile"));
}

TEST_F(SheetCapKey, SeveralSubstructuresNameTheTypesThatArePresent) {
    MakePiers({{.type = kTypePier}, {.type = kTypePileBent}});
    EXPECT_EQ(Key(kTableCapShear), Head() + Row({"Col", "Column"}) +
                                       Row({"Pil", "Pile"}, {"Brg", "Bearing"}) + ShearLines("Support"));
    MakePiers({{.type = kTypePier}, {.type = kTypeWallA}});
    EXPECT_EQ(Key(kTableCapMoment),
              Head() + Row({"Col", "Column"}, {"Brg", "Bearing"}) + MomentLines("Support"));
    MakePiers({{.type = kTypePileBent}, {.type = kTypePileBent}});
    EXPECT_EQ(Key(kTableCapMoment),
              Head() + Row({"Pil", "Pile"}, {"Brg", "Bearing"}) + MomentLines("Support"));
    MakePiers({{.type = kTypeMast}, {.type = kTypeMast}});
    EXPECT_EQ(Key(kTableCapShear), Head() + ShearLines("Support"));
}

}  // namespace

}  // namespace lumerin
