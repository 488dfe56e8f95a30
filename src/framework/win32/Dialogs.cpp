// SPDX-License-Identifier: MIT
#include "framework/win32/Windows32.h"
// This header needs windows.h before it.
#include <commctrl.h>

#include "framework/Dialog.h"
#include "framework/win32/Bindings.h"
#include "framework/win32/Failures.h"

namespace lumerin {

// Modal dialogs from the module's resource templates. The identifier of a dialog's control list is that of
// its template; both are made from the same list.

namespace {

// A dialog that is being run. It is on the stack of the call that runs it, so that opening a dialog allocates
// no memory.
class RunningDialog {
  public:
    explicit RunningDialog(CDialog& shown) : dialog(shown), below(Front()) { Front() = this; }
    RunningDialog(const RunningDialog&) = delete;
    RunningDialog& operator=(const RunningDialog&) = delete;
    ~RunningDialog() { Front() = below; }

    static RunningDialog*& Front() {
        static RunningDialog* front = nullptr;
        return front;
    }
    // Null: its window is not made yet, or is destroyed.
    HWND window = nullptr;
    CDialog& dialog;
    RunningDialog* const below;
};

// Runs one step of the dialog; an exception is reported.
template <class Step>
void RunHandler(CDialog& dialog, const Step& step) noexcept {
    const win32::HandlerScope handler;
    RunGuarded(dialog, step);
}

CDialog* DialogOf(HWND window) {
    return reinterpret_cast<CDialog*>(GetWindowLongPtrA(window, DWLP_USER));
}

// The notice for the notification code of a command from this kind of control. False: the dialogs ignore the
// code.
bool ReadNotice(ControlKind kind, unsigned code, Notice& notice) {
    switch (kind) {
        case ControlKind::edit:
            notice = code == EN_CHANGE ? Notice::textChanged : Notice::focusLost;
            return code == EN_CHANGE || code == EN_KILLFOCUS;
        case ControlKind::combo:
            notice = Notice::selectionChanged;
            return code == CBN_SELCHANGE;
        default:
            notice = Notice::clicked;
            return code == BN_CLICKED;
    }
}

// The Return and Esc keys send the identifiers of OK and Cancel even where the dialog has no such control.
ControlKind KindOf(const DialogTemplate& spec, int id) {
    for (const ControlSpec& control : spec.controls) {
        if (control.id == id) return control.kind;
    }
    return ControlKind::button;
}

bool OnCommandMessage(CDialog& dialog, WPARAM wParam) {
    const int id = static_cast<short>(LOWORD(wParam));
    Notice notice = Notice::clicked;
    if (!ReadNotice(KindOf(dialog.Spec(), id), HIWORD(wParam), notice)) return false;
    // The message box of a failure may cause the loss of focus.
    if (notice != Notice::focusLost) win32::NoteMessage(WM_COMMAND);
    bool handled = false;
    RunHandler(dialog, [&] { handled = dialog.OnCommand(id, notice); });
    return handled;
}

// The module has no icon, so the window gets none; the window and its minimised form show the platform's.
void OnInit(HWND window, LPARAM lParam) {
    auto& running = *reinterpret_cast<RunningDialog*>(lParam);
    CDialog& dialog = running.dialog;
    SetWindowLongPtrA(window, DWLP_USER, reinterpret_cast<LONG_PTR>(&dialog));
    dialog.m_hWnd = FromHwnd(window);
    running.window = window;
    SetWindowTextA(window, dialog.Spec().title);
    RunHandler(dialog, [&dialog] { dialog.OnInitDialog(); });
}

void OnDestroy(HWND window, CDialog& dialog) {
    win32::UnbindControls(window);
    dialog.m_hWnd = nullptr;
    for (RunningDialog* at = RunningDialog::Front(); at != nullptr; at = at->below) {
        if (at->window == window) at->window = nullptr;
    }
}

bool OnHelp(CDialog& dialog, LPARAM lParam) {
    const int id = static_cast<short>(reinterpret_cast<const HELPINFO*>(lParam)->iCtrlId);
    bool handled = false;
    RunHandler(dialog, [&] { handled = dialog.OnHelpInfo(id); });
    return handled;
}

void OnReportFailure(CDialog& dialog) {
    RunHandler(dialog, win32::ThrowKept);
    win32::EndReport();
}

INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        OnInit(window, lParam);
        return TRUE;  // the focus goes to the first control
    }
    CDialog* dialog = DialogOf(window);
    if (dialog == nullptr) return FALSE;
    switch (message) {
        case WM_COMMAND:
            return OnCommandMessage(*dialog, wParam) ? TRUE : FALSE;
        case WM_HELP:
            return OnHelp(*dialog, lParam) ? TRUE : FALSE;
        case WM_MOUSEMOVE:
            RunHandler(*dialog, [dialog] { dialog->OnMouseMove(); });
            return FALSE;
        case win32::kReportFailure:
            OnReportFailure(*dialog);
            return TRUE;
        case WM_SETCURSOR:
            if (backend::WaitCursorDepth() == 0) return FALSE;
            SetCursor(LoadCursorA(nullptr, MAKEINTRESOURCEA(kWaitCursor)));
            SetWindowLongPtrA(window, DWLP_MSGRESULT, TRUE);
            return TRUE;
        case WM_DESTROY:
            OnDestroy(window, *dialog);
            return FALSE;
        default:
            return FALSE;
    }
}

BOOL CALLBACK TakeMainWindow(HWND window, LPARAM found) noexcept {
    // A window with an owner is a tool window.
    if (!IsWindowVisible(window) || GetWindow(window, GW_OWNER) != nullptr) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// The host's main window on this thread; null when it has no visible one.
HWND MainWindow() {
    HWND window = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeMainWindow, reinterpret_cast<LPARAM>(&window));
    return window;
}

}  // namespace

namespace win32 {

HINSTANCE ModuleInstance() {
    HMODULE module = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCSTR>(&ModuleInstance), &module);
    return module;
}

HWND FrontDialog() {
    const RunningDialog* at = RunningDialog::Front();
    while (at != nullptr && at->window == nullptr) at = at->below;
    return at == nullptr ? nullptr : at->window;
}

HWND OwnerWindow() {
    if (const HWND dialog = FrontDialog()) return dialog;
    const HWND active = GetActiveWindow();
    return active != nullptr && IsWindowVisible(active) ? active : MainWindow();
}

}  // namespace win32

namespace backend {

int RunDialog(CDialog& dialog) {
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&controls);
    const auto resource = static_cast<WORD>(dialog.Spec().id);
    RunningDialog running(dialog);
    const INT_PTR result =
        DialogBoxParamA(win32::ModuleInstance(), MAKEINTRESOURCEA(resource), win32::OwnerWindow(),
                        DialogProcedure, reinterpret_cast<LPARAM>(&running));
    return static_cast<int>(result);
}

void EndDialog(WindowHandle dialog, int result) {
    if (dialog != nullptr) ::EndDialog(ToHwnd(dialog), result);
}

}  // namespace backend

}  // namespace lumerin
