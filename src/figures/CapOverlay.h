// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "figures/CapData.h"
#include "records/Units.h"

namespace lumerin {

// The envelopes of the cap of two runs in one picture, a panel for each limit class: the earlier one dashed
// and grey, the later one solid. An SVG document; empty where neither run has a cap. `substructure` counts
// from 1 and is one of both runs. The evaluations have the needs of the figures of the cap. In `units`.
std::string DrawCapOverlay(const Evaluation& before, const Evaluation& after, int substructure,
                           CapForce force, UnitSystem units);

}  // namespace lumerin
