// SPDX-License-Identifier: MIT
#include "model/Applicability.h"

#include <algorithm>

namespace lumerin {

TableFlags ApplicableTables(const CDataSet& data, const CaseSelection& selection) {
    const StructureType type = data.m_nStructureType;
    const bool several = data.m_nPiers >= 2;
    const bool onlyFatigue = data.HasOnlyFatigue(selection);
    const bool pileTables = several || type != kTypeNoPileTables;
    const bool columnTables = several ? data.HasStructureType(kTypePier)
                                      : type != kTypePileGroup && type != kTypeSinglePile &&
                                            type != kTypeOtherGroup && type != kTypePileBent;
    // Several substructures keep the cap tables whatever their types: bents and piers can be in one report.
    const bool capTables = several || type == kTypePier || type == kTypeMast || type == kTypePileBent;

    TableFlags tables;
    for (const TableId table : {kTableMaxAxial, kTablePileDc, kTablePileForces, kTablePileHeads}) {
        tables[table] = pileTables && !onlyFatigue;
    }
    for (const TableId table : {kTableColumnDc, kTableColumnForces}) {
        tables[table] = columnTables && !onlyFatigue;
    }
    tables[kTableCapShear] = capTables && !onlyFatigue;
    // Moments are also designed for fatigue.
    tables[kTableCapMoment] = capTables;
    tables[kTableExtraMembers] = data.HasExtraMembers() && !onlyFatigue;
    return tables;
}

unsigned CountTables(const TableFlags& tables) {
    return static_cast<unsigned>(std::count(tables.flags.begin(), tables.flags.end(), true));
}

}  // namespace lumerin
