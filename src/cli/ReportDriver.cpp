// SPDX-License-Identifier: MIT
#include "cli/ReportDriver.h"

#include <filesystem>
#include <stdexcept>
#include <utility>

#include "cli/ScriptDriver.h"
#include "cli/Terminal.h"
#include "cli/Viewer.h"
#include "script/Border.h"
#include "session/Constants.h"
#include "session/DesignerDlg.h"
#include "session/Launch.h"
#include "session/OutputFiles.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

constexpr int kIncludeColumn = 1;  // of the load case grid
constexpr int kFormatButtons[] = {IDC_FORMAT_EXCEL, IDC_FORMAT_PDF, IDC_FORMAT_TEXT};  // by ReportFormat

// The line with its severity in a colour.
std::string PaintedLine(const Finding& finding, const std::ostream& err) {
    std::string line = LineOf(finding);
    const std::string word(SeverityName(finding.severity));
    if (!line.starts_with(word)) return line;
    return Painted(word, finding.severity == Severity::error ? Paint::red : Paint::yellow, err) +
           line.substr(word.size());
}

}  // namespace

ReportDriver::ReportDriver(const ReportRequest& options, const ProjectName& project, std::string place,
                           std::ostream& out, std::ostream& err)
    : m_options(options), m_project(project), m_place(std::move(place)), m_out(out), m_err(err) {}

ExitStatus ReportDriver::Run(int format) {
    m_format = format;
    m_messages = 0;
    m_casesChosen = false;
    m_casesFault = "the dialog offers no choice of cases";
    m_status = kExitDone;
    m_progress.emplace(m_err, m_place + "Loading " + ForUser(m_project.inputFile));
    headless::SetSink(this);
    headless::SetModalDriver([this](headless::HeadlessDialog& dialog) {
        m_progress.reset();
        Drive(dialog);
    });
    std::optional<OutputNaming> naming;
    if (!m_options.output.IsUsual()) {
        naming.emplace([this](const std::string& path) { return PathOfPress(path); });
    }
    LaunchLumerin(format, m_project.inputFile.c_str(), m_options.common.version.c_str(), "", "", "");
    headless::SetModalDriver(nullptr);
    headless::SetSink(nullptr);
    m_progress.reset();
    m_report.status = Worse(m_report.status, m_status);
    return m_status;
}

std::string ReportDriver::PathOfPress(const std::string& path) const {
    return PathOf(m_options.output, {m_project.basePath, m_table, path});
}

void ReportDriver::Worsen(ExitStatus status) {
    m_status = Worse(m_status, status);
}

void ReportDriver::Say(const std::string& text) {
    m_progress.reset();
    m_report.messages.push_back(ForUser(text));
    PrintLine(m_err, m_project.inputFile + ": " + text);
}

void ReportDriver::Drive(headless::HeadlessDialog& dialog) {
    // The call of the module lets no exception through, and what is not said here would be lost there.
    try {
        if (dialog.ResourceId() == IDD_LOAD_CASES) {
            DriveCases(dialog);
        } else if (auto* report = dynamic_cast<CDesignerDlg*>(&dialog.Dialog())) {
            DriveReport(dialog, *report);
        }
    } catch (const std::exception& fault) {
        Worsen(kExitIncomplete);
        Say(fault.what());
    }
}

void ReportDriver::DriveReport(headless::HeadlessDialog& dialog, CDesignerDlg& report) {
    if (!report.IsProjectLoaded()) {
        Worsen(kExitNotLoaded);
        return;
    }
    // A message during the load means that the data are incomplete.
    if (m_messages > 0) Worsen(kExitIncomplete);
    CheckFiles(report.State());
    SetFooter(dialog);
    NoteTables(dialog);
    if (!ChooseCases(dialog)) return;
    if (m_options.findings || m_options.strict) {
        m_progress.emplace(m_err, m_place + "Reading the forces of " + ForUser(m_project.inputFile));
        dialog.Run([&report] { RequirePass(report.State()); });
        m_progress.reset();
    }
    CheckForces(report.State());
    if (m_options.strict && HasError(m_report.findings)) {
        Say("nothing is written, because the data have errors");
        return;
    }
    for (const std::string& table : m_options.tables) {
        PressTable(dialog, report, table);
        if (!report.State().forcesChanged) continue;
        // Tables of two states of the project must not form one report.
        Worsen(kExitNotLoaded);
        return;
    }
    CheckForces(report.State());
}

void ReportDriver::CheckFiles(const ReportState& state) {
    if (!std::exchange(m_filesChecked, true)) {
        AddFindings(FindInFiles(m_project.basePath, SessionProject(), state.forces));
        AddFindings(FindInStudy(m_project.inputFile));
    }
    if (HasError(m_report.findings)) Worsen(kExitUnsound);
}

