// SPDX-License-Identifier: MIT
#include "embedment/dialog/NTGraphTarnsway.h"

namespace lumerin {

CNTGraphTarnsway::CNTGraphTarnsway()
    : m_pHost(std::make_unique<PlotGraphHost>(m_plot, [this] { OnClicked(); })) {
    graphplatform::PrepareWindowClass();
}

void CNTGraphTarnsway::OnAttach() {
    // Each exchange of the dialog's data binds its controls again.
    if (m_hAttached == m_hWnd) return;
    m_pHost = graphplatform::MakeHost(*this);
    m_hAttached = m_hWnd;
}

void CNTGraphTarnsway::SetProperty(int dispatchId, const GraphValue& value) {
    m_Calls.push_back({false, dispatchId, {value}});
    m_plot.Set(dispatchId, value);
    m_pHost->Set(dispatchId, value);
}

void CNTGraphTarnsway::InvokeHelper(int dispatchId, std::vector<GraphValue> arguments) {
    m_plot.Call(dispatchId, arguments);
    m_pHost->Call(dispatchId, arguments);
    m_Calls.push_back({true, dispatchId, std::move(arguments)});
}

int CNTGraphTarnsway::GetElementCount() const {
    const GraphValue count = m_pHost->Get(kGraphElementCount);
    const int* value = std::get_if<int>(&count);
    return value == nullptr ? 0 : *value;
}

double CNTGraphTarnsway::GetClickedX() const {
    const GraphValue x = m_pHost->Get(kGraphClickedX);
    const double* value = std::get_if<double>(&x);
    return value == nullptr ? 0.0 : *value;
}

}  // namespace lumerin
