// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "records/Table.h"

namespace lumerin {

// What the text forms share.

// Bytes are stored in pieces of this size; a row is seldom longer than the second.
inline constexpr std::size_t kFlushBytes = std::size_t{1} << 17;
inline constexpr std::size_t kRowBytes = 4096;

// A cell that is no text: nothing for an absent one, "true" or "false", or the number.
void AppendPlain(std::string& out, const Value& value);
// Whether the cell is a number without digits: infinite or not a number.
bool IsNotFinite(const Value& value);

}  // namespace lumerin
