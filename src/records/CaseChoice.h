// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/CaseSelection.h"
#include "model/DataSet.h"

namespace lumerin {

// Which load cases a user asked for, before a project is known.
struct CaseChoice {
    // Numbers from 1, as ranges of first and last. With patterns: cases of either.
    std::vector<std::pair<int, int>> numbers;
    // Held against limit state and title, "*" and "?" as in file names, letters of either case.
    std::vector<std::string> patterns;
    // Limit classes by name (ClassName). A case must be in one of them, and in numbers or patterns if there
    // are any.
    std::vector<std::string> classes;

    bool IsAll() const { return numbers.empty() && patterns.empty() && classes.empty(); }
};

// Reads "1,3,5-9" and "STRENGTH-*,7": a part that is a number or a range of numbers, else a pattern. Throws
// std::invalid_argument with a text for the user for an empty text or part, and a range that runs backwards.
void ReadCases(std::string_view text, CaseChoice& choice);
// Reads "strength,service". Throws std::invalid_argument for a word that no family has as a class.
void ReadClasses(std::string_view text, CaseChoice& choice);

// "strength", "service", "extreme", "fatigue"; of AREMA "load factor design", "service load design"; empty
// for cases without classes.
std::string_view ClassName(CodeFamily family, LimitClass limitClass);
// The class of a case of the first substructure; empty where the cases are no combinations or the family has
// one class alone.
std::string_view ClassNameOf(const CDataSet& data, int loadCase);

// The chosen cases of a project. Throws std::invalid_argument with a text for the user when a number is
// beyond the last case, or nothing is chosen.
CaseSelection Select(const CDataSet& data, const CaseChoice& choice);

}  // namespace lumerin
