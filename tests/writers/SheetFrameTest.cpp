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
using testing::StartsWith;

class SheetFrame : public SheetTest {};

// The head up to the time stamp, and from there to the styles that a dialog's grid adds to.
const std::string kHeadTop =
    R"(<?xml version="1.0"?>
<?mso-application progid="Excel.Sheet"?>
<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet"
 xmlns:o="urn:schemas-microsoft-com:office:office"
 xmlns:x="urn:schemas-microsoft-com:office:excel"
 xmlns:ss="urn:schemas-microsoft-com:office:spreadsheet"
 xmlns:html="http://www.w3.org/TR/REC-html40">
 <DocumentProperties xmlns="urn:schemas-microsoft-com:office:office">
  <LastAuthor>ovrelle</LastAuthor>
  <Created>11/14/26 08:30:05</Created>
  <LastSaved>2008-10-02T13:20:01Z</LastSaved>
  <Version>12.00</Version>
 </DocumentProperties>
 <ExcelWorkbook xmlns="urn:schemas-microsoft-com:office:excel">
  <WindowHeight>9405</WindowHeight>
  <WindowWidth>17055</WindowWidth>
  <WindowTopX>120</WindowTopX>
  <WindowTopY>90</WindowTopY>
  <ProtectStructure>False</ProtectStructure>
  <ProtectWindows>False</ProtectWindows>
 </ExcelWorkbook>
 <Styles>
  <Style ss:ID="Default" ss:Name="Normal">
  <Alignment ss:Vertical="Bottom"/>
  <Borders/>
  <Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="8" ss:Color="#000000"/>
  <Interior/>
  <NumberFormat/>
  <Protection/>
  </Style>
  <Style ss:ID="s57">
  <Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="8" ss:Color="#3333FF"/>
  </Style>
  <Style ss:ID="s58">
<Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="11" ss:Color="#000000" ss:Bold="1"/>
<NumberFormat ss:Format="@"/>
  </Style>
  <Style ss:ID="s59">
<Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="9" ss:Color="#000000"/>
<NumberFormat ss:Format="@"/>
  </Style>
<Style ss:ID="s60">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0"/>
</Style>
<Style ss:ID="s61">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0.00"/>
</Style>
<Style ss:ID="s62">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0.00"/>
</Style>
<Style ss:ID="s63">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="Fixed"/>
</Style>
<Style ss:ID="s64">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
</Style>
<Style ss:ID="s65">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="9" ss:Color="#3333FF"/>
<NumberFormat ss:Format="@"/>
</Style>
<Style ss:ID="s66">
<Alignment ss:Horizontal="Center" ss:Vertical="Bottom"/>
<Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="14" ss:Color="#000000"/>
<NumberFormat ss:Format="@"/>
</Style>
<Style ss:ID="s67">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="8" ss:Color="#000000"/>
<NumberFormat ss:Format="0.0000E+00"/>
</Style>
)";

const std::string kGridStyles =
    R"(<Style ss:ID="s68">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0.000"/>
</Style>
<Style ss:ID="s69">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0.0000"/>
</Style>
<Style ss:ID="s70">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0.00000"/>
</Style>
<Style ss:ID="s71">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0.000000"/>
</Style>
<Style ss:ID="s72">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0.0000000"/>
</Style>
<Style ss:ID="s73">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0.00000000"/>
</Style>
<Style ss:ID="s74">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="9" ss:Color="#000000"/>
<NumberFormat ss:Format="@"/>
</Style>
<Style ss:ID="s75">
<Alignment ss:Horizontal="Right" ss:Vertical="Bottom"/>
<NumberFormat ss:Format="0.0"/>
</Style>
)";

const std::string kHeadBottom =
    R"(<Style ss:ID="s86">
<Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="14" ss:Color="#000000" ss:Bold="1"/></Style>
<Style ss:ID="s87">
<Alignment ss:Horizontal="Center" ss:Vertical="Center"/>
<Font ss:FontName="Calibri" x:Family="Swiss" ss:Size="19" ss:Color="#000000" ss:Bold="1"/>
<NumberFormat ss:Format="@"/>
</Style>
</Styles>
)";

std::string SheetEnd(const std::string& footer) {
    return R"(</Table>
<WorksheetOptions xmlns="urn:schemas-microsoft-com:office:excel">
<PageSetup>
<Layout x:Orientation="Landscape"/><Header x:Margin="0.3"/>
<Footer x:Margin="0.3" x:Data=")" +
           footer + R"("/>
<PageMargins x:Bottom="0.75" x:Left="0.7" x:Right="0.7" x:Top="0.75"/>
</PageSetup>
<Print>
<ValidPrinterInfo/>
<HorizontalResolution>600</HorizontalResolution>
<VerticalResolution>600</VerticalResolution>
</Print>
<Selected/>
<Panes>
<Pane>
<Number>3</Number>
<ActiveRow>0</ActiveRow>
<ActiveCol>1</ActiveCol>
</Pane>
</Panes>
<ProtectObjects>False</ProtectObjects>
<ProtectScenarios>False</ProtectScenarios>
</WorksheetOptions>
</Worksheet>
)";
}

