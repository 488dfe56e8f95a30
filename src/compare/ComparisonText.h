// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "compare/Comparison.h"

namespace lumerin {

// What differs, in words and in numbers for a person. Every form for people says it alike.

std::string_view AnswerWord(RunVerdict::Answer answer);  // "PASS", "FAIL", "NONE"

// The columns of a list of results: substructure, table, result, value and unit, old, new, change, percent,
// case, place, remark.
inline constexpr std::size_t kResultTexts = 11;
std::vector<std::string> ResultTexts(const ResultChange& result, UnitSystem units);

// "case 7 STRENGTH-IV" without the word; "none" of no case.
std::string ShortText(const CaseName& name);

// A line for each: "verdict of pile, substructure 1: PASS before, FAIL now".
std::vector<std::string> VerdictLines(const Comparison& comparison);
std::vector<std::string> StructureLines(const Comparison& comparison);
// New rows and rows that are gone, counted by table and substructure.
std::vector<std::string> RowLines(const Comparison& comparison);

// The titles of the cases of the verdicts and of the first `top` results of each list (0: all), once each by
// number; none where nothing differs.
std::vector<std::string> TitleLines(const Comparison& comparison, std::size_t top);

// "12 results are over the tolerances, 3 others govern in another case or place alone; 812 values compared"
std::string Summary(const Comparison& comparison);

}  // namespace lumerin
