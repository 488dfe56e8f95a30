// SPDX-License-Identifier: MIT
#include "framework/FolderNames.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "framework/AsciiCase.h"
#include "framework/Backend.h"
#include "framework/windows/System.h"
#include "framework/windows/WidePath.h"

namespace lumerin {

namespace {

struct SearchCloser {
    void operator()(HANDLE search) const { FindClose(search); }
};

// Calls `take` for the names that the system finds for a path whose last part has * or ?.
template <class Take>
void EachFound(const std::string& path, const Take& take) {
    WIN32_FIND_DATAW found{};
    // The prefix of a long path makes it a full one, so the pattern is part of it from the start.
    const HANDLE first = FindFirstFileW(windows::WidePath(path).c_str(), &found);
    if (first == INVALID_HANDLE_VALUE) return;
    const std::unique_ptr<void, SearchCloser> search(first);
    do {
        take(windows::FromWide(found.cFileName));
    } while (FindNextFileW(search.get(), &found));
}

}  // namespace

std::vector<std::string> EntriesStartingWith(const std::string& folder, const std::string& start) {
    std::vector<std::string> names;
    const bool isWhole = folder.empty() || services::IsFolderSeparator(folder.back());
    EachFound(folder + (isWhole ? "" : "\\") + start + '*', [&](std::string name) {
        // A pattern finds the short names of files as well.
        if (StartsWithButForCase(name, start)) names.push_back(std::move(name));
    });
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> FilesNamedBy(const std::string& path) {
    std::size_t last = path.size();
    while (last > 0 && !services::IsFolderSeparator(path[last - 1])) --last;
    std::vector<std::string> files;
    // Those of the prefix of long paths are no pattern.
    if (path.find_first_of("*?", last) != std::string::npos) {
        EachFound(path, [&](const std::string& name) {
            if (name != "." && name != "..") files.push_back(path.substr(0, last) + name);
        });
    }
    if (files.empty()) return {path};
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace lumerin
