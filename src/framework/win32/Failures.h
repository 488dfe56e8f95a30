// SPDX-License-Identifier: MIT
#pragma once

#include <new>

#include "framework/win32/Windows32.h"

namespace lumerin {

// The border between the platform and the code that it calls back: procedures of windows, and methods that
// other programs call. No exception crosses it, and the border itself takes no memory.
namespace win32 {

// A message of the platform is being worked off. What the user did may be reported again when it fails; what
// the platform repeats by itself, such as painting, is reported once until then, or the user would never get
// out of the boxes.
void NoteMessage(UINT message) noexcept;

// Keeps the exception that is being handled; to be called from a catch clause. The front dialog reports it
// when the platform's call is over, as a box inside of a paint or a change of focus would disturb it.
void ReportLater() noexcept;

// The number of the message by which the front dialog is asked to report.
inline constexpr UINT kReportFailure = WM_APP + 1;
// Throws what ReportLater kept; nothing happens when there is nothing.
void ThrowKept();
// The box of the failure is gone: the next one may be reported.
void EndReport() noexcept;
// Forgets what was kept; between two calls of the export.
void ForgetFailures() noexcept;

// Runs one step that the platform called for. False: it threw, and that is reported later.
template <class Step>
bool RunBorder(Step&& step) noexcept {
    try {
        step();
        return true;
    } catch (...) {
        ReportLater();
        return false;
    }
}

// One method that another program calls: a failure is that program's to report.
template <class Step>
HRESULT RunMethod(Step&& step) noexcept {
    try {
        step();
        return S_OK;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

}  // namespace win32

}  // namespace lumerin
