// SPDX-License-Identifier: MIT
#include "compare/Tolerance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lumerin {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

bool Exceeds(double before, double after, Quantity quantity = Quantity::force) {
    return ChangeOf(before, after, quantity, {}).exceeds;
}

}  // namespace

TEST(Tolerance, AChangeMustBeAboveBothTolerances) {
    EXPECT_FALSE(Exceeds(1.0, 1.4));      // 40%, but 0.4 kips
    EXPECT_FALSE(Exceeds(1000.0, 1009));  // 9 kips, but less than 1%
    EXPECT_TRUE(Exceeds(100.0, 102.0));
}

// 0.52 - 0.51 is more than 0.01 in binary numbers.
TEST(Tolerance, ExactlyAtTheToleranceIsNoDifference) {
    EXPECT_FALSE(Exceeds(10.0, 10.5));
    EXPECT_TRUE(Exceeds(10.0, 10.50001));
    EXPECT_FALSE(Exceeds(-100.0, -99.0));  // 1% of the greater
    EXPECT_TRUE(Exceeds(-100.0, -98.9999));
    EXPECT_FALSE(Exceeds(0.51, 0.52, Quantity::ratio));
    EXPECT_FALSE(Exceeds(0.52, 0.51, Quantity::ratio));
    EXPECT_TRUE(Exceeds(0.51, 0.5200001, Quantity::ratio));
    EXPECT_FALSE(Exceeds(5.0, 6.0, Quantity::moment));
    EXPECT_TRUE(Exceeds(5.0, 6.001, Quantity::moment));
    EXPECT_FALSE(Exceeds(1.0, 1.001, Quantity::length));
    EXPECT_FALSE(Exceeds(200.0, 200.02, Quantity::length));
    EXPECT_TRUE(Exceeds(200.0, 200.03, Quantity::length));
}

TEST(Tolerance, BothOrdersAgree) {
    for (const auto& [a, b] : {std::pair(100.0, 101.005), std::pair(-3.0, 4.0), std::pair(0.0, 0.7)}) {
        const Change there = ChangeOf(a, b, Quantity::force, {}), back = ChangeOf(b, a, Quantity::force, {});
        EXPECT_EQ(there.exceeds, back.exceeds);
        EXPECT_EQ(there.difference, -back.difference);
        EXPECT_EQ(there.relative, -back.relative);
        EXPECT_EQ(there.times, back.times);
    }
    EXPECT_EQ(ChangeOf(-3.0, 3.0, Quantity::force, {}).relative, 2.0);
    EXPECT_EQ(ChangeOf(50.0, 100.0, Quantity::force, {}).relative, 0.5);
    EXPECT_EQ(ChangeOf(50.0, 100.0, Quantity::force, {}).times, 50.0);
}

TEST(Tolerance, OfZeroEveryDifferenceCounts) {
    const Tolerances none{0.0, 0.0, 0.0, 0.0};
    EXPECT_TRUE(ChangeOf(1.0, std::nextafter(1.0, 2.0), Quantity::force, none).exceeds);
    EXPECT_FALSE(ChangeOf(0.0, -0.0, Quantity::force, none).exceeds);
    EXPECT_TRUE(Exceeds(3.0, 4.0, Quantity::none));
    EXPECT_FALSE(Exceeds(3.0, 3.0, Quantity::none));
}

TEST(Tolerance, WhatIsNotFiniteIsTheSameAsItsKindAlone) {
    EXPECT_FALSE(Exceeds(kNotANumber, kNotANumber));
    EXPECT_FALSE(Exceeds(kInfinity, kInfinity));
    EXPECT_TRUE(Exceeds(kInfinity, -kInfinity));
    EXPECT_TRUE(Exceeds(kInfinity, 1.0));
    EXPECT_TRUE(Exceeds(1.0, kNotANumber));
    EXPECT_TRUE(Exceeds(kNotANumber, kInfinity));
    EXPECT_EQ(ChangeOf(1.0, kNotANumber, Quantity::force, {}).times, kInfinity);
}

}  // namespace lumerin
