// SPDX-License-Identifier: MIT
#include "cli/ScriptDriver.h"
#include "framework/File.h"

#include <algorithm>
#include <utility>

namespace lumerin {

namespace {

constexpr int kShellSuccess = 42;
constexpr int kShellFileMissing = 2;

ControlState StateOf(const NativeWindow& control) {
    ControlState state;
    state.id = control.spec->id;
    state.kind = control.spec->kind;
    state.text = control.text;
    state.enabled = control.enabled;
    state.visible = control.visible;
    state.checked = control.checked;
    state.selection = control.selection;
    return state;
}

}  // namespace

std::string OpenedDocument(const std::string& file, const std::string& parameters) {
    const std::string& text = parameters.empty() ? file : parameters;
    const bool quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

bool IsDocumentThere(const std::string& path) {
    return !FindFileAnyCase(path).empty();
}

int ShellCodeOfDocument(const std::string& file, const std::string& parameters) {
    const std::string document = OpenedDocument(file, parameters);
    if (!parameters.empty() || document.rfind("file:", 0) == 0) return kShellSuccess;
    return IsDocumentThere(document) ? kShellSuccess : kShellFileMissing;
}

ScriptDriver::ScriptDriver(std::vector<ScriptAction> actions, std::ostream& out)
    : m_actions(std::move(actions)), m_lines(out) {}

void ScriptDriver::Drive(headless::HeadlessDialog& dialog) {
    while (dialog.IsOpen() && m_next < m_actions.size()) {
        const ScriptAction& action = m_actions[m_next];
        if (action.verb == ScriptVerb::again) return;
        ++m_next;
        Play(action, dialog);
    }
}

const ScriptAction* ScriptDriver::TakeAgain() {
    const ScriptAction* next = FirstLeftOver();
    if (next == nullptr || next->verb != ScriptVerb::again) return nullptr;
    ++m_next;
    return next;
}

const ScriptAction* ScriptDriver::FirstLeftOver() const {
    return m_next < m_actions.size() ? &m_actions[m_next] : nullptr;
}

void ScriptDriver::Play(const ScriptAction& action, headless::HeadlessDialog& dialog) {
    bool done = true;
    switch (action.verb) {
        case ScriptVerb::click:
            done = dialog.Click(action.id);
            break;
        case ScriptVerb::text:
            done = dialog.TypeText(action.id, action.text);
            break;
        case ScriptVerb::focus:
            done = dialog.Focus(action.id);
            break;
        case ScriptVerb::select:
            done = dialog.SelectEntry(action.id, action.number);
            break;
        case ScriptVerb::spinUp:
            done = dialog.Spin(action.id, true);
            break;
        case ScriptVerb::spinDown:
            done = dialog.Spin(action.id, false);
            break;
        case ScriptVerb::cell:
            done = dialog.TypeCell(action.id, action.number, action.text);
            break;
        case ScriptVerb::graphClick:
            done = dialog.ClickGraph(action.x);
            break;
        case ScriptVerb::answerYes:
            headless::State().answer = MessageAnswer::yes;
            break;
        case ScriptVerb::answerNo:
            headless::State().answer = MessageAnswer::no;
            break;
        case ScriptVerb::dump:
            Dump(dialog);
            break;
        case ScriptVerb::shot:  // there is no screen
            done = false;
            break;
        case ScriptVerb::key:
            done = PressKey(action, dialog);
            break;
        case ScriptVerb::type:
            done = Type(action.text, dialog);
            break;
        case ScriptVerb::mouse:
            done = dialog.Mouse(action.mouse);
            break;
        case ScriptVerb::where:
            ReportFocus(dialog);
            break;
        case ScriptVerb::keyHelp:
            done = dialog.PressHelp(action.id);
            break;
        case ScriptVerb::again:  // between two calls, never inside one
            break;
    }
    if (!done) m_lines.Refused(RefusedName(action));
}

bool ScriptDriver::PressKey(const ScriptAction& action, headless::HeadlessDialog& dialog) {
    const NativeWindow* focus = dialog.Focused();
    const ControlKind kind = focus == nullptr ? ControlKind::group : focus->spec->kind;
    return TakesKey(kind, action.key) && dialog.PressKey(action.key.code, action.key.keys);
}

bool ScriptDriver::Type(const std::string& text, headless::HeadlessDialog& dialog) {
    const NativeWindow* focus = dialog.Focused();
    if (focus == nullptr || !TakesText(focus->spec->kind)) return false;
    // The characters after one that opens a message box go to that box, which ignores them.
    const int messages = m_messages;
    for (const char c : text) {
        if (messages == m_messages) dialog.TypeChar(static_cast<unsigned char>(c));
    }
    return true;
}

void ScriptDriver::ReportFocus(const headless::HeadlessDialog& dialog) {
    FocusState state;
    if (const NativeWindow* focus = dialog.Focused()) {
        state.id = focus->spec->id;
        state.kind = focus->spec->kind;
        state.text = focus->text;
        state.start = std::min(focus->selectionStart, focus->selectionEnd);
        state.end = std::max(focus->selectionStart, focus->selectionEnd);
        if (focus->grid != nullptr) state.grid = focus->grid->View();
    }
    m_lines.Focus(state);
}

void ScriptDriver::Dump(headless::HeadlessDialog& dialog) {
    for (const auto& control : dialog.Controls()) {
        if (control->spec->id != kNoId) m_lines.Control(StateOf(*control));
    }
    for (const auto& control : dialog.Controls()) {
        if (control->grid == nullptr) continue;
        const int rows = control->grid->RowCount();
        for (int row = 0; row < rows; ++row) m_lines.Row(row, control->grid->RowTexts(row));
    }
    for (const auto& control : dialog.Controls()) {
        if (control->graph != nullptr) m_lines.Plot(control->graph->LastDrawing());
    }
}

void ScriptDriver::OnDialogOpened(headless::HeadlessDialog& dialog) {
    m_lines.Dialog(dialog.Title());
}

MessageAnswer ScriptDriver::OnMessage(const headless::Message& message) {
    ++m_messages;
    m_lines.Message(message.text, message.title, message.icon);
    return Sink::OnMessage(message);
}

int ScriptDriver::OnShellOpen(const std::string&, const std::string& file, const std::string& parameters) {
    const int code = ShellCodeOfDocument(file, parameters);
    // A start that fails reaches no program, so only the message that follows is reported.
    if (code == kShellSuccess) m_lines.Open(file, parameters);
    return code;
}

PlotModuleResult ScriptDriver::OnPlotModule(const PlotModuleCall& call, std::string&) {
    if (!m_hasPlotModule) return PlotModuleResult::moduleMissing;
    m_lines.Module(
        kPlotModuleName, call.format,
        {call.dataFile, call.plot, call.family, call.version, call.zeroA, call.zeroB, call.argument});
    return PlotModuleResult::called;
}

}  // namespace lumerin
