// SPDX-License-Identifier: MIT
#include "support/ReportFixture.h"
#include "tables/Catalogue.h"

namespace lumerin {

using Dates = ReportTest;

TEST_F(Dates, MonthNameAndPlainDay) {
    clock = LocalTime{2026, 1, 5, 1, 0, 0, 0};
    EXPECT_EQ(DateText(0, clock), "January 5, 2026");
    EXPECT_EQ(DateText(1, clock), "Monday, January 5, 2026");
    EXPECT_EQ(DateText(2, clock), "01/05/2026");
}

TEST_F(Dates, EveryDayOfAWeekHasItsWord) {
    // December 2026 begins on a Tuesday, so its 6th is a Sunday: the word there is the last month's.
    const char* words[] = {"December", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    for (int weekday = 0; weekday < 7; ++weekday) {
        clock = LocalTime{2026, 12, 6 + weekday, weekday, 0, 0, 0};
        EXPECT_EQ(DateText(1, clock),
                  words[weekday] + (", December " + std::to_string(6 + weekday)) + ", 2026");
    }
}

TEST_F(Dates, TimesKeepTheTwentyFourHourNumber) {
    EXPECT_EQ(TimeText(0, clock), "8:30:05 AM");
    EXPECT_EQ(TimeText(1, clock), "8:30:5");
    clock = LocalTime{2026, 11, 14, 6, 12, 0, 0};
    EXPECT_EQ(TimeText(0, clock), "12:00:00 PM");
    clock = LocalTime{2026, 11, 14, 6, 23, 7, 9};
    EXPECT_EQ(TimeText(0, clock), "23:07:09 PM");
    EXPECT_EQ(TimeText(1, clock), "23:7:9");
    clock = LocalTime{2026, 11, 14, 6, 0, 0, 0};
    EXPECT_EQ(TimeText(0, clock), "0:00:00 AM");
}

}  // namespace lumerin
