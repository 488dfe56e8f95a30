// SPDX-License-Identifier: MIT
#include "cli/ReportDriver.h"

#include <algorithm>

#include "cli/ScriptDriver.h"
#include "cli/Viewer.h"
#include "script/Border.h"
#include "session/Constants.h"
#include "session/DesignerDlg.h"
#include "session/Launch.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

constexpr int kIncludeColumn = 1;  // of the load case grid
constexpr int kFormatButtons[] = {IDC_FORMAT_EXCEL, IDC_FORMAT_PDF, IDC_FORMAT_TEXT};  // by ReportFormat

}  // namespace

ReportDriver::ReportDriver(const ReportRequest& options, std::ostream& out, std::ostream& err)
    : m_options(options), m_out(out), m_err(err) {}

ExitStatus ReportDriver::Run(const std::string& project, int format) {
    m_sProject = project;
    m_nFormat = format;
    m_nMessages = 0;
    m_bCasesChosen = false;
    m_sCasesFault = "the dialog offers no choice of cases";
    m_status = kExitDone;
    m_progress.emplace(m_err, "Loading " + ForUser(project));
    headless::SetSink(this);
    headless::SetModalDriver([this](headless::HeadlessDialog& dialog) {
        m_progress.reset();
        Drive(dialog);
    });
    LaunchLumerin(format, project.c_str(), m_options.common.version.c_str(), "", "", "");
    headless::SetModalDriver(nullptr);
    headless::SetSink(nullptr);
    m_progress.reset();
    return m_status;
}

void ReportDriver::Worsen(ExitStatus status) {
    m_status = Worse(m_status, status);
}

void ReportDriver::Say(const std::string& text) {
    m_progress.reset();
    PrintLine(m_err, text);
}

void ReportDriver::Drive(headless::HeadlessDialog& dialog) {
    if (dialog.ResourceId() == IDD_LOAD_CASES) {
        DriveCases(dialog);
    } else if (auto* report = dynamic_cast<CDesignerDlg*>(&dialog.Dialog())) {
        DriveReport(dialog, *report);
    }
}

void ReportDriver::DriveReport(headless::HeadlessDialog& dialog, CDesignerDlg& report) {
    if (!report.IsProjectLoaded()) {
        Worsen(kExitNotLoaded);
        return;
    }
    // A message during the load means that the data are incomplete.
    if (m_nMessages > 0) Worsen(kExitIncomplete);
    SetFooter(dialog);
    if (!m_options.cases.empty()) {
        dialog.Click(IDC_CUSTOM_CASES);
        dialog.Click(IDC_CHOOSE_CASES);
        if (!m_bCasesChosen) {
            if (!m_sCasesFault.empty()) Say(m_sProject + ": " + m_sCasesFault);
            Worsen(kExitUsage);
            return;
        }
    }
    for (const std::string& table : m_options.tables) {
        PressTable(dialog, report, table);
        if (!report.State().forcesChanged) continue;
        // Tables of two states of the project must not form one report.
        Worsen(kExitNotLoaded);
        return;
    }
}

void ReportDriver::SetFooter(headless::HeadlessDialog& dialog) {
    const FooterChoice& footer = m_options.footer;
    if (!footer.date && !footer.time && !footer.version && !footer.fileName) {
        dialog.Click(IDC_FOOTER);
        return;
    }
    if (!footer.date) dialog.Click(IDC_FOOTER_DATE);
    if (!footer.time) dialog.Click(IDC_FOOTER_TIME);
    if (!footer.version) dialog.Click(IDC_FOOTER_VERSION);
    if (!footer.fileName) dialog.Click(IDC_FOOTER_FILE_NAME);
}

void ReportDriver::DriveCases(headless::HeadlessDialog& dialog) {
    const NativeWindow* control = dialog.FindKind(ControlKind::grid);
    if (control == nullptr || control->grid == nullptr) return;
    const int cases = control->grid->RowCount() - 1;
    if (LastCase(m_options.cases) > cases) {
        m_sCasesFault = "there is no case " + std::to_string(LastCase(m_options.cases)) +
                        ", the project has " + std::to_string(std::max(cases, 0));
        return;
    }
    m_sCasesFault = "the dialog of the load cases does not accept the choice";
    dialog.Click(IDC_CASES_NONE);
    for (int row = 1; row <= cases; ++row) {
        if (HoldsCase(m_options.cases, row)) dialog.TypeCell(row, kIncludeColumn, "1");
    }
    dialog.Click(IDOK);
    m_bCasesChosen = !dialog.IsOpen();
}

void ReportDriver::PressTable(headless::HeadlessDialog& dialog, CDesignerDlg& report,
                              const std::string& table) {
    m_sWritten.clear();
    m_sFailed.clear();
    m_progress.emplace(m_err, "Writing the table " + table + " of " + ForUser(m_sProject));
    const bool pressed = dialog.Click(TableButton(table));
    m_progress.reset();
    if (!pressed) {
        Say(m_sProject + ": the table " + table + " does not apply to this project");
        Worsen(kExitIncomplete);
        return;
    }
    if (m_sWritten.empty() || !m_sFailed.empty()) Worsen(kExitIncomplete);
    if (!m_sFailed.empty()) {
        Say(m_sProject + ": the table " + table + " could not be written whole: " + m_sFailed);
    } else if (!m_sWritten.empty()) {
        m_out << m_sWritten << std::endl;
    }
    // The table of the pile heads changes the format to the spreadsheet, and it stays so.
    if (report.m_nFormat != m_nFormat) dialog.Click(kFormatButtons[m_nFormat]);
}

MessageAnswer ReportDriver::OnMessage(const headless::Message& message) {
    ++m_nMessages;
    if (message.buttons == MessageButtons::ok) Say(m_sProject + ": " + message.text);
    return Sink::OnMessage(message);
}

void ReportDriver::OnOutputFailed(const std::string& path) {
    m_sFailed = path;
}

int ReportDriver::OnShellOpen(const std::string&, const std::string& file, const std::string& parameters) {
    const int code = ShellCodeOfDocument(file, parameters);
    const std::string document = OpenedDocument(file, parameters);
    // A file that was not written is not shown: an earlier file of that name has other numbers.
    if (code <= 32 || !m_sFailed.empty() || !IsDocumentThere(document)) return code;
    m_sWritten = document;
    return m_options.open ? StartViewer(m_sWritten) : code;
}

PlotModuleResult ReportDriver::OnPlotModule(const PlotModuleCall& call, std::string&) {
    m_sWritten = call.dataFile;
    return PlotModuleResult::called;
}

ExitStatus RunReports(const ReportRequest& options, std::ostream& out, std::ostream& err) {
    ExitStatus worst = kExitDone;
    for (const std::string& project : options.projects) {
        const SharedLoad shared;
        for (const int format : options.formats) {
            ReportDriver driver(options, out, err);
            const ExitStatus status = driver.Run(project, format);
            worst = Worse(worst, status);
            if (status >= kExitUsage) break;
        }
    }
    return worst;
}

}  // namespace lumerin
