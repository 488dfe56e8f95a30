// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "model/Pier.h"
#include "results/ForceRecord.h"
#include "results/PierModel.h"

namespace lumerin {

// Which record of a case's block has the forces of which element. The same for every case.
struct CForceRead {
    long long record;  // from 1 inside the block
    int element;       // of the substructure's element list
    ForceKind kind;
};

// The reads of one load case in the order in which they are done: piles from the head, the cap from left to
// right, the columns, the extra members. `firstType` is the first substructure's structure type.
std::vector<CForceRead> PlanForceReads(const CPier& pier, const PierModel& model, StructureType firstType);

}  // namespace lumerin
