// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <span>

#include "embedment/Plot.h"
#include "framework/Automation.h"

namespace lumerin {

class CNTGraphTarnsway;

// A rectangle of the screen in pixels.
struct ScreenRect {
    int left = 0, top = 0, right = 0, bottom = 0;
    bool IsEmpty() const { return right <= left || bottom <= top; }
};

// The content of the graph's window: a control of the machine, or the module's own plot.
class GraphHost {
  public:
    virtual ~GraphHost() = default;

    virtual void Set(int dispatchId, const GraphValue& value) = 0;
    virtual GraphValue Get(int dispatchId) const = 0;
    virtual void Call(int dispatchId, std::span<const GraphValue> arguments) = 0;
    // All calls of a drawing were made; until then nothing has to be shown.
    virtual void EndDrawing() {}
    // Clicks at that x of the data, as a user would. The host notifies the graph.
    virtual void Click(double x) = 0;
    virtual ScreenRect Place() const { return {}; }  // empty where there is no screen
};

// The module's own plot without a window. The graph itself has the plot, so nothing is passed on.
class PlotGraphHost : public GraphHost {
  public:
    PlotGraphHost(const CPlot& plot, std::function<void()> clicked)
        : m_plot(plot), m_clicked(std::move(clicked)) {}

    void Set(int, const GraphValue&) override {}
    GraphValue Get(int dispatchId) const override {
        return dispatchId == kGraphClickedX ? GraphValue(m_clickedX) : m_plot.Get(dispatchId);
    }
    void Call(int, std::span<const GraphValue>) override {}
    void Click(double x) override {
        m_clickedX = x;
        if (m_clicked) m_clicked();
    }

  protected:
    const CPlot& m_plot;

  private:
    std::function<void()> m_clicked;
    double m_clickedX = 0.0;
};

namespace graphplatform {

// Makes the host of a graph whose dialog bound it to a control; called by CNTGraphTarnsway::OnAttach.
std::unique_ptr<GraphHost> MakeHost(CNTGraphTarnsway& graph);
// Registers the window class of the graph's place in the dialog, once a module.
void PrepareWindowClass();

}  // namespace graphplatform

}  // namespace lumerin
