// SPDX-License-Identifier: MIT
#include "cli/CheckReport.h"

#include <array>
#include <string_view>

#include "cli/TextTable.h"
#include "framework/Index.h"
#include "text/Format.h"

namespace lumerin {

namespace {

using Align = TextTable::Align;

constexpr int kForceDecimals = 2;
constexpr std::string_view kIndent = "  ";
constexpr std::array<std::string_view, 6> kForceNames{"FAX", "F22", "F33", "M22", "M33", "TORQUE"};

// FAIL, PASS, and what is neither.
std::string_view WordOf(const CheckResult& result) {
    if (!result.fault.empty()) return "ERROR";
    if (result.verdict.families.empty()) return "NONE";
    return result.verdict.passes ? "PASS" : "FAIL";
}

std::string Coloured(std::string_view word, bool colour) {
    if (!colour) return std::string(word);
    const bool passes = word == "PASS";
    return std::string(passes ? "\033[32m" : "\033[1;31m") + std::string(word) + "\033[0m";
}

// The name of a family of members as words.
std::string Spaced(const std::string& family) {
    return ReplaceAll(family, "_", " ");
}

std::string CaseOf(int loadCase, const std::string& limitState) {
    return "case " + std::to_string(loadCase) + (limitState.empty() ? "" : " " + limitState);
}

std::string ElementOf(const EndRatio& ratio) {
    return std::to_string(ratio.element) + (ratio.end == kEndI ? " I" : " J");
}

std::vector<TextTable::Column> RatioColumns(UnitSystem units) {
    std::vector<TextTable::Column> columns{
        {"", Align::left},      {"sub", Align::right},     {"member", Align::left}, {"D/C", Align::right},
        {"place", Align::left}, {"element", Align::right}, {"case", Align::left}};
    for (std::size_t i = 0; i < kForceNames.size(); ++i) {
        const Quantity quantity = i < 3 ? Quantity::force : Quantity::moment;
        columns.push_back(
            {std::string(kForceNames[i]) + " " + std::string(UnitName(quantity, units)), Align::right});
    }
    return columns;
}

std::vector<std::string> RatioCells(const EndRatio& ratio, double limit) {
    const bool over = static_cast<double>(ratio.ratio) > limit;
    std::vector<std::string> cells{
        over ? "over" : "",
        std::to_string(ratio.substructure),
        Spaced(ratio.family),
        RatioText(ratio.ratio, limit),
        ratio.place,
        ElementOf(ratio),
        std::to_string(ratio.loadCase) + (ratio.limitState.empty() ? "" : " " + ratio.limitState)};
    for (const float force : ratio.forces) cells.push_back(FormatFixed(force, kForceDecimals));
    return cells;
}

void PrintFamilies(const CheckResult& result, std::ostream& out) {
    TextTable table(RatioColumns(result.units));
    std::string counts;
    for (const FamilyVerdict& family : result.verdict.families) {
        table.Add(RatioCells(family.worst, family.limit));
        if (family.endsOver == 0) continue;
        counts += std::string(kIndent) + "substructure " + std::to_string(family.worst.substructure) + ", " +
                  Spaced(family.worst.family) + ": " + std::to_string(family.endsOver) + " of " +
                  std::to_string(family.ends) + " element ends are over the limit\n";
    }
    table.Print(out, kIndent);
    out << counts;
}

void PrintHeads(const CheckResult& result, std::ostream& out) {
    TextTable table({{"", Align::left},
                     {"pile head", Align::left},
                     {"", Align::left},
                     {"force " + std::string(UnitName(Quantity::force, result.units)), Align::right},
                     {"capacity", Align::right},
                     {"case", Align::left}});
    for (const HeadVerdict& head : result.verdict.heads) {
        table.Add({head.passes ? "" : "over",
                   std::to_string(head.substructure) + " pile " + std::to_string(head.pile),
                   head.tension ? "tension" : "compression", FormatFixed(head.force, kForceDecimals),
                   FormatFixed(head.capacity, kForceDecimals),
                   std::to_string(head.loadCase) + (head.limitState.empty() ? "" : " " + head.limitState)});
    }
    if (!table.IsEmpty()) table.Print(out, kIndent);
}

void PrintTop(const CheckResult& result, std::ostream& out) {
    if (result.top.empty()) return;
    TextTable table(RatioColumns(result.units));
    for (const EndRatio& ratio : result.top) table.Add(RatioCells(ratio, result.limit));
    out << '\n' << kIndent << "the greatest ratios of element ends\n";
    table.Print(out, kIndent);
}

}  // namespace

void ConvertForces(CheckResult& result, UnitSystem system) {
    const auto factor = [&](Quantity quantity) { return ConversionFactor(quantity, result.units, system); };
    const auto convert = [&](EndRatio& ratio) {
        for (std::size_t i = 0; i < ratio.forces.size(); ++i) {
            const double by = factor(i < 3 ? Quantity::force : Quantity::moment);
            ratio.forces[i] = static_cast<float>(ratio.forces[i] * by);
        }
    };
    for (FamilyVerdict& family : result.verdict.families) convert(family.worst);
    for (EndRatio& ratio : result.top) convert(ratio);
    for (HeadVerdict& head : result.verdict.heads) {
        head.force = static_cast<float>(head.force * factor(Quantity::force));
        head.capacity *= factor(Quantity::force);
    }
    result.units = system;
}

void PrintCheck(const CheckResult& result, bool details, bool colour, std::ostream& out) {
    out << result.name.name << ".in  " << Coloured(WordOf(result), colour);
    if (!result.fault.empty()) {
        out << "  " << result.fault << '\n';
        return;
    }
    const FamilyVerdict* worst = result.verdict.Worst();
    if (worst == nullptr) {
        out << "  no element has a D/C ratio in the chosen cases\n";
    } else {
        const EndRatio& ratio = worst->worst;
        out << "  D/C " << RatioText(ratio.ratio, result.limit) << "  " << ratio.place << " ("
            << Spaced(ratio.family) << ", substructure " << ratio.substructure << ")  "
            << CaseOf(ratio.loadCase, ratio.limitState) << "  limit ";
        std::string limit;
        AppendNumber(limit, result.limit);
        out << limit;
        if (result.chosen < result.cases) out << "  " << result.chosen << " of " << result.cases << " cases";
        if (HasError(result.findings)) out << "  NOT SOUND";
        out << '\n';
    }
    if (!details) return;
    PrintFamilies(result, out);
    PrintHeads(result, out);
    PrintTop(result, out);
}

}  // namespace lumerin
