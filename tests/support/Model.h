// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "model/CaseSelection.h"
#include "model/DataSet.h"

namespace lumerin {

// Substructures built by hand: members of a few elements.

struct PierShape {
    StructureType type = kTypePier;
    int piles = 0, pileNodes = 2;
    int columns = 0, columnNodes = 0;
    int spanElements = 0, cantileverElements = 0;  // of all spans; of each side
    int extraMembers = 0;
    int cases = 1;
    CodeFamily family = kFamilyNone;  // of combinations; without one they are plain load cases
    int section = 0;                  // of every element
    int sections = 0;                 // of piles, columns and extra members, as the results count them
    int firstExtraSection = 0;        // the lowest section of extra members
};

// The node of an element of the list (from 0) that was built by BuildPier.
inline int NodeOf(int element, int end) {
    return 10 * (element + 1) + end;
}

// The elements are numbered from 1 in the order of the list; all forces are 0.
inline void BuildPier(CPier& pier, const PierShape& shape) {
    CMemberCounts counts;
    counts.piles = shape.piles;
    counts.pileNodes = shape.pileNodes;
    counts.columns = shape.columns;
    counts.columnNodes = shape.columnNodes;
    counts.spanElements = shape.spanElements;
    counts.cantileverElements = shape.cantileverElements;
    counts.extraMembers = shape.extraMembers;
    pier.AllocateMembers(counts, shape.cases);
    for (int e = 0; e < pier.ElementCount(); ++e) {
        pier.Element(e) = {shape.section, e + 1, NodeOf(e, kEndI), NodeOf(e, kEndJ)};
    }
    pier.m_nStructureType = shape.type;
    pier.m_nPiles = shape.piles;
    pier.m_nColumns = shape.columns;
    pier.m_nColumnNodes = shape.columnNodes;
    pier.m_nExtraMembers = shape.extraMembers;
    pier.m_nCodeFamily = shape.family;
    pier.m_bCombinations = shape.family != kFamilyNone;
    pier.m_nPileSections = pier.m_nColumnSections = pier.m_nXMemberSections = shape.sections;
    pier.m_nXMemberFirstSection = shape.firstExtraSection;
}

// A project of one substructure.
class OnePier {
  public:
    OnePier() { data.m_nPiers = 1; }
    explicit OnePier(const PierShape& shape) : OnePier() { BuildPier(pier, shape); }
    OnePier(const OnePier&) = delete;
    OnePier& operator=(const OnePier&) = delete;

    CDataSet data;
    CPier& pier = data.m_Piers.emplace_back();
};

inline void SetClass(CPier& pier, int loadCase, int limitClass) {
    pier.m_LoadCases.at(static_cast<std::size_t>(loadCase)).m_nLimitClass = LimitClass{limitClass};
}

// A selection of at least `cases` cases, all of them selected, in which just the limit classes given have
// one; by AASHTO-LRFD, whatever the project's own family is.
inline CaseSelection SelectionWithClasses(const std::vector<int>& classes, int cases = 0) {
    constexpr int kNoClass = -1;
    OnePier project;
    project.pier.m_nCodeFamily = kFamilyLrfd;
    project.pier.m_LoadCases.resize(std::max(classes.size(), static_cast<std::size_t>(cases)));
    for (CLoadCase& loadCase : project.pier.m_LoadCases) loadCase.m_nLimitClass = LimitClass{kNoClass};
    for (std::size_t i = 0; i < classes.size(); ++i) SetClass(project.pier, static_cast<int>(i), classes[i]);
    return CaseSelection(project.data);
}

}  // namespace lumerin
