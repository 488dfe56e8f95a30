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
using testing::Not;

// Envelopes over the cases, incomplete trials, and clicks on the plot.

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
        // With case 3 chosen, 200 to 220, the envelope's 100 and 110 are below the plot, 120 is its start.
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
        front.Spin(IDC_STUDY_SPIN, true);  // no case is valid, not even the first
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

}  // namespace lumerin
