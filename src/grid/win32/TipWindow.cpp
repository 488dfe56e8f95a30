// SPDX-License-Identifier: MIT
#include "grid/win32/TipWindow.h"

#include <utility>

#include "framework/win32/Drawing.h"
#include "framework/win32/Failures.h"
#include "grid/GridCtrl.h"
#include "grid/win32/GdiCanvas.h"
#include "grid/win32/GridWindow.h"

namespace lumerin {

namespace {

constexpr int kTextMargin = 3;

// The tip that shows; the mouse is over one at most.
TipWindow*& Shown() {
    static TipWindow* shown = nullptr;
    return shown;
}

bool IsPress(UINT message) {
    switch (message) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDOWN:
        case WM_MBUTTONDBLCLK:
        case WM_XBUTTONDOWN:
        case WM_XBUTTONDBLCLK:
        case WM_NCLBUTTONDOWN:
        case WM_NCLBUTTONDBLCLK:
        case WM_NCRBUTTONDOWN:
        case WM_NCRBUTTONDBLCLK:
        case WM_NCMBUTTONDOWN:
        case WM_NCMBUTTONDBLCLK:
            return true;
        default:
            return false;
    }
}

}  // namespace

TipWindow::~TipWindow() {
    EndWatch();
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
    WatchForInput();
}

void TipWindow::Hide() {
    EndWatch();
    if (m_window != nullptr) ShowWindow(m_window, SW_HIDE);
}

// A key goes to the window that has the focus, which need not be the grid: the tip watches the messages of
// its thread.
void TipWindow::WatchForInput() {
    if (m_hook != nullptr) return;
    m_hook = SetWindowsHookExA(WH_GETMESSAGE, WatchMessage, nullptr, GetCurrentThreadId());
    if (m_hook != nullptr) Shown() = this;
}

void TipWindow::EndWatch() {
    if (m_hook == nullptr) return;
    UnhookWindowsHookEx(m_hook);
    m_hook = nullptr;
    if (Shown() == this) Shown() = nullptr;
}

LRESULT CALLBACK TipWindow::WatchMessage(int code, WPARAM wParam, LPARAM lParam) noexcept {
    const auto& message = *reinterpret_cast<const MSG*>(lParam);
    TipWindow* tip = Shown();
    // The tip's own procedure handles what hits the tip.
    if (code == HC_ACTION && wParam == PM_REMOVE && tip != nullptr && message.hwnd != tip->m_window &&
        IsPress(message.message)) {
        win32::RunBorder([tip] { tip->m_grid.HideTip(); });
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
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
        case WM_MOUSEMOVE: {
            WatchForLeave();
            const POINT point = InOwner(lParam);
            m_grid.OnTipMove({point.x, point.y});
            return true;
        }
        case WM_MOUSELEAVE:
            m_grid.OnTipLeave();
            return true;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: {
            const POINT point = InOwner(lParam);
            m_grid.OnTipLeftDown({point.x, point.y}, win32::MouseKeys(wParam), win32::EventTime());
            return true;
        }
        case WM_MOUSEWHEEL:
            SendMessageA(m_owner, message, wParam, lParam);
            return true;
        default:
            break;
    }
    if (!IsPress(message)) return false;
    OnOtherButton(message, wParam, lParam);
    return true;
}

POINT TipWindow::InOwner(LPARAM lParam) const {
    POINT point{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    MapWindowPoints(m_window, m_owner, &point, 1);
    return point;
}

// The other buttons are passed on to the grid's window; keys go to the grid.
void TipWindow::OnOtherButton(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point = InOwner(lParam);
    const bool isKey = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
    m_grid.HideTip();
    PostMessageA(m_owner, message, wParam, isKey ? lParam : MAKELPARAM(point.x, point.y));
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

}  // namespace lumerin
