// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace lumerin {

// Between UTF-8, which terminals and Linux's file names are in, and the Western code page, which documents
// and the dialogs' texts are in: one byte a character, so that a text is as wide as it is long.

// A text of the code page as UTF-8. What is a UTF-8 sequence already stays: a message holds the path of a
// file as it was given.
std::string ToUtf8(std::string_view text);

// A UTF-8 text in the code page, with a "?" for each character that it does not have. Bytes that are no UTF-8
// sequence are taken for the code page's own.
std::string ToWestern(std::string_view text);

}  // namespace lumerin
