// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "session/ReportControls.h"
#include "support/ReportDialogFixture.h"

namespace lumerin {

namespace {

using headless::HeadlessDialog;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

constexpr int kFooterParts[] = {1017, 1016, 1014, 1018};
constexpr int kTableButtons[] = {1004, 1005, 1006, 1007, 1008, 1010, 1011, 1012};
constexpr const char* kNoProject = "There is currently no input file selected.";

TEST_F(ReportDialogTest, HasThirtyOneControlsWithTheFourBoxTitlesUnnamed) {
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        EXPECT_EQ(dialog.Title(), "Lumerin Generator");
        EXPECT_EQ(dialog.Controls().size(), 31U);
        int unnamed = 0;
        for (const auto& control : dialog.Controls()) unnamed += control->spec->id == kNoId ? 1 : 0;
        EXPECT_EQ(unnamed, 4);
        EXPECT_FALSE(Enabled(dialog, 1039));
        EXPECT_FALSE(Visible(dialog, 2));
        EXPECT_EQ(Text(dialog, 1), "Close");
    });
}

TEST_F(ReportDialogTest, StartsOnTheFormatOfTheCallWithAllFooterPartsAndAllCases) {
    for (const int format : {0, 1, 2}) {
        ShowOverModel(format, [format](HeadlessDialog& dialog) {
            EXPECT_EQ(Checked(dialog, 1021), format == 0);
            EXPECT_EQ(Checked(dialog, 1019), format == 1);
            EXPECT_EQ(Checked(dialog, 1020), format == 2);
            EXPECT_TRUE(Checked(dialog, 1015));
            EXPECT_TRUE(Enabled(dialog, 1015));
            for (const int id : kFooterParts) EXPECT_TRUE(Checked(dialog, id) && Visible(dialog, id)) << id;
            EXPECT_TRUE(Checked(dialog, 1037));
            EXPECT_FALSE(Checked(dialog, 1038));
        });
    }
}

TEST_F(ReportDialogTest, WithoutAProjectEveryRunIsRefusedBeforeAnyWaitCursor) {
    Launch("", 2, [this](HeadlessDialog& dialog) {
        // The load of no project has failed; the buttons are as the resource has them.
        EXPECT_FALSE(Report(dialog).IsProjectLoaded());
        sink.messages.clear();
        for (const int id : {1004, 1005, 1006, 1007, 1008, 1009, 1010, 1011, 1012, 1001, 1002, 1013, 1022}) {
            ASSERT_TRUE(dialog.Click(id)) << id;
            ASSERT_EQ(sink.messages.size(), 1U) << id;
            EXPECT_EQ(sink.messages[0].text, kNoProject);
            EXPECT_EQ(sink.messages[0].icon, MessageIcon::exclamation);
            EXPECT_EQ(backend::WaitCursorDepth(), 0);
            sink.messages.clear();
        }
        EXPECT_TRUE(sink.starts.empty());
        EXPECT_TRUE(sink.calls.empty());
    });
}

TEST_F(ReportDialogTest, CaptionsTakeTheProjectsWord) {
    BuildModel({kTypePier}, kFamilyLrfd, {kStrength});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        EXPECT_EQ(Text(dialog, 1041), "Load Combination Selection");
        EXPECT_EQ(Text(dialog, 1037), "All Load Combinations");
        EXPECT_EQ(Text(dialog, 1038), "Custom Set of Load Combinations");
        EXPECT_EQ(Text(dialog, 1039), "Choose Load Combinations");
        g_DataSet.m_nAnalysisMode = 1;
        Report(dialog).RefreshControls();
        EXPECT_EQ(Text(dialog, 1041), "Time Step Selection");
        EXPECT_EQ(Text(dialog, 1039), "Choose Time Steps");
    });
}

