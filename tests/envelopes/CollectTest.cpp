// SPDX-License-Identifier: MIT
// The searches of whole tables over all substructures, then the check that may make a table invalid.
#include "envelopes/Collect.h"

#include <gtest/gtest.h>

#include <array>

#include "support/Searches.h"

namespace lumerin {

namespace {

class Collect : public testing::Test {
  protected:
    // A pile, a column and an extra member, each of one element and of the lowest section of its family.
    void AddFrame(int type) {
        CPier& pier = data.m_Piers.emplace_back();
        BuildPier(pier, {.type = StructureType{type},
                         .piles = 1,
                         .columns = 1,
                         .extraMembers = 1,
                         .section = 1,
                         .sections = 3,
                         .firstExtraSection = 7});
        pier.Element(1).m_nSection = 2;
        pier.Element(2).m_nSection = 7;
        forces.Clear();
        selection = CaseSelection(data);
        results = ResultTables(data);
        results.valid = kAllTables;
    }
    static TableFlags AllValidBut(std::initializer_list<int> tables) {
        TableFlags valid = kAllTables;
        for (const int table : tables) valid[TableId{table}] = false;
        return valid;
    }
    void CollectTables(std::initializer_list<TableId> tables) {
        for (const TableId table : tables)
            CollectTable(table, {data, forces.Sources(), selection, messages}, results);
    }
    void CollectMembers() {
        CollectTables({kTableMaxAxial, kTablePileDc, kTableColumnDc, kTablePileForces, kTableColumnForces,
                       kTableExtraMembers});
    }
    // The validity of a table that was valid before its searches.
    bool IsValid(TableId table) {
        results.valid = kAllTables;
        CollectTables({table});
        return results.valid[table];
    }
    void Clear() {
        data.FreePiers();
        forces.Clear();
    }

    CDataSet data;
    CaseSelection selection;
    ModelForces forces{data};
    ResultTables results;
    RecordedMessages messages;
};

TEST_F(Collect, EveryStepFillsItsTableForEveryPier) {
    AddFrame(4);
    AddFrame(4);
    forces.Set(data.m_Piers[1], 0, 0, kEndJ, kAxial, -2.0F);
    CollectMembers();
    for (const PierResults& pier : results.piers) {
        EXPECT_EQ(pier.pileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndI));
        EXPECT_EQ(pier.columnDc.At(0, 0), RecordAt(0, 0, 0, 1, kEndI));
        EXPECT_EQ(pier.pileForces.At(0, 0, 0), RecordAt(0, 0, 0, 0, &pier == &results.piers[0] ? 1 : 0));
        EXPECT_EQ(pier.columnForces.At(0, 0, 5), RecordAt(0, 0, 0, 1, kEndJ));
        EXPECT_EQ(pier.extraMemberForces.At(0, 0, 12), RecordAt(0, 0, 0, 2, kEndJ));
    }
    EXPECT_EQ(results.piers[0].maxCompression[0][0], -1);
    EXPECT_EQ(results.piers[1].maxCompression[0][0], 0);
    EXPECT_EQ(results.valid, AllValidBut({}));
}

// Type 8 counts here, type 7 does not; the tables' applicability tests them the other way round.
TEST_F(Collect, ColumnTablesBecomeInvalidWhereTheFirstPierHasNoColumns) {
    for (const int type : {1, 2, 6, 8}) {
        Clear();
        AddFrame(type);
        CollectMembers();
        EXPECT_EQ(results.valid, AllValidBut({2, 6})) << type;
        // Not searched: the records are as the load left them.
        EXPECT_EQ(results.piers[0].columnDc.At(0, 0), CMaxRecord{}) << type;
        EXPECT_EQ(results.piers[0].columnForces.At(0, 0, 0), CMaxRecord{}) << type;
    }
    for (const int type : {0, 3, 4, 5, 7}) {
        Clear();
        AddFrame(type);
        CollectMembers();
        EXPECT_EQ(results.valid, AllValidBut({})) << type;
        EXPECT_EQ(results.piers[0].columnDc.At(0, 0), RecordAt(0, 0, 0, 1, kEndI)) << type;
    }
}

TEST_F(Collect, ATableThatThePassDoesNotSearchIsLeftAsItIs) {
    AddFrame(1);  // column tables of this type become invalid where they are searched
    const SearchPass pass({data, forces.Sources(), selection, messages}, std::array{kTablePileDc});
    pass.Store(kTableColumnDc, results);
    pass.Store(kTablePileForces, results);
    EXPECT_EQ(results.valid, AllValidBut({}));
    EXPECT_EQ(results.piers[0].pileForces.At(0, 0, 0), CMaxRecord{});
    pass.Store(kTablePileDc, results);
    EXPECT_EQ(results.piers[0].pileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndI));
}

