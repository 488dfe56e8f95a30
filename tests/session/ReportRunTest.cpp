// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "session/ReportControls.h"
#include "support/ReportDialogFixture.h"

namespace lumerin {

namespace {

// The presses of the report dialog that write documents, open viewers or show help.

using headless::HeadlessDialog;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

constexpr int kTableButtons[] = {IDC_MAX_AXIAL,  IDC_PILE_DC,     IDC_COLUMN_DC,     IDC_CAP_SHEAR,
                                 IDC_CAP_MOMENT, IDC_PILE_FORCES, IDC_COLUMN_FORCES, IDC_EXTRA_MEMBERS};

class ReportRunTest : public ReportDialogTest {
  protected:
    std::string Project(const std::string& preset) { return folder.Write(preset); }

    SampleFolder folder;
};

TEST_F(ReportRunTest, ATablePressWritesItsFileAndStartsTheViewerOnIt) {
    const std::string base = Project("pier");
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_MAX_AXIAL);
        EXPECT_EQ(backend::WaitCursorDepth(), 0);
        const std::string path = base + "_Max_Axial_Forces_Pile_Heads.txt";
        EXPECT_EQ(g_OutputFilePath, path);
        EXPECT_GT(std::filesystem::file_size(path), 0U);
        ASSERT_EQ(sink.starts.size(), 1U);
        EXPECT_EQ(sink.starts[0].verb, "");
        EXPECT_EQ(sink.starts[0].file, "\"" + path + "\"");
        EXPECT_EQ(sink.starts[0].parameters, "");
        // Only this table sets the printer, and only in its text form.
        EXPECT_THAT(sink.orientations, ElementsAre(true));
        dialog.Click(IDC_PILE_DC);
        dialog.Click(IDC_FORMAT_PDF);
        dialog.Click(IDC_MAX_AXIAL);
        EXPECT_THAT(sink.orientations, ElementsAre(true));
        EXPECT_THAT(g_OutputFilePath, EndsWith(".pdf"));
        EXPECT_TRUE(sink.messages.empty());
    });
}

TEST_F(ReportRunTest, TheSpreadsheetGoesToTheSpreadsheetProgram) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_CAP_MOMENT);
        ASSERT_EQ(sink.starts.size(), 1U);
        EXPECT_EQ(sink.starts[0].verb, "open");
        EXPECT_EQ(sink.starts[0].file, "Excel");
        EXPECT_EQ(sink.starts[0].parameters, "\"" + base + "_Max_PierCap_Moment_Design.xml\"");
    });
}

std::string BytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The rows of the first table fit on an upright page of 612 by 792 points; the other tables are wider.
TEST_F(ReportRunTest, ThePagesOfAllTablesButTheFirstLieOnTheirSide) {
    const std::string base = Project("pier");
    Launch(base + ".in", 1, [&](HeadlessDialog& dialog) {
        for (const int id : kTableButtons) {
            dialog.Click(id);
            const std::string page = id == IDC_MAX_AXIAL ? "[ 0 0 612 792 ]" : "[ 0 0 792 612 ]";
            EXPECT_THAT(BytesOf(g_OutputFilePath), HasSubstr("/MediaBox " + page)) << id;
        }
    });
}

TEST_F(ReportRunTest, TheOptionsReachTheSessionBeforeTheTable) {
    const std::string base = Project("pier");
    Launch(base + ".in", 1, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_FOOTER_TIME);
        dialog.Click(IDC_FOOTER_FILE_NAME);
        EXPECT_EQ(g_FooterOn, 0);  // only a press copies them
        dialog.Click(IDC_PILE_DC);
        EXPECT_EQ(g_FooterOn, 1);
        EXPECT_EQ(g_FooterDate, 1);
        EXPECT_EQ(g_FooterTime, 0);
        EXPECT_EQ(g_FooterVersion, 1);
        EXPECT_EQ(g_FooterFileName, 0);
        EXPECT_EQ(g_ReportFormat, 1);
    });
}

TEST_F(ReportRunTest, AStartOnTextLeavesTheFooterFlagsSet) {
    const std::string base = Project("pier");
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_PILE_DC);
        EXPECT_EQ(g_FooterOn, 1);
        dialog.Click(IDC_FORMAT_TEXT);
        dialog.Click(IDC_PILE_DC);
        EXPECT_EQ(g_FooterOn, 0);
    });
}

TEST_F(ReportRunTest, AViewerThatFailsIsReportedAndTheTableStays) {
    const std::string base = Project("pier");
    headless::State().shellCode = 2;
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_MAX_AXIAL);
        ASSERT_EQ(sink.messages.size(), 1U);
        EXPECT_EQ(sink.messages[0].text,
                  "The application specified to open the file was not found on this machine.");
        EXPECT_TRUE(std::filesystem::exists(base + "_Max_Axial_Forces_Pile_Heads.xml"));
        headless::State().shellCode = 0;
        dialog.Click(IDC_MAX_AXIAL);
        EXPECT_EQ(sink.messages.back().text, "");
    });
}