TEST_F(ReportDialogTest, APileGroupLosesColumnAndCapTables) {
    BuildModel({kTypePileGroup}, kFamilyNone, {});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        for (const int id : {1006, 1007, 1008, 1009, 1011, 1012}) EXPECT_FALSE(Enabled(dialog, id)) << id;
        for (const int id : {1004, 1005, 1010, 1001, 1002, 1013}) EXPECT_TRUE(Enabled(dialog, id)) << id;
        EXPECT_EQ(Text(dialog, 1007), "Pier Cap Shear Design");
        EXPECT_EQ(Text(dialog, 1009), "Pier Cap Envelopes");
    });
}

TEST_F(ReportDialogTest, ABentHasItsCapWordAndNoColumnTables) {
    BuildModel({kTypePileBent}, kFamilyLfd, {});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        EXPECT_EQ(Text(dialog, 1007), "Bent Cap Shear Design");
        EXPECT_EQ(Text(dialog, 1008), "Bent Cap Moment Design");
        EXPECT_EQ(Text(dialog, 1009), "Bent Cap Envelopes");
        for (const int id : {1004, 1007, 1008, 1009}) EXPECT_TRUE(Enabled(dialog, id)) << id;
        for (const int id : {1006, 1011, 1012}) EXPECT_FALSE(Enabled(dialog, id)) << id;
    });
}

TEST_F(ReportDialogTest, ExtraMembersOfAnySubstructureEnableTheirTable) {
    BuildModel({kTypePier, kTypePier}, kFamilyLrfd, {kStrength});
    g_DataSet.m_Piers[1].m_nExtraMembers = 1;
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        EXPECT_TRUE(Enabled(dialog, 1012));
    });
}

TEST_F(ReportDialogTest, FatigueAloneLeavesTheMomentTableAndWhatIsNoTable) {
    BuildModel({kTypePier}, kFamilyLrfd, {kFatigue});
    g_DataSet.FirstPier().m_nExtraMembers = 1;
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        Report(dialog).RefreshControls();
        for (const int id : {1004, 1005, 1006, 1007, 1010, 1011, 1012})
            EXPECT_FALSE(Enabled(dialog, id)) << id;
        for (const int id : {1008, 1001, 1002, 1013, 1009}) EXPECT_TRUE(Enabled(dialog, id)) << id;
    });
}

TEST_F(ReportDialogTest, AMastAloneOffersNoTableThoughItsFlagsWouldAllowSome) {
    for (const StructureType type :
         {kTypeSinglePile, kTypeMast, kTypeWallA, kTypeWallB, kTypeOtherGroup, kTypeNoPileTables}) {
        BuildModel({type}, kFamilyNone, {});
        ShowOverModel(0, [&, type](HeadlessDialog& dialog) {
            Report(dialog).RefreshControls();
            for (const int id : {1001, 1002, 1020}) EXPECT_FALSE(Enabled(dialog, id)) << type << ' ' << id;
            for (int id = 1004; id <= 1018; ++id) EXPECT_FALSE(Enabled(dialog, id)) << type << ' ' << id;
            for (const int id : {1019, 1021, 1037, 1038})
                EXPECT_TRUE(Enabled(dialog, id)) << type << ' ' << id;
            // A button that can't be pressed decides before the flag.
            EXPECT_EQ(model.enabled[kTableCapShear], type == kTypeMast);
        });
    }
}

TEST_F(ReportDialogTest, SeveralSubstructuresNameTheirCapsTogether) {
    struct Case {
        std::initializer_list<StructureType> types;
        const char* cap;
        bool columnTables;
    };
    const Case cases[] = {{{kTypePier, kTypePileBent}, "Pier Cap / Bent Cap", true},
                          {{kTypePier, kTypePileGroup}, "Pier Cap", true},
                          {{kTypePileBent, kTypePileBent}, "Bent Cap", false},
                          {{kTypePileGroup, kTypeWallA}, "", false}};
    for (const Case& entry : cases) {
        BuildModel(entry.types, kFamilyNone, {});
        ShowOverModel(0, [&entry](HeadlessDialog& dialog) {
            Report(dialog).RefreshControls();
            const std::string cap = entry.cap;
            // Without either word the captions keep their leading blank.
            EXPECT_EQ(Text(dialog, 1007), cap + " Shear Design");
            EXPECT_EQ(Text(dialog, 1008), cap + " Moment Design");
            EXPECT_EQ(Text(dialog, 1009), cap + " Envelopes");
            EXPECT_EQ(Enabled(dialog, 1006), entry.columnTables);
            EXPECT_EQ(Enabled(dialog, 1011), entry.columnTables);
            for (const int id : {1004, 1007, 1008, 1009}) EXPECT_TRUE(Enabled(dialog, id)) << id;
        });
    }
}

