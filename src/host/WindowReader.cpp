// SPDX-License-Identifier: MIT
#include "host/WindowReader.h"

#include <algorithm>
#include <array>

#include "framework/Index.h"
#include "host/GridReader.h"

namespace lumerin {

namespace {

constexpr int kOk = 1, kCancel = 2, kYes = 6, kNo = 7;  // identifiers of the buttons of message boxes
constexpr int kLastBoxButton = 11;
// Numbers of the icons of message boxes.
constexpr WORD kHand = 32513, kQuestion = 32514, kExclamation = 32515;

std::string ClassOf(HWND window) {
    std::array<char, 64> name{};
    GetClassNameA(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

bool IsClass(HWND window, const char* name) {
    return lstrcmpiA(ClassOf(window).c_str(), name) == 0;
}

BOOL CALLBACK TakeFront(HWND window, LPARAM found) {
    if (!IsClass(window, "#32770") || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

DWORD TypeOf(HWND control, DWORD mask) {
    return static_cast<DWORD>(GetWindowLongA(control, GWL_STYLE)) & mask;
}

MessageIcon IconOf(HWND control) {
    const auto icon = reinterpret_cast<HICON>(SendMessageA(control, STM_GETICON, 0, 0));
    const auto is = [icon](WORD number) { return icon == LoadIconA(nullptr, MAKEINTRESOURCEA(number)); };
    if (icon == nullptr) return MessageIcon::none;
    if (is(kExclamation)) return MessageIcon::exclamation;
    if (is(kQuestion)) return MessageIcon::question;
    return is(kHand) ? MessageIcon::error : MessageIcon::none;
}

bool IsIconText(HWND control) {
    return TypeOf(control, SS_TYPEMASK) == SS_ICON;
}

ControlKind ButtonKind(HWND control) {
    switch (TypeOf(control, BS_TYPEMASK)) {
        case BS_GROUPBOX:
            return ControlKind::group;
        case BS_AUTORADIOBUTTON:
        case BS_RADIOBUTTON:
            return ControlKind::radio;
        case BS_AUTOCHECKBOX:
        case BS_CHECKBOX:
            return ControlKind::check;
        default:
            return ControlKind::button;
    }
}

struct KindOfClass {
    const char* name;
    ControlKind kind;
};

constexpr KindOfClass kKinds[] = {
    {"Static", ControlKind::text},      {"Edit", ControlKind::edit},
    {"ComboBox", ControlKind::combo},   {"msctls_updown32", ControlKind::spin},
    {"MFCGridCtrl", ControlKind::grid},
};

}  // namespace

std::string TextOf(HWND window) {
    const auto length = Index(std::max(GetWindowTextLengthA(window), 0));
    std::string text(length + 1, '\0');
    const int got = GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
    text.resize(Index(std::max(got, 0)));
    return text;
}

bool HasStyle(HWND window, DWORD style) {
    return TypeOf(window, style) != 0;
}

HWND FrontDialog() {
    HWND front = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeFront, reinterpret_cast<LPARAM>(&front));
    return front;
}

bool IsMessageBox(HWND dialog) {
    const std::vector<HWND> controls = ControlsOf(dialog);
    return std::all_of(controls.begin(), controls.end(), [](HWND control) {
        const int id = GetDlgCtrlID(control);
        return KindOf(control) == ControlKind::text ||
               (KindOf(control) == ControlKind::button && id >= kOk && id <= kLastBoxButton);
    });
}

MessageBoxState ReadMessageBox(HWND box) {
    MessageBoxState state;
    state.title = TextOf(box);
    for (const HWND control : ControlsOf(box)) {
        if (KindOf(control) != ControlKind::text) continue;
        if (IsIconText(control)) {
            state.icon = IconOf(control);
        } else {
            state.text = TextOf(control);
        }
    }
    // The platform keeps the buttons that a box does not use as hidden ones.
    const auto button = [box](int id) {
        const HWND control = GetDlgItem(box, id);
        return control != nullptr && HasStyle(control, WS_VISIBLE) ? control : nullptr;
    };
    state.yes = button(kYes);
    state.no = button(kNo);
    state.ok = button(kOk);
    // A box with one button may call it Cancel.
    if (state.ok == nullptr) state.ok = button(kCancel);
    return state;
}

std::vector<HWND> ControlsOf(HWND dialog) {
    std::vector<HWND> controls;
    for (HWND at = GetWindow(dialog, GW_CHILD); at != nullptr; at = GetWindow(at, GW_HWNDNEXT)) {
        controls.push_back(at);
    }
    return controls;
}

ControlKind KindOf(HWND control) {
    if (IsClass(control, "Button")) return ButtonKind(control);
    for (const KindOfClass& kind : kKinds) {
        if (IsClass(control, kind.name)) return kind.kind;
    }
    return ControlKind::graph;
}

ControlState ReadControl(HWND control) {
    ControlState state;
    state.id = GetDlgCtrlID(control);
    state.kind = KindOf(control);
    state.text = TextOf(control);
    state.enabled = IsWindowEnabled(control) != FALSE;
    state.visible = HasStyle(control, WS_VISIBLE);
    if (state.kind == ControlKind::radio || state.kind == ControlKind::check) {
        state.checked = SendMessageA(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    if (state.kind == ControlKind::combo) {
        state.selection = static_cast<int>(SendMessageA(control, CB_GETCURSEL, 0, 0));
    }
    return state;
}

HWND FocusedControl(HWND dialog) {
    HWND control = GetFocus();
    while (control != nullptr && GetParent(control) != dialog) control = GetParent(control);
    return control;
}

FocusState ReadFocus(HWND dialog) {
    FocusState state;
    const HWND control = FocusedControl(dialog);
    if (control == nullptr) return state;
    state.id = GetDlgCtrlID(control);
    state.kind = KindOf(control);
    state.text = TextOf(control);
    if (state.kind == ControlKind::edit) {
        DWORD start = 0, end = 0;
        SendMessageA(control, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        state.start = static_cast<int>(start);
        state.end = static_cast<int>(end);
    }
    if (state.kind == ControlKind::grid) state.grid = gridreader::ReadView(control);
    return state;
}

}  // namespace lumerin
