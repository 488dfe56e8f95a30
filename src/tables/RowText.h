// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "text/Format.h"

namespace lumerin {

// Functions that append pieces to a row without a temporary text.

inline void AppendLeftPadded(std::string& out, std::string_view text, std::size_t width) {
    if (text.size() < width) out.append(width - text.size(), ' ');
    out.append(text);
}

// A format with one "%i": the number takes its place.
inline void AppendNumbered(std::string& out, std::string_view format, long long number) {
    const std::size_t at = format.find("%i");
    out.append(format.substr(0, at));
    if (at == std::string_view::npos) return;
    AppendInt(out, number);
    out.append(format.substr(at + 2));
}

}  // namespace lumerin
