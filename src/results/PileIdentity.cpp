// SPDX-License-Identifier: MIT
#include "framework/Index.h"
#include "results/Identity.h"

namespace lumerin {

void IdentifyPiles(CPier& pier, const PierModel& model) {
    for (std::size_t p = 0; p < pier.m_Piles.size() && p < model.pileSections.size(); ++p) {
        const CPile& pile = pier.m_Piles[p];
        const int number = static_cast<int>(p) + 1;
        const int base = pile.m_nElements * static_cast<int>(p) + pier.m_nNodes;
        for (int e = 0; e < pile.m_nElements; ++e) {
            CElement& element = pier.Element(pile.m_nFirstElement + e);
            element.m_nSection = model.pileSections[p][Index(e)];
            // The head node of a pile is numbered by the pile; the others follow the frame's nodes.
            element.m_nNodeI = base + e + 1;
            element.m_nNodeJ = e == 0 ? number : base + e;
            element.m_nElementNumber = static_cast<int>(p) * pile.m_nElements + e + 1 + model.counts.elements;
        }
    }
}

namespace {

// The element table's row of an extra member; null outside the table.
const CElementRow* ExtraMemberRow(const CPier& pier, const PierModel& model, std::size_t member) {
    const long long row = static_cast<long long>(model.elementTable.size()) - pier.m_nExtraMembers +
                          static_cast<long long>(member);
    if (row < 0 || row >= static_cast<long long>(model.elementTable.size())) return nullptr;
    return &model.elementTable[Index(row)];
}

}  // namespace

void AssignExtraMemberNumbers(CPier& pier, const PierModel& model) {
    for (std::size_t x = 0; x < pier.m_Frame.m_XMembers.size(); ++x) {
        const CElementRow* row = ExtraMemberRow(pier, model, x);
        if (row == nullptr) continue;
        CElement& element = pier.Element(pier.m_Frame.m_XMembers[x].m_nFirstElement);
        element.m_nElementNumber = row->number;
        element.m_nNodeI = row->nodeI + 1;
        element.m_nNodeJ = row->nodeJ + 1;
    }
}

void AssignExtraMemberSections(CPier& pier, const PierModel& model) {
    bool first = true;
    for (std::size_t x = 0; x < pier.m_Frame.m_XMembers.size(); ++x) {
        const CElementRow* row = ExtraMemberRow(pier, model, x);
        if (row == nullptr) continue;
        pier.Element(pier.m_Frame.m_XMembers[x].m_nFirstElement).m_nSection = row->section;
        if (first || row->section < pier.m_nXMemberFirstSection) pier.m_nXMemberFirstSection = row->section;
        first = false;
    }
}

}  // namespace lumerin
