// SPDX-License-Identifier: MIT
#include "framework/FolderNames.h"

#include <algorithm>
#include <memory>

#include "framework/Backend.h"
#include "framework/windows/System.h"
#include "framework/windows/WidePath.h"

namespace lumerin {

namespace {

struct SearchCloser {
    void operator()(HANDLE search) const { FindClose(search); }
};

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool StartsWith(const std::string& name, const std::string& start) {
    return name.size() >= start.size() &&
           std::equal(start.begin(), start.end(), name.begin(),
                      [](char a, char b) { return LowerAscii(a) == LowerAscii(b); });
}

}  // namespace

std::vector<std::string> EntriesStartingWith(const std::string& folder, const std::string& start) {
    std::vector<std::string> names;
    const bool isWhole = folder.empty() || services::IsFolderSeparator(folder.back());
    const std::string path = folder + (isWhole ? "" : "\\") + start;
    WIN32_FIND_DATAW found{};
    // The prefix of a long path makes it a full one, so the pattern is part of it from the start.
    const HANDLE first = FindFirstFileW(windows::WidePath(path + '*').c_str(), &found);
    if (first == INVALID_HANDLE_VALUE) return names;
    const std::unique_ptr<void, SearchCloser> search(first);
    do {
        // A pattern finds the short names of files as well.
        std::string name = windows::FromWide(found.cFileName);
        if (StartsWith(name, start)) names.push_back(std::move(name));
    } while (FindNextFileW(search.get(), &found));
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace lumerin
