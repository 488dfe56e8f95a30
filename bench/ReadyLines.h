// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <string>
#include <vector>

// Prepared table rows, to measure a writer without the cost of making its lines.

inline constexpr long kReadyLinesPerPage = 51;  // rows of a landscape page

inline std::vector<std::string> MakeReadyLines() {
    std::vector<std::string> lines;
    for (int i = 0; i < 997; ++i) {
        char text[160];
        std::snprintf(text, sizeof text,
                      " %4d %5d %5d %5d %5d %14s    J  Max FAX   %10.2f%10.2f%10.2f%10.2f%10.2f%10.2f%10.2f",
                      i % 3 + 1, i % 100 + 1, i * 7, i * 7 + 1, i * 13 % 10000, "Strength I", i * 1.37 - 400,
                      i * 0.11, i * -0.73, i * 3.1, i * -2.9, i * 0.07, i * 0.001);
        lines.emplace_back(text);
    }
    return lines;
}
