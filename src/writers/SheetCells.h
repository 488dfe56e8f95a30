// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "text/Format.h"

namespace lumerin {

// The cells of data rows. Some rows have one blank after "Cell", others two.

inline constexpr std::string_view kCellEnd = "</Data></Cell>\n";

inline constexpr std::string_view kNumberCell = "    <Cell ss:StyleID=\"s60\"><Data ss:Type=\"Number\">";
inline constexpr std::string_view kTextCell = "    <Cell ss:StyleID=\"s60\"><Data ss:Type=\"String\">";
inline constexpr std::string_view kForceCell = "    <Cell ss:StyleID=\"s61\"><Data ss:Type=\"Number\">";
inline constexpr std::string_view kDecimalCell = "    <Cell ss:StyleID=\"s62\"><Data ss:Type=\"Number\">";

inline constexpr std::string_view kWideNumberCell = "    <Cell  ss:StyleID=\"s60\"><Data ss:Type=\"Number\">";
inline constexpr std::string_view kWideTextCell = "    <Cell  ss:StyleID=\"s60\"><Data ss:Type=\"String\">";
inline constexpr std::string_view kWideDecimalCell =
    "    <Cell  ss:StyleID=\"s62\"><Data ss:Type=\"Number\">";

inline constexpr std::string_view kNoValue = "***";
inline constexpr std::string_view kNoResult = "none";

inline void AppendTextCell(std::string& out, std::string_view form, std::string_view text) {
    out.append(form).append(text).append(kCellEnd);
}
inline void AppendIntCell(std::string& out, std::string_view form, long long value) {
    out += form;
    AppendInt(out, value);
    out += kCellEnd;
}
inline void AppendDecimalCell(std::string& out, std::string_view form, double value, int decimals = 2) {
    out += form;
    AppendFixed(out, value, decimals);
    out += kCellEnd;
}
// `count` cells of "***", the one at index `none` (from 0) with "none".
inline void AppendMissingCells(std::string& out, int count, int none = -1) {
    for (int i = 0; i < count; ++i) AppendTextCell(out, kWideTextCell, i == none ? kNoResult : kNoValue);
}

}  // namespace lumerin
