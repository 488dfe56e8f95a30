// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "compare/Comparison.h"

namespace lumerin {

// Cases that are new, gone, or of another limit state, class or choice; by their numbers.
std::vector<StructureChange> CompareCases(const CaseMatch& cases);

// Substructures, members, sections, nodes, supports and bearings. One entry for each kind and substructure,
// with a count. Lengths are in `units`.
std::vector<StructureChange> CompareModels(const Evaluation& before, const Evaluation& after,
                                           UnitSystem units);

}  // namespace lumerin
