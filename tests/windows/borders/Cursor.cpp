// SPDX-License-Identifier: MIT
// The wait cursor: shown while a handler works, also beside a box; one that a handler leaves lasts until the
// mouse moves.
#include "Stage.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

enum Control { kCoverSheet = IDC_TITLE_PAGE, kExcel = IDC_FORMAT_EXCEL, kOk = 1 };
constexpr WORD kWait = 32514;
constexpr DWORD kMoveMilliseconds = 150;

bool IsWaiting() {
    return GetCursor() == LoadCursorA(nullptr, MAKEINTRESOURCEA(kWait));
}

void MoveTo(int x, int y) {
    SetCursorPos(x, y);
    Pump(kMoveMilliseconds);
}

// Two places beside the controls, so that the mouse really moves.
void MoveOver(HWND dialog) {
    RECT place{};
    GetWindowRect(dialog, &place);
    MoveTo(place.left + 30, place.bottom - 12);
    MoveTo(place.left + 34, place.bottom - 14);
}

void MoveAway() {
    MoveTo(0, 0);
}

}  // namespace

void TestCursor(const Words& words) {
    const Module module = LoadModule();
    MoveAway();
    HWND front = nullptr;
    Visits visits([&](HWND dialog) {
        front = dialog;
        MoveOver(dialog);
        Check(!IsWaiting(), "a call starts without a wait cursor");
        MoveAway();
        Press(dialog, kExcel);
        Press(dialog, kCoverSheet);
        Check(IsWaiting(), "the cover sheet leaves its wait cursor");
        MoveOver(dialog);
        Check(!IsWaiting(), "it is gone with the first move of the mouse");
        MoveAway();
        Press(dialog, kOk);
    });
    visits.onBox = [&](HWND) {
        MoveOver(front);
        Check(IsWaiting(), "it is up beside the box");
        // A control asks the dialog before it puts up its own.
        const HWND button = GetDlgItem(front, kCoverSheet);
        SendMessageA(button, WM_SETCURSOR, reinterpret_cast<WPARAM>(button),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        Check(IsWaiting(), "it is up over a button too");
        MoveAway();
    };
    for (int call = 0; call < 2; ++call) module.launch(0, words.at(0).c_str(), "4.17", "", "", "");
    Check(visits.boxes.size() == 2, "the cover sheet refuses the spreadsheet in both calls");
}

}  // namespace lumerin
