// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "text/Utf8.h"

namespace lumerin {

// The border between the user and the product. Options, scripts and lines on the terminal are UTF-8. Inside,
// a text is bytes of the Western code page, which documents and dialogs count their columns in; paths of
// files alone stay as they were given, on the way in and on the way out.

// A text of an option or of a script: one for a document or for a control.
inline std::string FromUser(std::string_view text) {
    return ToWestern(text);
}

// What the product says, with the paths in it.
inline std::string ForUser(std::string_view text) {
    return ToUtf8(text);
}

inline void PrintLine(std::ostream& out, std::string_view text) {
    out << ForUser(text) << std::endl;
}

}  // namespace lumerin
