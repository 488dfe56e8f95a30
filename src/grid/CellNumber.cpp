// SPDX-License-Identifier: MIT
#include "grid/CellNumber.h"

#include <charconv>
#include <limits>

#include "framework/Index.h"

namespace lumerin {

namespace {

bool IsSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Passes white space and one sign; true for a minus.
bool TakeSign(std::string_view& text) {
    while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
    if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

bool StartsDecimal(std::string_view text) {
    if (!text.empty() && text.front() == '.') text.remove_prefix(1);
    return !text.empty() && IsDigit(text.front());
}

// The power of ten of the first digit that is not 0, of digits with at most one point and an exponent: it
// distinguishes a number that is too large from one that is too small.
bool IsTooLarge(std::string_view digits) {
    long scale = 0;
    bool point = false, leading = true;
    std::size_t i = 0;
    for (; i < digits.size() && (IsDigit(digits[i]) || (digits[i] == '.' && !point)); ++i) {
        if (digits[i] == '.') {
            point = true;
            continue;
        }
        if (digits[i] != '0') leading = false;
        if (!point && !leading) ++scale;
        if (point && leading) --scale;
    }
    long exponent = 0;
    if (i + 1 < digits.size()) {
        std::string_view rest = digits.substr(i + 1);
        if (rest.front() == '+') rest.remove_prefix(1);
        const auto read = std::from_chars(rest.data(), rest.data() + rest.size(), exponent);
        if (read.ec == std::errc::result_out_of_range) return rest.front() != '-';
    }
    return exponent > -scale;
}

}  // namespace

int ReadCellInt(std::string_view text) {
    const bool negative = TakeSign(text);
    long long value = 0;
    constexpr long long kMost = std::numeric_limits<int>::max();
    for (const char c : text) {
        if (!IsDigit(c)) break;
        value = value * 10 + (c - '0');
        if (value > kMost + 1) value = kMost + 1;
    }
    if (negative) return static_cast<int>(-value);
    return static_cast<int>(value > kMost ? kMost : value);
}

double ReadCellDouble(std::string_view text) {
    const bool negative = TakeSign(text);
    if (!StartsDecimal(text)) return 0.0;
    double value = 0.0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec == std::errc::result_out_of_range) {
        const std::string_view digits(text.data(), Index(read.ptr - text.data()));
        value = IsTooLarge(digits) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return negative ? -value : value;
}

}  // namespace lumerin
