// SPDX-License-Identifier: MIT
#include "writers/GridExport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "grid/GridCtrl.h"
#include "support/Messages.h"
#include "support/ScratchFolder.h"
#include "writers/PdfExport.h"

namespace lumerin {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class GridExport : public testing::Test {
  protected:
    void Build(int rows, int columns) {
        m_grid.SetRowCount(rows);
        m_grid.SetColumnCount(columns);
        for (int column = 0; column < columns; ++column) m_grid.SetColumnWidth(column, 50 + column);
    }
    std::string Export(std::span<const int> types, int headerRows = 0, const std::string& name = "Name") {
        ExportGrid(m_inputFile, {name, headerRows, types, 2.0}, m_grid);
        std::string file = name;
        std::erase(file, ' ');
        return scratch.Read("job_" + file + ".xml");
    }
    // A cell of one text in a column of one type, without the line end.
    std::string Cell(int type, const std::string& text) {
        Build(1, 1);
        m_grid.SetCellText(0, 0, text);
        const std::array<int, 1> types{type};
        const std::string book = Export(types);
        const std::string before = "    <Row><Cell></Cell>";
        const std::size_t from = book.find(before) + before.size();
        return book.substr(from, book.find("\r\n", from) - from);
    }
    static std::string Number(const std::string& style, const std::string& value) {
        return "<Cell ss:StyleID=\"" + style + "\"><Data ss:Type=\"Number\">" + value + "</Data></Cell>";
    }

