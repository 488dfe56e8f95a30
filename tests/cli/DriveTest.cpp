// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/DriveCommand.h"
#include "framework/headless/Headless.h"
#include "session/ReportControls.h"
#include "session/Session.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using nlohmann::json;
using testing::HasSubstr;

class DriveTest : public testing::Test {
  protected:
    DriveTest() { headless::ResetState(); }
    ~DriveTest() override { headless::ResetState(); }

    ExitStatus Drive(const std::string& project, const std::string& script, int format = 2) {
        DriveOptions options;
        options.project = project;
        options.format = format;
        options.common.version = "5.2.1";
        out.str("");
        err.str("");
        const ExitStatus status = DriveScript(options, script, out, err);
        lines.clear();
        std::istringstream text(out.str());
        for (std::string line; std::getline(text, line);) lines.push_back(line);
        return status;
    }
    json Control(int id) const {
        json found;
        for (const std::string& line : lines) {
            if (line.front() != '{') continue;
            json object = json::parse(line);
            if (object.contains("id") && object["id"] == id) found = object;
        }
        return found;
    }

    SampleFolder folder;
    std::ostringstream out, err;
    std::vector<std::string> lines;
};

TEST_F(DriveTest, ReportsDialogViewerStartAndResultInOrder) {
    const std::string base = folder.Write("pier");
    EXPECT_EQ(Drive(base + ".in", "click 1020\nclick 1004\n"), kExitDone);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0], "{\"dialog\":\"Lumerin Generator\"}");
    EXPECT_EQ(lines[1], "{\"open\":\"" + base + "_Max_Axial_Forces_Pile_Heads.txt\",\"program\":\"\"}");
    EXPECT_EQ(lines[2], "{\"result\":1}");
    EXPECT_EQ(err.str(), "");
}

TEST_F(DriveTest, DumpsTheNamedControlsInResourceOrder) {
    const std::string base = folder.Write("pier");
    Drive(base + ".in", "dump\n", 0);
    ASSERT_EQ(lines.size(), 29U);  // 27 controls of the 31 have an identifier
    EXPECT_THAT(lines[1], HasSubstr("{\"id\":1041,\"kind\":\"group\""));
    EXPECT_THAT(lines[27], HasSubstr("{\"id\":2,\"kind\":\"button\",\"text\":\"Cancel\""));
    EXPECT_EQ(Control(IDC_FORMAT_EXCEL)["checked"], true);
    EXPECT_EQ(Control(IDC_MAX_AXIAL).contains("checked"), false);
}

// Without a footer its parts are hidden; what they hold stays.
TEST_F(DriveTest, DumpsWhatEachControlShows) {
    Drive(folder.Write("pier") + ".in", "click 1015\ndump\n");
    EXPECT_EQ(Control(IDC_FOOTER_DATE).dump(),
              R"({"checked":true,"enabled":true,"id":1017,"kind":"check","text":"Date","visible":false})");
    EXPECT_EQ(Control(IDC_FOOTER)["checked"], false);
    EXPECT_EQ(Control(IDC_FOOTER)["visible"], true);
    EXPECT_EQ(Control(IDC_CHOOSE_CASES)["enabled"], false);
    EXPECT_EQ(Control(IDC_CHOOSE_CASES)["visible"], true);
}

TEST_F(DriveTest, ADisabledOrHiddenControlRefuses) {
    EXPECT_EQ(Drive(folder.Write("pier") + ".in",
                    "click 1039\nclick 2\nclick 77\nshot a.png\ncell 1 1 0\ntext 1004 a\n"),
              kExitIncomplete);
    const std::vector<std::string> refused{lines.begin() + 1, lines.end() - 1};
    EXPECT_THAT(refused, testing::ElementsAre(R"({"refused":"1039"})", R"({"refused":"2"})",
                                              R"({"refused":"77"})", R"({"refused":"shot"})",
                                              R"({"refused":"cell 1 1"})", R"({"refused":"1004"})"));
}

TEST_F(DriveTest, CharactersAfterOneThatShowsAMessageAreLost) {
    Drive(folder.Write("pier") + ".in", "click 1022\nfocus 1025\ntype 992\nwhere\n");
    // 9 is a case, 99 is not; the 2 is typed into the message box.
    ASSERT_GE(lines.size(), 4U);
    EXPECT_THAT(lines[2], HasSubstr("Invalid load case."));
    EXPECT_EQ(lines[3], "{\"focus\":1025,\"text\":\"9\",\"selection\":[0,0]}");
}

