// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "framework/headless/GridPeer.h"
#include "grid/GridHost.h"
#include "grid/headless/HeadlessMouse.h"

namespace lumerin {

// The window of an editor without a screen: only a text. Characters that the editor lets through are typed
// into it as an edit window would.
class HeadlessEditor : public EditorWindow {
  public:
    HeadlessEditor(CInPlaceEdit& editor, const GridRect& rect) : m_editor(editor), m_rect(rect) {}

    EditText Read() const override;
    void Write(const EditText& edit) override { m_text = edit; }
    GridRect Place() const override { return m_rect; }
    void Move(const GridRect& rect) override { m_rect = rect; }
    void TakeFocus() override {}
    void PostChar(unsigned character) override;
    void PostKey(unsigned key) override { KeyDown(key, {}); }
    void Close() override { m_closed = true; }

    void KeyDown(unsigned key, KeyState keys);
    bool IsClosed() const { return m_closed; }

  private:
    CInPlaceEdit& m_editor;
    EditText m_text;  // the start is the end that stays, the end is the caret
    GridRect m_rect;
    bool m_closed = false;
};

// A grid's window without a screen: a size, a clipboard, and keys that reach the editor while one is open.
class HeadlessGrid : public GridHost, public GridPeer {
  public:
    HeadlessGrid(CGridCtrl& grid, GridSize size) : m_grid(grid), m_size(size), m_mouse(grid, *this) {}

    GridSize ClientSize() const override;
    void SetScrollBar(bool vertical, const ScrollPlace& place) override;
    void ForceScrollBar(bool vertical, bool forced) override;
    void SetClipboard(const std::string& text) override;
    std::string Clipboard() const override;
    bool OpenEditor(std::unique_ptr<CInPlaceEdit> editor, const GridRect& rect) override;
    void TakeFocus() override;
    void LeaveByTab(bool backwards) override;
    void CaptureMouse(bool captured) override { m_captured = captured; }
    void ShowTip(const GridRect& rect, const std::string& text, const FontRecord& font) override;
    void HideTip() override;

    bool TypeCell(int row, int column, const std::string& text) override;
    bool Mouse(const MouseAction& action) override { return m_mouse.Play(action); }
    void EndTip() override;
    void GainFocus() override;
    void LoseFocus() override;
    GridView View() const override;
    int RowCount() const override;
    std::vector<std::string> RowTexts(int row) const override;

    void TypeChar(unsigned character, KeyState keys = {}) override;
    bool PressKey(unsigned key, KeyState keys = {}) override;

    HeadlessEditor* Editor() const;  // null: none is open
    const std::string& Tip() const { return m_tip; }
    const GridRect& TipPlace() const { return m_tipPlace; }  // empty: there is no tip
    bool IsCaptured() const { return m_captured; }
    const ScrollPlace& VerticalBar() const { return m_bars[1]; }
    // How often Tab left the grid, forwards and backwards.
    int LeftForwards() const { return m_leftForwards; }
    int LeftBackwards() const { return m_leftBackwards; }

  private:
    CGridCtrl& m_grid;
    GridSize m_size;
    ScrollPlace m_bars[2];  // horizontal, vertical
    bool m_forced[2] = {false, false};
    bool m_focused = false, m_captured = false;
    std::string m_tip;
    GridRect m_tipPlace;
    HeadlessMouse m_mouse;
    int m_leftForwards = 0, m_leftBackwards = 0;
    // The last editor stays until the next one opens: its own operation closes it.
    std::unique_ptr<CInPlaceEdit> m_editor;
    std::unique_ptr<HeadlessEditor> m_window;
};

}  // namespace lumerin
