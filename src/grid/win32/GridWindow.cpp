// SPDX-License-Identifier: MIT
#include "grid/win32/GridWindow.h"

#include <algorithm>
#include <cstring>

#include "framework/Index.h"
#include "framework/win32/Drawing.h"
#include "framework/win32/DriverToken.h"
#include "grid/GridHelpers.h"
#include "grid/win32/GdiCanvas.h"
#include "grid/win32/GridMessages.h"

namespace lumerin {

namespace {

constexpr UINT kDragTimerMilliseconds = 100;

void FillRecord(const CGridCtrl& grid, GridViewRecord& record) {
    const GridView view = ViewOf(grid);
    record = {view.row,         view.column, view.top,       view.left,  view.bottom, view.right,
              view.selected,    view.tipRow, view.tipColumn, view.start, view.end,    view.editing,
              view.outgrewCell, {}};
    view.text.copy(record.text, sizeof record.text - 1);
}

bool CopyText(const CGridCtrl& grid, GridCellText& query) {
    if (!grid.IsCellInRange(query.row, query.column)) return false;
    const std::string text = grid.GetCellText(query.row, query.column);
    query.length = static_cast<int>(text.size());
    if (query.text == nullptr || query.capacity <= 0) return true;
    const int bytes = std::min(query.length, query.capacity - 1);
    std::memcpy(query.text, text.data(), Index(bytes));
    query.text[bytes] = '\0';
    return true;
}

bool GoTo(CGridCtrl& grid, const GridCellPlace& place) {
    grid.EndOpenEdit();
    if (!grid.MoveFocusCell(place.row, place.column)) return false;
    grid.SelectRange(place.row, place.column, place.row, place.column, false, true);
    grid.ScrollCellIntoView(place.row, place.column);
    return true;
}

bool FindArea(const CGridCtrl& grid, GridCellArea& query) {
    GridRect rect;
    if (!grid.CellRect(query.row, query.column, rect)) return false;
    query.area = win32::ToRect(rect);
    return true;
}

GridPoint PointOf(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

}  // namespace

namespace win32 {

KeyState Keys() {
    return {GetKeyState(VK_SHIFT) < 0, GetKeyState(VK_CONTROL) < 0};
}

KeyState MouseKeys(WPARAM wParam) {
    return {(wParam & MK_SHIFT) != 0, (wParam & MK_CONTROL) != 0};
}

unsigned EventTime() {
    return static_cast<unsigned>(GetMessageTime());
}

bool IsButtonDown() {
    // For a left hand the two buttons are swapped.
    return GetKeyState(VK_LBUTTON) < 0 || GetKeyState(VK_RBUTTON) < 0;
}

}  // namespace win32

namespace gridplatform {

std::unique_ptr<GridHost> MakeHost(CGridCtrl& grid) {
    if (grid.m_hWnd == nullptr) return std::make_unique<GridHost>();
    return std::make_unique<GridWindow>(grid, ToHwnd(grid.m_hWnd));
}

}  // namespace gridplatform

GridWindow::GridWindow(CGridCtrl& grid, HWND window) : m_grid(grid), m_window(window), m_tip(grid) {
    // The editor is a child: painting leaves its place out.
    const LONG style = GetWindowLongA(m_window, GWL_STYLE);
    SetWindowLongA(m_window, GWL_STYLE, style | WS_CLIPCHILDREN);
    win32::HookWindow(m_window, *this);
}

GridWindow::~GridWindow() {
    m_editors.clear();
    if (m_window != nullptr) win32::UnhookWindow(m_window);
}

GridSize GridWindow::ClientSize() const {
    RECT client{};
    if (m_window != nullptr) GetClientRect(m_window, &client);
    return {static_cast<int>(client.right), static_cast<int>(client.bottom)};
}

std::string GridWindow::WindowText() const {
    return backend::Text(FromHwnd(m_window));
}

void GridWindow::Invalidate(const GridRect& rect) {
    const RECT area = win32::ToRect(rect);
    if (m_window != nullptr) InvalidateRect(m_window, &area, FALSE);
}

void GridWindow::InvalidateAll() {
    if (m_window != nullptr) InvalidateRect(m_window, nullptr, FALSE);
}

void GridWindow::SetScrollBar(bool vertical, const ScrollPlace& place) {
    if (m_window == nullptr) return;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    // A forced bar stays, greyed, when there is nothing to scroll.
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | (m_forced[vertical ? 1 : 0] ? SIF_DISABLENOSCROLL : 0);
    info.nMax = std::max(place.count - 1, 0);
    info.nPage = static_cast<UINT>(std::max(place.page, 1));
    info.nPos = place.position;
    SetScrollInfo(m_window, vertical ? SB_VERT : SB_HORZ, &info, TRUE);
}

void GridWindow::ForceScrollBar(bool vertical, bool forced) {
    if (m_window == nullptr) return;
    m_forced[vertical ? 1 : 0] = forced;
    ShowScrollBar(m_window, vertical ? SB_VERT : SB_HORZ, forced ? TRUE : FALSE);
}

void GridWindow::TakeFocus() {
    if (m_window != nullptr && GetFocus() != m_window) ::SetFocus(m_window);
}

void GridWindow::LeaveByTab(bool backwards) {
    if (m_window != nullptr)
        PostMessageA(GetParent(m_window), WM_NEXTDLGCTL, backwards ? TRUE : FALSE, FALSE);
}

void GridWindow::CaptureMouse(bool captured) {
    if (m_window == nullptr) return;
    if (captured) {
        SetCapture(m_window);
        SetTimer(m_window, kGridDragTimer, kDragTimerMilliseconds, nullptr);
        return;
    }
    KillTimer(m_window, kGridDragTimer);
    if (GetCapture() == m_window) ReleaseCapture();
}

void GridWindow::SweepEditors() {
    std::erase_if(m_editors, [](const auto& editor) { return editor->IsGone(); });
}

bool GridWindow::OpenEditor(std::unique_ptr<CInPlaceEdit> editor, const GridRect& rect) {
    if (m_window == nullptr) return false;
    SweepEditors();
    auto window = std::make_unique<EditorWindow32>(m_window, std::move(editor));
    EditorWindow32& created = *window;
    m_editors.reserve(m_editors.size() + 1);
    if (!created.Create(rect, m_grid.DefaultCell(false, false).GetFont())) return false;
    m_editors.push_back(std::move(window));
    return true;
}

void GridWindow::ShowTip(const GridRect& rect, const std::string& text, const FontRecord& font) {
    if (m_window != nullptr) m_tip.Show(m_window, rect, text, font);
}

bool GridWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
        case WM_PAINT:
            OnPaint();
            return true;
        case WM_ERASEBKGND:
            result = 1;
            return true;
        case WM_SIZE:
            m_grid.OnSize();
            return true;
        case WM_GETDLGCODE:
            result = DialogCode(lParam);
            return true;
        case WM_SETFOCUS:
            m_grid.OnGotFocus();
            return true;
        case WM_KILLFOCUS:
            m_grid.HideTip();
            return false;
        case WM_TIMER:
            m_grid.OnDragTimer();
            return true;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != m_window) m_grid.OnCaptureLost();
            return false;
        case WM_CANCELMODE:
            m_grid.OnCaptureLost();
            return false;
        case WM_VSCROLL:
            OnScrollMessage(true, wParam);
            return true;
        case WM_HSCROLL:
            OnScrollMessage(false, wParam);
            return true;
        case WM_MOUSEWHEEL:
            m_grid.OnMouseWheel(static_cast<short>(HIWORD(wParam)) / WHEEL_DELTA);
            return true;
        case WM_KEYDOWN:
        case WM_CHAR:
            return OnKey(message, wParam);
        default:
            break;
    }
    if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) return OnMouse(message, wParam, lParam);
    return OnQuestion(message, wParam, lParam, result);
}

