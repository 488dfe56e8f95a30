// SPDX-License-Identifier: MIT
#include "figures/FigureList.h"

#include <algorithm>
#include <array>

#include "records/TableRows.h"

namespace lumerin {

namespace {

constexpr std::array<FigureKind, 4> kFigures{{
    {"cap-shear",
     "envelope of the shear F22 along the cap, a panel a limit class",
     {SearchBit(kTableCapShear), true, true},
     "cap_envelope",
     DrawCapShear},
    {"cap-moment",
     "envelope of the moment M33 along the cap, a panel a limit class",
     {SearchBit(kTableCapMoment), true, true},
     "cap_envelope",
     DrawCapMoment},
    {"pile-heads",
     "range of the axial force at each pile head, and its greatest D/C",
     {0, true, true},
     "pile_heads",
     DrawPileHeads},
    {"dc",
     "the greatest D/C of each member against the limit, worst first",
     {0, true, true},
     "element_dc",
     DrawRatios},
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
