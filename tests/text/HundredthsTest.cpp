// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "text/Format.h"

namespace lumerin {

// Two decimals are made by a short method where the rounding is certain; the C library, which rounds the
// exact binary value, is the reference.
namespace {

std::string Judge(double value, int width) {
    std::array<char, 512> text{};
    std::snprintf(text.data(), text.size(), "%*.2f", width, value);
    return text.data();
}

void ExpectAsJudged(double value) {
    ASSERT_EQ(FormatFixed(value, 2, 10), Judge(value, 10)) << std::hexfloat << value;
    ASSERT_EQ(FormatFixed(-value, 2, 9), Judge(-value, 9)) << std::hexfloat << value;
}

}  // namespace

TEST(Hundredths, HalvesRoundToTheEvenDigitWhenTheyAreExact) {
    EXPECT_EQ(FormatFixed(0.125, 2), "0.12");
    EXPECT_EQ(FormatFixed(0.375, 2), "0.38");
    EXPECT_EQ(FormatFixed(-2.625, 2), "-2.62");
}

TEST(Hundredths, DecimalHalvesGoByTheBinaryValue) {
    // As doubles the first three are a little below the half, the last one is exactly the half.
    EXPECT_EQ(FormatFixed(1.005, 2), "1.00");
    EXPECT_EQ(FormatFixed(2.675, 2), "2.67");
    EXPECT_EQ(FormatFixed(1.115, 2), "1.11");
    EXPECT_EQ(FormatFixed(1.125, 2), "1.12");
    for (double half = 0.005; half < 3000.0; half += 0.01) ExpectAsJudged(half);
}

TEST(Hundredths, NegativeValuesKeepTheirSignWhenTheyRoundToZero) {
    EXPECT_EQ(FormatFixed(-0.001, 2), "-0.00");
    EXPECT_EQ(FormatFixed(-0.0, 2), "-0.00");
    EXPECT_EQ(FormatFixed(0.0, 2, 6), "  0.00");
}

TEST(Hundredths, TheEdgeOfTheShortWayIsSeamless) {
    for (const double edge : {9999999.99, 9999999.994, 9999999.996, 1e7, 1e7 + 0.005, 42949672.95, 4.3e7}) {
        ExpectAsJudged(edge);
        ExpectAsJudged(std::nextafter(edge, 0.0));
        ExpectAsJudged(std::nextafter(edge, 1e9));
    }
}

TEST(Hundredths, ValuesThatAreNotFiniteArePrintedAsTheRunTimeDoes) {
    EXPECT_EQ(FormatFixed(std::numeric_limits<double>::infinity(), 2, 6), "   inf");
    EXPECT_EQ(FormatFixed(-std::numeric_limits<double>::infinity(), 2, 6), "  -inf");
    EXPECT_EQ(FormatFixed(std::numeric_limits<double>::quiet_NaN(), 2, 6), "   nan");
}

TEST(Hundredths, RandomFloatsAndDoublesAgreeWithTheExactWay) {
    std::mt19937_64 random(20261114);
    for (int i = 0; i < 200000; ++i) {
        const auto bits = static_cast<std::uint32_t>(random());
        float single = 0.0F;
        static_assert(sizeof single == sizeof bits);
        std::memcpy(&single, &bits, sizeof single);
        if (std::isfinite(single) && std::fabs(single) < 1e12F) ExpectAsJudged(static_cast<double>(single));
        ExpectAsJudged(static_cast<double>(random() % 4000000000ULL) / 1000.0);
    }
}

}  // namespace lumerin
