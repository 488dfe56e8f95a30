// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "model/CaseSelection.h"
#include "model/DataSet.h"

namespace lumerin {

// The two words that the plot module opens on, from the first substructure; empty without one.

// "Shear" or "Moment": a project with fatigue combinations only has no shear table. Empty: no class has a
// case.
std::string FirstPlotWord(const CDataSet& data, const CaseSelection& selection);
// The limit family of the first class that has a case.
std::string LimitFamilyWord(const CDataSet& data, const CaseSelection& selection);

}  // namespace lumerin
