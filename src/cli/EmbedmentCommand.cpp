// SPDX-License-Identifier: MIT
#include "cli/EmbedmentCommand.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "cli/CommonArguments.h"
#include "cli/OutputPlan.h"
#include "cli/Progress.h"
#include "cli/ScriptDriver.h"
#include "cli/StudyArguments.h"
#include "embedment/dialog/MPTEDlg.h"
#include "framework/Index.h"
#include "framework/NativePath.h"
#include "framework/WholeFile.h"
#include "records/OpenProject.h"
#include "results/ProjectFiles.h"
#include "script/Border.h"
#include "session/Constants.h"
#include "session/DesignerDlg.h"
#include "session/Launch.h"
#include "session/ReportControls.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr const char* kColumnGap = "  ";

using Rows = std::vector<std::vector<std::string>>;

std::vector<std::size_t> ColumnWidths(const Rows& rows) {
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    return widths;
}

// The user gives its name. It may be a device or a pipe of the shell, which is written directly.
bool WritePictureFile(const std::string& path, const std::string& picture) {
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(NativePath(path), ignored);
    if (std::filesystem::is_character_file(status) || std::filesystem::is_fifo(status)) {
        std::ofstream device(NativePath(path), std::ios::binary);
        device << picture;
        device.close();
        return !device.fail();
    }
    WholeFile file;
    return file.Open(path) && file.Write(picture.data(), picture.size()) && file.Commit();
}

}  // namespace

EmbedmentDriver::EmbedmentDriver(const EmbedmentOptions& options, std::ostream& out, std::ostream& err)
    : m_options(options), m_out(out), m_err(err) {}

ExitStatus EmbedmentDriver::Run() {
    Progress progress(m_err, "Loading " + ForUser(m_options.project));
    headless::SetSink(this);
    headless::SetModalDriver([this, &progress](headless::HeadlessDialog& dialog) {
        progress.End();
        Drive(dialog);
    });
    LaunchLumerin(kFormatSpreadsheet, m_options.project.c_str(), m_options.common.version.c_str(), "", "",
                  "");
    headless::SetModalDriver(nullptr);
    headless::SetSink(nullptr);
    return m_status;
}

void EmbedmentDriver::Fail(ExitStatus status, const std::string& text) {
    PrintLine(m_err, m_options.project + ": " + text);
    m_status = Worse(m_status, status);
}

void EmbedmentDriver::Drive(headless::HeadlessDialog& dialog) {
    if (auto* report = dynamic_cast<CDesignerDlg*>(&dialog.Dialog())) {
        if (report->IsProjectLoaded()) {
            DriveReport(dialog);
        } else {
            m_status = kExitNotLoaded;
        }
    } else if (const auto* study = dynamic_cast<CMPTEDlg*>(&dialog.Dialog())) {
        DriveStudy(dialog, *study);
    }
}

void EmbedmentDriver::DriveReport(headless::HeadlessDialog& dialog) {
    if (!dialog.Click(IDC_EMBEDMENT)) Fail(kExitIncomplete, "the project has no embedment study");
}

void EmbedmentDriver::DriveStudy(headless::HeadlessDialog& dialog, const CMPTEDlg& study) {
    // A message while the dialog opens means that the study is incomplete.
    if (m_messages > 0) m_status = Worse(m_status, kExitIncomplete);
    bool isFirst = true;
    for (const bool envelope : m_options.view.Curves()) {
        if (!ChooseView(dialog, envelope)) return;
        if (!isFirst) m_out << '\n';
        PrintTable(dialog, study, envelope);
        if (isFirst && m_options.workbook) dialog.Click(IDC_STUDY_EXPORT);
        isFirst = false;
    }
    if (m_options.maxDisplacement) PrintAnswer(study);
    if (!m_options.picture.empty()) WritePicture(study);
    if (!m_written.empty()) m_out << '\n';
    for (const std::string& path : m_written) m_out << path << '\n';
    m_out.flush();
}

bool EmbedmentDriver::ChooseView(headless::HeadlessDialog& dialog, bool envelope) {
    const int before = m_messages;
    if (envelope) {
        dialog.Click(IDC_STUDY_ENVELOPE);
        dialog.SelectEntry(IDC_STUDY_ENVELOPE_MODE, m_options.view.envelope);
    } else {
        dialog.Click(IDC_STUDY_INDIVIDUAL);
        dialog.TypeText(IDC_STUDY_CASE, std::to_string(m_options.view.loadCase));
    }
    dialog.SelectEntry(IDC_STUDY_QUANTITY, m_options.view.quantity);
    if (m_messages == before) return true;
    m_status = Worse(m_status, kExitUsage);
    return false;
}

