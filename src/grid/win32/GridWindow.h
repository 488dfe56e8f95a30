// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "framework/win32/WindowHook.h"
#include "grid/GridCtrl.h"
#include "grid/win32/EditorWindow32.h"
#include "grid/win32/TipWindow.h"

namespace lumerin {

namespace win32 {

// The modifier keys of the message that is being handled, and of a message of the mouse by its parameter.
KeyState Keys();
KeyState MouseKeys(WPARAM wParam);
// The time of the message that is being handled, in milliseconds.
unsigned EventTime();
bool IsButtonDown();
void PutClipboardText(const std::string& text);
std::string ClipboardText();

}  // namespace win32

// The window of a grid: its messages become the grid's events.
class GridWindow : public GridHost, private win32::MessageTarget {
  public:
    GridWindow(CGridCtrl& grid, HWND window);
    GridWindow(const GridWindow&) = delete;
    GridWindow& operator=(const GridWindow&) = delete;
    ~GridWindow() override;

    GridSize ClientSize() const override;
    std::string WindowText() const override;
    void Invalidate(const GridRect& rect) override;
    void InvalidateAll() override;
    void SetScrollBar(bool vertical, const ScrollPlace& place) override;
    void ForceScrollBar(bool vertical, bool forced) override;
    void TakeFocus() override;
    void LeaveByTab(bool backwards) override;
    void CaptureMouse(bool captured) override;
    void SetClipboard(const std::string& text) override { win32::PutClipboardText(text); }
    std::string Clipboard() const override { return win32::ClipboardText(); }
    bool OpenEditor(std::unique_ptr<CInPlaceEdit> editor, const GridRect& rect) override;
    void ShowTip(const GridRect& rect, const std::string& text, const FontRecord& font) override;
    void HideTip() override { m_tip.Hide(); }

  private:
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnGone() noexcept override { m_window = nullptr; }
    bool OnMouse(UINT message, WPARAM wParam, LPARAM lParam);
    bool OnKey(UINT message, WPARAM wParam);
    // A driver's question; true: it is one, answered or not.
    bool OnQuestion(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    LRESULT DialogCode(LPARAM lParam) const;
    void OnPaint();
    void OnScrollMessage(bool vertical, WPARAM wParam);
    void SweepEditors();

    CGridCtrl& m_grid;
    HWND m_window;
    bool m_forced[2] = {false, false};  // horizontal, vertical
    std::vector<std::unique_ptr<EditorWindow32>> m_editors;
    TipWindow m_tip;
};

}  // namespace lumerin
