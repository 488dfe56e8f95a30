// SPDX-License-Identifier: MIT
#include "cli/InfoCommand.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "support/ProgramRun.h"
#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using testing::HasSubstr;
using testing::Not;

ProgramRun Info(const InfoRequest& request) {
    return RunCommand([&](std::ostream& out, std::ostream& err) { return RunInfo(request, out, err); });
}

InfoRequest Of(const std::string& project) {
    InfoRequest request;
    request.projects.emplace_back(project);
    return request;
}

}  // namespace

// The bridge: a pier, a pile bent and a pile group under 22 combinations of AASHTO-LFD.
TEST(Info, DescribesTheSubstructures) {
    const SampleFolder folder;
    const ProgramRun outcome = Info(Of(folder.Write("bridge")));
    EXPECT_EQ(outcome.status, kExitDone);
    for (const char* text :
         {"design code      AASHTO-LFD", "22 load combinations", "pile bent", "pile group", "(1 masked)",
          "bridge.vmd2", "extra-members  yes", "no findings", "the forces were not read"}) {
        EXPECT_THAT(outcome.out, HasSubstr(text));
    }
}

TEST(Info, SaysWhyATableDoesNotApply) {
    const SampleFolder folder;
    const std::string bent = Info(Of(folder.Write("bent"))).out;
    EXPECT_THAT(bent, HasSubstr("column-dc      no: no columns"));
    EXPECT_THAT(bent, HasSubstr("extra-members  no: no extra members"));
    EXPECT_THAT(bent, HasSubstr("cap-shear      yes"));
    const std::string group = Info(Of(folder.Write("group"))).out;
    EXPECT_THAT(group, HasSubstr("cap-shear      no: no cap"));
    RecordsProject single;
    single.substructures[0].type = kTypeSinglePile;
    single.WriteAll();
    EXPECT_THAT(Info(Of(single.Base())).out, HasSubstr("no: a single pile alone has no tables"));
}

TEST(Info, ListsTheCasesWhenAsked) {
    const SampleFolder folder;
    InfoRequest request = Of(folder.Write("pier"));
    EXPECT_THAT(Info(request).out, Not(HasSubstr("FATIGUE-I ")));
    EXPECT_THAT(Info(request).out,
                HasSubstr("26 load combinations: 10 strength, 4 extreme, 8 service, 4 fatigue"));
    request.listCases = true;
    EXPECT_THAT(Info(request).out, HasSubstr("FATIGUE-I "));
}

TEST(Info, ReadsTheForcesOnlyWhenAsked) {
    RecordsProject project;
    project.cases = 3;
    project.WriteAll();
    InfoRequest request = Of(project.Base());
    EXPECT_THAT(Info(request).out, HasSubstr("no findings"));
    request.findings = true;
    EXPECT_THAT(Info(request).out, HasSubstr("warning: all-ratios-zero"));
    EXPECT_THAT(Info(request).out, Not(HasSubstr("the forces were not read")));
}

TEST(Info, JsonHasTheSameFacts) {
    RecordsProject project;
    project.WriteAll();
    InfoRequest request = Of(project.Base());
    request.json = true;
    request.listCases = true;
    const nlohmann::json json = nlohmann::json::parse(Info(request).out);
    EXPECT_EQ(json["cases"], 3);
    EXPECT_EQ(json["converged"], 2);
    EXPECT_EQ(json["code"], nullptr);
    EXPECT_EQ(json["substructures"][0]["type"], "pile group");
    EXPECT_EQ(json["substructures"][0]["elements"], 5);
    EXPECT_EQ(json["substructures"][0]["bytes"], 2 * 5 * 68);
    EXPECT_EQ(json["case_list"].size(), 2U);
    EXPECT_EQ(json["findings"][0]["code"], "unconverged-cases");
    EXPECT_EQ(json["study_trials"], nullptr);
}

TEST(Info, AProjectThatIsNotThereIsStatusThree) {
    const ProgramRun outcome = Info(Of("none"));
    EXPECT_EQ(outcome.status, kExitNotLoaded);
    EXPECT_EQ(outcome.out, "none.in  no project none.in\n");
}

}  // namespace lumerin
