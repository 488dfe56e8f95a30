// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "session/PlotModule.h"

namespace lumerin {

// Receives the calls of the plot module in a program without a screen. A headless::Sink that is one of these
// too gets them while it is installed; under any other sink the module counts as called.
class PlotModuleSink {
  public:
    virtual ~PlotModuleSink() = default;

    virtual PlotModuleResult OnPlotModule(const PlotModuleCall& call, std::string& systemText) = 0;
};

}  // namespace lumerin
