// SPDX-License-Identifier: MIT
#include <dirent.h>
#include <sys/stat.h>

#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "framework/File.h"

namespace lumerin {

// File names on a file system that distinguishes upper from lower case.

namespace {

namespace fs = std::filesystem;

struct FolderCloser {
    void operator()(DIR* folder) const { closedir(folder); }
};

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool SameButForCase(const std::string& a, const std::string& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (LowerAscii(a[i]) != LowerAscii(b[i])) return false;
    }
    return true;
}

// The entry of `folder` whose name differs from `name` in case alone; of several the first in byte order, so
// that the choice does not depend on the file system's order. Empty: there is none.
std::string EntryAnyCase(const fs::path& folder, const std::string& name) {
    // Not the standard library's directory iterator: it ends the process when memory runs out.
    const std::unique_ptr<DIR, FolderCloser> open(opendir(folder.empty() ? "." : folder.c_str()));
    std::string found;
    while (const dirent* entry = open == nullptr ? nullptr : readdir(open.get())) {
        const std::string candidate = entry->d_name;
        if (SameButForCase(candidate, name) && (found.empty() || candidate < found)) found = candidate;
    }
    return found;
}

}  // namespace

std::string FindFileAnyCase(const std::string& path) {
    std::error_code failure;
    if (fs::exists(path, failure)) return path;
    fs::path found;
    for (const fs::path& part : fs::path(path)) {
        fs::path next = found / part;
        if (!fs::exists(next, failure)) {
            const std::string entry = EntryAnyCase(found, part.string());
            if (entry.empty()) return {};
            next = found / entry;
        }
        found = std::move(next);
    }
    return found.string();
}

FileStamp StampOf(const std::string& path) {
    struct stat found {};
    if (stat(FindFileAnyCase(path).c_str(), &found) != 0) return {};
    constexpr std::int64_t kTicksPerSecond = 1000000000;
    return {found.st_size, found.st_mtim.tv_sec * kTicksPerSecond + found.st_mtim.tv_nsec,
            static_cast<std::uint64_t>(found.st_dev), static_cast<std::uint64_t>(found.st_ino)};
}

bool IsFolder(const std::string& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

}  // namespace lumerin
