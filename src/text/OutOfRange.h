// SPDX-License-Identifier: MIT
#pragma once

#include <limits>
#include <string>
#include <string_view>

namespace lumerin {

// The missing end of a range that is limited at one end only.
inline constexpr long long kNoLowest = std::numeric_limits<long long>::min();
inline constexpr long long kNoHighest = std::numeric_limits<long long>::max();

// The text with which a message reports a number from a file that cannot be right: "column count 9000000 is
// out of range (0 to 1000000)". `what` names the number; a range without one end shows the other: "(2 or
// more)".
std::string OutOfRange(std::string_view what, long long value, long long lowest, long long highest);

}  // namespace lumerin
