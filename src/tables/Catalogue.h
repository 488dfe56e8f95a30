// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "tables/Report.h"
#include "text/StoredStream.h"

namespace lumerin {

// What every table shares: words, column fillers, page arithmetic of the text format, dates and the footer.

// The title of a table, by the first pier's structure type; tables 2 and 6 of several piers take type 0.
std::string TableHeadTitle(TableId table, const CDataSet& data);
// The heading of a slot's block (" MAXIMUM STRENGTH CASE DATA", " STRENGTH CASE DATA", ...), without line
// feeds, for the section tables (0, 1, 2 carry MAXIMUM) and the cap tables 3 and 4.
// Returns false when the slot has no block in this table; `heading` is empty when the block has no heading.
bool SectionHeading(const Report& report, TableId table, LimitClass slot, std::string& heading);

// "0.00" and "-0.00" become "0"; padded on the left to `width` in the text and PDF formats; in the
// spreadsheet format a tab is appended unless the text holds a line feed.
std::string FormatCellText(std::string_view text, std::size_t width, ReportFormat format);
// The seven value columns of a force row without a result, for extreme 0 to 11.
std::string MissingForceColumns(int extreme);
std::string PadName15(std::string_view name);
std::string CenterText(int fontSize, std::string_view text);

// How much of a text report one printed page of the text viewer shows, by its font size in points; a size
// that is not known counts as the smallest.
int CharsPerLine(int fontSize);
int LinesPerPage(int fontSize);
void PadToPageEnd(int pageLines, int usedLines, StoredStream& out);

// Empty lines above the title page's text, by the text viewer's page length.
int TitlePageBlankLines(const ReportOptions& options);
// The title page's lines, not yet centred.
std::array<std::string, 5> TitlePageLines(const ReportOptions& options);

// Mode 0: month, day, year; 1: the same after the day's name; 2: digits, for stamps.
std::string DateText(int mode, const LocalTime& now);
// Mode 0: two-digit minutes and seconds with AM or PM; 1: plain numbers.
std::string TimeText(int mode, const LocalTime& now);
// The footer of PDF pages and workbooks, empty when the footer is off.
std::string FooterText(const ReportOptions& options);

}  // namespace lumerin
