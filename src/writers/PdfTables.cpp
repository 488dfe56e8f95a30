#include "session/Constants.h"
#include "tables/Catalogue.h"
#include "tables/WriteData.h"
#include "writers/PdfSink.h"

namespace {

// Every table begins and ends its own pages in the document that the caller starts and finishes.
int WritePdf(int table, StoredStream& out, CPdfWriter& pdf) {
    const int writable = WritableTable(table);
    if (writable < 0) return 0;
    CPdfSink sink(out, pdf, writable == kTableMaxAxial);
    WalkTable(writable, sink);
    return sink.Lines();
}

// The page is set for this size, whatever the text viewer's font is.
constexpr int kTitleFontSize = 10;

}  // namespace

int CWriteData::WriteMaxAxialPdf(StoredStream& out, CPdfWriter& pdf) {
    return WritePdf(kTableMaxAxial, out, pdf);
}
int CWriteData::WritePileDcPdf(StoredStream& out, CPdfWriter& pdf) {
    return WritePdf(kTablePileDc, out, pdf);
}
int CWriteData::WriteColumnDcPdf(StoredStream& out, CPdfWriter& pdf) {
    return WritePdf(kTableColumnDc, out, pdf);
}
int CWriteData::WriteCapShearPdf(StoredStream& out, CPdfWriter& pdf) {
    return WritePdf(kTableCapShear, out, pdf);
}
int CWriteData::WriteCapMomentPdf(StoredStream& out, CPdfWriter& pdf) {
    return WritePdf(kTableCapMoment, out, pdf);
}
int CWriteData::WritePileForcesPdf(StoredStream& out, CPdfWriter& pdf) {
    return WritePdf(kTablePileForces, out, pdf);
}
int CWriteData::WriteColumnForcesPdf(StoredStream& out, CPdfWriter& pdf) {
    return WritePdf(kTableColumnForces, out, pdf);
}
int CWriteData::WriteExtraMemberForcesPdf(StoredStream& out, CPdfWriter& pdf) {
    return WritePdf(kTableExtraMembers, out, pdf);
}

void CWriteData::WriteTitlePagePdf(StoredStream& out) {
    CPdfWriter pdf(false);
    pdf.WriteHeader(out);
    pdf.BeginPage(out, "");
    for (int i = 0; i < TitlePageBlankLines(); ++i) out << "()'";
    for (const std::string& line : TitlePageLines()) out << "(" << CenterText(kTitleFontSize, line) << ")'";
    pdf.EndPage(out, "");
    pdf.Finish(out);
    out.Close();
}
