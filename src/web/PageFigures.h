// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "records/Evaluation.h"
#include "web/Links.h"
#include "web/Page.h"

namespace lumerin {

// The figures of a report as parts of its page.

struct PageFigure {
    std::string id;        // in the page
    std::string title;     // markup: "Cap moment M33"
    int substructure = 0;  // from 1; 0: of the project
    std::string prefix;    // of the ids of its marks
    std::string svg;       // empty: there is nothing to draw
    std::string sentence;  // in its place
};

// Draws every figure of every substructure. The ids of their marks become those of the page and are entered.
std::vector<PageFigure> DrawFigures(const Evaluation& evaluation, Links& links);

// Its title, with the substructure where the project has several.
std::string FigureHeading(const Evaluation& evaluation, const PageFigure& figure);

// Writes a drawing; each mark that has a row leads to it.
void AppendDrawing(const PageFigure& figure, const Links& links, Html& html);

// The signs that are known: those of the axial force and of the moment in a cap.
std::string DrawSigns();

}  // namespace lumerin
