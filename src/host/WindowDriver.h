// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <ostream>
#include <vector>

#include "host/HostWindows.h"
#include "host/Mouse.h"
#include "host/Records.h"
#include "script/JsonLines.h"
#include "script/Script.h"

namespace lumerin {

// Plays a script on the module's real windows. It runs on the thread of the dialogs: a timer calls Tick in
// the current modal loop, only when that loop has nothing else to do, so that a press has been handled, or
// has opened another window, before the next tick.
class WindowDriver {
  public:
    WindowDriver(std::vector<ScriptAction> actions, std::ostream& out);

    void Tick();
    // Reports on standard error how long each call takes to open its dialog, and the longest time that the
    // dialogs keep the user waiting after each action.
    void ReportWaits() { m_reportsWaits = true; }

    // Just before a call.
    void BeginCall() { m_callBegan = std::chrono::steady_clock::now(); }
    // Prints what was recorded during the call, and its result.
    void EndCall(unsigned result);
    // The action that opens the dialog once more after a call; null when another one is next, or none.
    const ScriptAction* TakeAgain();
    // The first action for which no dialog was open; null when all were played.
    const ScriptAction* FirstLeftOver() const;
    // Whether an action was refused, in any call.
    bool HasRefused() const { return m_lines.HasRefused(); }

  private:
    void NoteTime();
    void ReportWait(int line);
    void AnswerBox(HWND box);
    void NoteDialog(HWND dialog);
    void PlayNext(HWND dialog);
    bool Perform(const ScriptAction& action, HWND dialog);
    bool BeginMouse(const MouseAction& action, HWND dialog);
    void Dump(HWND dialog);
    void CloseDialog(HWND dialog);

    std::vector<ScriptAction> m_actions;
    std::size_t m_next = 0;
    JsonLines m_lines;
    Records m_records;
    Mouse m_mouse;
    std::vector<HWND> m_open;   // the dialogs that were reported, the front one last
    HWND m_answered = nullptr;  // a message box whose button was pressed
    HWND m_closing = nullptr;   // a dialog whose "Close" was pressed
    int m_settle = 0;           // ticks to let pass: keys or the mouse are on their way
    int m_answeredTicks = 0;    // how long the answered box has stayed
    bool m_answerYes = true;
    bool m_reportsWaits = false;
    std::chrono::steady_clock::time_point m_callBegan{}, m_lastTick{};
    std::chrono::steady_clock::duration m_longestWait{};
};

}  // namespace lumerin
