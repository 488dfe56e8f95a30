#include "grid/win32/EditorWindow32.h"

// The common controls want windows.h before them.
#include <commctrl.h>

#include <vector>

#include "grid/win32/GdiCanvas.h"
#include "grid/win32/GridWindow.h"

namespace {

constexpr UINT_PTR kSubclass = 1;

}  // namespace

EditorWindow32::~EditorWindow32() {
    if (m_window == nullptr) return;
    RemoveWindowSubclass(m_window, Procedure, kSubclass);
    DestroyWindow(m_window);
}

bool EditorWindow32::Create(const GridRect& rect, const FontRecord& font) {
    m_rect = rect;
    const auto id = reinterpret_cast<HMENU>(static_cast<INT_PTR>(kEditorId));
    m_window =
        CreateWindowExA(0, "EDIT", "", WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, rect.left,
                        rect.top, rect.Width(), rect.Height(), m_grid, id, win32::ModuleInstance(), nullptr);
    if (m_window == nullptr) return false;
    SendMessageA(m_window, WM_SETFONT, reinterpret_cast<WPARAM>(win32::FontFor(font)), FALSE);
    SetWindowSubclass(m_window, Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
    m_editor->m_hWnd = FromHwnd(m_window);
    m_editor->Start(*this);
    return true;
}

EditText EditorWindow32::Read() const {
    EditText edit;
    std::vector<char> text(static_cast<std::size_t>(GetWindowTextLengthA(m_window)) + 1);
    const int length = GetWindowTextA(m_window, text.data(), static_cast<int>(text.size()));
    edit.text.assign(text.data(), static_cast<std::size_t>(length));
    DWORD start = 0, end = 0;
    SendMessageA(m_window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    edit.start = static_cast<int>(start);
    edit.end = static_cast<int>(end);
    return edit;
}

void EditorWindow32::Write(const EditText& edit) {
    SetWindowTextA(m_window, edit.text.c_str());
    SendMessageA(m_window, EM_SETSEL, static_cast<WPARAM>(edit.start), static_cast<LPARAM>(edit.end));
}

void EditorWindow32::Move(const GridRect& rect) {
    m_rect = rect;
    MoveWindow(m_window, rect.left, rect.top, rect.Width(), rect.Height(), TRUE);
}

void EditorWindow32::Close() {
    // This may run inside one of the window's own messages: it goes with the next one.
    ShowWindow(m_window, SW_HIDE);
    PostMessageA(m_window, WM_CLOSE, 0, 0);
}

LRESULT CALLBACK EditorWindow32::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR id, DWORD_PTR data) {
    auto& self = *reinterpret_cast<EditorWindow32*>(data);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, Procedure, id);
        self.m_window = nullptr;
        self.m_editor->m_hWnd = nullptr;
        return DefSubclassProc(window, message, wParam, lParam);
    }
    return self.OnMessage(message, wParam, lParam);
}

LRESULT EditorWindow32::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = m_window;
    switch (message) {
        case WM_GETDLGCODE:
            return DefSubclassProc(window, message, wParam, lParam) | DLGC_WANTALLKEYS;
        case WM_CHAR:
            if (m_editor->OnChar(static_cast<unsigned>(wParam))) return 0;
            break;
        case WM_KEYDOWN:
            if (m_editor->OnKeyDown(static_cast<unsigned>(wParam), win32::Keys())) return 0;
            break;
        case WM_KILLFOCUS:
            m_editor->OnKillFocus();
            break;
        default:
            return DefSubclassProc(window, message, wParam, lParam);
    }
    const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
    if (m_window != nullptr && message != WM_KILLFOCUS) m_editor->OnTyped();
    return result;
}
