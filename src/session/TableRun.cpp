// SPDX-License-Identifier: MIT
#include "session/TableRun.h"

#include "framework/Backend.h"
#include "session/Constants.h"
#include "session/ReportControls.h"
#include "session/Session.h"
#include "tables/Catalogue.h"
#include "tables/EnvelopeFile.h"
#include "tables/TableText.h"
#include "writers/TablePdf.h"
#include "writers/TableSheets.h"
#include "writers/WorkbookFrame.h"

namespace lumerin {

namespace {

constexpr const char* kInvalidSheetText = "Invalid data.  The EXCEL table cannot be displayed.";
constexpr const char* kNoResultsText = "There are no results to view.  The table cannot be launched.";
// One blank after the full stop, in this table's text only.
constexpr const char* kNoColumnDcText = "There are no results to view. The table cannot be launched.";

// Rows in the order of the full report.
constexpr TableRun kTableRuns[] = {
    {IDC_MAX_AXIAL, kTableMaxAxial, false, true, kNoResultsText},
    {IDC_PILE_DC, kTablePileDc, true, false, kNoResultsText},
    {IDC_COLUMN_DC, kTableColumnDc, true, false, kNoColumnDcText},
    {IDC_CAP_SHEAR, kTableCapShear, true, false, kNoResultsText},
    {IDC_CAP_MOMENT, kTableCapMoment, true, false, kNoResultsText},
    {IDC_PILE_FORCES, kTablePileForces, true, false, kNoResultsText},
    {IDC_COLUMN_FORCES, kTableColumnForces, true, false, kNoResultsText},
    {IDC_EXTRA_MEMBERS, kTableExtraMembers, true, false, kNoResultsText},
};

Report MakeReport(const ReportState& state, const ReportOptions& options, RowReader& rows) {
    return {g_DataSet, state.selection, state.results, state.enabled, options, rows};
}

// Closes the stream, then starts the viewer or reports that there is nothing to show. A document whose forces
// were replaced meanwhile is discarded: the earlier one stays.
void FinishRun(ReportState& state, StoredStream& out, bool written, int format, const char* noResults) {
    if (!RequireUnchangedForces(state)) return;
    out.Close();
    if (written) {
        ShowOutputFile(format);
    } else {
        AfxMessageBox(noResults);
    }
}

int WriteTable(const TableRun& run, int format, const Report& report, StoredStream& out) {
    switch (format) {
        case kFormatSpreadsheet:
            if (report.results.valid[run.table]) return WriteTableSheet(report, run.table, out, false);
            AfxMessageBox(kInvalidSheetText);
            return 0;
        case kFormatPdf: {
            CPdfWriter pdf(run.landscapePdf);
            pdf.WriteHeader(out);
            const int lines = WriteTablePdf(report, run.table, out, pdf);
            pdf.Finish(out);
            return lines;
        }
        case kFormatText: {
            const int lines = WriteTableText(report, run.table, out);
            if (run.setsPrinter) SetDefaultPrinterOrientation(1);
            return lines;
        }
        default:
            return 0;
    }
}

// The three forms of the full report; true when a table was written.
bool WriteFullSheet(const Report& report, StoredStream& out) {
    bool written = false;
    int sum = 0;
    out << WorkbookHead(false, report.options.now());
    for (const TableRun& run : kTableRuns) {
        if (!report.results.valid[run.table]) continue;
        const int result = WriteTableSheet(report, run.table, out, true);
        sum += result;
        written = written || result > 0;
    }
    out << kWorkbookEnd;
    if (sum < 1) out.ClearState();
    return written;
}

bool WriteFullPdf(const Report& report, StoredStream& out) {
    bool written = false;
    CPdfWriter pdf(true);
    pdf.WriteHeader(out);
    for (const TableRun& run : kTableRuns) {
        if (WriteTablePdf(report, run.table, out, pdf) > 0) written = true;
    }
    pdf.Finish(out);
    return written;
}

bool WriteFullText(const Report& report, StoredStream& out) {
    const int page = LinesPerPage(report.options.viewerFontSize);
    // Counts the pile head table too, which the text report never holds: with that table enabled a padding
    // follows every table but the last writer.
    const unsigned total = CountTables(report.enabled);
    unsigned count = 0;
    bool written = false;
    for (const TableRun& run : kTableRuns) {
        const int lines = WriteTableText(report, run.table, out);
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

void RunTable(const TableRun& run, int format, ReportState& state, ViewerSettings& viewer) {
    BuildOutputFilePath(static_cast<unsigned>(run.table), static_cast<unsigned>(format));
    ReadViewerSettings(viewer);
    if (!RequireUnchangedForces(state)) return;
    CollectSessionTable(run.table, state);
    StoredStream out(g_OutputFilePath);
    const ReportOptions options = SessionOptions();
    RowReader rows(state.forces);
    const bool written = WriteTable(run, format, MakeReport(state, options, rows), out) > 0;
    FinishRun(state, out, written, format, run.noResults);
}

void RunPileHeadForces(int format, ReportState& state, ViewerSettings& viewer) {
    BuildOutputFilePath(kTablePileHeads, static_cast<unsigned>(format));
    ReadViewerSettings(viewer);
    if (!RequireUnchangedForces(state)) return;
    StoredStream out(g_OutputFilePath);
    const ReportOptions options = SessionOptions();
    RowReader rows(state.forces);
    bool written = false;
    if (format == kFormatSpreadsheet) {
        if (state.results.valid[kTablePileHeads]) {
            written = WriteTableSheet(MakeReport(state, options, rows), kTablePileHeads, out, false) > 0;
        } else {
            AfxMessageBox(kInvalidSheetText);
        }
    }
    FinishRun(state, out, written, format, kNoResultsText);
}

void RunFullReport(int format, ReportState& state, ViewerSettings& viewer) {
    BuildOutputFilePath(kTableFullReport, static_cast<unsigned>(format));
    if (!RequireUnchangedForces(state)) return;
    for (const TableRun& run : kTableRuns) CollectSessionTable(run.table, state);
    StoredStream out(g_OutputFilePath);
    const ReportOptions options = SessionOptions();
    RowReader rows(state.forces);
    const Report report = MakeReport(state, options, rows);
    bool written = false;
    switch (format) {
        case kFormatSpreadsheet:
            written = WriteFullSheet(report, out);
            break;
        case kFormatPdf:
            written = WriteFullPdf(report, out);
            break;
        case kFormatText:
            ReadViewerSettings(viewer);
            written = WriteFullText(report, out);
            break;
        default:
            break;
    }
    FinishRun(state, out, written, format, kNoResultsText);
}

void RunTitlePage(int format) {
    BuildOutputFilePath(kTableTitlePage, static_cast<unsigned>(format));
    StoredStream out(g_OutputFilePath);
    const ReportOptions options = SessionOptions();
    if (format == kFormatPdf) WriteTitlePagePdf(options, out);
    if (format == kFormatText) WriteTitlePageText(options, out);
    out.Close();
    // Opened by its type in either format.
    ShowOutputFile(kFormatText);
}

bool RunEnvelopeFile(ReportState& state) {
    BuildOutputFilePath(kTableCapShear, kFormatEnvelopes);
    if (!RequireUnchangedForces(state)) return false;
    CollectSessionTable(kTableCapShear, state);
    CollectSessionTable(kTableCapMoment, state);
    // A file that cannot be opened ignores what is written; the plotter is started nevertheless.
    StoredStream out(g_OutputFilePath);
    const ReportOptions options = SessionOptions();
    RowReader rows(state.forces);
    WriteEnvelopeFile(MakeReport(state, options, rows), out);
    if (!RequireUnchangedForces(state)) return false;
    out.Close();
    return true;
}

}  // namespace lumerin
