// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "cli/Options.h"
#include "framework/headless/Headless.h"

namespace lumerin {

class CMPTEDlg;

struct EmbedmentOptions {
    std::string project;
    int loadCase = 1;
    int quantity = 0;       // as in the dialog's list
    int envelope = -1;      // 0 greatest, 1 least; -1: the single case
    std::string picture;    // the SVG file; empty: none
    bool workbook = false;  // press the dialog's "Excel"
    CommonOptions common;
};

// The study of one project: one call of the export in which the embedment dialog is opened, set and read. The
// table goes to `out`, followed by the path of each file that was written; messages go to `err`.
class EmbedmentDriver : public headless::Sink {
  public:
    EmbedmentDriver(const EmbedmentOptions& options, std::ostream& out, std::ostream& err);

    ExitStatus Run();

    MessageAnswer OnMessage(const headless::Message& message) override;
    void OnOutputFailed(const std::string& path) override;
    int OnShellOpen(const std::string& verb, const std::string& file, const std::string& parameters) override;

  private:
    void Drive(headless::HeadlessDialog& dialog);
    void DriveReport(headless::HeadlessDialog& dialog);
    void DriveStudy(headless::HeadlessDialog& dialog, const CMPTEDlg& study);
    bool ChooseView(headless::HeadlessDialog& dialog);
    void PrintTable(headless::HeadlessDialog& dialog, const CMPTEDlg& study);
    void WritePicture(const CMPTEDlg& study);
    void Fail(ExitStatus status, const std::string& text);

    const EmbedmentOptions& m_options;
    std::ostream& m_out;
    std::ostream& m_err;
    int m_nMessages = 0;
    std::vector<std::string> m_Written;
    std::string m_sFailed;  // the last file that could not be written whole
    ExitStatus m_status = kExitDone;
};

int ReadEnvelope(std::string_view text);  // max or min: the entry of the dialog's list
ExitStatus RunEmbedment(const EmbedmentOptions& options, std::ostream& out, std::ostream& err);

// "embedment": the study of a project, its curve and its workbook.
ProgramCommand AddEmbedmentCommand(CLI::App& program);

}  // namespace lumerin
