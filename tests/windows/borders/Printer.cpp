// SPDX-License-Identifier: MIT
// A machine with a default printer: the module works on a copy of the printer's settings and changes nothing
// else.
#include "host/HostWindows.h"
// This header needs windows.h before it.
#include <winspool.h>

#include <cstring>

#include "Imports.h"
#include "Stage.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

constexpr const char* kName = "Plotter";
constexpr int kClose = 1;
constexpr LONG kRead = 1;  // the settings are in the copy

// The system's part in it. The printer's driver has no bytes of its own after the settings.
struct System {
    HANDLE handle = nullptr;  // of the opened printer; null: it can't be opened
    int opened = 0, closed = 0, asked = 0;
    bool wrongPrinter = false;
    DEVMODEA* copy = nullptr;  // where the module had the settings put, and keeps them
};

System& Machine() {
    static System system;
    return system;
}

BOOL WINAPI FakeDefaultPrinter(LPSTR name, LPDWORD size) {
    const auto needed = static_cast<DWORD>(std::strlen(kName) + 1);
    const bool fits = name != nullptr && *size >= needed;
    *size = needed;
    if (fits) std::memcpy(name, kName, needed);
    return fits ? TRUE : FALSE;
}

BOOL WINAPI FakeOpen(LPSTR name, LPHANDLE handle, LPPRINTER_DEFAULTSA) {
    if (std::strcmp(name, kName) != 0 || Machine().handle == nullptr) return FALSE;
    ++Machine().opened;
    *handle = Machine().handle;
    return TRUE;
}

BOOL WINAPI FakeClose(HANDLE handle) {
    if (handle == Machine().handle) ++Machine().closed;
    return TRUE;
}

LONG WINAPI FakeProperties(HWND, HANDLE printer, LPSTR name, PDEVMODEA out, PDEVMODEA in, DWORD mode) {
    System& system = Machine();
    ++system.asked;
    if (printer != system.handle || std::strcmp(name, kName) != 0 || in != nullptr ||
        (mode & DM_IN_PROMPT) != 0)
        system.wrongPrinter = true;
    if (mode == 0) return static_cast<LONG>(sizeof(DEVMODEA));
    std::memset(out, 0, sizeof *out);
    out->dmSize = sizeof *out;
    out->dmFields = DM_PAPERSIZE;
    out->dmOrientation = DMORIENT_PORTRAIT;
    system.copy = out;
    return kRead;
}

void Hook(HMODULE module) {
    Check(ReplaceImport(module, "GetDefaultPrinterA", &FakeDefaultPrinter) &&
              ReplaceImport(module, "OpenPrinterA", &FakeOpen) &&
              ReplaceImport(module, "ClosePrinter", &FakeClose) &&
              ReplaceImport(module, "DocumentPropertiesA", &FakeProperties),
          "the module asks the system for its printer");
}

// The table that sets the printer to landscape, once.
void MakePileHeads(const Module& module, const std::string& project) {
    Visits visits([](HWND dialog) {
        Press(dialog, IDC_MAX_AXIAL);
        Press(dialog, kClose);
    });
    module.launch(2, project.c_str(), "4.17", "", "", "");
}

}  // namespace

void TestPrinter(const Words& words) {
    const Module module = LoadModule();
    Hook(module.handle);
    System& system = Machine();
    MakePileHeads(module, words.at(0));
    Check(system.opened == 0 && system.asked == 0, "a printer that can't be opened is asked nothing");
    int printer = 0;
    system.handle = &printer;
    MakePileHeads(module, words.at(0));
    Check(system.opened == 1 && system.closed == 1, "the printer is opened once, and closed");
    Check(!system.wrongPrinter, "the questions are for the default printer, without a dialog");
    if (system.copy == nullptr) {
        Check(false, "the printer's settings are read");
        return;
    }
    Check(system.copy->dmOrientation == DMORIENT_LANDSCAPE, "the module's copy is landscape");
    Check(system.copy->dmFields == (DM_PAPERSIZE | DM_ORIENTATION),
          "the copy says that it has an orientation");
    const int asked = system.asked;
    system.copy->dmOrientation = DMORIENT_PORTRAIT;
    MakePileHeads(module, words.at(0));
    Check(system.asked == asked, "the copy is kept from call to call");
    Check(system.copy->dmOrientation == DMORIENT_LANDSCAPE, "each table of that kind sets it");
}

}  // namespace lumerin
