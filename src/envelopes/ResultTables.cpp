// SPDX-License-Identifier: MIT
#include "envelopes/ResultTables.h"

#include <algorithm>

#include "framework/Index.h"
#include "model/CapChain.h"

namespace lumerin {

namespace {

int AtLeastZero(int count) {
    return std::max(count, 0);
}

template <class Value>
std::vector<Value> Zeros(int count) {
    return std::vector<Value>(Index(AtLeastZero(count)));
}

void AllocateCapTables(const CPier& pier, PierResults& tables) {
    const int supports = HasCapTables(pier) ? CapSupportCount(pier) : 0;
    const int slots = pier.SlotCount();
    const int rows = static_cast<int>(std::min<std::size_t>(pier.m_BearingRows.size(), 2));
    tables.momentSupports.Allocate(supports, slots, 3);
    tables.momentBearings.Allocate(pier.m_nMaxRowBearings, slots, rows);
    tables.shearSupports.Allocate(supports, slots, 4);
    tables.shearBearings.Allocate(pier.m_nMaxRowBearings, slots, 2 * rows);
    tables.momentSupportX = Zeros<double>(pier.m_nCapMomentSupports);
    tables.shearSupportX = Zeros<double>(pier.m_nCapShearSupports);
    tables.momentSupportList = Zeros<CSupportLocation>(pier.m_nCapMomentSupports);
    tables.shearSupportList = Zeros<CSupportLocation>(pier.m_nCapShearSupports);
    tables.momentPointX = Zeros<double>(pier.m_nCapMomentPoints);
    tables.shearPointX = Zeros<double>(pier.m_nCapShearPoints);
}

PierResults MakePierResults(const CPier& pier) {
    PierResults tables;
    const int slots = pier.SlotCount();
    tables.maxTension.assign(Index(slots), std::vector<int>(pier.m_Piles.size(), 0));
    tables.maxCompression = tables.maxTension;
    tables.pileDc.Allocate(AtLeastZero(pier.m_nPileSections), slots, 1);
    tables.columnDc.Allocate(AtLeastZero(pier.m_nColumnSections), slots, 1);
    if (HasCapTables(pier)) AllocateCapTables(pier, tables);
    tables.pileForces.Allocate(AtLeastZero(pier.m_nPileSections), slots, kExtremes);
    tables.columnForces.Allocate(AtLeastZero(pier.m_nColumnSections), slots, kExtremes);
    tables.extraMemberForces.Allocate(AtLeastZero(pier.m_nXMemberSections), slots, kExtremes);
    return tables;
}

}  // namespace

ResultTables::ResultTables(const CDataSet& data) {
    for (const CPier& pier : data.m_Piers) piers.push_back(MakePierResults(pier));
    if (!data.IsPierless() && !HasCapTables(data.FirstPier())) valid[kTableCapShear] = false;
}

NextPoint NextCapPoint(const std::vector<double>& supportX, int supportCursor,
                       const std::vector<double>& bearingX, int bearingCursor) {
    const std::size_t support = Index(std::max(supportCursor, 0));
    const std::size_t bearing = Index(std::max(bearingCursor, 0));
    const bool bearingsLeft = bearing < bearingX.size();
    if (support >= supportX.size()) return bearingsLeft ? NextPoint::bearing : NextPoint::nothing;
    if (!bearingsLeft) return NextPoint::support;
    // A support section comes before a bearing at the same x.
    return bearingX[bearing] < supportX[support] ? NextPoint::bearing : NextPoint::support;
}

}  // namespace lumerin
