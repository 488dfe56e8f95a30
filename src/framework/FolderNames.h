// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace lumerin {

// The names of the entries of `folder` that begin with `start`, without regard to the case of the letters A
// to Z, sorted by their bytes. With an empty `start` these are all entries, "." and ".." with them, and none
// where the folder cannot be listed. An empty folder is the current one. May be called in several threads.
std::vector<std::string> EntriesStartingWith(const std::string& folder, const std::string& start);

}  // namespace lumerin
