// SPDX-License-Identifier: MIT
// The files of an embedment study: the extremes at the pile heads for every trial length.
#pragma once

#include <filesystem>

#include "samples/Model.h"

namespace lumerin {

namespace samples {

// Writes the base file and the trial folders below `folder`; nothing where the project has no study.
// Throws SampleError.
void WriteEmbedmentStudy(const std::filesystem::path& folder, const Project& project);

}  // namespace samples

}  // namespace lumerin
