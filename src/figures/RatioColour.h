// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "figures/Svg.h"

namespace lumerin {

// How a demand/capacity ratio looks in every figure: darker the nearer it is to the limit; over the limit red
// and hatched, so that it is seen in grey too.

struct Box {
    double left = 0.0, top = 0.0, width = 0.0, height = 0.0;
};

std::string_view RatioColour(double ratio, double limit);
void DrawRatio(Svg& svg, double ratio, double limit, const Box& box);
// RatioText, with "over the limit" after it where it is.
std::string RatioLabel(double ratio, double limit);
// The colours with their bounds, on a base line.
void DrawRatioLegend(Svg& svg, Point at, double limit);

}  // namespace lumerin