TEST_F(ReportDialogTest, TheFooterBoxShowsAndHidesItsPartsAndLeavesTheirState) {
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        dialog.Click(1016);
        dialog.Click(1015);
        EXPECT_EQ(Report(dialog).m_nFooterOn, 0);
        for (const int id : kFooterParts) EXPECT_FALSE(Visible(dialog, id)) << id;
        dialog.Click(1015);
        EXPECT_EQ(Report(dialog).m_nFooterOn, 1);
        for (const int id : kFooterParts) EXPECT_TRUE(Visible(dialog, id)) << id;
        EXPECT_FALSE(Checked(dialog, 1016));
        EXPECT_TRUE(Checked(dialog, 1017));
    });
}

TEST_F(ReportDialogTest, TextTakesTheFooterAwayAndPdfDoesNotBringItBack) {
    BuildModel({kTypePier}, kFamilyNone, {});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        dialog.Click(1020);
        EXPECT_FALSE(Enabled(dialog, 1015));
        EXPECT_FALSE(Checked(dialog, 1015));
        for (const int id : kFooterParts) EXPECT_FALSE(Visible(dialog, id) || Checked(dialog, id)) << id;
        dialog.Click(1019);
        EXPECT_TRUE(Enabled(dialog, 1015));
        EXPECT_FALSE(Checked(dialog, 1015));
        for (const int id : kFooterParts) EXPECT_FALSE(Visible(dialog, id)) << id;
        dialog.Click(1015);
        for (const int id : kFooterParts) {
            EXPECT_TRUE(Visible(dialog, id)) << id;
            EXPECT_FALSE(Checked(dialog, id)) << id;
        }
    });
}

TEST_F(ReportDialogTest, TheFooterBoxGoesByTheLastSubstructuresType) {
    BuildModel({kTypePier, kTypeWallA}, kFamilyNone, {});
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        dialog.Click(1019);
        EXPECT_FALSE(Enabled(dialog, 1015));
    });
}

TEST_F(ReportDialogTest, TheLoadCaseChoiceEnablesItsButtonAndLeavesTheSelection) {
    ShowOverModel(0, [](HeadlessDialog& dialog) {
        dialog.Click(1038);
        EXPECT_FALSE(g_AllLoadCases);
        EXPECT_TRUE(Enabled(dialog, 1039));
        dialog.Click(1037);
        EXPECT_TRUE(g_AllLoadCases);
        EXPECT_FALSE(Enabled(dialog, 1039));
    });
}

// ---- runs

class ReportRunTest : public ReportDialogTest {
  protected:
    std::string Project(const std::string& preset) { return folder.Write(preset); }

    SampleFolder folder;
};

TEST_F(ReportRunTest, ATablePressWritesItsFileAndStartsTheViewerOnIt) {
    const std::string base = Project("pier");
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        dialog.Click(1004);
        EXPECT_EQ(backend::WaitCursorDepth(), 0);
        const std::string path = base + "_Max_Axial_Forces_Pile_Heads.txt";
        EXPECT_EQ(g_OutputFilePath, path);
        EXPECT_GT(std::filesystem::file_size(path), 0U);
        ASSERT_EQ(sink.starts.size(), 1U);
        EXPECT_EQ(sink.starts[0].verb, "");
        EXPECT_EQ(sink.starts[0].file, "\"" + path + "\"");
        EXPECT_EQ(sink.starts[0].parameters, "");
        // This table alone sets the printer, in its text form alone.
        EXPECT_THAT(sink.orientations, ElementsAre(true));
        dialog.Click(1005);
        dialog.Click(1019);
        dialog.Click(1004);
        EXPECT_THAT(sink.orientations, ElementsAre(true));
        EXPECT_THAT(g_OutputFilePath, EndsWith(".pdf"));
        EXPECT_TRUE(sink.messages.empty());
    });
}

