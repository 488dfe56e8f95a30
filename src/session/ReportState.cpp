// SPDX-License-Identifier: MIT
#include "session/ReportState.h"

#include "session/OutputFiles.h"
#include "session/Session.h"
#include "text/Paths.h"

namespace lumerin {

namespace {

SharedLoad* g_sharedLoad = nullptr;

// The state of a dialog that opens on a project, without its forces.
ReportState StartState(const CDataSet& data) {
    ReportState state;
    state.selection = CaseSelection(data);
    state.results = ResultTables(data);
    state.enabled = ApplicableTables(data, state.selection);
    return state;
}

}  // namespace

SharedLoad::SharedLoad() {
    g_sharedLoad = this;
}

SharedLoad::~SharedLoad() {
    g_sharedLoad = nullptr;
    if (!m_projectBasePath.empty()) g_DataSet.FreePiers();
}

bool SharedLoad::Holds(const std::string& projectBasePath) const {
    return !m_projectBasePath.empty() && m_projectBasePath == projectBasePath;
}

void SharedLoad::Keep(const std::string& projectBasePath, ReportState& state) {
    m_projectBasePath = projectBasePath;
    m_forces = std::move(state.forces);
    m_pass = std::move(state.pass);
}

void SharedLoad::HandOver(ReportState& state) {
    state.forces = std::move(m_forces);
    state.pass = std::move(m_pass);
    Forget();
}

void SharedLoad::Forget() {
    m_projectBasePath.clear();
    m_forces.clear();
    m_pass.reset();
}

bool LoadSessionProject(ReportState& state) {
    state = ReportState();
    if (g_sharedLoad != nullptr && g_sharedLoad->Holds(g_ProjectBasePath)) {
        ReportState kept = StartState(g_DataSet);
        g_sharedLoad->HandOver(kept);
        state = std::move(kept);
        return true;
    }
    if (g_sharedLoad != nullptr) g_sharedLoad->Forget();
    g_DataSet.Reset();
    BoxMessages messages;
    std::optional<Project> project = LoadProject(g_ProjectBasePath, messages);
    if (!project) return false;
    // Complete before it replaces the old state: memory can run out for the tables as for the project.
    ReportState loaded = StartState(project->data);
    loaded.forces = std::move(project->forces);
    g_DataSet = std::move(project->data);
    state = std::move(loaded);
    return true;
}

void EndSessionProject(ReportState& state) {
    if (g_sharedLoad == nullptr || state.forces.empty()) {
        g_DataSet.FreePiers();
        return;
    }
    g_sharedLoad->Keep(g_ProjectBasePath, state);
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

const CDataSet& SessionProject() {
    return g_DataSet;
}

const SearchPass& RequirePass(ReportState& state) {
    // The searches keep the sink as long as the pass exists.
    static BoxMessages messages;
    if (!state.pass || state.pass->Selection() != state.selection) {
        state.pass.reset();
        state.pass = std::make_unique<SearchPass>(
            SearchInput{g_DataSet, state.forces, state.selection, messages}, kSearchedTables);
    }
    return *state.pass;
}

void CollectSessionTable(TableId table, ReportState& state) {
    RequirePass(state).Store(table, state.results);
}

bool RequireUnchangedForces(ReportState& state) {
    for (const std::unique_ptr<ForceSource>& forces : state.forces) {
        if (forces->IsUnchanged()) continue;
        AfxMessageBox(forces->Name() +
                      ": the file has changed since the project was opened. Open the project again.");
        state.forcesChanged = true;
        return false;
    }
    return true;
}

}  // namespace lumerin
