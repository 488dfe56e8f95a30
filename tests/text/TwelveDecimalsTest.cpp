// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

#include "text/Format.h"

namespace lumerin {

// Twelve decimals of numbers that floats hold exactly are made by a short method; the C library, which rounds
// the exact binary value, is the reference.
namespace {

std::string JudgeTwelve(double value, int width) {
    std::array<char, 512> text{};
    std::snprintf(text.data(), text.size(), "%*.12f", width, value);
    return text.data();
}

void ExpectTwelveAsJudged(double value) {
    ASSERT_EQ(FormatFixed(value, 12, 20), JudgeTwelve(value, 20)) << std::hexfloat << value;
    ASSERT_EQ(FormatFixed(-value, 12), JudgeTwelve(-value, 0)) << std::hexfloat << value;
}

double Widened(std::uint32_t bits) {
    return static_cast<double>(std::bit_cast<float>(bits));
}

}  // namespace

TEST(TwelveDecimals, ShowsTheExactValueAsFarAsTheyReach) {
    EXPECT_EQ(FormatFixed(1.5, 12), "1.500000000000");
    // 0.1F is 0.100000001490116119...
    EXPECT_EQ(FormatFixed(static_cast<double>(0.1F), 12), "0.100000001490");
    EXPECT_EQ(FormatFixed(-1024.0625, 12, 20), "  -1024.062500000000");
    EXPECT_EQ(FormatFixed(16777216.0, 12), "16777216.000000000000");
}

TEST(TwelveDecimals, ExactHalvesGoToTheEvenDigit) {
    // 2^-13 is 0.0001220703125: thirteen decimals, the last a 5 after an even 2, and three times that after a
    // 7.
    EXPECT_EQ(FormatFixed(0x1p-13, 12), "0.000122070312");
    EXPECT_EQ(FormatFixed(3 * 0x1p-13, 12), "0.000366210938");
    for (int odd = 1; odd < 20000; odd += 2) ExpectTwelveAsJudged(odd * 0x1p-13);
}

TEST(TwelveDecimals, ACarryReachesTheDecimalThatItMust) {
    // The float nearest to a millionth is 9.99999997475e-7.
    EXPECT_EQ(FormatFixed(static_cast<double>(1e-6F), 12), "0.000001000000");
    EXPECT_EQ(FormatFixed(static_cast<double>(std::nextafter(1.0F, 0.0F)), 12), "0.999999940395");
    // A double can be closer below a whole number than any float; it takes the exact conversion.
    EXPECT_EQ(FormatFixed(std::nextafter(1.0, 0.0), 12), "1.000000000000");
}

TEST(TwelveDecimals, SmallNumbersRoundToZeroAndKeepTheirSign) {
    EXPECT_EQ(FormatFixed(-0.0, 12), "-0.000000000000");
    EXPECT_EQ(FormatFixed(static_cast<double>(-1e-13F), 12), "-0.000000000000");
    EXPECT_EQ(FormatFixed(static_cast<double>(6e-13F), 12), "0.000000000001");
    ExpectTwelveAsJudged(static_cast<double>(std::numeric_limits<float>::denorm_min()));
    ExpectTwelveAsJudged(static_cast<double>(std::numeric_limits<float>::min()));
}

TEST(TwelveDecimals, TheEdgesOfTheShortWayAreSeamless) {
    for (const float edge : {16777215.5F, 16777216.0F, 4e9F, 4294967296.0F, 1e10F, 3.4e38F}) {
        ExpectTwelveAsJudged(static_cast<double>(edge));
        ExpectTwelveAsJudged(static_cast<double>(std::nextafter(edge, 0.0F)));
        ExpectTwelveAsJudged(std::nextafter(static_cast<double>(edge), 0.0));
    }
    for (const double value : {0.1, 1.0 / 3.0, 1234.56789, 1e-12, 5e-13}) ExpectTwelveAsJudged(value);
}

TEST(TwelveDecimals, ValuesThatAreNotFiniteArePrintedAsTheRunTimeDoes) {
    EXPECT_EQ(FormatFixed(std::numeric_limits<double>::infinity(), 12, 6), "   inf");
    EXPECT_EQ(FormatFixed(-std::numeric_limits<double>::infinity(), 12, 6), "  -inf");
    EXPECT_EQ(FormatFixed(std::numeric_limits<double>::quiet_NaN(), 12, 6), "   nan");
}

TEST(TwelveDecimals, EveryExponentAndRandomFractionsAgreeWithTheExactWay) {
    std::mt19937 random(20261114);
    for (std::uint32_t exponent = 0; exponent < 255; ++exponent) {
        ExpectTwelveAsJudged(Widened(exponent << 23));
        ExpectTwelveAsJudged(Widened((exponent << 23) | 0x7FFFFFU));
        for (int i = 0; i < 400; ++i) {
            ExpectTwelveAsJudged(
                Widened((exponent << 23) | (static_cast<std::uint32_t>(random()) & 0x7FFFFFU)));
        }
    }
}

// The sizes that forces have, by the bits that decide: between 2^-20 and 2^24.
TEST(TwelveDecimals, RandomForcesAgreeWithTheExactWay) {
    std::mt19937 random(7);
    for (int i = 0; i < 200000; ++i) {
        const std::uint32_t exponent = 107 + static_cast<std::uint32_t>(random()) % 45;
        ExpectTwelveAsJudged(Widened((exponent << 23) | (static_cast<std::uint32_t>(random()) & 0x7FFFFFU)));
    }
}

}  // namespace lumerin
