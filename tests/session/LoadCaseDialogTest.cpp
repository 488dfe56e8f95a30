// SPDX-License-Identifier: MIT
#include "session/ChoseLoadCasesDlg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include "framework/headless/Headless.h"
#include "grid/GridCellNumeric.h"
#include "model/DataSet.h"
#include "session/DesignerDlg.h"
#include "session/ReportControls.h"
#include "session/Session.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using Press = std::function<void(headless::HeadlessDialog&)>;

// Runs the load case dialog without a screen over a model of two substructures with the given limit class of
// each case.
class LoadCaseDialog : public testing::Test {
  protected:
    LoadCaseDialog() {
        headless::ResetState();
        headless::SetSink(&sink);
        ResetSession();
        g_InputFilePath = g_ProjectBasePath = "";
    }
    ~LoadCaseDialog() override {
        headless::ResetState();
        g_DataSet.Reset();
        g_InputFilePath = "";
    }

    void BuildModel(CodeFamily family, const std::vector<LimitClass>& classes) {
        const int cases = static_cast<int>(classes.size());
        g_DataSet.m_Piers = std::vector<CPier>(2);
        g_DataSet.m_nPiers = 2;
        g_DataSet.m_nLoadCases = cases;
        for (CPier& pier : g_DataSet.m_Piers) {
            pier.m_nLoadCases = cases;
            pier.m_LoadCases.resize(classes.size());
            for (std::size_t i = 0; i < classes.size(); ++i) pier.m_LoadCases[i].m_nLimitClass = classes[i];
            pier.m_nCodeFamily = family;
            pier.m_bCombinations = family >= 0;
        }
        selection = CaseSelection(g_DataSet);
    }

    bool Run(int format, const Press& press) {
        headless::SetModalDriver(press);
        return RunLoadCaseDialog(format, selection);
    }

    static std::vector<std::string> Row(headless::HeadlessDialog& dialog, int row) {
        return dialog.Find(IDC_CASE_GRID)->grid->RowTexts(row);
    }
    std::vector<int> Selection() const {
        std::vector<int> selected;
        for (int i = 0; i < g_DataSet.m_nLoadCases; ++i)
            selected.push_back(selection.IsCaseSelected(i) ? 1 : 0);
        return selected;
    }
    // The first case of each class.
    std::vector<int> FirstCases() const {
        return {selection.FirstOfClass(kStrength), selection.FirstOfClass(kService),
                selection.FirstOfClass(kExtreme), selection.FirstOfClass(kFatigue)};
    }

    CaseSelection selection;
    headless::RecordingSink sink;
};

using testing::ElementsAre;

TEST_F(LoadCaseDialog, CaptionsFollowTheProjectsWord) {
    BuildModel(kFamilyNone, {kStrength, kStrength, kStrength});
    Run(kFormatText, [](auto& dialog) {
        EXPECT_EQ(dialog.Title(), "Choose Load Cases");
        EXPECT_THAT(Row(dialog, 0), ElementsAre("Load Case", "Include"));
        EXPECT_EQ(dialog.Find(IDC_CASE_GRID)->grid->RowCount(), 4);
        EXPECT_THAT(Row(dialog, 3), ElementsAre("3", "1"));
    });
    BuildModel(kFamilyLrfd, {kStrength, kStrength});
    Run(kFormatText, [](auto& dialog) {
        EXPECT_EQ(dialog.Title(), "Choose Load Combinations");
        EXPECT_THAT(Row(dialog, 0), ElementsAre("Load Comb", "Include"));
    });
    BuildModel(kFamilyNone, {kStrength});
    g_DataSet.m_nAnalysisMode = 1;
    Run(kFormatText, [](auto& dialog) {
        EXPECT_EQ(dialog.Title(), "Choose Time Steps");
        EXPECT_THAT(Row(dialog, 0), ElementsAre("Time Step", "Include"));
    });
}

TEST_F(LoadCaseDialog, TheExportButtonReadsPdfInThatFormatAlone) {
    BuildModel(kFamilyNone, {kStrength});
    const std::pair<int, const char*> captions[] = {
        {kFormatSpreadsheet, "Excel"}, {kFormatPdf, "PDF"}, {kFormatText, "Excel"}};
    for (const auto& [format, caption] : captions) {
        Run(format,
            [caption = caption](auto& dialog) { EXPECT_EQ(dialog.Find(IDC_CASE_EXPORT)->text, caption); });
    }
}

