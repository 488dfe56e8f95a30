// SPDX-License-Identifier: MIT
#include "session/ReportState.h"

#include "session/OutputFiles.h"
#include "session/Session.h"
#include "text/Paths.h"

namespace lumerin {

bool LoadSessionProject(ReportState& state) {
    g_DataSet.Reset();
    state = ReportState();
    BoxMessages messages;
    std::optional<Project> project = LoadProject(g_ProjectBasePath, messages);
    if (!project) return false;
    // Whole before it is taken over: memory can run out for the tables as for the project.
    ReportState loaded;
    loaded.selection = CaseSelection(project->data);
    loaded.forces = std::move(project->forces);
    loaded.results = ResultTables(project->data);
    loaded.enabled = ApplicableTables(project->data, loaded.selection);
    g_DataSet = std::move(project->data);
    state = std::move(loaded);
    return true;
}

ReportOptions SessionOptions() {
    ReportOptions options;
    options.footer = {g_FooterOn != 0, g_FooterDate != 0, g_FooterTime != 0, g_FooterVersion != 0,
                      g_FooterFileName != 0};
    options.format = static_cast<ReportFormat>(g_ReportFormat);
    options.versionText = g_VersionText;
    options.versionLabel = g_VersionLabel;
    options.projectBasePath = PathAsText(g_ProjectBasePath);
    options.projectFolder = PathAsText(g_ProjectFolder);
    options.projectFileName = PathAsText(g_ProjectFileName);
    options.viewerFontSize = ViewerFontSize();
    return options;
}

void CollectSessionTable(TableId table, ReportState& state) {
    // The searches keep the sink for as long as the pass lives.
    static BoxMessages messages;
    if (!state.pass || state.pass->Selection() != state.selection) {
        state.pass.reset();
        state.pass = std::make_unique<SearchPass>(
            SearchInput{g_DataSet, state.forces, state.selection, messages}, kSearchedTables);
    }
    state.pass->Store(table, state.results);
}

bool RequireUnchangedForces(const ReportState& state) {
    for (const std::unique_ptr<ForceSource>& forces : state.forces) {
        if (forces->IsUnchanged()) continue;
        AfxMessageBox(forces->Name() +
                      ": the file has changed since the project was opened. Open the project again.");
        return false;
    }
    return true;
}

}  // namespace lumerin