TEST_F(ReportRunTest, ASecondPressReplacesTheFile) {
    const std::string base = Project("pier");
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_TITLE_PAGE);
        const std::string path = base + "_Title Page.txt";
        const auto size = std::filesystem::file_size(path);
        std::ofstream(path, std::ios::app) << "more";
        dialog.Click(IDC_TITLE_PAGE);
        EXPECT_EQ(std::filesystem::file_size(path), size);
    });
}

TEST_F(ReportRunTest, InvalidNumbersBlockTheSpreadsheetAlone) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        Report(dialog).State().results.valid = TableFlags();
        for (const int id : {IDC_MAX_AXIAL, IDC_COLUMN_DC, IDC_PILE_HEADS}) {
            sink.messages.clear();
            dialog.Click(id);
            ASSERT_EQ(sink.messages.size(), 2U) << id;
            EXPECT_EQ(sink.messages[0].text, "Invalid data.  The EXCEL table cannot be displayed.");
            // The column ratios have a text of their own, with one blank.
            EXPECT_EQ(sink.messages[1].text,
                      id == IDC_COLUMN_DC ? "There are no results to view. The table cannot be launched."
                                          : "There are no results to view.  The table cannot be launched.");
        }
        EXPECT_TRUE(sink.starts.empty());
        EXPECT_EQ(backend::WaitCursorDepth(), 0);
        sink.messages.clear();
        dialog.Click(IDC_FORMAT_PDF);
        dialog.Click(IDC_MAX_AXIAL);
        EXPECT_TRUE(sink.messages.empty());
        EXPECT_EQ(sink.starts.size(), 1U);
    });
}

TEST_F(ReportRunTest, AFullWorkbookLeavesInvalidTablesOutInSilence) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        Report(dialog).State().results.valid[kTablePileDc] = false;
        dialog.Click(IDC_FULL_REPORT);
        EXPECT_TRUE(sink.messages.empty());
        EXPECT_EQ(sink.starts.size(), 1U);
        std::ifstream file(base + "_Full_Report.xml", std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        EXPECT_THAT(text, HasSubstr("Maximum Axial Forces at All Pile Heads"));
        EXPECT_EQ(text.find("Maximum Demand/Capacity Ratio For All Pile Properties"), std::string::npos);
        EXPECT_THAT(text, EndsWith("</Workbook>\r\n"));
    });
}

TEST_F(ReportRunTest, AFullTextIsPaddedAfterEveryTableButTheExtraMembers) {
    const auto read = [](const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    const auto lines = [](const std::string& text) { return std::count(text.begin(), text.end(), '\n'); };
    // A page has 61 lines. The group's last table is that of the pile forces, and its page is filled.
    const std::string group = Project("group");
    Launch(group + ".in", 2, [](HeadlessDialog& dialog) {
        dialog.Click(IDC_FULL_REPORT);
        dialog.Click(IDC_PILE_FORCES);
    });
    const std::string padded = read(group + "_Full_Report.txt");
    const std::string forces = read(group + "_Max_Forces_For_All_Pile_Sects.txt");
    EXPECT_EQ(lines(padded) % 61, 0);
    EXPECT_NE(lines(forces) % 61, 0);
    EXPECT_THAT(padded, HasSubstr(forces + "\r\n\r\n"));
    const std::string bridge = Project("bridge");
    Launch(bridge + ".in", 2, [](HeadlessDialog& dialog) {
        dialog.Click(IDC_FULL_REPORT);
        dialog.Click(IDC_EXTRA_MEMBERS);
    });
    EXPECT_THAT(read(bridge + "_Full_Report.txt"), EndsWith(read(bridge + "_Max_Extra_Member_Forces.txt")));
}

TEST_F(ReportRunTest, ATableThatIsNotEnabledHasNothingToShowAndLeavesAnEmptyFile) {
    const std::string base = Project("pier");
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        Report(dialog).State().enabled[kTablePileDc] = false;
        dialog.Click(IDC_PILE_DC);
        ASSERT_EQ(sink.messages.size(), 1U);
        EXPECT_EQ(sink.messages[0].text, "There are no results to view.  The table cannot be launched.");
        EXPECT_TRUE(sink.starts.empty());
        EXPECT_EQ(std::filesystem::file_size(base + "_Max_DC_For_Pile_Sections.txt"), 0U);
    });
}