TEST_F(DriveTest, EscGivesZeroAndCloseOne) {
    const std::string project = folder.Write("pier") + ".in";
    Drive(project, "key Esc\n");
    EXPECT_EQ(lines.back(), "{\"result\":0}");
    Drive(project, "click 1\n");
    EXPECT_EQ(lines.back(), "{\"result\":1}");
    Drive(project, "");
    EXPECT_EQ(lines.back(), "{\"result\":1}");
}

TEST_F(DriveTest, ActionsAfterTheLastDialogAreReportedAndNotPlayed) {
    EXPECT_EQ(Drive(folder.Write("pier") + ".in", "key Esc\nclick 1004\n"), kExitDone);
    EXPECT_THAT(err.str(), HasSubstr("script line 2"));
    EXPECT_EQ(lines.size(), 2U);
}

TEST_F(DriveTest, TheHostsTextsAreArguments) {
    const std::string base = folder.Write("pier");
    DriveOptions options;
    options.project = base + ".in";
    options.common.version = "5.2.1";
    options.textA = " \"first\" ";
    options.textB = "\"second\"";
    options.plotArgument = "  \"wide plot\" 3 ";
    DriveScript(options, "click 1009\n", out, err);
    // Blanks go at both ends of each, quotes at the ends of the first two, and only those at the end.
    EXPECT_EQ(g_HostTextA, "\"first\"");
    EXPECT_EQ(g_HostTextB, "second");
    EXPECT_THAT(out.str(), HasSubstr("_Envelopes.txt\",\"Shear\",\"STRENGTH\",\"5.2.1\",\"0\",\"0\","
                                     "\"\\\"wide plot\\\" 3\"]}"));
}

TEST_F(DriveTest, ABadLineEndsBeforeTheFirstAction) {
    const std::string base = folder.Write("pier");
    EXPECT_EQ(Drive(base + ".in", "click 1004\npush 1005\n"), kExitUsage);
    EXPECT_THAT(err.str(), HasSubstr("script line 2: unknown action push"));
    EXPECT_EQ(out.str(), "");
    EXPECT_FALSE(std::filesystem::exists(base + "_Max_Axial_Forces_Pile_Heads.txt"));
}

TEST_F(DriveTest, QuestionsGetTheAnswersOfTheScript) {
    const std::string base = folder.Write("pier");
    Drive(base + ".in", "answer no\nclick 1013\nanswer yes\nclick 1013\n");
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_THAT(lines[1], HasSubstr("Do you wish to change the format to EXCEL?"));
    EXPECT_THAT(lines[1], HasSubstr("\"icon\":\"question\""));
    EXPECT_THAT(lines[2], HasSubstr("Do you wish"));
    EXPECT_EQ(lines[3],
              "{\"open\":\"" + base + "_Axial_Pile_Heads_EachLoadCase.xml\",\"program\":\"Excel\"}");
}

TEST_F(DriveTest, TheLoadCaseDialogTakesTheActionsUntilItCloses) {
    const std::string project = folder.Write("pier") + ".in";
    Drive(project, "click 1038\nclick 1039\nclick 1047\ncell 2 1 1\ndump\nclick 1\nclick 1037\ndump\n");
    EXPECT_EQ(lines[0], "{\"dialog\":\"Lumerin Generator\"}");
    EXPECT_EQ(lines[1], "{\"dialog\":\"Choose Load Combinations\"}");
    EXPECT_THAT(lines, testing::Contains("{\"row\":0,\"cells\":[\"Load Comb\",\"Include\"]}"));
    EXPECT_THAT(lines, testing::Contains("{\"row\":1,\"cells\":[\"1\",\"0\"]}"));
    EXPECT_THAT(lines, testing::Contains("{\"row\":2,\"cells\":[\"2\",\"1\"]}"));
    EXPECT_EQ(Control(IDC_ALL_CASES)["checked"], true);
    EXPECT_EQ(Control(IDC_CHOOSE_CASES)["enabled"], false);
}

TEST_F(DriveTest, AScriptThatEndsInAnInnerDialogClosesBoth) {
    const std::string project = folder.Write("pier") + ".in";
    EXPECT_EQ(Drive(project, "click 1038\nclick 1039\nclick 1047\n"), kExitDone);
    EXPECT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines.back(), "{\"result\":1}");
}

