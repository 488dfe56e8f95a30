// SPDX-License-Identifier: MIT
#include "results/ProjectFiles.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "framework/File.h"
#include "text/Lists.h"
#include "text/Paths.h"

namespace lumerin {

namespace {
constexpr std::array<std::string_view, 12> kExtensions{".in",  ".twr", ".plf", ".pil", ".ncv", ".pls",
                                                       ".vmd", ".ash", ".cmb", ".lim", ".mis", ".pel"};

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

bool HasNameOfProjectFile(const std::string& path) {
    const std::string name = path.substr(FolderOf(path).size());
    const std::size_t point = name.rfind('.');
    if (point == std::string::npos) return false;
    std::string extension = LowerCase(name.substr(point));
    extension.erase(extension.find_last_not_of("0123456789") + 1);
    return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
}

}  // namespace lumerin