TEST_F(SheetFrame, HeadOfAReport) {
    EXPECT_EQ(WorkbookHead(false, clock), kHeadTop + kHeadBottom);
}

TEST_F(SheetFrame, HeadOfAGridHasEightMoreStyles) {
    EXPECT_EQ(WorkbookHead(true, clock), kHeadTop + kGridStyles + kHeadBottom);
}

TEST_F(SheetFrame, YearLaterOnlyTheCreationTimeDiffers) {
    const std::string before = WorkbookHead(false, clock);
    clock = LocalTime{2027, 1, 2, 6, 23, 4, 59};
    std::string later = WorkbookHead(false, clock);
    EXPECT_THAT(later, HasSubstr("  <Created>01/02/27 23:04:59</Created>\n"));
    EXPECT_THAT(later, HasSubstr("  <LastSaved>2008-10-02T13:20:01Z</LastSaved>\n"));
    later.replace(later.find("01/02/27 23:04:59"), 17, "11/14/26 08:30:05");
    EXPECT_EQ(later, before);
}

TEST_F(SheetFrame, EndWithoutFooterHasNothingBetweenTheCodes) {
    options.footer.on = false;
    options.footer.version = true;
    EXPECT_EQ(WorksheetEnd(options), SheetEnd("&amp;L&amp;RPage &amp;P of &amp;N"));
}

TEST_F(SheetFrame, EndWithFooterHasItOnTheLeft) {
    options.footer.on = options.footer.date = options.footer.time = options.footer.version = true;
    options.versionLabel = "v5.2.1";
    EXPECT_EQ(WorksheetEnd(options),
              SheetEnd("&amp;LSaturday, November 14, 2026 8:30:05 AM, v5.2.1&amp;RPage &amp;P of &amp;N"));
}

TEST_F(SheetFrame, EndWithAFixedFooter) {
    EXPECT_EQ(WorksheetEndWith(" Need Footer "), SheetEnd("&amp;L Need Footer &amp;RPage &amp;P of &amp;N"));
}

// A path is written as it is, so with an ampersand in it the workbook is not well-formed.
TEST_F(SheetFrame, AmpersandInThePathIsNotEscaped) {
    MakePiers({{.piles = 1}});
    AllocateResults();
    options.footer.on = options.footer.fileName = true;
    options.projectBasePath = "A & B/pier";
    const std::string text = Written(kTablePileHeads, false);
    EXPECT_THAT(text, HasSubstr("x:Data=\"&amp;LA & B/pier.in&amp;RPage &amp;P of &amp;N\"/>\n"));
    EXPECT_THAT(xml::Fault(text), HasSubstr("xmlParseEntityRef"));
}

TEST_F(SheetFrame, TableThatDoesNotApplyWritesNothing) {
    MakePiers({{.piles = 1}});
    enabled = {};
    for (int table = 0; table <= kTablePileHeads; ++table) {
        StoredStream out(Path());
        EXPECT_EQ(WriteTableSheet(MakeReport(), TableId{table}, out, false), -1);
        EXPECT_EQ(out.Position(), 0);
        EXPECT_TRUE(out.IsOpen());
    }
}

TEST_F(SheetFrame, EmbeddedTableIsTheWorkbookWithoutItsFrame) {
    MakePiers({{.piles = 2}});
    AllocateResults();
    for (const int table :
         {kTableMaxAxial, kTablePileDc, kTableColumnDc, kTablePileForces, kTablePileHeads}) {
        const std::string alone = Written(table, false);
        EXPECT_EQ(alone, WorkbookHead(false, clock) + Written(table, true) + "</Workbook>\n");
        EXPECT_EQ(xml::Fault(alone), "");
    }
}

// ---- step words

TEST_F(SheetFrame, StepWordsTestCombinationsFirst) {
    const auto words = [this] {
        const std::string text = Written(kTablePileHeads);
        const auto cell = [](const std::string& word) { return "String\">" + word + "</Data></Cell>\n"; };
        for (const char* upper : {"LOAD", "TIME"}) {
            for (const char* lower : {"COMB", "STEP", "CASE"}) {
                if (text.find(cell(upper)) != std::string::npos &&
                    text.find(cell(lower)) != std::string::npos) {
                    return std::string(upper) + " " + lower;
                }
            }
        }
        return std::string("none");
    };
    MakePiers({{.piles = 1}});
    EXPECT_EQ(words(), "LOAD CASE");
    data.m_nAnalysisMode = 1;
    EXPECT_EQ(words(), "TIME STEP");
    data.m_nAnalysisMode = 2;
    EXPECT_EQ(words(), "LOAD CASE");
    data.m_nAnalysisMode = 1;
    Pier().m_bCombinations = true;
    EXPECT_EQ(words(), "LOAD COMB");
}