TEST_F(ReportRunTest, TheSpreadsheetGoesToTheSpreadsheetProgram) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(1008);
        ASSERT_EQ(sink.starts.size(), 1U);
        EXPECT_EQ(sink.starts[0].verb, "open");
        EXPECT_EQ(sink.starts[0].file, "Excel");
        EXPECT_EQ(sink.starts[0].parameters, "\"" + base + "_Max_PierCap_Moment_Design.xml\"");
    });
}

TEST_F(ReportRunTest, TheOptionsReachTheSessionBeforeTheTable) {
    const std::string base = Project("pier");
    Launch(base + ".in", 1, [&](HeadlessDialog& dialog) {
        dialog.Click(1016);
        dialog.Click(1018);
        EXPECT_EQ(g_FooterOn, 0);  // a press copies them, nothing else
        dialog.Click(1005);
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
        dialog.Click(1005);
        EXPECT_EQ(g_FooterOn, 1);
        dialog.Click(1020);
        dialog.Click(1005);
        EXPECT_EQ(g_FooterOn, 0);
    });
}

TEST_F(ReportRunTest, AViewerThatFailsIsToldAndTheTableStays) {
    const std::string base = Project("pier");
    headless::State().shellCode = 2;
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(1004);
        ASSERT_EQ(sink.messages.size(), 1U);
        EXPECT_EQ(sink.messages[0].text,
                  "The application specified to open the file was not found on this machine.");
        EXPECT_TRUE(std::filesystem::exists(base + "_Max_Axial_Forces_Pile_Heads.xml"));
        headless::State().shellCode = 0;
        dialog.Click(1004);
        EXPECT_EQ(sink.messages.back().text, "");
    });
}

TEST_F(ReportRunTest, ASecondPressReplacesTheFile) {
    const std::string base = Project("pier");
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        dialog.Click(1002);
        const std::string path = base + "_Title Page.txt";
        const auto size = std::filesystem::file_size(path);
        std::ofstream(path, std::ios::app) << "more";
        dialog.Click(1002);
        EXPECT_EQ(std::filesystem::file_size(path), size);
    });
}

TEST_F(ReportRunTest, InvalidNumbersBlockTheSpreadsheetAlone) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        Report(dialog).State().results.valid = TableFlags();
        for (const int id : {1004, 1006, 1013}) {
            sink.messages.clear();
            dialog.Click(id);
            ASSERT_EQ(sink.messages.size(), 2U) << id;
            EXPECT_EQ(sink.messages[0].text, "Invalid data.  The EXCEL table cannot be displayed.");
            // The column ratios have a text of their own, with one blank.
            EXPECT_EQ(sink.messages[1].text,
                      id == 1006 ? "There are no results to view. The table cannot be launched."
                                 : "There are no results to view.  The table cannot be launched.");
        }
        EXPECT_TRUE(sink.starts.empty());
        EXPECT_EQ(backend::WaitCursorDepth(), 0);
        sink.messages.clear();
        dialog.Click(1019);
        dialog.Click(1004);
        EXPECT_TRUE(sink.messages.empty());
        EXPECT_EQ(sink.starts.size(), 1U);
    });
}

TEST_F(ReportRunTest, AFullWorkbookLeavesInvalidTablesOutInSilence) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        Report(dialog).State().results.valid[kTablePileDc] = false;
        dialog.Click(1001);
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
        dialog.Click(1001);
        dialog.Click(1010);
    });
    const std::string padded = read(group + "_Full_Report.txt");
    const std::string forces = read(group + "_Max_Forces_For_All_Pile_Sects.txt");
    EXPECT_EQ(lines(padded) % 61, 0);
    EXPECT_NE(lines(forces) % 61, 0);
    EXPECT_THAT(padded, HasSubstr(forces + "\r\n\r\n"));
    const std::string bridge = Project("bridge");
    Launch(bridge + ".in", 2, [](HeadlessDialog& dialog) {
        dialog.Click(1001);
        dialog.Click(1012);
    });
    EXPECT_THAT(read(bridge + "_Full_Report.txt"), EndsWith(read(bridge + "_Max_Extra_Member_Forces.txt")));
}

