// SPDX-License-Identifier: MIT
#include "embedment/dialog/win32/GraphWindow.h"

#include <algorithm>
#include <cstring>

#include "embedment/GraphRecord.h"
#include "embedment/dialog/NTGraphTarnsway.h"
#include "embedment/dialog/win32/ControlHost.h"
#include "embedment/dialog/win32/PlotGdiCanvas.h"
#include "embedment/win32/GraphMessages.h"
#include "framework/Index.h"
#include "framework/win32/Drawing.h"
#include "framework/win32/DriverToken.h"

namespace lumerin {

namespace {

constexpr WORD kArrow = 32512;  // the platform's arrow cursor

SIZE ClientSize(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {area.right, area.bottom};
}

}  // namespace

namespace graphplatform {

void PrepareWindowClass() {
    WNDCLASSA found{};
    if (GetClassInfoA(win32::ModuleInstance(), kGraphWindowClass, &found)) return;
    WNDCLASSA graph{};
    graph.style = CS_HREDRAW | CS_VREDRAW;
    graph.lpfnWndProc = DefWindowProcA;
    graph.hInstance = win32::ModuleInstance();
    graph.hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(kArrow));
    graph.lpszClassName = kGraphWindowClass;
    RegisterClassA(&graph);
}

std::unique_ptr<GraphHost> MakeHost(CNTGraphTarnsway& graph) {
    if (graph.m_hWnd == nullptr) {
        return std::make_unique<PlotGraphHost>(graph.Plot(), [&graph] { graph.OnClicked(); });
    }
    const HWND window = ToHwnd(graph.m_hWnd);
    auto host = std::make_unique<GraphWindow>(graph, window);
    host->UseControl(ControlHost::Create(graph, window));
    return host;
}

}  // namespace graphplatform

GraphWindow::GraphWindow(CNTGraphTarnsway& graph, HWND window)
    : PlotGraphHost(graph.Plot(), [&graph] { graph.OnClicked(); }), m_graph(graph), m_window(window) {
    win32::HookWindow(m_window, *this);
}

GraphWindow::~GraphWindow() {
    if (m_window != nullptr) win32::UnhookWindow(m_window);
}

void GraphWindow::Set(int dispatchId, const GraphValue& value) {
    if (m_control != nullptr) m_control->Set(dispatchId, value);
}

GraphValue GraphWindow::Get(int dispatchId) const {
    return m_control != nullptr ? m_control->Get(dispatchId) : PlotGraphHost::Get(dispatchId);
}

void GraphWindow::Call(int dispatchId, std::span<const GraphValue> arguments) {
    if (m_control != nullptr) m_control->Call(dispatchId, arguments);
}

void GraphWindow::EndDrawing() {
    if (m_window != nullptr && m_control == nullptr) InvalidateRect(m_window, nullptr, FALSE);
}

ScreenRect GraphWindow::Place() const {
    RECT place{};
    if (m_window != nullptr) GetWindowRect(m_window, &place);
    return {static_cast<int>(place.left), static_cast<int>(place.top), static_cast<int>(place.right),
            static_cast<int>(place.bottom)};
}

// The record at lParam is not touched before the token is checked.
bool GraphWindow::OnQuestion(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) const {
    if (message != kGraphDrawing && message != kGraphPointOf) return false;
    if (!win32::IsFromDriver(wParam) || lParam == 0) return true;
    if (message == kGraphDrawing) {
        CopyDrawing(*reinterpret_cast<GraphDrawingText*>(lParam));
        result = TRUE;
    } else if (m_control == nullptr) {
        result = FindPoint(*reinterpret_cast<GraphPoint*>(lParam)) ? TRUE : FALSE;
    }
    return true;
}

bool GraphWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (OnQuestion(message, wParam, lParam, result)) return true;
    if (m_control != nullptr) return false;
    switch (message) {
        case WM_PAINT:
            OnPaint();
            return true;
        case WM_ERASEBKGND:
            result = 1;
            return true;
        case WM_LBUTTONUP:
            OnClick(static_cast<short>(LOWORD(lParam)));
            return true;
        default:
            return false;
    }
}

void GraphWindow::CopyDrawing(GraphDrawingText& query) const {
    const std::string text = WriteGraphCalls(m_graph.LastDrawing());
    query.length = static_cast<int>(text.size());
    if (query.text == nullptr || query.capacity <= 0) return;
    const int bytes = std::min(query.length, query.capacity - 1);
    std::memcpy(query.text, text.data(), Index(bytes));
    query.text[bytes] = '\0';
}

bool GraphWindow::FindPoint(GraphPoint& query) const {
    const SIZE size = ClientSize(m_window);
    const win32::WindowContext context(m_window);
    const double pixel = m_plot.PixelOf(query.x, PlotGdiCanvas(context.Context()), size.cx, size.cy);
    if (!(pixel >= 0.0 && pixel < size.cx)) return false;
    query.place = {static_cast<LONG>(pixel), size.cy / 2};
    return true;
}

void GraphWindow::OnClick(int pixelX) {
    const SIZE size = ClientSize(m_window);
    double x = 0.0;
    {
        const win32::WindowContext context(m_window);
        x = m_plot.XAt(pixelX, PlotGdiCanvas(context.Context()), size.cx, size.cy);
    }
    Click(x);
}

// Off the screen first: a plot that is drawn again on every choice must not flicker.
void GraphWindow::OnPaint() {
    const win32::Painting painting(m_window);
    const SIZE size = ClientSize(m_window);
    const win32::BitmapContext bitmap(painting.Context(), std::max<int>(size.cx, 1),
                                      std::max<int>(size.cy, 1));
    PlotGdiCanvas canvas(bitmap.Context());
    m_plot.Draw(canvas, size.cx, size.cy);
    BitBlt(painting.Context(), 0, 0, size.cx, size.cy, bitmap.Context(), 0, 0, SRCCOPY);
}

}  // namespace lumerin
