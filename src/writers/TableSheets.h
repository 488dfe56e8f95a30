// SPDX-License-Identifier: MIT
#pragma once

#include "tables/Report.h"
#include "text/StoredStream.h"

namespace lumerin {

// The tables as SpreadsheetML worksheets.

// Writes a table (0 to 8). Embedded, its worksheets go into a workbook that the caller frames; otherwise the
// workbook is whole. Returns 1, or -1 with nothing written when the table does not
// apply.
int WriteTableSheet(const Report& report, TableId table, StoredStream& out, bool embedded);

// The worksheets of one group of tables.
int WriteMaxAxialSheet(const Report& report, StoredStream& out, bool embedded);
int WriteSectionSheet(const Report& report, TableId table, StoredStream& out, bool embedded);
int WriteCapSheet(const Report& report, TableId table, StoredStream& out, bool embedded);
int WritePileHeadSheet(const Report& report, StoredStream& out, bool embedded);

}  // namespace lumerin
