// SPDX-License-Identifier: MIT
#include "model/LimitStates.h"

#include <gtest/gtest.h>

namespace lumerin {

TEST(Combinations, TheNamesFollowTheCodes) {
    EXPECT_EQ(LimitStateName(101), "STRENGTH-I");
    EXPECT_EQ(LimitStateName(113), "FATIGUE-II");
    EXPECT_EQ(LimitStateName(211), "GROUP-VESSEL");
    EXPECT_EQ(LimitStateName(304), "LFD-GROUP-III");
    // The host names 305 as 307.
    EXPECT_EQ(LimitStateName(305), "LFD-GROUP-VI");
    EXPECT_EQ(LimitStateName(307), "LFD-GROUP-VI");
    EXPECT_EQ(LimitStateName(310), "LFD-GROUP-IX");
    for (const int code : {0, 100, 114, 200, 212, 300, 319}) EXPECT_EQ(LimitStateName(code), "ERROR 1");
}

}  // namespace lumerin
