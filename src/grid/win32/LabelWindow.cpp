#include "framework/win32/Windows32.h"
// The common controls want windows.h before them.
#include <commctrl.h>

#include "grid/Label.h"
#include "grid/win32/GdiCanvas.h"

namespace {

constexpr UINT_PTR kSubclass = 1;
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
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(window, &paint);
    RECT client{};
    GetClientRect(window, &client);
    GdiCanvas canvas(dc);
    const GridRect area{0, 0, client.right, client.bottom};
    canvas.FillRect(area, label.FaceColour());
    canvas.DrawText(label.GetWindowText(), area, AlignmentOf(window) | kTextWordBreak, label.Font(),
                    label.TextColour());
    EndPaint(window, &paint);
}

LRESULT CALLBACK LabelProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                DWORD_PTR data) {
    auto& label = *reinterpret_cast<CLabel*>(data);
    switch (message) {
        case WM_NCDESTROY:
            RemoveWindowSubclass(window, LabelProcedure, id);
            break;
        case WM_PAINT:
            PaintLabel(window, label);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_MOUSEMOVE:
            label.OnMouseMove();
            break;
        case WM_SETCURSOR:
            if (!label.HasHandCursor() || backend::WaitCursorDepth() > 0) break;
            SetCursor(LoadCursorA(nullptr, MAKEINTRESOURCEA(kHandCursor)));
            return TRUE;
        default:
            break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

namespace gridplatform {

void AttachLabel(CLabel& label) {
    if (label.m_hWnd == nullptr) return;
    SetWindowSubclass(ToHwnd(label.m_hWnd), LabelProcedure, kSubclass, reinterpret_cast<DWORD_PTR>(&label));
}

void RedrawLabel(CLabel& label) {
    if (label.m_hWnd != nullptr) InvalidateRect(ToHwnd(label.m_hWnd), nullptr, TRUE);
}

}  // namespace gridplatform