// ---- the worksheet of coordinates

class CoordsSheet : public SheetTest {
  protected:
    static std::string Rows(const std::vector<std::string>& cells) {
        std::string out;
        for (const std::string& cell : cells) out += "<Row>\n" + cell + "</Row>\n";
        return out;
    }
    static std::string Text(const std::string& text) {
        return "<Cell><Data ss:Type=\"String\">" + text + "</Data></Cell>\n";
    }
    static std::string Number(const std::string& text) {
        return "<Cell  ss:StyleID=\"s62\"><Data ss:Type=\"Number\">" + text + "</Data></Cell>\n";
    }
    static std::string Sheet(const std::string& rows, const std::string& body) {
        return "<Worksheet ss:Name=\"Coords\">\n<Table ss:ExpandedColumnCount=\"1\" ss:ExpandedRowCount=\"" +
               rows +
               "\" x:FullColumns=\"1\"\nx:FullRows=\"1\" DefaultColumnWidth=\"42\" "
               "ss:DefaultRowHeight=\"11.25\">\n<Column ss:AutoFitWidth=\"0\" ss:Width=\"113.25\"/>\n" +
               body +
               "</Table>\n<WorksheetOptions xmlns=\"urn:schemas-microsoft-com:office:excel\">\n"
               "<TopRowVisible>1</TopRowVisible>\n<Panes>\n<Pane>\n<Number>3</Number>\n"
               "<ActiveRow>3</ActiveRow>\n<ActiveCol>1</ActiveCol>\n</Pane>\n</Panes>\n"
               "<ProtectObjects>False</ProtectObjects>\n<ProtectScenarios>False</ProtectScenarios>\n"
               "</WorksheetOptions>\n</Worksheet>\n";
    }
};

// x 36 and 66 from a reference of 6 are 2.5 and 5 feet.
TEST_F(CoordsSheet, FeetCountFromTheCapsStart) {
    MakePiers({{.type = kTypePier}});
    Pier().m_dLocationX = 6.0;
    Results().shearPointX = {36.0, 66.0};
    const std::vector<std::string> block = {Text("PierCap X Coordinates"), Text("(ft)"), "", Number("2.50"),
                                            Number("5.00")};
    EXPECT_EQ(lumerin::CoordsSheet(MakeReport(), kTableCapShear),
              Sheet("12", Rows(block) + Rows({"", ""}) + Rows(block)));
}

TEST_F(CoordsSheet, MetresGoOutAsStored) {
    MakePiers({{.type = kTypePileBent}});
    data.m_nUnits = 1;
    Pier().m_dLocationX = 6.0;
    Results().momentPointX = {36.0};
    const std::vector<std::string> block = {Text("BentCap X Coordinates"), Text("(m)"), "", Number("36.00")};
    EXPECT_EQ(lumerin::CoordsSheet(MakeReport(), kTableCapMoment),
              Sheet("10", Rows(block) + Rows({"", ""}) + Rows(block)));
}

TEST_F(CoordsSheet, OneMastHasATitleRowWithoutCell) {
    MakePiers({{.type = kTypeMast}});
    const std::vector<std::string> block = {"", Text("(ft)"), ""};
    EXPECT_EQ(lumerin::CoordsSheet(MakeReport(), kTableCapMoment),
              Sheet("8", Rows(block) + Rows({"", ""}) + Rows(block)));
}

TEST_F(CoordsSheet, TwoMastsHaveTitleCellsWithoutText) {
    MakePiers({{.type = kTypeMast}, {.type = kTypeMast}});
    const std::vector<std::string> block = {Text(""), Text("(ft)"), ""};
    const std::string pier = Rows(block) + Rows({"", ""}) + Rows(block);
    EXPECT_EQ(lumerin::CoordsSheet(MakeReport(), kTableCapMoment), Sheet("18", pier + Rows({"", ""}) + pier));
}

TEST_F(CoordsSheet, PierWithoutCapShowsTheTitleOfThePierBefore) {
    MakePiers({{.type = kTypePileBent}, {.type = kTypeWallA}, {.type = kTypePier}});
    const auto pier = [](const std::string& title) {
        const std::vector<std::string> block = {Text(title), Text("(ft)"), ""};
        return Rows(block) + Rows({"", ""}) + Rows(block);
    };
    EXPECT_EQ(lumerin::CoordsSheet(MakeReport(), kTableCapShear),
              Sheet("28", pier("BentCap X Coordinates: Pier 1") + Rows({"", ""}) +
                              pier("BentCap X Coordinates: Pier 1") + Rows({"", ""}) +
                              pier("PierCap X Coordinates: Pier 3")));
}

}  // namespace

}  // namespace lumerin
