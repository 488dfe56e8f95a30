// SPDX-License-Identifier: MIT
#include "compare/Comparison.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>

#include "compare/Runs.h"
#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// The tables of one project: of piles and their sections, without a cap.
std::vector<const Table*> Tables(std::initializer_list<const char*> names) {
    std::vector<const Table*> tables;
    for (const char* name : names) tables.push_back(FindTable(name));
    return tables;
}

// Two runs of a small project, the same at first.
class ComparisonTest : public testing::Test {
  protected:
    ComparisonTest() {
        for (RecordsProject* run : {&before, &after}) {
            run->cases = 3;
            for (int c = 0; c < 3; ++c) {
                for (int r = 1; r <= 5; ++r) {
                    run->Set(c, r, kFaxWordJ, static_cast<float>(-100 * (c + 1) - 10 * r));
                    run->Set(c, r, kRatioJ, static_cast<float>(0.2 * (c + 1) + 0.01 * r));
                }
            }
        }
    }
    Comparison Run(const RunOptions& options = {}) {
        before.WriteAll();
        after.WriteAll();
        return CompareFiles(before.Base(), after.Base(), options);
    }
    // Makes the cases of a run combinations with these titles.
    static void Combine(RecordsProject& run, const std::vector<std::string>& titles,
                        const std::string& rows) {
        run.cases = static_cast<int>(titles.size());
        run.substructures[0].codeFamily = kFamilyLrfd;
        std::string text;
        for (std::size_t i = 0; i < titles.size(); ++i) {
            text += "[Comb. " + std::to_string(i + 1) + "]\n" + titles[i] + "\n";
        }
        run.WriteFile(".CMB", text);
        run.WriteLimitStates(rows);
    }

    RecordsProject before, after;
};

TEST(Comparison, AProjectAgainstItselfIsTheSame) {
    const SampleFolder folder;
    for (const char* preset : {"pier", "bent", "group", "walls", "bridge", "history"}) {
        const std::string base = folder.Write(preset);
        RunOptions options;
        options.tolerances = {0.0, 0.0, 0.0, 0.0};
        const Comparison same = CompareFiles(base, base, options);
        EXPECT_FALSE(same.Differs()) << preset;
        EXPECT_THAT(same.governing, IsEmpty()) << preset;
        EXPECT_EQ(same.renumbered, 0);
        EXPECT_GT(same.compared, 10000) << preset;
    }
}

TEST_F(ComparisonTest, BothValuesAndBothCasesAreReported) {
    after.Set(0, 3, kFaxWordJ, -500.0F);
    RunOptions options;
    options.tables = Tables({"pile_axial"});
    const Comparison changed = Run(options);
    ASSERT_THAT(NamesOf(changed.results), ElementsAre("pile_axial pile 2"));
    const ResultChange& pile = changed.results[0];
    EXPECT_EQ(pile.substructure, 1);
    EXPECT_EQ(pile.caseBefore.number, 3);
    EXPECT_EQ(pile.caseAfter.number, 1);
    EXPECT_TRUE(pile.otherCase);
    ASSERT_EQ(pile.values.size(), 2U);
    EXPECT_EQ(pile.values[0].column, "compression");
    EXPECT_EQ(pile.values[0].before, -330.0);
    EXPECT_EQ(pile.values[0].after, -500.0);
    EXPECT_EQ(pile.values[0].change.difference, -170.0);
    EXPECT_EQ(pile.values[0].change.relative, -0.34);
    EXPECT_EQ(pile.values[0].change.times, 34.0);
    EXPECT_EQ(pile.values[1].column, "compression_dc");
    EXPECT_TRUE(changed.Differs());
}

TEST_F(ComparisonTest, AGoverningCaseThatChangedAloneIsNoDifference) {
    // Half a kip more than case 3.
    after.Set(0, 3, kFaxWordJ, -330.5F);
    after.Set(0, 3, kRatioJ, 0.63F);
    RunOptions options;
    options.tables = Tables({"pile_axial"});
    const Comparison changed = Run(options);
    EXPECT_FALSE(changed.Differs());
    ASSERT_THAT(NamesOf(changed.governing), ElementsAre("pile_axial pile 2"));
    EXPECT_EQ(changed.governing[0].caseAfter.number, 1);
    ASSERT_EQ(changed.governing[0].values.size(), 1U);
    EXPECT_EQ(changed.governing[0].values[0].after, -330.5);
}

