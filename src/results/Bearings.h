// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "model/Members.h"

namespace lumerin {

using BearingRows = std::vector<CBearingRow>;

// The one or two rows of bearings of a substructure (pls); `number` counts from 1. Throws CFileException for
// a missing or broken file.
BearingRows ReadBearings(const std::string& basePath, int number);

}  // namespace lumerin
