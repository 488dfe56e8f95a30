// SPDX-License-Identifier: MIT
#include "framework/win32/Failures.h"

#include <exception>
#include <utility>

namespace lumerin {

namespace {

struct Report {
    std::exception_ptr kept;
    bool waits = false;     // from the failure to the end of its box
    bool reported = false;  // since the last thing that the user did
};

Report& Pending() {
    static Report report;
    return report;
}

// The release of a key or button is not an action of the user: the key that closes a box is released over the
// dialog.
bool IsUserAction(UINT message) {
    switch (message) {
        case WM_KEYDOWN:
        case WM_CHAR:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_MOUSEWHEEL:
        case WM_VSCROLL:
        case WM_HSCROLL:
        case WM_COMMAND:
            return true;
        default:
            return false;
    }
}

}  // namespace

namespace win32 {

void NoteMessage(UINT message) noexcept {
    if (IsUserAction(message)) Pending().reported = false;
}

void ReportLater() noexcept {
    Report& report = Pending();
    if (report.waits || report.reported) return;
    report.kept = std::current_exception();
    report.reported = true;
    const HWND dialog = FrontDialog();
    report.waits = dialog != nullptr && PostMessageA(dialog, kReportFailure, 0, 0) != FALSE;
    if (!report.waits) report.kept = nullptr;
}

void ThrowKept() {
    if (Pending().kept != nullptr) std::rethrow_exception(std::exchange(Pending().kept, nullptr));
}

void EndReport() noexcept {
    Pending().waits = false;
}

void ForgetFailures() noexcept {
    Pending() = {};
}

}  // namespace win32

}  // namespace lumerin
