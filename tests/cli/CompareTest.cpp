// SPDX-License-Identifier: MIT
#include "cli/CompareCommand.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/ComparePairs.h"
#include "support/ProgramRun.h"
#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

// The fields of the lines; none of the texts has a quotation mark in it.
std::vector<std::vector<std::string>> Fields(const std::string& csv) {
    std::vector<std::vector<std::string>> lines(1);
    std::string field;
    bool quoted = false;
    for (const char letter : csv) {
        if (letter == '"') {
            quoted = !quoted;
        } else if (!quoted && (letter == ',' || letter == '\r')) {
            lines.back().push_back(field);
            field.clear();
        } else if (!quoted && letter == '\n') {
            lines.emplace_back();
        } else {
            field += letter;
        }
    }
    lines.pop_back();
    return lines;
}

// Two runs that are the same at first: D/C 0.875 at the head of pile 2 in case 2.
class CompareTest : public testing::Test {
  protected:
    CompareTest() {
        for (RecordsProject* run : {&before, &after}) {
            run->cases = 3;
            run->Set(1, 3, kRatioJ, 0.875F);
            run->Set(1, 3, kFaxWordJ, -100.0F);
            run->WriteAll();
        }
    }
    ProgramRun Run(const std::vector<std::string>& arguments = {}) const {
        std::vector<std::string> words{"compare"};
        words.insert(words.end(), arguments.begin(), arguments.end());
        words.push_back(before.Base());
        words.push_back(after.Base());
        return RunLumerin(words);
    }
    nlohmann::json Json(const std::vector<std::string>& arguments) const {
        return nlohmann::json::parse(Run(arguments).out);
    }

    RecordsProject before, after;
};

TEST_F(CompareTest, RunsThatAreTheSameAreStatusZero) {
    const ProgramRun outcome = Run();
    EXPECT_EQ(outcome.status, kExitDone);
    EXPECT_THAT(outcome.out, StartsWith(after.Base() + ".in  SAME  0 results are over the tolerances; "));
    EXPECT_THAT(outcome.out,
                HasSubstr("  old  " + before.Base() + ".in  PASS  D/C 0.875  pile 2 head (pile)"));
    EXPECT_THAT(outcome.err, IsEmpty());
}

TEST_F(CompareTest, AFlippedVerdictIsStatusOneAndOnTheFirstLines) {
    after.Set(1, 3, kRatioJ, 1.02F);
    after.Set(1, 3, kFaxWordJ, -120.0F);
    after.WriteAll();
    const ProgramRun outcome = Run({"--table", "pile_axial"});
    EXPECT_EQ(outcome.status, kExitIncomplete);
    EXPECT_THAT(outcome.out, HasSubstr(".in  DIFFERS  1 result is over the tolerances; "));
    EXPECT_THAT(outcome.out, HasSubstr("  verdict: PASS before, FAIL now\n"));
    EXPECT_THAT(outcome.out, HasSubstr("  verdict of pile, substructure 1: PASS before, FAIL now\n"));
    EXPECT_THAT(outcome.out,
                HasSubstr("    1  pile_axial  pile 2  compression kips  -100.00  -120.00  -20.00  "
                          "-16.7  2            and 1 more value\n"));
}

TEST_F(CompareTest, TolerancesAreOptions) {
    after.Set(1, 3, kFaxWordJ, -110.0F);
    after.WriteAll();
    EXPECT_EQ(Run().status, kExitIncomplete);
    EXPECT_EQ(Run({"--rel", "0.1"}).status, kExitDone);
    EXPECT_EQ(Run({"--rel", "0.09"}).status, kExitIncomplete);
    EXPECT_EQ(Run({"--abs-force", "10"}).status, kExitDone);
    EXPECT_EQ(Run({"--abs-moment", "10"}).status, kExitIncomplete);
    EXPECT_EQ(Run({"--abs-force", "-1"}).status, kExitUsage);
    EXPECT_EQ(Run({"--rel", "nan"}).status, kExitUsage);
    // 10 kips are 44.5 kN.
    EXPECT_EQ(Run({"--abs-force", "44", "--units", "si"}).status, kExitIncomplete);
    EXPECT_EQ(Run({"--abs-force", "45", "--units", "si"}).status, kExitDone);
}

