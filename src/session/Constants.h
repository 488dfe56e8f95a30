#pragma once

#include <array>

// The constants that every source file shares: the table names and titles, the limit state and extreme
// names, the extensions and the date words. A writer that needs a word of the system reads it from here.

inline constexpr int kTableCount = 11;     // TableId values
inline constexpr int kStructureTypes = 9;  // structure type codes 0 to 8

// The report products; the number indexes file names, titles and the data set's table flags.
enum TableId {
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

// The dialog's format radio group; kFormatEnvelopes is known to the path builder alone.
enum ReportFormat { kFormatSpreadsheet = 0, kFormatPdf = 1, kFormatText = 2, kFormatEnvelopes = 3 };

// Structure type codes, as they stand in the pile file.
enum StructureType {
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
constexpr bool HasNoFrame(int structureType) {
    return structureType == kTypePileGroup || structureType == kTypeSinglePile ||
           structureType == kTypeOtherGroup || structureType == kTypeNoPileTables;
}

// Design families of the load combinations.
enum CodeFamily { kFamilyNone = -1, kFamilyLrfd = 0, kFamilyLfd = 1, kFamilyArema = 2 };

using TextList11 = std::array<const char*, kTableCount>;
using TextByType = std::array<const char*, kStructureTypes>;

extern const TextList11 g_TableFileNames;
extern const std::array<TextByType, kTableCount> g_TableTitles;
extern const TextByType g_MemberShortNames;
extern const TextByType g_MemberNames;
// Row by limit state number, column by code family.
extern const std::array<std::array<const char*, 3>, 18> g_LimitStateNames;
extern const std::array<const char*, 13> g_ExtremeNames;
extern const std::array<const char*, 12> g_MonthNames;
extern const std::array<const char*, 7> g_DayNames;
extern const std::array<const char*, 5> g_TitleLines;
extern const std::array<const char*, 7> g_NotepadValueNames;

inline constexpr const char* g_PdfTempName = "PdfTemp.txt";
inline constexpr const char* g_HostProgramName = "Tarnsway.exe";
inline constexpr const char* g_ModuleFileName = "Lumerin.dll";
inline constexpr const char* g_ExtensionPdf = ".pdf";
inline constexpr const char* g_ExtensionText = ".txt";
inline constexpr const char* g_ExtensionSpreadsheet = ".xml";
inline constexpr const char* g_ExtensionInput = ".in";
inline constexpr const char* g_EnvelopesName = "Envelopes";
inline constexpr const char* g_PierCap = "Pier Cap";
inline constexpr const char* g_BentCap = "Bent Cap";
inline constexpr const char* g_NameSeparator = "_";

// The title of a table for a structure type; empty where the type is outside 0 to 8.
const char* TableTitle(int table, int structureType);
// The words for the vertical members of a structure type; empty where the type is outside 0 to 8.
const char* MemberShortName(int structureType);
const char* MemberName(int structureType);
