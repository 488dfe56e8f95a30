// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lumerin {

// The word that the user may have meant: the one with the fewest letters to insert, delete, replace or swap,
// at most one for each three letters that were begun. Empty: none is near. Letters of either case are the
// same.
std::string NearestWord(std::string_view given, std::span<const std::string> words);

// "; do you mean axial?", or nothing when no word is near.
std::string Suggestion(std::string_view given, const std::vector<std::string>& words,
                       std::string_view before = "", std::string_view after = "");

// The text for the user: "xslx" is no format; do you mean xlsx? (text, pdf, excel, xlsx)
std::string UnknownWord(std::string_view given, std::string_view kind, const std::vector<std::string>& words);

}  // namespace lumerin