// The dialog's own title names the single case, also for an envelope.
std::string EmbedmentDriver::NameOf(const CMPTEDlg& study, bool envelope) const {
    return StudyCurveName(m_options.view, envelope, study.HasCombinations());
}

void EmbedmentDriver::PrintTable(headless::HeadlessDialog& dialog, const CMPTEDlg& study, bool envelope) {
    const NativeWindow* grid = dialog.FindKind(ControlKind::grid);
    if (grid == nullptr || grid->grid == nullptr) return;
    Rows rows;
    for (int row = 0; row < grid->grid->RowCount(); ++row) rows.push_back(grid->grid->RowTexts(row));
    const std::vector<std::size_t> widths = ColumnWidths(rows);
    m_out << NameOf(study, envelope) << " - Embedment vs "
          << kQuantityNames.at(Index(m_options.view.quantity)) << '\n';
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (i > 0) line += kColumnGap;
            line.append(widths[i] - row[i].size(), ' ').append(row[i]);
        }
        m_out << ForUser(line) << '\n';
    }
}

StudyCurve EmbedmentDriver::HeldCurve(const CMPTEDlg& study) const {
    const CEmbedmentResults& results = study.m_pResults;
    const bool isEnvelope = m_options.view.envelope >= 0;
    StudyCurve curve =
        StudyCurveOf(results, study.Cases(), m_options.view, isEnvelope, study.HasCombinations());
    if (!isEnvelope) return curve;
    for (StudyPoint& point : curve.points) {
        // A component of the displacement can be greatest in either direction.
        for (const int mode : {0, 1}) {
            const CEnvelopePoint end = study.GetEnvelopePoint(point.trial - 1, m_options.view.quantity, mode);
            if (std::fabs(end.dValue) <= std::fabs(point.value)) continue;
            point.value = end.dValue;
            point.loadCase = end.nCase + 1;
            point.pile = results.GetLocation(point.trial - 1, end.nCase, m_options.view.quantity);
        }
    }
    return curve;
}

void EmbedmentDriver::PrintAnswer(const CMPTEDlg& study) {
    const bool us = study.m_nUnits == 0;
    const std::string length = us ? " ft" : " m", displacement = us ? " in" : " m";
    const auto number = [](double value, int decimals) { return FormatFixed(value, decimals); };
    const EmbedmentAnswer answer = FindEmbedment(HeldCurve(study).points, *m_options.maxDisplacement);
    const auto trial = [&](const StudyPoint& point) {
        return "trial " + std::to_string(point.trial) + ": " + number(point.value, 6) + displacement +
               ", case " + std::to_string(point.loadCase) + ", pile " + std::to_string(point.pile);
    };
    m_out << '\n'
          << kQuantityNames.at(Index(m_options.view.quantity)) << " of at most "
          << FormatGeneral(*m_options.maxDisplacement) << displacement << ", "
          << (m_options.view.envelope < 0 ? NameOf(study, false) : "all cases") << '\n';
    if (answer.shortest) {
        m_out << "  Shortest tried embedment that holds: " << number(answer.shortest->embedment, 2) << length
              << " (" << trial(*answer.shortest) << ")\n";
    } else {
        m_out << "  No tried embedment holds\n";
        m_status = Worse(m_status, kExitIncomplete);
    }
    if (answer.interpolated) {
        m_out << "  Interpolated embedment: " << number(*answer.interpolated, 2) << length
              << " (too short: " << number(answer.tooShort->embedment, 2) << length << ", "
              << trial(*answer.tooShort) << ")\n";
    } else if (answer.shortest) {
        m_out << "  Interpolated embedment: none, because no shorter trial exceeds the limit\n";
    }
    m_out << "  Incomplete trials: ";
    const char* separator = "";
    for (const int incomplete : answer.incomplete) {
        m_out << separator << incomplete;
        separator = ", ";
    }
    m_out << (answer.incomplete.empty() ? "none\n" : "\n");
}

void EmbedmentDriver::WritePicture(const CMPTEDlg& study) {
    const StudyView& view = m_options.view;
    const std::vector<StudyCurve> curves =
        StudyCurvesOf(study.m_pResults, study.Cases(), view, study.HasCombinations());
    // No change of the status: the table says so too.
    const std::string missing = TrialsWithoutValue(curves.front());
    if (!missing.empty()) Fail(kExitDone, "the picture has a gap for the incomplete trials " + missing);
    const StudyLabels labels = StudyLabelsOf(view, study.HasCombinations(), study.m_nUnits);
    if (WritePictureFile(m_options.picture, StudyPicture(labels, curves))) {
        m_written.insert(m_written.begin(), m_options.picture);
    } else {
        const std::string why = WriteFault(m_options.picture);
        Fail(kExitIncomplete,
             "the picture " + m_options.picture + " could not be written" + (why.empty() ? "" : ": " + why));
    }
}

