// SPDX-License-Identifier: MIT
#pragma once

#include "model/CaseSelection.h"
#include "model/Pier.h"
#include "results/ForceSource.h"
#include "text/Messages.h"

namespace lumerin {

// The input of the search of one substructure. The owner keeps all of it as long as the search exists.
struct PierInput {
    const CPier& pier;
    const CaseSelection& selection;
    Messages& messages;  // a cap whose members do not fit together is reported here
};

}  // namespace lumerin
