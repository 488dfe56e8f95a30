// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumerin {

// A project in one input: a byte that chooses the selection of cases, then for each file the length of its
// name (one byte), the name after the base path, the length of its bytes (four, the lowest first), and the
// bytes. A length that runs past the end is cut to what is left.
struct Archive {
    std::uint8_t choice = 0;
    std::vector<std::pair<std::string, std::string>> files;
};

Archive Unpack(std::span<const std::uint8_t> bytes);
std::string Pack(const Archive& archive);

// Whether a file of that name may be written: a suffix of the base path or a trial's file, nothing else.
bool IsFileName(std::string_view name);

}  // namespace lumerin
