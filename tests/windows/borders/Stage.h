// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "host/HostWindows.h"

namespace lumerin {

// What the tests of the module's borders share: a host of their own with a main window, which calls the
// module and works on its dialogs from inside their modal loops.

using ModuleExport = unsigned(WINAPI*)(int format, const char* input, const char* version, const char* textA,
                                       const char* textB, const char* argument);

struct Module {
    HMODULE handle = nullptr;
    ModuleExport launch = nullptr;
};

// The module beside this program. Ends the process when it is not there.
Module LoadModule();

// Checks a condition, and prints the text when it does not hold.
void Check(bool holds, const std::string& what);
int FailedChecks();

// The host's main window, shown without becoming the active one.
class HostWindow {
  public:
    HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow() { DestroyWindow(m_window); }
    HWND Get() const { return m_window; }

  private:
    HWND m_window;
};

// Handles the messages that wait, and those that arrive within that many milliseconds.
void Pump(DWORD milliseconds = 0);

// While it exists, it answers the boxes that open on this thread and visits each dialog once, when its loop
// has nothing else to do.
class Visits {
  public:
    explicit Visits(std::function<void(HWND dialog)> visit);
    Visits(const Visits&) = delete;
    Visits& operator=(const Visits&) = delete;
    ~Visits();

    // Called for a box before it is answered.
    std::function<void(HWND box)> onBox;
    std::vector<std::string> boxes;  // their texts

    int BoxesWith(const std::string& text) const;
    void Tick();

  private:
    std::function<void(HWND)> m_visit;
    std::set<HWND> m_visited;
    UINT_PTR m_timer = 0;
};

// Presses a button and returns when its handler is done.
void Press(HWND dialog, int button);
// A key on a window, with the modifiers as the window's thread sees them.
void Key(HWND window, WPARAM key, bool control = false, bool shift = false);
// Closes the dialog by its Cancel.
void Cancel(HWND dialog);

constexpr const char* kNoMemory = "There is not enough memory for this operation.";

// The tests, by the word on the command line. Each gets the words after its own.
using Words = std::vector<std::string>;
void TestAllocations(const Words& words);
void TestFullProcess(const Words& words);
void TestTraps(const Words& words);
void TestSecondCall(const Words& words);
void TestOwner(const Words& words);
void TestOle(const Words& words);
void TestThreads(const Words& words);
void TestCursor(const Words& words);
void TestPreload(const Words& words);
void TestPrinter(const Words& words);
void TestDrawing(const Words& words);
void TestCopiedText(const Words& words);

}  // namespace lumerin
