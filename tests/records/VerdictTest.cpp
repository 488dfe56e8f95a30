// SPDX-License-Identifier: MIT
#include "records/Verdict.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

using testing::ElementsAre;

TEST(Verdict, TheGreatestRatioOfEachFamilyIsFoundOverAllCasesAndEnds) {
    RecordsProject project;
    project.Set(0, 1, kRatioJ, 0.5F);
    project.Set(1, 1, kRatioJ, 0.75F);
    project.Set(0, 4, kRatioI, 1.25F);
    project.Set(0, 4, kFaxWordI, -40.0F);
    project.Set(0, 4, kF22WordI, 3.0F);
    project.Set(1, 5, kRatioJ, 1.5F);
    project.WriteAll();
    const Verdict verdict = Judge(project.Evaluate());
    ASSERT_EQ(verdict.families.size(), 2U);
    const FamilyVerdict& piles = verdict.families[0];
    EXPECT_EQ(piles.worst.family, "pile");
    EXPECT_EQ(piles.worst.ratio, 1.25F);
    EXPECT_EQ(piles.worst.place, "pile 2 tip");
    EXPECT_EQ(piles.worst.element, 5);
    EXPECT_EQ(piles.worst.loadCase, 1);
    // The sign of the shear at I is turned, as in every table.
    EXPECT_THAT(piles.worst.forces, ElementsAre(-40, -3, 0, 0, 0, 0));
    EXPECT_EQ(piles.ends, 8);
    EXPECT_EQ(piles.endsOver, 1);
    EXPECT_FALSE(piles.passes);
    // The foundation is in no printed table.
    const FamilyVerdict& other = verdict.families[1];
    EXPECT_EQ(other.worst.family, "other");
    EXPECT_EQ(other.worst.place, "element 1 end J");
    EXPECT_EQ(other.worst.node, 7);
    EXPECT_EQ(other.worst.loadCase, 2);
    EXPECT_EQ(other.ends, 2);
    EXPECT_FALSE(verdict.passes);
    EXPECT_EQ(verdict.Worst(), &verdict.families[1]);
}

TEST(Verdict, OfEqualRatiosTheEarliestCaseAndTheFirstEndAreKept) {
    RecordsProject project;
    project.Set(1, 2, kRatioI, 0.5F);
    project.Set(1, 3, kRatioJ, 0.5F);
    project.Set(0, 3, kRatioJ, 0.5F);
    project.WriteAll();
    const Verdict verdict = Judge(project.Evaluate());
    EXPECT_EQ(verdict.families[0].worst.place, "pile 1 tip");
    const std::vector<EndRatio> top = GreatestRatios(project.Evaluate(), 2);
    ASSERT_EQ(top.size(), 2U);
    EXPECT_EQ(top[1].place, "pile 2 head");
    EXPECT_EQ(top[1].loadCase, 1);
}

// Case 2 is of strength, case 1 of service; the classes are looked at in another order than the cases.
TEST(Verdict, OfEqualRatiosInTwoClassesTheEarliestCaseIsKept) {
    RecordsProject project;
    project.substructures[0].codeFamily = kFamilyLrfd;
    for (int c = 0; c < 2; ++c) project.Set(c, 1, kRatioJ, 0.5F);
    project.WriteAll();
    project.WriteLimitStates("108 1 1\n101 2 1\n");
    const Verdict verdict = Judge(project.Evaluate());
    EXPECT_EQ(verdict.families[0].worst.loadCase, 1);
    EXPECT_EQ(verdict.families[0].worst.limitState, "SERVICE-I");
}