TEST_F(DriveTest, ABrokenProjectLeavesTheDialogToBeDriven) {
    const std::string base = folder.Write("pier");
    std::filesystem::resize_file(base + ".PLF", 10);
    EXPECT_EQ(Drive(base + ".in", "dump\nclick 1004\n"), kExitNotLoaded);
    EXPECT_THAT(lines.front(), HasSubstr(base + ".PLF: "));
    EXPECT_EQ(lines[1], "{\"dialog\":\"Lumerin Generator\"}");
    EXPECT_EQ(Control(IDC_COLUMN_DC)["enabled"], true);
    EXPECT_EQ(Control(IDC_ALL_CASES)["text"], "All Load Cases");
    EXPECT_THAT(lines[lines.size() - 2], HasSubstr("There are no results to view."));
    EXPECT_EQ(lines.back(), "{\"result\":1}");
}

TEST_F(DriveTest, WithoutAProjectTheTablesRefuse) {
    EXPECT_EQ(Drive("", "click 1004\n"), kExitDone);
    EXPECT_THAT(out.str(), HasSubstr("{\"message\":\"There is currently no input file selected.\","
                                     "\"title\":\"Lumerin\",\"icon\":\"exclamation\"}"));
}

TEST_F(DriveTest, HelpAndThePlotModuleAreReported) {
    const std::string base = folder.Write("bent");
    Drive(base + ".in", "key F1 1001\nkey F1 1013\nclick 1009\n", 0);
    EXPECT_THAT(lines[1], HasSubstr("{\"open\":\"file:///"));
    EXPECT_THAT(lines[2], HasSubstr("No Help Manual topic exists for this control."));
    EXPECT_THAT(lines[3],
                HasSubstr("{\"module\":\"Sorvane.dll\",\"arguments\":[0,\"" + base + "_Envelopes.txt\","));
}

// The second call starts afresh: all footer boxes are checked again, and the first call's result comes first.
TEST_F(DriveTest, AgainEndsTheCallAndMakesAnother) {
    const std::string base = folder.Write("pier");
    folder.Write("bent");
    EXPECT_EQ(Drive(base + ".in", "click 1015\nkey Esc\nagain\ndump\nagain bent.in\ndump\n", 1), kExitDone);
    ASSERT_GE(lines.size(), 4U);
    EXPECT_EQ(lines[1], "{\"result\":0}");
    EXPECT_EQ(lines[2], lines[0]);
    EXPECT_EQ(Control(IDC_FOOTER)["checked"], true);
    EXPECT_EQ(Control(IDC_CAP_SHEAR)["text"],
              "Bent Cap Shear Design");  // the last dump is the other project's
    EXPECT_EQ(lines.back(), "{\"result\":1}");
    EXPECT_EQ(err.str(), "");
}

TEST_F(DriveTest, AgainInAnInnerDialogClosesBothFirst) {
    const std::string base = folder.Write("pier");
    EXPECT_EQ(Drive(base + ".in", "click 1038\nclick 1039\nagain\nclick 1\n"), kExitDone);
    const std::vector<std::string> wanted = {"{\"dialog\":\"Lumerin Generator\"}",
                                             "{\"dialog\":\"Choose Load Combinations\"}", "{\"result\":1}",
                                             "{\"dialog\":\"Lumerin Generator\"}", "{\"result\":1}"};
    EXPECT_EQ(lines, wanted);
}

TEST_F(DriveTest, WithoutThePlotModuleThePressIsReported) {
    DriveOptions options;
    options.project = folder.Write("pier") + ".in";
    options.format = 2;
    options.hasPlotModule = false;
    DriveScript(options, "click 1009\n", out, err);
    EXPECT_THAT(out.str(), HasSubstr("Pier Cap Envelopes could not be displayed.  Please contact Ovrelle."));
    EXPECT_THAT(out.str(), testing::Not(HasSubstr("Sorvane.dll")));
}

TEST_F(DriveTest, TheSameScriptGivesTheSameOutputTwice) {
    const std::string project = folder.Write("bridge") + ".in";
    const std::string script = "click 1020\nclick 1001\nclick 1019\nclick 1015\nclick 1001\ndump\n";
    Drive(project, script, 0);
    const std::string first = out.str();
    Drive(project, script, 0);
    EXPECT_EQ(out.str(), first);
}

}  // namespace

}  // namespace lumerin
