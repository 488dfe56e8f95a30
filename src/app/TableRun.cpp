#include "app/TableRun.h"

#include "framework/Backend.h"
#include "model/DataSet.h"
#include "session/Constants.h"
#include "session/Session.h"
#include "tables/Catalogue.h"
#include "writers/PdfWriter.h"

namespace {

constexpr const char* kInvalidSheetText = "Invalid data.  The EXCEL table cannot be displayed.";
constexpr const char* kNoResultsText = "There are no results to view.  The table cannot be launched.";
// One blank behind the full stop: this table's own text.
constexpr const char* kNoColumnDcText = "There are no results to view. The table cannot be launched.";

// Rows in the order of the full report.
constexpr TableRun kTableRuns[] = {
    {1004, kTableMaxAxial, &CCollectData::CollectMaxAxialForces, &CWriteData::WriteMaxAxialText,
     &CWriteData::WriteMaxAxialPdf, &CWriteData::WriteMaxAxialSheet, false, true, kNoResultsText},
    {1005, kTablePileDc, &CCollectData::CollectPileDemandCapacity, &CWriteData::WritePileDcText,
     &CWriteData::WritePileDcPdf, &CWriteData::WritePileDcSheet, true, false, kNoResultsText},
    {1006, kTableColumnDc, &CCollectData::CollectColumnDemandCapacity, &CWriteData::WriteColumnDcText,
     &CWriteData::WriteColumnDcPdf, &CWriteData::WriteColumnDcSheet, true, false, kNoColumnDcText},
    {1007, kTableCapShear, &CCollectData::CollectCapShear, &CWriteData::WriteCapShearText,
     &CWriteData::WriteCapShearPdf, &CWriteData::WriteCapShearSheet, true, false, kNoResultsText},
    {1008, kTableCapMoment, &CCollectData::CollectCapMoment, &CWriteData::WriteCapMomentText,
     &CWriteData::WriteCapMomentPdf, &CWriteData::WriteCapMomentSheet, true, false, kNoResultsText},
    {1010, kTablePileForces, &CCollectData::CollectPileForces, &CWriteData::WritePileForcesText,
     &CWriteData::WritePileForcesPdf, &CWriteData::WritePileForcesSheet, true, false, kNoResultsText},
    {1011, kTableColumnForces, &CCollectData::CollectColumnForces, &CWriteData::WriteColumnForcesText,
     &CWriteData::WriteColumnForcesPdf, &CWriteData::WriteColumnForcesSheet, true, false, kNoResultsText},
    {1012, kTableExtraMembers, &CCollectData::CollectExtraMemberForces,
     &CWriteData::WriteExtraMemberForcesText, &CWriteData::WriteExtraMemberForcesPdf,
     &CWriteData::WriteExtraMemberForcesSheet, true, false, kNoResultsText},
};

bool IsTableValid(int table) {
    return g_DataSet.m_bTableValid[static_cast<std::size_t>(table)];
}

// Closes the stream, then starts the viewer or tells that there is nothing to show.
bool FinishRun(StoredStream& out, bool written, int format, const char* noResults) {
    out.Close();
    const bool complete = !out.Failed();
    if (written) {
        ShowOutputFile(format);
    } else {
        AfxMessageBox(noResults);
    }
    return complete;
}

int WriteTable(const TableRun& run, int format, CWriteData& writer, StoredStream& out) {
    switch (format) {
        case kFormatSpreadsheet:
            if (IsTableValid(run.table)) return (writer.*run.writeSheet)(out, false);
            AfxMessageBox(kInvalidSheetText);
            return 0;
        case kFormatPdf: {
            CPdfWriter pdf(run.landscapePdf);
            pdf.WriteHeader(out);
            const int lines = (writer.*run.writePdf)(out, pdf);
            pdf.Finish(out);
            return lines;
        }
        case kFormatText: {
            const int lines = (writer.*run.writeText)(out);
            if (run.setsPrinter) SetDefaultPrinterOrientation(1);
            return lines;
        }
        default:
            return 0;
    }
}

// The three forms of the full report; true when a table was written.
bool WriteFullSheet(CWriteData& writer, StoredStream& out) {
    bool written = false;
    int sum = 0;
    out << CWriteData::WorkbookHeader();
    for (const TableRun& run : kTableRuns) {
        if (!IsTableValid(run.table)) continue;
        const int result = (writer.*run.writeSheet)(out, true);
        sum += result;
        written = written || result > 0;
    }
    out << "</Workbook>\n";
    if (sum < 1) out.ClearState();
    return written;
}

bool WriteFullPdf(CWriteData& writer, StoredStream& out) {
    bool written = false;
    CPdfWriter pdf(true);
    pdf.WriteHeader(out);
    for (const TableRun& run : kTableRuns) {
        if ((writer.*run.writePdf)(out, pdf) > 0) written = true;
    }
    pdf.Finish(out);
    return written;
}

bool WriteFullText(CWriteData& writer, StoredStream& out) {
    const int page = LinesPerPage();
    // Counts the pile head table too, which the text report never holds: with that table enabled a padding
    // follows every table but the last writer.
    const unsigned total = g_DataSet.ChosenTableCount();
    unsigned count = 0;
    bool written = false;
    for (const TableRun& run : kTableRuns) {
        const int lines = (writer.*run.writeText)(out);
        if (lines <= 0) continue;
        written = true;
        if (run.table == kTableExtraMembers) continue;
        ++count;
        if (count < total) PadToPageEnd(page, lines, out);
    }
    return written;
}

}  // namespace

