// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <algorithm>

#include "embedment/SvgCanvas.h"
#include "embedment/dialog/EmbedmentDialog.h"
#include "session/ReportControls.h"
#include "support/StudyDialogFixture.h"

namespace lumerin {

using headless::HeadlessDialog;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

// Three trials of three cases. Each line: the case, then value and pile for the five quantities.
constexpr const char* kBase =
    " 2 3 0 3 10.0\n"
    "1 0.50 1 0.30 1 0.40 1 100 1 -50 1\n"
    "2 0.70 2 0.20 2 0.60 2 300 2 -90 2\n"
    "3 0.70 3 0.10 3 0.50 3 200 3 -10 3\n"
    "EOF\n";
constexpr const char* kSecond =
    " 2 3 0 3 12.5\n"
    "1 0.40 1 0.20 1 0.30 1 110 1 -60 1\n"
    "2 0.60 2 0.10 2 0.50 2 310 2 -80 2\n"
    "3 0.65 3 0.05 3 0.45 3 210 3 -20 3\n"
    "EOF\n";
constexpr const char* kThird =
    " 2 3 0 3 15.0\n"
    "1 0.20 4 0.10 4 0.15 4 120 4 -70 4\n"
    "2 0.30 5 0.08 5 0.25 5 320 5 -75 5\n"
    "3 0.25 6 0.02 6 0.20 6 220 6 -30 6\n"
    "EOF\n";

class EmbedmentDialogTest : public StudyTest {
  protected:
    void WriteStudy() const {
        WriteBase(kBase);
        WriteTrial(2, kSecond);
        WriteTrial(3, kThird);
    }
    static std::vector<double> DrawnRanges(const CMPTEDlg& dialog) {
        std::vector<double> numbers;
        for (const GraphValue& value : Drawn(dialog, kGraphSetRanges))
            numbers.push_back(std::get<double>(value));
        return numbers;
    }
    static int FocusRow(const CMPTEDlg& dialog) { return dialog.m_Grid.FocusCell().row; }
};

}  // namespace

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

TEST_F(EmbedmentDialogTest, TheModesEnableTheirControls) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        ASSERT_TRUE(front.Click(IDC_STUDY_ENVELOPE));
        EXPECT_EQ(dialog.m_nViewMode, 1);
        EXPECT_FALSE(front.Find(IDC_STUDY_CASE_LABEL)->enabled);
        EXPECT_FALSE(front.Find(IDC_STUDY_CASE)->enabled);
        EXPECT_TRUE(front.Find(IDC_STUDY_ENVELOPE_MODE)->enabled);
        EXPECT_FALSE(front.TypeText(IDC_STUDY_CASE, "2"));
        EXPECT_TRUE(front.Spin(IDC_STUDY_SPIN,
                               true));  // the spin button is not disabled, but turns no disabled number
        EXPECT_EQ(front.Find(IDC_STUDY_CASE)->text, "1");
        ASSERT_TRUE(front.Click(IDC_STUDY_INDIVIDUAL));
        EXPECT_EQ(dialog.m_nViewMode, 0);
        EXPECT_TRUE(front.Find(IDC_STUDY_CASE_LABEL)->enabled);
        EXPECT_TRUE(front.Find(IDC_STUDY_CASE)->enabled);
        EXPECT_FALSE(front.Find(IDC_STUDY_ENVELOPE_MODE)->enabled);
        EXPECT_EQ(Row(dialog, 2)[4], "0.500000");
    });
}

TEST_F(EmbedmentDialogTest, AnEnvelopeTakesTheFirstOfEqualCases) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        front.Click(IDC_STUDY_ENVELOPE);
        EXPECT_THAT(Row(dialog, 2), ElementsAre("1", "2", "2", "10.00", "0.700000"));  // case 3 has it too
        EXPECT_THAT(Row(dialog, 3), ElementsAre("2", "3", "3", "12.50", "0.650000"));
        ASSERT_TRUE(front.SelectEntry(IDC_STUDY_ENVELOPE_MODE, 1));
        EXPECT_THAT(Row(dialog, 2), ElementsAre("1", "1", "1", "10.00", "0.500000"));
        // The title keeps naming the one case.
        EXPECT_EQ(DrawnText(dialog, kGraphCaption), "Load Case 1 - Embedment vs Lateral Displacement");
        const CEnvelopePoint point = dialog.GetEnvelopePoint(2, kMaxAxial, 0);
        EXPECT_EQ(point.nQuantity, kMaxAxial);
        EXPECT_EQ(point.nTrial, 2);
        EXPECT_EQ(point.nCase, 1);
        EXPECT_EQ(point.dPile, 5.0);
        EXPECT_EQ(point.dEmbedment, 15.0);
        EXPECT_EQ(point.dValue, 320.0);
    });
}

