// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "envelopes/Collect.h"
#include "envelopes/ResultTables.h"
#include "model/Applicability.h"
#include "model/CaseSelection.h"
#include "results/LoadProject.h"
#include "tables/Report.h"

namespace lumerin {

// What a report dialog remembers beside the project, for its lifetime: searches of one press leave words of
// earlier ones in place, and a table that was found invalid stays so when the selection changes.
struct ReportState {
    CaseSelection selection;
    ForceSources forces;  // by substructure
    ResultTables results;
    TableFlags enabled;  // the tables that apply to the project and the selection
    // What the last pass over the forces found for its selection; null before the first.
    std::unique_ptr<SearchPass> pass;
};

// Messages of the core as boxes of the dialog.
class BoxMessages : public Messages {
  public:
    void Show(const std::string& text) override { AfxMessageBox(text); }
};

// Loads the project at g_ProjectBasePath into g_DataSet and the state. False: the message was shown and both
// are empty. Throws CFileException for a missing or broken file, with both empty.
bool LoadSessionProject(ReportState& state);

// The options of the session for the press that is running.
ReportOptions SessionOptions();

// Stores what the searches find for a table of the project. The first table of a selection reads the forces,
// once for all tables; the next ones take what was found. Throws CFileException.
void CollectSessionTable(TableId table, ReportState& state);

// Whether the force files are still those that the project was loaded with; the first that is not is
// reported.
bool RequireUnchangedForces(const ReportState& state);

}  // namespace lumerin
