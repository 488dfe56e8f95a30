// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "text/Utf8.h"

namespace lumerin {

// Conversion between the user's encoding and the product's. Options, scripts and lines on the terminal are
// UTF-8. Inside, a text is bytes of the Western code page, which documents and dialogs count their columns
// in; only paths of files stay as they were given, in input and output.

// A text of an option or of a script: one for a document or for a control.
inline std::string FromUser(std::string_view text) {
    return ToWestern(text);
}

// A text of the product, with the paths in it, for the terminal.
inline std::string ForUser(std::string_view text) {
    return ToUtf8(text);
}

inline void PrintLine(std::ostream& out, std::string_view text) {
    out << WithoutControls(ForUser(text)) << std::endl;
}

}  // namespace lumerin
