// SPDX-License-Identifier: MIT
#include "compare/ComparisonText.h"

#include <cmath>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "compare/ResultColumns.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr int kForceDecimals = 2, kRatioDecimals = 3, kPercentDecimals = 1;
constexpr double kPercent = 100.0;

int DecimalsOf(Quantity quantity) {
    if (quantity == Quantity::none) return 0;
    return quantity == Quantity::force || quantity == Quantity::moment ? kForceDecimals : kRatioDecimals;
}

std::string NumberText(double value, int decimals) {
    if (std::isfinite(value)) return FormatFixed(value, decimals);
    std::string text;
    AppendNumber(text, value);
    return text;
}

// As many decimals as it takes to see that two values are not the same.
int DecimalsOf(const ValueChange& value) {
    constexpr int kMost = 9;
    int decimals = DecimalsOf(value.quantity);
    if (!value.before || !value.after || !std::isfinite(value.change.difference)) return decimals;
    while (decimals < kMost && value.change.difference != 0.0 &&
           FormatFixed(*value.before, decimals) == FormatFixed(*value.after, decimals)) {
        ++decimals;
    }
    return decimals;
}

std::string Side(const std::optional<double>& value, int decimals) {
    return value ? NumberText(*value, decimals) : "none";
}

std::string Signed(double value, int decimals) {
    return (value > 0.0 ? "+" : "") + NumberText(value, decimals);
}

// "7 STRENGTH-IV", or both: "7 STRENGTH-IV -> 9 STRENGTH-V".
std::string CasesText(const ResultChange& result) {
    if (result.caseBefore.number == 0 && result.caseAfter.number == 0) return {};
    const std::string before = ShortText(result.caseBefore), after = ShortText(result.caseAfter);
    return before == after && !result.otherCase ? after : before + " -> " + after;
}

std::string PlacesText(const ResultChange& result) {
    if (!result.otherPlace) return result.placeAfter;
    const auto side = [](const std::string& place) { return place.empty() ? "none" : place; };
    return side(result.placeBefore) + " -> " + side(result.placeAfter);
}

std::string WithUnit(const ValueChange& value, UnitSystem units) {
    const std::string_view unit = UnitName(value.quantity, units);
    return ColumnWords(value.column) + (unit.empty() ? "" : " " + std::string(unit));
}

// "1 row", "12 rows".
std::string Counted(long long count, std::string_view one, std::string_view several) {
    return std::to_string(count) + " " + std::string(count == 1 ? one : several);
}

std::string BeforeAndNow(std::string_view before, std::string_view now) {
    return ": " + std::string(before) + " before, " + std::string(now) + " now";
}

std::string RemarkOf(const ResultChange& result) {
    std::string remark;
    if (result.Exceeds() && !result.leads) remark = "acts with it";
    if (result.values.size() > 1) {
        remark += (remark.empty() ? "and " : ", and ") +
                  Counted(std::ssize(result.values) - 1, "more value", "more values");
    }
    return remark;
}

}  // namespace

std::string_view AnswerWord(RunVerdict::Answer answer) {
    if (answer == RunVerdict::Answer::none) return "NONE";
    return answer == RunVerdict::Answer::passes ? "PASS" : "FAIL";
}

std::vector<std::string> ResultTexts(const ResultChange& result, UnitSystem units) {
    std::vector<std::string> texts{std::to_string(result.substructure), std::string(result.table->name),
                                   result.label};
    if (!result.values.empty()) {
        const ValueChange& value = result.values.front();
        const int decimals = DecimalsOf(value);
        texts.push_back(WithUnit(value, units));
        texts.push_back(Side(value.before, decimals));
        texts.push_back(Side(value.after, decimals));
        const bool isNumber = value.before && value.after;
        texts.push_back(isNumber ? Signed(value.change.difference, decimals) : "");
        texts.push_back(std::isnan(value.change.relative)
                            ? ""
                            : Signed(value.change.relative * kPercent, kPercentDecimals));
    }
    texts.resize(kResultTexts - 3);
    texts.push_back(CasesText(result));
    texts.push_back(PlacesText(result));
    texts.push_back(RemarkOf(result));
    return texts;
}

