// SPDX-License-Identifier: MIT
#pragma once

#include "framework/Clock.h"
#include "records/Evaluation.h"
#include "web/Page.h"
#include "web/WebReport.h"

namespace lumerin {

// The parts of the web report before its figures and after its tables, in their order.

// The name of the project's input file without its folder.
std::string InputFileName(const Evaluation& evaluation);
// The project's own name; that of its file where it has none.
std::string ProjectTitle(const Evaluation& evaluation);

// What the project is, and whether it passes.
void AppendCover(const Evaluation& evaluation, const WebReportTexts& texts, Html& html);
// The greatest ratios with their forces.
void AppendGoverning(const Evaluation& evaluation, Html& html);
void AppendFindings(const Evaluation& evaluation, Html& html);
// The least and the greatest axial force of each pile's head over the chosen cases.
void AppendPileHeadRanges(const Evaluation& evaluation, Html& html);
// The chosen cases, up to kMostListedCases.
void AppendCases(const Evaluation& evaluation, Html& html);

inline constexpr int kMostListedCases = 2000;

}  // namespace lumerin
