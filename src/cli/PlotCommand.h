// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "cli/Command.h"
#include "figures/Figure.h"

namespace lumerin {

struct PlotRequest {
    std::string project;
    std::string figure;
    FigureRequest drawing{0, 0, -1, {}};  // substructure 0: the only one
    CaseChoice cases;
    Limits limits;
    std::string output = "-";  // a file, or "-" for standard output
    bool data = false;         // the numbers as CSV in place of the picture
};

// Draws a figure of a substructure, or prints its numbers. Throws std::invalid_argument for wrong usage.
ExitStatus RunPlot(const PlotRequest& request, std::ostream& out, std::ostream& err);

ProgramCommand AddPlotCommand(CommandParser& program);

}  // namespace lumerin
