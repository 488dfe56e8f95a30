// SPDX-License-Identifier: MIT
#include "framework/win32/Windows32.h"

namespace lumerin {

// Message boxes and the wait cursor.

namespace {

UINT IconStyle(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::exclamation:
            return MB_ICONEXCLAMATION;
        case MessageIcon::question:
            return MB_ICONQUESTION;
        case MessageIcon::error:
            return MB_ICONERROR;
        default:
            return 0;
    }
}

struct WaitCursor {
    int depth = 0;
    HCURSOR before = nullptr;
    int handlers = 0;  // running handlers; one can run inside a box or dialog of another
};

WaitCursor& Waiting() {
    static WaitCursor cursor;
    return cursor;
}

}  // namespace

namespace backend {

MessageAnswer ShowMessage(const std::string& text, const std::string& title, MessageIcon icon,
                          MessageButtons buttons) {
    const UINT style = IconStyle(icon) | (buttons == MessageButtons::yesNo ? MB_YESNO : MB_OK);
    switch (MessageBoxA(win32::OwnerWindow(), text.c_str(), title.c_str(), style)) {
        case IDYES:
            return MessageAnswer::yes;
        case IDNO:
            return MessageAnswer::no;
        default:
            return MessageAnswer::ok;
    }
}

void BeginWaitCursor() {
    WaitCursor& cursor = Waiting();
    const HCURSOR before = SetCursor(LoadCursorA(nullptr, MAKEINTRESOURCEA(kWaitCursor)));
    if (cursor.depth++ == 0) cursor.before = before;
}

void EndWaitCursor() {
    WaitCursor& cursor = Waiting();
    if (cursor.depth == 0) return;
    if (--cursor.depth == 0) SetCursor(cursor.before);
}

int WaitCursorDepth() {
    return Waiting().depth;
}

}  // namespace backend

namespace win32 {

void ResetWaitCursor() noexcept {
    Waiting() = {};
}

HandlerScope::HandlerScope() {
    ++Waiting().handlers;
}

HandlerScope::~HandlerScope() {
    WaitCursor& cursor = Waiting();
    if (--cursor.handlers == 0) cursor.depth = 0;
}

}  // namespace win32

}  // namespace lumerin
