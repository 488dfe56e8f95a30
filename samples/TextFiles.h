// SPDX-License-Identifier: MIT
// The host's text files: the input, the combinations and limit states, and the keyed file of the project.
#pragma once

#include <filesystem>

#include "samples/Model.h"

namespace lumerin {

namespace samples {

// Writes ".in", ".MIS" and, with combinations, ".CMB" and ".LIM"; `base` is the path without suffix.
// Throws SampleError.
void WriteTextFiles(const std::filesystem::path& base, const Project& project);

}  // namespace samples

}  // namespace lumerin
