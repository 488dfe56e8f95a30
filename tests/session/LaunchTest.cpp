// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <thread>

#include "session/ReportControls.h"
#include "support/ReportDialogFixture.h"

namespace lumerin {

namespace {

using headless::HeadlessDialog;

class LaunchTest : public ReportDialogTest {
  protected:
    unsigned Call(const char* input, const char* textA, const char* textB, const char* argument) {
        headless::SetModalDriver([](HeadlessDialog& dialog) { dialog.Click(1); });
        return LaunchLumerin(2, input, "5.2.1", textA, textB, argument);
    }
};

TEST_F(LaunchTest, CloseReturnsOneAndEscReturnsZero) {
    EXPECT_EQ(Launch("", 0, [](HeadlessDialog& dialog) { dialog.Click(1); }), 1U);
    EXPECT_EQ(Launch("", 0, [](HeadlessDialog& dialog) { dialog.PressEscape(); }), 0U);
}

TEST_F(LaunchTest, ACallDuringACallReturnsZeroAndChangesNothingOnAnyThread) {
    const auto again = [] { return LaunchLumerin(0, "/other/q.in", "9.9", "other", "other", "other"); };
    int opened = 0;
    const auto driver = [&](HeadlessDialog& dialog) {
        ++opened;
        backend::BeginWaitCursor();
        EXPECT_EQ(again(), 0U);
        unsigned onThread = 1;
        std::thread([&] { onThread = again(); }).join();
        EXPECT_EQ(onThread, 0U);
        EXPECT_EQ(g_InitialReportFormat, 2);
        EXPECT_EQ(g_InputFilePath, "/nowhere/p.in");
        EXPECT_EQ(g_ProjectBasePath, "/nowhere/p");
        EXPECT_EQ(g_VersionText, "5.2.1");
        EXPECT_EQ(g_HostTextA, "a");
        EXPECT_EQ(g_HostTextB, "b");
        EXPECT_EQ(g_EnvelopePlotArgument, "plot");
        EXPECT_EQ(backend::WaitCursorDepth(), 1);
        dialog.Click(1);
    };
    for (const int calls : {1, 2}) {
        headless::SetModalDriver(driver);
        EXPECT_EQ(LaunchLumerin(2, "/nowhere/p.in", "5.2.1", "a", "b", "plot"), 1U);
        EXPECT_EQ(opened, calls) << "the refused calls leave the way free for the next one";
    }
}

TEST_F(LaunchTest, EachCallStartsWithoutAWaitCursor) {
    const auto leave = [](HeadlessDialog& dialog) {
        EXPECT_EQ(backend::WaitCursorDepth(), 0);
        dialog.Click(IDC_TITLE_PAGE);
        EXPECT_EQ(backend::WaitCursorDepth(), 1);
    };
    // The cover sheet refuses the spreadsheet format and leaves its wait cursor.
    for (int call = 0; call < 2; ++call) Launch("/nowhere/p.in", 0, leave);
}

TEST_F(LaunchTest, StoresItsArguments) {
    Call("/nowhere/p.in", "  \"a b\" ", "\" c \"", "  \"plot\" ");
    EXPECT_EQ(g_InitialReportFormat, 2);
    EXPECT_EQ(g_InputFilePath, "/nowhere/p.in");
    EXPECT_EQ(g_ProjectBasePath, "/nowhere/p");
    EXPECT_EQ(g_ProjectFolder, "/nowhere/");
    EXPECT_EQ(g_ProjectFileName, "p.in");
    EXPECT_EQ(g_VersionText, "5.2.1");
    EXPECT_EQ(g_VersionLabel, "v5.2.1");
    // Blanks surround the quotes, so they are not at the ends when quotes are stripped.
    EXPECT_EQ(g_HostTextA, "\"a b\"");
    EXPECT_EQ(g_HostTextB, "c");
    EXPECT_EQ(g_EnvelopePlotArgument, "\"plot\"");
}

TEST_F(LaunchTest, StripsTheOuterQuotesOfTheFourthAndFifthArgumentAlone) {
    Call("\"/nowhere/p.in\"", "\"\"in\"ner\"\"", "\"", "\"q\"");
    EXPECT_EQ(g_HostTextA, "\"in\"ner\"");
    EXPECT_EQ(g_HostTextB, "");
    EXPECT_EQ(g_EnvelopePlotArgument, "\"q\"");
    // A quoted path keeps its quotes, so what is derived from it is wrong.
    EXPECT_EQ(g_ProjectBasePath, "\"/nowhere/p.");
    EXPECT_EQ(g_ProjectFileName, "p.in\"");
}

TEST_F(LaunchTest, NullTextsCountAsEmpty) {
    headless::SetModalDriver([](HeadlessDialog& dialog) { dialog.Click(1); });
    EXPECT_EQ(LaunchLumerin(0, nullptr, nullptr, nullptr, nullptr, nullptr), 1U);
    EXPECT_EQ(g_InputFilePath, "");
    EXPECT_EQ(g_VersionLabel, "v");
}

TEST_F(LaunchTest, APathOfThreeCharactersOpensNoProject) {
    Launch("abc", 2, [this](HeadlessDialog& dialog) {
        EXPECT_EQ(g_ProjectBasePath, "");
        sink.messages.clear();
        dialog.Click(IDC_MAX_AXIAL);
        ASSERT_EQ(sink.messages.size(), 1U);
        EXPECT_EQ(sink.messages[0].text, "There is currently no input file selected.");
        EXPECT_EQ(sink.messages[0].title, "Lumerin");
    });
}

TEST_F(LaunchTest, APathWithoutAFolderKeepsTheFolderOfTheCallBefore) {
    Call("/first/p.in", "", "", "");
    Call("q.in", "", "", "");
    EXPECT_EQ(g_ProjectFolder, "/first/");
    EXPECT_EQ(g_ProjectFileName, "");
    EXPECT_EQ(g_ProjectBasePath, "q");
    Call("/second/", "", "", "");
    EXPECT_EQ(g_ProjectFolder, "/first/");
    EXPECT_EQ(g_ProjectFileName, "");
}

TEST_F(LaunchTest, TrimsTheModuleNamesCharactersOffTheHostPath) {
    // The trim takes characters, not a suffix: it stops at the separator.
    headless::State().programPath = "C:\\Hosts\\Lumerin.dll";
    Call("", "", "", "");
    EXPECT_EQ(g_HostProgramPath, "C:\\Hosts\\");
    headless::State().programPath = "C:\\Hosts\\Tarnsway.exe";
    Call("", "", "", "");
    EXPECT_EQ(g_HostProgramPath, "C:\\Hosts\\Tarnsway.ex");
}

TEST_F(LaunchTest, TheModelIsReleasedAfterTheDialog) {
    const SampleFolder folder;
    const std::string base = folder.Write("pier");
    Launch(base + ".in", 2, [](HeadlessDialog& dialog) {
        EXPECT_TRUE(Report(dialog).IsProjectLoaded());
        EXPECT_FALSE(g_DataSet.IsPierless());
    });
    EXPECT_TRUE(g_DataSet.IsPierless());
}

// The documents of a run that was killed leave a new file beside them. Each call looks for such files again,
// also in a folder that an earlier call has cleared.
TEST_F(LaunchTest, EachCallRemovesWhatAKilledRunLeft) {
    const SampleFolder folder;
    const std::string input = folder.Write("pier") + ".in";
    const std::filesystem::path left = std::filesystem::path(input).parent_path() / "~00000C.LML";
    for (int call = 0; call < 2; ++call) {
        std::ofstream(left) << "half a document";
        Launch(input, 2, [&](HeadlessDialog& dialog) {
            dialog.Click(IDC_MAX_AXIAL);
            EXPECT_FALSE(std::filesystem::exists(left)) << call;
        });
    }
}

TEST_F(LaunchTest, ASecondCallReadsItsOwnProject) {
    const SampleFolder folder;
    const std::string pier = folder.Write("pier");
    const std::string bent = folder.Write("bent");
    int pierCases = 0;
    Launch(pier + ".in", 2, [&](HeadlessDialog& dialog) {
        EXPECT_EQ(Text(dialog, IDC_CAP_ENVELOPES), "Pier Cap Envelopes");
        pierCases = g_DataSet.m_nLoadCases;
        dialog.Click(IDC_CUSTOM_CASES);
    });
    EXPECT_GT(pierCases, 0);
    Launch(bent + ".in", 2, [](HeadlessDialog& dialog) {
        EXPECT_EQ(Text(dialog, IDC_CAP_ENVELOPES), "Bent Cap Envelopes");
        EXPECT_EQ(g_DataSet.m_nStructureType, kTypePileBent);
        // The choice of the earlier call is not kept.
        EXPECT_TRUE(g_AllLoadCases);
        EXPECT_FALSE(Enabled(dialog, IDC_CHOOSE_CASES));
    });
}

}  // namespace

}  // namespace lumerin
