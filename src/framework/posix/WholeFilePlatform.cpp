// SPDX-License-Identifier: MIT
#include "framework/WholeFilePlatform.h"
#include "framework/Index.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <memory>

namespace lumerin {

namespace wholefile {

const std::string_view kTemporaryEnding = ".LML";

namespace {

constexpr mode_t kNewFile = 0666;  // reduced by the user's mask
constexpr mode_t kRights = 0777;
constexpr std::size_t kPiece = 16384;

int Descriptor(Handle handle) {
    return static_cast<int>(handle);
}

struct FolderCloser {
    void operator()(DIR* folder) const { closedir(folder); }
};

// A file that is being written is locked by its process, and the lock ends with the process.
bool LockIsFree(int file) {
    return flock(file, LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

Target LookAt(const std::string& path) {
    struct stat found {};
    if (lstat(path.c_str(), &found) != 0) return Target::absent;
    if (S_ISDIR(found.st_mode) || S_ISCHR(found.st_mode) || S_ISBLK(found.st_mode)) return Target::refused;
    if (!S_ISREG(found.st_mode)) return Target::replaceable;
    // The system decides: rights, attributes and the file system can all forbid writing.
    const int file = open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return Target::refused;
    close(file);
    return Target::file;
}

std::string FolderPart(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);
}

Handle CreateNew(const std::string& path, bool& taken) {
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kNewFile);
    taken = file < 0 && errno == EEXIST;
    if (file < 0) return kNoHandle;
    // Between the two calls another process may have deleted it as a left-over.
    const bool cleared = !LockIsFree(file) && errno == EWOULDBLOCK;
    struct stat made {};
    taken = cleared || fstat(file, &made) != 0 || made.st_nlink == 0;
    if (!taken) return file;
    close(file);
    return kNoHandle;
}

Handle CreateNameless() {
    const char* folder = std::getenv("TMPDIR");
    std::string path = folder == nullptr || *folder == '\0' ? "/tmp" : folder;
    path += "/nameless.XXXXXX";
    const int file = mkostemp(path.data(), O_CLOEXEC);
    if (file < 0) return kNoHandle;
    unlink(path.c_str());
    return file;
}

void CopyRights(Handle handle, const std::string& from) noexcept {
    struct stat earlier {};
    if (lstat(from.c_str(), &earlier) != 0 || !S_ISREG(earlier.st_mode)) return;
    // Only root may change a file's owner. Another user stays the owner, and sets the group if he is a member
    // of it.
    if (fchown(Descriptor(handle), earlier.st_uid, earlier.st_gid) != 0 &&
        fchown(Descriptor(handle), static_cast<uid_t>(-1), earlier.st_gid) != 0) {
        // Otherwise the rights of the group would apply to another group.
        earlier.st_mode &= ~static_cast<mode_t>(S_IRWXG);
    }
    fchmod(Descriptor(handle), earlier.st_mode & kRights);
}

bool Write(Handle handle, const void* bytes, std::size_t count) noexcept {
    const char* from = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t stored = write(Descriptor(handle), from, count);
        if (stored < 0 && errno == EINTR) continue;
        if (stored <= 0) return false;
        from += stored;
        count -= Index(stored);
    }
    return true;
}

// A network file system reports at a close that it could not store the data. A copy of the handle is closed,
// so that the file stays open and locked.
bool Settle(Handle handle) noexcept {
    const int copy = fcntl(Descriptor(handle), F_DUPFD_CLOEXEC, 0);
    return copy >= 0 && close(copy) == 0;
}

bool Rename(Handle, const std::string& from, const std::string& to) {
    return rename(from.c_str(), to.c_str()) == 0;
}

bool CopyInto(Handle handle, const std::string& to) {
    const int file = open(to.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return false;
    struct stat found {};
    bool whole = fstat(file, &found) == 0 && S_ISREG(found.st_mode) && ftruncate(file, 0) == 0 &&
                 lseek(Descriptor(handle), 0, SEEK_SET) == 0;
    std::array<char, kPiece> piece{};
    ssize_t got = 1;
    while (whole && got > 0) {
        got = read(Descriptor(handle), piece.data(), piece.size());
        whole = got >= 0 && Write(file, piece.data(), Index(got));
    }
    return close(file) == 0 && whole;
}

void Close(Handle handle) noexcept {
    close(Descriptor(handle));
}

void Remove(Handle handle, const std::string& path) noexcept {
    unlink(path.c_str());
    close(Descriptor(handle));
}

void RemoveLeftOvers(const std::string& folder) {
    const std::unique_ptr<DIR, FolderCloser> open(opendir(folder.empty() ? "." : folder.c_str()));
    if (open == nullptr) return;
    while (const dirent* entry = readdir(open.get())) {
        if (!IsTemporaryName(entry->d_name)) continue;
        const int file =
            openat(dirfd(open.get()), entry->d_name, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (file < 0) continue;
        struct stat found {};
        if (fstat(file, &found) == 0 && S_ISREG(found.st_mode) && LockIsFree(file)) {
            unlinkat(dirfd(open.get()), entry->d_name, 0);
        }
        close(file);
    }
}

}  // namespace wholefile

}  // namespace lumerin
