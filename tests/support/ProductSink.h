// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "framework/headless/Headless.h"
#include "session/headless/PlotModuleSink.h"

namespace lumerin {

// Keeps the calls of the plot module besides all that the framework's sink keeps.
class ProductSink : public headless::RecordingSink, public PlotModuleSink {
  public:
    PlotModuleResult OnPlotModule(const PlotModuleCall& call, std::string& systemText) override {
        calls.push_back(call);
        systemText = moduleText;
        return moduleResult;
    }

    std::vector<PlotModuleCall> calls;
    PlotModuleResult moduleResult = PlotModuleResult::called;
    std::string moduleText;
};

}  // namespace lumerin