TEST_F(LoadCaseDialog, TheGridIsSetUpForTyping) {
    BuildModel(kFamilyNone, {kStrength, kStrength});
    Run(kFormatText, [](auto& dialog) {
        CGridCtrl& grid = dynamic_cast<CChoseLoadCasesDlg&>(dialog.Dialog()).m_Grid;
        EXPECT_TRUE(grid.IsEditable());
        EXPECT_EQ(grid.Background(), 0xd7d7d7u);
        EXPECT_EQ(grid.GetFixedRowCount(), 0);
        EXPECT_EQ(grid.GetFixedColumnCount(), 0);
        EXPECT_EQ(grid.GetRowHeight(0), 30);
        EXPECT_EQ(grid.GetRowHeight(2), 30);
        EXPECT_TRUE(grid.IsCellReadOnly(0, 1));
        EXPECT_TRUE(grid.IsCellReadOnly(2, 0));
        EXPECT_FALSE(grid.IsCellReadOnly(1, 1));
        EXPECT_EQ(grid.GetCell(0, 0)->GetFormat(), 1u);
        EXPECT_EQ(grid.GetCell(1, 1)->GetFormat(), 2u);
        EXPECT_EQ(grid.GetCell(1, 1)->GetBackground(), 0xffffffu);
        EXPECT_TRUE(grid.GetCell(1, 1)->IsKindOf(CGridCellBOOL::classCGridCellBOOL));
        EXPECT_FALSE(grid.GetCell(0, 1)->IsKindOf(CGridCellBOOL::classCGridCellBOOL));
        // 162 dialog units are 284 pixels; the borders take 4 and the scroll bar 17 of them.
        EXPECT_EQ(grid.GetColumnWidth(0), 132);
        EXPECT_EQ(grid.GetColumnWidth(1), 131);
    });
}

TEST_F(LoadCaseDialog, TypedCasesAreLeftOutOfEverySubstructure) {
    BuildModel(kFamilyNone, {kStrength, kStrength, kStrength});
    EXPECT_TRUE(Run(kFormatText, [](auto& dialog) {
        EXPECT_TRUE(dialog.TypeCell(2, 1, "0"));
        EXPECT_TRUE(dialog.Click(1));
    }));
    EXPECT_THAT(Selection(), ElementsAre(1, 0, 1));
    EXPECT_THAT(Selection(), ElementsAre(1, 0, 1));
    Run(kFormatText, [](auto& dialog) { EXPECT_THAT(Row(dialog, 2), ElementsAre("2", "0")); });
}

TEST_F(LoadCaseDialog, TypingFiveChangesNothing) {
    BuildModel(kFamilyNone, {kStrength, kStrength});
    Run(kFormatText, [](auto& dialog) {
        dialog.TypeCell(1, 1, "5");
        EXPECT_THAT(Row(dialog, 1), ElementsAre("1", "1"));
        dialog.TypeCell(1, 1, "0");
        dialog.TypeCell(1, 1, "5");
        EXPECT_THAT(Row(dialog, 1), ElementsAre("1", "0"));
    });
}

TEST_F(LoadCaseDialog, HeadingsAndNumbersCannotBeTyped) {
    BuildModel(kFamilyNone, {kStrength, kStrength});
    Run(kFormatText, [](auto& dialog) {
        dialog.TypeCell(0, 1, "x");
        dialog.TypeCell(1, 0, "7");
        EXPECT_THAT(Row(dialog, 0), ElementsAre("Load Case", "Include"));
        EXPECT_THAT(Row(dialog, 1), ElementsAre("1", "1"));
    });
}

TEST_F(LoadCaseDialog, NoneThenOkAsksForOneInTheProjectsWord) {
    BuildModel(kFamilyLrfd, {kStrength, kStrength});
    EXPECT_FALSE(Run(kFormatText, [](auto& dialog) {
        dialog.Click(IDC_CASES_NONE);
        EXPECT_THAT(Row(dialog, 1), ElementsAre("1", "0"));
        dialog.Click(1);
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Click(2);
    }));
    ASSERT_EQ(sink.messages.size(), 1u);
    EXPECT_EQ(sink.messages[0].text, "Please select at least one Load Combination");
    EXPECT_EQ(sink.messages[0].title, "Attention");
    EXPECT_THAT(Selection(), ElementsAre(1, 1));

    BuildModel(kFamilyNone, {kStrength});
    g_DataSet.m_nAnalysisMode = 1;
    Run(kFormatText, [](auto& dialog) {
        dialog.Click(IDC_CASES_NONE);
        dialog.Click(1);
    });
    ASSERT_EQ(sink.messages.size(), 2u);
    EXPECT_EQ(sink.messages[1].text, "Please select at least one Time Step");
}

TEST_F(LoadCaseDialog, WithoutRowsOkAsksToo) {
    EXPECT_FALSE(Run(kFormatText, [](auto& dialog) {
        dialog.Click(1);
        EXPECT_TRUE(dialog.IsOpen());
    }));
    ASSERT_EQ(sink.messages.size(), 1u);
    EXPECT_EQ(sink.messages[0].text, "Please select at least one Load Case");
}

