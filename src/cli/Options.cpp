// SPDX-License-Identifier: MIT
#include "cli/Options.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "cli/Suggest.h"
#include "framework/Clock.h"
#include "framework/headless/Headless.h"
#include "session/Constants.h"
#include "session/OutputFiles.h"
#include "session/ReportControls.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

constexpr int kTenthsOfAPoint = 10;  // the text viewer keeps its font size so

constexpr TableName kTables[] = {
    {"axial", IDC_MAX_AXIAL, kTableMaxAxial},
    {"pile-dc", IDC_PILE_DC, kTablePileDc},
    {"column-dc", IDC_COLUMN_DC, kTableColumnDc},
    {"cap-shear", IDC_CAP_SHEAR, kTableCapShear},
    {"cap-moment", IDC_CAP_MOMENT, kTableCapMoment},
    {"pile-forces", IDC_PILE_FORCES, kTablePileForces},
    {"column-forces", IDC_COLUMN_FORCES, kTableColumnForces},
    {"extra-members", IDC_EXTRA_MEMBERS, kTableExtraMembers},
    {"pile-heads", IDC_PILE_HEADS, kTablePileHeads, kFormatSpreadsheet},
    {"title", IDC_TITLE_PAGE, kTableTitlePage},
    {"envelopes", IDC_CAP_ENVELOPES, kTableCapShear, kFormatEnvelopes},
    {"full", IDC_FULL_REPORT, kTableFullReport},
};

std::vector<std::string> AllTableNames() {
    std::vector<std::string> names;
    for (const TableName& table : kTables) names.emplace_back(table.name);
    return names;
}

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

FooterChoice ReadFooter(std::string_view text) {
    FooterChoice parts{false, false, false, false};
    if (LowerCase(text) == "none") return parts;
    for (const std::string_view given : SplitList(text)) {
        const std::string part = LowerCase(given);
        if (part == "date") {
            parts.date = true;
        } else if (part == "time") {
            parts.time = true;
        } else if (part == "version") {
            parts.version = true;
        } else if (part == "filename") {
            parts.fileName = true;
        } else {
            throw std::invalid_argument("\"" + std::string(given) + "\" is no part of a footer" +
                                        Suggestion(given, {"date", "time", "version", "filename"}) +
                                        " (date, time, version, filename, or none)");
        }
    }
    return parts;
}

int ReadFormat(std::string_view text) {
    const std::string word = LowerCase(text);
    if (word == "text") return kFormatText;
    if (word == "pdf") return kFormatPdf;
    if (word == "excel") return kFormatSpreadsheet;
    throw std::invalid_argument(UnknownWord(text, "format", {"text", "pdf", "excel"}));
}

int ReadStartFormat(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [at, fault] = std::from_chars(text.data(), end, number);
    return fault == std::errc() && at == end ? number : ReadFormat(text);
}

const TableName* FindTableName(std::string_view name) {
    const std::string word = LowerCase(name);
    for (const TableName& table : kTables) {
        if (word == table.name) return &table;
    }
    return nullptr;
}

const TableName& ReadTable(std::string_view text) {
    if (const TableName* table = FindTableName(text)) return *table;
    throw std::invalid_argument("\"" + std::string(text) + "\" is no table" +
                                Suggestion(text, AllTableNames()) + " (" + TableNames() + ")");
}

int TableButton(std::string_view name) {
    const TableName* table = FindTableName(name);
    return table == nullptr ? 0 : table->button;
}

std::string TableNames() {
    std::string names;
    for (const TableName& table : kTables) {
        if (!names.empty()) names += ", ";
        names += table.name;
    }
    return names;
}

std::vector<std::string> QuantityWords() {
    return {"lateral", "lateral-x", "lateral-y", "max-axial", "min-axial"};
}

int ReadQuantity(std::string_view text) {
    const std::vector<std::string> words = QuantityWords();
    const std::string word = LowerCase(text);
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (word == words[i] || word == std::to_string(i)) return static_cast<int>(i);
    }
    throw std::invalid_argument("\"" + std::string(text) + "\" is no quantity" + Suggestion(text, words) +
                                " (lateral, lateral-x, lateral-y, max-axial, min-axial)");
}

}  // namespace lumerin
