// SPDX-License-Identifier: MIT
#include "text/OutOfRange.h"

#include <gtest/gtest.h>

namespace lumerin {

namespace {

TEST(OutOfRange, NamesTheNumberItsValueAndItsRange) {
    EXPECT_EQ(OutOfRange("column count", 9000000, 0, 1000000),
              "column count 9000000 is out of range (0 to 1000000)");
    EXPECT_EQ(OutOfRange("structure type", 12, -1, 8), "structure type 12 is out of range (-1 to 8)");
}

TEST(OutOfRange, ARangeWithoutAnEndShowsTheOtherOne) {
    EXPECT_EQ(OutOfRange("node count of a pile", 1, 2, kNoHighest),
              "node count of a pile 1 is out of range (2 or more)");
    EXPECT_EQ(OutOfRange("column section count", 2000, kNoLowest, 1000),
              "column section count 2000 is out of range (1000 or less)");
}

}  // namespace

}  // namespace lumerin
