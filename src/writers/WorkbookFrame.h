// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "tables/Report.h"
#include "text/StoredStream.h"

namespace lumerin {

// The pieces of a SpreadsheetML workbook that are not a table's rows. A workbook is WorkbookHead, worksheets
// that each end in WorksheetEndWith, and kWorkbookEnd.

// From the XML declaration to the end of the style sheet, stamped with the time `now`. A dialog's grid needs
// further number formats (s68 to s75).
std::string WorkbookHead(bool gridStyles, const LocalTime& now);

// From the end of the rows to the end of the worksheet; the footer's text is left, the page number right. The
// text is written as it is.
std::string WorksheetEndWith(std::string_view footerText);

inline constexpr std::string_view kWorkbookEnd = "</Workbook>\n";

// The end of a worksheet with the footer of a report.
std::string WorksheetEnd(const ReportOptions& options);

// Runs the writer of one table's worksheets. Embedded in a caller's workbook only they are written; otherwise
// also the workbook's head and end. Returns 1, or -1 with nothing written when the table does not apply to
// the project.
int WriteWorkbook(const Report& report, TableId table, StoredStream& out, bool embedded,
                  const std::function<void()>& worksheets);

// The worksheet "Coords" that goes with a cap table (kTableCapShear or kTableCapMoment) of its own workbook.
std::string CoordsSheet(const Report& report, TableId table);

}  // namespace lumerin