TEST_F(LoadCaseDialog, AllAfterNoneIncludesEveryCase) {
    BuildModel(kFamilyNone, {kStrength, kStrength, kStrength});
    selection.SetCaseSelected(1, false);
    EXPECT_TRUE(Run(kFormatText, [](auto& dialog) {
        dialog.Click(IDC_CASES_NONE);
        dialog.Click(IDC_CASES_ALL);
        dialog.Click(1);
    }));
    EXPECT_THAT(Selection(), ElementsAre(1, 1, 1));
}

TEST_F(LoadCaseDialog, CancelAfterNoneLeavesTheModel) {
    BuildModel(kFamilyNone, {kStrength, kStrength});
    EXPECT_FALSE(Run(kFormatText, [](auto& dialog) {
        dialog.Click(IDC_CASES_NONE);
        dialog.Click(2);
    }));
    EXPECT_THAT(Selection(), ElementsAre(1, 1));
}

TEST_F(LoadCaseDialog, TheSelectionIsShownAndGetsTheAnswer) {
    BuildModel(kFamilyNone, {kStrength, kStrength});
    selection.SetCaseSelected(0, false);
    Run(kFormatText, [](auto& dialog) {
        EXPECT_THAT(Row(dialog, 1), ElementsAre("1", "0"));
        dialog.Click(1);
    });
    EXPECT_THAT(Selection(), ElementsAre(0, 1));
}

TEST_F(LoadCaseDialog, APastedValueAboveOneCountsAndComesBackAsOne) {
    BuildModel(kFamilyNone, {kStrength, kStrength});
    EXPECT_TRUE(Run(kFormatText, [](auto& dialog) {
        dialog.Click(IDC_CASES_NONE);
        CGridCtrl& grid = dynamic_cast<CChoseLoadCasesDlg&>(dialog.Dialog()).m_Grid;
        EXPECT_TRUE(grid.PasteAt(1, 1, "7x\nabc"));
        dialog.Click(1);
    }));
    EXPECT_THAT(Selection(), ElementsAre(1, 0));
    Run(kFormatText, [](auto& dialog) { EXPECT_THAT(Row(dialog, 1), ElementsAre("1", "1")); });
}

TEST_F(LoadCaseDialog, AnOpenEditorEndsWhenOkIsPressed) {
    BuildModel(kFamilyNone, {kStrength, kStrength});
    Run(kFormatText, [](auto& dialog) {
        CGridCtrl& grid = dynamic_cast<CChoseLoadCasesDlg&>(dialog.Dialog()).m_Grid;
        dialog.Focus(IDC_CASE_GRID);
        grid.MoveFocusCell(1, 1);
        grid.OnChar('0', {});
        dialog.Click(1);
    });
    EXPECT_THAT(Selection(), ElementsAre(0, 1));
}

TEST_F(LoadCaseDialog, TheLinksLoseTheirHoverOverTheDialog) {
    BuildModel(kFamilyNone, {kStrength});
    Run(kFormatText, [](auto& dialog) {
        auto& cases = dynamic_cast<CChoseLoadCasesDlg&>(dialog.Dialog());
        EXPECT_EQ(cases.m_lblAll.TextColour(), 0xcc6600u);
        cases.m_lblAll.OnMouseMove();
        EXPECT_EQ(cases.m_lblAll.TextColour(), 0xff0000u);
        cases.OnMouseMove();
        EXPECT_EQ(cases.m_lblAll.TextColour(), 0xcc6600u);
        EXPECT_FALSE(cases.m_lblAll.IsHover());
    });
}

TEST_F(LoadCaseDialog, TheFirstCasesOfTheClassesFollowTheSelection) {
    BuildModel(kFamilyLrfd, {kStrength, kService, kStrength, kFatigue});
    EXPECT_THAT(FirstCases(), ElementsAre(0, 1, -1, 3));
    Run(kFormatText, [](auto& dialog) {
        dialog.TypeCell(1, 1, "0");
        dialog.TypeCell(2, 1, "0");
        dialog.Click(1);
    });
    EXPECT_THAT(FirstCases(), ElementsAre(2, -1, -1, 3));
}

TEST_F(LoadCaseDialog, AFamilyOfOneClassHasNoFirstCases) {
    BuildModel(kFamilyLfd, {kStrength, kStrength});
    EXPECT_TRUE(Run(kFormatText, [](auto& dialog) {
        dialog.TypeCell(1, 1, "0");
        dialog.Click(1);
    }));
    EXPECT_THAT(FirstCases(), ElementsAre(-1, -1, -1, -1));
}

