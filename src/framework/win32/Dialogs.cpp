#include "framework/win32/Windows32.h"
// The common controls want windows.h before them.
#include <commctrl.h>

#include <vector>

#include "framework/Dialog.h"
#include "framework/win32/Bindings.h"

// Modal dialogs from the module's resource templates. The identifier of a dialog's control list is that of
// its template; both are made from the same list.

namespace {

// The dialogs that are open, the front one last.
std::vector<HWND>& OpenDialogs() {
    static std::vector<HWND> dialogs;
    return dialogs;
}

CDialog* DialogOf(HWND window) {
    return reinterpret_cast<CDialog*>(GetWindowLongPtrA(window, DWLP_USER));
}

// What the notification code of a command means for this kind of control. False: nothing to the dialogs.
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
ControlKind KindOf(const DialogSpec& spec, int id) {
    for (const ControlSpec& control : spec.controls) {
        if (control.id == id) return control.kind;
    }
    return ControlKind::button;
}

bool OnCommandMessage(CDialog& dialog, WPARAM wParam) {
    const int id = static_cast<short>(LOWORD(wParam));
    Notice notice = Notice::clicked;
    if (!ReadNotice(KindOf(dialog.Spec(), id), HIWORD(wParam), notice)) return false;
    bool handled = false;
    RunGuarded(dialog, [&] { handled = dialog.OnCommand(id, notice); });
    return handled;
}

// The module carries no icon, so the window gets none: it shows the platform's, and so does its minimised
// form.
void OnInit(HWND window, LPARAM lParam) {
    CDialog& dialog = *reinterpret_cast<CDialog*>(lParam);
    SetWindowLongPtrA(window, DWLP_USER, lParam);
    dialog.m_hWnd = FromHwnd(window);
    OpenDialogs().push_back(window);
    SetWindowTextA(window, dialog.Spec().title);
    RunGuarded(dialog, [&dialog] { dialog.OnInitDialog(); });
}

void OnDestroy(HWND window, CDialog& dialog) {
    win32::UnbindControls(window);
    dialog.m_hWnd = nullptr;
    std::erase(OpenDialogs(), window);
}

INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        OnInit(window, lParam);
        return TRUE;  // the focus goes to the first control
    }
    CDialog* dialog = DialogOf(window);
    if (dialog == nullptr) return FALSE;
    switch (message) {
        case WM_COMMAND:
            return OnCommandMessage(*dialog, wParam) ? TRUE : FALSE;
        case WM_HELP: {
            const int id = static_cast<short>(reinterpret_cast<const HELPINFO*>(lParam)->iCtrlId);
            bool handled = false;
            RunGuarded(*dialog, [&] { handled = dialog->OnHelpInfo(id); });
            return handled ? TRUE : FALSE;
        }
        case WM_MOUSEMOVE:
            RunGuarded(*dialog, [dialog] { dialog->OnMouseMove(); });
            return FALSE;
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

}  // namespace

namespace win32 {

HINSTANCE ModuleInstance() {
    HMODULE module = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCSTR>(&ModuleInstance), &module);
    return module;
}

HWND OwnerWindow() {
    return OpenDialogs().empty() ? GetActiveWindow() : OpenDialogs().back();
}

}  // namespace win32

namespace backend {

int RunDialog(CDialog& dialog) {
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&controls);
    const auto resource = static_cast<WORD>(dialog.Spec().id);
    const INT_PTR result =
        DialogBoxParamA(win32::ModuleInstance(), MAKEINTRESOURCEA(resource), win32::OwnerWindow(),
                        DialogProcedure, reinterpret_cast<LPARAM>(&dialog));
    return static_cast<int>(result);
}

void EndDialog(WindowHandle dialog, int result) {
    if (dialog != nullptr) ::EndDialog(ToHwnd(dialog), result);
}

}  // namespace backend