TEST_F(EmbedmentDialogTest, AnEnvelopesPlotHasTheRangeOfTheSingleCase) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        front.SelectEntry(IDC_STUDY_QUANTITY, kMaxAxial);
        front.Click(IDC_STUDY_ENVELOPE);
        // It starts at the last trial's envelope, 320, and takes the values of case 1: 100, 110, 120.
        EXPECT_EQ(dialog.m_dMinY, 100.0);
        EXPECT_EQ(dialog.m_dMaxY, 320.0);
        front.SelectEntry(IDC_STUDY_ENVELOPE_MODE, 1);
        // 120 is the last trial's least; the greatest of case 1 is 120 as well.
        EXPECT_EQ(dialog.m_dMinY, 100.0);
        EXPECT_EQ(dialog.m_dMaxY, 120.0);
        EXPECT_EQ(DrawnPoints(dialog)[0].y, 100.0);
        // With case 3 chosen, 200 to 220, the envelope's 100 and 110 lie below the plot, 120 is its start.
        front.Click(IDC_STUDY_INDIVIDUAL);
        front.TypeText(IDC_STUDY_CASE, "3");
        front.Click(IDC_STUDY_ENVELOPE);
        EXPECT_EQ(dialog.m_dMinY, 120.0);
        EXPECT_EQ(dialog.m_dMaxY, 220.0);
        EXPECT_EQ(DrawnPoints(dialog)[0].y, 100.0);
    });
}

TEST_F(EmbedmentDialogTest, ACustomSetLeavesOtherCasesOutOfTheEnvelope) {
    WriteStudy();
    selection.SetCaseSelected(1, false);
    allCases = false;
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        front.Click(IDC_STUDY_ENVELOPE);
        EXPECT_EQ(Row(dialog, 2)[1], "3");
        EXPECT_EQ(front.Find(IDC_STUDY_ENVELOPE)->text, "Envelope (Custom Set of Load Cases)");
    });
    // With all cases the selection is ignored.
    allCases = true;
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        front.Click(IDC_STUDY_ENVELOPE);
        EXPECT_EQ(Row(dialog, 2)[1], "2");
        EXPECT_EQ(front.Find(IDC_STUDY_ENVELOPE)->text, "Envelope (All Load Cases)");
    });
    // None selected, which the load case dialog does not let happen.
    allCases = false;
    for (int i = 0; i < kCases; ++i) selection.SetCaseSelected(i, false);
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        front.Click(IDC_STUDY_ENVELOPE);
        EXPECT_THAT(Row(dialog, 2), ElementsAre("1", "0", "0", "10.00", "0.000000"));
    });
}

TEST_F(EmbedmentDialogTest, CasesThatTheProjectDoesNotHaveAreNotSelected) {
    WriteStudy();
    data.FirstPier().m_LoadCases.resize(1);
    data.m_nLoadCases = 1;
    selection = CaseSelection(data);
    allCases = false;
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        front.Click(IDC_STUDY_ENVELOPE);
        EXPECT_EQ(Row(dialog, 2)[1], "1");
    });
}

TEST_F(EmbedmentDialogTest, AnIncompleteTrialReadsNotAvailableAndHasNoPoint) {
    WriteBase(kBase);
    WriteTrial(3, kThird);
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        EXPECT_THAT(Row(dialog, 3), ElementsAre("2", "NA", "NA", "NA", "NA"));
        EXPECT_EQ(DrawnPoints(dialog).size(), 2u);
        front.Click(IDC_STUDY_ENVELOPE);
        EXPECT_THAT(Row(dialog, 3), ElementsAre("2", "NA", "NA", "NA", "NA"));
        EXPECT_EQ(Row(dialog, 4)[1], "2");
    });
}

TEST_F(EmbedmentDialogTest, AnIncompleteTrialLeavesAGapInTheDrawingAndNoTraceInItsCalls) {
    WriteBase(kBase);
    WriteTrial(3, kThird);
    std::size_t calls = 0;
    Open([&](CMPTEDlg& dialog, HeadlessDialog&) {
        calls = dialog.m_Graph.LastDrawing().size();
        const std::string picture = PlotAsSvg(dialog.m_Graph.Plot(), 580.0, 306.0);
        EXPECT_THAT(picture, HasSubstr("<circle"));
        EXPECT_THAT(picture, Not(HasSubstr("<polyline")));  // trials 1 and 3
    });
    WriteTrial(2, kSecond);
    Open([&](CMPTEDlg& dialog, HeadlessDialog&) {
        EXPECT_EQ(dialog.m_Graph.LastDrawing().size(), calls + 1);  // one point more
        EXPECT_THAT(PlotAsSvg(dialog.m_Graph.Plot(), 580.0, 306.0), HasSubstr("<polyline"));
    });
}

