// SPDX-License-Identifier: MIT
#include "export/LibraryPaths.h"

namespace lumerin {

std::string FolderForFopen(const std::string& folder) {
    return folder;
}

std::string PathForSqlite(const std::string& path) {
    return path;
}

const char* SqliteFileFunctions() {
    return nullptr;
}

}  // namespace lumerin