TEST_F(Collect, ABadNumberInAnyPierMakesTheFamilysTablesInvalid) {
    for (int i = 0; i < 3; ++i) AddFrame(4);
    forces.Of(data.m_Piers[1]).finite.piles = false;
    CollectMembers();
    EXPECT_EQ(results.valid, AllValidBut({1, 5}));
    EXPECT_EQ(results.piers[2].pileDc.At(0, 0), RecordAt(0, 0, 0, 0, kEndI));  // still searched
    forces.Of(data.m_Piers[1]).finite.pileHeads = false;
    forces.Of(data.m_Piers[2]).finite.columns = false;
    forces.Of(data.m_Piers[2]).finite.extraMembers = false;
    CollectMembers();
    EXPECT_EQ(results.valid, AllValidBut({0, 1, 2, 5, 6, 7}));
}

TEST_F(Collect, ThePileHeadTableGoesByTheHeadsAlone) {
    AddFrame(kTypeWallA);
    EXPECT_TRUE(IsValid(kTableMaxAxial));
    forces.Of(data.m_Piers[0]).finite.piles = false;  // elsewhere along the piles
    EXPECT_TRUE(IsValid(kTableMaxAxial));
    forces.Of(data.m_Piers[0]).finite.pileHeads = false;
    EXPECT_FALSE(IsValid(kTableMaxAxial));
}

TEST_F(Collect, ATableGoesByTheForcesOfItsOwnFamily) {
    AddFrame(kTypeWallA);
    forces.Of(data.m_Piers[0]).finite.piles = false;
    EXPECT_FALSE(IsValid(kTablePileDc));
    EXPECT_FALSE(IsValid(kTablePileForces));
    EXPECT_TRUE(IsValid(kTableColumnDc));
    EXPECT_TRUE(IsValid(kTableColumnForces));
    EXPECT_TRUE(IsValid(kTableExtraMembers));
    forces.Of(data.m_Piers[0]).finite.piles = true;
    forces.Of(data.m_Piers[0]).finite.columns = false;
    EXPECT_TRUE(IsValid(kTablePileForces));
    EXPECT_FALSE(IsValid(kTableColumnDc));
    EXPECT_FALSE(IsValid(kTableColumnForces));
    forces.Of(data.m_Piers[0]).finite.columns = true;
    forces.Of(data.m_Piers[0]).finite.extraMembers = false;
    EXPECT_TRUE(IsValid(kTableColumnForces));
    EXPECT_FALSE(IsValid(kTableExtraMembers));
}

TEST_F(Collect, AnInvalidTableStaysInvalid) {
    AddFrame(4);
    forces.Of(data.m_Piers[0]).finite.piles = false;
    CollectMembers();
    forces.Of(data.m_Piers[0]).finite.piles = true;
    CollectMembers();
    EXPECT_EQ(results.valid, AllValidBut({1, 5}));
}

TEST_F(Collect, WithoutPiersNothingHappens) {
    CollectMembers();
    CollectTables({kTableCapShear, kTableCapMoment});
    EXPECT_EQ(results.valid, AllValidBut({}));
}

}  // namespace

}  // namespace lumerin
