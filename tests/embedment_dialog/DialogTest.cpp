// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "EmbedmentDialogFixture.h"
#include "embedment/SvgCanvas.h"
#include "embedment/dialog/EmbedmentDialog.h"
#include "session/ReportControls.h"

namespace lumerin {

using headless::HeadlessDialog;
using testing::ElementsAre;
using testing::HasSubstr;

TEST_F(EmbedmentDialogTest, OpensOnTheFirstCaseAndTheFirstQuantity) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        EXPECT_EQ(front.Title(), "Minimum Pile Tip Embedment - Substructure 2");
        EXPECT_EQ(front.Find(IDC_STUDY_CASE)->text, "1");
        EXPECT_EQ(front.Find(IDC_STUDY_SPIN)->spinLow, 1);
        EXPECT_EQ(front.Find(IDC_STUDY_SPIN)->spinHigh, 3);
        EXPECT_EQ(front.Find(IDC_STUDY_SPIN)->spinPosition, 1);
        EXPECT_THAT(front.Find(IDC_STUDY_QUANTITY)->entries,
                    ElementsAre("Lateral Displacement", "Lateral X-Displacement", "Lateral Y-Displacement",
                                "Max Axial Force", "Min Axial Force"));
        EXPECT_THAT(front.Find(IDC_STUDY_ENVELOPE_MODE)->entries,
                    ElementsAre("Max Envelope", "Min Envelope"));
        EXPECT_EQ(front.Find(IDC_STUDY_QUANTITY)->selection, 0);
        EXPECT_EQ(front.Find(IDC_STUDY_ENVELOPE_MODE)->selection, 0);
        EXPECT_FALSE(front.Find(IDC_STUDY_ENVELOPE_MODE)->enabled);
        EXPECT_TRUE(front.Find(IDC_STUDY_INDIVIDUAL)->checked);
        EXPECT_FALSE(front.Find(1)->visible);
        EXPECT_EQ(dialog.m_Grid.GetRowCount(), 5);
        EXPECT_THAT(Row(dialog, 0), ElementsAre("Trial", "Load Case", "Pile", "Embedment", "Displacement"));
        EXPECT_THAT(Row(dialog, 1), ElementsAre("", "", "", "(ft)", "(in)"));
        EXPECT_THAT(Row(dialog, 2), ElementsAre("1", "1", "1", "10.00", "0.500000"));
        EXPECT_THAT(Row(dialog, 4), ElementsAre("3", "1", "4", "15.00", "0.200000"));
    });
    EXPECT_TRUE(Messages().empty());
}

TEST_F(EmbedmentDialogTest, TheGridIsShadedReadOnlyAndNotEditable) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        CGridCtrl& grid = dialog.m_Grid;
        EXPECT_FALSE(grid.IsEditable());
        EXPECT_EQ(grid.Background(), 0xd7d7d7u);
        EXPECT_EQ(grid.GetRowHeight(0), 30);
        EXPECT_TRUE(grid.IsCellReadOnly(0, 4));
        EXPECT_TRUE(grid.IsCellReadOnly(1, 2));
        EXPECT_TRUE(grid.IsCellReadOnly(4, 0));
        EXPECT_FALSE(grid.IsCellReadOnly(2, 4));
        EXPECT_STREQ(grid.GetCell(2, 4)->GetRuntimeClass().m_pszName, "CGridCellFloat");
        EXPECT_STREQ(grid.GetCell(1, 4)->GetRuntimeClass().m_pszName, "CGridCell");
        // Neither typing nor Delete changes a cell.
        front.TypeCell(2, 4, "7");
        grid.OnKeyDown(kKeyDelete, {});
        EXPECT_EQ(grid.GetCellText(2, 4), "0.500000");
    });
}

