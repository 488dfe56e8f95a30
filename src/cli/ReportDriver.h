// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/Progress.h"
#include "framework/headless/Headless.h"
#include "session/headless/PlotModuleSink.h"

namespace lumerin {

class CDesignerDlg;

struct ReportRequest {
    std::vector<std::string> projects;
    std::vector<std::string> tables;  // short names
    std::vector<int> formats;
    CaseRanges cases;  // empty: all
    FooterChoice footer;
    bool open = false;  // start the viewers
    CommonOptions common;
};

// Writes the tables of one project in one format: one call of the export, in which the report dialog's
// buttons are pressed. Paths of written files go to `out`, messages to `err`.
class ReportDriver : public headless::Sink, public PlotModuleSink {
  public:
    ReportDriver(const ReportRequest& options, std::ostream& out, std::ostream& err);

    ExitStatus Run(const std::string& project, int format);

    MessageAnswer OnMessage(const headless::Message& message) override;
    void OnOutputFailed(const std::string& path) override;
    int OnShellOpen(const std::string& verb, const std::string& file, const std::string& parameters) override;
    PlotModuleResult OnPlotModule(const PlotModuleCall& call, std::string& systemText) override;

  private:
    void Drive(headless::HeadlessDialog& dialog);
    void DriveReport(headless::HeadlessDialog& dialog, CDesignerDlg& report);
    void DriveCases(headless::HeadlessDialog& dialog);
    void SetFooter(headless::HeadlessDialog& dialog);
    void PressTable(headless::HeadlessDialog& dialog, CDesignerDlg& report, const std::string& table);
    void Worsen(ExitStatus status);
    void Say(const std::string& text);

    const ReportRequest& m_options;
    std::optional<Progress> m_progress;  // while the load or a press runs
    std::ostream& m_out;
    std::ostream& m_err;
    std::string m_sProject;
    int m_nFormat = 0;
    int m_nMessages = 0;
    bool m_bCasesChosen = false;
    std::string m_sCasesFault;  // why not, when nothing was reported yet
    std::string m_sWritten;     // the file of the press that is running, once its viewer was asked for
    std::string m_sFailed;      // a file of that press that could not be written whole
    ExitStatus m_status = kExitDone;
};

// All projects in all formats; the worst exit status of all. A project is loaded once for all its formats,
// and its forces are read once for all its tables; messages of the load are reported once.
ExitStatus RunReports(const ReportRequest& options, std::ostream& out, std::ostream& err);

}  // namespace lumerin
