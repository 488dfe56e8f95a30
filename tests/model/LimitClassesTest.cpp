// SPDX-License-Identifier: MIT
// Limit states by family: their names and their classes.
#include "model/LimitStates.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

namespace lumerin {

namespace {

TEST(LimitStates, NamesAreListedByFamily) {
    EXPECT_STREQ(g_LimitStateNames[0][0], "STRENGTH-I");
    EXPECT_STREQ(g_LimitStateNames[12][0], "FATIGUE-II");
    EXPECT_STREQ(g_LimitStateNames[13][0], "");
    EXPECT_STREQ(g_LimitStateNames[1][1], "GROUP-IA");
    EXPECT_STREQ(g_LimitStateNames[10][1], "GROUP-VESSEL");
    EXPECT_STREQ(g_LimitStateNames[11][1], "");
    EXPECT_STREQ(g_LimitStateNames[9][2], "LFD-GROUP-IX");
    EXPECT_STREQ(g_LimitStateNames[10][2], "SLD-GROUP-I");
    EXPECT_STREQ(g_LimitStateNames[17][2], "SLD-GROUP-VIII");
    for (const auto& row : g_LimitStateNames) {
        for (const char* name : row) ASSERT_NE(name, nullptr);
    }
}

// The classes' first and last codes, and their neighbours.
TEST(LimitStates, ClassesFollowTheCodesOfTheirFamily) {
    const auto classOf = [](CodeFamily family, int code) {
        LimitClass limitClass{77};
        return FindLimitClass(family, code, limitClass) ? static_cast<int>(limitClass) : -1;
    };
    for (const auto& [code, limitClass] : std::initializer_list<std::pair<int, int>>{{100, -1},
                                                                                     {101, kStrength},
                                                                                     {105, kStrength},
                                                                                     {106, kExtreme},
                                                                                     {107, kExtreme},
                                                                                     {108, kService},
                                                                                     {111, kService},
                                                                                     {112, kFatigue},
                                                                                     {113, kFatigue},
                                                                                     {114, -1},
                                                                                     {301, -1}}) {
        EXPECT_EQ(classOf(kFamilyLrfd, code), limitClass) << code;
    }
    for (const auto& [code, limitClass] : std::initializer_list<std::pair<int, int>>{{300, -1},
                                                                                     {301, kStrength},
                                                                                     {310, kStrength},
                                                                                     {311, kService},
                                                                                     {318, kService},
                                                                                     {319, -1},
                                                                                     {101, -1}}) {
        EXPECT_EQ(classOf(kFamilyArema, code), limitClass) << code;
    }
    EXPECT_EQ(classOf(kFamilyLfd, 201), -1);
    EXPECT_EQ(classOf(kFamilyNone, 101), -1);
}

}  // namespace

}  // namespace lumerin
