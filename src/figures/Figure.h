// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "records/Evaluation.h"

namespace lumerin {

// The figures of a substructure. Each is a picture of its own that names project, substructure, cases and
// limit, so that a print without its report can be understood.

struct FigureRequest {
    int substructure = 1;  // from 1
};

struct FigureKind {
    std::string_view name;     // "cap-shear"
    std::string_view content;  // what it shows, for the help
    TableNeeds needs;
    // The names of the tables that hold the numbers of the figure.
    std::string_view dataTable;
    // The SVG document. Of a substructure that has no such member it is a sentence. Throws CFileException.
    std::string (*draw)(const Evaluation& evaluation, const FigureRequest& request);
};

std::span<const FigureKind> AllFigures();
// Null: there is no such figure.
const FigureKind* FindFigure(std::string_view name);

}  // namespace lumerin
