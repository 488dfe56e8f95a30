// SPDX-License-Identifier: MIT
#include "Worksheets.h"
#include "writers/SheetRows.h"

namespace lumerin {

// The announced rows are formulas of their own. They reach at least the rows that are written, except:
// - table 6, a substructure without columns that is no pile bent: its blocks are written, not announced;
// - tables 5, 6 and 7, a block without a single section: its head has a row more than is announced.
namespace {

using namespace sheets;

class SheetRowCounts : public SheetTest {
  protected:
    // Two substructures of two piles; sections by family of member.
    void Make(CodeFamily family, std::initializer_list<int> classes, std::size_t piers = 2,
              StructureType type = kTypePier) {
        MakePiers(std::vector<PierShape>(
            piers,
            {.type = type, .piles = 2, .columns = 1, .extraMembers = 1, .cases = 1, .family = family}));
        PresentClasses(classes);
        for (CPier& pier : data.m_Piers) {
            pier.m_nPileSections = 2;
            pier.m_nColumnSections = 3;
            pier.m_nXMemberSections = 1;
        }
        AllocateResults();
        for (CPier& pier : data.m_Piers) {
            pier.m_nCapShearPoints = 10;
            pier.m_nCapMomentPoints = 7;
        }
    }
    long long RowsOf(int table) { return ExpandedRows(MakeReport(), TableId{table}); }
};

// One block each. Worked from the formulas: table 0: 3 + 2 * (2 + 4); 1: 1 + 2 * (2 + 3 + 3);
// 2: 1 + 2 * (3 + 3 + 3); 3: 2 + 9 + 2 * (6 + 8 + 20) + 1; 4: 2 + 8 + 2 * (7 + 8 + 14) + 1;
// 5: 1 + 2 * (2 + 26 + 3); 6: 1 + 2 * (2 + 39 + 3); 7: 1 + 2 * (2 + 13 + 3); 8: 2 * 1 + 5.
TEST_F(SheetRowCounts, WithoutCombinations) {
    Make(kFamilyNone, {});
    const long long expected[] = {15, 17, 19, 80, 69, 63, 89, 37, 7};
    for (int table = 0; table < 9; ++table) EXPECT_EQ(RowsOf(table), expected[table]) << table;
}

// Two classes, fatigue only in table 4 a third: 0: 3 + 2 * (2 + 6) * 2; 1: 1 + 2 * (8 * 2 + 2);
// 2: 1 + 2 * (2 + 9 * 2); 3: 2 + 9 + 2 * (6 + 32 * 2) + 1; 4: 2 + 8 + 2 * (7 + 26 * 3) + 1;
// 5: 1 + 2 * (2 + 31 * 2); 6: 1 + 2 * (2 + 44 * 2); 7: 1 + 2 * (2 + 18 * 2).
TEST_F(SheetRowCounts, LrfdCountsTheClassesThatArePresent) {
    Make(kFamilyLrfd, {kStrength, kExtreme, kFatigue});
    const long long expected[] = {35, 37, 41, 152, 181, 129, 181, 77};
    for (int table = 0; table < 8; ++table) EXPECT_EQ(RowsOf(table), expected[table]) << table;
}

// One block, whatever the classes are: 3 + 2 * (2 + 6), 1 + 2 * (8 + 2).
TEST_F(SheetRowCounts, LfdAndUnknownFamiliesHaveOneBlock) {
    for (const CodeFamily family : {kFamilyLfd, CodeFamily{3}}) {
        Make(family, {});
        EXPECT_EQ(RowsOf(kTableMaxAxial), 19);
        EXPECT_EQ(RowsOf(kTablePileDc), 21);
    }
}

TEST_F(SheetRowCounts, AremaCountsTwoClasses) {
    Make(kFamilyArema, {kStrength, kService}, 1);
    EXPECT_EQ(RowsOf(kTableMaxAxial), 19);
    PresentClasses({kService});
    EXPECT_EQ(RowsOf(kTableMaxAxial), 11);
}

TEST_F(SheetRowCounts, PileBentIsItsHeadingInTheColumnRatios) {
    Make(kFamilyNone, {}, 1, kTypePileBent);
    EXPECT_EQ(RowsOf(kTableColumnDc), 4);
    Make(kFamilyLfd, {}, 1, kTypePileBent);
    EXPECT_EQ(RowsOf(kTableColumnDc), 3);
}

TEST_F(SheetRowCounts, KeyRowsGoByTheTypes) {
    const auto keyRows = [this](int table) {
        return RowsOf(table) - 2 - (table == kTableCapShear ? 14 : 15);
    };
    MakePiers({{.type = kTypeMast}});
    EXPECT_EQ(keyRows(kTableCapShear), 9);
    EXPECT_EQ(keyRows(kTableCapMoment), 8);
    const auto several = [this](int table) {
        return RowsOf(table) - 2 - 2 * (table == kTableCapShear ? 14 : 15) - 1;
    };
    MakePiers({{.type = kTypePier}, {.type = kTypePileBent}});
    EXPECT_EQ(several(kTableCapShear), 10);
    EXPECT_EQ(several(kTableCapMoment), 9);
    MakePiers({{.type = kTypePier}, {.type = kTypePier}});
    EXPECT_EQ(several(kTableCapShear), 9);
    MakePiers({{.type = kTypeMast}, {.type = kTypeWallA}});
    EXPECT_EQ(several(kTableCapShear), 8);
    EXPECT_EQ(several(kTableCapMoment), 7);
}

TEST_F(SheetRowCounts, WrittenRowsStayWithinTheAnnouncedOnes) {
    for (const std::size_t piers : {std::size_t{1}, std::size_t{3}}) {
        for (const CodeFamily family : {kFamilyNone, kFamilyLrfd, kFamilyLfd, kFamilyArema, CodeFamily{3}}) {
            for (const StructureType type : {kTypePier, kTypePileBent, kTypeWallA}) {
                Make(family, {kStrength, kService}, piers, type);
                for (CPier& pier : data.m_Piers) pier.m_nCapShearPoints = pier.m_nCapMomentPoints = 0;
                for (int table = 0; table < 9; ++table) {
                    for (const std::string& sheet : Worksheets(Written(table))) {
                        EXPECT_LE(CountedRows(sheet), AnnouncedRows(sheet))
                            << table << " " << family << " " << type;
                    }
                }
            }
        }
    }
}

// The two exceptions.
TEST_F(SheetRowCounts, SubstructureWithoutColumnsOverrunsTheColumnForces) {
    MakePiers({{.type = kTypePier}});
    Pier().m_nColumnSections = 1;
    AllocateResults();
    const std::string sheet = Written(kTableColumnForces);
    EXPECT_EQ(AnnouncedRows(sheet), 3);
    EXPECT_EQ(CountedRows(sheet), 3 + 4 + 12);
}

TEST_F(SheetRowCounts, BlockWithoutSectionOverrunsByOne) {
    MakePiers({{.type = kTypePier}});
    const std::string sheet = Written(kTablePileForces);
    EXPECT_EQ(AnnouncedRows(sheet), 6);
    EXPECT_EQ(CountedRows(sheet), 7);
}

}  // namespace

}  // namespace lumerin
