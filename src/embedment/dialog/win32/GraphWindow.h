// SPDX-License-Identifier: MIT
#pragma once

#include "embedment/dialog/GraphHost.h"
#include "embedment/win32/GraphMessages.h"
#include "framework/win32/WindowHook.h"

namespace lumerin {

// The graph's place in the dialog: it answers the driver's queries and shows the module's own plot, unless a
// control of the machine is used.
class GraphWindow : public PlotGraphHost, private win32::MessageTarget {
  public:
    GraphWindow(CNTGraphTarnsway& graph, HWND window);
    GraphWindow(const GraphWindow&) = delete;
    GraphWindow& operator=(const GraphWindow&) = delete;
    ~GraphWindow() override;

    // Calls go to the control from now on; it is all that is drawn.
    void UseControl(std::unique_ptr<GraphHost> control) { m_control = std::move(control); }

    void Set(int dispatchId, const GraphValue& value) override;
    GraphValue Get(int dispatchId) const override;
    void Call(int dispatchId, std::span<const GraphValue> arguments) override;
    void EndDrawing() override;
    ScreenRect Place() const override;

  private:
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void OnGone() noexcept override { m_window = nullptr; }
    // A driver's question; true: it is one, answered or not.
    bool OnQuestion(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) const;
    bool FindPoint(GraphPoint& query) const;
    void CopyDrawing(GraphDrawingText& query) const;
    void OnPaint();
    void OnClick(int pixelX);

    CNTGraphTarnsway& m_graph;
    HWND m_window;
    std::unique_ptr<GraphHost> m_control;
};

}  // namespace lumerin
