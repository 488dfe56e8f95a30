// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "model/CaseSelection.h"
#include "model/DataSet.h"

namespace lumerin {

// Why a project has no printed table (0 to 8) for a selection, in the engineer's words: "no cap", "a wall
// alone has no tables". Empty: the table applies.
std::string WhyTableDoesNotApply(const CDataSet& data, const CaseSelection& selection, TableId table);

}  // namespace lumerin
