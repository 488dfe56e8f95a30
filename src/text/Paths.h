// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// The folder of a path up to and with its last separator; empty where the path has none.
std::string FolderOf(const std::string& path);

// A path as a document shows it: bytes of the Western code page, one a character. Only for documents: the
// path itself must stay as it was given, or its file would not be found.
std::string PathAsText(const std::string& path);

}  // namespace lumerin
