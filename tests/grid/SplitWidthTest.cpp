// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "grid/GridHelpers.h"

namespace lumerin {

namespace {

std::vector<int> Split(const std::vector<int>& weights, int total) {
    std::vector<int> out(weights.size(), -1);
    SplitWidth(weights, out, total);
    return out;
}

TEST(SplitWidths, GiveWhatIsLeftToTheFirstColumns) {
    EXPECT_EQ(Split({1, 1, 1}, 100), (std::vector{34, 33, 33}));
    EXPECT_EQ(Split({1, 1, 1}, 101), (std::vector{34, 34, 33}));
    EXPECT_EQ(Split({5, 3, 2}, 17), (std::vector{9, 5, 3}));  // 8.5, 5.1, 3.4
    EXPECT_EQ(Split({3, 1}, 8), (std::vector{6, 2}));
    EXPECT_EQ(Split({0, 1}, 7), (std::vector{0, 7}));
    EXPECT_EQ(Split({1, 2}, 0), (std::vector{0, 0}));
}

TEST(SplitWidths, AddUpToTheTotal) {
    const std::vector<int> weights{7, 11, 2, 2, 13, 1};
    for (int total = 0; total < 500; ++total) {
        const std::vector<int> widths = Split(weights, total);
        ASSERT_EQ(std::accumulate(widths.begin(), widths.end(), 0), total);
    }
}

TEST(SplitWidths, WithoutWeightsLeaveTheColumnsAlone) {
    EXPECT_EQ(Split({}, 10), std::vector<int>{});
    EXPECT_EQ(Split({0, 0}, 10), (std::vector{-1, -1}));
}

}  // namespace

}  // namespace lumerin
