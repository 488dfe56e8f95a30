// SPDX-License-Identifier: MIT
#pragma once

#include <new>

#include "framework/win32/Windows32.h"

namespace lumerin {

// The functions around all code that the platform calls back: window procedures, and methods that other
// programs call. No exception leaves them, and they allocate no memory themselves.
namespace win32 {

// Called for each message of the platform. A failure is reported again after the user has acted. Before that,
// a message that the platform repeats by itself, such as painting, is reported once; otherwise the boxes
// would never end.
void NoteMessage(UINT message) noexcept;

// Keeps the exception that is being handled; to be called from a catch clause. The front dialog reports it
// after the platform's call, because a message box inside a paint or a change of focus would disturb that.
void ReportLater() noexcept;

// The number of the message by which the front dialog is asked to report.
inline constexpr UINT kReportFailure = WM_APP + 1;
// Throws what ReportLater kept; nothing happens when there is nothing.
void ThrowKept();
// The box of the failure was closed: the next failure may be reported.
void EndReport() noexcept;
// Forgets what was kept. Called between two calls of the export.
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

// Runs one method that another program calls; a failure is returned to that program, which reports it.
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
