// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lumerin {

// Words and lists as a user types them.

// The parts of a list between commas, in its order; an empty text is one empty part. They are parts of
// `text`, which must outlive them.
std::vector<std::string_view> SplitList(std::string_view text);
// With lower case letters in place of A to Z; all other bytes are unchanged, whatever the locale.
std::string LowerCase(std::string_view text);

}  // namespace lumerin
