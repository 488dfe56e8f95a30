// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace lumerin {

// A path of this program as the standard library takes it, and back. A std::string holds UTF-8 where
// services::PathsAreUtf8 says so, else bytes of the code page, which std::filesystem would take for something
// else on Windows. Elsewhere the bytes stay as they are.
//
// A path that is too long for Windows gets the prefix of long paths, which FromNativePath removes.
std::filesystem::path NativePath(const std::string& path);
std::string FromNativePath(const std::filesystem::path& path);

}  // namespace lumerin
