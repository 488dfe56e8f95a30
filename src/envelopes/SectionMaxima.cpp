#include "envelopes/SectionSearch.h"

// The section numbers of piles count from 1; those of columns from 2, as number 1 is neither column nor cap.
namespace {
constexpr int kFirstPileSection = 1;
constexpr int kFirstColumnSection = 2;

void Fill(const CPier& pier, CPier::MemberFamily family, int firstSection, CRecordTable& table) {
    FillSectionTable(pier, CSectionWalk(pier, family, firstSection, table.Sections()), table);
}
}  // namespace

void CPier::ComputePileDemandCapacity() {
    Fill(*this, kPileFamily, kFirstPileSection, m_PileDc);
}
void CPier::ComputeColumnDemandCapacity() {
    Fill(*this, kColumnFamily, kFirstColumnSection, m_ColumnDc);
}
void CPier::ComputePileForces() {
    Fill(*this, kPileFamily, kFirstPileSection, m_PileForces);
}
void CPier::ComputeColumnForces() {
    Fill(*this, kColumnFamily, kFirstColumnSection, m_ColumnForces);
}
void CPier::ComputeExtraMemberForces() {
    Fill(*this, kXMemberFamily, m_nXMemberFirstSection, m_XMemberForces);
}

// The records' integers are always good numbers, and the forces of all cases, selected or not, were tested
// while they were read, so a check is an answer that stands ready.
bool CPier::CheckPileDemandCapacityData() const {
    return m_bPileForcesFinite;
}
bool CPier::CheckColumnDemandCapacityData() const {
    return m_bColumnForcesFinite;
}
bool CPier::CheckPileForceData() const {
    return m_bPileForcesFinite;
}
bool CPier::CheckColumnForceData() const {
    return m_bColumnForcesFinite;
}
bool CPier::CheckExtraMemberForceData() const {
    return m_bXMemberForcesFinite;
}
