// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "figures/Figure.h"

namespace lumerin {

// The figures, each in the file of its theme; FigureList.cpp has the table of them.
std::string DrawCapShear(const Evaluation& evaluation, const FigureRequest& request);
std::string DrawCapMoment(const Evaluation& evaluation, const FigureRequest& request);
std::string DrawPileHeads(const Evaluation& evaluation, const FigureRequest& request);
std::string DrawRatios(const Evaluation& evaluation, const FigureRequest& request);
std::string DrawElevation(const Evaluation& evaluation, const FigureRequest& request);
std::string DrawCaseScan(const Evaluation& evaluation, const FigureRequest& request);
std::string DrawEmbedment(const Evaluation& evaluation, const FigureRequest& request);

}  // namespace lumerin
