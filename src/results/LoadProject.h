// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "model/DataSet.h"
#include "results/ForceSource.h"
#include "text/Messages.h"

namespace lumerin {

// A project as its files describe it.
struct Project {
    CDataSet data;
    ForceSources forces;           // by substructure
    long long missingRecords = 0;  // of all force files; each takes the forces of the record before it
};

// Reads the project whose files are named by `basePath` and their suffixes. Empty: no case converged, which
// was reported. Throws CFileException for a missing or broken file. Nothing is kept between two loads, so
// that several can run at the same time.
std::optional<Project> LoadProject(const std::string& basePath, Messages& messages);

}  // namespace lumerin