TEST_F(EmbedmentDialogTest, WordsFollowTheProject) {
    WriteStudy();
    Open([&](CMPTEDlg&, HeadlessDialog& front) {
        EXPECT_EQ(front.Find(IDC_STUDY_CASE_LABEL)->text, "Load Case");
        EXPECT_EQ(front.Find(IDC_STUDY_INDIVIDUAL)->text, "Individual Load Case");
        EXPECT_EQ(front.Find(IDC_STUDY_ENVELOPE)->text, "Envelope (All Load Cases)");
        EXPECT_EQ(front.Find(IDC_STUDY_EXPORT)->text, "Excel");
        EXPECT_THAT(front.Find(IDC_STUDY_NOTES)->text,
                    HasSubstr("1. Results are presented for each load case and each embedment.\n\n2. The "
                              "\x91Lateral Displacement\x92, \x91Lateral X"));
        EXPECT_THAT(front.Find(IDC_STUDY_NOTES)->text, HasSubstr("all pile elements.\n\n"));
    });
    data.FirstPier().m_bCombinations = true;
    allCases = false;
    Open(
        [&](CMPTEDlg& dialog, HeadlessDialog& front) {
            EXPECT_EQ(front.Find(IDC_STUDY_CASE_LABEL)->text, "Load Comb");
            EXPECT_EQ(front.Find(IDC_STUDY_INDIVIDUAL)->text, "Individual Load Combination");
            EXPECT_EQ(front.Find(IDC_STUDY_ENVELOPE)->text, "Envelope (Custom Set of Load Combs)");
            EXPECT_EQ(front.Find(IDC_STUDY_EXPORT)->text, "PDF");
            EXPECT_THAT(front.Find(IDC_STUDY_NOTES)->text,
                        HasSubstr("for each load combination and each embedment."));
            EXPECT_EQ(Row(dialog, 0)[1], "Load Comb");
            EXPECT_THAT(Row(dialog, 1), ElementsAre("", "", "", "(m)", "(m)"));
            EXPECT_EQ(DrawnText(dialog, kGraphCaption), "Load Comb 1 - Embedment vs Lateral Displacement");
            EXPECT_EQ(DrawnText(dialog, kGraphLabelX), "Embedment Length (m)");
            EXPECT_EQ(DrawnText(dialog, kGraphLabelY), "Lateral Displacement (m)");
        },
        1, kFormatPdf);
    Open([&](CMPTEDlg&, HeadlessDialog& front) { EXPECT_EQ(front.Find(IDC_STUDY_EXPORT)->text, "Excel"); }, 0,
         kFormatText);
}

TEST_F(EmbedmentDialogTest, TimeStepsAreLoadCasesInTheTitleAndTheHeadings) {
    WriteStudy();
    data.m_nAnalysisMode = 1;
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        EXPECT_EQ(front.Find(IDC_STUDY_CASE_LABEL)->text, "Time Step");
        EXPECT_EQ(Row(dialog, 0)[1], "Load Case");
        EXPECT_EQ(DrawnText(dialog, kGraphCaption), "Load Case 1 - Embedment vs Lateral Displacement");
    });
}

TEST_F(EmbedmentDialogTest, AQuantityChangesHeadingsTableAndPlot) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        ASSERT_TRUE(front.SelectEntry(IDC_STUDY_QUANTITY, 4));
        EXPECT_THAT(Row(dialog, 0), ElementsAre("Trial", "Load Case", "Pile", "Embedment", "Force"));
        EXPECT_THAT(Row(dialog, 1), ElementsAre("", "", "", "(ft)", "(kips)"));
        EXPECT_THAT(Row(dialog, 3), ElementsAre("2", "1", "1", "12.50", "-60.000000"));
        EXPECT_EQ(DrawnText(dialog, kGraphCaption), "Load Case 1 - Embedment vs Min Axial Force");
        EXPECT_EQ(DrawnText(dialog, kGraphLabelY), "Min Axial Force (kips)");
        // 10 to 15: 9.5 to 15.5, so 9 to 16, length 7, 4 parts of 2. -70 to -50: -72 to -48, length 24,
        // 5 parts of 5 (a mantissa of 2.4).
        EXPECT_THAT(DrawnRanges(dialog), ElementsAre(9.0, 17.0, -72.0, -47.0));
        EXPECT_EQ(std::get<int>(Drawn(dialog, kGraphTicksX)[0]), 4);
        EXPECT_EQ(std::get<int>(Drawn(dialog, kGraphTicksY)[0]), 5);
        EXPECT_EQ(DrawnText(dialog, kGraphFormatX), "%.2f");
        EXPECT_EQ(DrawnText(dialog, kGraphFormatY), "%.4f");
    });
}

