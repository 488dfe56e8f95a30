// SPDX-License-Identifier: MIT
#include "results/ForcePlan.h"

#include <algorithm>
#include <utility>

#include "framework/Index.h"

namespace lumerin {

namespace {

// Data that the searches for records share: the block's layout and the count of element numbers without a
// record.
class Planner {
  public:
    Planner(const CPier& pier, const PierModel& model)
        : m_pier(pier), m_counts(model.counts), m_table(model.elementTable) {
        m_missingBelow.assign(1, 0);
        for (const std::uint8_t masked : model.elementMask)
            m_missingBelow.push_back(m_missingBelow.back() + masked);
    }

    std::vector<CForceRead> Take() { return std::move(m_reads); }

    void PlanPiles() {
        long long record = 1;
        for (const CPile& pile : m_pier.m_Piles) {
            for (int e = 0; e < pile.m_nElements; ++e)
                Add(record++, pile.m_nFirstElement + e, ForceKind::pile);
        }
    }

    void PlanCap();
    void PlanColumns();

    void PlanExtraMembers() {
        long long record =
            static_cast<long long>(m_counts.pileElements) + m_counts.elements - m_pier.m_nExtraMembers;
        for (const CXMember& member : m_pier.m_Frame.m_XMembers) {
            Add(++record, member.m_nFirstElement, ForceKind::extraMember);
        }
    }

  private:
    void Add(long long record, int element, ForceKind kind) { m_reads.push_back({record, element, kind}); }
    void AddCap(const CMember& member, int index, long long record) {
        if (index >= 0 && index < member.m_nElements) {
            Add(record, member.m_nFirstElement + index, ForceKind::frame);
        }
    }
    // Records exist for real elements only: a number loses the masked numbers below it.
    long long WithoutGaps(int number) const {
        const int last = static_cast<int>(m_missingBelow.size()) - 1;
        return number - m_missingBelow[Index(std::clamp(number, 0, last))];
    }
    int LastColumnSection() const { return std::max(m_counts.columnSections, 1) + 1; }
    // The element number at which column m begins; -1 when no row does.
    int FirstNumberOfColumn(int m) const;

    const CPier& m_pier;
    const PierCounts& m_counts;
    const std::vector<CElementRow>& m_table;
    std::vector<int> m_missingBelow;  // masked numbers below each number
    std::vector<CForceRead> m_reads;
};

void Planner::PlanCap() {
    const long long span = (m_pier.m_nSpanNodes + 1LL) * (m_pier.m_nColumns - 1LL);
    const long long cantilever = m_pier.m_nCantileverNodes + 1LL;
    const long long firstRecord = (m_counts.pileNodes - 1LL) * m_counts.pilesFromNodes;
    const int rows = static_cast<int>(m_table.size()) - m_pier.m_nExtraMembers;
    const CFrame& frame = m_pier.m_Frame;
    long long position = 0;  // along the cap
    int left = 0, right = 0;
    long long inSpan = 0;
    for (int i = 0; i < rows; ++i) {
        const CElementRow& row = m_table[Index(i)];
        const int previous = m_table[Index(std::max(i - 1, 0))].number;
        // Masked numbers keep their place along the cap; inside a cantilever the index does not move.
        const long long gap = static_cast<long long>(row.number) - previous - 1;
        if (m_counts.elementGaps > 0 && gap > 0) {
            position += gap;
            inSpan += gap;
        }
        if (row.section < LastColumnSection() + 1) continue;
        const long long record = firstRecord + WithoutGaps(row.number);
        if (position < cantilever) {
            AddCap(frame.m_Cantilevers[0], left++, record);
        } else if (position < cantilever + span) {
            AddCap(frame.m_Beam, static_cast<int>(std::min(inSpan++, 1LL << 30)), record);
        } else if (position < span + 2 * cantilever) {
            AddCap(frame.m_Cantilevers[1], right++, record);
        }
        ++position;
    }
}

int Planner::FirstNumberOfColumn(int m) const {
    int column = 0;
    for (std::size_t row = 0; row < m_table.size(); ++row) {
        const int section = m_table[row].section;
        if (section == 1 || section > LastColumnSection()) continue;
        if (column == m) return m_table[row].number;
        ++column;
        row += Index(std::max(m_pier.m_nColumnNodes, 0));
    }
    return -1;
}

void Planner::PlanColumns() {
    if (m_pier.m_nStructureType == kTypePileBent) return;
    for (int m = 0; m < m_pier.m_nColumns; ++m) {
        const int number = FirstNumberOfColumn(m);
        if (number == -1 && m_pier.m_nStructureType == kTypePier) continue;
        const long long record = m_counts.pileElements + WithoutGaps(number);
        const int first = m_pier.ColumnElement(m, 0);
        for (int e = 0; e <= m_pier.m_nColumnNodes; ++e) Add(record + e, first + e, ForceKind::frame);
    }
}

}  // namespace

std::vector<CForceRead> PlanForceReads(const CPier& pier, const PierModel& model, StructureType firstType) {
    Planner planner(pier, model);
    planner.PlanPiles();
    if (!HasNoFrame(firstType)) {
        planner.PlanCap();
        planner.PlanColumns();
    }
    planner.PlanExtraMembers();
    return planner.Take();
}

}  // namespace lumerin
