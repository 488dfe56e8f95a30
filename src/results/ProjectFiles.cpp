// SPDX-License-Identifier: MIT
#include "results/ProjectFiles.h"

#include "framework/File.h"

namespace lumerin {

namespace {
std::string AsItLies(const std::string& path) {
    const std::string found = FindFileAnyCase(path);
    return found.empty() ? path : found;
}
}  // namespace

std::string ProjectFile(const std::string& basePath, const char* suffix) {
    return AsItLies(basePath + suffix);
}

std::string SubstructureFile(const std::string& basePath, const char* suffix, int number) {
    const std::string path = basePath + suffix;
    return AsItLies(number > 1 ? path + std::to_string(number) : path);
}

}  // namespace lumerin
