// SPDX-License-Identifier: MIT
#include "records/TableReason.h"

#include "model/Applicability.h"
#include "tables/Words.h"

namespace lumerin {

namespace {

// The report dialog offers no table at all for one mast, wall or single pile (CDesignerDlg::RefreshOnePier).
bool IsWithoutTables(const CDataSet& data) {
    const StructureType type = data.m_nStructureType;
    return data.m_nPiers < 2 && type != kTypePier && type != kTypePileGroup && type != kTypePileBent;
}

// What a project lacks that has no such table.
const char* MissingMembers(TableId table) {
    switch (table) {
        case kTableColumnDc:
        case kTableColumnForces:
            return "no columns";
        case kTableCapShear:
        case kTableCapMoment:
            return "no cap";
        case kTableExtraMembers:
            return "no extra members";
        default:
            return "no piles";
    }
}

}  // namespace

std::string WhyTableDoesNotApply(const CDataSet& data, const CaseSelection& selection, TableId table) {
    if (IsWithoutTables(data)) {
        return "a " + std::string(StructureTypeName(data.m_nStructureType)) + " alone has no tables";
    }
    if (ApplicableTables(data, selection)[table]) return {};
    const bool onlyFatigue = data.HasOnlyFatigue(selection) && table != kTableCapMoment;
    return onlyFatigue ? "only fatigue cases are chosen" : MissingMembers(table);
}

}  // namespace lumerin
