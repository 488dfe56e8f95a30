// SPDX-License-Identifier: MIT
#include "framework/Clock.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "framework/headless/Headless.h"

namespace lumerin {

namespace {

TEST(Clock, ReadsAMomentWithItsWeekday) {
    LocalTime time;
    ASSERT_TRUE(ParseClock("2026-11-14T08:30:05", time));
    EXPECT_EQ(time.year, 2026);
    EXPECT_EQ(time.month, 11);
    EXPECT_EQ(time.day, 14);
    EXPECT_EQ(time.hour, 8);
    EXPECT_EQ(time.minute, 30);
    EXPECT_EQ(time.second, 5);
    EXPECT_EQ(time.weekday, 6);  // a Saturday
    ASSERT_TRUE(ParseClock("2024-02-29T23:59:59", time));
    EXPECT_EQ(time.weekday, 4);  // a Thursday
    ASSERT_TRUE(ParseClock("2026-11-15T00:00:00", time));
    EXPECT_EQ(time.weekday, 0);  // a Sunday
}

TEST(Clock, RefusesWhatIsNoMoment) {
    LocalTime time;
    time.year = 1999;
    for (const char* text :
         {"", "2026-11-14", "2026-11-14 08:30:05", "2026-13-01T00:00:00", "2026-02-29T00:00:00",
          "2026-11-31T00:00:00", "2026-11-14T24:00:00", "2026-11-14T08:60:00", "2026-11-14T08:30:60",
          "2026-11-1aT08:30:00", "2026-11-14T08:30:005", "-026-11-14T08:30:00"}) {
        EXPECT_FALSE(ParseClock(text, time)) << text;
    }
    EXPECT_EQ(time.year, 1999);
}

TEST(Clock, TheEnvironmentHoldsItStillAndASettingGoesFirst) {
    headless::ResetState();
    ASSERT_EQ(setenv("TEST_CLOCK", "2026-11-14T08:30:05", 1), 0);
    EXPECT_EQ(services::Now("TEST_CLOCK").second, 5);
    EXPECT_GE(services::Now().year, 2024);
    EXPECT_GE(services::Now("OTHER_CLOCK").year, 2024);
    LocalTime set;
    ASSERT_TRUE(ParseClock("2001-01-01T01:01:01", set));
    headless::State().clock = set;
    EXPECT_EQ(services::Now("TEST_CLOCK").year, 2001);
    headless::ResetState();
    ASSERT_EQ(unsetenv("TEST_CLOCK"), 0);
    EXPECT_GE(services::Now().year, 2024);
}

TEST(Clock, IsTheMachinesWithoutASetting) {
    headless::ResetState();
    unsetenv("TEST_CLOCK");
    const auto machine = [] {
        const std::time_t seconds = std::time(nullptr);
        char text[40] = "";
        std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S %w", std::localtime(&seconds));
        return std::string(text);
    };
    const std::string before = machine();
    const LocalTime now = services::Now();
    const std::string after = machine();
    char text[80] = "";
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d %d", now.year, now.month, now.day,
                  now.hour, now.minute, now.second, now.weekday);
    // The texts sort by time; the weekday at their end differs only over midnight.
    EXPECT_GE(std::string(text), before);
    EXPECT_LE(std::string(text), after);
}

}  // namespace

}  // namespace lumerin
