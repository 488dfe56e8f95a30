// SPDX-License-Identifier: MIT
#include "writers/TablePdf.h"

#include "tables/Catalogue.h"
#include "writers/PdfSink.h"

namespace lumerin {

namespace {

// The page is set for this size, not for the text viewer's font.
constexpr int kTitleFontSize = 10;

}  // namespace

int WriteTablePdf(const Report& report, TableId table, StoredStream& out, CPdfWriter& pdf) {
    const std::optional<TableId> writable = WritableTable(report, table);
    if (!writable) return 0;
    CPdfSink sink(out, pdf, FooterText(report.options), *writable == kTableMaxAxial);
    WalkTable(report, *writable, sink);
    return sink.Lines();
}

void WriteTitlePagePdf(const ReportOptions& options, StoredStream& out) {
    CPdfWriter pdf(false);
    pdf.WriteHeader(out);
    pdf.BeginPage(out, "");
    for (int i = 0; i < TitlePageBlankLines(options); ++i) out << "()'";
    for (const std::string& line : TitlePageLines(options)) {
        out << "(" << CenterText(kTitleFontSize, line) << ")'";
    }
    pdf.EndPage(out, "");
    pdf.Finish(out);
}

}  // namespace lumerin
