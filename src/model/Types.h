// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// The small types that every layer above the model shares. They are enumerations over int: a value that a
// file or the host gives passes unchanged, known or not.

inline constexpr int kTableCount = 11;     // TableId values
inline constexpr int kStructureTypes = 9;  // structure type codes 0 to 8
inline constexpr int kLimitClasses = 4;    // LimitClass values

// The report products; the number indexes file names, titles and table flags.
enum TableId : int {
    kTableMaxAxial = 0,
    kTablePileDc = 1,
    kTableColumnDc = 2,
    kTableCapShear = 3,
    kTableCapMoment = 4,
    kTablePileForces = 5,
    kTableColumnForces = 6,
    kTableExtraMembers = 7,
    kTablePileHeads = 8,
    kTableFullReport = 9,
    kTableTitlePage = 10,
};

// The dialog's format radio group; kFormatEnvelopes is used only for the path of the envelope file.
enum ReportFormat : int { kFormatSpreadsheet = 0, kFormatPdf = 1, kFormatText = 2, kFormatEnvelopes = 3 };

// Structure type codes, as the pile file has them.
enum StructureType : int {
    kTypeDerived = -1,
    kTypePier = 0,
    kTypePileGroup = 1,
    kTypeSinglePile = 2,
    kTypeMast = 3,
    kTypeWallA = 4,
    kTypeWallB = 5,
    kTypeOtherGroup = 6,
    kTypePileBent = 7,
    kTypeNoPileTables = 8,
};

// Pile groups, single piles and the like: no columns and no cap, so nothing of a frame is read or searched.
constexpr bool HasNoFrame(StructureType type) {
    return type == kTypePileGroup || type == kTypeSinglePile || type == kTypeOtherGroup ||
           type == kTypeNoPileTables;
}

// Design families of the load combinations.
enum CodeFamily : int { kFamilyNone = -1, kFamilyLrfd = 0, kFamilyLfd = 1, kFamilyArema = 2 };

// Limit classes of AASHTO-LRFD. AREMA has two: load factor design in place 0, service load design in place 1.
enum LimitClass : int { kStrength = 0, kService = 1, kExtreme = 2, kFatigue = 3 };

// The families of members that the section tables search.
enum MemberFamily : int { kPileFamily = 0, kColumnFamily = 1, kXMemberFamily = 2 };

// What the host's analysis produced: load cases or combinations, or time steps.
enum AnalysisMode : int { kModeLoadCases = 0, kModeTimeSteps = 1 };

}  // namespace lumerin
