// SPDX-License-Identifier: MIT
#include "records/CaseChoice.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

#include "framework/Index.h"
#include "text/Lists.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

constexpr std::array<std::string_view, kLimitClasses> kLrfdClasses{"strength", "service", "extreme",
                                                                   "fatigue"};
constexpr std::array<std::string_view, 2> kAremaClasses{"load factor design", "service load design"};

// A number of digits alone.
bool ReadNumber(std::string_view text, int& number) {
    const char* end = text.data() + text.size();
    if (text.empty() || text.front() == '-' || text.front() == '+') return false;
    const auto [at, fault] = std::from_chars(text.data(), end, number);
    return at == end && fault == std::errc();
}

bool IsDigitsAndDashes(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return (c >= '0' && c <= '9') || c == '-'; });
}

// One number or a range.
void ReadNumbers(std::string_view part, CaseChoice& choice) {
    const std::size_t dash = part.find('-');
    int first = 0, last = 0;
    const bool read = ReadNumber(part.substr(0, dash), first) &&
                      (dash == std::string_view::npos || ReadNumber(part.substr(dash + 1), last));
    if (!read || first < 1) {
        throw std::invalid_argument("\"" + std::string(part) + "\" is not the number of a case");
    }
    if (dash == std::string_view::npos) last = first;
    if (last < first) throw std::invalid_argument("the range " + std::string(part) + " runs backwards");
    choice.numbers.emplace_back(first, last);
}

// Whether the text fits the pattern; both in lower case. Goes back to the last star alone, so that the time
// is bounded by the product of the lengths.
bool Fits(std::string_view text, std::string_view pattern) {
    std::size_t t = 0, p = 0, star = std::string_view::npos, restart = 0;
    while (t < text.size()) {
        if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == text[t]) && pattern[p] != '*') {
            ++t;
            ++p;
        } else if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            restart = t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            t = ++restart;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

bool FitsAny(const CLoadCase& loadCase, const std::vector<std::string>& patterns) {
    const std::string state = LowerCase(ToUtf8(loadCase.m_sLimitState)),
                      title = LowerCase(ToUtf8(loadCase.m_sName));
    return std::ranges::any_of(patterns, [&](const std::string& pattern) {
        return Fits(state, LowerCase(pattern)) || Fits(title, LowerCase(pattern));
    });
}

bool IsChosen(const CDataSet& data, const CaseChoice& choice, int index) {
    if (!choice.classes.empty()) {
        const std::string_view name = ClassNameOf(data, index);
        if (std::ranges::find(choice.classes, name) == choice.classes.end()) return false;
    }
    if (choice.numbers.empty() && choice.patterns.empty()) return true;
    const bool numbered = std::ranges::any_of(choice.numbers, [index](const auto& range) {
        return range.first <= index + 1 && index + 1 <= range.second;
    });
    return numbered || FitsAny(data.FirstPier().m_LoadCases[Index(index)], choice.patterns);
}

void RequireKnownNumbers(const CaseChoice& choice, int cases) {
    for (const auto& [first, last] : choice.numbers) {
        if (last <= cases) continue;
        throw std::invalid_argument("there is no case " + std::to_string(last) + ", the project has " +
                                    std::to_string(cases));
    }
}

}  // namespace

void ReadCases(std::string_view text, CaseChoice& choice) {
    for (const std::string_view part : SplitList(text)) {
        if (part.empty()) {
            throw std::invalid_argument(text.empty() ? "the list of cases is empty"
                                                     : "\"" + std::string(text) + "\" has an empty part");
        }
        if (IsDigitsAndDashes(part)) {
            ReadNumbers(part, choice);
        } else {
            choice.patterns.emplace_back(part);
        }
    }
}

void ReadClasses(std::string_view text, CaseChoice& choice) {
    for (const std::string_view part : SplitList(text)) {
        const std::string name = LowerCase(part);
        const bool known = std::ranges::find(kLrfdClasses, name) != kLrfdClasses.end() ||
                           std::ranges::find(kAremaClasses, name) != kAremaClasses.end();
        if (!known) {
            throw std::invalid_argument("\"" + std::string(part) +
                                        "\" is no limit class (strength, service, extreme, fatigue; AREMA: "
                                        "load factor design, service load design)");
        }
        choice.classes.push_back(name);
    }
}

std::string_view ClassName(CodeFamily family, LimitClass limitClass) {
    const std::size_t place = Index(limitClass);
    if (family == kFamilyLrfd && place < kLrfdClasses.size()) return kLrfdClasses[place];
    if (family == kFamilyArema && place < kAremaClasses.size()) return kAremaClasses[place];
    return {};
}

std::string_view ClassNameOf(const CDataSet& data, int loadCase) {
    if (!data.HasCombinations()) return {};
    const CPier& first = data.FirstPier();
    return ClassName(first.m_nCodeFamily, first.m_LoadCases.at(Index(loadCase)).m_nLimitClass);
}

CaseSelection Select(const CDataSet& data, const CaseChoice& choice) {
    CaseSelection selection(data);
    if (choice.IsAll() || data.IsPierless()) return selection;
    const int cases = static_cast<int>(data.FirstPier().m_LoadCases.size());
    RequireKnownNumbers(choice, cases);
    bool any = false;
    for (int c = 0; c < selection.CaseCount(); ++c) {
        const bool chosen = c < cases && IsChosen(data, choice, c);
        selection.SetCaseSelected(c, chosen);
        any = any || chosen;
    }
    if (!any) throw std::invalid_argument("no case of the project is among those that were asked for");
    selection.FindFirstCases(data);
    return selection;
}

}  // namespace lumerin
