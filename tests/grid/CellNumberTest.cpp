// SPDX-License-Identifier: MIT
#include "grid/CellNumber.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace lumerin {

namespace {

TEST(CellNumber, LeadingDigitsCountAsAnInteger) {
    EXPECT_EQ(ReadCellInt("12"), 12);
    EXPECT_EQ(ReadCellInt("  -7x"), -7);
    EXPECT_EQ(ReadCellInt("+3.9"), 3);
    EXPECT_EQ(ReadCellInt("x1"), 0);
    EXPECT_EQ(ReadCellInt(""), 0);
    EXPECT_EQ(ReadCellInt("-"), 0);
    EXPECT_EQ(ReadCellInt("- 1"), 0);
    EXPECT_EQ(ReadCellInt("0x1A"), 0);
}

TEST(CellNumber, WhiteSpaceOfEachKindMayComeFirst) {
    for (const char c : {' ', '\t', '\n', '\v', '\f', '\r'}) {
        EXPECT_EQ(ReadCellInt(std::string(1, c) + "8"), 8) << static_cast<int>(c);
    }
    EXPECT_EQ(ReadCellInt("\b8"), 0);
    EXPECT_EQ(ReadCellInt("\x0E"
                          "8"),
              0);
}

TEST(CellNumber, IntegersBeyondTheRangeReadAsTheNearest) {
    EXPECT_EQ(ReadCellInt("99999999999999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(ReadCellInt("-99999999999999999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(ReadCellInt("-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(ReadCellInt("4294967296"), std::numeric_limits<int>::max());
}

TEST(CellNumber, LeadingDigitsCountAsAReal) {
    EXPECT_DOUBLE_EQ(ReadCellDouble(" 2.5kip"), 2.5);
    EXPECT_DOUBLE_EQ(ReadCellDouble("-.5"), -0.5);
    EXPECT_DOUBLE_EQ(ReadCellDouble("+1e3"), 1000.0);
    EXPECT_DOUBLE_EQ(ReadCellDouble("1e"), 1.0);
    EXPECT_DOUBLE_EQ(ReadCellDouble("1,5"), 1.0);
    EXPECT_DOUBLE_EQ(ReadCellDouble(""), 0.0);
    EXPECT_DOUBLE_EQ(ReadCellDouble("NA"), 0.0);
    EXPECT_DOUBLE_EQ(ReadCellDouble("+-1"), 0.0);
}

TEST(CellNumber, WordsAndHexadecimalTextReadAsZero) {
    EXPECT_DOUBLE_EQ(ReadCellDouble("inf"), 0.0);
    EXPECT_DOUBLE_EQ(ReadCellDouble("-Infinity"), 0.0);
    EXPECT_DOUBLE_EQ(ReadCellDouble("nan"), 0.0);
    EXPECT_DOUBLE_EQ(ReadCellDouble("0x1A"), 0.0);
}

TEST(CellNumber, RealsBeyondTheRangeAreLargeOrSmall) {
    EXPECT_EQ(ReadCellDouble("1e999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(ReadCellDouble("-1e999"), -std::numeric_limits<double>::infinity());
    EXPECT_DOUBLE_EQ(ReadCellDouble("1e-999"), 0.0);
    EXPECT_DOUBLE_EQ(ReadCellDouble("1e99999999999999999999"), std::numeric_limits<double>::infinity());
    EXPECT_DOUBLE_EQ(ReadCellDouble("1e-99999999999999999999"), 0.0);
}

TEST(CellNumber, ThePlaceOfThePointDecidesWithTheExponentWhatIsBeyondTheRange) {
    const double infinity = std::numeric_limits<double>::infinity();
    const std::string zeros(400, '0');
    EXPECT_EQ(ReadCellDouble("0.5e-999"), 0.0);
    EXPECT_EQ(ReadCellDouble("12.5e-999"), 0.0);
    EXPECT_EQ(ReadCellDouble("0.5e+999"), infinity);
    EXPECT_EQ(ReadCellDouble("1" + zeros), infinity);
    EXPECT_EQ(ReadCellDouble("1" + zeros + ".5"), infinity);
    EXPECT_EQ(ReadCellDouble("1" + zeros + ".5.5"), infinity);
    EXPECT_EQ(ReadCellDouble("0." + zeros + "1"), 0.0);
    EXPECT_EQ(ReadCellDouble("000." + zeros + "1e9"), 0.0);       // 1e-392
    EXPECT_EQ(ReadCellDouble("0." + zeros + "1e900"), infinity);  // 1e499
    EXPECT_EQ(ReadCellDouble("1" + zeros + "e-900"), 0.0);        // 1e-500
}

}  // namespace

}  // namespace lumerin
