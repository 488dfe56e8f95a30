// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace lumerin {

// Columns of the terminal of standard output, or COLUMNS; 80 where neither is known. At least 40.
std::size_t TerminalWidth();
// For the program's own streams, on a terminal that can show colours, unless the user forbids it by NO_COLOR.
bool UsesColour(const std::ostream& stream);

enum class Paint { red, yellow, green, bold };
// The text in a colour where the stream shows colours, else the text.
std::string Painted(std::string_view text, Paint paint, const std::ostream& stream);

// The paragraphs of a text, broken at blanks to `width` columns; lines after the first of each begin with
// `indent` blanks. An empty line ends a paragraph, and a line that begins with a blank is left as it is.
std::string Wrapped(std::string_view text, std::size_t width, std::size_t indent = 0);

}  // namespace lumerin
