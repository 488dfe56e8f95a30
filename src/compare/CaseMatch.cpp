// SPDX-License-Identifier: MIT
#include "compare/CaseMatch.h"

#include <algorithm>
#include <map>
#include <utility>

#include "framework/Index.h"
#include "records/TableRows.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

std::vector<CaseName> CasesOf(const Evaluation& evaluation) {
    std::vector<CaseName> names;
    const CDataSet& data = evaluation.Data();
    if (data.IsPierless()) return names;
    for (const CLoadCase& loadCase : data.FirstPier().m_LoadCases) {
        const int index = static_cast<int>(names.size());
        CaseName name;
        name.number = index + 1;
        if (data.HasCombinations()) name.title = ToUtf8(loadCase.m_sName);
        name.limitState = LimitStateIn(data, index);
        name.className = ClassNameOf(data, index);
        name.chosen = evaluation.Selection().IsCaseSelected(index);
        names.push_back(std::move(name));
    }
    return names;
}

bool HasTitles(const std::vector<CaseName>& names) {
    return std::ranges::any_of(names, [](const CaseName& name) { return !name.title.empty(); });
}

using Numbers = std::map<std::string, std::vector<int>>;

Numbers ByWords(const std::vector<CaseName>& names, bool byTitle) {
    Numbers numbers;
    for (const CaseName& name : names) {
        numbers[byTitle && !name.title.empty() ? name.title : name.limitState].push_back(name.number);
    }
    return numbers;
}

}  // namespace

std::string TextOf(const CaseName& name) {
    if (name.number == 0) return "none";
    std::string text = "case " + std::to_string(name.number);
    if (!name.limitState.empty()) text += " " + name.limitState;
    if (!name.title.empty()) text += ", " + name.title;
    return text;
}

CaseMatch::CaseMatch(const Evaluation& before, const Evaluation& after)
    : m_before(CasesOf(before)),
      m_after(CasesOf(after)),
      m_afterOf(m_before.size() + 1),
      m_beforeOf(m_after.size() + 1) {
    // A run whose file of titles is missing is matched by limit states.
    const bool byTitle = HasTitles(m_before) && HasTitles(m_after);
    const Numbers later = ByWords(m_after, byTitle);
    for (const auto& [words, numbers] : ByWords(m_before, byTitle)) {
        const auto same = later.find(words);
        if (same == later.end()) continue;
        for (std::size_t i = 0; i < numbers.size() && i < same->second.size(); ++i) {
            m_afterOf[Index(numbers[i])] = same->second[i];
            m_beforeOf[Index(same->second[i])] = numbers[i];
        }
    }
}

}  // namespace lumerin
