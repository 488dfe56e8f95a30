// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string_view>

namespace lumerin {

// File names without regard to the case of the letters A to Z, whatever the locale.

inline char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline bool StartsWithButForCase(std::string_view name, std::string_view start) {
    return name.size() >= start.size() &&
           std::equal(start.begin(), start.end(), name.begin(),
                      [](char a, char b) { return LowerAscii(a) == LowerAscii(b); });
}

}  // namespace lumerin
