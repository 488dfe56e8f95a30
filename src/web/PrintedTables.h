// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "records/Evaluation.h"
#include "web/Links.h"
#include "web/Page.h"

namespace lumerin {

// In the order of the full report.
inline constexpr std::array<TableId, 8> kPrintedTables{
    kTableMaxAxial,  kTablePileDc,     kTableColumnDc,     kTableCapShear,
    kTableCapMoment, kTablePileForces, kTableColumnForces, kTableExtraMembers};

// The id of a printed table in the page, "t0"; its section has "s-" before it.
std::string PrintedTableId(TableId table);
// Its title in the project's words, whether or not it applies.
std::string PrintedTableName(const CDataSet& data, TableId table);

// Writes the printed tables 0 to 7 that apply, and for each of the others the reason why it does not. The
// cells are those of the text form. Rows that have a mark in a figure lead there and are entered for the way
// back.
void AppendPrintedTables(const Evaluation& evaluation, Links& links, Html& html);

}  // namespace lumerin
