// SPDX-License-Identifier: MIT
#include "records/Table.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <set>

#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

using testing::ElementsAre;

TEST(Tables, NamesOfTablesAndColumnsAreDifferentAndPlain) {
    std::set<std::string_view> tables;
    for (const Table& table : AllTables()) {
        EXPECT_TRUE(tables.insert(table.name).second) << table.name;
        EXPECT_EQ(FindTable(table.name), &table);
        std::set<std::string_view> columns;
        for (const Column& column : table.columns) {
            EXPECT_TRUE(columns.insert(column.name).second) << table.name << " " << column.name;
            EXPECT_EQ(column.name.find_first_not_of("abcdefghijklmnopqrstuvwxyz_0123456789"),
                      std::string_view::npos);
            EXPECT_FALSE(column.meaning.empty());
        }
        EXPECT_EQ(table.columns[0].name, "project");
        EXPECT_EQ(table.columns[1].name, "substructure");
    }
    EXPECT_EQ(tables.size(), 15U);
    EXPECT_EQ(FindTable("no_such_table"), nullptr);
}

// Every table of every sample project: as many values as columns, of the types that the columns say, and no
// two rows with the same key.
TEST(Tables, RowsFitTheirColumnsAndKeysAreUnique) {
    const SampleFolder folder;
    for (const char* preset : {"pier", "bent", "group", "walls", "bridge", "history"}) {
        const auto opened = LoadByName(ProjectName(folder.Write(preset)));
        for (const Table& table : AllTables()) {
            if (table.name == "element_forces" || table.name == "pile_heads") continue;  // they are long
            const Evaluation evaluation(*opened, {}, {}, table.needs);
            std::set<std::string> keys;
            bool hasKey = false;
            EachRow(table, evaluation, UnitSystem::si, [&](std::span<const Value> row) {
                ASSERT_EQ(row.size(), table.columns.size()) << table.name;
                std::string key;
                for (std::size_t i = 0; i < row.size(); ++i) {
                    const ColumnType type = table.columns[i].type;
                    const Value& value = row[i];
                    const bool fits =
                        std::holds_alternative<std::monostate>(value) ||
                        (type == ColumnType::text && std::holds_alternative<std::string_view>(value)) ||
                        (type == ColumnType::integer && std::holds_alternative<std::int64_t>(value)) ||
                        (type == ColumnType::flag && std::holds_alternative<bool>(value)) ||
                        (type == ColumnType::real &&
                         (std::holds_alternative<float>(value) || std::holds_alternative<double>(value)));
                    EXPECT_TRUE(fits) << table.name << " " << table.columns[i].name;
                    if (!table.columns[i].key) continue;
                    hasKey = true;
                    if (const auto* text = std::get_if<std::string_view>(&value)) key += *text;
                    if (const auto* number = std::get_if<std::int64_t>(&value))
                        key += std::to_string(*number);
                    key += '|';
                }
                if (table.name == "findings") return;  // a project's findings have no key
                EXPECT_TRUE(keys.insert(key).second) << preset << " " << table.name << " " << key;
            });
            EXPECT_TRUE(hasKey || keys.empty()) << table.name;
        }
    }
}

TEST(Tables, AnElementsForcesAreThoseOfItsRecordAndMissingOnesAreAbsent) {
    RecordsProject project;
    project.Set(0, 5, kFaxWordJ, 7.5F);
    project.Set(1, 1, kF22WordI, 2.0F);
    project.WriteAll();
    // The record 5 of case 2 is missing.
    std::filesystem::resize_file(project.Path(".vmd"), 9UL * 68);
    const auto rows = RowsOf(project.Evaluate(), "element_forces");
    ASSERT_EQ(rows.size(), 20U);  // five records, two ends, two cases
    EXPECT_THAT(rows[9], ElementsAre("1", "5", "1", "other", "", "J", "7", "1", "7.5", "0", "0", "-0", "-0",
                                     "-0", "0"));
    EXPECT_THAT(rows[10],
                ElementsAre("1", "1", "2", "pile", "1", "I", "1", "2", "0", "-2", "-0", "0", "0", "-0", "0"));
    EXPECT_THAT(rows[18], ElementsAre("1", "5", "1", "other", "", "I", "6", "2", "", "", "", "", "", "", ""));
}

// The bent's left cantilever ends inside the first pile, so that its left face does not exist; the printed
// table has a row for it all the same, once in each class and extreme.
TEST(Tables, ARowOfASectionThatTheCapDoesNotHaveIsUnused) {
    const SampleFolder folder;
    const auto opened = LoadByName(ProjectName(folder.Write("bent")));
    for (const char* name : {"cap_shear", "cap_moment"}) {
        const Evaluation evaluation(*opened, {}, {}, FindTable(name)->needs);
        int unused = 0;
        for (const auto& row : RowsOf(evaluation, name)) {
            const std::string &place = row[1], &side = row[2], &x = row[6], &status = row[7];
            const bool isBearing = place.starts_with("Brg");
            // "Brg 2 L LR": the side stands after the number.
            const bool isLeft = isBearing && place.find(" L", 5) == 5,
                       isRight = isBearing && place.find(" R", 5) == 5;
            if (std::string_view(name) == "cap_shear") {
                EXPECT_EQ(side, isLeft ? "left" : isRight ? "right" : "") << place;
            }
            EXPECT_EQ(x.empty(), status == "unused") << place;
            if (status != "unused") continue;
            ++unused;
            EXPECT_EQ(place, "Pil 1 LF");
        }
        EXPECT_EQ(unused, 2 * 2) << name;  // two classes, maximum and minimum
    }
}