TEST_F(ReportRunTest, AFormatThatIsNoneEndsInThePathMessageAndTheNoResultsMessage) {
    const std::string base = Project("pier");
    for (const int id : {IDC_MAX_AXIAL, IDC_FULL_REPORT, IDC_PILE_HEADS}) {
        sink.messages.clear();
        Launch(base + ".in", 7, [&](HeadlessDialog& dialog) {
            for (const int format : {IDC_FORMAT_PDF, IDC_FORMAT_TEXT, IDC_FORMAT_EXCEL})
                EXPECT_FALSE(Checked(dialog, format));
            dialog.Click(id);
        });
        ASSERT_EQ(sink.messages.size(), 2U) << id;
        EXPECT_EQ(sink.messages[0].text, "Invalid file type selected.  Table cannot be generated.");
        EXPECT_EQ(sink.messages[1].text, "There are no results to view.  The table cannot be launched.");
        EXPECT_TRUE(sink.starts.empty());
    }
}

TEST_F(ReportRunTest, PileHeadsInPdfAskAndYesMovesTheFormatAlone) {
    const std::string base = Project("pier");
    Launch(base + ".in", 1, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_FOOTER_TIME);
        dialog.Click(IDC_PILE_HEADS);
        ASSERT_EQ(sink.messages.size(), 1U);
        EXPECT_EQ(
            sink.messages[0].text,
            "This table is currently available only in EXCEL format. Do you wish to change the format to "
            "EXCEL?");
        EXPECT_EQ(sink.messages[0].buttons, MessageButtons::yesNo);
        EXPECT_TRUE(Checked(dialog, IDC_FORMAT_EXCEL));
        EXPECT_FALSE(Checked(dialog, IDC_FORMAT_PDF));
        EXPECT_TRUE(Checked(dialog, IDC_FOOTER));
        EXPECT_FALSE(Checked(dialog, IDC_FOOTER_TIME));
        EXPECT_EQ(g_OutputFilePath, base + "_Axial_Pile_Heads_EachLoadCase.xml");
        EXPECT_EQ(sink.starts.size(), 1U);
    });
}

TEST_F(ReportRunTest, PileHeadsAfterTextKeepTheFooterOff) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_FORMAT_TEXT);
        dialog.Click(IDC_PILE_HEADS);
        EXPECT_TRUE(Checked(dialog, IDC_FORMAT_EXCEL));
        EXPECT_FALSE(Enabled(dialog, IDC_FOOTER));
        EXPECT_FALSE(Checked(dialog, IDC_FOOTER));
        EXPECT_FALSE(Visible(dialog, IDC_FOOTER_DATE));
    });
}

TEST_F(ReportRunTest, NoInThePileHeadQuestionEndsThePress) {
    const std::string base = Project("pier");
    headless::State().answer = MessageAnswer::no;
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_PILE_HEADS);
        EXPECT_EQ(sink.messages.size(), 1U);
        EXPECT_TRUE(Checked(dialog, IDC_FORMAT_TEXT));
        EXPECT_TRUE(sink.starts.empty());
        EXPECT_FALSE(std::filesystem::exists(base + "_Axial_Pile_Heads_EachLoadCase.xml"));
    });
}

TEST_F(ReportRunTest, TheTitlePageRefusesTheSpreadsheetAndLeavesAWaitCursor) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_TITLE_PAGE);
        ASSERT_EQ(sink.messages.size(), 1U);
        EXPECT_EQ(sink.messages[0].text,
                  "The Title Page can only be created in the Text and PDF formats.  \n"
                  "Please unselect the Excel option, and re-click this button.");
        EXPECT_EQ(backend::WaitCursorDepth(), 1);
        EXPECT_TRUE(sink.starts.empty());
    });
}

TEST_F(ReportRunTest, TheTitlePageIsOpenedByItsTypeInEveryFormat) {
    const std::string base = Project("pier");
    Launch(base + ".in", 1, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_TITLE_PAGE);
        dialog.Click(IDC_FORMAT_TEXT);
        dialog.Click(IDC_TITLE_PAGE);
        ASSERT_EQ(sink.starts.size(), 2U);
        EXPECT_EQ(sink.starts[0].file, "\"" + base + "_Title Page.pdf\"");
        EXPECT_EQ(sink.starts[1].file, "\"" + base + "_Title Page.txt\"");
        EXPECT_EQ(backend::WaitCursorDepth(), 0);
    });
}

TEST_F(ReportRunTest, EnvelopesCallThePlotModuleWithEightArguments) {
    const std::string base = Project("pier");
    headless::SetModalDriver([](HeadlessDialog& dialog) { dialog.Click(IDC_CAP_ENVELOPES); });
    LaunchLumerin(2, (base + ".in").c_str(), "5.2.1", "", "", " plot it ");
    ASSERT_EQ(sink.calls.size(), 1U);
    const PlotModuleCall& call = sink.calls[0];
    EXPECT_EQ(call.format, 1);
    EXPECT_EQ(call.dataFile, base + "_Envelopes.txt");
    EXPECT_EQ(call.plot, "Shear");
    EXPECT_EQ(call.family, "STRENGTH");
    EXPECT_EQ(call.version, "5.2.1");
    EXPECT_EQ(call.zeroA, "0");
    EXPECT_EQ(call.zeroB, "0");
    EXPECT_EQ(call.argument, "plot it");
    EXPECT_TRUE(std::filesystem::exists(call.dataFile));
    EXPECT_TRUE(sink.starts.empty());
}

