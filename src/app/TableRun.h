#pragma once

#include "results/CollectData.h"
#include "session/OutputFiles.h"
#include "tables/WriteData.h"

class CPdfWriter;

// The run of a table from the press of its button to the start of its viewer: name the file, collect, write,
// show. The options lie in the session by then. Each run returns whether the file system took all of the
// output; the run goes to its end either way.

// What the eight buttons of tables 0 to 7 differ in.
struct TableRun {
    int button;
    int table;  // TableId
    void (CCollectData::*collect)();
    int (CWriteData::*writeText)(StoredStream&);
    int (CWriteData::*writePdf)(StoredStream&, CPdfWriter&);
    int (CWriteData::*writeSheet)(StoredStream&, bool embedded);
    bool landscapePdf;
    bool setsPrinter;  // the text form sets the application's printer to landscape
    const char* noResults;
};

// Null when no table belongs to the button.
const TableRun* FindTableRun(int button);

bool RunTable(const TableRun& run, int format, ViewerSettings& viewer);
bool RunPileHeadForces(int format, ViewerSettings& viewer);
bool RunFullReport(int format, ViewerSettings& viewer);
bool RunTitlePage(int format);  // format 1 or 2
// Writes the data file of the envelope plotter; g_OutputFilePath names it then.
void RunEnvelopeFile();
