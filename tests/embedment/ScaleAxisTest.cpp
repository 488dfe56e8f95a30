// SPDX-License-Identifier: MIT
#include "embedment/ScaleAxis.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace lumerin {

namespace {

void ExpectAxis(double lo, double hi, double min, double max, int ticks, int decimals) {
    const AxisScale axis = ScaleAxis(lo, hi);
    const std::string range = std::to_string(lo) + " to " + std::to_string(hi);
    EXPECT_NEAR(axis.min, min, 1e-9 * std::max(1.0, std::fabs(min))) << range;
    EXPECT_NEAR(axis.max, max, 1e-9 * std::max(1.0, std::fabs(max))) << range;
    EXPECT_EQ(axis.ticks, ticks) << range;
    EXPECT_EQ(axis.decimals, decimals) << range;
}

}  // namespace

TEST(ScaleAxis, EqualValuesAtZeroGoFromMinusOneToOne) {
    ExpectAxis(0.0, 0.0, -1.0, 1.0, 4, 4);
    ExpectAxis(1e-6, 1e-6, -1.0, 1.0, 4, 4);
    ExpectAxis(-1e-6, -1e-6, -1.0, 1.0, 4, 4);
}

TEST(ScaleAxis, EqualValuesGetHalfAUnitOnEachSide) {
    // 2.5 to 3.5: 2 to 4, so 5 parts of 0.5 from 2.
    ExpectAxis(3.0, 3.0, 2.0, 4.5, 5, 4);
    // 2 to 3: a length of exactly 1 is a power of ten, which no division is made for; 5 plain parts.
    ExpectAxis(2.5, 2.5, 2.0, 3.0, 5, 4);
}

TEST(ScaleAxis, LongRangesStepByTheMantissaOfTheirLength) {
    // -5 to 55: length 60, mantissa 6, 4 parts of 20.
    ExpectAxis(0.0, 50.0, -5.0, 75.0, 4, 4);
    // 9 to 21 (10 to 20 and a tenth on each side): length 12, mantissa 1.2, so 5 parts of 3.
    ExpectAxis(10.0, 20.0, 9.0, 24.0, 5, 4);
    // -1 to 11: the same length, 5 parts of 3.
    ExpectAxis(0.0, 10.0, -1.0, 14.0, 5, 4);
    // -100 to 1000, length 1100: mantissa 1.1, 6 parts of 200.
    ExpectAxis(0.0, 1000.0 - 1000.0 / 11.0, -91.0, 1109.0, 6, 4);
}

// One range for each row of the divisions: a length of the mantissa just below the row's limit. With lo = 0
// and hi = 10 n / 12 the length is n, from -n / 12 on, taken apart from whole numbers to whole numbers.
TEST(ScaleAxis, EveryDivisionIsUsed) {
    struct Case {
        double length;
        int ticks;
        double step;
    };
    const Case cases[] = {{110, 6, 20},  {140, 5, 30},  {190, 4, 50},  {240, 5, 50},  {290, 6, 50},
                          {390, 4, 100}, {490, 5, 100}, {590, 6, 100}, {790, 4, 200}, {990, 5, 200}};
    for (const Case& c : cases) {
        // a = 12, b = 12 + length: both whole, so the axis begins at 12.
        const double range = c.length / 1.2, lo = 12.0 + 0.1 * range + 1e-9, hi = lo + range - 2e-9;
        ExpectAxis(lo, hi, 12.0, 12.0 + c.step * c.ticks, c.ticks, 4);
    }
}

TEST(ScaleAxis, ALengthOfAPowerOfTenKeepsItsEnds) {
    // 0.0 to 10.0 after widening: length 10, mantissa 10, no limit above it.
    const double range = 10.0 / 1.2 - 2e-9;
    ExpectAxis(range * 0.1 + 1e-9, range * 1.1 + 1e-9, 0.0, 10.0, 5, 4);
}

TEST(ScaleAxis, ShortRangesSnapToADigitOfTheStep) {
    // 0.2 to 0.7: widened 0.15 to 0.75, length 0.6, which is not below the limit 6: step 0.2; the digit 1 of
    // 0.1 goes down to 0. 0, 0.2, 0.4, 0.6, 0.8: four steps until 0.75 is passed.
    ExpectAxis(0.2, 0.7, 0.0, 0.8, 4, 1);
    // 0.93 to 0.985: widened 0.9245 to 0.9905, length 0.066, step 0.02; 0.92 keeps 0.9 and its digit 2 goes
    // to 0. 0.90, 0.92 ... 1.00: five steps until 0.9905 is passed.
    ExpectAxis(0.93, 0.985, 0.9, 1.0, 5, 2);
    // 0.41 to 0.44: widened 0.407 to 0.443, length 0.036, mantissa 3.6, step 0.01; the digit 0 stays.
    ExpectAxis(0.41, 0.44, 0.4, 0.45, 5, 2);
    // 0.4555 to 0.4705: widened 0.454 to 0.472, length 0.018, step 0.05: coarse, and it stays so. The digit 5
    // stays; 0.45, 0.50: one step passes 0.472, and the axis reports two.
    ExpectAxis(0.4555, 0.4705, 0.45, 0.5, 2, 2);
    // 0.155 to 0.265: widened 0.144 to 0.276, length 0.132, step 0.3; 0.1 goes down to 0.
    ExpectAxis(0.155, 0.265, 0.0, 0.3, 2, 1);
}

