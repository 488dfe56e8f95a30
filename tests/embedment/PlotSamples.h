// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "embedment/Plot.h"

namespace lumerin {

// Plots and points for the tests of the plot and of its canvas.

inline CPlot MakePlot(double minX, double maxX, double minY, double maxY) {
    CPlot plot;
    plot.Set(kGraphCaption, std::string("Caption"));
    plot.Set(kGraphLabelX, std::string("Length"));
    plot.Set(kGraphLabelY, std::string("Force"));
    plot.Set(kGraphColour, 0x0000ff);
    plot.Set(kGraphShowGrid, true);
    plot.Call(kGraphClearElements, {});
    plot.Call(kGraphAddElement, {});
    plot.Set(kGraphElement, 0);
    plot.Call(kGraphSetRanges, std::vector<GraphValue>{minX, maxX, minY, maxY});
    plot.Set(kGraphTicksX, 2);
    plot.Set(kGraphTicksY, 4);
    plot.Set(kGraphFormatX, std::string("%.2f"));
    plot.Set(kGraphFormatY, std::string("%.1f"));
    return plot;
}

inline void AddPoint(CPlot& plot, double x, double y) {
    plot.Call(kGraphPlotPoint, std::vector<GraphValue>{x, y, 1});
}

}  // namespace lumerin
