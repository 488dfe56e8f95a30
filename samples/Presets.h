// SPDX-License-Identifier: MIT
// The sample projects by name.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "samples/Model.h"

namespace lumerin {

namespace samples {

struct SampleOptions {
    std::string preset = "pier";
    std::optional<std::string> name;  // nothing: that of the preset
    std::uint64_t seed = 1;
    std::optional<int> cases;  // nothing: the preset's own
    std::optional<int> rows;   // of piles; both or none
    std::optional<int> columns;
    std::optional<int> filled;  // cases with forces at each end of the force files; a hole is between them
    std::optional<int> trials;  // of the embedment study, where the preset has one
};

struct PresetInfo {
    std::string_view name;
    std::string_view summary;
};

std::span<const PresetInfo> Presets();

// Throws SampleError for an unknown preset, a name that is no file name, or a size beyond the host's limits.
Project MakeProject(const SampleOptions& options);

}  // namespace samples

}  // namespace lumerin
