// SPDX-License-Identifier: MIT
#include "cli/Options.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "framework/Clock.h"
#include "framework/headless/Headless.h"
#include "session/Constants.h"
#include "session/OutputFiles.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

constexpr int kTenthsOfAPoint = 10;  // the text viewer keeps its font size so

std::vector<std::string_view> SplitList(std::string_view text) {
    std::vector<std::string_view> parts;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t comma = std::min(text.find(',', from), text.size());
        parts.push_back(text.substr(from, comma - from));
        from = comma + 1;
    }
    return parts;
}

int CaseNumber(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [at, fault] = std::from_chars(text.data(), end, number);
    if (fault != std::errc() || at != end || number < 1) {
        throw std::invalid_argument("\"" + std::string(text) + "\" is not the number of a case");
    }
    return number;
}

struct NamedButton {
    const char* name;
    int button;
};

constexpr NamedButton kTables[] = {
    {"axial", IDC_MAX_AXIAL},
    {"pile-dc", IDC_PILE_DC},
    {"column-dc", IDC_COLUMN_DC},
    {"cap-shear", IDC_CAP_SHEAR},
    {"cap-moment", IDC_CAP_MOMENT},
    {"pile-forces", IDC_PILE_FORCES},
    {"column-forces", IDC_COLUMN_FORCES},
    {"extra-members", IDC_EXTRA_MEMBERS},
    {"pile-heads", IDC_PILE_HEADS},
    {"title", IDC_TITLE_PAGE},
    {"envelopes", IDC_CAP_ENVELOPES},
    {"full", IDC_FULL_REPORT},
};

}  // namespace

void ApplyOptions(const CommonOptions& options) {
    headless::Settings& state = headless::State();
    if (options.fontSize > 0)
        state.userNumbers[kTextViewerKey]["iPointSize"] = options.fontSize * kTenthsOfAPoint;
    if (options.clock.empty()) return;
    LocalTime time;
    if (!ParseClock(options.clock, time)) {
        throw std::invalid_argument("\"" + options.clock + "\" is not a moment YYYY-MM-DDTHH:MM:SS");
    }
    state.clock = time;
}

CaseRanges ReadCases(std::string_view text) {
    CaseRanges ranges;
    for (const std::string_view part : SplitList(text)) {
        const std::size_t dash = part.find('-');
        const int first = CaseNumber(part.substr(0, dash));
        const int last = dash == std::string_view::npos ? first : CaseNumber(part.substr(dash + 1));
        if (last < first) throw std::invalid_argument("the range " + std::string(part) + " runs backwards");
        ranges.emplace_back(first, last);
    }
    return ranges;
}

bool HoldsCase(const CaseRanges& cases, int number) {
    return std::any_of(cases.begin(), cases.end(), [number](const auto& range) {
        return range.first <= number && number <= range.second;
    });
}

int LastCase(const CaseRanges& cases) {
    int last = 0;
    for (const auto& range : cases) last = std::max(last, range.second);
    return last;
}

FooterChoice ReadFooter(std::string_view text) {
    FooterChoice parts{false, false, false, false};
    if (text == "none") return parts;
    for (const std::string_view part : SplitList(text)) {
        if (part == "date") {
            parts.date = true;
        } else if (part == "time") {
            parts.time = true;
        } else if (part == "version") {
            parts.version = true;
        } else if (part == "filename") {
            parts.fileName = true;
        } else {
            throw std::invalid_argument("\"" + std::string(part) + "\" is no part of a footer");
        }
    }
    return parts;
}

int ReadFormat(std::string_view text) {
    if (text == "text") return kFormatText;
    if (text == "pdf") return kFormatPdf;
    if (text == "excel") return kFormatSpreadsheet;
    throw std::invalid_argument("\"" + std::string(text) + "\" is no format (text, pdf, excel)");
}

int ReadStartFormat(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [at, fault] = std::from_chars(text.data(), end, number);
    return fault == std::errc() && at == end ? number : ReadFormat(text);
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

int TableButton(std::string_view name) {
    for (const NamedButton& table : kTables) {
        if (name == table.name) return table.button;
    }
    return 0;
}

std::string TableNames() {
    std::string names;
    for (const NamedButton& table : kTables) {
        if (!names.empty()) names += ", ";
        names += table.name;
    }
    return names;
}

}  // namespace lumerin
