// SPDX-License-Identifier: MIT
#include "model/Pier.h"

#include <algorithm>

#include "framework/Index.h"
#include "model/CaseSelection.h"

namespace lumerin {

namespace {

constexpr std::array<LimitClass, kLimitClasses> kAllClasses{kStrength, kService, kExtreme, kFatigue};

int AtLeastZero(int count) {
    return std::max(count, 0);
}

// Takes the next `count` elements of the list for a member.
void PlaceMember(CMember& member, int count, int& next) {
    member.m_nFirstElement = next;
    member.m_nElements = count;
    next += count;
}

}  // namespace

void CPier::AllocateMembers(const CMemberCounts& counts, int loadCases) {
    int next = 0;
    m_Piles.assign(Index(AtLeastZero(counts.piles)), CPile{});
    for (CPile& pile : m_Piles) {
        pile.m_nNodes = counts.pileNodes;
        PlaceMember(pile, AtLeastZero(counts.pileNodes - 1), next);
    }
    m_nFirstFrameElement = next;
    m_Frame.m_Columns.assign(Index(AtLeastZero(counts.columns)), CColumn{});
    for (CColumn& column : m_Frame.m_Columns) {
        PlaceMember(column, AtLeastZero(counts.columnNodes + 1), next);
        // A column without interior nodes has one allocated element but a count of 0. Only loops that use the
        // pier's own node count reach the element.
        if (counts.columnNodes <= 0) column.m_nElements = 0;
    }
    PlaceMember(m_Frame.m_Cantilevers[0], AtLeastZero(counts.cantileverElements), next);
    PlaceMember(m_Frame.m_Beam, AtLeastZero(counts.spanElements), next);
    PlaceMember(m_Frame.m_Cantilevers[1], AtLeastZero(counts.cantileverElements), next);
    m_Frame.m_XMembers.assign(Index(AtLeastZero(counts.extraMembers)), CXMember{});
    for (CXMember& member : m_Frame.m_XMembers) PlaceMember(member, 1, next);

    const std::size_t elements = Index(next);
    const std::size_t frameElements = elements - Index(m_nFirstFrameElement);
    m_Elements.assign(elements, CElement{});
    m_SectionData.assign(frameElements, CSectionData{});
    m_Masked.assign(frameElements, 0);
    m_nLoadCases = AtLeastZero(loadCases);
    m_LoadCases.assign(Index(m_nLoadCases), CLoadCase{});
}

int CPier::FindElement(MemberFamily family, int member, int element) const {
    if (member < 0 || element < 0) return -1;
    const std::size_t m = Index(member);
    switch (family) {
        case kPileFamily:
            if (m >= m_Piles.size() || element >= m_Piles[m].m_nElements) return -1;
            return m_Piles[m].m_nFirstElement + element;
        case kColumnFamily:
            // The allocated elements of a column, not its own count, which is 0 without interior nodes.
            if (m >= m_Frame.m_Columns.size() || element >= ColumnElements()) return -1;
            return m_Frame.m_Columns[m].m_nFirstElement + element;
        case kXMemberFamily:
            if (m >= m_Frame.m_XMembers.size() || element >= m_Frame.m_XMembers[m].m_nElements) return -1;
            return m_Frame.m_XMembers[m].m_nFirstElement + element;
    }
    return -1;
}

bool CPier::HasOnlyLimitClasses(const CaseSelection& selection, int a, int b, int c, int d) const {
    if (m_nCodeFamily == kFamilyNone || m_nCodeFamily == kFamilyLfd || m_nCodeFamily == kFamilyArema)
        return false;
    if (m_nCodeFamily != kFamilyLrfd) return true;
    const std::array<int, kLimitClasses> asked{a, b, c, d};
    return std::ranges::all_of(kAllClasses, [&](LimitClass limitClass) {
        return (asked[Index(limitClass)] == limitClass) == selection.IsClassPresent(limitClass);
    });
}

int CPier::SlotCount() const {
    if (m_nCodeFamily == kFamilyLrfd) return kLimitClasses;
    return m_nCodeFamily == kFamilyArema ? 2 : 1;
}

std::span<const LimitClass> CPier::Slots() const {
    return std::span(kAllClasses).first(Index(SlotCount()));
}

}  // namespace lumerin
