// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace lumerin {

// The names of the entries of `folder` that begin with `start`, without regard to the case of the letters A
// to Z, sorted by their bytes. With an empty `start` these are all entries, "." and ".." with them, and none
// where the folder cannot be listed. An empty folder is the current one. May be called in several threads.
std::vector<std::string> EntriesStartingWith(const std::string& folder, const std::string& start);

// The files that a path names whose last part has * or ?, as the shell of Linux replaces it before a program
// sees it: there the path itself. On Windows they are sorted by their bytes; the path itself where there is
// none.
std::vector<std::string> FilesNamedBy(const std::string& path);

}  // namespace lumerin