TEST(ScaleAxis, NegativeShortMinimaGoAwayFromZero) {
    // -0.44 to -0.41: widened -0.443 to -0.407; -0.44 keeps -0.4, and the digit 4 becomes 5: -0.45.
    // -0.45, -0.44 ... -0.40: five steps until -0.407 is passed.
    ExpectAxis(-0.44, -0.41, -0.45, -0.4, 5, 2);
    // -0.65 to -0.2: widened -0.695 to -0.155, length 0.54, step 0.1; the digit 6 becomes 7.
    // -0.7, -0.6 ... -0.1: six steps.
    ExpectAxis(-0.65, -0.2, -0.7, -0.1, 6, 1);
}

TEST(ScaleAxis, ACarryGoesDownWithOneDecimalAndUpWithMore) {
    // -0.9 to -0.4: widened -0.95 to -0.35, length 0.6, step 0.2; the digit 9 carries: 0 less 1.
    // -1.0, -0.8 ... -0.2: four steps until -0.35 is passed.
    ExpectAxis(-0.9, -0.4, -1.0, -0.2, 4, 1);
    // -0.49 to -0.445: widened -0.4945 to -0.4405, length 0.054, step 0.01; -0.49 carries: -0.4 and 0.1 more.
    // -0.3 is above the data, so no step is made and the plain widening stays.
    ExpectAxis(-0.49, -0.445, -0.4945, -0.4405, 5, 4);
}

TEST(ScaleAxis, AShortAxisCanLeaveDataOutside) {
    // 1.008 to 1.503: widened 0.9585 to 1.5525, length 0.594, step 0.1. The digit 9 of 0.9 goes down to 5;
    // ten steps from 0.5, and no more, end at 1.5, below the data.
    ExpectAxis(1.008, 1.503, 0.5, 1.5, 10, 1);
    // -1.005 to -0.856: widened -1.0199 to -0.8411, length 0.1788, step 0.5. -1.0199 is cut to -1.0, above
    // the data, and its digit 0 stays. One step passes -0.8411, and the axis says two.
    ExpectAxis(-1.005, -0.856, -1.0, -0.5, 2, 1);
}

TEST(ScaleAxis, AMinimumBetweenZeroAndTheStepHasNoSign) {
    // -0.01 to 0.5: widened -0.061 to 0.551, length 0.612, step 0.2; truncated to one decimal it is 0.
    const AxisScale axis = ScaleAxis(-0.01, 0.5);
    EXPECT_EQ(axis.min, 0.0);
    EXPECT_FALSE(std::signbit(axis.min));
    EXPECT_NEAR(axis.max, 0.6, 1e-12);
    EXPECT_EQ(axis.ticks, 3);
}

TEST(ScaleAxis, EqualValuesTooLargeForTheHalfStayAsTheyAre) {
    const double huge = 1e17;
    const AxisScale axis = ScaleAxis(huge, huge);
    EXPECT_EQ(axis.min, huge);
    EXPECT_EQ(axis.max, huge);
    EXPECT_EQ(axis.ticks, 5);
}

TEST(ScaleAxis, NumbersThatAreNotFiniteEnd) {
    const double inf = std::numeric_limits<double>::infinity(), nan = std::nan("");
    for (const double lo : {-inf, nan, 0.0, -1e308, 1e308}) {
        for (const double hi : {inf, nan, 1e308}) EXPECT_GE(ScaleAxis(lo, hi).ticks, 2);
    }
}

namespace {

void ExpectSoundAxis(double lo, double hi) {
    const AxisScale axis = ScaleAxis(lo, hi);
    ASSERT_TRUE(std::isfinite(axis.min) && std::isfinite(axis.max)) << lo << " to " << hi;
    EXPECT_GE(axis.ticks, 2) << lo << " to " << hi;
    EXPECT_LE(axis.ticks, 10) << lo << " to " << hi;
    EXPECT_GE(axis.decimals, 1) << lo << " to " << hi;
    EXPECT_LE(axis.decimals, 8) << lo << " to " << hi;
    const bool lengthIsLost = lo - 0.5 == lo;
    if (lengthIsLost && hi == lo) {
        EXPECT_EQ(axis.min, axis.max);
        return;
    }
    EXPECT_LT(axis.min, axis.max) << lo << " to " << hi;
    const double length = 1.2 * (hi - lo);
    // Long axes hold their data on both sides and are at most about twice as long.
    if (length >= 1.0) {
        EXPECT_LE(axis.min, lo) << lo << " to " << hi;
        EXPECT_GE(axis.max, hi) << lo << " to " << hi;
        EXPECT_LE(axis.max - axis.min, 2.0 * (length + 2.0)) << lo << " to " << hi;
        EXPECT_EQ(axis.decimals, 4);
    } else if (hi > lo && lo >= 0.0) {
        // A short axis of values that are not negative begins at or below them.
        EXPECT_LE(axis.min, lo) << lo << " to " << hi;
    }
}

}  // namespace

TEST(ScaleAxis, EveryRangeOfEveryMagnitudeGetsASoundAxis) {
    std::mt19937 random(20);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    for (int exponent = -12; exponent <= 300; ++exponent) {
        for (int range = -9; range <= exponent + 2 && range <= 300; ++range) {
            for (int i = 0; i < 8; ++i) {
                const double lo = mantissa(random) * std::pow(10.0, exponent);
                ExpectSoundAxis(lo, lo + std::fabs(mantissa(random)) * std::pow(10.0, range));
            }
        }
    }
}

TEST(ScaleAxis, EveryPairOfSmallWholeAndDecimalNumbersGetsASoundAxis) {
    for (const double unit : {1.0, 0.1, 0.01, 0.001, 0.0001, 0.25}) {
        for (int lo = -60; lo <= 60; ++lo) {
            for (int hi = lo; hi <= 60; ++hi) ExpectSoundAxis(lo * unit, hi * unit);
        }
    }
}

}  // namespace lumerin
