// SPDX-License-Identifier: MIT
#include "text/Format.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "framework/Index.h"

namespace lumerin {

namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

// Length of the longest "%.*f" of a double: 309 digits before the point, sign, point and the decimals.
constexpr std::size_t kLongestFixed = 512;

void AppendPadded(std::string& out, std::string_view digits, int width) {
    const std::size_t wanted = width > 0 ? Index(width) : 0;
    if (digits.size() < wanted) out.append(wanted - digits.size(), ' ');
    out.append(digits);
}

constexpr std::array<char, 200> kDigitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

// Both write digits in front of `at` and return where they begin.
char* PutPair(char* at, std::uint32_t pair) {
    std::memcpy(at - 2, kDigitPairs.data() + std::size_t{2} * pair, 2);
    return at - 2;
}
char* PutWhole(char* at, std::uint32_t number) {
    for (; number >= 100; number /= 100) at = PutPair(at, number % 100);
    if (number >= 10) return PutPair(at, number);
    *--at = static_cast<char>('0' + number);
    return at;
}
char* PutSixDigits(char* at, std::uint32_t number) {
    return PutPair(PutPair(PutPair(at, number % 100), number / 100 % 100), number / 10000);
}

// Two decimals, the form of nearly every number of a table, much faster than the exact conversion. The error
// of the product is less than the margin, so that the rounding is certain away from the half between two
// hundredths. False: halves, big numbers and numbers that are not finite, which the exact conversion takes.
bool AppendHundredths(std::string& out, double value, int width) {
    constexpr double kLimit = 1e7;
    constexpr double kMargin = 1e-6;
    const double scaled = std::fabs(value) * 100.0;
    if (!(scaled < kLimit * 100.0)) return false;
    auto hundredths = static_cast<std::uint32_t>(scaled);
    const double rest = scaled - static_cast<double>(hundredths);
    if (std::fabs(rest - 0.5) < kMargin) return false;
    if (rest > 0.5) ++hundredths;
    std::array<char, 16> text{};
    char* const end = text.data() + text.size();
    char* at = PutPair(end, hundredths % 100);
    *--at = '.';
    at = PutWhole(at, hundredths / 100);
    if (std::signbit(value)) *--at = '-';
    AppendPadded(out, {at, Index(end - at)}, width);
    return true;
}

// Twelve decimals of a number that a float holds exactly, as all forces are. A float's fraction has at most
// 24 significant bits and a million is 15625 (14 bits) times a power of two, so each of the two products
// has at most 52 bits: both are exact, and so is the rounding.
bool AppendTwelveDecimals(std::string& out, double value, int width) {
    constexpr double kLimit = 4e9;
    constexpr std::uint32_t kMillion = 1'000'000;
    const double magnitude = std::fabs(value);
    if (!(magnitude < kLimit)) return false;
    if (static_cast<double>(static_cast<float>(magnitude)) != magnitude) return false;
    const auto whole = static_cast<std::uint32_t>(magnitude);
    const double millionths = (magnitude - static_cast<double>(whole)) * kMillion;
    auto upper = static_cast<std::uint32_t>(millionths);
    const double billionths = (millionths - static_cast<double>(upper)) * kMillion;
    auto lower = static_cast<std::uint32_t>(billionths);
    const double rest = billionths - static_cast<double>(lower);
    // Halves go to the even digit. A carry ends in the upper half: the gap between a float and the next whole
    // number above is at least 2^-24.
    if (rest > 0.5 || (rest == 0.5 && lower % 2 != 0)) ++lower;
    if (lower == kMillion) {
        lower = 0;
        ++upper;
    }
    std::array<char, 32> text{};
    char* const end = text.data() + text.size();
    char* at = PutSixDigits(PutSixDigits(end, lower), upper);
    *--at = '.';
    at = PutWhole(at, whole);
    if (std::signbit(value)) *--at = '-';
    AppendPadded(out, {at, Index(end - at)}, width);
    return true;
}

}  // namespace

void AppendInt(std::string& out, long long value, int width) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    AppendPadded(out, {digits.data(), Index(end - digits.data())}, width);
}

void AppendIntBlankZero(std::string& out, long long value, int width) {
    if (value == 0) {
        AppendPadded(out, {}, width);
    } else {
        AppendInt(out, value, width);
    }
}

void AppendFixed(std::string& out, double value, int decimals, int width) {
    if (decimals == 2 && AppendHundredths(out, value, width)) return;
    if (decimals == 12 && AppendTwelveDecimals(out, value, width)) return;
    std::array<char, kLongestFixed> digits;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals)
            .ptr;
    AppendPadded(out, {digits.data(), Index(end - digits.data())}, width);
}

void AppendGeneral(std::string& out, double value) {
    std::array<char, 64> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, 6).ptr;
    out.append(digits.data(), Index(end - digits.data()));
}

std::string FormatInt(long long value, int width) {
    std::string out;
    AppendInt(out, value, width);
    return out;
}

std::string FormatFixed(double value, int decimals, int width) {
    std::string out;
    AppendFixed(out, value, decimals, width);
    return out;
}

std::string FormatGeneral(double value) {
    std::string out;
    AppendGeneral(out, value);
    return out;
}

std::string FormatNumbered(std::string_view format, long long value) {
    std::string out(format);
    for (const std::string_view mark : {"%d", "%i"}) {
        const std::size_t at = out.find(mark);
        if (at != std::string::npos) return out.replace(at, mark.size(), FormatInt(value));
    }
    return out;
}

std::string PadLeft(std::string_view text, std::size_t width) {
    std::string out;
    if (text.size() < width) out.assign(width - text.size(), ' ');
    return out.append(text);
}

std::string PadRight(std::string_view text, std::size_t width) {
    std::string out(text);
    if (out.size() < width) out.append(width - out.size(), ' ');
    return out;
}

std::string RemoveBlanks(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c != ' ') out += c;
    }
    return out;
}

std::string_view TrimLeft(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

std::string_view TrimRight(std::string_view text) {
    const std::size_t last = text.find_last_not_of(kWhiteSpace);
    return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text) {
    return TrimRight(TrimLeft(text));
}

std::string Blanks(std::size_t count) {
    return std::string(count, ' ');
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string out;
    std::size_t at = 0;
    for (std::size_t hit = text.find(from); hit != std::string_view::npos; hit = text.find(from, at)) {
        out.append(text.substr(at, hit - at)).append(to);
        at = hit + from.size();
    }
    return out.append(text.substr(at));
}

bool IsValidNumber(double value) {
    return std::isfinite(value);
}

}  // namespace lumerin
