// SPDX-License-Identifier: MIT
#include "figures/FigureList.h"

#include <algorithm>
#include <array>

#include "records/TableRows.h"

namespace lumerin {

namespace {

constexpr std::array<FigureKind, 7> kFigures{{
    {"cap-shear",
     "envelope of the shear F22 along the cap, a panel a limit class",
     FigureScope::substructure,
     {SearchBit(kTableCapShear), true, true},
     "cap_envelope",
     DrawCapShear},
    {"cap-moment",
     "envelope of the moment M33 along the cap, a panel a limit class",
     FigureScope::substructure,
     {SearchBit(kTableCapMoment), true, true},
     "cap_envelope",
     DrawCapMoment},
    {"pile-heads",
     "range of the axial force at each pile head, and its greatest D/C",
     FigureScope::substructure,
     {0, true, true},
     "pile_heads",
     DrawPileHeads},
    {"dc",
     "the greatest D/C of each member against the limit, worst first",
     FigureScope::substructure,
     {0, true, true},
     "element_dc",
     DrawRatios},
    {"elevation",
     "the frame in the x-z plane, coloured by D/C, with the numbers of elements and nodes",
     FigureScope::substructure,
     {0, true, true},
     "element_dc",
     DrawElevation},
    {"case-scan",
     "D/C and forces of one element end over all cases, the limit classes side by side",
     FigureScope::element,
     {0, true, true},
     "element_forces",
     DrawCaseScan},
    {"embedment",
     "the curve of the embedment study, as the command embedment draws it",
     FigureScope::project,
     {},
     "embedment",
     DrawEmbedment},
}};

}  // namespace

std::span<const FigureKind> AllFigures() {
    return kFigures;
}

const FigureKind* FindFigure(std::string_view name) {
    const auto found = std::ranges::find(kFigures, name, &FigureKind::name);
    return found == kFigures.end() ? nullptr : &*found;
}

}  // namespace lumerin
