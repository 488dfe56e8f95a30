// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace lumerin {

// A cell's text read as a number: leading white space, a sign and the digits are read, what follows is
// ignored, and a text that starts with no number reads as 0.

// Values beyond the range of int read as the nearest one.
int ReadCellInt(std::string_view text);
// Decimal numbers with an exponent. Words for infinity and not-a-number and hexadecimal text read as 0.
double ReadCellDouble(std::string_view text);

}  // namespace lumerin