void ReportDriver::CheckForces(const ReportState& state) {
    if (m_forcesChecked || state.pass == nullptr) return;
    m_forcesChecked = true;
    AddFindings(FindInForces(SessionProject(), state.forces, state.pass->Finite()));
    if (HasError(m_report.findings)) Worsen(kExitUnsound);
}

void ReportDriver::AddFindings(const std::vector<Finding>& findings) {
    for (const Finding& finding : findings) {
        m_report.findings.push_back(finding);
        if (finding.severity == Severity::note) continue;
        m_progress.reset();
        m_err << ForUser(m_project.inputFile) << ": " << PaintedLine(finding, m_err) << std::endl;
    }
}

bool ReportDriver::ChooseCases(headless::HeadlessDialog& dialog) {
    if (m_options.cases.IsAll()) return true;
    dialog.Click(IDC_CUSTOM_CASES);
    dialog.Click(IDC_CHOOSE_CASES);
    if (m_casesChosen) return true;
    if (!m_casesFault.empty()) Say(m_casesFault);
    Worsen(kExitUsage);
    return false;
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
    CaseSelection selection;
    try {
        selection = Select(SessionProject(), m_options.cases);
    } catch (const std::invalid_argument& fault) {
        m_casesFault = fault.what();
        return;
    }
    m_casesFault = "the dialog of the load cases does not accept the choice";
    dialog.Click(IDC_CASES_NONE);
    for (int row = 1; row < control->grid->RowCount(); ++row) {
        if (selection.IsFirstPierCaseSelected(SessionProject(), row - 1)) {
            dialog.TypeCell(row, kIncludeColumn, "1");
        }
    }
    dialog.Click(IDOK);
    m_casesChosen = !dialog.IsOpen();
}

void ReportDriver::NoteTables(const headless::HeadlessDialog& dialog) {
    m_offered.clear();
    for (const std::string& table : m_options.tables) {
        const NativeWindow* button = dialog.Find(TableButton(table));
        if (button != nullptr && button->enabled && button->visible) m_offered.insert(table);
    }
}

void ReportDriver::PressTable(headless::HeadlessDialog& dialog, CDesignerDlg& report,
                              const std::string& table) {
    m_table = table;
    m_written.clear();
    m_failed.clear();
    m_progress.emplace(m_err, m_place + "Writing the table " + table + " of " + ForUser(m_project.inputFile));
    const bool pressed = dialog.Click(TableButton(table));
    m_progress.reset();
    if (!pressed) {
        Say("the table " + table +
            (m_offered.contains(table) ? " has no cases among the chosen ones"
                                       : " does not apply to this project"));
        Worsen(kExitIncomplete);
        return;
    }
    if (m_written.empty() || !m_failed.empty()) Worsen(kExitIncomplete);
    if (!m_failed.empty()) {
        const std::string why = WriteFault(m_failed);
        Say("the table " + table + " could not be written whole: " + (why.empty() ? m_failed : why));
    } else if (!m_written.empty()) {
        NoteWritten();
    }
    // The table of the pile heads changes the format to the spreadsheet, and it stays so.
    if (report.m_nFormat != m_format) dialog.Click(kFormatButtons[m_format]);
}

void ReportDriver::NoteWritten() {
    m_report.files.push_back(m_written);
    if (!m_options.json && !m_options.output.ToStandardOutput()) m_out << m_written << std::endl;
}

MessageAnswer ReportDriver::OnMessage(const headless::Message& message) {
    ++m_messages;
    if (message.buttons == MessageButtons::ok) Say(message.text);
    return Sink::OnMessage(message);
}

void ReportDriver::OnOutputFailed(const std::string& path) {
    m_failed = path;
}

int ReportDriver::OnShellOpen(const std::string&, const std::string& file, const std::string& parameters) {
    constexpr int kShellSuccess = 42;
    // A file that was not written is not shown: an earlier file of that name has other numbers. Why it was
    // not written is said better than by a viewer that does not find it.
    if (!m_failed.empty()) return kShellSuccess;
    const int code = ShellCodeOfDocument(file, parameters);
    const std::string document = OpenedDocument(file, parameters);
    if (code <= 32 || !IsDocumentThere(document)) return code;
    m_written = document;
    return m_options.open ? StartViewer(m_written) : code;
}

PlotModuleResult ReportDriver::OnPlotModule(const PlotModuleCall& call, std::string&) {
    m_written = call.dataFile;
    return PlotModuleResult::called;
}

}  // namespace lumerin