TEST_F(EmbedmentDialogTest, WithNoCompleteTrialThePlotIsEmpty) {
    WriteBase(" 1 2 0 3 10\n");
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        for (int row = 2; row < 4; ++row) EXPECT_EQ(Row(dialog, row)[1], "NA");
        EXPECT_TRUE(DrawnPoints(dialog).empty());
        EXPECT_THAT(DrawnRanges(dialog), ElementsAre(-1.0, 1.0, -1.0, 1.0));  // ranges of zeros
        front.Click(IDC_STUDY_ENVELOPE);
        EXPECT_THAT(DrawnRanges(dialog), ElementsAre(-1.0, 1.0, -1.0, 1.0));
        EXPECT_TRUE(front.ClickGraph(0.0));
        EXPECT_EQ(FocusRow(dialog), -1);
    });
}

TEST_F(EmbedmentDialogTest, AStudyWithoutFilesStillOpens) {
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        EXPECT_THAT(Messages(), ElementsAre("Error opening the base PEL results file."));
        EXPECT_EQ(dialog.m_Grid.GetRowCount(), 2);
        sink.messages.clear();
        front.Click(IDC_STUDY_ENVELOPE);
        front.SelectEntry(IDC_STUDY_QUANTITY, 2);
        EXPECT_TRUE(Messages().empty());
        front.Click(IDC_STUDY_INDIVIDUAL);
        front.TypeText(IDC_STUDY_CASE, "5");
        EXPECT_THAT(Messages(), ElementsAre("Invalid load case."));
        sink.messages.clear();
        front.Spin(IDC_STUDY_SPIN, true);  // no case is valid, the first one neither
        EXPECT_THAT(Messages(), ElementsAre("Invalid load case."));
        EXPECT_EQ(front.Find(IDC_STUDY_CASE)->text, "1");
    });
}

TEST_F(EmbedmentDialogTest, APlotThatIsDisabledOrHiddenTakesNoClick) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        ASSERT_TRUE(front.ClickGraph(10.0));
        const int row = FocusRow(dialog);
        NativeWindow& plot = *front.Find(IDC_STUDY_GRAPH);
        plot.enabled = false;
        EXPECT_FALSE(front.ClickGraph(1000.0));
        plot.enabled = true;
        plot.visible = false;
        EXPECT_FALSE(front.ClickGraph(1000.0));
        EXPECT_EQ(FocusRow(dialog), row);
        plot.visible = true;
        EXPECT_TRUE(front.ClickGraph(1000.0));
        EXPECT_NE(FocusRow(dialog), row);
    });
}

TEST_F(EmbedmentDialogTest, AClickOnThePlotMovesToTheNearestTrialsRow) {
    WriteStudy();
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        const auto row = [&](double x) {
            EXPECT_TRUE(front.ClickGraph(x));
            EXPECT_EQ(dialog.m_Grid.FocusCell().column, 3);
            EXPECT_TRUE(dialog.m_Grid.IsCellSelected(FocusRow(dialog), 3));
            EXPECT_EQ(dialog.m_Grid.SelectedCells().size(), 1u);
            return FocusRow(dialog);
        };
        EXPECT_EQ(row(9.0), 2);     // left of all points
        EXPECT_EQ(row(15.0), 4);    // on a point
        EXPECT_EQ(row(12.504), 3);  // the same, as it is shown
        EXPECT_EQ(row(11.25), 2);   // half-way stays with the earlier trial
        EXPECT_EQ(row(11.26), 3);
        EXPECT_EQ(row(13.75), 3);
        EXPECT_EQ(row(13.76), 4);
        EXPECT_EQ(row(99.0), 4);  // right of all points
    });
}

TEST_F(EmbedmentDialogTest, DescendingEmbedmentsMirrorTheRule) {
    WriteBase(" 1 3 0 1 15\nEOF\n");
    WriteTrial(2, " 1 3 0 1 12.5\nEOF\n");
    WriteTrial(3, " 1 3 0 1 10\nEOF\n");
    Open([&](CMPTEDlg& dialog, HeadlessDialog&) {
        EXPECT_EQ(dialog.GridRowForX(16.0), 2);
        EXPECT_EQ(dialog.GridRowForX(15.0), 2);
        EXPECT_EQ(dialog.GridRowForX(13.75), 2);
        EXPECT_EQ(dialog.GridRowForX(13.74), 3);
        EXPECT_EQ(dialog.GridRowForX(11.25), 3);
        EXPECT_EQ(dialog.GridRowForX(11.24), 4);
        EXPECT_EQ(dialog.GridRowForX(3.0), 4);
    });
}

TEST_F(EmbedmentDialogTest, OneCompleteTrialHasNoRowToClickOn) {
    WriteBase(kBase);
    Open([&](CMPTEDlg& dialog, HeadlessDialog& front) {
        EXPECT_TRUE(front.ClickGraph(10.0));
        EXPECT_EQ(FocusRow(dialog), -1);
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
