// SPDX-License-Identifier: MIT
// A whole project on disk.
#pragma once

#include <filesystem>

#include "samples/Model.h"

namespace lumerin {

namespace samples {

// Writes every file of the project into the folder, which is made when it is not there, and takes away files
// of an earlier project of the same name that this one does not have. Throws SampleError.
void WriteProject(const std::filesystem::path& folder, const Project& project);

}  // namespace samples

}  // namespace lumerin
