// SPDX-License-Identifier: MIT
#pragma once

#include "tables/Report.h"

namespace lumerin {

// The count of rows that a worksheet announces, by formula: it is in the worksheet's head, which is written
// before the rows. `pier` (from 0) counts for kTablePileHeads alone, which has a worksheet for each.
long long ExpandedRows(const Report& report, TableId table, int pier = 0);

}  // namespace lumerin
