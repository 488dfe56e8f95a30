// SPDX-License-Identifier: MIT
// The words that all writers share.
#include "tables/Words.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace lumerin {

namespace {

std::string Title(int table, int type) {
    return TableTitle(TableId{table}, StructureType{type});
}

// One expected title for each of the types given; all other types are expected to have none.
void ExpectTitles(int table, const std::vector<std::pair<std::set<int>, std::string>>& titles) {
    for (int type = 0; type < kStructureTypes; ++type) {
        std::string expected;
        for (const auto& [types, title] : titles) {
            if (types.contains(type)) expected = title;
        }
        EXPECT_EQ(Title(table, type), expected) << "table " << table << ", type " << type;
    }
}

TEST(Titles, OfPilesLeaveOutTheTypeWithoutPiles) {
    const std::set<int> piles{0, 1, 2, 3, 4, 5, 6, 7};
    ExpectTitles(0, {{piles, "Maximum Axial Forces at All Pile Heads"}});
    ExpectTitles(8, {{piles, "Internal Forces at Pile Heads"}});
    ExpectTitles(1, {{piles, "Maximum Demand/Capacity Ratio For All Pile Properties (Cross Sections)"},
                     {{8}, "Maximum Demand/Capacity Ratio For All Column Properties (Cross Sections)"}});
    ExpectTitles(5, {{piles, "Maximum Forces for All Pile Properties (Cross Sections)"},
                     {{8}, "Maximum Forces for All Column Properties (Cross Sections)"}});
}

TEST(Titles, OfColumnsSayWallForWalls) {
    ExpectTitles(2, {{{0, 3, 8}, "Maximum Demand/Capacity Ratio For All Column Properties (Cross Sections)"},
                     {{4, 5}, "Maximum Demand/Capacity Ratio For All Wall Properties (Cross Sections)"}});
    ExpectTitles(6, {{{0, 3, 8}, "Maximum Forces for All Column Properties (Cross Sections)"},
                     {{4, 5}, "Maximum Forces for All Wall Properties (Cross Sections)"}});
}

TEST(Titles, OfCapsNameTheComponentForPiersAlone) {
    ExpectTitles(
        3,
        {{{0}, "Pier Cap Shear F22 Design"}, {{3}, "Pier Cap Shear Design"}, {{7}, "Bent Cap Shear Design"}});
    ExpectTitles(4, {{{0}, "Pier Cap M33 Moment Design"},
                     {{3}, "Pier Cap Moment Design"},
                     {{7}, "Bent Cap Moment Design"}});
}

TEST(Titles, ThatServeAllTypesKeepTheirTrailingBlanks) {
    const std::set<int> all{0, 1, 2, 3, 4, 5, 6, 7, 8};
    ExpectTitles(7, {{all, "Maximum Forces for All Extra Member Properties "}});
    ExpectTitles(9, {{all, "Full Report"}, {{3}, "Full Report "}});
    ExpectTitles(10, {{all, "Title Page"}});
}

TEST(Titles, OutsideTheCatalogueAreEmpty) {
    EXPECT_EQ(Title(-1, 0), "");
    EXPECT_EQ(Title(11, 0), "");
    EXPECT_EQ(Title(0, -1), "");
    EXPECT_EQ(Title(0, 9), "");
}

TEST(Words, ForTheVerticalMembersFollowTheType) {
    const char* shortNames[] = {"Col", "", "", "Mst", "Wal", "Wal", "", "Pil", ""};
    const char* names[] = {"Column", "", "", "Mast", "Wall", "Wall", "", "Pile", ""};
    for (int type = 0; type < kStructureTypes; ++type) {
        EXPECT_STREQ(MemberShortName(StructureType{type}), shortNames[type]);
        EXPECT_STREQ(MemberName(StructureType{type}), names[type]);
    }
    EXPECT_STREQ(MemberName(StructureType{9}), "");
    EXPECT_STREQ(MemberShortName(StructureType{-1}), "");
}

// Index / 2 is the force component; the thirteenth is the ratio.
TEST(Words, ForExtremesAlternateMaxAndMin) {
    const char* components[] = {"Axial", "f22", "f33", "m22", "m33", "Torque"};
    for (std::size_t i = 0; i < 12; ++i) {
        const std::string expected = std::string(i % 2 == 0 ? "Max " : "Min ") + components[i / 2];
        EXPECT_EQ(g_ExtremeNames[i], expected);
    }
    EXPECT_STREQ(g_ExtremeNames[12], "Max D/C");
}

TEST(Words, ForDatesBeginTheWeekOnMonday) {
    EXPECT_STREQ(g_MonthNames[0], "January");
    EXPECT_STREQ(g_MonthNames[11], "December");
    EXPECT_STREQ(g_DayNames[0], "Monday");
    EXPECT_STREQ(g_DayNames[6], "Sunday");
}

}  // namespace

}  // namespace lumerin
