// SPDX-License-Identifier: MIT
#include "grid/EditText.h"

#include <algorithm>

#include "grid/GridTypes.h"

namespace lumerin {

namespace {

bool IsDigit(unsigned character) {
    return character >= '0' && character <= '9';
}

FilterResult FilterPoint(const EditText& edit, int mode) {
    if (mode != kReal && mode != kPositiveReal) return FilterResult::refused;
    const std::size_t point = edit.text.find('.');
    if (point == std::string::npos) return FilterResult::passed;
    const int at = static_cast<int>(point);
    // The existing point is in the selection, which the typed one replaces.
    return at >= edit.start && at < edit.end ? FilterResult::passed : FilterResult::refused;
}

FilterResult ToggleSign(EditText& edit, int mode) {
    if (mode != kSignedDigits && mode != kReal) return FilterResult::refused;
    const bool negative = edit.text.find('-') != std::string::npos;
    const int step = negative ? -1 : 1;
    // Wherever the sign is, the first character is removed.
    if (negative) {
        edit.text.erase(0, 1);
    } else {
        edit.text.insert(0, 1, '-');
    }
    edit.start = std::clamp(edit.start + step, 0, edit.Length());
    edit.end = std::clamp(edit.end + step, 0, edit.Length());
    return FilterResult::replaced;
}

}  // namespace

FilterResult FilterNumber(EditText& edit, int mode, unsigned character) {
    const bool beforeSign = edit.end == 0 && !edit.HasSelection() && edit.text.find('-') != std::string::npos;
    if (beforeSign && character != '-') return FilterResult::refused;
    if (mode == kZeroOrOne) {
        if (character != '0' && character != '1') return FilterResult::refused;
        edit.Set(std::string(1, static_cast<char>(character)));
        return FilterResult::replaced;
    }
    if (IsDigit(character) || character == kKeyBackspace) return FilterResult::passed;
    if (character == '.') return FilterPoint(edit, mode);
    if (character == '-') return ToggleSign(edit, mode);
    return FilterResult::refused;
}

}  // namespace lumerin