TEST_F(ComparisonTest, AValueThatOneRunDoesNotHaveIsADifference) {
    for (int c = 0; c < 3; ++c) after.Set(c, 1, kFaxWordJ, 0.1F);
    RunOptions options;
    options.tables = Tables({"pile_axial"});
    const Comparison changed = Run(options);
    // The compression is gone, the tension is new; 0.1 kips alone would be within the tolerance.
    ASSERT_THAT(NamesOf(changed.results), ElementsAre("pile_axial pile 1", "pile_axial pile 1"));
    EXPECT_EQ(changed.results[0].values[0].column, "compression");
    EXPECT_EQ(changed.results[0].values[0].after, std::nullopt);
    EXPECT_EQ(changed.results[0].caseAfter.number, 0);
    EXPECT_EQ(changed.results[1].values[0].column, "tension");
    EXPECT_EQ(changed.results[1].values[0].before, std::nullopt);
}

TEST_F(ComparisonTest, AFlippedVerdictCountsWhateverTheTolerance) {
    before.Set(2, 1, kRatioJ, 0.999F);
    after.Set(2, 1, kRatioJ, 1.001F);
    RunOptions options;
    options.tables = Tables({"pile_axial"});
    const Comparison changed = Run(options);
    EXPECT_THAT(changed.results, IsEmpty());
    EXPECT_EQ(changed.before.answer, RunVerdict::Answer::passes);
    EXPECT_EQ(changed.after.answer, RunVerdict::Answer::fails);
    EXPECT_EQ(changed.after.place, "pile 1 head (pile)");
    ASSERT_EQ(changed.flips.size(), 1U);
    EXPECT_EQ(changed.flips[0].label, "pile");
    EXPECT_TRUE(changed.flips[0].before);
    EXPECT_TRUE(changed.Differs());
}

TEST_F(ComparisonTest, WhatIsNotANumberDiffersFromEveryNumber) {
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    before.Set(1, 1, kF22WordI, notANumber);
    after.Set(1, 1, kF22WordI, notANumber);
    RunOptions options;
    options.tables = Tables({"element_forces"});
    EXPECT_FALSE(Run(options).Differs());
    after.Set(1, 2, kF22WordI, notANumber);
    const Comparison changed = Run(options);
    ASSERT_THAT(NamesOf(changed.results), ElementsAre("element_forces pile 1, ELEM 3, end I"));
    EXPECT_EQ(changed.results[0].values[0].before, 0.0);
    EXPECT_EQ(changed.results[0].caseAfter.number, 2);
}

TEST_F(ComparisonTest, CasesAreMatchedByTheirTitles) {
    Combine(before, {"dead", "live", "wind"}, "101 1 3\n");
    // A case in the middle; its forces are small.
    Combine(after, {"dead", "new one", "live", "wind"}, "101 1 4\n");
    for (int r = 1; r <= 5; ++r) {
        for (const int word : {kFaxWordJ, kRatioJ}) after.Set(1, r, word, 0.0F);
        after.Set(2, r, kFaxWordJ, static_cast<float>(-200 - 10 * r));
        after.Set(2, r, kRatioJ, static_cast<float>(0.4 + 0.01 * r));
        after.Set(3, r, kFaxWordJ, static_cast<float>(-300 - 10 * r));
        after.Set(3, r, kRatioJ, static_cast<float>(0.6 + 0.01 * r));
    }
    const Comparison changed = Run();
    EXPECT_THAT(LinesOf(changed.structure), ElementsAre("new case: case 2 STRENGTH-I, new one"));
    EXPECT_EQ(changed.renumbered, 2);
    EXPECT_THAT(NamesOf(changed.results), Not(Contains(HasSubstr("pile_axial"))));
    EXPECT_THAT(changed.results, IsEmpty());
    EXPECT_THAT(changed.governing, IsEmpty());
    // A head and two ends of five elements.
    EXPECT_EQ(changed.rows.size(), 2U + 10U);
    for (const RowChange& row : changed.rows) {
        EXPECT_EQ(row.presence, Presence::added);
        EXPECT_EQ(row.loadCase.title, "new one");
    }
}

