// SPDX-License-Identifier: MIT
#include "cli/EmbedmentCommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "cli/CommonArguments.h"
#include "cli/Progress.h"
#include "cli/ScriptDriver.h"
#include "embedment/SvgCanvas.h"
#include "embedment/dialog/MPTEDlg.h"
#include "framework/WholeFile.h"
#include "script/Border.h"
#include "session/Constants.h"
#include "session/DesignerDlg.h"
#include "session/Launch.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

constexpr double kPictureWidth = 900.0, kPictureHeight = 540.0;
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

// The only file whose name the user gives. It may be a device or a pipe of the shell, which is written
// directly.
bool WritePictureFile(const std::string& path, const std::string& picture) {
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(path, ignored);
    if (std::filesystem::is_character_file(status) || std::filesystem::is_fifo(status)) {
        std::ofstream device(path, std::ios::binary);
        device << picture;
        device.close();
        return !device.fail();
    }
    WholeFile file;
    return file.Open(path) && file.Write(picture.data(), picture.size()) && file.Commit();
}

}  // namespace

int ReadEnvelope(std::string_view text) {
    if (text == "max") return 0;
    if (text == "min") return 1;
    throw std::invalid_argument("\"" + std::string(text) + "\" is no envelope (max, min)");
}

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
    if (m_nMessages > 0) m_status = Worse(m_status, kExitIncomplete);
    if (!ChooseView(dialog)) return;
    PrintTable(dialog, study);
    if (!m_options.picture.empty()) WritePicture(study);
    if (m_options.workbook) dialog.Click(IDC_STUDY_EXPORT);
    if (!m_Written.empty()) m_out << '\n';
    for (const std::string& path : m_Written) m_out << path << '\n';
    m_out.flush();
}

bool EmbedmentDriver::ChooseView(headless::HeadlessDialog& dialog) {
    const int before = m_nMessages;
    if (m_options.envelope >= 0) {
        dialog.Click(IDC_STUDY_ENVELOPE);
        dialog.SelectEntry(IDC_STUDY_ENVELOPE_MODE, m_options.envelope);
    } else {
        dialog.TypeText(IDC_STUDY_CASE, std::to_string(m_options.loadCase));
    }
    dialog.SelectEntry(IDC_STUDY_QUANTITY, m_options.quantity);
    if (m_nMessages == before) return true;
    m_status = Worse(m_status, kExitUsage);
    return false;
}

void EmbedmentDriver::PrintTable(headless::HeadlessDialog& dialog, const CMPTEDlg& study) {
    const NativeWindow* grid = dialog.FindKind(ControlKind::grid);
    if (grid == nullptr || grid->grid == nullptr) return;
    Rows rows;
    for (int row = 0; row < grid->grid->RowCount(); ++row) rows.push_back(grid->grid->RowTexts(row));
    const std::vector<std::size_t> widths = ColumnWidths(rows);
    // The plot's caption names the single case, also for an envelope.
    const NativeWindow* quantity = dialog.Find(IDC_STUDY_QUANTITY);
    const NativeWindow* envelope = dialog.Find(IDC_STUDY_ENVELOPE_MODE);
    m_out << (m_options.envelope >= 0 ? envelope->text + " - Embedment vs " + quantity->text
                                      : study.BuildPlotTitle(m_options.loadCase, m_options.quantity))
          << '\n';
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (i > 0) line += kColumnGap;
            line.append(widths[i] - row[i].size(), ' ').append(row[i]);
        }
        m_out << ForUser(line) << '\n';
    }
}

void EmbedmentDriver::WritePicture(const CMPTEDlg& study) {
    const std::string picture = PlotAsSvg(study.m_Graph.Plot(), kPictureWidth, kPictureHeight);
    if (WritePictureFile(m_options.picture, picture)) {
        m_Written.push_back(m_options.picture);
    } else {
        Fail(kExitIncomplete, "the picture " + m_options.picture + " could not be written");
    }
}

MessageAnswer EmbedmentDriver::OnMessage(const headless::Message& message) {
    ++m_nMessages;
    Fail(kExitDone, message.text);
    return Sink::OnMessage(message);
}

void EmbedmentDriver::OnOutputFailed(const std::string& path) {
    m_sFailed = path;
    Fail(kExitIncomplete, path + " could not be written whole");
}

int EmbedmentDriver::OnShellOpen(const std::string&, const std::string& file, const std::string& parameters) {
    const int code = ShellCodeOfDocument(file, parameters);
    const std::string document = OpenedDocument(file, parameters);
    if (code > 32 && document != m_sFailed) {
        m_Written.push_back(document);
    } else {
        m_status = Worse(m_status, kExitIncomplete);
    }
    return code;
}

ExitStatus RunEmbedment(const EmbedmentOptions& options, std::ostream& out, std::ostream& err) {
    EmbedmentDriver driver(options, out, err);
    return driver.Run();
}

ProgramCommand AddEmbedmentCommand(CLI::App& program) {
    struct Arguments {
        EmbedmentOptions options;
        std::string envelope;
    };
    const auto arguments = std::make_shared<Arguments>();
    EmbedmentOptions& options = arguments->options;
    CLI::App& command = *program.add_subcommand("embedment", "Show the embedment study of a project");
    command.add_option("PROJECT", options.project, "Input file of a project (.in)")->required();
    CLI::Option* loadCase =
        command.add_option("--case", options.loadCase, "Number of the load case (default 1)");
    command.add_option("--envelope", arguments->envelope, "max or min over all cases in place of one case")
        ->excludes(loadCase);
    command
        .add_option("--quantity", options.quantity,
                    "0 lateral displacement (default), 1 along x, 2 along y, 3 greatest, 4 least axial force")
        ->check(CLI::Range(0, 4));
    command.add_option("--svg", options.picture, "Write the curve to this file");
    command.add_flag("--excel", options.workbook, "Write the table as a workbook beside the project");
    AddCommonOptions(command, options.common);
    command.footer(
        "Prints the table and the path of each file that was written. Exit status: 0 done, 1 the project "
        "has\n"
        "no study or a part of it could not be read or written, 2 wrong usage or no such case, 3 the "
        "project\n"
        "could not be loaded.");
    return {&command, [arguments](std::ostream& out, std::ostream& err) {
                if (!arguments->envelope.empty()) {
                    arguments->options.envelope = ReadEnvelope(arguments->envelope);
                }
                ApplyOptions(arguments->options.common);
                return RunEmbedment(arguments->options, out, err);
            }};
}

}  // namespace lumerin