// One cap element of the bridge's pier is masked, two of its bent.
TEST(Verdict, MaskedElementsAreNoEnds) {
    const SampleFolder folder;
    const auto opened = LoadByName(ProjectName(folder.Write("bridge")));
    const Evaluation evaluation(*opened, {}, {}, FindTable("verdict")->needs);
    for (const FamilyVerdict& family : Judge(evaluation).families) {
        if (family.worst.family != "cap") continue;
        const auto identities = evaluation.Identities(Index(family.worst.substructure - 1));
        const auto cap = std::ranges::count_if(identities, [](const ElementIdentity& identity) {
            return IsCap(identity.kind) && !identity.masked;
        });
        const auto masked = std::ranges::count(identities, true, &ElementIdentity::masked);
        EXPECT_EQ(masked, family.worst.substructure);
        EXPECT_EQ(family.ends, 2 * cap);
    }
}

TEST(Verdict, RatiosAreComparedUnrounded) {
    RecordsProject project;
    project.Set(0, 1, kRatioJ, std::nextafter(1.0F, 2.0F));
    project.WriteAll();
    EXPECT_FALSE(Judge(project.Evaluate()).passes);
    project.Set(0, 1, kRatioJ, 1.0F);
    project.WriteAll();
    EXPECT_TRUE(Judge(project.Evaluate()).passes);
    Limits limits;
    limits.ratio = 0.99;
    EXPECT_FALSE(Judge(project.Evaluate({}, limits)).passes);
}

TEST(Verdict, AMissingRatioPassesAndIsNoNumberToCompare) {
    RecordsProject project;
    for (int c = 0; c < 2; ++c) project.Set(c, 2, kRatioI, std::numeric_limits<float>::quiet_NaN());
    project.Set(1, 2, kRatioJ, 0.25F);
    project.WriteAll();
    const Verdict verdict = Judge(project.Evaluate());
    EXPECT_EQ(verdict.families[0].worst.ratio, 0.25F);
    EXPECT_TRUE(verdict.passes);
}

TEST(Verdict, CasesThatWereNotChosenDoNotCount) {
    RecordsProject project;
    project.Set(0, 1, kRatioJ, 1.5F);
    project.Set(1, 1, kRatioJ, 0.75F);
    project.WriteAll();
    CaseChoice second;
    ReadCases("2", second);
    const Verdict verdict = Judge(project.Evaluate(second));
    EXPECT_EQ(verdict.families[0].worst.ratio, 0.75F);
    EXPECT_TRUE(verdict.passes);
}

// Pile 1: -300 in case 1, 20 in case 2; pile 2: -100 and -50.
TEST(Verdict, PileHeadsAreHeldAgainstTheirCapacities) {
    RecordsProject project;
    project.Set(0, 1, kFaxWordJ, -300.0F);
    project.Set(1, 1, kFaxWordJ, 20.0F);
    project.Set(0, 3, kFaxWordJ, -100.0F);
    project.Set(1, 3, kFaxWordJ, -50.0F);
    project.WriteAll();
    Limits limits;
    limits.pileCompression = 90.0;
    limits.pileTension = 20.0;  // just enough
    const Verdict verdict = Judge(project.Evaluate({}, limits));
    ASSERT_EQ(verdict.heads.size(), 3U);
    EXPECT_EQ(verdict.heads[0].pile, 1);
    EXPECT_EQ(verdict.heads[0].force, -300.0F);
    EXPECT_EQ(verdict.heads[0].loadCase, 1);
    EXPECT_FALSE(verdict.heads[0].passes);
    EXPECT_EQ(verdict.heads[1].pile, 2);
    EXPECT_FALSE(verdict.heads[1].passes);
    EXPECT_TRUE(verdict.heads[2].tension);
    EXPECT_EQ(verdict.heads[2].force, 20.0F);
    EXPECT_TRUE(verdict.heads[2].passes);
    EXPECT_FALSE(verdict.passes);
    // In the table: a row a family, and one a substructure and direction with its force over the capacity.
    const auto rows = RowsOf(project.Evaluate({}, limits), "verdict");
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_THAT(rows[2], ElementsAre("1", "pile_head_compression", "3.3333333333333335", "pile 1 head", "",
                                     "", "J", "1", "", "1", "", "2", "no"));
    EXPECT_EQ(rows[3][1], "pile_head_tension");
    EXPECT_EQ(rows[3].back(), "yes");
}

}  // namespace lumerin