bool GridWindow::OnMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    const GridPoint point = PointOf(lParam);
    switch (message) {
        case WM_LBUTTONDOWN:
            m_grid.OnLeftDown(point, win32::MouseKeys(wParam), win32::EventTime());
            // A handler may have shown a message meanwhile, which received the release of the button.
            if (!win32::IsButtonDown()) m_grid.OnCaptureLost();
            return true;
        case WM_LBUTTONUP:
            m_grid.OnLeftUp(point);
            return true;
        case WM_LBUTTONDBLCLK:
            m_grid.OnDoubleClick(point);
            return true;
        case WM_MOUSEMOVE:
            m_grid.OnMouseMove(point, (wParam & MK_LBUTTON) != 0);
            return true;
        default:
            return false;
    }
}

bool GridWindow::OnKey(UINT message, WPARAM wParam) {
    const auto code = static_cast<unsigned>(wParam);
    CInPlaceEdit* editor = m_grid.OpenEditor();
    if (editor != nullptr && editor->m_hWnd != nullptr) {
        // Typed before the focus reached the editor.
        PostMessageA(ToHwnd(editor->m_hWnd), message, wParam, 1);
        return true;
    }
    return message == WM_CHAR ? m_grid.OnChar(code, win32::Keys()) : m_grid.OnKeyDown(code, win32::Keys());
}

