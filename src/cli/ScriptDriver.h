// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "framework/headless/Headless.h"
#include "script/JsonLines.h"
#include "script/Script.h"
#include "session/headless/PlotModuleSink.h"

namespace lumerin {

// Plays a script on the dialogs of one call and reports every event as a JSON line. The current action goes
// to the front dialog; a dialog that a press opens takes the actions that follow, until it is closed.
class ScriptDriver : public headless::Sink, public PlotModuleSink {
  public:
    ScriptDriver(std::vector<ScriptAction> actions, std::ostream& out);

    // Plays until the dialog is closed or the script ends.
    void Drive(headless::HeadlessDialog& dialog);
    // The action that opens the dialog once more after a call; null when another one is next, or none.
    const ScriptAction* TakeAgain();
    // Without the plot module a press that needs it fails as on a machine without it.
    void SetHasPlotModule(bool has) { m_hasPlotModule = has; }
    // The first action for which no dialog was open; null when all were played.
    const ScriptAction* FirstLeftOver() const;

    // Whether an action was refused, in any call.
    bool HasRefused() const { return m_lines.HasRefused(); }
    // Files that could not be written whole, in order.
    const std::vector<std::string>& FailedOutputs() const { return m_failedOutputs; }

    void OnDialogOpened(headless::HeadlessDialog& dialog) override;
    MessageAnswer OnMessage(const headless::Message& message) override;
    // A format that was refused leaves no path; the message about it was shown.
    void OnOutputFailed(const std::string& path) override {
        if (!path.empty()) m_failedOutputs.push_back(path);
    }
    int OnShellOpen(const std::string& verb, const std::string& file, const std::string& parameters) override;
    PlotModuleResult OnPlotModule(const PlotModuleCall& call, std::string& systemText) override;

  private:
    void Play(const ScriptAction& action, headless::HeadlessDialog& dialog);
    bool PressKey(const ScriptAction& action, headless::HeadlessDialog& dialog);
    bool Type(const std::string& text, headless::HeadlessDialog& dialog);
    void ReportFocus(const headless::HeadlessDialog& dialog);
    void Dump(headless::HeadlessDialog& dialog);

    std::vector<ScriptAction> m_actions;
    std::size_t m_next = 0;
    JsonLines m_lines;
    std::vector<std::string> m_failedOutputs;
    int m_messages = 0;
    bool m_hasPlotModule = true;
};

// The document of a viewer start, without its quotes.
std::string OpenedDocument(const std::string& file, const std::string& parameters);
bool IsDocumentThere(const std::string& path);
// The shell's code for a viewer start without a screen: success when the document is there or is a page of
// the help, otherwise the code for a missing file. The shell does not look at the document that a program is
// started with: the program does.
int ShellCodeOfDocument(const std::string& file, const std::string& parameters);

}  // namespace lumerin