TEST_F(EmbedmentDialogTest, ADrawingMakesItsCallsInOrder) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog&) {
        std::vector<int> ids;
        for (const GraphCall& call : dialog.m_Graph.LastDrawing()) ids.push_back(call.dispatchId);
        EXPECT_THAT(ids,
                    ElementsAre(-518, 8, 9, 2, 7, 59, 57, 31, 11, 12, 13, 14, 53, 5, 6, 39, 40, 60, 60, 60));
        EXPECT_EQ(std::get<int>(Drawn(dialog, kGraphColour)[0]), 0xdcdcdc);
        EXPECT_EQ(std::get<bool>(Drawn(dialog, kGraphShowGrid)[0]), true);
        EXPECT_EQ(std::get<int>(Drawn(dialog, kGraphElement)[0]), 0);
    });
}

TEST_F(EmbedmentDialogTest, TheSpinButtonAndTheTextChooseTheCase) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        ASSERT_TRUE(front.Spin(IDC_STUDY_SPIN, true));
        EXPECT_EQ(front.Find(IDC_STUDY_CASE)->text, "2");
        EXPECT_EQ(dialog.m_nCase, 2);
        EXPECT_THAT(Row(dialog, 2), ElementsAre("1", "2", "2", "10.00", "0.700000"));
        EXPECT_EQ(DrawnText(dialog, kGraphCaption), "Load Case 2 - Embedment vs Lateral Displacement");
        ASSERT_TRUE(front.TypeText(IDC_STUDY_CASE, "3"));
        EXPECT_EQ(front.Find(IDC_STUDY_SPIN)->spinPosition, 3);
        EXPECT_EQ(Row(dialog, 4)[4], "0.250000");
        EXPECT_EQ(DrawnPoints(dialog).size(), 3u);
    });
    EXPECT_TRUE(Messages().empty());
}

TEST_F(EmbedmentDialogTest, ANumberOutsideTheCasesIsRefused) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        front.TypeText(IDC_STUDY_CASE, "2");
        for (const char* text : {"0", "4", "-1", "99999999999", "x"}) {
            sink.messages.clear();
            front.TypeText(IDC_STUDY_CASE, text);
            EXPECT_THAT(Messages(), ElementsAre("Invalid load case.")) << text;
            EXPECT_EQ(front.Find(IDC_STUDY_CASE)->text, "2") << text;
            EXPECT_EQ(front.Find(IDC_STUDY_SPIN)->spinPosition, 2) << text;
            EXPECT_EQ(Row(dialog, 2)[1], "2") << text;
        }
        sink.messages.clear();
    });
}

TEST_F(EmbedmentDialogTest, AnEmptyTextIsRefusedOnlyWhenTheFocusLeaves) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        front.TypeText(IDC_STUDY_CASE, "3");
        ASSERT_TRUE(front.Focus(IDC_STUDY_CASE));
        front.TypeText(IDC_STUDY_CASE, "");
        EXPECT_TRUE(Messages().empty());
        EXPECT_EQ(Row(dialog, 2)[1], "3");
        ASSERT_TRUE(front.Focus(IDC_STUDY_QUANTITY));
        EXPECT_THAT(Messages(), ElementsAre("Invalid load case."));
        EXPECT_EQ(front.Find(IDC_STUDY_CASE)->text, "3");
    });
}

