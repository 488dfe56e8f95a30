#pragma once

#include <memory>

#include "embedment/GraphHost.h"
#include "framework/win32/Windows32.h"
// The interfaces want windows.h before them.
#include <ocidl.h>

// A registered graph control of the machine in the graph's window, driven through its dispatch interface.
class ControlHost : public GraphHost {
  public:
    // Null: no such control is registered, or it could not be made.
    static std::unique_ptr<ControlHost> Create(CNTGraphTarnsway& graph, HWND window);

    ControlHost(IDispatch* control, CNTGraphTarnsway& graph);
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
    IConnectionPoint* FindEvents(IID& events) const;

    IDispatch* m_control;
    IConnectionPoint* m_point = nullptr;
    EventSink* m_sink = nullptr;  // one reference of it is ours
    DWORD m_cookie = 0;
};
