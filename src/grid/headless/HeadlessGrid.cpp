// SPDX-License-Identifier: MIT
#include "grid/headless/HeadlessGrid.h"

#include <utility>

#include "framework/Index.h"
#include "framework/headless/EditKeys.h"
#include "framework/headless/Headless.h"
#include "grid/GridCtrl.h"
#include "grid/GridHelpers.h"
#include "grid/Label.h"

namespace lumerin {

namespace {

constexpr int kBorders = 4;    // pixels of both sunken borders of the control
constexpr int kBarWidth = 17;  // pixels of a scroll bar at 96 pixels an inch
constexpr int kCharacterWidth = 6, kCharacterHeight = 15;
// Pixels of a dialog unit's multiple with the dialogs' font at 96 pixels an inch.
constexpr int kBaseX = 7, kBaseY = 15;

int Scaled(int units, int base, int divisor) {
    return (units * base + divisor / 2) / divisor;
}

}  // namespace

namespace gridplatform {

Colour SystemColour(int index) {
    switch (index) {
        case kColourWindow:
            return 0xffffff;
        case kColourWindowText:
            return 0x000000;
        case kColourFace:
            return 0xf0f0f0;
        case kColourShadow:
            return 0xa0a0a0;
        default:
            return 0;
    }
}

GridSize MeasureText(const std::string& text, const FontRecord&) {
    return {static_cast<int>(text.size()) * kCharacterWidth, kCharacterHeight};
}

int ScreenDpi() {
    return 96;
}
unsigned DoubleClickTime() {
    return 500;
}
void PrepareWindowClass() {}
void AttachLabel(CLabel&) {}
void RedrawLabel(CLabel&) {}

std::unique_ptr<GridHost> MakeHost(CGridCtrl& grid) {
    if (grid.m_hWnd == nullptr) return std::make_unique<GridHost>();
    const ControlSpec& spec = headless::SpecOf(grid.m_hWnd);
    const GridSize size{Scaled(spec.width, kBaseX, 4) - kBorders, Scaled(spec.height, kBaseY, 8) - kBorders};
    auto host = std::make_unique<HeadlessGrid>(grid, size);
    headless::AttachGrid(grid.m_hWnd, *host);
    return host;
}

}  // namespace gridplatform

EditText HeadlessEditor::Read() const {
    EditText edit = m_text;
    headless::OrderSelection(edit.start, edit.end);
    return edit;
}

void HeadlessEditor::PostChar(unsigned character) {
    if (m_closed || m_editor.OnChar(character)) return;
    headless::TypeEditCharacter({m_text.text, m_text.start, m_text.end}, character);
    m_editor.OnTyped();
}

void HeadlessEditor::KeyDown(unsigned key, KeyState keys) {
    if (m_closed || m_editor.OnKeyDown(key, keys)) return;
    headless::PressEditKey({m_text.text, m_text.start, m_text.end}, key, keys);
    m_editor.OnTyped();
    if (const unsigned character = headless::CharacterOfKey(key, keys)) PostChar(character);
}

GridSize HeadlessGrid::ClientSize() const {
    const auto isThere = [this](std::size_t bar) {
        return m_forced[bar] || m_bars[bar].count > m_bars[bar].page;
    };
    return {m_size.width - (isThere(1) ? kBarWidth : 0), m_size.height - (isThere(0) ? kBarWidth : 0)};
}

void HeadlessGrid::SetScrollBar(bool vertical, const ScrollPlace& place) {
    m_bars[vertical ? 1 : 0] = place;
}

void HeadlessGrid::ForceScrollBar(bool vertical, bool forced) {
    m_forced[vertical ? 1 : 0] = forced;
}

void HeadlessGrid::SetClipboard(const std::string& text) {
    // As a text on the platform's clipboard, it ends at its first zero.
    headless::State().clipboard = text.substr(0, text.find('\0'));
}

std::string HeadlessGrid::Clipboard() const {
    return headless::State().clipboard;
}

bool HeadlessGrid::OpenEditor(std::unique_ptr<CInPlaceEdit> editor, const GridRect& rect) {
    m_editor = std::move(editor);
    m_window = std::make_unique<HeadlessEditor>(*m_editor, rect);
    m_editor->Start(*m_window);
    return true;
}

void HeadlessGrid::LeaveByTab(bool backwards) {
    ++(backwards ? m_leftBackwards : m_leftForwards);
    headless::MoveFocusByTab(m_grid.m_hWnd, backwards);
}

void HeadlessGrid::TakeFocus() {
    if (m_grid.m_hWnd != nullptr) {
        backend::SetFocus(m_grid.m_hWnd);
    } else if (!m_focused) {
        GainFocus();
    }
}

void HeadlessGrid::ShowTip(const GridRect& rect, const std::string& text, const FontRecord&) {
    m_tip = text;
    m_tipPlace = rect;
}

void HeadlessGrid::HideTip() {
    m_tip.clear();
    m_tipPlace = {};
}

void HeadlessGrid::EndTip() {
    m_grid.HideTip();
}

HeadlessEditor* HeadlessGrid::Editor() const {
    return m_window != nullptr && !m_window->IsClosed() ? m_window.get() : nullptr;
}

void HeadlessGrid::TypeChar(unsigned character, KeyState keys) {
    m_grid.HideTip();
    if (HeadlessEditor* editor = Editor()) {
        editor->PostChar(character);
    } else {
        m_grid.OnChar(character, keys);
    }
}

bool HeadlessGrid::PressKey(unsigned key, KeyState keys) {
    m_grid.HideTip();
    if (HeadlessEditor* editor = Editor()) {
        editor->KeyDown(key, keys);
        return true;
    }
    const bool isDialogs = key == kKeyEscape || (key == kKeyReturn && !m_grid.IsEditable()) ||
                           (key == kKeyTab && !m_grid.TabMoves());
    if (isDialogs) return false;
    // A key that the grid does not use becomes a character.
    const bool hasCharacter = key == kKeyReturn || key == kKeyBackspace || key == kKeyTab;
    if (!m_grid.OnKeyDown(key, keys) && hasCharacter) m_grid.OnChar(key, keys);
    return true;
}

bool HeadlessGrid::TypeCell(int row, int column, const std::string& text) {
    m_grid.EndOpenEdit();
    if (!m_grid.MoveFocusCell(row, column)) return false;
    m_grid.SelectRange(row, column, row, column, false, true);
    m_grid.ScrollCellIntoView(row, column);
    for (const char c : text) TypeChar(static_cast<unsigned char>(c));
    PressKey(kKeyReturn);
    return true;
}

void HeadlessGrid::GainFocus() {
    m_focused = true;
    m_grid.OnGotFocus();
}

void HeadlessGrid::LoseFocus() {
    m_focused = false;
    m_grid.EndOpenEdit();
    m_grid.HideTip();
}

GridView HeadlessGrid::View() const {
    return ViewOf(m_grid);
}

int HeadlessGrid::RowCount() const {
    return m_grid.GetRowCount();
}

std::vector<std::string> HeadlessGrid::RowTexts(int row) const {
    std::vector<std::string> texts;
    texts.reserve(Index(m_grid.GetColumnCount()));
    for (int column = 0; column < m_grid.GetColumnCount(); ++column) {
        texts.push_back(m_grid.GetCellText(row, column));
    }
    return texts;
}

}  // namespace lumerin
