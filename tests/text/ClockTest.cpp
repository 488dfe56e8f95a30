// SPDX-License-Identifier: MIT
#include "text/Clock.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace lumerin {

namespace {

TEST(DocumentTime, IsTheFixedTimeOfTheEnvironment) {
    ASSERT_EQ(setenv("LUMERIN_CLOCK", "2001-02-03T04:05:06", 1), 0);
    const LocalTime fixed = DocumentTime();
    ASSERT_EQ(unsetenv("LUMERIN_CLOCK"), 0);
    EXPECT_EQ(fixed.year, 2001);
    EXPECT_EQ(fixed.second, 6);
    EXPECT_GE(DocumentTime().year, 2024);
}

}  // namespace

}  // namespace lumerin
