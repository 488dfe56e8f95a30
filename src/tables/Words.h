// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "model/Types.h"

namespace lumerin {

// The words of the reports: titles and file names of the tables, names of extremes and members, words of
// dates.

using TextList11 = std::array<const char*, kTableCount>;
using TextByType = std::array<const char*, kStructureTypes>;

extern const TextList11 g_TableFileNames;
extern const std::array<TextByType, kTableCount> g_TableTitles;
extern const TextByType g_MemberShortNames;
extern const TextByType g_MemberNames;
extern const std::array<const char*, 13> g_ExtremeNames;
extern const std::array<const char*, 12> g_MonthNames;
extern const std::array<const char*, 7> g_DayNames;
extern const std::array<const char*, 5> g_TitleLines;

inline constexpr const char* g_ExtensionPdf = ".pdf";
inline constexpr const char* g_ExtensionText = ".txt";
inline constexpr const char* g_ExtensionSpreadsheet = ".xml";
inline constexpr const char* g_ExtensionInput = ".in";
inline constexpr const char* g_EnvelopesName = "Envelopes";
inline constexpr const char* g_PierCap = "Pier Cap";
inline constexpr const char* g_BentCap = "Bent Cap";
inline constexpr const char* g_NameSeparator = "_";

// A limit class as it heads the rows of a slot: "STRENGTH CASE DATA", "LOAD FACTOR DESIGN DATA". Empty where
// the family has no rows for it.
std::string_view ClassHeading(CodeFamily family, LimitClass limitClass);
inline constexpr std::string_view g_MaximumWord =
    "MAXIMUM ";  // before it in tables of D/C ratios and extremes
// A text of a list; empty where the index is outside it.
std::string_view TextAt(std::span<const std::string_view> texts, int index);
// "AASHTO-LRFD" and its like; empty in another family.
std::string_view FamilyName(CodeFamily family);
// The label of a section of the cap at a support or at a bearing, with %i for the number; empty for a kind or
// row code outside the list. The name of the support's member comes first, where the table has one.
std::string_view ShearSupportForm(int kind);
std::string_view MomentSupportForm(int kind);
std::string_view MomentBearingForm(int rowCode);

// The title of a table for a structure type; empty where the type is outside 0 to 8.
const char* TableTitle(TableId table, StructureType structureType);
// The words for the vertical members of a structure type; empty where the type is outside 0 to 8.
const char* MemberShortName(StructureType structureType);
const char* MemberName(StructureType structureType);
// "pier", "pile bent" and the like; "unknown" where the type is outside 0 to 8.
std::string_view StructureTypeName(StructureType structureType);

}  // namespace lumerin
