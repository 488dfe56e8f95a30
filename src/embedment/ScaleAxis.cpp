// SPDX-License-Identifier: MIT
#include "embedment/ScaleAxis.h"

#include <cmath>

namespace lumerin {

namespace {

constexpr int kDecimals = 4;
constexpr int kPlainTicks = 5;
constexpr int kMostSteps = 10;

// How an axis whose length has that mantissa is divided: the first row whose limit is above it.
struct Division {
    double limit, step;
    int ticks;
    int digit;  // the step's first digit that is not 0
};

constexpr Division kDivisions[] = {
    {1.2, 0.2, 6, 2}, {1.5, 0.3, 5, 3}, {2.0, 0.5, 4, 5}, {2.5, 0.5, 5, 5}, {3.0, 0.5, 6, 5},
    {4.0, 1.0, 4, 1}, {5.0, 1.0, 5, 1}, {6.0, 1.0, 6, 1}, {8.0, 2.0, 4, 2}, {10.0, 2.0, 5, 2},
};

// The minimum's last digit, by its own digit from 0 to 9, for steps with the digit 1 to 9. They do not round
// in the plain way in every row; axes that were printed before stay as they are.
constexpr const char* kDownTo[] = {"0000255555", "0000004444", "0000333666", "0000044488", "0000055555",
                                   "0000006666", "0000000777", "0000000088", "0000000009"};
// Away from zero, for a minimum below 0; c: the digit runs out and carries.
constexpr const char* kAwayTo[] = {"123456789c", "22446688cc", "333366699c", "444448888c", "055555cccc",
                                   "6666666ccc", "77777777cc", "888888888c", "9999999999"};

double PowerOfTen(int exponent) {
    double power = 1.0;
    for (int i = 0; i < exponent; ++i) power *= 10.0;
    return power;
}

// How often a number has to be brought towards 1: below it multiplied until it is at least 1, above it
// divided until it is at most 1.
struct Scaled {
    int count = 0;
    double mantissa = 0.0;  // 1 up to 10; 10 for a power of ten that is not below 1
};

Scaled ScaleNumber(double number) {
    Scaled scaled{0, number};
    if (number < 1.0) {
        for (; scaled.mantissa < 1.0; ++scaled.count) scaled.mantissa *= 10.0;
        return scaled;
    }
    for (; scaled.mantissa > 1.0; ++scaled.count) scaled.mantissa /= 10.0;
    scaled.mantissa *= 10.0;
    return scaled;
}

const Division* FindDivision(double mantissa) {
    for (const Division& division : kDivisions) {
        if (division.limit > mantissa) return &division;
    }
    return nullptr;
}

double TruncatedTo(double value, int decimals) {
    const double power = PowerOfTen(decimals);
    return std::copysign(std::floor(std::fabs(value) * power) / power, value);
}

// The digit at the given decimal, as doubles have it: the last digits of a long fraction can come out one
// too small.
int DigitAt(double value, int decimal) {
    const double scaled = std::fabs(value) * PowerOfTen(decimal - 1);
    return static_cast<int>((scaled - std::floor(scaled)) * 10.0);
}

AxisScale LongAxis(double a, double b) {
    const double low = std::floor(a), high = std::ceil(b);
    const Scaled length = ScaleNumber(high - low);
    const Division* division = FindDivision(length.mantissa);
    if (division == nullptr) return {low, high, kPlainTicks, kDecimals};
    const double magnitude = PowerOfTen(length.count - 1);
    return {low, low + division->step * magnitude * division->ticks, division->ticks, kDecimals};
}

double SnappedMinimum(double low, double step, int decimals) {
    const int p = DigitAt(step, decimals), q = DigitAt(low, decimals);
    const bool below = low < 0.0;
    const bool known = p >= 1 && p <= 9 && q >= 0 && q <= 9;
    const char digit = known ? (below ? kAwayTo : kDownTo)[p - 1][q] : '0';
    const bool carry = digit == 'c';
    const double shift = (carry ? 0 : digit - '0') / PowerOfTen(decimals);
    double minimum = TruncatedTo(low, decimals - 1);
    minimum = below ? minimum - shift : minimum + shift;
    // With one decimal a carry goes down, with more it goes up; axes show it so.
    if (carry) minimum = decimals == 1 ? minimum - 1.0 : minimum + 1.0 / PowerOfTen(decimals - 1);
    return minimum;
}

AxisScale ShortAxis(double a, double b) {
    const Scaled length = ScaleNumber(b - a);
    const int decimals = length.count;
    const Division* division = FindDivision(length.mantissa);
    const double low = TruncatedTo(a, decimals);
    if (division == nullptr) return {low, b, kPlainTicks, kDecimals};
    const double step = division->digit / PowerOfTen(decimals);
    const double minimum = SnappedMinimum(low, step, decimals);
    double sum = minimum;
    int ticks = 0;
    for (; ticks < kMostSteps && sum <= b; ++ticks) sum += step;
    return {minimum, sum, ticks < 2 ? 2 : ticks, decimals};
}

}  // namespace

AxisScale ScaleAxis(double lo, double hi) {
    const double range = hi - lo;
    double a = lo - 0.1 * range, b = hi + 0.1 * range;
    const AxisScale plain{a, b, kPlainTicks, kDecimals};
    if (std::fabs(range) < 1e-7) {
        if (std::fabs(lo) <= 1e-6) return {-1.0, 1.0, 4, kDecimals};
        a = lo - 0.5;
        b = hi + 0.5;
    }
    const double length = b - a;
    // Equal values so large that the half is lost in them leave nothing to divide.
    if (!(length > 0.0) || !std::isfinite(length)) return plain;
    const AxisScale scale = length >= 1.0 ? LongAxis(a, b) : ShortAxis(a, b);
    return scale.min < scale.max ? scale : plain;
}

}  // namespace lumerin