TEST_F(ReportRunTest, ATableThatIsNotEnabledHasNothingToShowAndLeavesAnEmptyFile) {
    const std::string base = Project("pier");
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        Report(dialog).State().enabled[kTablePileDc] = false;
        dialog.Click(1005);
        ASSERT_EQ(sink.messages.size(), 1U);
        EXPECT_EQ(sink.messages[0].text, "There are no results to view.  The table cannot be launched.");
        EXPECT_TRUE(sink.starts.empty());
        EXPECT_EQ(std::filesystem::file_size(base + "_Max_DC_For_Pile_Sections.txt"), 0U);
    });
}

TEST_F(ReportRunTest, AFormatThatIsNoneEndsInThePathMessageAndTheNoResultsMessage) {
    const std::string base = Project("pier");
    for (const int id : {1004, 1001, 1013}) {
        sink.messages.clear();
        Launch(base + ".in", 7, [&](HeadlessDialog& dialog) {
            for (const int format : {1019, 1020, 1021}) EXPECT_FALSE(Checked(dialog, format));
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
        dialog.Click(1016);
        dialog.Click(1013);
        ASSERT_EQ(sink.messages.size(), 1U);
        EXPECT_EQ(
            sink.messages[0].text,
            "This table is currently available only in EXCEL format. Do you wish to change the format to "
            "EXCEL?");
        EXPECT_EQ(sink.messages[0].buttons, MessageButtons::yesNo);
        EXPECT_TRUE(Checked(dialog, 1021));
        EXPECT_FALSE(Checked(dialog, 1019));
        EXPECT_TRUE(Checked(dialog, 1015));
        EXPECT_FALSE(Checked(dialog, 1016));
        EXPECT_EQ(g_OutputFilePath, base + "_Axial_Pile_Heads_EachLoadCase.xml");
        EXPECT_EQ(sink.starts.size(), 1U);
    });
}

TEST_F(ReportRunTest, PileHeadsBehindTextKeepTheFooterOff) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(1020);
        dialog.Click(1013);
        EXPECT_TRUE(Checked(dialog, 1021));
        EXPECT_FALSE(Enabled(dialog, 1015));
        EXPECT_FALSE(Checked(dialog, 1015));
        EXPECT_FALSE(Visible(dialog, 1017));
    });
}

TEST_F(ReportRunTest, NoInThePileHeadQuestionEndsThePress) {
    const std::string base = Project("pier");
    headless::State().answer = MessageAnswer::no;
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        dialog.Click(1013);
        EXPECT_EQ(sink.messages.size(), 1U);
        EXPECT_TRUE(Checked(dialog, 1020));
        EXPECT_TRUE(sink.starts.empty());
        EXPECT_FALSE(std::filesystem::exists(base + "_Axial_Pile_Heads_EachLoadCase.xml"));
    });
}

TEST_F(ReportRunTest, TheTitlePageRefusesTheSpreadsheetAndLeavesAWaitCursor) {
    const std::string base = Project("pier");
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(1002);
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
        dialog.Click(1002);
        dialog.Click(1020);
        dialog.Click(1002);
        ASSERT_EQ(sink.starts.size(), 2U);
        EXPECT_EQ(sink.starts[0].file, "\"" + base + "_Title Page.pdf\"");
        EXPECT_EQ(sink.starts[1].file, "\"" + base + "_Title Page.txt\"");
        EXPECT_EQ(backend::WaitCursorDepth(), 0);
    });
}