TEST(Tables, PileHeadsHaveNoRowsForFatigue) {
    const SampleFolder folder;
    const auto opened = LoadByName(ProjectName(folder.Write("pier")));
    const Evaluation evaluation(*opened, {}, {}, FindTable("pile_axial")->needs);
    std::set<std::string> classes;
    for (const auto& row : RowsOf(evaluation, "pile_axial")) classes.insert(row[2]);
    EXPECT_THAT(classes, ElementsAre("extreme", "service", "strength"));
}

// A study of one trial and two cases: the values of case 2 are the greater ones but for the least axial
// force.
TEST(Tables, TheStudyHasItsCasesAndEnvelopes) {
    RecordsProject project;
    project.WriteAll();
    project.WriteFile(".in", "PROBLEM\n1\n2\n3\n4\n5\n6\n7\n8\nMPTE\nM= 1\n");
    project.WriteFile(".PEL",
                      "1 1 0 2 20.5\n1 0.5 1 0.25 1 0.75 1 10 1 -40 2\n2 0.5 2 0.5 2 1 2 20 2 -30 1\nEOF\n");
    const auto rows = RowsOf(project.Evaluate(TableNeeds{}), "embedment");
    ASSERT_EQ(rows.size(), 5U * 4U);  // five quantities: two cases, two envelopes
    EXPECT_THAT(rows[1], ElementsAre("1", "1", "20.5", "yes", "lateral", "case", "2", "0.5", "", "2"));
    // Of equal values the envelope names the earlier case.
    EXPECT_THAT(rows[2], ElementsAre("1", "1", "20.5", "yes", "lateral", "max", "1", "0.5", "", "1"));
    EXPECT_THAT(rows[14], ElementsAre("1", "1", "20.5", "yes", "max_axial", "max", "2", "", "20", "2"));
    EXPECT_THAT(rows[19], ElementsAre("1", "1", "20.5", "yes", "min_axial", "min", "1", "", "-40", "2"));
    CaseChoice second;
    ReadCases("2", second);
    EXPECT_EQ(RowsOf(project.Evaluate(TableNeeds{}, second), "embedment").size(), 5U * 3U);
}

TEST(Tables, ElementsHaveTheirMembersAndPlaces) {
    RecordsProject project;
    project.WriteAll();
    const auto rows = RowsOf(project.Evaluate(TableNeeds{}), "elements");
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_THAT(rows[1], ElementsAre("1", "2", "2", "3", "pile", "1", "2", "2", "1", "2", "", "", "no"));
    EXPECT_THAT(rows[4], ElementsAre("1", "5", "5", "1", "other", "", "", "6", "7", "1", "", "", "no"));
}

TEST(Tables, NeedsOfSeveralTablesAreAddedUp) {
    const TableNeeds needs = NeedsOf(std::vector{FindTable("pile_axial"), FindTable("cap_shear"),
                                                 FindTable("findings"), FindTable("cases")});
    EXPECT_EQ(needs.searches, 1U << kTableMaxAxial | 1U << kTableCapShear);
    EXPECT_TRUE(needs.soundness);
    EXPECT_FALSE(needs.elements);
    EXPECT_TRUE(NeedsOf(std::vector{FindTable("cases"), FindTable("element_dc")}).elements);
}

TEST(Tables, ValuesAreConvertedByTheirQuantity) {
    RecordsProject project;
    project.Set(0, 1, kFaxWordJ, -100.0F);
    project.Set(0, 1, kRatioJ, 0.5F);
    project.WriteAll();
    const Evaluation& evaluation = project.Evaluate(NeedsOf(std::vector{FindTable("pile_axial")}));
    EXPECT_THAT(RowsOf(evaluation, "pile_axial")[0],
                ElementsAre("1", "1", "", "", "", "", "", "-100", "1", "", "0.5"));
    const auto converted = RowsOf(evaluation, "pile_axial", UnitSystem::si)[0];
    EXPECT_NEAR(std::stod(converted[7]), -444.82216152605, 1e-10);  // 100 kips in kN
    EXPECT_EQ(converted[10], "0.5");
}

TEST(Tables, TheProjectsRowHasItsCountsAndVerdict) {
    RecordsProject project;
    project.Set(0, 1, kRatioJ, 1.5F);
    project.WriteAll();
    const auto rows = RowsOf(project.Evaluate(), "projects");
    ASSERT_EQ(rows.size(), 1U);
    const std::vector<std::string>& row = rows[0];
    // title, substructures, types, code, units, cases, converged, chosen, limit, dc, passes, errors, warnings
    EXPECT_THAT(std::vector<std::string>(row.begin() + 1, row.begin() + 14),
                ElementsAre("", "1", "pile group", "", "us", "3", "2", "2", "1", "1.5", "no", "0", "1"));
    EXPECT_EQ(row.back(), std::to_string(kTablesVersion));
}

// A count of passing bridges must not have those that nobody could judge.
TEST(Tables, AProjectWithoutAnyElementHasNoVerdict) {
    RecordsProject project;
    project.substructures[0].piles = 0;
    project.substructures[0].pileSections.clear();
    project.substructures[0].rows.clear();
    project.WriteAll();
    const std::vector<std::string> row = RowsOf(project.Evaluate(), "projects").at(0);
    EXPECT_EQ(row[10], "");  // dc
    EXPECT_EQ(row[11], "");  // passes
}

}  // namespace lumerin
