// SPDX-License-Identifier: MIT
#pragma once

#include <limits>
#include <ostream>
#include <utility>

#include "envelopes/Collect.h"
#include "envelopes/ResultTables.h"
#include "support/CapModel.h"
#include "support/Forces.h"
#include "support/Messages.h"
#include "support/Model.h"

namespace lumerin {

// Substructures with what the searches take and fill.

inline constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

// Every case of a project of one substructure, its result tables with nothing found, and its searches.
class PierSearch {
  public:
    // The project is kept.
    explicit PierSearch(const CDataSet& project) : selection(project), forces(project), m_project(project) {
        Clear();
    }
    PierSearch(const PierSearch&) = delete;
    PierSearch& operator=(const PierSearch&) = delete;

    // Result tables of the project's sizes with nothing found.
    void Clear() { results = std::move(ResultTables(m_project).piers.front()); }
    void Search(TableId table) {
        ResultTables tables;
        tables.piers.push_back(std::move(results));
        CollectTable(table, {m_project, forces.Sources(), selection, messages}, tables);
        results = std::move(tables.piers.front());
    }
    // Whether the check after the searches finds a table's numbers good.
    bool IsValid(TableId table) {
        ResultTables tables(m_project);
        tables.valid = kAllTables;
        CollectTable(table, {m_project, forces.Sources(), selection, messages}, tables);
        return tables.valid[table];
    }

    void SetForce(int loadCase, int element, int end, int component, float value) {
        forces.Set(m_project.FirstPier(), loadCase, element, end, component, value);
    }
    void SetForceEverywhere(int component, float value) {
        const CPier& pier = m_project.FirstPier();
        for (int c = 0; c < pier.m_nLoadCases; ++c) {
            for (int e = 0; e < pier.ElementCount(); ++e) {
                SetForce(c, e, kEndI, component, value);
                SetForce(c, e, kEndJ, component, value);
            }
        }
    }
    ForceRow Forces(int loadCase, int element) {
        return forces.Of(m_project.FirstPier()).Row(loadCase, element);
    }

    CaseSelection selection;
    ModelForces forces;
    PierResults results;
    RecordedMessages messages;  // of the searches

  private:
    const CDataSet& m_project;
};

struct SearchedPier : OnePier, PierSearch {
    explicit SearchedPier(const PierShape& shape) : OnePier(shape), PierSearch(data) {}
};

struct SearchedCap : CapModel, PierSearch {
    explicit SearchedCap(const CapShape& shape) : CapModel(shape), PierSearch(data) {}

    // The forces of an element of the chain, counted from the left tip.
    void Set(int loadCase, int chain, int component, float atI, float atJ) {
        SetForce(loadCase, Element(chain), kEndI, component, atI);
        SetForce(loadCase, Element(chain), kEndJ, component, atJ);
    }
    void ComputeShear() { Search(kTableCapShear); }
    void ComputeMoment() { Search(kTableCapMoment); }
};

// Piles alone; all elements have section 1 of three.
inline PierShape Piles(int piles, int elements, int cases, CodeFamily family = kFamilyNone) {
    return {.type = kTypePileGroup,
            .piles = piles,
            .pileNodes = elements + 1,
            .cases = cases,
            .family = family,
            .section = 1,
            .sections = 3};
}

// The record of an end of a member's element, by the element's index in the member and in the list.
inline CMaxRecord RecordAt(int loadCase, int member, int element, int listElement, int end) {
    return {loadCase, member, element, listElement + 1, end, NodeOf(listElement, end)};
}

// Which extreme of a cap's result.
constexpr int kMax = 0, kMin = 1;

// The record of a place of a cap; `second` and `missing` count where it is between two ends.
inline CCapRecord CapRecord(int loadCase, int prop, int index, int elem, int end, int node, int kind,
                            int member, int second = 0, int missing = 0) {
    return {loadCase, prop, index, elem, end, node, kind, member, second, missing};
}

// Shown by a failing comparison.
inline void PrintTo(const CMaxRecord& r, std::ostream* out) {
    *out << "{case " << r.m_nLoadCase << ", member " << r.m_nMember << ", element " << r.m_nElement
         << " (number " << r.m_nElementNumber << "), end " << r.m_nEnd << ", node " << r.m_nNode << "}";
}

}  // namespace lumerin
