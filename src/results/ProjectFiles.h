// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// The path of a project's result file: base path and suffix, with the substructure's number (from 1) after
// the suffix for all substructures but the first. On a file system with case-sensitive names an existing file
// whose name differs in case alone is used.
std::string ProjectFile(const std::string& basePath, const char* suffix);
std::string SubstructureFile(const std::string& basePath, const char* suffix, int number);

// Whether a file of that name would be one that a project is read from, by its extension in letters of either
// case, without the number of a substructure.
bool HasNameOfProjectFile(const std::string& path);

}  // namespace lumerin