std::string ShortText(const CaseName& name) {
    if (name.number == 0) return "none";
    return std::to_string(name.number) + (name.limitState.empty() ? "" : " " + name.limitState);
}

std::vector<std::string> VerdictLines(const Comparison& comparison) {
    std::vector<std::string> lines;
    if (comparison.before.answer != comparison.after.answer) {
        lines.push_back("verdict" + BeforeAndNow(AnswerWord(comparison.before.answer),
                                                 AnswerWord(comparison.after.answer)));
    }
    const auto word = [](bool passes) { return passes ? "PASS" : "FAIL"; };
    for (const Flip& flip : comparison.flips) {
        lines.push_back("verdict of " + flip.label + ", substructure " + std::to_string(flip.substructure) +
                        BeforeAndNow(word(flip.before), word(flip.after)));
    }
    return lines;
}

std::vector<std::string> StructureLines(const Comparison& comparison) {
    std::vector<std::string> lines;
    for (const StructureChange& change : comparison.structure) {
        std::string line = std::string(PresenceName(change.presence)) + ": ";
        if (change.substructure > 0 && change.kind != "substructure") {
            line += "substructure " + std::to_string(change.substructure) + ", ";
        }
        if (change.count > 1) {
            line += std::to_string(change.count) + " " + std::string(change.kind) + ", the first: ";
        }
        line += change.what;
        if (change.presence == Presence::changed) line += BeforeAndNow(change.before, change.after);
        lines.push_back(std::move(line));
    }
    return lines;
}

std::vector<std::string> RowLines(const Comparison& comparison) {
    using Group = std::tuple<const Table*, int, Presence>;
    std::vector<std::pair<Group, const RowChange*>> groups;
    std::map<Group, long long> counts;
    for (const RowChange& row : comparison.rows) {
        const Group group{row.table, row.substructure, row.presence};
        if (counts[group]++ == 0) groups.emplace_back(group, &row);
    }
    std::vector<std::string> lines;
    for (const auto& [group, row] : groups) {
        const long long count = counts.at(group);
        std::string line = std::string(PresenceName(row->presence)) + ": " + std::string(row->table->name) +
                           ", substructure " + std::to_string(row->substructure) + ", ";
        if (count > 1) line += std::to_string(count) + " rows, the first: ";
        line += row->label;
        if (row->loadCase.number > 0) line += ", " + TextOf(row->loadCase);
        lines.push_back(std::move(line));
    }
    return lines;
}

std::vector<std::string> TitleLines(const Comparison& comparison, std::size_t top) {
    if (!comparison.Differs()) return {};
    std::set<std::pair<int, std::string>> lines;  // by number
    const auto add = [&](const CaseName& name) {
        if (!name.title.empty()) lines.emplace(name.number, ShortText(name) + ": " + name.title);
    };
    add(comparison.before.loadCase);
    add(comparison.after.loadCase);
    for (const auto* results : {&comparison.results, &comparison.governing}) {
        for (std::size_t i = 0; i < results->size() && (top == 0 || i < top); ++i) {
            add((*results)[i].caseBefore);
            add((*results)[i].caseAfter);
        }
    }
    std::vector<std::string> texts;
    texts.reserve(lines.size());
    for (const auto& [number, line] : lines) texts.push_back(line);
    return texts;
}

std::string Summary(const Comparison& comparison) {
    std::string text =
        Counted(std::ssize(comparison.results), "result is", "results are") + " over the tolerances";
    if (!comparison.governing.empty()) {
        text += ", " + Counted(std::ssize(comparison.governing), "other governs", "others govern") +
                " in another case or place alone";
    }
    return text + "; " + std::to_string(comparison.compared) + " values compared";
}

}  // namespace lumerin
