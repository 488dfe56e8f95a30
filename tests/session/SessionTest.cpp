// SPDX-License-Identifier: MIT
// The session's paths, as they are derived from what the host passes.
#include "session/ReportState.h"
#include "session/Session.h"

#include <gtest/gtest.h>

#include "framework/headless/Headless.h"
#include "session/Constants.h"

namespace lumerin {

namespace {

class Paths : public testing::Test {
  protected:
    void SetUp() override {
        headless::ResetState();
        g_ProjectBasePath = "earlier base";
        g_ProjectFolder = "earlier folder\\";
        g_ProjectFileName = "earlier.in";
    }
    void TearDown() override {
        headless::ResetState();
        for (std::string* text :
             {&g_InputFilePath, &g_ProjectBasePath, &g_ProjectFolder, &g_ProjectFileName}) {
            text->clear();
        }
    }
    static void Derive(const std::string& path) {
        g_InputFilePath = path;
        DerivePaths();
    }
    static void ExpectPaths(const std::string& base, const std::string& folder, const std::string& file) {
        EXPECT_EQ(g_ProjectBasePath, base);
        EXPECT_EQ(g_ProjectFolder, folder);
        EXPECT_EQ(g_ProjectFileName, file);
    }
};

TEST_F(Paths, ComeFromTheInputFile) {
    Derive("C:\\jobs\\river bridge\\pier.in");
    ExpectPaths("C:\\jobs\\river bridge\\pier", "C:\\jobs\\river bridge\\", "pier.in");
}

TEST_F(Paths, AreTheSameWhenDerivedTwice) {
    Derive("C:\\jobs\\pier.in");
    DerivePaths();
    ExpectPaths("C:\\jobs\\pier", "C:\\jobs\\", "pier.in");
}

TEST_F(Paths, OfThreeCharactersOrFewerHaveNoBase) {
    for (const char* path : {"", "n", "in", ".in"}) {
        Derive(path);
        ExpectPaths("", "earlier folder\\", "");
    }
}

TEST_F(Paths, OfFourCharactersHaveABaseOfOne) {
    Derive("p.in");
    EXPECT_EQ(g_ProjectBasePath, "p");
}

TEST_F(Paths, WithoutAFolderKeepTheFolderOfTheCallBefore) {
    Derive("D:\\first\\a.in");
    Derive("b.in");
    ExpectPaths("b", "D:\\first\\", "");
}

TEST_F(Paths, ThatEndInASeparatorHaveNoFileName) {
    Derive("C:\\jobs\\pier\\");
    ExpectPaths("C:\\jobs\\pi", "earlier folder\\", "");
}

// The last three characters go, whatever they are.
TEST_F(Paths, WithALongerExtensionKeepItsRestInTheBase) {
    Derive("C:\\jobs\\pier.input");
    ExpectPaths("C:\\jobs\\pier.in", "C:\\jobs\\", "pier.input");
}

TEST_F(Paths, InQuotesKeepThemAndAreWrong) {
    Derive("\"C:\\jobs\\pier.in\"");
    ExpectPaths("\"C:\\jobs\\pier.", "\"C:\\jobs\\", "pier.in\"");
}

TEST_F(Paths, MayHaveForwardSlashesOnThisPlatform) {
    Derive("/data/jobs/pier.in");
    ExpectPaths("/data/jobs/pier", "/data/jobs/", "pier.in");
    Derive("/data\\mixed/pier.in");
    ExpectPaths("/data\\mixed/pier", "/data\\mixed/", "pier.in");
}

std::string Stripped(std::string text) {
    StripQuotes(text);
    return text;
}

TEST(Quotes, LoseOneFromEachEnd) {
    EXPECT_EQ(Stripped("\"text\""), "text");
    EXPECT_EQ(Stripped("\"\"text\"\""), "\"text\"");
    EXPECT_EQ(Stripped("\"text"), "text");
    EXPECT_EQ(Stripped("text\""), "text");
    EXPECT_EQ(Stripped("te\"xt"), "te\"xt");
    EXPECT_EQ(Stripped(" \"text\" "), " \"text\" ");
}

TEST(Quotes, ASingleOneLeavesNothing) {
    EXPECT_EQ(Stripped("\""), "");
    EXPECT_EQ(Stripped("\"\""), "");
    EXPECT_EQ(Stripped(""), "");
}

// A trim by a set of characters, not the cut of an ending.
TEST(ProgramPaths, LoseCharactersOfTheSetAtTheirEnd) {
    std::string path = "C:\\Tarnsway\\Tarnsway.exe";
    TrimRightCharacters(path, g_ModuleFileName);
    EXPECT_EQ(path, "C:\\Tarnsway\\Tarnsway.ex");  // the "x" is in no "Lumerin.dll"
    TrimRightCharacters(path, g_HostProgramName);
    EXPECT_EQ(path, "C:\\Tarnsway\\");
    TrimRightCharacters(path, "C:\\Tarnswy");
    EXPECT_EQ(path, "");
}

TEST(ProgramPaths, FoldersStopAtTheSeparator) {
    headless::State().programPath = "C:\\Programs\\sway\\Tarnsway.exe";
    headless::State().modulePath = "C:\\Programs\\modules\\Lumerin.dll";
    EXPECT_EQ(HostProgramFolder(), "C:\\Programs\\sway\\");
    EXPECT_EQ(ModuleFolder(), "C:\\Programs\\modules\\");
    headless::ResetState();
}

TEST(ResetSession, ReturnsToTheStartValuesAndSkipsASecondLoad) {
    g_FooterOn = g_FooterDate = g_FooterTime = g_FooterVersion = g_FooterFileName = 1;
    g_ReportFormat = 2;
    g_AllLoadCases = false;
    g_DataLoaded = false;
    ResetSession();
    EXPECT_EQ(g_FooterOn + g_FooterDate + g_FooterTime + g_FooterVersion + g_FooterFileName, 0);
    EXPECT_EQ(g_ReportFormat, 0);
    EXPECT_TRUE(g_AllLoadCases);
    EXPECT_TRUE(g_DataLoaded);
}

// The host may ask for a format that has no radio button; the cells of its tables are those of a PDF.
TEST(SessionOptions, AFormatWithoutANamePassesUnchanged) {
    for (const int format : {7, -1, 3}) {
        g_ReportFormat = format;
        EXPECT_EQ(static_cast<int>(SessionOptions().format), format);
    }
    g_ReportFormat = 0;
}

}  // namespace

}  // namespace lumerin
