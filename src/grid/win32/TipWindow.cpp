#include "grid/win32/TipWindow.h"

// The common controls want windows.h before them.
#include <commctrl.h>

#include "grid/GridCtrl.h"
#include "grid/win32/GdiCanvas.h"

namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr int kTextMargin = 3;

}  // namespace

TipWindow::~TipWindow() {
    if (m_window == nullptr) return;
    RemoveWindowSubclass(m_window, Procedure, kSubclass);
    DestroyWindow(m_window);
}

void TipWindow::Show(HWND owner, const GridRect& rect, const std::string& text, const FontRecord& font) {
    if (m_window == nullptr) {
        // With SS_NOTIFY the mouse reaches this window and not the one below.
        m_window = CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE, "STATIC", "",
                                   WS_POPUP | WS_BORDER | SS_NOTIFY, 0, 0, 0, 0, owner, nullptr,
                                   win32::ModuleInstance(), nullptr);
        if (m_window == nullptr) return;
        SetWindowSubclass(m_window, Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
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

LRESULT CALLBACK TipWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR data) {
    auto& self = *reinterpret_cast<TipWindow*>(data);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, Procedure, id);
        self.m_window = nullptr;
        return DefSubclassProc(window, message, wParam, lParam);
    }
    return self.OnMessage(message, wParam, lParam) ? 0 : DefSubclassProc(window, message, wParam, lParam);
}

bool TipWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
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
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(m_window, &paint);
    RECT client{};
    GetClientRect(m_window, &client);
    GdiCanvas canvas(dc);
    canvas.FillRect({0, 0, client.right, client.bottom}, GetSysColor(COLOR_INFOBK));
    canvas.DrawText(m_text, {kTextMargin - 1, 0, client.right, client.bottom},
                    kTextSingleLine | kTextMiddle | kTextNoPrefix, m_font, GetSysColor(COLOR_INFOTEXT));
    EndPaint(m_window, &paint);
}
