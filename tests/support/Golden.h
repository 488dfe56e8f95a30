// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

namespace lumerin {

// The line of a document that has the byte `at`, its number and the byte's column, both from 1.
struct GoldenPlace {
    std::size_t line = 1, column = 1;
    std::string text;
};

inline GoldenPlace PlaceOf(std::string_view document, std::size_t at) {
    const std::string_view before = document.substr(0, at);
    GoldenPlace place;
    place.line += static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    const std::size_t start = before.rfind('\n') + 1;  // of the first line: npos + 1 is 0
    place.column += at - start;
    place.text = document.substr(start, document.find('\n', at) - start);
    return place;
}

// A line as it can be read in a log: what cannot be printed as \xNN, and the part around the column alone.
inline std::string Readable(const GoldenPlace& place) {
    constexpr std::size_t kBefore = 60, kWidth = 120;
    const std::size_t from = place.column > kBefore ? place.column - 1 - kBefore : 0;
    std::string shown = from > 0 ? "..." : "";
    for (const char c : place.text.substr(std::min(from, place.text.size()), kWidth)) {
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "\\x%02X",
                      static_cast<unsigned>(static_cast<unsigned char>(c)));
        shown += c >= ' ' && c <= '~' ? std::string(1, c) : std::string(escaped);
    }
    return shown;
}

// Whether a document has the expected bytes; else its first difference with the lines around it.
inline testing::AssertionResult MatchesGolden(const std::string& file, std::string_view expected,
                                              std::string_view got) {
    const auto [wantedAt, gotAt] = std::mismatch(expected.begin(), expected.end(), got.begin(), got.end());
    if (wantedAt == expected.end() && gotAt == got.end()) return testing::AssertionSuccess();
    const auto at = static_cast<std::size_t>(wantedAt - expected.begin());
    const GoldenPlace wanted = PlaceOf(expected, at), found = PlaceOf(got, at);
    testing::AssertionResult result = testing::AssertionFailure();
    result << file << ", line " << wanted.line << ", column " << wanted.column << ":\n";
    if (at > wanted.column)
        result << "  before:   " << Readable(PlaceOf(expected, at - wanted.column)) << "\n";
    result << "  expected: " << (at == expected.size() ? "the end of the file" : Readable(wanted)) << "\n";
    result << "  got:      " << (at == got.size() ? "the end of the file" : Readable(found));
    return result;
}

}  // namespace lumerin
