// SPDX-License-Identifier: MIT
#pragma once

#include "tables/Report.h"
#include "text/StoredStream.h"
#include "writers/PdfWriter.h"

namespace lumerin {

// Writes a table (0 to 7) as pages of its own into the document that the caller starts and finishes. Returns
// the line count of its last page; 0 means that nothing was written because the table does not apply.
int WriteTablePdf(const Report& report, TableId table, StoredStream& out, CPdfWriter& pdf);

// A document of its own.
void WriteTitlePagePdf(const ReportOptions& options, StoredStream& out);

}  // namespace lumerin
