// SPDX-License-Identifier: MIT
#include "writers/TableSheets.h"

namespace lumerin {

int WriteTableSheet(const Report& report, TableId table, StoredStream& out, bool embedded) {
    switch (table) {
        case kTableMaxAxial:
            return WriteMaxAxialSheet(report, out, embedded);
        case kTableCapShear:
        case kTableCapMoment:
            return WriteCapSheet(report, table, out, embedded);
        case kTablePileDc:
        case kTableColumnDc:
        case kTablePileForces:
        case kTableColumnForces:
        case kTableExtraMembers:
            return WriteSectionSheet(report, table, out, embedded);
        case kTablePileHeads:
            return WritePileHeadSheet(report, out, embedded);
        default:
            return -1;
    }
}

}  // namespace lumerin
