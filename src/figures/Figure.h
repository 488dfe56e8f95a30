// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "embedment/StudyCurves.h"
#include "records/Evaluation.h"

namespace lumerin {

// The figures of a substructure. Each is a picture of its own that names project, substructure, cases and
// limit, so that a print without its report can be understood.

// What a figure is of.
enum class FigureScope {
    substructure,
    element,  // one element of a substructure
    project,  // FigureRequest::substructure is not used
};

struct FigureRequest {
    int substructure = 1;  // from 1
    int element = 0;       // its number (ELEM); 0: the one with the greatest ratio
    int end = -1;          // kEndI or kEndJ; -1: the one with the greater ratio
    StudyView study;       // of the figure of the embedment study
};

struct FigureKind {
    std::string_view name;     // "cap-shear"
    std::string_view content;  // what it shows, for the help
    FigureScope scope;
    TableNeeds needs;
    // The table that holds the numbers of the figure.
    std::string_view dataTable;
    // The SVG document. Of a substructure that has no such member it is a sentence. Throws CFileException,
    // and std::invalid_argument for an element that the substructure does not have.
    std::string (*draw)(const Evaluation& evaluation, const FigureRequest& request);
};

std::span<const FigureKind> AllFigures();
// Null: there is no such figure.
const FigureKind* FindFigure(std::string_view name);

}  // namespace lumerin
