// SPDX-License-Identifier: MIT
// Nodes, elements and numbers of a substructure, in the order in which the host lists them.
#pragma once

#include "samples/Model.h"

namespace lumerin {

namespace samples {

// Throws SampleError where the plan does not fit together (a bearing at an x without a node, for instance).
Substructure BuildSubstructure(const SubstructurePlan& plan);

// Index of a column's node among the nodes after the foundation's; level 0 is its foot.
int ColumnNodePosition(const SubstructurePlan& plan, int column, int level);

}  // namespace samples

}  // namespace lumerin
