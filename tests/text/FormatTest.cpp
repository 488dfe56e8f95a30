// SPDX-License-Identifier: MIT
// Numbers to text. The C library, under its own locale, is the reference for the formats that it has.
#include "text/Format.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>

namespace lumerin {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kSpecialValues[] = {0.0,
                                     -0.0,
                                     kInfinity,
                                     -kInfinity,
                                     kNotANumber,
                                     std::numeric_limits<double>::max(),
                                     std::numeric_limits<double>::lowest(),
                                     std::numeric_limits<double>::min(),
                                     std::numeric_limits<double>::denorm_min(),
                                     -std::numeric_limits<double>::denorm_min(),
                                     0.005,
                                     -0.005,
                                     0.0049999999999999,
                                     9.995,
                                     99.995,
                                     999999.5,
                                     999999.4999999,
                                     1e15 + 0.5,
                                     9007199254740993.0,
                                     1e22,
                                     -1e23};

std::string JudgeFixed(double value, int decimals, int width) {
    std::array<char, 512> text{};
    std::snprintf(text.data(), text.size(), "%*.*f", width, decimals, value);
    return text.data();
}

std::string JudgeGeneral(double value) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%g", value);
    return text.data();
}

// Any bit pattern; every exponent is equally likely.
double RandomBits(std::mt19937_64& random) {
    return std::bit_cast<double>(random());
}

// The sizes that forces have, many of them a few steps from a tie of the last decimal.
double RandomForce(std::mt19937_64& random) {
    const auto hundredths = static_cast<double>(static_cast<std::int64_t>(random() % 2'000'001) - 1'000'000);
    double value = hundredths / 200.0;
    for (std::uint64_t steps = random() % 3; steps > 0; --steps) {
        value = std::nextafter(value, random() % 2 == 0 ? kInfinity : -kInfinity);
    }
    return value;
}

TEST(Fixed, SpecialValuesAreAsTheCLibraryPrintsThem) {
    for (const double value : kSpecialValues) {
        for (const int decimals : {0, 1, 2, 3, 5, 6}) {
            for (const int width : {0, 9, 11}) {
                EXPECT_EQ(FormatFixed(value, decimals, width), JudgeFixed(value, decimals, width));
            }
        }
    }
}

TEST(Fixed, RandomValuesAreAsTheCLibraryPrintsThem) {
    std::mt19937_64 random(20261114);
    for (int i = 0; i < 200'000; ++i) {
        const double value = i % 4 == 0 ? RandomBits(random) : RandomForce(random);
        if (std::isnan(value)) continue;  // the sign of a not-a-number is not defined
        const int decimals = i % 7;
        ASSERT_EQ(FormatFixed(value, decimals, 10), JudgeFixed(value, decimals, 10))
            << std::hexfloat << value;
    }
}

TEST(Fixed, FloatsThatWereWidenedAreAsTheCLibraryPrintsThem) {
    std::mt19937 random(7);
    for (int i = 0; i < 100'000; ++i) {
        const float value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isnan(value)) continue;
        const double wide = static_cast<double>(value);
        ASSERT_EQ(FormatFixed(wide, 2, 9), JudgeFixed(wide, 2, 9)) << std::hexfloat << wide;
    }
}

TEST(Fixed, TiesOfTheBinaryValueGoToTheEvenDigit) {
    EXPECT_EQ(FormatFixed(0.125, 2), "0.12");
    EXPECT_EQ(FormatFixed(0.375, 2), "0.38");
    EXPECT_EQ(FormatFixed(-0.625, 2), "-0.62");
    EXPECT_EQ(FormatFixed(2.5, 0), "2");
    EXPECT_EQ(FormatFixed(3.5, 0), "4");
    EXPECT_EQ(FormatFixed(0.5, 0), "0");
    // No ties: the nearest doubles are below 1.005, 2.675 and 1.115.
    EXPECT_EQ(FormatFixed(1.005, 2), "1.00");
    EXPECT_EQ(FormatFixed(2.675, 2), "2.67");
    EXPECT_EQ(FormatFixed(1.115, 2), "1.11");
}

TEST(Fixed, SmallNegativesKeepTheirSign) {
    EXPECT_EQ(FormatFixed(-0.001, 2), "-0.00");
    EXPECT_EQ(FormatFixed(-0.0, 2), "-0.00");
}

TEST(Fixed, WidthPadsOnTheLeftAndNeverCuts) {
    EXPECT_EQ(FormatFixed(-12.34, 2, 9), "   -12.34");
    EXPECT_EQ(FormatFixed(-12.34, 2, 6), "-12.34");
    EXPECT_EQ(FormatFixed(1234567.0, 2, 6), "1234567.00");
    EXPECT_EQ(FormatFixed(kNotANumber, 2, 6), "   nan");
}

TEST(Fixed, AppendsAfterWhatIsThere) {
    std::string text = "FAX";
    AppendFixed(text, 1.5, 2, 6);
    AppendInt(text, 42, 4);
    AppendIntBlankZero(text, 0, 3);
    AppendGeneral(text, 0.5);
    EXPECT_EQ(text, "FAX  1.50  42   0.5");
}