TEST_F(LoadCaseDialog, CancelSearchesNoFirstCases) {
    BuildModel(kFamilyLrfd, {kStrength, kStrength});
    selection.SetCaseSelected(0, false);  // not yet searched for
    const CaseSelection before = selection;
    Run(kFormatText, [](auto& dialog) { dialog.Click(2); });
    EXPECT_EQ(selection, before);
    EXPECT_THAT(FirstCases(), ElementsAre(0, -1, -1, -1));
}

TEST_F(LoadCaseDialog, WithFatigueAloneOnlyTheMomentTableStays) {
    BuildModel(kFamilyLrfd, {kStrength, kFatigue});
    g_DataSet.m_Piers.pop_back();
    g_DataSet.m_nPiers = 1;
    g_DataLoaded = true;
    g_AllLoadCases = false;
    headless::SetModalDriver([](headless::HeadlessDialog& dialog) {
        if (dialog.ResourceId() == IDC_PILE_DC) {
            dialog.TypeCell(1, 1, "0");
            dialog.Click(1);
            return;
        }
        dialog.Click(IDC_CUSTOM_CASES);
        ASSERT_TRUE(dialog.Click(IDC_CHOOSE_CASES));
        for (const int id : {IDC_MAX_AXIAL, IDC_PILE_DC, IDC_COLUMN_DC, IDC_CAP_SHEAR, IDC_PILE_FORCES,
                             IDC_COLUMN_FORCES, IDC_EXTRA_MEMBERS}) {
            EXPECT_FALSE(dialog.Find(id)->enabled) << id;
        }
        EXPECT_TRUE(dialog.Find(IDC_CAP_MOMENT)->enabled);
    });
    CDesignerDlg dialog;
    dialog.State().selection = selection;
    dialog.DoModal();
    EXPECT_TRUE(dialog.State().enabled[kTableCapMoment]);
    EXPECT_FALSE(dialog.State().enabled[kTableMaxAxial]);
}

std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST_F(LoadCaseDialog, TheExportShowsChangesThatOkHasNotConfirmed) {
    const SampleFolder folder;
    std::filesystem::create_directories(folder.Path());
    g_InputFilePath = (folder.Path() / "job.in").string();
    BuildModel(kFamilyNone, {kStrength, kStrength});
    Run(kFormatText, [](auto& dialog) {
        dialog.TypeCell(2, 1, "0");
        dialog.Click(IDC_CASE_EXPORT);
    });
    const std::string book = ReadAll(folder.Path() / "job_IncludedLoadCases.xml");
    EXPECT_THAT(book, testing::HasSubstr("<Worksheet ss:Name=\"IncludedLoadCases\">"));
    EXPECT_THAT(book, testing::HasSubstr("<Data ss:Type=\"String\">Included Load Cases</Data>"));
    EXPECT_THAT(book,
                testing::HasSubstr("<Cell ss:StyleID=\"s60\"><Data ss:Type=\"Number\">2</Data></Cell>\r\n"
                                   "<Cell ss:StyleID=\"s60\"><Data ss:Type=\"Number\">0</Data></Cell>"));
    EXPECT_THAT(Selection(), ElementsAre(1, 1));
    ASSERT_EQ(sink.starts.size(), 1u);
    EXPECT_EQ(sink.starts[0].file, "Excel");
}

TEST_F(LoadCaseDialog, InPdfFormatTheGridGoesToTheImageBuilder) {
    const SampleFolder folder;
    std::filesystem::create_directories(folder.Path());
    g_InputFilePath = (folder.Path() / "job.in").string();
    BuildModel(kFamilyNone, {kStrength, kStrength});
    Run(kFormatPdf, [](auto& dialog) { dialog.Click(IDC_CASE_EXPORT); });
    const std::string description = ReadAll(folder.Path() / "PdfTemp.txt");
    EXPECT_THAT(description, testing::StartsWith("[title]Included Load Cases\r\n"));
    EXPECT_THAT(description, testing::HasSubstr("[columnWidth]auto\r\n"));
    EXPECT_THAT(description, testing::HasSubstr("[numberOfHeaderRow]1\r\n"));
    EXPECT_THAT(description, testing::HasSubstr("[nDataTypesForColumns]0,0\r\n"));
    EXPECT_THAT(description, testing::HasSubstr("[numberOfDataRows]2\r\n"));
    EXPECT_THAT(description, testing::HasSubstr("Included Load Cases.pdf\r\n"));
    EXPECT_THAT(description, testing::EndsWith("Load Case,Include\r\n1,1\r\n2,1"));
    ASSERT_EQ(sink.starts.size(), 1u);
    EXPECT_THAT(sink.starts[0].file, testing::EndsWith("Jarlimex.exe"));
    EXPECT_EQ(sink.starts[0].parameters, '"' + (folder.Path() / "PdfTemp.txt").string() + '"');
}

}  // namespace

}  // namespace lumerin
