// SPDX-License-Identifier: MIT
#include <algorithm>

#include "envelopes/SectionSearch.h"
#include "framework/Index.h"

namespace lumerin {

CSectionWalk::CSectionWalk(const CPier& pier, MemberFamily family, int firstSection, int entries)
    : m_nFirstSection(firstSection), m_nEntries(entries) {
    if (family == kPileFamily) AddPiles(pier);
    if (family == kColumnFamily) AddColumns(pier);
    if (family == kXMemberFamily) AddExtraMembers(pier);
}

void CSectionWalk::AddPiles(const CPier& pier) {
    int member = 0;
    for (const CPile& pile : pier.m_Piles) {
        AddMember(pier, member++, pile.m_nFirstElement, pile.m_nElements);
    }
}

// All allocated elements of a column are searched: without interior nodes its own count is 0, but its one
// element exists and has forces.
void CSectionWalk::AddColumns(const CPier& pier) {
    const int columns = std::min(pier.m_nColumns, static_cast<int>(pier.m_Frame.m_Columns.size()));
    for (int member = 0; member < columns; ++member) {
        AddMember(pier, member, pier.ColumnElement(member, 0), pier.m_nColumnNodes + 1);
    }
}

void CSectionWalk::AddExtraMembers(const CPier& pier) {
    const int members = std::min(pier.m_nExtraMembers, static_cast<int>(pier.m_Frame.m_XMembers.size()));
    for (int member = 0; member < members; ++member) {
        const CXMember& extra = pier.m_Frame.m_XMembers[Index(member)];
        AddMember(pier, member, extra.m_nFirstElement, pier.m_nXMemberElements);
    }
}

void CSectionWalk::AddMember(const CPier& pier, int member, int firstElement, int elements) {
    if (firstElement < 0) return;
    const int end = firstElement + std::min(elements, pier.ElementCount() - firstElement);
    for (int element = firstElement; element < end; ++element) {
        const long long entry = static_cast<long long>(pier.Element(element).m_nSection) - m_nFirstSection;
        if (entry < 0 || entry >= m_nEntries) continue;
        const int place = static_cast<int>(m_places.size());
        m_places.push_back({member, element - firstElement, element});
        if (!m_runs.empty()) {
            SectionRun& last = m_runs.back();
            if (last.entry == entry && last.firstElement + last.elements == element) {
                ++last.elements;
                continue;
            }
        }
        m_runs.push_back({element, 1, static_cast<int>(entry), place});
    }
}

}  // namespace lumerin
