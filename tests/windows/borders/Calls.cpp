// SPDX-License-Identifier: MIT
// The call itself: one at a time, over the host's window, with OLE for as long as it lasts.
#include <ole2.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <future>
#include <thread>

#include "Stage.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

enum Control {
    kCustom = IDC_CUSTOM_CASES,
    kChoose = IDC_CHOOSE_CASES,
    kGrid = IDC_CASE_GRID,
    kStudy = IDC_EMBEDMENT,
    kOk = 1
};

constexpr std::chrono::seconds kLongestRefusal{5};

std::string TitleOf(HWND window) {
    std::array<char, 200> text{};
    GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

// Whether OLE is not initialised on this thread.
bool IsOleFree() {
    const HRESULT result = OleInitialize(nullptr);
    if (SUCCEEDED(result)) OleUninitialize();
    return result == S_OK;
}

}  // namespace

void TestSecondCall(const Words& words) {
    const Module module = LoadModule();
    const HostWindow host;
    int opened = 0;
    std::string caption;
    const auto again = [&] { return module.launch(0, "Z:\\other.in", "9.9", "", "", ""); };
    Visits visits([&](HWND dialog) {
        if (++opened > 1) {
            Cancel(dialog);
            return;
        }
        caption = TitleOf(GetDlgItem(dialog, IDC_CASE_SELECTION));
        Check(again() == 0, "a second call on the dialog's thread gives 0");
        auto onThread = std::async(std::launch::async, again);
        if (onThread.wait_for(kLongestRefusal) != std::future_status::ready) {
            Check(false, "a second call on another thread does not come back");
            ExitProcess(1);
        }
        Check(onThread.get() == 0, "a second call on another thread gives 0");
        Check(opened == 1, "no second dialog opens");
        Check(TitleOf(GetDlgItem(dialog, IDC_CASE_SELECTION)) == caption, "the captions stay");
        // The text format is still chosen, and the project still open.
        Check(IsDlgButtonChecked(dialog, IDC_FORMAT_TEXT) == BST_CHECKED, "the format stays");
        Press(dialog, IDC_FULL_REPORT);
        Press(dialog, kOk);
    });
    Check(module.launch(2, words.at(0).c_str(), "4.17", "", "", "") == 1, "the first call ends by Close");
    Check(visits.boxes.empty() || visits.BoxesWith("no input file") == 0, "the project stays open");
    opened = 0;
    Check(module.launch(2, words.at(0).c_str(), "4.17", "", "", "") == 1, "the next call runs");
}

void TestOwner(const Words& words) {
    const Module module = LoadModule();
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    const HostWindow host;
    // Windows that are not the main one: a tool of it in front, and one that is not shown.
    const HWND tool = CreateWindowExA(WS_EX_TOOLWINDOW, "STATIC", "Tool", WS_POPUP | WS_CAPTION, 0, 0, 50, 50,
                                      host.Get(), nullptr, instance, nullptr);
    const HWND hidden = CreateWindowExA(0, "STATIC", "Hidden", WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, nullptr,
                                        nullptr, instance, nullptr);
    ShowWindow(tool, SW_SHOWNOACTIVATE);
    SetActiveWindow(nullptr);
    Pump();
    std::printf("active window before the call: %p\n", static_cast<void*>(GetActiveWindow()));
    Check(GetActiveWindow() == nullptr, "no window of the thread is active before the call");
    int opened = 0;
    Visits visits([&](HWND dialog) {
        ++opened;
        Check(GetWindow(dialog, GW_OWNER) == host.Get(), "the host's main window owns the dialog");
        Check(!IsWindowEnabled(host.Get()), "the host's main window is disabled");
        Press(dialog, kOk);
    });
    module.launch(2, words.at(0).c_str(), "4.17", "", "", "");
    Check(opened == 1, "the dialog opened");
    Check(IsWindowEnabled(host.Get()) != FALSE, "the host's main window is enabled again");
    DestroyWindow(tool);
    DestroyWindow(hidden);
}

namespace {

// Opens the load cases twice and copies a cell in them.
class OleVisit {
  public:
    OleVisit(const Module& module, const std::string& project) {
        module.launch(2, project.c_str(), "4.17", "", "", "");
    }
    int Refused() const { return m_visits.BoxesWith("OLE initialization failed."); }

  private:
    void Visit(HWND dialog) {
        if (const HWND grid = GetDlgItem(dialog, kGrid)) {
            Key(grid, 'A', true);
            Key(grid, 'C', true);
            Cancel(dialog);
            return;
        }
        Press(dialog, kCustom);
        Press(dialog, kChoose);
        Press(dialog, kChoose);
        Press(dialog, kOk);
    }
    Visits m_visits{[this](HWND dialog) { Visit(dialog); }};
};

}  // namespace

void TestOle(const Words& words) {
    const Module module = LoadModule();
    const HostWindow host;
    Check(IsOleFree(), "OLE is not initialised before the first call");
    Check(OleVisit(module, words.at(0)).Refused() == 0, "the first call gets OLE");
    Check(IsOleFree(), "OLE is not initialised after a call");
    // The host's own initialisation stays.
    Check(OleInitialize(nullptr) == S_OK, "the host initialises OLE");
    OleVisit(module, words.at(0));
    Check(OleInitialize(nullptr) == S_FALSE, "the host's OLE outlives a call");
    OleUninitialize();
    OleUninitialize();
    Check(IsOleFree(), "the call took nothing of the host's");
    // A thread that has COM of another kind cannot have OLE. Each grid tries again.
    Check(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)), "the host initialises COM");
    Check(OleVisit(module, words.at(0)).Refused() == 2, "each grid says that OLE cannot be had");
    CoUninitialize();
    Check(OleVisit(module, words.at(0)).Refused() == 0, "the next call gets OLE again");
    Check(IsOleFree(), "OLE is not initialised after the last call");
}

// The study on the main thread and on two others, one after the other; a registered graph control records
// what it is asked.
void TestThreads(const Words& words) {
    const Module module = LoadModule();
    const auto study = [&] {
        int opened = 0;
        Visits visits([&](HWND dialog) {
            ++opened;
            if (GetDlgItem(dialog, IDC_FULL_REPORT) == nullptr) {
                Cancel(dialog);
                return;
            }
            Press(dialog, kStudy);
            Press(dialog, kOk);
        });
        Check(module.launch(2, words.at(0).c_str(), "4.17", "", "", "") == 1, "the call ends by Close");
        Check(opened == 2, "the study opened");
        Check(IsOleFree(), "OLE is not initialised after the call");
    };
    study();
    for (int i = 0; i < 2; ++i) std::thread(study).join();
}

}  // namespace lumerin
