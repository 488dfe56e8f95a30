// SPDX-License-Identifier: MIT
// Combinations, limit states and the keyed files.
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <set>

#include "ProjectReader.h"
#include "samples/LoadCases.h"
#include "support/SampleFolder.h"

namespace lumerin {

using samples::CodeFamily;
using samples::DistributeLimitStates;
using samples::LoadClass;

namespace {

std::vector<int> Codes(const std::vector<samples::LimitRow>& rows) {
    std::vector<int> codes;
    for (const auto& row : rows) codes.push_back(row.state.code);
    return codes;
}

TEST(LimitStates, FourCasesReachAllFourClasses) {
    EXPECT_EQ(Codes(DistributeLimitStates(CodeFamily::Lrfd, 4)), (std::vector<int>{101, 106, 108, 112}));
}

TEST(LimitStates, TwoCasesReachBothRailwayClasses) {
    EXPECT_EQ(Codes(DistributeLimitStates(CodeFamily::Arema, 2)), (std::vector<int>{301, 311}));
}

// 27 cases over 13 limit states: 3 for the first, 2 for the others; a number is left out after every second
// of three.
TEST(LimitStates, CasesAreSharedOutAndNumbersJump) {
    const auto rows = DistributeLimitStates(CodeFamily::Lrfd, 27);
    ASSERT_EQ(rows.size(), 13U);
    EXPECT_EQ(rows[0].count, 3);
    EXPECT_EQ(rows[1].count, 2);
    EXPECT_EQ(rows[0].firstNumber, 1);
    EXPECT_EQ(rows[1].firstNumber, 4);
    EXPECT_EQ(rows[2].firstNumber, 8);
    int sum = 0;
    for (const auto& row : rows) sum += row.count;
    EXPECT_EQ(sum, 27);
}

TEST(LimitStates, PlainCasesHaveNone) {
    EXPECT_TRUE(DistributeLimitStates(CodeFamily::None, 5).empty());
}

// As the readers do: a bracket line within four lines, then the title.
int CountTitles(const std::vector<std::string>& lines) {
    int titles = 0;
    for (std::size_t at = 0; at < lines.size();) {
        std::size_t tries = 0;
        while (tries < 4 && at < lines.size() && lines[at].rfind("[Comb.", 0) != 0) ++at, ++tries;
        if (tries == 4) return -1;
        if (at >= lines.size()) break;
        if (at + 1 >= lines.size() || lines[at + 1].empty()) return -1;
        ++titles;
        at += 2;
    }
    return titles;
}

TEST(CombinationFiles, HoldOneTitleAndOneLimitStateForEveryCase) {
    const SampleFolder folder;
    for (const char* preset : {"pier", "bent", "walls", "bridge"}) {
        for (int cases : {1, 7, 100}) {
            samples::SampleOptions options;
            options.preset = preset;
            options.cases = cases;
            const std::string base = folder.Write(options);
            EXPECT_EQ(CountTitles(reader::ReadLines(base + ".CMB")), cases) << preset;
            const auto lines = reader::ReadLines(base + ".LIM");
            EXPECT_EQ(lines.at(1).rfind("A= 1 ", 0), 0U);
            EXPECT_EQ(lines.back(), ":");
            int sum = 0;
            for (std::size_t i = 4; i + 1 < lines.size(); ++i) {
                int count = 0;
                const auto blank = lines[i].rfind(' ') + 1;
                std::from_chars(lines[i].data() + blank, lines[i].data() + lines[i].size(), count);
                sum += count;
            }
            EXPECT_EQ(sum, cases) << preset;
        }
    }
}

TEST(CombinationFiles, EverySubstructureNamesTheFamily) {
    const SampleFolder folder;
    const std::pair<const char*, int> families[] = {{"pier", 0}, {"bridge", 1}, {"bent", 2}};
    for (const auto& [preset, family] : families) {
        const std::string base = folder.Write(preset);
        const int count = reader::Int(reader::Records(reader::ReadAll(base + ".TWR")).at(0), 0);
        for (int k = 0; k < count; ++k) {
            const auto records = reader::Records(reader::ReadAll(base + reader::Suffix(".ash", k)));
            ASSERT_EQ(records.size(), 3U);
            EXPECT_EQ(reader::Int(records[0], 0), family);
            EXPECT_EQ(records[1].size(), 72U);
            EXPECT_EQ(records[2].size(), 216U);
        }
    }
}

TEST(CombinationFiles, PlainCasesAndTimeStepsHaveNone) {
    const SampleFolder folder;
    for (const char* preset : {"group", "history"}) {
        const std::string base = folder.Write(preset);
        for (const char* suffix : {".ash", ".CMB", ".LIM", ".PEL"}) {
            EXPECT_FALSE(std::filesystem::exists(base + suffix)) << preset << suffix;
        }
    }
}

TEST(Convergence, HistoryConsistsOfTimeSteps) {
    const SampleFolder folder;
    const auto records = reader::Records(reader::ReadAll(folder.Write("history") + ".ncv"));
    ASSERT_EQ(records.size(), 7U);
    EXPECT_EQ(records[1].size(), 16U);
    EXPECT_EQ(reader::Int(records[4], 0), 1);
    EXPECT_EQ(reader::Int(reader::Records(reader::ReadAll(folder.Write("pier") + ".ncv"))[4], 0), 0);
}

// After "PROBLEM" nine lines are skipped, the ninth of which may be the section's.
bool StudyRequested(const std::vector<std::string>& lines) {
    const auto problem = std::find(lines.begin(), lines.end(), "PROBLEM");
    if (lines.end() - problem < 10) return false;
    const auto section = std::find(problem + 9, lines.end(), "MPTE");
    return section != lines.end() && section + 1 != lines.end() && *(section + 1) == "M= 1";
}

TEST(Input, AsksForTheStudyInThePierAlone) {
    const SampleFolder folder;
    for (const char* preset : {"pier", "bent", "group", "walls", "bridge", "history"}) {
        const auto lines = reader::ReadLines(folder.Write(preset) + ".in");
        EXPECT_EQ(StudyRequested(lines), std::string(preset) == "pier") << preset;
        EXPECT_NE(std::find(lines.begin(), lines.end(), "MPTE"), lines.end()) << preset;
    }
}

// A block is its title line, "N=", "C= B= R=" and as many data lines as these three require.
TEST(KeyedFile, SectionBlocksHaveTheLinesTheirFlagsAskFor) {
    const SampleFolder folder;
    for (const char* preset : {"pier", "bent", "group", "walls", "bridge", "history"}) {
        const std::string base = folder.Write(preset);
        const auto lines = reader::ReadLines(base + ".MIS");
        auto line = std::find(lines.begin(), lines.end(), "PIERXSEC") + 2;
        const int count = reader::Int(reader::Records(reader::ReadAll(base + ".TWR")).at(0), 0);
        for (int k = 0; k < count; ++k) {
            const auto model = reader::ReadModel(base, k);
            const std::string flags = *(line + 2);
            int expected = flags.rfind("C= 0", 0) == 0 ? 1 : model.columnNodes + 1;
            if (model.columns > 1 && model.type != 4) ++expected;  // every preset has one line for its spans
            const bool each = flags.find("R= 1") != std::string::npos;
            if (model.cantilevers > 0) expected += each ? 2 * (model.cantileverNodes + 1) : 1;
            EXPECT_EQ(*(line + 1), "N= " + std::to_string(expected)) << preset;
            for (int i = 0; i < expected; ++i) EXPECT_EQ((line + 3 + i)->rfind("  S= ", 0), 0U) << preset;
            line += 3 + expected;
        }
        EXPECT_EQ(*line, ":") << preset;
    }
}

TEST(KeyedFile, TextsComeWithTheirLength) {
    const SampleFolder folder;
    const auto lines = reader::ReadLines(folder.Write("pier") + ".MIS");
    const auto section = std::find(lines.begin(), lines.end(), "PROJECTDATA");
    ASSERT_NE(section, lines.end());
    EXPECT_EQ(*(section + 1), "L= 24 N= Mill Road over Ash Creek");
    const char* keys[] = {" N= ", " D= ", " T= ", " C= "};
    for (int i = 0; i < 4; ++i) EXPECT_NE((section + 1 + i)->find(keys[i]), std::string::npos);
}

TEST(KeyedFile, LinesStayBelowTheReadersLimit) {
    const SampleFolder folder;
    for (const char* preset : {"pier", "bridge"}) {
        const std::string base = folder.Write(preset);
        for (const char* suffix : {".MIS", ".LIM", ".CMB", ".in"}) {
            for (const auto& line : reader::ReadLines(base + suffix)) EXPECT_LT(line.size(), 127U);
        }
    }
}

}  // namespace

}  // namespace lumerin