    const ScratchFolder scratch;
    std::string m_inputFile = scratch.PathOf("job.in");
    CGridCtrl m_grid;
    RecordedMessages m_messages;
};

TEST_F(GridExport, BlanksLeaveTheFileAndSheetNameButNotTheTitle) {
    Build(1, 1);
    ExportGrid(m_inputFile, {"Included Load Cases", 1, {}, 2.0}, m_grid);
    const std::string book = scratch.Read("job_IncludedLoadCases.xml");
    EXPECT_THAT(book, HasSubstr("<Worksheet ss:Name=\"IncludedLoadCases\">\r\n"));
    EXPECT_THAT(book, HasSubstr("ss:StyleID=\"s87\"><Data ss:Type=\"String\">Included Load Cases</Data>"));
}

TEST_F(GridExport, ALongNameIsCutInTheSheetButNotInTheFile) {
    Build(1, 1);
    const std::string name = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890";
    const std::string book = Export({}, 0, name);
    EXPECT_THAT(book, HasSubstr("<Worksheet ss:Name=\"ABCDEFGHIJKLMNOPQRSTUVWXYZ12345\">"));
}

TEST_F(GridExport, ANameOf31CharactersStays) {
    Build(1, 1);
    EXPECT_THAT(Export({}, 0, "ABCDEFGHIJKLMNOPQRSTUVWXYZ12345"),
                HasSubstr("<Worksheet ss:Name=\"ABCDEFGHIJKLMNOPQRSTUVWXYZ12345\">"));
}

TEST_F(GridExport, TheInputPathIsCutAtItsLastDot) {
    Build(1, 1);
    ExportGrid(scratch.PathOf("job.old.in"), {"N", 0, {}, 2.0}, m_grid);
    EXPECT_TRUE(scratch.Has("job.old_N.xml"));
    ExportGrid(scratch.PathOf("plain"), {"N", 0, {}, 2.0}, m_grid);
    EXPECT_TRUE(scratch.Has("plain_N.xml"));
}

TEST_F(GridExport, AnIntegerColumnReadsLeadingDigits) {
    EXPECT_EQ(Cell(1, "12abc"), Number("s60", "12"));
    EXPECT_EQ(Cell(1, "-3.9"), Number("s60", "-3"));
    EXPECT_EQ(Cell(1, "NA"), Number("s60", "0"));
}

TEST_F(GridExport, ARealColumnAlwaysWritesTenDecimals) {
    EXPECT_EQ(Cell(2, "1.5"), Number("s61", "1.5000000000"));
    EXPECT_EQ(Cell(2, ""), Number("s61", "0.0000000000"));
    EXPECT_EQ(Cell(6, "0.125 in"), Number("s71", "0.1250000000"));
    EXPECT_EQ(Cell(2, "inf"), Number("s61", "0.0000000000"));
    EXPECT_EQ(Cell(2, "0x10"), Number("s61", "0.0000000000"));
}

TEST_F(GridExport, TheStyleFollowsTheTypeCode) {
    const char* styles[] = {"s61", "s68", "s69", "s70", "s71", "s72", "s73"};
    for (int type = 2; type <= 8; ++type)
        EXPECT_EQ(Cell(type, "1"), Number(styles[type - 2], "1.0000000000"));
}

TEST_F(GridExport, OtherCodesKeepTheTextAsItIs) {
    const std::string text = "<Cell ss:StyleID=\"s74\"><Data ss:Type=\"String\">a&b 1</Data></Cell>";
    EXPECT_EQ(Cell(0, "a&b 1"), text);
    EXPECT_EQ(Cell(9, "a&b 1"), text);
    EXPECT_EQ(Cell(-1, "a&b 1"), text);
}

TEST_F(GridExport, HeadingRowsStayTextsInANumericColumn) {
    Build(3, 1);
    m_grid.SetCellText(0, 0, "1");
    m_grid.SetCellText(1, 0, "2");
    m_grid.SetCellText(2, 0, "3");
    const std::array<int, 1> types{1};
    const std::string book = Export(types, 2);
    EXPECT_THAT(book, HasSubstr("<Cell ss:StyleID=\"s65\"><Data ss:Type=\"String\">1</Data></Cell>"));
    EXPECT_THAT(book, HasSubstr("<Cell ss:StyleID=\"s65\"><Data ss:Type=\"String\">2</Data></Cell>"));
    EXPECT_THAT(book, HasSubstr(Number("s60", "3")));
}

TEST_F(GridExport, TheWorksheetHasAMarginColumnATitleRowAndAnEmptyRow) {
    Build(1, 2);
    m_grid.SetCellText(0, 0, "a");
    m_grid.SetCellText(0, 1, "b");
    const std::string book = Export({}, 0, "T");
    const std::string sheet =
        "<Worksheet ss:Name=\"T\">\r\n"
        "<Table ss:ExpandedColumnCount=\"3\" ss:ExpandedRowCount=\"3\" x:FullColumns=\"1\"\r\n"
        "x:FullRows=\"1\" ss:DefaultRowHeight=\"15\">\r\n"
        "  <Column ss:Index=\"2\"  ss:Width=\"100.000000\"/>\r\n"
        "  <Column ss:Index=\"3\"  ss:Width=\"102.000000\"/>\r\n"
        "  <Row ss:Height=\"41\">\r\n"
        "    <Cell><Data ss:Type=\"String\">                                            </Data></Cell>\r\n"
        "    <Cell ss:MergeAcross=\"1\"  ss:StyleID=\"s87\"><Data ss:Type=\"String\">T</Data></Cell>\r\n"
        "  </Row>\r\n"
        "<Row></Row>\r\n"
        "    <Row><Cell></Cell><Cell ss:StyleID=\"s74\"><Data ss:Type=\"String\">a</Data></Cell>\r\n"
        "<Cell ss:StyleID=\"s74\"><Data ss:Type=\"String\">b</Data></Cell>\r\n"
        "  </Row>\r\n"
        "</Table>\r\n";
    EXPECT_THAT(book, HasSubstr(sheet));
}

TEST_F(GridExport, TheFixedFooterStaysInTheFile) {
    Build(1, 1);
    EXPECT_THAT(Export({}), HasSubstr("x:Data=\"&amp;L Need Footer &amp;RPage &amp;P of &amp;N\"/>"));
}

TEST_F(GridExport, TheHeadHasTheLongerStyleListAndTheBookEnds) {
    Build(1, 1);
    const std::string book = Export({});
    EXPECT_THAT(book, StartsWith("<?xml version=\"1.0\"?>\r\n"));
    EXPECT_THAT(book, HasSubstr("ss:ID=\"s68\""));
    EXPECT_THAT(book, HasSubstr("ss:ID=\"s75\""));
    EXPECT_THAT(book, EndsWith("</Worksheet>\r\n</Workbook>\r\n"));
}

TEST_F(GridExport, TheBooksPathIsReturned) {
    Build(1, 1);
    EXPECT_EQ(ExportGrid(m_inputFile, {"Name", 0, {}, 2.0}, m_grid), scratch.PathOf("job_Name.xml"));
}

TEST_F(GridExport, AnUnopenableFileWritesNothingAndItsPathIsReturnedAllTheSame) {
    Build(1, 1);
    EXPECT_EQ(ExportGrid(scratch.PathOf("missing/job.in"), {"N", 0, {}, 2.0}, m_grid),
              scratch.PathOf("missing/job_N.xml"));
    EXPECT_FALSE(scratch.Has("missing"));
}

class GridImage : public GridExport {
  protected:
    std::string Write(CPdfExport& pdf) {
        EXPECT_TRUE(pdf.Write(m_messages));
        EXPECT_TRUE(m_messages.texts.empty());
        return scratch.Read("PdfTemp.txt");
    }
    CPdfExport Make() { return {m_grid, scratch.PathOf("PdfTemp.txt"), "C:\\p\\MPTE.pdf"}; }
};

TEST_F(GridImage, AGridWithoutColumnsIsRefusedAndWritesNoFile) {
    Build(3, 0);
    CPdfExport pdf = Make();
    EXPECT_FALSE(pdf.Write(m_messages));
    ASSERT_EQ(m_messages.texts.size(), 1u);
    EXPECT_EQ(m_messages.texts[0], "Error: Empty Grid - Either the number of rows or columns is 0.");
    EXPECT_FALSE(scratch.Has("PdfTemp.txt"));
}

TEST_F(GridImage, AGridWithoutRowsAndColumnsIsReportedTwice) {
    CPdfExport pdf = Make();
    EXPECT_FALSE(pdf.Write(m_messages));
    EXPECT_EQ(m_messages.texts.size(), 2u);
}

TEST_F(GridImage, TheDescriptionListsItsKeysInOrder) {
    Build(2, 2);
    m_grid.SetCellText(0, 0, "a");
    m_grid.SetCellText(1, 1, "b");
    CPdfExport pdf = Make();
    EXPECT_EQ(Write(pdf),
              "[title]Tarnsway Data\r\n"
              "[author]Tarnsway\r\n"
              "[subject]Data export from Tarnsway\r\n"
              "[keywords]Tarnsway, Data, Analysis, Export\r\n"
              "[landscape]false\r\n"
              "[repeatHeader]true\r\n"
              "[leftJustify]false\r\n"
              "[columnWidth]75\r\n"
              "[numberOfHeaderRow]1\r\n"
              "[imagePath]\r\n"
              "[imageCaption]\r\n"
              "[allowImageRescale]true\r\n"
              "[pdfSavePath]C:\\p\\MPTE.pdf\r\n"
              "[nDataTypesForColumns]2,2\r\n"
              "[rowPadding]3\r\n"
              "[columnPadding]10\r\n"
              "[titleFontSize]16\r\n"
              "[captionFontSize]14\r\n"
              "[footerFontSize]7\r\n"
              "[tableHeaderFontSize]7\r\n"
              "[tableDataFontSize]7\r\n"
              "[pageMargin]30\r\n"
              "[numberOfDataRows]1\r\n"
              "[iChunkSize]auto\r\n"
              "a,\r\n"
              ",b");
}

// The builder is a program of the host's platform, whose paths are in the code page.
TEST_F(GridImage, PathsAreWrittenInTheCodePage) {
    Build(1, 1);
    m_grid.SetCellText(0, 0, "5 \xB1 1");
    CPdfExport pdf(m_grid, scratch.PathOf("PdfTemp.txt"),
                   "/p/Br\xC3\xBC"
                   "cke/MPTE.pdf");
    pdf.m_sImagePath =
        "/p/Br\xC3\xBC"
        "cke/\xE6\xA9\x8B.bmp";
    const std::string text = Write(pdf);
    EXPECT_THAT(text, HasSubstr("[imagePath]/p/Br\xFC"
                                "cke/?.bmp\r\n"));
    EXPECT_THAT(text, HasSubstr("[pdfSavePath]/p/Br\xFC"
                                "cke/MPTE.pdf\r\n"));
    EXPECT_THAT(text, testing::EndsWith("5 \xB1 1"));  // a cell is already in the code page
}

TEST_F(GridImage, DataRowsAreTheGridsLessTheHeading) {
    Build(7, 5);
    CPdfExport pdf = Make();
    pdf.m_nHeaderRows = 2;
    pdf.m_pColumnTypes.assign(pdf.m_pColumnTypes.size(), 0);
    const std::string text = Write(pdf);
    EXPECT_THAT(text, HasSubstr("[numberOfDataRows]5\r\n"));
    EXPECT_THAT(text, HasSubstr("[nDataTypesForColumns]0,0,0,0,0\r\n"));
}

TEST_F(GridImage, ACommaInACellIsNotQuoted) {
    Build(1, 2);
    m_grid.SetCellText(0, 0, "1,5");
    m_grid.SetCellText(0, 1, "x");
    CPdfExport pdf = Make();
    EXPECT_THAT(Write(pdf), EndsWith("[iChunkSize]auto\r\n1,5,x"));
}

TEST_F(GridImage, ACellsImageFollowsItsText) {
    Build(1, 2);
    m_grid.SetCellText(0, 0, "a");
    m_grid.SetCellText(0, 1, "b");
    CPdfExport pdf = Make();
    pdf.m_CellImages = {"", "pic.bmp"};
    EXPECT_THAT(Write(pdf), EndsWith("\r\na,b{#pic.bmp}"));
}

TEST_F(GridImage, ExtraLinesFollowTheRowsAsManyAsTheirNumber) {
    Build(1, 1);
    m_grid.SetCellText(0, 0, "a");
    CPdfExport pdf = Make();
    pdf.m_ExtraLines = {"one", "two"};
    pdf.m_nExtraLines = 1;
    EXPECT_THAT(Write(pdf), EndsWith("\r\naone\r\n"));
}

}  // namespace

}  // namespace lumerin
