#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "text/StoredStream.h"

// The pieces of a SpreadsheetML workbook that are not a table's rows. A workbook is WorkbookHead, worksheets
// that each end in WorksheetEndWith, and kWorkbookEnd.

// From the XML declaration to the end of the style sheet, stamped with the local clock. A dialog's grid needs
// further number formats (s68 to s75).
std::string WorkbookHead(bool gridStyles);

// From the end of the rows to the end of the worksheet; the footer's text stands left, the page number right.
// The text goes out as it is.
std::string WorksheetEndWith(std::string_view footerText);

inline constexpr std::string_view kWorkbookEnd = "</Workbook>\n";

// Runs the writer of one table's worksheets. Embedded in a caller's workbook they go out alone; otherwise the
// workbook's head and end stand around them and the stream is closed. Returns 1, or -1 with nothing written
// when the table does not apply to the project.
int WriteWorkbook(int table, StoredStream& out, bool embedded, const std::function<void()>& worksheets);
