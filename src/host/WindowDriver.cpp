// SPDX-License-Identifier: MIT
#include "host/WindowDriver.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "framework/Dialog.h"
#include "host/Actions.h"
#include "host/GraphReader.h"
#include "host/GridReader.h"
#include "host/Picture.h"
#include "host/WindowReader.h"

namespace lumerin {

namespace {

// A key takes this many ticks from the keyboard to the window that has the focus.
constexpr int kKeySettle = 12;
// The same for a step of the mouse.
constexpr int kMouseSettle = 2;
// Ticks after which a window that was answered counts as another one under the same handle.
constexpr int kAnswerPatience = 50;

bool UsesKeyboard(ScriptVerb verb) {
    return verb == ScriptVerb::cell || verb == ScriptVerb::key || verb == ScriptVerb::keyHelp ||
           verb == ScriptVerb::type;
}

}  // namespace

WindowDriver::WindowDriver(std::vector<ScriptAction> actions, std::ostream& out)
    : m_actions(std::move(actions)), m_lines(out), m_records(m_lines) {}

// A tick comes when the loop has nothing else to do, so a late one shows how long messages and painting took.
void WindowDriver::NoteTime() {
    const auto now = std::chrono::steady_clock::now();
    if (m_lastTick.time_since_epoch().count() != 0) m_longestWait = std::max(m_longestWait, now - m_lastTick);
    m_lastTick = now;
}

void WindowDriver::ReportWait(int line) {
    if (m_reportsWaits) {
        const auto wait = std::chrono::duration_cast<std::chrono::milliseconds>(m_longestWait);
        std::cerr << "before line " << line << ": " << wait.count() << " ms" << std::endl;
    }
    m_longestWait = {};
}

void WindowDriver::Tick() {
    NoteTime();
    if (m_settle > 0) {
        --m_settle;
        return;
    }
    const HWND front = FrontDialog();
    if (front == nullptr) return;
    m_records.Print();
    if (IsMessageBox(front)) {
        AnswerBox(front);
        return;
    }
    m_answered = nullptr;
    NoteDialog(front);
    if (m_mouse.IsBusy()) {
        m_mouse.Step();
        m_settle = kMouseSettle;
        return;
    }
    PlayNext(front);
}

void WindowDriver::AnswerBox(HWND box) {
    if (box == m_answered && ++m_answeredTicks < kAnswerPatience) return;
    m_answered = box;
    m_answeredTicks = 0;
    const MessageBoxState state = ReadMessageBox(box);
    m_lines.Message(state.text, state.title, state.icon);
    const HWND wanted = m_answerYes ? state.yes : state.no;
    PostMessageA(wanted != nullptr ? wanted : state.ok, BM_CLICK, 0, 0);
}

void WindowDriver::NoteDialog(HWND dialog) {
    const auto known = std::find(m_open.begin(), m_open.end(), dialog);
    if (known != m_open.end()) {
        m_open.erase(known + 1, m_open.end());
        return;
    }
    m_open.push_back(dialog);
    if (m_reportsWaits && m_open.size() == 1) {
        const std::chrono::duration<double, std::milli> wait = std::chrono::steady_clock::now() - m_callBegan;
        std::cerr << "dialog after " << wait.count() << " ms" << std::endl;
    }
    m_lines.Dialog(TextOf(dialog));
}

void WindowDriver::PlayNext(HWND dialog) {
    if (m_next >= m_actions.size() || m_actions[m_next].verb == ScriptVerb::again) {
        CloseDialog(dialog);
        return;
    }
    // The action is removed before it is played: it may open a window, in whose loop the ticks continue.
    const ScriptAction& action = m_actions[m_next++];
    ReportWait(action.line);
    if (!Perform(action, dialog)) {
        m_lines.Refused(RefusedName(action));
    } else if (UsesKeyboard(action.verb)) {
        m_settle = kKeySettle;
    }
}

bool WindowDriver::Perform(const ScriptAction& action, HWND dialog) {
    SetForegroundWindow(dialog);
    switch (action.verb) {
        case ScriptVerb::click:
            return actions::Click(dialog, action.id);
        case ScriptVerb::text:
            return actions::TypeText(dialog, action.id, action.text);
        case ScriptVerb::focus:
            return actions::Focus(dialog, action.id);
        case ScriptVerb::select:
            return actions::SelectEntry(dialog, action.id, action.number);
        case ScriptVerb::spinUp:
            return actions::Spin(dialog, action.id, true);
        case ScriptVerb::spinDown:
            return actions::Spin(dialog, action.id, false);
        case ScriptVerb::cell:
            return actions::TypeCell(dialog, action.id, action.number, action.text);
        case ScriptVerb::graphClick:
            return actions::ClickGraph(dialog, action.x);
        case ScriptVerb::answerYes:
        case ScriptVerb::answerNo:
            m_answerYes = action.verb == ScriptVerb::answerYes;
            return true;
        case ScriptVerb::dump:
            Dump(dialog);
            return true;
        case ScriptVerb::shot:
            return SavePicture(dialog, action.text);
        case ScriptVerb::key:
            return actions::PressKey(dialog, action.key);
        case ScriptVerb::type:
            return actions::Type(dialog, action.text);
        case ScriptVerb::mouse:
            return BeginMouse(action.mouse, dialog);
        case ScriptVerb::where:
            m_lines.Focus(ReadFocus(dialog));
            return true;
        case ScriptVerb::keyHelp:
            return actions::PressHelp(dialog, action.id);
        case ScriptVerb::again:
            break;
    }
    return true;
}

bool WindowDriver::BeginMouse(const MouseAction& action, HWND dialog) {
    const HWND grid = actions::FindGrid(dialog);
    return grid != nullptr && m_mouse.Begin(grid, action);
}

void WindowDriver::Dump(HWND dialog) {
    const std::vector<HWND> controls = ControlsOf(dialog);
    for (const HWND control : controls) {
        const ControlState state = ReadControl(control);
        const bool hasId = static_cast<WORD>(state.id) != 0xffff;
        if (hasId) m_lines.Control(state);
    }
    for (const HWND control : controls) {
        if (KindOf(control) != ControlKind::grid) continue;
        int row = 0;
        for (const auto& cells : gridreader::ReadRows(control)) m_lines.Row(row++, cells);
    }
    for (const HWND control : controls) {
        if (KindOf(control) == ControlKind::graph) m_lines.Plot(graphreader::ReadDrawing(control));
    }
}

// Closes the dialog as a user would: by the button "Close", else by Cancel. A dialog that stays open is
// ended.
void WindowDriver::CloseDialog(HWND dialog) {
    if (m_closing == dialog) {
        EndDialog(dialog, IDCANCEL);
        return;
    }
    m_closing = dialog;
    int id = IDCANCEL;
    for (const HWND control : ControlsOf(dialog)) {
        const bool visibleButton = KindOf(control) == ControlKind::button && HasStyle(control, WS_VISIBLE);
        if (visibleButton && TextOf(control) == "Close") id = GetDlgCtrlID(control);
    }
    if (!actions::Click(dialog, id)) PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

void WindowDriver::EndCall(unsigned result) {
    m_mouse.LetGo();
    m_records.Print();
    m_lines.Result(result);
    m_open.clear();
    m_answered = m_closing = nullptr;
    m_settle = 0;
}

const ScriptAction* WindowDriver::TakeAgain() {
    const ScriptAction* next = FirstLeftOver();
    if (next == nullptr || next->verb != ScriptVerb::again) return nullptr;
    ++m_next;
    return next;
}

const ScriptAction* WindowDriver::FirstLeftOver() const {
    return m_next < m_actions.size() ? &m_actions[m_next] : nullptr;
}

}  // namespace lumerin
