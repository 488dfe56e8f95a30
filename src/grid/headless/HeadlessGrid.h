#pragma once

#include <memory>
#include <string>
#include <vector>

#include "framework/headless/GridPeer.h"
#include "grid/GridHost.h"

// The window of an editor without a screen: the bare text. Characters that the editor lets through are typed
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
    void Close() override { m_bClosed = true; }

    void KeyDown(unsigned key, KeyState keys);
    bool IsClosed() const { return m_bClosed; }

  private:
    CInPlaceEdit& m_editor;
    EditText m_text;  // the start is the end that stays, the end is the caret
    GridRect m_rect;
    bool m_bClosed = false;
};

// A grid's window without a screen: a size, a clipboard, and keys that reach the editor while one is open.
class HeadlessGrid : public GridHost, public GridPeer {
  public:
    HeadlessGrid(CGridCtrl& grid, GridSize size) : m_grid(grid), m_size(size) {}

    GridSize ClientSize() const override;
    void SetScrollBar(bool vertical, const ScrollPlace& place) override;
    void ForceScrollBar(bool vertical, bool forced) override;
    void SetClipboard(const std::string& text) override;
    std::string Clipboard() const override;
    bool OpenEditor(std::unique_ptr<CInPlaceEdit> editor, const GridRect& rect) override;
    void LeaveByTab(bool backwards) override;
    void ShowTip(const GridRect& rect, const std::string& text, const FontRecord& font) override;
    void HideTip() override { m_sTip.clear(); }

    bool TypeCell(int row, int column, const std::string& text) override;
    bool Hover(int row, int column) override;
    void GainFocus() override;
    void LoseFocus() override;
    GridView View() const override;
    int RowCount() const override;
    std::vector<std::string> RowTexts(int row) const override;

    void TypeChar(unsigned character, KeyState keys = {}) override;
    bool PressKey(unsigned key, KeyState keys = {}) override;

    HeadlessEditor* Editor() const;  // null: none is open
    const std::string& Tip() const { return m_sTip; }
    // How often Tab left the grid, forwards and backwards.
    int LeftForwards() const { return m_nLeftForwards; }
    int LeftBackwards() const { return m_nLeftBackwards; }

  private:
    CGridCtrl& m_grid;
    GridSize m_size;
    bool m_bBar[2] = {false, false};  // horizontal, vertical
    bool m_bForced[2] = {false, false};
    std::string m_sTip;
    int m_nLeftForwards = 0, m_nLeftBackwards = 0;
    // The last editor stays until the next one opens: its own operation closes it.
    std::unique_ptr<CInPlaceEdit> m_pEditor;
    std::unique_ptr<HeadlessEditor> m_pWindow;
};