LRESULT GridWindow::DialogCode(LPARAM lParam) const {
    LRESULT code = DLGC_WANTARROWS | DLGC_WANTCHARS;
    if (m_grid.TabMoves()) code |= DLGC_WANTTAB;
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    // Return opens an editor; where nothing can be edited it stays the dialog's, and so does Esc.
    const bool isReturn =
        message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
    if (isReturn && m_grid.IsEditable()) code |= DLGC_WANTMESSAGE;
    return code;
}

void GridWindow::OnPaint() {
    const win32::Painting painting(m_window);
    const RECT& area = painting.Area();
    GdiCanvas canvas(painting.Context());
    m_grid.Paint(canvas, {area.left, area.top, area.right, area.bottom});
}

void GridWindow::OnScrollMessage(bool vertical, WPARAM wParam) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(m_window, vertical ? SB_VERT : SB_HORZ, &info);
    const int page = static_cast<int>(info.nPage);
    int position = info.nPos;
    switch (LOWORD(wParam)) {
        case SB_LINEUP:
            --position;
            break;
        case SB_LINEDOWN:
            ++position;
            break;
        case SB_PAGEUP:
            position -= page;
            break;
        case SB_PAGEDOWN:
            position += page;
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            position = info.nTrackPos;
            break;
        case SB_TOP:
            position = 0;
            break;
        case SB_BOTTOM:
            position = info.nMax;
            break;
        default:
            return;
    }
    m_grid.OnScroll(vertical, position);
}

// The record at lParam is not touched before the token is checked.
bool GridWindow::OnQuestion(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (message < kGridCounts || message > kGridView) return false;
    if (!win32::IsFromDriver(wParam) || lParam == 0) return true;
    result = TRUE;
    switch (message) {
        case kGridCounts:
            *reinterpret_cast<GridCounts*>(lParam) = {m_grid.GetRowCount(), m_grid.GetColumnCount()};
            break;
        case kGridCellText:
            result = CopyText(m_grid, *reinterpret_cast<GridCellText*>(lParam)) ? TRUE : FALSE;
            break;
        case kGridGoTo:
            result = GoTo(m_grid, *reinterpret_cast<const GridCellPlace*>(lParam)) ? TRUE : FALSE;
            break;
        case kGridCellArea:
            result = FindArea(m_grid, *reinterpret_cast<GridCellArea*>(lParam)) ? TRUE : FALSE;
            break;
        default:
            FillRecord(m_grid, *reinterpret_cast<GridViewRecord*>(lParam));
            break;
    }
    return true;
}

}  // namespace lumerin
