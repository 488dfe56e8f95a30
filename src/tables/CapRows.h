// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tables/Report.h"

namespace lumerin {

// What the two cap tables (kTableCapShear, kTableCapMoment) share in every format: the walk along the cap,
// the labels of its rows, and the key below the last block.

// One row of a block. The tests of a row without a result go in this order: the record's missing flag, then
// bSideHasResult, then a negative load case.
struct CCapRow {
    std::string sLabel;                 // "Col 1 LF", "Brg 2 L LR"; not padded
    const CCapEntry* pEntry = nullptr;  // never null during a walk
    bool bBearing = false;
    bool bSideHasResult = true;  // false on bearing rows of the shear table alone
    bool bUnused = false;        // an entry of the list of sections that no section took
    int nPoint = 0;              // of the pier's merged points, with the row's x
    CSupportLocation support;    // of a support row
    CBearingLocation bearing;    // of a bearing row
    int nSide = 0;               // of a bearing row of the shear table: 0 left, 1 right
};

// A block of a cap table: a substructure's sections in a limit class, with the maximum (0) or the minimum (1)
// of each.
struct CapBlock {
    TableId table;
    const CPier& pier;
    const PierResults& results;
    LimitClass slot;
    int extreme;
};
// Visits the rows of a block from left to right. Nothing is visited for a substructure without a cap.
void WalkCap(const CapBlock& block, const std::function<void(const CCapRow&)>& visit);

// "Invalid" (shear) or empty (moment) for a location kind outside the list.
std::string CapSupportLabel(TableId table, StructureType structureType, int support, int kind);
// side: 0 left, 1 right; the moment table has one row a bearing and no side.
std::string CapBearingLabel(TableId table, const CBearingLocation& bearing, int side);

struct CCapKeyEntry {
    std::string sShort;  // "LF"
    std::string sLong;   // "Left Face of Column"
    // "LF  = Left Face of Column"; a structure type without a word gives " = ".
    std::string Text() const;
};
struct CCapKeyLine {
    CCapKeyEntry left;
    std::optional<CCapKeyEntry> right;
};
// The lines of the key, by the structure types of all substructures.
std::vector<CCapKeyLine> CapKey(TableId table, const CDataSet& data);

}  // namespace lumerin