TEST(Integers, AreRightAligned) {
    EXPECT_EQ(FormatInt(0), "0");
    EXPECT_EQ(FormatInt(0, 5), "    0");
    EXPECT_EQ(FormatInt(-17, 5), "  -17");
    EXPECT_EQ(FormatInt(123456, 5), "123456");
    EXPECT_EQ(FormatInt(std::numeric_limits<long long>::min()), "-9223372036854775808");
    EXPECT_EQ(FormatInt(std::numeric_limits<long long>::max(), 20), " 9223372036854775807");
}

// "%5.i": an empty precision prints no digit for zero.
TEST(Integers, ZeroPrintsAsBlanksWhereThePrecisionIsEmpty) {
    const auto format = [](long long value, int width) {
        std::string text;
        AppendIntBlankZero(text, value, width);
        return text;
    };
    EXPECT_EQ(format(0, 5), "     ");
    EXPECT_EQ(format(0, 0), "");
    EXPECT_EQ(format(7, 5), "    7");
    EXPECT_EQ(format(-7, 5), "   -7");
    EXPECT_EQ(format(1234567, 5), "1234567");
}

TEST(General, PrintsSixDigitsWithoutTrailingZeros) {
    EXPECT_EQ(FormatGeneral(0.0), "0");
    EXPECT_EQ(FormatGeneral(-0.0), "-0");
    EXPECT_EQ(FormatGeneral(48.0), "48");
    EXPECT_EQ(FormatGeneral(123456.7), "123457");
    EXPECT_EQ(FormatGeneral(1234567.0), "1.23457e+06");
    EXPECT_EQ(FormatGeneral(999999.5), "1e+06");
    EXPECT_EQ(FormatGeneral(0.0001), "0.0001");
    EXPECT_EQ(FormatGeneral(0.00001), "1e-05");
    EXPECT_EQ(FormatGeneral(-1e100), "-1e+100");
}

TEST(General, RandomValuesAreAsTheCLibraryPrintsThem) {
    std::mt19937_64 random(99);
    for (int i = 0; i < 100'000; ++i) {
        const double value = i % 2 == 0 ? RandomBits(random) : RandomForce(random);
        if (std::isnan(value)) continue;
        ASSERT_EQ(FormatGeneral(value), JudgeGeneral(value)) << std::hexfloat << value;
    }
}

TEST(Texts, NumberTakesThePlaceOfItsMark) {
    EXPECT_EQ(FormatNumbered(".PLF%i", 2), ".PLF2");
    EXPECT_EQ(FormatNumbered(".vmd%d", 12), ".vmd12");
    EXPECT_EQ(FormatNumbered("Trial %d of the run", -1), "Trial -1 of the run");
    EXPECT_EQ(FormatNumbered(".PLF", 2), ".PLF");
}

TEST(Texts, PaddingLeavesLongTextsAlone) {
    EXPECT_EQ(PadRight("ab", 4), "ab  ");
    EXPECT_EQ(PadRight("abcd", 4), "abcd");
    EXPECT_EQ(PadRight("abcdef", 4), "abcdef");
    EXPECT_EQ(PadLeft("ab", 4), "  ab");
    EXPECT_EQ(PadLeft("abcdef", 4), "abcdef");
    EXPECT_EQ(PadLeft("", 0), "");
    EXPECT_EQ(Blanks(3), "   ");
}

TEST(Texts, TrimmingTakesWhiteSpaceOfAllKinds) {
    EXPECT_EQ(Trim(" \t\r\n\v\f a b \t"), "a b");
    EXPECT_EQ(TrimLeft("  a "), "a ");
    EXPECT_EQ(TrimRight("  a "), "  a");
    EXPECT_EQ(Trim(" \t "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(Texts, OnlyBlanksAreRemoved) {
    EXPECT_EQ(RemoveBlanks(" a b\tc  "), "ab\tc");
    EXPECT_EQ(RemoveBlanks("   "), "");
}

TEST(Texts, EveryOccurrenceIsReplacedOnce) {
    EXPECT_EQ(ReplaceAll("C:\\a\\b", "\\", "\\\\"), "C:\\\\a\\\\b");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("", "x", "y"), "");
}

// The form of a number for the spreadsheet program: "%.5f" holds no letter or symbol, "-" in first
// place only, at most one ".".
bool IsPlainNumberText(const std::string& text) {
    constexpr const char* forbidden =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ!@#$%^&*{}[]|;:()_~`+=//?,<>";
    if (text.find_first_of(forbidden) != std::string::npos) return false;
    if (text.find('-', 1) != std::string::npos) return false;
    return text.find('.') == text.rfind('.');
}

TEST(NumberTest, EqualsTheTestOfThePrintedCharacters) {
    for (const double value : kSpecialValues) {
        EXPECT_EQ(IsValidNumber(value), IsPlainNumberText(JudgeFixed(value, 5, 0))) << value;
    }
    std::mt19937_64 random(5);
    for (int i = 0; i < 100'000; ++i) {
        std::uint64_t bits = random();
        if (i % 3 == 0) bits |= 0x7FF0000000000000U;  // infinities and not-a-numbers
        if (i % 30 == 0) bits &= 0xFFF0000000000000U;
        const double value = std::bit_cast<double>(bits);
        ASSERT_EQ(IsValidNumber(value), IsPlainNumberText(JudgeFixed(value, 5, 0))) << bits;
    }
}

}  // namespace

}  // namespace lumerin