const TableRun* FindTableRun(int button) {
    for (const TableRun& run : kTableRuns) {
        if (run.button == button) return &run;
    }
    return nullptr;
}

bool RunTable(const TableRun& run, int format, ViewerSettings& viewer) {
    BuildOutputFilePath(static_cast<unsigned>(run.table), static_cast<unsigned>(format));
    ReadViewerSettings(viewer);
    CCollectData collect;
    (collect.*run.collect)();
    StoredStream out(g_OutputFilePath);
    CWriteData writer;
    const bool written = WriteTable(run, format, writer, out) > 0;
    return FinishRun(out, written, format, run.noResults);
}

bool RunPileHeadForces(int format, ViewerSettings& viewer) {
    BuildOutputFilePath(kTablePileHeads, static_cast<unsigned>(format));
    ReadViewerSettings(viewer);
    StoredStream out(g_OutputFilePath);
    CWriteData writer;
    bool written = false;
    if (format == kFormatSpreadsheet) {
        if (IsTableValid(kTablePileHeads)) {
            written = writer.WritePileHeadForcesSheet(out, false) > 0;
        } else {
            AfxMessageBox(kInvalidSheetText);
        }
    }
    return FinishRun(out, written, format, kNoResultsText);
}

bool RunFullReport(int format, ViewerSettings& viewer) {
    BuildOutputFilePath(kTableFullReport, static_cast<unsigned>(format));
    CCollectData collect;
    for (const TableRun& run : kTableRuns) (collect.*run.collect)();
    StoredStream out(g_OutputFilePath);
    CWriteData writer;
    bool written = false;
    switch (format) {
        case kFormatSpreadsheet:
            written = WriteFullSheet(writer, out);
            break;
        case kFormatPdf:
            written = WriteFullPdf(writer, out);
            break;
        case kFormatText:
            ReadViewerSettings(viewer);
            written = WriteFullText(writer, out);
            break;
        default:
            break;
    }
    return FinishRun(out, written, format, kNoResultsText);
}

bool RunTitlePage(int format) {
    BuildOutputFilePath(kTableTitlePage, static_cast<unsigned>(format));
    StoredStream out(g_OutputFilePath);
    CWriteData writer;
    if (format == kFormatPdf) writer.WriteTitlePagePdf(out);
    if (format == kFormatText) writer.WriteTitlePageText(out);
    out.Close();
    // Opened by its type in either format.
    ShowOutputFile(kFormatText);
    return !out.Failed();
}

void RunEnvelopeFile() {
    BuildOutputFilePath(kTableCapShear, kFormatEnvelopes);
    CCollectData collect;
    collect.CollectCapShear();
    collect.CollectCapMoment();
    CWriteData writer;
    writer.WriteEnvelopeFile();
}
