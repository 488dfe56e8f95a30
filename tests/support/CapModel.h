// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "support/Model.h"

namespace lumerin {

// A cap built by hand. Its nodes are in the node list as the results list them: the first column, the left
// cantilever, then span after span with the column after it, the right cantilever last; in a bent the pile
// heads come first. `x` names the cap's nodes from left to right.
struct CapShape {
    StructureType type = kTypePier;
    int supports = 2;
    int columnNodes = 1;
    int spanNodes = 1;
    bool cantilevers = true;
    int cantileverNodes = 1;
    int foundationNodes = 2;
    double width = 4.0;
    int cases = 1;
    std::vector<double> x;
    std::vector<std::vector<int>> bearingNodes;  // by row
    CodeFamily family = kFamilyNone;
    std::vector<LimitClass> limitClasses;  // by case; given: the cases are combinations
};

// A project of one substructure with that cap; its cap geometry is built.
class CapModel : public OnePier {
  public:
    explicit CapModel(const CapShape& shape) : m_shape(shape) {
        SetCounts();
        ListNodes();
        NumberChain();
        SetCases();
        for (const std::vector<int>& bearings : shape.bearingNodes) {
            CBearingRow row;
            for (int node : bearings) row.m_Bearings.push_back({node});
            pier.m_BearingRows.push_back(row);
        }
        pier.m_nBearingRows = static_cast<int>(shape.bearingNodes.size());
        pier.BuildCapGeometry();
    }

    int Elements() const { return static_cast<int>(m_chain.size()); }
    // The element list's index of an element of the chain, counted from the left tip.
    int Element(int chain) const { return m_chain.at(static_cast<std::size_t>(chain)); }
    void Mask(int chain) { pier.SetMasked(Element(chain), true); }

    std::vector<int> nodes;  // numbers of the cap's nodes from left to right

  private:
    void SetCounts() {
        const CapShape& s = m_shape;
        const int cantilever = s.cantilevers ? s.cantileverNodes + 1 : 0;
        CMemberCounts counts;
        counts.columns = s.type == kTypePileBent ? 0 : s.supports;
        counts.columnNodes = s.columnNodes;
        counts.piles = s.type == kTypePileBent ? s.supports : 0;
        counts.pileNodes = 2;
        counts.spanElements = (s.spanNodes + 1) * (s.supports - 1);
        counts.cantileverElements = cantilever;
        pier.AllocateMembers(counts, s.cases);
        pier.m_nStructureType = s.type;
        pier.m_nColumns = s.supports;
        pier.m_nPiles = counts.piles;
        pier.m_nColumnNodes = s.columnNodes;
        pier.m_nSpanNodes = s.spanNodes;
        pier.m_nCantilevers = s.cantilevers ? 2 : 0;
        pier.m_nCantileverNodes = s.cantilevers ? s.cantileverNodes : -1;
        pier.m_nFoundationNodes = s.foundationNodes;
        for (CPile& pile : pier.m_Piles) pile.m_dDimension = s.width;
        for (int c = 0; c < counts.columns; ++c) {
            pier.SectionData(pier.ColumnElement(c, s.columnNodes)).m_dWidth = s.width;
        }
        for (int side = 0; side < 2; ++side) AppendRun(pier.m_Frame.m_Cantilevers[side], side == 0);
    }
    void AppendRun(const CMember& cantilever, bool withSpans) {
        for (int e = 0; e < cantilever.m_nElements; ++e) m_chain.push_back(cantilever.m_nFirstElement + e);
        if (!withSpans) return;
        for (int e = 0; e < pier.m_Frame.m_Beam.m_nElements; ++e) {
            m_chain.push_back(pier.m_Frame.m_Beam.m_nFirstElement + e);
        }
    }
    // Takes the next cap node: appends its x to the node list, and puts its number into the chain at `at`.
    void ListNode(std::size_t at) {
        pier.m_dNodes.push_back({m_shape.x.at(at), 0.0, 0.0});
        nodes.at(at) = m_shape.foundationNodes + static_cast<int>(pier.m_dNodes.size());
    }
    void ListRun(std::size_t first, int count) {
        for (int i = 0; i < count; ++i) ListNode(first + static_cast<std::size_t>(i));
    }
    void ListNodes() {
        const CapShape& s = m_shape;
        const int cantilever = s.cantilevers ? s.cantileverNodes + 1 : 0;
        const auto top = [&](int c) { return static_cast<std::size_t>(cantilever + c * (s.spanNodes + 1)); };
        nodes.assign(s.x.size(), 0);
        if (s.type == kTypePileBent) {
            for (int c = 0; c < s.supports; ++c) ListNode(top(c));
        }
        for (int c = 0; c < s.supports; ++c) {
            if (s.type != kTypePileBent) {
                const double x = s.x.at(top(c));
                pier.m_dNodes.insert(pier.m_dNodes.end(), static_cast<std::size_t>(s.columnNodes + 1),
                                     {x, 0, 0});
                ListNode(top(c));
            }
            if (c == 0) ListRun(0, cantilever);
            if (c + 1 < s.supports) ListRun(top(c) + 1, s.spanNodes);
        }
        ListRun(top(s.supports - 1) + 1, cantilever);
        pier.m_nNodes = static_cast<int>(pier.m_dNodes.size()) + s.foundationNodes;
    }
    // ELEM numbers from 21, PROP numbers from 1, both from the left tip.
    void NumberChain() {
        for (std::size_t i = 0; i < m_chain.size(); ++i) {
            CElement& element = pier.Element(m_chain[i]);
            element.m_nElementNumber = 21 + static_cast<int>(i);
            element.m_nSection = 1 + static_cast<int>(i);
            element.m_nNodeI = nodes.at(i);
            element.m_nNodeJ = nodes.at(i + 1);
        }
    }
    void SetCases() {
        pier.m_nCodeFamily = m_shape.family;
        pier.m_bCombinations = !m_shape.limitClasses.empty();
        for (std::size_t i = 0; i < m_shape.limitClasses.size(); ++i) {
            pier.m_LoadCases.at(i).m_nLimitClass = m_shape.limitClasses[i];
        }
    }

    CapShape m_shape;
    std::vector<int> m_chain;
};

// Two columns of width 4 under a cap of 40 with cantilevers. Nodes from the left: 6 7 5 8 11 12 13; elements
// 21 to 26. Columns are at 10 and 30.
inline CapShape TwoColumns() {
    CapShape shape;
    shape.x = {0, 5, 10, 20, 30, 35, 40};
    return shape;
}

// The same without cantilevers. Nodes 5 6 9; elements 21 and 22.
inline CapShape TwoColumnsWithoutCantilevers() {
    CapShape shape;
    shape.cantilevers = false;
    shape.x = {10, 20, 30};
    return shape;
}

// A bent on two piles with cantilevers. Nodes from the left: 3 4 1 5 2 6 7.
inline CapShape TwoPileBent() {
    CapShape shape = TwoColumns();
    shape.type = kTypePileBent;
    shape.foundationNodes = 0;
    return shape;
}

}  // namespace lumerin
