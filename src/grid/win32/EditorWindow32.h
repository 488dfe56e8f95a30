// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "framework/win32/WindowHook.h"
#include "grid/InPlaceEdit.h"

namespace lumerin {

// A real edit window as the child of the grid. Characters and keys pass through the editor first and reach
// the edit window only when it lets them through.
class EditorWindow32 : public EditorWindow, private win32::MessageTarget {
  public:
    EditorWindow32(HWND grid, std::unique_ptr<CInPlaceEdit> editor)
        : m_grid(grid), m_editor(std::move(editor)) {}
    EditorWindow32(const EditorWindow32&) = delete;
    EditorWindow32& operator=(const EditorWindow32&) = delete;
    ~EditorWindow32() override;

    bool Create(const GridRect& rect, const FontRecord& font);
    bool IsGone() const { return m_window == nullptr; }

    EditText Read() const override;
    void Write(const EditText& edit) override;
    GridRect Place() const override { return m_rect; }
    void Move(const GridRect& rect) override;
    void TakeFocus() override { ::SetFocus(m_window); }
    void PostChar(unsigned character) override { PostMessageA(m_window, WM_CHAR, character, 1); }
    void PostKey(unsigned key) override { PostMessageA(m_window, WM_KEYDOWN, key, 1); }
    void Close() override;

  private:
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnGone() noexcept override;

    HWND m_grid;
    HWND m_window = nullptr;
    GridRect m_rect;
    std::unique_ptr<CInPlaceEdit> m_editor;
};

}  // namespace lumerin