TEST_F(CompareTest, JsonHasBothValuesAndBothCases) {
    after.Set(0, 3, kFaxWordJ, -120.0F);
    after.WriteAll();
    const ProgramRun outcome = Run({"--format", "json", "--table", "pile_axial"});
    const nlohmann::json json = nlohmann::json::parse(outcome.out);
    EXPECT_EQ(outcome.status, kExitIncomplete);
    EXPECT_EQ(json["status"], 1);
    EXPECT_EQ(json["differs"], true);
    EXPECT_EQ(json["units"], "us");
    EXPECT_EQ(json["old"]["dc"], 0.875);
    EXPECT_EQ(json["new"]["passes"], true);
    ASSERT_EQ(json["results"].size(), 1U);
    const nlohmann::json& pile = json["results"][0];
    EXPECT_EQ(pile["row"], "pile 2");
    EXPECT_EQ(pile["old_case"]["case"], 2);
    EXPECT_EQ(pile["new_case"]["case"], 1);
    EXPECT_EQ(pile["values"][0]["column"], "compression");
    EXPECT_EQ(pile["values"][0]["old"], -100.0);
    EXPECT_EQ(pile["values"][0]["new"], -120.0);
    EXPECT_EQ(pile["values"][0]["difference"], -20.0);
    EXPECT_EQ(pile["values"][0]["unit"], "kips");
    EXPECT_EQ(json["counts"]["results"], 1);
    EXPECT_EQ(json["version"], ProgramVersion());
    EXPECT_EQ(json["tables_version"], kTablesVersion);
    EXPECT_EQ(json["old"]["findings"].size(), 0U);
}

TEST_F(CompareTest, CsvHasALineForEachValue) {
    after.Set(0, 3, kFaxWordJ, -120.0F);
    after.WriteAll();
    const auto lines = Fields(Run({"--format", "csv", "--table", "pile_axial"}).out);
    ASSERT_EQ(lines.size(), 3U);
    for (const auto& line : lines) EXPECT_EQ(line.size(), lines[0].size());
    EXPECT_EQ(lines[0][0], "project");
    const std::vector<std::string> first(lines[1].begin() + 1, lines[1].begin() + 14);
    EXPECT_THAT(first, ElementsAre("1", "value", "changed", "pile_axial", "pile 2", "compression", "kips",
                                   "-100", "-120", "-20", "-0.16666666666666666", "true", "2"));
    EXPECT_EQ(lines[2][6], "compression_dc");
    EXPECT_EQ(lines[2][9], "0");
}

TEST(ComparePage, HasTheDifferencesAndTheEnvelopesOfBothRuns) {
    const SampleFolder before, after;
    before.Write("pier");
    samples::SampleOptions options;
    options.preset = "pier";
    options.seed = 2;
    after.Write(options);
    before.Write("group");
    const ProgramRun outcome = RunLumerin(
        {"compare", "--format", "html", "--top", "3", before.Path().string(), after.Path().string()});
    EXPECT_EQ(outcome.status, kExitIncomplete);
    EXPECT_THAT(outcome.out, StartsWith("<!DOCTYPE html>"));
    EXPECT_THAT(outcome.out, HasSubstr("<h2>pier.in</h2>"));
    EXPECT_THAT(outcome.out, HasSubstr("<li>verdict: PASS before, FAIL now</li>"));
    EXPECT_THAT(outcome.out,
                HasSubstr("<td>pile 3, extreme</td><td>tension kips</td><td>52.33</td><td>none</td>"));
    EXPECT_THAT(outcome.out, HasSubstr("Cap moment M33 of both runs"));
    EXPECT_THAT(outcome.out, HasSubstr("<li>13 EXTREME-II: Extreme Event II, load position 1</li>"));
    EXPECT_THAT(outcome.out, HasSubstr("is in the old folder alone"));
    EXPECT_THAT(outcome.out, testing::EndsWith("</html>\n"));
}

TEST_F(CompareTest, TopShortensEveryList) {
    for (int r = 1; r <= 4; ++r) after.Set(1, r, kFaxWordJ, -300.0F);
    after.WriteAll();
    EXPECT_THAT(Run({"--top", "1"}).out, HasSubstr(" more (--top 0 lists all)\n"));
    EXPECT_THAT(Run({"--top", "0"}).out, Not(HasSubstr("--top 0")));
    EXPECT_EQ(Json({"--top", "1", "--format", "json"})["results"].size(), 1U);
}

TEST_F(CompareTest, UnsoundDataAreStatusFourAndTheComparisonIsPrinted) {
    std::filesystem::resize_file(after.Path(".vmd"), 14 * 68);
    const ProgramRun outcome = Run();
    EXPECT_EQ(outcome.status, kExitUnsound);
    EXPECT_THAT(outcome.out, HasSubstr("  NOT SOUND\n"));
    EXPECT_THAT(outcome.err, HasSubstr("error: missing-records: p.vmd"));
}

TEST_F(CompareTest, ARunThatCannotBeLoadedIsStatusThree) {
    after.WriteFile(".PLF", "no such bytes");
    const ProgramRun outcome = Run();
    EXPECT_EQ(outcome.status, kExitNotLoaded);
    EXPECT_THAT(outcome.out, HasSubstr(".in  ERROR  "));
    EXPECT_EQ(Json({"--format", "json"})["differs"], nullptr);
    const ProgramRun csv = Run({"--format", "csv"});
    EXPECT_THAT(Fields(csv.out).at(1), testing::Contains("error"));
    EXPECT_THAT(csv.err, HasSubstr("p.PLF"));
    after.Remove(".TWR");
    EXPECT_THAT(Run().out, HasSubstr("no project " + after.Base() + ".in"));
}

