// SPDX-License-Identifier: MIT
#pragma once

#include "tables/Report.h"
#include "text/StoredStream.h"

namespace lumerin {

// Writes a table (0 to 7) as text with fixed columns. Returns its count of lines, by which the full report
// pads its pages; 0 means that nothing was written because the table does not apply.
int WriteTableText(const Report& report, TableId table, StoredStream& out);

void WriteTitlePageText(const ReportOptions& options, StoredStream& out);

}  // namespace lumerin
