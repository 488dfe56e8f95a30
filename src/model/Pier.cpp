#include "model/Pier.h"

#include <algorithm>
#include <new>

#include "framework/Backend.h"

namespace {

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
    m_Piles.assign(static_cast<std::size_t>(AtLeastZero(counts.piles)), CPile{});
    for (CPile& pile : m_Piles) {
        pile.m_nNodes = counts.pileNodes;
        PlaceMember(pile, AtLeastZero(counts.pileNodes - 1), next);
    }
    m_nFirstFrameElement = next;
    m_Frame.m_Columns.assign(static_cast<std::size_t>(AtLeastZero(counts.columns)), CColumn{});
    for (CColumn& column : m_Frame.m_Columns) {
        PlaceMember(column, AtLeastZero(counts.columnNodes + 1), next);
        // A column without interior nodes has its one element allocated but a count of 0; only the walks
        // that go by the pier's own node count see it.
        if (counts.columnNodes <= 0) column.m_nElements = 0;
    }
    PlaceMember(m_Frame.m_Cantilevers[0], AtLeastZero(counts.cantileverElements), next);
    PlaceMember(m_Frame.m_Beam, AtLeastZero(counts.spanElements), next);
    PlaceMember(m_Frame.m_Cantilevers[1], AtLeastZero(counts.cantileverElements), next);
    m_Frame.m_XMembers.assign(static_cast<std::size_t>(AtLeastZero(counts.extraMembers)), CXMember{});
    for (CXMember& member : m_Frame.m_XMembers) PlaceMember(member, 1, next);

    const std::size_t elements = static_cast<std::size_t>(next);
    const std::size_t frameElements = elements - static_cast<std::size_t>(m_nFirstFrameElement);
    m_Elements.assign(elements, CElement{});
    m_SectionData.assign(frameElements, CSectionData{});
    m_Masked.assign(frameElements, 0);
    m_nLoadCases = AtLeastZero(loadCases);
    m_LoadCases.assign(static_cast<std::size_t>(m_nLoadCases), CLoadCase{});
    AllocateForces();
}

// Zeroed pages come from the system untouched, so forces that are read at once are written once.
void CPier::AllocateForces() {
    constexpr std::size_t kBlockBytes = std::size_t{16} << 20;
    m_ForceBlocks.clear();
    const std::size_t caseFloats = m_Elements.size() * kForcesPerElement;
    if (caseFloats == 0) return;
    m_nBlockShift = 0;
    while ((caseFloats * sizeof(float)) << (m_nBlockShift + 1) <= kBlockBytes) ++m_nBlockShift;
    const std::size_t cases = static_cast<std::size_t>(m_nLoadCases);
    const std::size_t perBlock = std::size_t{1} << m_nBlockShift;
    for (std::size_t done = 0; done < cases; done += perBlock) {
        const std::size_t here = std::min(perBlock, cases - done);
        // NOLINTNEXTLINE(cppcoreguidelines-no-malloc)
        void* block = std::calloc(here * caseFloats, sizeof(float));
        if (block == nullptr) throw std::bad_alloc();
        m_ForceBlocks.emplace_back(static_cast<float*>(block));
        services::PreferLargePages(block, here * caseFloats * sizeof(float));
    }
}

std::vector<int> CPier::CollectSections(const CMember& member) const {
    std::vector<int> sections;
    for (int e = 0; e < member.m_nElements; ++e) {
        const int section = Element(member.m_nFirstElement + e).m_nSection;
        if (std::find(sections.begin(), sections.end(), section) == sections.end()) {
            sections.push_back(section);
        }
    }
    return sections;
}

int CPier::FindElement(MemberFamily family, int member, int element) const {
    if (member < 0 || element < 0) return -1;
    const std::size_t m = static_cast<std::size_t>(member);
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

void CPier::AllocateCaseSelection(int cases) {
    m_CaseSelected.assign(static_cast<std::size_t>(AtLeastZero(cases)), 0);
}

void CPier::SelectAllCases() {
    std::fill(m_CaseSelected.begin(), m_CaseSelected.end(), std::uint8_t{1});
}

bool CPier::IsCaseSelected(int index) const {
    return index >= 0 && index < static_cast<int>(m_CaseSelected.size()) &&
           m_CaseSelected[static_cast<std::size_t>(index)] != 0;
}

void CPier::SetCaseSelected(int index, bool selected) {
    if (index < 0 || index >= static_cast<int>(m_CaseSelected.size())) return;
    m_CaseSelected[static_cast<std::size_t>(index)] = selected ? 1 : 0;
}

bool CPier::HasOnlyLimitClasses(int a, int b, int c, int d) const {
    if (m_nCodeFamily == -1 || m_nCodeFamily == 1 || m_nCodeFamily == 2) return false;
    if (m_nCodeFamily != 0) return true;
    const std::array<int, 4> asked{a, b, c, d};
    for (int limitClass = 0; limitClass < 4; ++limitClass) {
        if ((asked[static_cast<std::size_t>(limitClass)] == limitClass) != IsClassPresent(limitClass)) {
            return false;
        }
    }
    return true;
}

int CPier::SlotCount() const {
    if (m_nCodeFamily == 0) return 4;
    return m_nCodeFamily == 2 ? 2 : 1;
}

void CPier::AllocateResultTables() {
    const int slots = SlotCount();
    m_ppMaxTension.assign(static_cast<std::size_t>(slots), std::vector<int>(m_Piles.size(), 0));
    m_ppMaxCompression = m_ppMaxTension;
    m_PileDc.Allocate(AtLeastZero(m_nPileSections), slots, 1);
    m_ColumnDc.Allocate(AtLeastZero(m_nColumnSections), slots, 1);
    if (m_nStructureType == 0 || m_nStructureType == 7) BuildCapGeometry();
    m_PileForces.Allocate(AtLeastZero(m_nPileSections), slots, kExtremes);
    m_ColumnForces.Allocate(AtLeastZero(m_nColumnSections), slots, kExtremes);
    m_XMemberForces.Allocate(AtLeastZero(m_nXMemberSections), slots, kExtremes);
}
