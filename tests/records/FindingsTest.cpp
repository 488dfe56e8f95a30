// SPDX-License-Identifier: MIT
#include "records/Findings.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <limits>

#include "records/FindingAdvice.h"
#include "support/RecordsProject.h"
#include "text/Format.h"

namespace lumerin {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

std::vector<std::string> Lines(const Evaluation& evaluation) {
    std::vector<std::string> lines;
    for (const Finding& finding : evaluation.Findings()) lines.push_back(LineOf(finding));
    return lines;
}

std::vector<std::string> Codes(const Evaluation& evaluation) {
    std::vector<std::string> codes;
    for (const Finding& finding : evaluation.Findings()) codes.push_back(finding.code);
    return codes;
}

// As many cases were analysed as the pile model file of these projects says, three; all converged.
class FindingsTest : public testing::Test {
  protected:
    FindingsTest() {
        project.cases = 3;
        project.Set(0, 1, kRatioJ, 0.5F);
    }
    RecordsProject project;
};

TEST_F(FindingsTest, AWholeProjectHasNone) {
    project.WriteAll();
    EXPECT_THAT(Codes(project.Evaluate()), IsEmpty());
}

// Twelve whole records are five of case 1, five of case 2, and the two of pile 1 in case 3; the fourth is
// cut.
TEST_F(FindingsTest, MissingRecordsAreCountedWithTheFirst) {
    project.WriteAll();
    std::filesystem::resize_file(project.Path(".vmd"), 12 * 68 + 67);
    const Evaluation& evaluation = project.Evaluate();
    EXPECT_THAT(
        Lines(evaluation),
        ElementsAre("error: missing-records: p.vmd: 3 force records are missing at the end of the file; "
                    "tables show the forces of earlier records (first: case 3, element 4)"));
    EXPECT_TRUE(HasError(evaluation.Findings()));
    // No force is read for it.
    EXPECT_THAT(Codes(project.Evaluate(TableNeeds{})), ElementsAre("missing-records"));
}

TEST_F(FindingsTest, ForcesThatAreNotFiniteAreCountedWithTheFirst) {
    project.Set(1, 3, kF22WordI, kNan);
    project.Set(2, 5, kFaxWordJ, std::numeric_limits<float>::infinity());
    project.WriteAll();
    EXPECT_THAT(Lines(project.Evaluate()),
                ElementsAre("error: not-finite: p.vmd: 2 forces are not finite (first: case 2, element 4, "
                            "end I, F22)"));
    EXPECT_THAT(Codes(project.Evaluate(TableNeeds{})), IsEmpty());
}

TEST_F(FindingsTest, RatiosThatZeroReplacesAreCounted) {
    project.Set(0, 2, kRatioI, kNan);
    project.WriteAll();
    EXPECT_THAT(
        Lines(project.Evaluate()),
        ElementsAre("error: replaced-ratios: p.vmd: 1 D/C ratio is not a finite number; tables show 0 "
                    "(first: case 1, element 3, end I, D/C)"));
}

TEST_F(FindingsTest, AProjectWithoutAnyRatioIsReported) {
    project.Set(0, 1, kRatioJ, 0.0F);
    project.WriteAll();
    EXPECT_THAT(Codes(project.Evaluate()), ElementsAre("all-ratios-zero"));
    EXPECT_FALSE(HasError(project.Evaluate().Findings()));
}

TEST_F(FindingsTest, CombinationsWithoutTheirFilesAreReported) {
    project.substructures[0].codeFamily = kFamilyLrfd;
    project.WriteAll();
    EXPECT_THAT(Codes(project.Evaluate()), ElementsAre("no-titles", "no-limit-states"));
    EXPECT_TRUE(HasError(project.Evaluate().Findings()));
    project.WriteFile(".CMB", "");
    project.WriteLimitStates("101 1 3\n");
    EXPECT_THAT(Codes(project.Evaluate()), IsEmpty());
}

// 201 is a limit state of AASHTO-LFD, 999 of no code.
TEST_F(FindingsTest, CasesWithoutAKnownLimitStateAreCounted) {
    project.substructures[0].codeFamily = kFamilyLrfd;
    project.cases = 3;
    project.WriteAll();
    project.WriteFile(".CMB", "");
    project.WriteLimitStates("201 1 1\n999 2 1\n");
    EXPECT_THAT(
        Lines(project.Evaluate()),
        ElementsAre("error: case-without-limit-state: p.LIM: 1 case has no limit state (first: case 3)",
                    "error: unknown-limit-state: p.LIM: 2 cases have limit states that the design code "
                    "does not have (first: case 1)"));
}

TEST_F(FindingsTest, CasesThatDidNotConvergeAreCounted) {
    project.cases = 1;
    project.WriteAll();
    EXPECT_THAT(Lines(project.Evaluate()), ElementsAre("warning: unconverged-cases: p.ncv: 1 of 3 cases "
                                                       "converged; the others are in no table"));
}

TEST_F(FindingsTest, ResultsThatAreOlderThanTheInputByMoreThanTwoMinutesAreNoted) {
    using namespace std::chrono_literals;
    project.WriteAll();
    const auto written = std::filesystem::last_write_time(project.Path(".vmd"));
    std::filesystem::last_write_time(project.Path(".in"), written + 110s);
    EXPECT_THAT(Codes(project.Evaluate()), IsEmpty());
    std::filesystem::last_write_time(project.Path(".in"), written + 130s);
    EXPECT_THAT(Lines(project.Evaluate()),
                ElementsAre("note: old-results: p.vmd: the results are older than the input file"));
}

TEST_F(FindingsTest, AProjectWithoutItsInputFileIsWarnedOf) {
    project.WriteAll();
    project.Remove(".in");
    EXPECT_THAT(Lines(project.Evaluate()),
                ElementsAre("warning: no-input: p.in: the project has no input file"));
}

// A pier of two columns whose sections give no width.
TEST_F(FindingsTest, SupportsWithoutAWidthAreCounted) {
    project.substructures[0] = MakePier();
    project.WriteAll();
    EXPECT_THAT(
        Lines(project.Evaluate()),
        Contains("warning: no-width: p.MIS: 2 supports of the cap have no width; its faces are at its "
                 "centreline (first: support 1)"));
}

TEST_F(FindingsTest, IncompleteTrialsOfTheStudyAreCounted) {
    project.WriteAll();
    project.WriteFile(".in", "PROBLEM\n1\n2\n3\n4\n5\n6\n7\n8\nMPTE\nM= 1\n");
    project.WriteFile(".PEL", "1 3 0 2 20.0\nEOF\n");
    EXPECT_THAT(Codes(project.Evaluate()), ElementsAre("incomplete-trials"));
    EXPECT_EQ(project.Evaluate().Findings()[0].text, "2 of 3 trials of the embedment study are incomplete");
    EXPECT_EQ(project.Evaluate().Findings()[0].firstPlace, "trial 2");
}

// Rows "| `code` | severity | words |" of the user guide.
TEST(FindingAdvice, HasTheWordsOfTheUserGuide) {
    std::ifstream guide(LUMERIN_SOURCE_DIR "/docs/user-guide.md");
    int rows = 0;
    for (std::string line; std::getline(guide, line);) {
        if (!line.starts_with("| `") || line.find("` | ") == std::string::npos) continue;
        const std::string code = line.substr(3, line.find("` | ") - 3);
        const std::string rest = line.substr(line.find("` | ") + 4);
        const std::string severity = rest.substr(0, rest.find(' '));
        if (severity != "error" && severity != "warning" && severity != "note") continue;
        const std::string words = rest.substr(severity.size() + 3, rest.size() - severity.size() - 5);
        EXPECT_EQ(AdviceOn(code), ReplaceAll(words, "`", "")) << code;
        ++rows;
    }
    EXPECT_EQ(rows, 13);
    EXPECT_EQ(AdviceOn("no-such-code"), "");
}

}  // namespace

}  // namespace lumerin
