// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/OutputPlan.h"
#include "cli/OwnDocuments.h"
#include "cli/Progress.h"
#include "framework/headless/Headless.h"
#include "records/CaseChoice.h"
#include "records/Findings.h"
#include "records/OpenProject.h"
#include "session/headless/PlotModuleSink.h"

namespace lumerin {

class CDesignerDlg;
struct ReportState;

struct ReportRequest {
    std::vector<std::string> projects;
    std::vector<std::string> tables;  // short names
    std::vector<int> formats;
    std::vector<const OwnDocument*> documents;  // with all tables each, besides the formats
    CaseChoice cases;
    Limits limits;  // of the verdict in those documents
    FooterChoice footer;
    OutputOptions output;
    bool open = false;      // start the viewers
    bool findings = false;  // read the forces for their findings although no table needs them
    bool strict = false;    // write nothing for a project with an error
    bool json = false;      // a record a project in place of the paths
    // Where the stamps of --resume are and what they hold for; empty: each project is done.
    std::string stamps, resumeOptions;
    CommonOptions common;
};

// What came of a project.
struct ProjectReport {
    ExitStatus status = kExitDone;
    std::vector<std::string> files, messages;
    std::vector<Finding> findings;
};

// Writes the tables of one project: a call of the export for each format, in which the report dialog's
// buttons are pressed. Paths of written files go to `out` as soon as they are complete, unless the request
// says otherwise; messages and findings go to `err`.
class ReportDriver : public headless::Sink, public PlotModuleSink {
  public:
    // `place` is shown before the name of a project that takes long: "2 of 10: ".
    ReportDriver(const ReportRequest& options, const ProjectName& project, std::string place,
                 std::ostream& out, std::ostream& err);

    // Writes the tables in one format. The project is loaded once for several formats if a SharedLoad exists.
    ExitStatus Run(int format);
    const ProjectReport& Report() const { return m_report; }

    MessageAnswer OnMessage(const headless::Message& message) override;
    void OnOutputFailed(const std::string& path) override;
    int OnShellOpen(const std::string& verb, const std::string& file, const std::string& parameters) override;
    PlotModuleResult OnPlotModule(const PlotModuleCall& call, std::string& systemText) override;

  private:
    void Drive(headless::HeadlessDialog& dialog);
    void DriveReport(headless::HeadlessDialog& dialog, CDesignerDlg& report);
    bool ChooseCases(headless::HeadlessDialog& dialog);
    void DriveCases(headless::HeadlessDialog& dialog);
    void SetFooter(headless::HeadlessDialog& dialog);
    void NoteTables(const headless::HeadlessDialog& dialog);
    void PressTable(headless::HeadlessDialog& dialog, CDesignerDlg& report, const std::string& table);
    void NoteWritten();
    // The findings of the files, once; those of the forces, once a pass over them exists.
    void CheckFiles(const ReportState& state);
    void CheckForces(const ReportState& state);
    void AddFindings(const std::vector<Finding>& findings);
    std::string PathOfPress(const std::string& path) const;
    void Worsen(ExitStatus status);
    void Say(const std::string& text);

    const ReportRequest& m_options;
    const ProjectName m_project;
    const std::string m_place;
    std::optional<Progress> m_progress;  // while the load or a press runs
    std::ostream& m_out;
    std::ostream& m_err;
    ProjectReport m_report;
    bool m_filesChecked = false, m_forcesChecked = false;
    // Of the format that is running.
    int m_format = 0;
    int m_messages = 0;
    ExitStatus m_status = kExitDone;
    bool m_casesChosen = false;
    std::string m_casesFault;         // why not, when nothing was reported yet
    std::set<std::string> m_offered;  // tables that the project has for all its cases
    std::string m_table;              // that is being pressed
    std::string m_written;            // the file of the press, once its viewer was asked for
    std::string m_failed;             // a file of that press that could not be written whole
};

// All projects in all formats; the worst exit status of all. A project is loaded once for all its formats,
// and its forces are read once for all its tables; messages of the load are reported once. No status keeps
// other projects from being done. Throws std::invalid_argument for names of documents that do not fit
// together, before anything is written.
ExitStatus RunReports(const ReportRequest& options, std::ostream& out, std::ostream& err);

}  // namespace lumerin
