// SPDX-License-Identifier: MIT
#include <algorithm>

#include "framework/Index.h"
#include "tables/Catalogue.h"
#include "tables/Words.h"
#include "text/Format.h"

namespace lumerin {

namespace {

void AppendTwoDigits(std::string& out, int value) {
    if (value < 10) out += '0';
    AppendInt(out, value);
}

// The day names follow the month names directly and are looked up by the weekday counted from Sunday, so a
// report made on a Sunday has "December" in place of the day's name.
const char* DayWord(int weekday) {
    if (weekday <= 0) return g_MonthNames.back();
    return g_DayNames[Index(std::min(weekday, 7) - 1)];
}

void AppendMonthDayYear(std::string& out, const LocalTime& now) {
    out += g_MonthNames[Index(std::clamp(now.month, 1, 12) - 1)];
    out += ' ';
    AppendInt(out, now.day);
    out += ", ";
    AppendInt(out, now.year);
}

}  // namespace

std::string DateText(int mode, const LocalTime& now) {
    std::string text;
    if (mode == 2) {
        AppendTwoDigits(text, now.month);
        text += '/';
        AppendTwoDigits(text, now.day);
        text += '/';
        AppendInt(text, now.year);
        return text;
    }
    if (mode == 1) text.append(DayWord(now.weekday)).append(", ");
    AppendMonthDayYear(text, now);
    return text;
}

std::string TimeText(int mode, const LocalTime& now) {
    std::string text;
    AppendInt(text, now.hour);
    text += ':';
    if (mode == 1) {
        AppendInt(text, now.minute);
        text += ':';
        AppendInt(text, now.second);
        return text;
    }
    AppendTwoDigits(text, now.minute);
    text += ':';
    AppendTwoDigits(text, now.second);
    // The hour stays the 24-hour number beside AM and PM.
    text += now.hour < 12 ? " AM" : " PM";
    return text;
}

}  // namespace lumerin
