// SPDX-License-Identifier: MIT
#include "records/OpenProject.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "support/RecordsProject.h"

namespace lumerin {

namespace {

std::string LoadFault(const std::string& name) {
    try {
        LoadByName(ProjectName(name));
    } catch (const std::runtime_error& fault) {
        return fault.what();
    }
    return {};
}

}  // namespace

TEST(ProjectName, TheExtensionMayBeLeftOutAndNothingElseIsCut) {
    EXPECT_EQ(ProjectName("a/pier.in").basePath, "a/pier");
    EXPECT_EQ(ProjectName("a/pier").basePath, "a/pier");
    EXPECT_EQ(ProjectName("a/pier").inputFile, "a/pier.in");
    EXPECT_EQ(ProjectName("PIER.IN").basePath, "PIER");
    EXPECT_EQ(ProjectName("PIER.IN").inputFile, "PIER.IN");
    EXPECT_EQ(ProjectName("pierXYZ").basePath, "pierXYZ");
    EXPECT_EQ(ProjectName("pier.v2").basePath, "pier.v2");
    EXPECT_EQ(ProjectName("pierin").basePath, "pierin");
    EXPECT_EQ(ProjectName(".in").basePath, ".in");
    EXPECT_EQ(ProjectName("Gr\xf6\xdf"
                          "e.in")
                  .name,
              "Gr\u00f6\u00dfe");
}

TEST(OpenProject, AProjectExistsByTheFileThatCountsItsSubstructures) {
    RecordsProject project;
    EXPECT_EQ(LoadFault(project.Base()), "no project " + project.Base() + ".in");
    project.WriteAll();
    project.Remove(".in");
    EXPECT_EQ(LoadFault(project.Base()), "");
    EXPECT_EQ(LoadFault(project.Base() + "XYZ"), "no project " + project.Base() + "XYZ.in");
}

TEST(OpenProject, AFileThatIsMissingOrBrokenIsNamed) {
    RecordsProject project;
    project.WriteAll();
    project.Remove(".PLF");
    EXPECT_THAT(LoadFault(project.Base()), testing::StartsWith(project.Base() + ".PLF: "));
}

TEST(OpenProject, WhenNothingConvergedTheHostsTextIsTheFault) {
    RecordsProject project;
    project.WriteAll();
    project.WriteFile(".ncv", ResultProject::Convergence(0).End());
    EXPECT_EQ(LoadFault(project.Base()), "No load cases converged. Results cannot be viewed.");
}

TEST(OpenProject, MessagesOfTheLoadAreKept) {
    RecordsProject project;
    project.substructures[0].codeFamily = kFamilyLrfd;
    project.WriteAll();
    project.WriteLimitStates("999 1 2\n");
    EXPECT_THAT(LoadByName(ProjectName(project.Base()))->messages,
                testing::ElementsAre("Invalid limit state", "Invalid limit state"));
}

}  // namespace lumerin
