// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lumerin {

// What some editors write before a text in UTF-8.
inline constexpr std::string_view kMarkOfUtf8 = "\xEF\xBB\xBF";

// Conversion between UTF-8, the encoding of terminals and of Linux's file names, and the Western code page,
// that of documents and dialogs: one byte a character, so that the number of bytes is the width of a text.

// A text of the code page as UTF-8. UTF-8 sequences in it are unchanged, because a message contains the path
// of a file as it was given.
std::string ToUtf8(std::string_view text);

// A UTF-8 text in the code page, with a "?" for each character that the code page does not have. Bytes that
// are not a UTF-8 sequence are taken as bytes of the code page.
std::string ToWestern(std::string_view text);

// The bytes of a UTF-8 text without a character at its end that has only begun.
std::size_t WholeCharacters(std::string_view text);

// A text in UTF-8 for a terminal, with "?" in place of control characters other than tabulators and line
// feeds: the texts of a project may come from strangers, and a terminal obeys such characters.
std::string WithoutControls(std::string_view text);

}  // namespace lumerin
