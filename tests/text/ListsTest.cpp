// SPDX-License-Identifier: MIT
#include "text/Lists.h"

#include <gtest/gtest.h>

namespace lumerin {
namespace {

using Parts = std::vector<std::string_view>;

TEST(SplitList, EmptyPartsAreParts) {
    EXPECT_EQ(SplitList("1,3"), (Parts{"1", "3"}));
    EXPECT_EQ(SplitList(""), (Parts{""}));
    EXPECT_EQ(SplitList(","), (Parts{"", ""}));
    EXPECT_EQ(SplitList("a,,b,"), (Parts{"a", "", "b", ""}));
}

TEST(LowerCase, OtherBytesAreUnchanged) {
    EXPECT_EQ(LowerCase("STRENGTH-Ib [@Z]"), "strength-ib [@z]");
    EXPECT_EQ(LowerCase("\xC4"), "\xC4");
}

}  // namespace
}  // namespace lumerin
