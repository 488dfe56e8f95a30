#include <initializer_list>

#include "results/CollectData.h"

namespace {

// One operation of a table over all piers, before the next operation begins.
void ForAllPiers(std::initializer_list<void (CPier::*)()> operations) {
    for (auto operation : operations) {
        for (CPier& pier : g_DataSet.m_Piers) (pier.*operation)();
    }
}

// The first pier that fails makes the table invalid for the rest of the session.
void CheckAllPiers(TableId table, bool (CPier::*check)() const) {
    for (const CPier& pier : g_DataSet.m_Piers) {
        if ((pier.*check)()) continue;
        g_DataSet.m_bTableValid[table] = false;
        return;
    }
}

// Whether the first pier's type has no columns to search. Unlike the tables' applicability this looks at
// type 8 and not at type 7.
bool LacksColumnData() {
    if (g_DataSet.IsPierless()) return false;
    return HasNoFrame(g_DataSet.FirstPier().m_nStructureType);
}

void CollectColumns(TableId table, void (CPier::*search)(), bool (CPier::*check)() const) {
    if (LacksColumnData()) {
        g_DataSet.m_bTableValid[table] = false;
        return;
    }
    ForAllPiers({search});
    CheckAllPiers(table, check);
}

}  // namespace

void CCollectData::CollectMaxAxialForces() {
    ForAllPiers({&CPier::ComputeMaxAxialForces});
    CheckAllPiers(kTableMaxAxial, &CPier::CheckMaxAxialData);
}

void CCollectData::CollectPileDemandCapacity() {
    ForAllPiers({&CPier::ComputePileDemandCapacity});
    CheckAllPiers(kTablePileDc, &CPier::CheckPileDemandCapacityData);
}

void CCollectData::CollectColumnDemandCapacity() {
    CollectColumns(kTableColumnDc, &CPier::ComputeColumnDemandCapacity,
                   &CPier::CheckColumnDemandCapacityData);
}

void CCollectData::CollectCapShear() {
    ForAllPiers(
        {&CPier::ComputeCapShearAtSupports, &CPier::ComputeCapShearAtBearings, &CPier::MergeShearPoints});
    CheckAllPiers(kTableCapShear, &CPier::CheckCapShearData);
}

void CCollectData::CollectCapMoment() {
    ForAllPiers(
        {&CPier::ComputeCapMomentAtSupports, &CPier::ComputeCapMomentAtBearings, &CPier::MergeMomentPoints});
    CheckAllPiers(kTableCapMoment, &CPier::CheckCapMomentData);
}

void CCollectData::CollectPileForces() {
    ForAllPiers({&CPier::ComputePileForces});
    CheckAllPiers(kTablePileForces, &CPier::CheckPileForceData);
}

void CCollectData::CollectColumnForces() {
    CollectColumns(kTableColumnForces, &CPier::ComputeColumnForces, &CPier::CheckColumnForceData);
}

void CCollectData::CollectExtraMemberForces() {
    ForAllPiers({&CPier::ComputeExtraMemberForces});
    CheckAllPiers(kTableExtraMembers, &CPier::CheckExtraMemberForceData);
}
