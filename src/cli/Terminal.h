// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace lumerin {

// What the program's own streams are connected to. Any other stream is no terminal.
bool IsTerminal(const std::ostream& stream);
// Columns of the terminal of standard output, or COLUMNS; 80 where neither is known. At least 40.
std::size_t TerminalWidth();
// On a terminal, unless the user forbids it by NO_COLOR.
bool UsesColour(const std::ostream& stream);

enum class Paint { red, yellow, green, bold };
// The text in a colour where the stream shows colours, else the text.
std::string Painted(std::string_view text, Paint paint, const std::ostream& stream);

// The paragraphs of a text, broken at blanks to `width` columns; lines after the first of each begin with
// `indent` blanks. An empty line ends a paragraph, and a line that begins with a blank is left as it is.
std::string Wrapped(std::string_view text, std::size_t width, std::size_t indent = 0);

// Gives the first three descriptors a file where they are closed, so that no document gets their number. To
// be called first. Writing to such a standard output fails.
void OpenStandardStreams();

}  // namespace lumerin
