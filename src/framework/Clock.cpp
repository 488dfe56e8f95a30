// SPDX-License-Identifier: MIT
#include "framework/Clock.h"

#include <chrono>
#include <cstdlib>

namespace lumerin {

namespace {

// The digits text[from, from + count) as a number; -1 when one of them is no digit.
int Digits(std::string_view text, std::size_t from, std::size_t count) {
    int value = 0;
    for (const char c : text.substr(from, count)) {
        if (c < '0' || c > '9') return -1;
        value = value * 10 + (c - '0');
    }
    return value;
}

}  // namespace

bool ParseClock(std::string_view text, LocalTime& time) {
    constexpr std::string_view shape = "0000-00-00T00:00:00";
    if (text.size() != shape.size()) return false;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        if (shape[i] != '0' && text[i] != shape[i]) return false;
    }
    LocalTime read;
    read.year = Digits(text, 0, 4);
    read.month = Digits(text, 5, 2);
    read.day = Digits(text, 8, 2);
    read.hour = Digits(text, 11, 2);
    read.minute = Digits(text, 14, 2);
    read.second = Digits(text, 17, 2);
    if (read.year < 0 || read.month < 1 || read.day < 1) return false;
    if (read.hour < 0 || read.hour > 23 || read.minute < 0 || read.minute > 59) return false;
    if (read.second < 0 || read.second > 59) return false;
    const std::chrono::year_month_day date{std::chrono::year{read.year},
                                           std::chrono::month{static_cast<unsigned>(read.month)},
                                           std::chrono::day{static_cast<unsigned>(read.day)}};
    if (!date.ok()) return false;
    const std::chrono::weekday weekday{std::chrono::sys_days{date}};
    read.weekday = static_cast<int>(weekday.c_encoding());
    time = read;
    return true;
}

bool ReadClockFromEnvironment(const char* variable, LocalTime& time) {
    const char* text = variable == nullptr ? nullptr : std::getenv(variable);
    return text != nullptr && ParseClock(text, time);
}

}  // namespace lumerin