MessageAnswer EmbedmentDriver::OnMessage(const headless::Message& message) {
    ++m_messages;
    Fail(kExitDone, message.text);
    return Sink::OnMessage(message);
}

void EmbedmentDriver::OnOutputFailed(const std::string& path) {
    m_failed = path;
    Fail(kExitIncomplete, path + " could not be written whole");
}

int EmbedmentDriver::OnShellOpen(const std::string&, const std::string& file, const std::string& parameters) {
    const int code = ShellCodeOfDocument(file, parameters);
    const std::string document = OpenedDocument(file, parameters);
    if (code > 32 && document != m_failed) {
        m_written.push_back(document);
    } else {
        m_status = Worse(m_status, kExitIncomplete);
    }
    return code;
}

ExitStatus RunEmbedment(const EmbedmentOptions& options, std::ostream& out, std::ostream& err) {
    EmbedmentDriver driver(options, out, err);
    return driver.Run();
}

namespace {

constexpr const char* kEmbedmentFooter =
    "Examples:\n"
    "  lumerin embedment pier.in --case 3 --svg curve.svg\n"
    "  lumerin embedment pier --quantity lateral-x --envelope max --case 3\n"
    "  lumerin embedment pier --max-displacement 1.0\n"
    "\n"
    "Prints the table and the path of each file that was written. With an envelope and a case both tables "
    "are "
    "printed, and the picture has both curves; the workbook is that of the envelope. --max-displacement "
    "prints the shortest tried embedment with which the displacement and that of every longer trial is at "
    "most the limit, in any direction; the interpolated one, on the straight line to the next shorter trial; "
    "and the trials that are incomplete. Without --case it holds all cases against the limit.\n"
    "\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  the project has no study, a part of it could not be read or\n"
    "     written, or no tried embedment holds\n"
    "  2  wrong usage, or no such case\n"
    "  3  the project could not be loaded";

struct EmbedmentArguments {
    EmbedmentOptions options;
    std::string project;
};

ExitStatus RunEmbedmentCommand(EmbedmentArguments& arguments, std::ostream& out, std::ostream& err) {
    EmbedmentOptions& options = arguments.options;
    if (options.maxDisplacement) {
        if (options.view.quantity > kLateralY) {
            throw std::invalid_argument("--max-displacement holds displacements, not axial forces");
        }
        if (!(*options.maxDisplacement > 0.0)) {
            throw std::invalid_argument("--max-displacement takes a number that is greater than 0");
        }
        if (!options.view.hasCase && options.view.envelope < 0) options.view.envelope = 0;
    }
    if (HasNameOfProjectFile(options.picture)) {
        throw std::invalid_argument("--svg has the name of a file that projects are read from: " +
                                    options.picture);
    }
    const ProjectName project(arguments.project);
    options.project = project.inputFile;
    ApplyOptions(options.common);
    if (ProjectExists(project)) return RunEmbedment(options, out, err);
    PrintLine(err, "lumerin: no project " + project.inputFile);
    return kExitNotLoaded;
}

}  // namespace

ProgramCommand AddEmbedmentCommand(CommandParser& program) {
    const auto arguments = std::make_shared<EmbedmentArguments>();
    EmbedmentOptions& options = arguments->options;
    CommandParser command = program.AddCommand("embedment", "Show the embedment study of a project");
    command.Add("PROJECT", arguments->project, "A project: its input file, with or without .in").Required();
    AddStudyOptions(command, options.view);
    command
        .OnNumber(
            "--max-displacement", [arguments](double limit) { arguments->options.maxDisplacement = limit; },
            "Print which embedment keeps the displacement at or below this, in in or m")
        .Takes("LENGTH");
    command.Add("--svg", options.picture, "Write the curve to this file").Takes("FILE");
    command.AddFlag("--excel", options.workbook, "Write the table as a workbook beside the project");
    AddCommonOptions(command, options.common);
    command.SetFooter(kEmbedmentFooter);
    return {command, [arguments](std::ostream& out, std::ostream& err) {
                return RunEmbedmentCommand(*arguments, out, err);
            }};
}

}  // namespace lumerin
