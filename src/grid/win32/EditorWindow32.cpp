// SPDX-License-Identifier: MIT
#include "grid/win32/EditorWindow32.h"

#include <vector>

#include "framework/Index.h"
#include "grid/win32/GdiCanvas.h"
#include "grid/win32/GridWindow.h"

namespace lumerin {

EditorWindow32::~EditorWindow32() {
    if (m_window == nullptr) return;
    win32::UnhookWindow(m_window);
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
    win32::HookWindow(m_window, *this);
    m_editor->m_hWnd = FromHwnd(m_window);
    m_editor->Start(*this);
    return true;
}

EditText EditorWindow32::Read() const {
    EditText edit;
    std::vector<char> text(Index(GetWindowTextLengthA(m_window)) + 1);
    const int length = GetWindowTextA(m_window, text.data(), static_cast<int>(text.size()));
    edit.text.assign(text.data(), Index(length));
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
    // This may run inside a message of the window, so the window is destroyed by the next message.
    ShowWindow(m_window, SW_HIDE);
    PostMessageA(m_window, WM_CLOSE, 0, 0);
}

void EditorWindow32::OnGone() noexcept {
    m_window = nullptr;
    m_editor->m_hWnd = nullptr;
}

bool EditorWindow32::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    const HWND window = m_window;
    switch (message) {
        case WM_GETDLGCODE:
            result = win32::CallOwnProcedure(window, message, wParam, lParam) | DLGC_WANTALLKEYS;
            return true;
        case WM_CHAR:
            if (m_editor->OnChar(static_cast<unsigned>(wParam))) return true;
            break;
        case WM_KEYDOWN:
            if (m_editor->OnKeyDown(static_cast<unsigned>(wParam), win32::Keys())) return true;
            break;
        case WM_KILLFOCUS:
            m_editor->OnKillFocus();
            return false;
        default:
            return false;
    }
    result = win32::CallOwnProcedure(window, message, wParam, lParam);
    if (m_window != nullptr) m_editor->OnTyped();
    return true;
}

}  // namespace lumerin
