// SPDX-License-Identifier: MIT
#include "cli/CheckCommand.h"

#include <gmock/gmock.h>

#include <cmath>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/CheckReport.h"
#include "support/ProgramRun.h"
#include "support/RecordsProject.h"

namespace lumerin {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

ProgramRun Check(CheckRequest request, const std::vector<std::string>& projects) {
    for (const std::string& project : projects) request.projects.emplace_back(project);
    return RunCommand([&](std::ostream& out, std::ostream& err) { return RunCheck(request, out, err); });
}

CheckRequest As(CheckFormat format) {
    CheckRequest request;
    request.format = format;
    return request;
}

// Its pile 2 has D/C 0.875 at its head in case 2; all three cases converged.
class CheckTest : public testing::Test {
  protected:
    CheckTest() {
        project.cases = 3;
        project.Set(1, 3, kRatioJ, 0.875F);
        project.Set(1, 3, kFaxWordJ, -100.0F);
        project.WriteAll();
    }
    RecordsProject project;
};

TEST_F(CheckTest, TheFirstLineIsTheVerdict) {
    const ProgramRun outcome = Check({}, {project.Base()});
    EXPECT_EQ(outcome.status, kExitDone);
    EXPECT_THAT(outcome.out, testing::StartsWith(project.Base() +
                                                 ".in  PASS  D/C 0.875  pile 2 head (pile, substructure 1)  "
                                                 "case 2  limit 1\n"));
    EXPECT_THAT(outcome.err, IsEmpty());
}

TEST_F(CheckTest, OverTheLimitIsStatusOneAndMarked) {
    CheckRequest request;
    request.limits.ratio = 0.8;
    const ProgramRun outcome = Check(request, {project.Base() + ".in"});
    EXPECT_EQ(outcome.status, kExitIncomplete);
    EXPECT_THAT(outcome.out, HasSubstr("  FAIL  D/C 0.875"));
    EXPECT_THAT(outcome.out, HasSubstr("  over    1  pile "));
    EXPECT_THAT(outcome.out, HasSubstr("substructure 1, pile: 1 of 8 element ends are over the limit"));
}

// 1.0000001 is over a limit of 1, and three decimals would say 1.000.
TEST_F(CheckTest, ARatioJustOverTheLimitIsShownWithAllItsDigits) {
    EXPECT_EQ(RatioText(std::nextafter(1.0F, 2.0F), 1.0), "1.0000001");
    EXPECT_EQ(RatioText(1.0, 1.0), "1.000");
    EXPECT_EQ(RatioText(0.9996F, 1.0), "1.000");
    EXPECT_EQ(RatioText(0.9496F, 0.9498), "0.9496");
}

TEST_F(CheckTest, UnsoundDataAreStatusFourAndTheVerdictIsPrinted) {
    std::filesystem::resize_file(project.Path(".vmd"), 14 * 68);
    const ProgramRun outcome = Check({}, {project.Base()});
    EXPECT_EQ(outcome.status, kExitUnsound);
    EXPECT_THAT(outcome.out, HasSubstr("  PASS  D/C 0.875"));
    EXPECT_THAT(outcome.out, HasSubstr("  NOT SOUND\n"));
    EXPECT_THAT(outcome.err, HasSubstr("p.in: error: missing-records: p.vmd: 1 force record is missing"));
}

TEST_F(CheckTest, AProjectThatFailsStopsNoOther) {
    const std::string none = project.Path("-none");
    const ProgramRun outcome = Check({}, {none, project.Base()});
    EXPECT_EQ(outcome.status, kExitNotLoaded);
    EXPECT_THAT(outcome.out, HasSubstr(none + ".in  ERROR  no project " + none + ".in\n"));
    EXPECT_THAT(outcome.out, HasSubstr(project.Base() + ".in  PASS"));
    EXPECT_EQ(outcome.err, "2 projects: 1 pass, 1 not loaded\n");
}

TEST_F(CheckTest, AChoiceThatFitsNoCaseIsWrongUsage) {
    CheckRequest request;
    ReadCases("4", request.cases);
    const ProgramRun outcome = Check(request, {project.Base()});
    EXPECT_EQ(outcome.status, kExitUsage);
    EXPECT_THAT(outcome.out, HasSubstr("ERROR  there is no case 4, the project has 3"));
}

TEST_F(CheckTest, CasesThatWereLeftOutAreSaid) {
    CheckRequest request;
    ReadCases("1-2", request.cases);
    EXPECT_THAT(Check(request, {project.Base()}).out, HasSubstr("limit 1  2 of 3 cases\n"));
}

TEST_F(CheckTest, ProjectsWithoutAnyElementAreNoPass) {
    project.substructures[0].piles = 0;
    project.substructures[0].pileSections.clear();
    project.substructures[0].rows.clear();
    project.WriteAll();
    const ProgramRun outcome = Check({}, {project.Base()});
    EXPECT_EQ(outcome.status, kExitUnsound);
    EXPECT_THAT(outcome.out, HasSubstr("  NONE  no element has a D/C ratio in the chosen cases\n"));
}

TEST_F(CheckTest, JsonHasTheSameNumbers) {
    CheckRequest request = As(CheckFormat::json);
    request.top = 1;
    request.limits.pileCompression = 50.0;
    const ProgramRun outcome = Check(request, {project.Base()});
    const nlohmann::json json = nlohmann::json::parse(outcome.out);
    EXPECT_EQ(outcome.status, kExitIncomplete);
    EXPECT_EQ(json["status"], 1);
    EXPECT_EQ(json["passes"], false);
    EXPECT_EQ(json["dc"], 0.875);
    EXPECT_EQ(json["units"], "us");
    EXPECT_EQ(json["families"][0]["place"], "pile 2 head");
    EXPECT_EQ(json["families"][0]["fax"], -100.0);
    EXPECT_EQ(json["families"][0]["limit_state"], nullptr);
    EXPECT_EQ(json["top"].size(), 1U);
    EXPECT_EQ(json["pile_heads"][0]["force"], -100.0);
    EXPECT_EQ(json["pile_heads"][0]["passes"], false);
    EXPECT_EQ(json["findings"].size(), 0U);
    EXPECT_THAT(outcome.out, EndsWith("}\n"));
}

TEST_F(CheckTest, JsonOfAProjectThatWasNotLoadedSaysWhy) {
    const nlohmann::json json = nlohmann::json::parse(Check(As(CheckFormat::json), {"none"}).out);
    EXPECT_EQ(json["status"], 3);
    EXPECT_EQ(json["error"], "no project none.in");
    EXPECT_EQ(json["passes"], nullptr);
}

TEST_F(CheckTest, ForcesAreConvertedAndRatiosAreNot) {
    CheckRequest request = As(CheckFormat::json);
    request.units = UnitSystem::si;
    const nlohmann::json json = nlohmann::json::parse(Check(request, {project.Base()}).out);
    EXPECT_EQ(json["units"], "si");
    EXPECT_NEAR(json["families"][0]["fax"].get<double>(), -444.822, 0.001);
    EXPECT_EQ(json["dc"], 0.875);
}

TEST_F(CheckTest, CsvIsTheTableOfVerdictsWithOneHeadLine) {
    const ProgramRun outcome = Check(As(CheckFormat::csv), {project.Base(), "none", project.Base()});
    EXPECT_EQ(outcome.status, kExitNotLoaded);
    EXPECT_THAT(outcome.out, testing::StartsWith("project,substructure,family,dc,place,"));
    EXPECT_THAT(outcome.out, HasSubstr(",1,pile,0.875,pile 2 head,4,2,J,2,,1,8,0,true\r\n"));
    EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 5);  // the head, two families of two projects
    EXPECT_THAT(outcome.err, HasSubstr("none.in: no project none.in\n"));
}

TEST_F(CheckTest, BriefIsOneLineAProject) {
    CheckRequest request;
    request.brief = true;
    const ProgramRun outcome = Check(request, {project.Base(), project.Base()});
    EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 2);
    EXPECT_THAT(outcome.out, Not(HasSubstr("\033")));
}

}  // namespace

}  // namespace lumerin
