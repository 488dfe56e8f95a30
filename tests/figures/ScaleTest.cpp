// SPDX-License-Identifier: MIT
#include "figures/Scale.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>

namespace lumerin {

namespace {

using testing::ElementsAre;

std::vector<std::string> Texts(const Scale& scale) {
    std::vector<std::string> texts;
    for (const double tick : scale.Ticks()) texts.push_back(scale.TickText(tick));
    return texts;
}

}  // namespace

TEST(Scale, TicksAreAtRoundValues) {
    EXPECT_THAT(Texts(Scale(-704.0, 552.0, 0, 100, 6, true)),
                ElementsAre("-1000", "-500", "0", "500", "1000"));
    EXPECT_THAT(Texts(Scale(0.0, 1.05, 0, 100, 10, true)),
                ElementsAre("0.0", "0.2", "0.4", "0.6", "0.8", "1.0", "1.2"));
    EXPECT_THAT(Texts(Scale(3.0, 37.0, 0, 100, 10, false)),
                ElementsAre("5", "10", "15", "20", "25", "30", "35"));
    EXPECT_THAT(Texts(Scale(0.0, 0.003, 0, 100, 3, true)), ElementsAre("0.000", "0.001", "0.002", "0.003"));
}

TEST(Scale, ValuesGoToTheirPixels) {
    const Scale scale(0.0, 10.0, 200.0, 100.0, 5, false);
    EXPECT_DOUBLE_EQ(scale.At(0.0), 200.0);
    EXPECT_DOUBLE_EQ(scale.At(10.0), 100.0);
    EXPECT_DOUBLE_EQ(scale.At(2.5), 175.0);
}

TEST(Scale, EqualEndsAndOnesThatAreNoNumbersGiveAnAxis) {
    for (const double value : {0.0, 5.0, -3.0e9, 1e-9}) {
        const Scale scale(value, value, 0, 100, 5, true);
        EXPECT_LT(scale.Low(), scale.High());
        EXPECT_GE(scale.Ticks().size(), 2U) << value;
    }
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Scale(nan, 1.0, 0, 100, 5, true).Low(), 0.0);
    EXPECT_EQ(Scale(0.0, std::numeric_limits<double>::infinity(), 0, 100, 5, true).High(), 1.0);
    EXPECT_EQ(Scale(4.0, -4.0, 0, 100, 5, true).High(), 1.0);
}

// Whatever the range: at least one step, no more ticks than asked for and their two ends, each a multiple of
// 1, 2 or 5 times a power of ten, and the range inside the axis.
TEST(Scale, AnyRangeGetsFewRoundTicks) {
    std::mt19937 random(20261122);
    for (int round = 0; round < 20000; ++round) {
        const double size = std::pow(10.0, static_cast<double>(random() % 24) - 9.0);
        const double low = (static_cast<double>(random() % 2000) - 1000.0) / 1000.0 * size;
        const double high = low + (1.0 + static_cast<double>(random() % 1000)) / 1000.0 * size;
        const int most = 2 + static_cast<int>(random() % 10);
        const Scale scale(low, high, 0.0, 100.0, most, true);
        const std::vector<double> ticks = scale.Ticks();
        ASSERT_GE(ticks.size(), 2U) << low << " " << high;
        ASSERT_LE(ticks.size(), static_cast<std::size_t>(most) + 3) << low << " " << high << " " << most;
        const double noise = (high - low) * 1e-6;
        ASSERT_LE(scale.Low(), low + noise);
        ASSERT_GE(scale.High(), high - noise);
        const double step = ticks[1] - ticks[0];
        const double lead = step / std::pow(10.0, std::floor(std::log10(step * 1.000001)));
        ASSERT_TRUE(std::abs(lead - 1) < 1e-5 || std::abs(lead - 2) < 1e-5 || std::abs(lead - 5) < 1e-5)
            << step;
    }
}

}  // namespace lumerin