TEST_F(EmbedmentDialogTest, ExcelWritesTheGridAsItIs) {
    WriteStudy();
    Open([&](CMPTEDlg&, HeadlessDialog& front) {
        front.TypeText(IDC_STUDY_CASE, "2");
        front.SelectEntry(IDC_STUDY_QUANTITY, kMaxAxial);
        ASSERT_TRUE(front.Click(IDC_STUDY_EXPORT));
    });
    ASSERT_EQ(sink.starts.size(), 1u);
    const std::string name = "a_LoadCase2-EmbedmentvsMaxAxialForce.xml";
    EXPECT_EQ(sink.starts[0].parameters, '"' + (folder / name).string() + '"');
    const std::string sheet = Read(name);
    EXPECT_THAT(sheet, HasSubstr("Load Case 2 - Embedment vs Max Axial Force</Data>"));
    // The trial as an integer, the case with two decimals, the pile with six, the others as texts.
    EXPECT_THAT(sheet,
                HasSubstr("<Cell ss:StyleID=\"s60\"><Data ss:Type=\"Number\">1</Data></Cell>\r\n"
                          "<Cell ss:StyleID=\"s61\"><Data ss:Type=\"Number\">2.0000000000</Data></Cell>\r\n"
                          "<Cell ss:StyleID=\"s71\"><Data ss:Type=\"Number\">2.0000000000</Data></Cell>\r\n"
                          "<Cell ss:StyleID=\"s74\"><Data ss:Type=\"String\">10.00</Data></Cell>\r\n"
                          "<Cell ss:StyleID=\"s74\"><Data ss:Type=\"String\">300.000000</Data></Cell>\r\n"));
}

TEST_F(EmbedmentDialogTest, PdfPassesTheGridAndThePictureToTheBuilder) {
    WriteStudy();
    Open([&](CMPTEDlg&, HeadlessDialog& front) { ASSERT_TRUE(front.Click(IDC_STUDY_EXPORT)); }, 0,
         kFormatPdf);
    ASSERT_EQ(sink.starts.size(), 1u);
    EXPECT_THAT(sink.starts[0].file, HasSubstr("Jarlimex.exe"));
    EXPECT_EQ(sink.starts[0].parameters, '"' + (folder / "PdfTemp.txt").string() + '"');
    const std::string text = Read("PdfTemp.txt");
    const std::string place = folder.string() + "/";
    EXPECT_THAT(text, HasSubstr("[title]Minimum Pile Tip Embedment Analysis Results\r\n"));
    EXPECT_THAT(text, HasSubstr("[columnWidth]auto\r\n[numberOfHeaderRow]2\r\n"));
    EXPECT_THAT(text,
                HasSubstr("[imagePath]" + place + "Load Case 1 - Embedment vs Lateral Displacement.bmp\r\n"));
    EXPECT_THAT(text, HasSubstr("[pdfSavePath]" + place + "MPTE.pdf\r\n[nDataTypesForColumns]0,0,0,0,0\r\n"));
    EXPECT_THAT(text, HasSubstr("[numberOfDataRows]3\r\n"));
    EXPECT_THAT(text, HasSubstr("\r\n,,,(ft),(in)\r\n1,1,1,10.00,0.500000\r\n"));
}

TEST_F(EmbedmentDialogTest, EveryOpeningReadsTheFilesAgain) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog&) { EXPECT_EQ(Row(dialog, 3)[4], "0.400000"); });
    std::filesystem::remove_all(folder / "MPTE2");
    Open([&](CMPTEDlg& dialog, HeadlessDialog&) { EXPECT_EQ(Row(dialog, 3)[4], "NA"); });
}

TEST_F(EmbedmentDialogTest, TheReportDialogOpensItWithItsUnitsAndFormat) {
    WriteStudy();
    std::string caption, title;
    headless::SetModalDriver([&](HeadlessDialog& front) {
        title = front.Title();
        caption = front.Find(IDC_STUDY_EXPORT)->text;
    });
    RunEmbedmentDialog({inputFile, data, selection, allCases}, kFormatPdf);
    EXPECT_EQ(title, "Minimum Pile Tip Embedment - Substructure 2");
    EXPECT_EQ(caption, "PDF");
}

}  // namespace lumerin