TEST_F(CompareTest, WrongUsageIsStatusTwo) {
    EXPECT_EQ(Run({"--cases", "4"}).status, kExitUsage);
    EXPECT_THAT(Run({"--table", "verdit"}).err, HasSubstr("do you mean verdict?"));
    EXPECT_THAT(Run({"--table", "cases"}).err, HasSubstr("\"cases\" is no table of results"));
    EXPECT_THAT(Run({"--format", "jsn"}).err, HasSubstr("do you mean json?"));
    EXPECT_EQ(RunLumerin({"compare", before.Base()}).status, kExitUsage);
    const ProgramRun mixed = RunLumerin({"compare", before.Folder().string(), after.Base()});
    EXPECT_EQ(mixed.status, kExitUsage);
    EXPECT_THAT(mixed.err, HasSubstr(before.Folder().string() + " is a folder, and "));
}

TEST_F(CompareTest, TheOutputGoesToAFile) {
    const std::string file = after.Path("-changes.csv");
    const ProgramRun outcome = Run({"--format", "csv", "-o", file});
    EXPECT_EQ(outcome.out, file + "\n");
    EXPECT_TRUE(std::filesystem::exists(file));
    const ProgramRun nowhere = Run({"-o", after.Path("-none/changes.txt")});
    EXPECT_EQ(nowhere.status, kExitIncomplete);
    EXPECT_THAT(nowhere.err, HasSubstr("lumerin: "));
}

// Capacities are those of the later run, here in kN; the earlier one has kips.
TEST_F(CompareTest, CapacitiesAreInUnitsOfTheLaterRun) {
    after.substructures[0].units = 1;
    after.Set(1, 3, kFaxWordJ, -444.82216F);
    after.WriteAll();
    const nlohmann::json json = Json({"--format", "json", "--pile-compression", "445", "--table", "verdict"});
    EXPECT_EQ(json["verdicts"].size(), 0U);
    EXPECT_EQ(json["results"].size(), 0U);
    EXPECT_EQ(json["old"]["passes"], true);
    EXPECT_EQ(json["new"]["passes"], true);
    const nlohmann::json over = Json({"--format", "json", "--pile-compression", "444", "--table", "verdict"});
    EXPECT_EQ(over["old"]["passes"], false);
    EXPECT_EQ(over["new"]["passes"], false);
}

TEST(ComparePairs, ProjectsOfTwoFoldersAreMatchedByPathThenByName) {
    const ScratchFolder folder;
    for (const char* file :
         {"old/a.in", "old/a.TWR", "old/deep/b.in", "old/gone.in", "old/x/twice.in", "new/a.IN",
          "new/moved/b.in", "new/new.in", "new/y/twice.in", "new/z/twice.in", "new/readme.txt"}) {
        folder.Write(file, "");
    }
    std::vector<std::string> pairs;
    for (const ProjectPair& pair : FindPairs(folder.PathOf("old"), folder.PathOf("new"))) {
        const auto side = [&](const std::optional<ProjectName>& name) {
            return name ? std::filesystem::path(name->basePath).lexically_relative(folder.Path()).string()
                        : "none";
        };
        pairs.push_back(pair.name + ": " + side(pair.before) + " " + side(pair.after));
    }
    EXPECT_THAT(pairs, ElementsAre("a: old/a new/a", "gone: old/gone none", "moved/b: old/deep/b new/moved/b",
                                   "new: none new/new", "x/twice: old/x/twice none",
                                   "y/twice: none new/y/twice", "z/twice: none new/z/twice"));
    std::filesystem::create_directory(folder.PathOf("empty"));
    EXPECT_THROW(FindPairs(folder.PathOf("empty"), folder.PathOf("empty")), std::invalid_argument);
}

TEST(ComparePairs, AFailedPairStopsNoOther) {
    const SampleFolder before, after;
    for (const char* preset : {"bent", "group", "walls"}) {
        before.Write(preset);
        after.Write(preset);
    }
    std::filesystem::remove(after.Base("bent.PLF"));
    std::filesystem::remove(after.Base("walls.in"));
    const ProgramRun outcome = RunLumerin({"compare", before.Path().string(), after.Path().string()});
    EXPECT_EQ(outcome.status, kExitNotLoaded);
    EXPECT_THAT(outcome.out, HasSubstr("bent.in  ERROR  "));
    EXPECT_THAT(outcome.out, HasSubstr("group.in  SAME  "));
    EXPECT_THAT(outcome.out, HasSubstr("walls.in  DIFFERS  is in the old folder alone\n"));
    EXPECT_THAT(outcome.err, HasSubstr("3 projects: 1 the same, 1 different, 1 not loaded\n"));
    EXPECT_EQ(RunLumerin({"compare", before.Path().string(), before.Path().string()}).status, kExitDone);
}

}  // namespace

}  // namespace lumerin
