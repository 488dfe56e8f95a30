// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "model/DataSet.h"
#include "text/Messages.h"

namespace lumerin {

// Reads the code family (ash), the titles (CMB) and the limit states (LIM) of the combinations for
// substructure k, from 0. Titles, names and numbers are stored in the first substructure, from which all
// tables take them; limit classes to substructure k. A combination with a limit state that the family does
// not have is reported. Throws CFileException for a broken code family file; the other files may be missing.
void ReadCombinationData(const std::string& basePath, int k, CDataSet& data, Messages& messages);

}  // namespace lumerin
