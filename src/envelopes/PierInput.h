// SPDX-License-Identifier: MIT
#pragma once

#include "model/CaseSelection.h"
#include "model/Pier.h"
#include "results/ForceSource.h"
#include "text/Messages.h"

namespace lumerin {

// What the search of one substructure works on. The owner keeps all of it for the life of the search.
struct PierInput {
    const CPier& pier;
    const CaseSelection& selection;
    Messages& messages;  // a cap whose members do not fit together is reported here
};

}  // namespace lumerin
