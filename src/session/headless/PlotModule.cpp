// SPDX-License-Identifier: MIT
#include "session/PlotModule.h"

#include "framework/headless/Headless.h"
#include "session/headless/PlotModuleSink.h"

namespace lumerin {

PlotModuleResult CallPlotModule(const PlotModuleCall& call, std::string& systemText) {
    auto* sink = dynamic_cast<PlotModuleSink*>(&headless::CurrentSink());
    return sink == nullptr ? PlotModuleResult::called : sink->OnPlotModule(call, systemText);
}

}  // namespace lumerin
