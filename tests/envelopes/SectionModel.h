#pragma once

#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "model/Pier.h"

// Small substructures for the tests of the searches. Element e of the list has the number 100 + e and the
// nodes 1000 + e at I and 2000 + e at J.
inline constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

inline CPier MakePier(const CMemberCounts& counts, int cases, int codeFamily = -1, int sections = 3) {
    CPier pier;
    pier.AllocateMembers(counts, cases);
    pier.m_nStructureType = 1;  // no cap
    pier.m_nPiles = counts.piles;
    pier.m_nColumns = counts.columns;
    pier.m_nColumnNodes = counts.columnNodes;
    pier.m_nExtraMembers = counts.extraMembers;
    pier.m_nCodeFamily = codeFamily;
    pier.m_bCombinations = codeFamily >= 0;
    pier.m_nPileSections = pier.m_nColumnSections = pier.m_nXMemberSections = sections;
    pier.m_nXMemberFirstSection = 7;
    for (int e = 0; e < pier.ElementCount(); ++e) {
        pier.Element(e) = CElement{1, 100 + e, 1000 + e, 2000 + e};
    }
    pier.AllocateCaseSelection(cases);
    pier.SelectAllCases();
    pier.AllocateResultTables();
    return pier;
}

inline CPier MakePiles(int piles, int elements, int cases, int codeFamily = -1) {
    CMemberCounts counts;
    counts.piles = piles;
    counts.pileNodes = elements + 1;
    return MakePier(counts, cases, codeFamily);
}

inline void SetForce(CPier& pier, int loadCase, int element, int end, int component, float value) {
    pier.MutableForces(loadCase, element)[static_cast<std::size_t>(end * kComponents + component)] = value;
}

inline void SetForceEverywhere(CPier& pier, int component, float value) {
    for (int c = 0; c < pier.m_nLoadCases; ++c) {
        for (int e = 0; e < pier.ElementCount(); ++e) {
            SetForce(pier, c, e, kEndI, component, value);
            SetForce(pier, c, e, kEndJ, component, value);
        }
    }
}

inline void SetClass(CPier& pier, int loadCase, int limitClass) {
    pier.m_LoadCases.at(static_cast<std::size_t>(loadCase)).m_nLimitClass = limitClass;
}

// The record of the element that member `member` has at place `element`, by its index in the list.
inline CMaxRecord RecordAt(int loadCase, int member, int element, int listElement, int end) {
    return {loadCase, member, element, 100 + listElement, end, (end == kEndI ? 1000 : 2000) + listElement};
}

// Shown by a failing comparison.
inline void PrintTo(const CMaxRecord& r, std::ostream* out) {
    *out << "{case " << r.m_nLoadCase << ", member " << r.m_nMember << ", element " << r.m_nElement
         << " (number " << r.m_nElementNumber << "), end " << r.m_nEnd << ", node " << r.m_nNode << "}";
}
