// SPDX-License-Identifier: MIT
#pragma once

#include "session/OutputFiles.h"
#include "session/ReportState.h"

namespace lumerin {

// The run of a table from the press of its button to the start of its viewer: name the file, collect, write,
// show. The options are in the session by then. A force file that was replaced since the load ends the run
// with a message; the earlier document stays.

// What the eight buttons of tables 0 to 7 differ in.
struct TableRun {
    int button;
    TableId table;
    bool landscapePdf;
    bool setsPrinter;  // the text form sets the application's printer to landscape
    const char* noResults;
};

// Null when no table belongs to the button.
const TableRun* FindTableRun(int button);

void RunTable(const TableRun& run, int format, ReportState& state, ViewerSettings& viewer);
void RunPileHeadForces(int format, ReportState& state, ViewerSettings& viewer);
void RunFullReport(int format, ReportState& state, ViewerSettings& viewer);
void RunTitlePage(int format);  // format 1 or 2
// Writes the data file of the envelope plotter; g_OutputFilePath names it then. False: the forces were
// replaced since the project was opened, and nothing was written.
bool RunEnvelopeFile(ReportState& state);

}  // namespace lumerin
