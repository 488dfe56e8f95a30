// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// Whether the project has an embedment study: the report dialog's button follows these two.

// The study's base file: the project's input file with its extension replaced.
std::string EmbedmentBaseFile(const std::string& inputFile);
bool HasEmbedmentFile(const std::string& inputFile);
// Whether the project's input file asks for the study, in the section that follows its problem section.
bool IsEmbedmentRequested(const std::string& inputFile);
// Both.
bool HasEmbedmentStudy(const std::string& inputFile);

}  // namespace lumerin
