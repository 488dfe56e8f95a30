// SPDX-License-Identifier: MIT
#include "framework/NativePath.h"

namespace lumerin {

std::filesystem::path NativePath(const std::string& path) {
    return path;
}

std::string FromNativePath(const std::filesystem::path& path) {
    return path.native();
}

}  // namespace lumerin