TEST_F(ReportRunTest, EnvelopesCallThePlotModuleWithEightArguments) {
    const std::string base = Project("pier");
    headless::SetModalDriver([](HeadlessDialog& dialog) { dialog.Click(1009); });
    LaunchLumerin(2, (base + ".in").c_str(), "5.2.1", "", "", " plot it ");
    ASSERT_EQ(sink.calls.size(), 1U);
    EXPECT_EQ(sink.calls[0].module, "Sorvane.dll");
    const services::PlotModuleCall& call = sink.calls[0].call;
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

TEST_F(ReportRunTest, AMissingPlotModuleIsToldByNameOrByTheSystem) {
    const std::string base = Project("bent");
    sink.moduleResult = services::PlotModuleResult::moduleMissing;
    sink.moduleText = "The specified procedure could not be found.";
    Launch(base + ".in", 0, [&](HeadlessDialog& dialog) {
        dialog.Click(1009);
        EXPECT_EQ(sink.calls.back().call.format, 0);
        EXPECT_EQ(sink.messages.back().text,
                  "Pier Cap Envelopes could not be displayed.  Please contact Ovrelle.");
        sink.moduleResult = services::PlotModuleResult::exportMissing;
        dialog.Click(1009);
        EXPECT_EQ(sink.messages.back().text, "The specified procedure could not be found.");
        // A second press loads the module again.
        EXPECT_EQ(sink.calls.size(), 2U);
    });
}

TEST_F(ReportRunTest, HelpOpensThePageOrSaysThatThereIsNone) {
    headless::State().modulePath = "  C:\\Program Files\\Host\\Lumerin.dll";
    ShowOverModel(0, [&](HeadlessDialog& dialog) {
        for (const int id : {1001, 1002, 1004, 1012, 1014, 1021}) dialog.PressHelp(id);
        EXPECT_EQ(sink.starts.size(), 6U);
        EXPECT_EQ(sink.starts[0].verb, "open");
        EXPECT_EQ(sink.starts[0].file, "\"file:///C:\\Program Files\\Host\\HelpFiles\\Default.htm\"");
        EXPECT_TRUE(sink.messages.empty());
        for (const int id : {1013, 1022, 1037, 1039, 1041, 1}) dialog.PressHelp(id);
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
        EXPECT_EQ(Text(dialog, 1037), "All Load Cases");
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
            for (const int id : {1001, 1002, 1009, 1013, 1022, 1038, 1039}) dialog.Click(id);
            EXPECT_TRUE(dialog.IsOpen());
        });
    }
}

// The host may analyse the bridge again while the dialog is open.
TEST_F(ReportDialogTest, AForceFileThatWasReplacedStopsThePressAndChangesNothingElse) {
    const SampleFolder folder;
    const std::string base = folder.Write("pier"), forces = base + ".vmd";
    const std::string document = base + "_Max_Axial_Forces_Pile_Heads.txt";
    std::ofstream(document) << "earlier";
    Launch(base + ".in", 2, [&](HeadlessDialog& dialog) {
        const auto time = std::filesystem::last_write_time(forces);
        const auto size = std::filesystem::file_size(forces);
        const TableFlags valid = Report(dialog).State().results.valid;
        sink.messages.clear();
        std::filesystem::resize_file(forces, size + 68);
        for (const int id : {IDC_MAX_AXIAL, IDC_PILE_DC, IDC_FULL_REPORT, IDC_CAP_ENVELOPES}) {
            sink.messages.clear();
            ASSERT_TRUE(dialog.Click(id));
            ASSERT_EQ(sink.messages.size(), 1U) << id;
            EXPECT_EQ(sink.messages[0].text, forces +
                                                 ": the file has changed since the project was opened. "
                                                 "Open the project again.");
        }
        EXPECT_TRUE(sink.starts.empty() && sink.calls.empty());
        EXPECT_EQ(std::filesystem::file_size(document), 7U);
        EXPECT_EQ(g_DataSet.m_nPiers, 1);
        EXPECT_EQ(Report(dialog).State().results.valid, valid);
        // With the file that was loaded back in its place the press works.
        std::filesystem::resize_file(forces, size);
        std::filesystem::last_write_time(forces, time);
        sink.messages.clear();
        ASSERT_TRUE(dialog.Click(IDC_MAX_AXIAL));
        EXPECT_TRUE(sink.messages.empty());
        EXPECT_GT(std::filesystem::file_size(document), 1000U);
    });
}

}  // namespace

}  // namespace lumerin
