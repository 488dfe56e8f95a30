// SPDX-License-Identifier: MIT
// What the grid asks of the platform apart from its window.
#include "framework/win32/Drawing.h"
#include "framework/win32/Windows32.h"
#include "grid/GridHost.h"
#include "grid/win32/GdiCanvas.h"

namespace lumerin {

namespace {

constexpr const char* kClassName = "MFCGridCtrl";
constexpr UINT kClassStyle = 11;  // double clicks, redraw on both size changes
constexpr const char* kOleFailedText =
    "OLE initialization failed. Make sure that the OLE libraries are the correct version";

void RegisterGridClass() {
    WNDCLASSA window{};
    if (GetClassInfoA(win32::ModuleInstance(), kClassName, &window) != FALSE) return;
    window.style = kClassStyle;
    window.lpfnWndProc = DefWindowProcA;
    window.hInstance = win32::ModuleInstance();
    window.hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(32512));  // the arrow
    window.hbrBackground = GetSysColorBrush(kColourShadow);
    window.lpszClassName = kClassName;
    if (RegisterClassA(&window) == 0) throw CResourceException();
}

}  // namespace

namespace gridplatform {

Colour SystemColour(int index) {
    return GetSysColor(index);
}

GridSize MeasureText(const std::string& text, const FontRecord& font) {
    const win32::WindowContext screen(nullptr);
    return GdiCanvas(screen.Context()).TextSize(text, font);
}

int ScreenDpi() {
    const win32::WindowContext screen(nullptr);
    return GetDeviceCaps(screen.Context(), LOGPIXELSX);
}

unsigned DoubleClickTime() {
    return GetDoubleClickTime();
}

void PrepareWindowClass() {
    RegisterGridClass();
    if (!win32::UseOle()) AfxMessageBox(kOleFailedText);
}

}  // namespace gridplatform

}  // namespace lumerin
