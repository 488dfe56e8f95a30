// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// The path of a project's result file: base path and suffix, with the substructure's number (from 1) after
// the suffix for all substructures but the first. Where the file system tells case from case, the existing
// file that differs in case alone is taken.
std::string ProjectFile(const std::string& basePath, const char* suffix);
std::string SubstructureFile(const std::string& basePath, const char* suffix, int number);

}  // namespace lumerin