TEST_F(ReportRunTest, AMissingPlotModuleIsReportedByNameOrByTheSystem) {
    const std::string base = Project("bent");
    sink.moduleResult = PlotModuleResult::moduleMissing;
    sink.moduleText = "The specified procedure could not be found.";
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(IDC_CAP_ENVELOPES);
        EXPECT_EQ(sink.calls.back().format, 0);
        EXPECT_EQ(sink.messages.back().text,
                  "Pier Cap Envelopes could not be displayed.  Please contact Ovrelle.");
        sink.moduleResult = PlotModuleResult::exportMissing;
        dialog.Click(IDC_CAP_ENVELOPES);
        EXPECT_EQ(sink.messages.back().text, "The specified procedure could not be found.");
        // A second press loads the module again.
        EXPECT_EQ(sink.calls.size(), 2U);
    });
}

TEST_F(ReportRunTest, HelpOpensThePageOrReportsThatThereIsNone) {
    headless::State().modulePath = "  C:\\Program Files\\Host\\Lumerin.dll";
    ShowOverModel(0, [&](HeadlessDialog& dialog) {
        for (const int id : {IDC_FULL_REPORT, IDC_TITLE_PAGE, IDC_MAX_AXIAL, IDC_EXTRA_MEMBERS,
                             IDC_FOOTER_VERSION, IDC_FORMAT_EXCEL})
            dialog.PressHelp(id);
        EXPECT_EQ(sink.starts.size(), 6U);
        EXPECT_EQ(sink.starts[0].verb, "open");
        EXPECT_EQ(sink.starts[0].file, "\"file:///C:\\Program Files\\Host\\HelpFiles\\Default.htm\"");
        EXPECT_TRUE(sink.messages.empty());
        for (const int id :
             {IDC_PILE_HEADS, IDC_EMBEDMENT, IDC_ALL_CASES, IDC_CHOOSE_CASES, IDC_CASE_SELECTION, 1})
            dialog.PressHelp(id);
        EXPECT_EQ(sink.starts.size(), 6U);
        ASSERT_EQ(sink.messages.size(), 6U);
        EXPECT_EQ(sink.messages[0].text,
                  "No Help Manual topic exists for this control.\n"
                  "To open the Help Manual, either choose another\n"
                  "control, or open the Help Manual using the\n"
                  "'Help' menu item on the menu bar.");
    });
}

// ---- broken projects

TEST_F(ReportRunTest, AMissingFileIsNamedAndTheDialogStaysWithAnEmptyModel) {
    const std::string base = Project("pier");
    std::filesystem::remove(base + ".vmd");
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        ASSERT_EQ(sink.messages.size(), 1U);
        EXPECT_THAT(sink.messages[0].text, HasSubstr(".vmd: the file was not found"));
        EXPECT_FALSE(Report(dialog).IsProjectLoaded());
        EXPECT_EQ(CountTables(Report(dialog).State().enabled), 0U);
        EXPECT_TRUE(g_DataSet.IsPierless());
        EXPECT_EQ(backend::WaitCursorDepth(), 0);
        EXPECT_EQ(Text(dialog, IDC_ALL_CASES), "All Load Cases");
        for (const int id : kTableButtons) EXPECT_TRUE(Enabled(dialog, id)) << id;
    });
}

TEST_F(ReportRunTest, EveryButtonRunsOnTheEmptyModelOfAFailedLoad) {
    const std::string base = Project("pier");
    std::filesystem::remove(base + ".TWR");
    for (const int format : {0, 1, 2}) {
        Launch(base + ".in", format, [&](HeadlessDialog& dialog) {
            for (const int id : kTableButtons) {
                sink.messages.clear();
                ASSERT_TRUE(dialog.Click(id));
                ASSERT_EQ(sink.messages.size(), 1U) << id;
                EXPECT_THAT(sink.messages[0].text, HasSubstr("There are no results to view.")) << id;
            }
            sink.starts.clear();
            for (const int id : {IDC_FULL_REPORT, IDC_TITLE_PAGE, IDC_CAP_ENVELOPES, IDC_PILE_HEADS,
                                 IDC_EMBEDMENT, IDC_CUSTOM_CASES, IDC_CHOOSE_CASES})
                dialog.Click(id);
            EXPECT_TRUE(dialog.IsOpen());
        });
    }
}

}  // namespace

}  // namespace lumerin