TEST_F(ComparisonTest, OfSeveralCasesWithOneTitleTheFirstIsTheFirst) {
    Combine(before, {"same", "same", "last"}, "101 1 3\n");
    Combine(after, {"last", "same", "same"}, "101 1 3\n");
    for (int r = 1; r <= 5; ++r) {
        for (int c = 0; c < 3; ++c) {
            const int was = (c + 2) % 3;  // last, first, second
            after.Set(c, r, kFaxWordJ, static_cast<float>(-100 * (was + 1) - 10 * r));
            after.Set(c, r, kRatioJ, static_cast<float>(0.2 * (was + 1) + 0.01 * r));
        }
    }
    // The other tables have extremes that all cases share, and take the first of them.
    RunOptions options;
    options.tables = Tables({"verdict", "pile_axial", "section_dc", "pile_heads", "element_forces"});
    const Comparison changed = Run(options);
    EXPECT_FALSE(changed.Differs());
    EXPECT_THAT(changed.governing, IsEmpty());
    EXPECT_EQ(changed.renumbered, 3);
}

TEST_F(ComparisonTest, WithoutTitlesOfOneRunCasesAreMatchedByLimitState) {
    Combine(before, {"dead", "live", "wind"}, "101 1 1\n108 2 1\n109 3 1\n");
    Combine(after, {"dead", "live", "wind"}, "101 1 1\n108 2 1\n109 3 1\n");
    after.Remove(".CMB");
    EXPECT_FALSE(Run().Differs());
}

TEST_F(ComparisonTest, CasesOfAnotherLimitStateOrThatAreGoneAreListed) {
    Combine(before, {"dead", "live", "wind"}, "101 1 3\n");
    Combine(after, {"dead", "live", "gust"}, "101 1 1\n104 2 1\n101 3 1\n");
    EXPECT_THAT(LinesOf(Run().structure),
                ElementsAre("changed case: case 2 STRENGTH-I, live", "gone case: case 3 STRENGTH-I, wind",
                            "new case: case 3 STRENGTH-I, gust"));
}

TEST_F(ComparisonTest, ANewPileIsListedAndTheOthersAreStillThemselves) {
    after.substructures[0].piles = 3;
    after.substructures[0].rowsB = 3;
    after.substructures[0].pileSections = {{1, 2}, {1, 1}, {1, 1}};
    // The foundation's record follows those of the piles.
    for (int c = 0; c < 3; ++c) {
        after.Set(c, 7, kFaxWordJ, static_cast<float>(-100 * (c + 1) - 50));
        after.Set(c, 7, kRatioJ, static_cast<float>(0.2 * (c + 1) + 0.05));
        for (const int word : {kFaxWordJ, kRatioJ}) after.Set(c, 5, word, 0.0F);
    }
    const Comparison changed = Run();
    EXPECT_THAT(LinesOf(changed.structure), Contains("new piles: pile 3"));
    EXPECT_THAT(LinesOf(changed.structure), Contains("new elements: pile 3 element 1 x2"));
    EXPECT_THAT(changed.rows, Not(IsEmpty()));
    for (const RowChange& row : changed.rows) EXPECT_THAT(row.label, HasSubstr("pile 3"));
    // 48 ends of elements were looked at where there were 40.
    for (const ResultChange& result : changed.results) EXPECT_EQ(result.table->name, "verdict");
}

TEST_F(ComparisonTest, ASubstructureThatIsGoneIsListedWithItsRows) {
    before.substructures.push_back(before.substructures[0]);
    const Comparison changed = Run();
    EXPECT_THAT(LinesOf(changed.structure), Contains("gone substructure: substructure 2"));
    for (const RowChange& row : changed.rows) {
        EXPECT_EQ(row.substructure, 2);
        EXPECT_EQ(row.presence, Presence::removed);
    }
    EXPECT_THAT(changed.results, IsEmpty());
}

