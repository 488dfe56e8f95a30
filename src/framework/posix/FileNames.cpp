// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "framework/File.h"
#include "framework/WholeFilePlatform.h"
#include "framework/posix/FolderNames.h"

namespace lumerin {

// File names on a file system that distinguishes upper from lower case.

namespace fs = std::filesystem;

std::string FindFileAnyCase(const std::string& path) {
    std::error_code failure;
    if (fs::exists(path, failure)) return path;
    fs::path found;
    for (const fs::path& part : fs::path(path)) {
        fs::path next = found / part;
        if (!fs::exists(next, failure)) {
            const std::string entry = EntryAnyCase(found.string(), part.string());
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

std::string PathButForCase(const std::string& path) {
    return path;
}

bool IsFolder(const std::string& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

bool IsRealFolder(const std::string& path) {
    struct stat found {};
    return lstat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode);
}

std::optional<std::chrono::system_clock::time_point> LastChange(const std::string& path) {
    using std::chrono::system_clock;
    const FileStamp stamp = StampOf(path);
    if (stamp.length < 0) return std::nullopt;
    const std::chrono::nanoseconds since1970(stamp.modified);
    return system_clock::time_point(std::chrono::duration_cast<system_clock::duration>(since1970));
}

std::FILE* OpenForReading(const std::string& path) {
    return std::fopen(path.c_str(), "rb");
}

std::error_code ErrorOfWriting(const std::string& path) {
    std::error_code ignored;
    const bool isThere = fs::exists(path, ignored);
    std::string made = wholefile::FolderPart(path) + ".new-XXXXXX";
    const int file =
        isThere ? open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC) : mkostemp(made.data(), O_CLOEXEC);
    if (file < 0) return {errno, std::generic_category()};
    if (!isThere) unlink(made.c_str());
    close(file);
    return {};
}

}  // namespace lumerin
