// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "support/SampleFolder.h"

namespace lumerin {

// The program itself: arguments, exit statuses and streams.

namespace {

using testing::HasSubstr;

struct Answer {
    int status = -1;
    std::string output;  // both streams
};

Answer RunProgram(const std::string& arguments) {
    const std::string command = std::string(LUMERIN_BINARY_DIR) + "/lumerin 2>&1 " + arguments;
    Answer answer;
    std::FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return answer;
    char buffer[4096];
    while (const std::size_t got = std::fread(buffer, 1, sizeof buffer, pipe))
        answer.output.append(buffer, got);
    const int code = pclose(pipe);
    answer.status = WIFEXITED(code) ? WEXITSTATUS(code) : -1;
    return answer;
}

// A copy of the program includes the texts that its licences require.
TEST(Program, TheLicencesAreBesideIt) {
    const auto read = [](const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    for (const char* name : {"/LICENSE", "/THIRD-PARTY-NOTICES.txt"}) {
        const std::string beside = read(LUMERIN_BINARY_DIR + std::string(name));
        EXPECT_FALSE(beside.empty());
        EXPECT_EQ(beside, read(LUMERIN_SOURCE_DIR + std::string(name)));
    }
    const std::string notices = read(LUMERIN_BINARY_DIR + std::string("/THIRD-PARTY-NOTICES.txt"));
    for (const char* words :
         {"Copyright (c) 2009-2016 the mingw-w64 project", "Copyright (c) 1997-2001 Lucent Technologies",
          "Copyright (c) 2010 Lockless Inc.", "GCC RUNTIME LIBRARY EXCEPTION\n\nVersion 3.1, 31 March 2009",
          "University of Cincinnati, developed by Henry Schreiner", "Copyright (c) 2013-2022 Niels Lohmann",
          "6. SQLite (3.40.1)", "Copyright 2014-2021 John McNamara"}) {
        EXPECT_THAT(notices, HasSubstr(words));
    }
}

TEST(Program, HelpAndVersionAreNoFailure) {
    EXPECT_EQ(RunProgram("--help").status, 0);
    EXPECT_EQ(RunProgram("report --help").status, 0);
    EXPECT_THAT(RunProgram("drive --help").output, HasSubstr("SCRIPT"));
    const Answer version = RunProgram("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(version.output,
                testing::ContainsRegex("^lumerin [0-9]+\\.[0-9]+\\.[0-9]+( \\(commit [0-9a-f]{12}\\))?\n$"));
}

TEST(Program, HelpListsEveryAction) {
    const std::string help = RunProgram("drive --help").output;
    for (const char* action :
         {"click ID", "text ID TEXT", "focus ID", "select ID N", "spin ID up|down", "cell ROW COL TEXT",
          "mouse WHAT PLACE", "hover ROW COL", "graph-click X", "answer yes|no", "key NAME", "key F1 ID",
          "type TEXT", "where", "dump", "shot FILE", "again [FILE.in]"}) {
        EXPECT_THAT(help, HasSubstr(action));
    }
}

TEST(Program, HelpListsWhatAnIncompleteReportCanBe) {
    std::string help = RunProgram("report --help").output;
    std::replace(help.begin(), help.end(), '\n', ' ');
    help.erase(std::unique(help.begin(), help.end(), [](char a, char b) { return a == ' ' && b == ' '; }),
               help.end());
    EXPECT_THAT(help,
                HasSubstr("1 a table does not apply, has nothing to show or could not be written whole, "
                          "or a project was loaded with a message 2 wrong usage"));
}

TEST(Program, WrongUsageEndsWithTwo) {
    const SampleFolder folder;
    const std::string project = folder.Write("pier") + ".in ";
    for (const std::string& arguments :
         {std::string(), std::string("print"), std::string("report"), std::string("drive"),
          "report " + project + "--table none", "report " + project + "--format xml",
          "report " + project + "--cases 0", "report " + project + "--footer page",
          "report " + project + "--clock now", "report " + project + "--font-size 0",
          "report " + project + "--unknown", "drive " + project, "drive " + project + "/nowhere/script"}) {
        EXPECT_EQ(RunProgram(arguments).status, 2) << arguments;
    }
}

// Line 4 of the title page. Lines of the unknown viewer font have 142 characters: "Tarnsway Version " is 17
// of them, the text 20, so 105 / 2 = 52 blanks come first, however many bytes the text was on the command
// line.
TEST(Program, TheVersionTextIsUtf8OnTheCommandLineAndInTheCodePageOnTheTitlePage) {
    const SampleFolder folder;
    const std::string base = folder.Write("pier");
    const std::string text =
        "\xC3\x89"
        "dition 4 \xC2\xB1 \xE2\x82\xAC \xE6\xA9\x8B 17";
    EXPECT_EQ(RunProgram("report " + base + ".in --table title --version-text '" + text + "'").status, 0);
    std::ifstream file(base + "_Title Page.txt", std::ios::binary);
    const std::string page(std::istreambuf_iterator<char>(file), {});
    EXPECT_THAT(page, HasSubstr("\n" + std::string(53, ' ') +
                                "Tarnsway Version \xC9"
                                "dition 4 \xB1 \x80 ? 17\r\n"));
}

// What the code page does not have is lost on the way in; the rest comes back as it was given.
TEST(Program, ThePlotModulesArgumentIsInTheCodePage) {
    const SampleFolder folder;
    const std::string script = folder.Base("script");
    const std::string base = folder.Write("pier");
    std::ofstream(script) << "click 1009\n";
    EXPECT_THAT(
        RunProgram("drive " + base + ".in " + script + " --plot-argument '\xC3\xA9\xE6\xA9\x8B'").output,
        HasSubstr(",\"\xC3\xA9?\"]}"));
}

TEST(Program, WhatIsSaidIsUtf8) {
    // "\xC3\xB6" is UTF-8, "\xF6" the same letter in the code page.
    for (const char* word : {"Gr\xC3\xB6\xC3\x9F"
                             "e",
                             "Gr\xF6\xDF"
                             "e"}) {
        EXPECT_THAT(RunProgram(std::string("report p.in --table ") + word).output,
                    HasSubstr("\"Gr\xC3\xB6\xC3\x9F"
                              "e\" is no table"));
        EXPECT_THAT(RunProgram(std::string("report p.in --") + word).output, HasSubstr("--Gr\xC3\xB6\xC3\x9F"
                                                                                       "e"));
        EXPECT_THAT(RunProgram(std::string("drive p.in /nowhere/") + word).output,
                    HasSubstr("/nowhere/Gr\xC3\xB6\xC3\x9F"
                              "e could not be read"));
    }
}

TEST(Program, ReportsDrivesAndNamesWhatWentWrong) {
    const SampleFolder folder;
    const std::string base = folder.Write("pier");
    const Answer report =
        RunProgram("report " + base + ".in --table axial --clock 2026-11-14T08:30:00 2>/dev/null");
    EXPECT_EQ(report.status, 0);
    EXPECT_EQ(report.output, base + "_Max_Axial_Forces_Pile_Heads.txt\n");
    EXPECT_EQ(RunProgram("report " + base + ".in /nowhere/q.in --table axial").status, 3);
    const std::string script = folder.Base("script");
    std::ofstream(script) << "key Esc\n";
    const Answer drive = RunProgram("drive " + base + ".in " + script + " --format pdf");
    EXPECT_EQ(drive.status, 0);
    EXPECT_EQ(drive.output, "{\"dialog\":\"Lumerin Generator\"}\n{\"result\":0}\n");
    EXPECT_EQ(RunProgram("drive " + base + ".in - < " + script).output, drive.output);
    std::ofstream(script) << "jump 5\n";
    EXPECT_EQ(RunProgram("drive " + base + ".in " + script).status, 2);
}

}  // namespace

}  // namespace lumerin
