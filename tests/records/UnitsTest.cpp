// SPDX-License-Identifier: MIT
#include "records/Units.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "records/Table.h"

namespace lumerin {

// A kip is 1000 pounds-force of 0.45359237 kg at 9.80665 m/s2: 4448.2216152605 N. A foot is 0.3048 m.
TEST(Units, FactorsAreTheExactDefinitions) {
    const auto factor = [](Quantity quantity) {
        return ConversionFactor(quantity, UnitSystem::us, UnitSystem::si);
    };
    EXPECT_DOUBLE_EQ(factor(Quantity::force), 0.45359237 * 9.80665);
    EXPECT_DOUBLE_EQ(factor(Quantity::length), 0.3048);
    EXPECT_DOUBLE_EQ(factor(Quantity::displacement), 0.0254);
    EXPECT_DOUBLE_EQ(factor(Quantity::moment), 0.45359237 * 9.80665 * 0.3048);
    EXPECT_EQ(factor(Quantity::ratio), 1.0);
    EXPECT_EQ(factor(Quantity::none), 1.0);
}

TEST(Units, ThereAndBackIsTheSameNumber) {
    for (const Quantity quantity :
         {Quantity::length, Quantity::displacement, Quantity::force, Quantity::moment, Quantity::ratio}) {
        EXPECT_NEAR(ConversionFactor(quantity, UnitSystem::us, UnitSystem::si) *
                        ConversionFactor(quantity, UnitSystem::si, UnitSystem::us),
                    1.0, 1e-15);
        EXPECT_EQ(ConversionFactor(quantity, UnitSystem::si, UnitSystem::si), 1.0);
    }
}

TEST(Units, NamesAreThoseOfTheReports) {
    EXPECT_EQ(UnitName(Quantity::moment, UnitSystem::us), "kip-ft");
    EXPECT_EQ(UnitName(Quantity::moment, UnitSystem::si), "kN-m");
    EXPECT_EQ(UnitName(Quantity::ratio, UnitSystem::us), "");
    EXPECT_EQ(UnitSystemOf(0), UnitSystem::us);
    EXPECT_EQ(UnitSystemOf(3), UnitSystem::si);
    EXPECT_EQ(ReadUnitSystem("si"), UnitSystem::si);
    EXPECT_FALSE(ReadUnitSystem("SI units"));
}

// The shortest text of a float is not that of its double: 0.1F is 0.100000001490116... as a double.
TEST(Numbers, AFloatHasTheShortestTextThatReadsBack) {
    const auto text = [](auto value) {
        std::string out;
        AppendNumber(out, value);
        return out;
    };
    EXPECT_EQ(text(0.1F), "0.1");
    EXPECT_EQ(text(static_cast<double>(0.1F)), "0.10000000149011612");
    EXPECT_EQ(text(-92.492485F), "-92.492485");
    EXPECT_EQ(text(std::numeric_limits<float>::quiet_NaN()), "nan");
    EXPECT_EQ(text(-std::numeric_limits<float>::quiet_NaN()), "nan");
    EXPECT_EQ(text(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(AsDouble(0.1F), 0.1);
    EXPECT_TRUE(std::isnan(AsDouble(std::numeric_limits<float>::quiet_NaN())));
}

}  // namespace lumerin
