// SPDX-License-Identifier: MIT
#include "export/Cells.h"

#include <array>
#include <charconv>
#include <cmath>

namespace lumerin {

void AppendPlain(std::string& out, const Value& value) {
    if (const auto* single = std::get_if<float>(&value)) {
        AppendNumber(out, *single);
    } else if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        std::array<char, 24> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), *whole).ptr;
        out.append(digits.data(), end);
    } else if (const auto* real = std::get_if<double>(&value)) {
        AppendNumber(out, *real);
    } else if (const auto* flag = std::get_if<bool>(&value)) {
        out += *flag ? "true" : "false";
    }
}

bool IsNotFinite(const Value& value) {
    if (const auto* single = std::get_if<float>(&value)) return !std::isfinite(*single);
    if (const auto* real = std::get_if<double>(&value)) return !std::isfinite(*real);
    return false;
}

}  // namespace lumerin
