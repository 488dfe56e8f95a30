// SPDX-License-Identifier: MIT
#include "text/Paths.h"

#include "framework/Backend.h"
#include "text/Utf8.h"

namespace lumerin {

std::string FolderOf(const std::string& path) {
    std::size_t end = path.size();
    while (end > 0 && !services::IsFolderSeparator(path[end - 1])) --end;
    return path.substr(0, end);
}

std::string PathAsText(const std::string& path) {
    return services::PathsAreUtf8() ? ToWestern(path) : path;
}

}  // namespace lumerin
