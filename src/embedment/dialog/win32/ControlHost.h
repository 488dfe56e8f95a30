// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "embedment/dialog/GraphHost.h"
#include "framework/win32/Windows32.h"
// These headers need windows.h before them.
#include <ocidl.h>

namespace lumerin {

// A reference to an object of the platform.
struct ComRelease {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using ComPointer = std::unique_ptr<Interface, ComRelease>;

// A child that fills the graph's window and gives the control its place. It destroys the control.
class ControlWindow {
  public:
    explicit ControlWindow(HWND place);  // throws where the platform refuses a window
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;
    ~ControlWindow();
    HWND Get() const { return m_window; }

  private:
    HWND m_place;
    HWND m_window;
};

// A registered graph control of the machine in the graph's window, driven through its dispatch interface.
class ControlHost : public GraphHost {
  public:
    // Null: no such control is registered, or it could not be made, or has no dispatch interface.
    static std::unique_ptr<ControlHost> Create(CNTGraphTarnsway& graph, HWND place);

    ControlHost(std::unique_ptr<ControlWindow> window, ComPointer<IDispatch> control,
                CNTGraphTarnsway& graph);
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;
    ~ControlHost() override;

    void Set(int dispatchId, const GraphValue& value) override;
    GraphValue Get(int dispatchId) const override;
    void Call(int dispatchId, std::span<const GraphValue> arguments) override;
    // A control takes its clicks from its own window.
    void Click(double) override {}

  private:
    class EventSink;
    void Advise(CNTGraphTarnsway& graph);
    ComPointer<IConnectionPoint> FindEvents(IID& events) const;

    std::unique_ptr<ControlWindow> m_window;
    ComPointer<IDispatch> m_control;
    ComPointer<IConnectionPoint> m_point;  // null: the control reports no events
    ComPointer<EventSink> m_sink;
    DWORD m_cookie = 0;
};

}  // namespace lumerin
