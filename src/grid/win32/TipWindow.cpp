#include "grid/win32/TipWindow.h"

#include <utility>

#include "framework/win32/Drawing.h"
#include "grid/GridCtrl.h"
#include "grid/win32/GdiCanvas.h"

namespace {

constexpr int kTextMargin = 3;

}  // namespace

TipWindow::~TipWindow() {
    if (m_window == nullptr) return;
    win32::UnhookWindow(m_window);
    DestroyWindow(m_window);
}

void TipWindow::Show(HWND owner, const GridRect& rect, const std::string& text, const FontRecord& font) {
    if (m_window == nullptr) {
        // With SS_NOTIFY the mouse reaches this window and not the one below.
        m_window = CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE, "STATIC", "",
                                   WS_POPUP | WS_BORDER | SS_NOTIFY, 0, 0, 0, 0, owner, nullptr,
                                   win32::ModuleInstance(), nullptr);
        if (m_window == nullptr) return;
        try {
            win32::HookWindow(m_window, *this);
        } catch (...) {
            DestroyWindow(std::exchange(m_window, nullptr));
            throw;
        }
    }
    m_owner = owner;
    m_text = text;
    m_font = font;
    POINT corner{rect.left, rect.top};
    ClientToScreen(owner, &corner);
    SetWindowPos(m_window, HWND_TOPMOST, corner.x, corner.y, rect.Width() + 2, rect.Height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    InvalidateRect(m_window, nullptr, TRUE);
    WatchForLeave();
}

void TipWindow::Hide() {
    if (m_window != nullptr) ShowWindow(m_window, SW_HIDE);
}

void TipWindow::WatchForLeave() {
    TRACKMOUSEEVENT watch{sizeof watch, TME_LEAVE, m_window, 0};
    TrackMouseEvent(&watch);
}

bool TipWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT&) {
    switch (message) {
        case WM_PAINT:
            OnPaint();
            return true;
        case WM_ERASEBKGND:
            return true;
        case WM_MOUSEMOVE:
            WatchForLeave();
            return true;
        case WM_MOUSELEAVE:
            m_grid.HideTip();
            return true;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            OnButton(message, wParam, lParam);
            return true;
        case WM_KEYDOWN:
            m_grid.HideTip();
            PostMessageA(m_owner, message, wParam, lParam);
            return true;
        default:
            return false;
    }
}

void TipWindow::OnButton(UINT message, WPARAM wParam, LPARAM lParam) {
    POINT point{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    MapWindowPoints(m_window, m_owner, &point, 1);
    const LPARAM place = MAKELPARAM(point.x, point.y);
    const bool twice = m_grid.OnTipButton(GetTickCount());
    PostMessageA(m_owner, twice && message == WM_LBUTTONDOWN ? WM_LBUTTONDBLCLK : message, wParam, place);
}

void TipWindow::OnPaint() {
    const win32::Painting painting(m_window);
    RECT client{};
    GetClientRect(m_window, &client);
    GdiCanvas canvas(painting.Context());
    canvas.FillRect({0, 0, client.right, client.bottom}, GetSysColor(COLOR_INFOBK));
    canvas.DrawText(m_text, {kTextMargin - 1, 0, client.right, client.bottom},
                    kTextSingleLine | kTextMiddle | kTextNoPrefix, m_font, GetSysColor(COLOR_INFOTEXT));
}
