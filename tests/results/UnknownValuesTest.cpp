// SPDX-License-Identifier: MIT
// Values of enumerations that no name belongs to. Files and the host may hold them, and each passes as it is.
#include <gtest/gtest.h>

#include "model/Types.h"
#include "support/ResultProject.h"

namespace lumerin {

namespace {

TEST(UnknownValues, ACodeFamilyPassesUnchanged) {
    for (const int family : {3, 7, -1, 1000000}) {
        ResultProject project;
        project.substructures[0].codeFamily = family;
        project.Write();
        project.WriteFile(".CMB", "");
        ASSERT_TRUE(project.Load()) << family;
        EXPECT_EQ(static_cast<int>(project.Pier().m_nCodeFamily), family);
    }
}

TEST(UnknownValues, AnAnalysisModePassesUnchanged) {
    for (const int mode : {2, -1, 1000000}) {
        ResultProject project;
        project.mode = mode;
        project.Write();
        ASSERT_TRUE(project.Load()) << mode;
        EXPECT_EQ(static_cast<int>(project.Data().m_nAnalysisMode), mode);
    }
}

// The one type that is derived is -1; a type that the file does not know ends the load (LoadProjectTest).
TEST(UnknownValues, EachStructureTypeOfAFileIsThatOfTheModel) {
    for (const int type : {0, 1, 2, 3, 6, 8}) {
        ResultProject project;
        project.substructures[0].type = type;
        project.Write();
        ASSERT_TRUE(project.Load()) << type;
        EXPECT_EQ(static_cast<int>(project.Pier().m_nStructureType), type);
    }
}

// The enumerations are as wide as the words they come from.
static_assert(sizeof(ReportFormat) == sizeof(int) && static_cast<int>(static_cast<ReportFormat>(7)) == 7);
static_assert(static_cast<int>(static_cast<StructureType>(-1)) == kTypeDerived);
static_assert(static_cast<int>(static_cast<CodeFamily>(-2147483647)) == -2147483647);
static_assert(static_cast<int>(static_cast<LimitClass>(2147483647)) == 2147483647);
static_assert(static_cast<int>(static_cast<TableId>(99)) == 99);
static_assert(static_cast<int>(static_cast<MemberFamily>(-1)) == -1);
static_assert(static_cast<int>(static_cast<AnalysisMode>(2)) == 2);

}  // namespace

}  // namespace lumerin
