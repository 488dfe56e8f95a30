// SPDX-License-Identifier: MIT
#include "figures/Marks.h"

namespace lumerin {

namespace {

// Letters, digits and hyphens.
void AppendName(std::string& name, std::string_view words) {
    for (const char c : words) {
        const bool isUpper = c >= 'A' && c <= 'Z';
        const bool isKept = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
        name += isUpper ? static_cast<char>(c - 'A' + 'a') : isKept ? c : '-';
    }
}

}  // namespace

std::string MemberMarkName(std::string_view member) {
    std::string name;
    AppendName(name, member);
    return name;
}

std::string CapMarkName(std::string_view className, bool isMaximum, std::string_view label) {
    std::string name;
    AppendName(name, className);
    if (!name.empty()) name += '-';
    name += isMaximum ? "max-" : "min-";
    AppendName(name, label);
    return name;
}

}  // namespace lumerin