// Two of the nodes are those of the foundation. A foot has twelve inches.
TEST_F(ComparisonTest, NodesThatMovedAreCountedAndARoundingIsNone) {
    before.substructures[0] = MakePier();
    after.substructures[0] = MakePier();
    after.substructures[0].nodes[7][0] += 0.01;
    EXPECT_THAT(Run().structure, IsEmpty());
    after.substructures[0].nodes[7][0] += 6.0;
    after.substructures[0].nodes[8][2] += 0.5;
    const Comparison changed = Run();
    EXPECT_THAT(LinesOf(changed.structure), Contains("changed nodes: node 6 above the foundation x2"));
    const auto nodes = std::ranges::find(changed.structure, "nodes", &StructureChange::kind);
    ASSERT_NE(nodes, changed.structure.end());
    EXPECT_EQ(nodes->before, "8.917, 0.000, 0.000 ft");
    EXPECT_EQ(nodes->after, "9.418, 0.000, 0.000 ft");
    EXPECT_TRUE(changed.Differs());
}

// Lengths of the model in metres, forces in kN.
TEST_F(ComparisonTest, TheSameBridgeInOtherUnitsIsTheSame) {
    after.substructures[0].units = 1;
    for (ResultSection& section : after.substructures[0].sections) {
        section.first *= 0.0254;
        section.second *= 0.0254;
    }
    for (int c = 0; c < 3; ++c) {
        for (int r = 1; r <= 5; ++r) {
            after.Set(c, r, kFaxWordJ, static_cast<float>((-100 * (c + 1) - 10 * r) * 4.4482216152605));
        }
    }
    const Comparison same = Run();
    EXPECT_EQ(same.unitsAfter, UnitSystem::si);
    EXPECT_FALSE(same.Differs());
    EXPECT_THAT(same.governing, IsEmpty());
    RunOptions options;
    options.units = UnitSystem::si;
    EXPECT_FALSE(CompareFiles(after.Base(), before.Base(), options).Differs());
}

// Two samples with everything that can differ: cases, piles, substructures' rows, verdicts, values.
TEST(Comparison, ExchangedRunsGiveTheMirroredAnswer) {
    const SampleFolder folder;
    samples::SampleOptions options;
    options.preset = "bridge";
    const std::string one = folder.Write(options);
    options.name = "other";
    options.cases = 25;
    options.seed = 3;
    options.rows = 2;
    options.columns = 7;
    const std::string other = folder.Write(options);
    const Comparison there = CompareFiles(one, other), back = CompareFiles(other, one);
    ASSERT_EQ(there.results.size(), back.results.size());
    EXPECT_GT(there.results.size(), 100U);
    // The numbers of elements in the labels are those of the later run.
    for (std::size_t i = 0; i < there.results.size(); ++i) {
        const ResultChange &a = there.results[i], &b = back.results[i];
        EXPECT_EQ(a.table, b.table);
        EXPECT_EQ(a.rowBefore, b.rowAfter);
        EXPECT_EQ(a.caseBefore, b.caseAfter);
        EXPECT_EQ(a.placeAfter, b.placeBefore);
        ASSERT_EQ(a.values.size(), b.values.size());
        for (std::size_t v = 0; v < a.values.size(); ++v) {
            EXPECT_EQ(a.values[v].before, b.values[v].after);
            EXPECT_EQ(a.values[v].after, b.values[v].before);
        }
    }
    EXPECT_EQ(there.governing.size(), back.governing.size());
    EXPECT_EQ(there.structure.size(), back.structure.size());
    EXPECT_EQ(there.rows.size(), back.rows.size());
    const auto added = [](const Comparison& comparison, Presence presence) {
        return std::ranges::count(comparison.rows, presence, &RowChange::presence);
    };
    EXPECT_EQ(added(there, Presence::added), added(back, Presence::removed));
    EXPECT_GT(added(there, Presence::added), 0);
    EXPECT_EQ(there.before.ratio, back.after.ratio);
    EXPECT_EQ(there.flips.size(), back.flips.size());
}

TEST(Comparison, TheWorstComesFirst) {
    const SampleFolder folder;
    samples::SampleOptions options;
    options.preset = "pier";
    const std::string one = folder.Write(options);
    options.name = "other";
    options.seed = 2;
    const Comparison changed = CompareFiles(one, folder.Write(options));
    ASSERT_GT(changed.results.size(), 100U);
    for (std::size_t i = 1; i < changed.results.size(); ++i) {
        const ResultChange &a = changed.results[i - 1], &b = changed.results[i];
        EXPECT_TRUE(a.leads || !b.leads);
        if (a.leads != b.leads) continue;
        EXPECT_GE(a.values[0].change.times, b.values[0].change.times);
    }
}

}  // namespace

}  // namespace lumerin
