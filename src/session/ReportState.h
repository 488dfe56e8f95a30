// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "envelopes/Collect.h"
#include "envelopes/ResultTables.h"
#include "model/Applicability.h"
#include "model/CaseSelection.h"
#include "results/LoadProject.h"
#include "tables/Report.h"

namespace lumerin {

// What a report dialog keeps besides the project, for its lifetime. The searches of one press leave entries
// of earlier ones in place, and a table that was found invalid stays so when the selection changes.
struct ReportState {
    CaseSelection selection;
    ForceSources forces;  // by substructure
    ResultTables results;
    TableFlags enabled;  // the tables that apply to the project and the selection
    // What the last pass over the forces found for its selection; null before the first.
    std::unique_ptr<SearchPass> pass;
    // A press found a force file that is not the one that was loaded. Nothing was written for it.
    bool forcesChanged = false;
};

// While an object exists, calls of the export on the same project share one load and one pass over the
// forces: the end of a call keeps them for the next one, which shows no message of the load again. Everything
// else starts anew with each call. One object at a time; the module, whose host may change a project between
// two calls, has none.
class SharedLoad {
  public:
    SharedLoad();
    SharedLoad(const SharedLoad&) = delete;
    SharedLoad& operator=(const SharedLoad&) = delete;
    ~SharedLoad();

    // Whether g_DataSet has that project, and its forces and pass are kept here.
    bool Holds(const std::string& projectBasePath) const;
    void Keep(const std::string& projectBasePath, ReportState& state);
    void HandOver(ReportState& state);
    void Forget();

  private:
    std::string m_projectBasePath;  // empty: no project is kept
    ForceSources m_forces;
    std::unique_ptr<SearchPass> m_pass;
};

// Messages of the core as boxes of the dialog.
class BoxMessages : public Messages {
  public:
    void Show(const std::string& text) override { AfxMessageBox(text); }
};

// Loads the project at g_ProjectBasePath into g_DataSet and the state. False: the message was shown and both
// are empty. Throws CFileException for a missing or broken file, with both empty.
bool LoadSessionProject(ReportState& state);

// Empties g_DataSet at the end of a call, or leaves it with the state's forces and pass to the shared load.
void EndSessionProject(ReportState& state);

// The options of the session for the press that is running.
ReportOptions SessionOptions();

// The project of the dialog; empty between two calls.
const CDataSet& SessionProject();

// The pass over the forces for the state's selection; made where there is none. Throws CFileException.
const SearchPass& RequirePass(ReportState& state);

// Stores what the searches find for a table of the project. The first table of a selection reads the forces,
// once for all tables; the next ones take what was found. Throws CFileException.
void CollectSessionTable(TableId table, ReportState& state);

// Whether the force files are still those that the project was loaded with; the first that is not is
// reported, and the state says so.
bool RequireUnchangedForces(ReportState& state);

}  // namespace lumerin
