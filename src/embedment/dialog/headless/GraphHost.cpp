// SPDX-License-Identifier: MIT
#include "embedment/dialog/GraphHost.h"

#include "embedment/dialog/NTGraphTarnsway.h"
#include "framework/headless/GraphPeer.h"

namespace lumerin {

namespace graphplatform {

std::unique_ptr<GraphHost> MakeHost(CNTGraphTarnsway& graph) {
    headless::AttachGraph(graph.m_hWnd, graph);
    return std::make_unique<PlotGraphHost>(graph.Plot(), [&graph] { graph.OnClicked(); });
}

void PrepareWindowClass() {}

}  // namespace graphplatform

}  // namespace lumerin
