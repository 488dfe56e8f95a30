// SPDX-License-Identifier: MIT
#include "text/OutOfRange.h"

namespace lumerin {

namespace {

std::string RangeText(long long lowest, long long highest) {
    if (highest == kNoHighest) return std::to_string(lowest) + " or more";
    if (lowest == kNoLowest) return std::to_string(highest) + " or less";
    return std::to_string(lowest) + " to " + std::to_string(highest);
}

}  // namespace

std::string OutOfRange(std::string_view what, long long value, long long lowest, long long highest) {
    std::string text(what);
    text += " " + std::to_string(value) + " is out of range (" + RangeText(lowest, highest) + ")";
    return text;
}

}  // namespace lumerin
