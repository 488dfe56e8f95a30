// SPDX-License-Identifier: MIT
#include <memory>

#include "framework/win32/Drawing.h"
#include "framework/win32/WindowHook.h"
#include "grid/Label.h"
#include "grid/win32/GdiCanvas.h"

namespace lumerin {

namespace {

constexpr WORD kHandCursor = 32649;

unsigned AlignmentOf(HWND window) {
    switch (GetWindowLongA(window, GWL_STYLE) & SS_TYPEMASK) {
        case SS_CENTER:
            return kTextCenter;
        case SS_RIGHT:
            return kTextRight;
        default:
            return kTextLeft;
    }
}

void PaintLabel(HWND window, const CLabel& label) {
    const win32::Painting painting(window);
    RECT client{};
    GetClientRect(window, &client);
    GdiCanvas canvas(painting.Context());
    const GridRect area{0, 0, client.right, client.bottom};
    canvas.FillRect(area, label.FaceColour());
    canvas.DrawText(label.GetWindowText(), area, AlignmentOf(window) | kTextWordBreak, label.Font(),
                    label.TextColour());
}

// The messages of a label's window. The window owns it and destroys it.
class LabelWindow final : public win32::MessageTarget {
  public:
    LabelWindow(CLabel& label, HWND window) : m_label(label), m_window(window) {}

    bool OnMessage(UINT message, WPARAM, LPARAM, LRESULT& result) override {
        switch (message) {
            case WM_PAINT:
                PaintLabel(m_window, m_label);
                return true;
            case WM_ERASEBKGND:
                result = 1;
                return true;
            case WM_MOUSEMOVE:
                m_label.OnMouseMove();
                return false;
            case WM_SETCURSOR:
                if (!m_label.HasHandCursor() || backend::WaitCursorDepth() > 0) return false;
                SetCursor(LoadCursorA(nullptr, MAKEINTRESOURCEA(kHandCursor)));
                result = TRUE;
                return true;
            default:
                return false;
        }
    }
    void OnGone() noexcept override { std::unique_ptr<LabelWindow>(this).reset(); }

  private:
    CLabel& m_label;
    HWND m_window;
};

}  // namespace

namespace gridplatform {

void AttachLabel(CLabel& label) {
    if (label.m_hWnd == nullptr) return;
    auto window = std::make_unique<LabelWindow>(label, ToHwnd(label.m_hWnd));
    win32::HookWindow(ToHwnd(label.m_hWnd), *window);
    static_cast<void>(window.release());  // the window owns it
}

void RedrawLabel(CLabel& label) {
    if (label.m_hWnd != nullptr) InvalidateRect(ToHwnd(label.m_hWnd), nullptr, TRUE);
}

}  // namespace gridplatform

}  // namespace lumerin
