// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "embedment/dialog/GraphHost.h"
#include "framework/Automation.h"
#include "framework/Window.h"

namespace lumerin {

// The graph of the dialog, driven by dispatch ids. It remembers the calls of the drawing that is shown.
class CNTGraphTarnsway : public CWnd, public GraphPeer {
  public:
    CNTGraphTarnsway();

    void OnAttach() override;

    // Between these two the graph gets one whole drawing.
    void BeginDrawing() { m_Calls.clear(); }
    void EndDrawing() { m_pHost->EndDrawing(); }

    void SetProperty(int dispatchId, const GraphValue& value);
    void InvokeHelper(int dispatchId, std::vector<GraphValue> arguments = {});
    // For the module's own plot alone: it is no call of the control.
    void LeaveGap() { m_plot.LeaveGap(); }
    int GetElementCount() const;
    double GetClickedX() const;

    // The same drawing on the module's own plot, whatever shows it on the screen.
    const CPlot& Plot() const { return m_plot; }
    ScreenRect Place() const { return m_pHost->Place(); }

    // Called for each click, after the clicked x has changed.
    std::function<void()> m_onClick;
    void OnClicked() {
        if (m_onClick) m_onClick();
    }

    std::vector<GraphCall> LastDrawing() const override { return m_Calls; }
    void Click(double x) override { m_pHost->Click(x); }

  private:
    CPlot m_plot;
    std::unique_ptr<GraphHost> m_pHost;
    WindowHandle m_hAttached = nullptr;
    std::vector<GraphCall> m_Calls;
};

}  // namespace lumerin
