// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "cli/Options.h"
#include "embedment/StudyCurves.h"
#include "framework/headless/Headless.h"

namespace lumerin {

class CMPTEDlg;

struct EmbedmentOptions {
    std::string project;
    StudyView view;
    std::optional<double> maxDisplacement;  // answers which embedment holds it
    std::string picture;                    // the SVG file; empty: none
    bool workbook = false;                  // press the dialog's "Excel"
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
    bool ChooseView(headless::HeadlessDialog& dialog, bool envelope);
    std::string NameOf(const CMPTEDlg& study, bool envelope) const;
    void PrintTable(headless::HeadlessDialog& dialog, const CMPTEDlg& study, bool envelope);
    // The size of the displacement that is held against the limit.
    StudyCurve HeldCurve(const CMPTEDlg& study) const;
    void WritePicture(const CMPTEDlg& study);
    void PrintAnswer(const CMPTEDlg& study);
    void Fail(ExitStatus status, const std::string& text);

    const EmbedmentOptions& m_options;
    std::ostream& m_out;
    std::ostream& m_err;
    int m_messages = 0;
    std::vector<std::string> m_written;
    std::string m_failed;  // the last file that could not be written whole
    ExitStatus m_status = kExitDone;
};

ExitStatus RunEmbedment(const EmbedmentOptions& options, std::ostream& out, std::ostream& err);

// "embedment": the study of a project, its curve and its workbook.
ProgramCommand AddEmbedmentCommand(CommandParser& program);

}  // namespace lumerin
