// SPDX-License-Identifier: MIT
#include "framework/posix/FolderNames.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string_view>

#include "framework/AsciiCase.h"

namespace lumerin {

namespace {

// Listing a smaller folder again costs less than a project's load.
constexpr std::size_t kSmallFolder = 256;

struct FolderCloser {
    void operator()(DIR* folder) const { closedir(folder); }
};

// Less than 0, 0, or greater, as the names without regard to case come in byte order.
int CompareButForCase(std::string_view a, std::string_view b) {
    const std::size_t shared = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < shared; ++i) {
        const int difference =
            static_cast<unsigned char>(LowerAscii(a[i])) - static_cast<unsigned char>(LowerAscii(b[i]));
        if (difference != 0) return difference;
    }
    return static_cast<int>(a.size() > shared) - static_cast<int>(b.size() > shared);
}

bool IsBefore(const std::string& a, const std::string& b) {
    const int order = CompareButForCase(a, b);
    return order != 0 ? order < 0 : a < b;
}

// Not the standard library's directory iterator: it ends the process when memory runs out.
template <class Take>
void EachEntry(const std::string& folder, const Take& take) {
    const std::unique_ptr<DIR, FolderCloser> open(opendir(folder.empty() ? "." : folder.c_str()));
    while (const dirent* entry = open == nullptr ? nullptr : readdir(open.get())) {
        take(std::string_view(entry->d_name));
    }
}

// A folder and its state; it changes with each entry that comes or goes.
struct FolderState {
    std::uint64_t volume = 0, index = 0;
    std::int64_t seconds = -1, nanoseconds = 0;  // of the last change; -1: there is no such folder

    bool operator==(const FolderState&) const = default;
};

FolderState StateOf(const std::string& folder) {
    struct stat found {};
    if (stat(folder.empty() ? "." : folder.c_str(), &found) != 0) return {};
    return {found.st_dev, found.st_ino, found.st_mtim.tv_sec, found.st_mtim.tv_nsec};
}

// Two changes within one tick of the file system's clock have the same time, so a folder that has just
// changed is listed again.
bool HasSettled(const FolderState& state) {
    using std::chrono::seconds;
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return state.seconds >= 0 && std::chrono::duration_cast<seconds>(now).count() > state.seconds + 2;
}

// The names of the large folder that was listed last.
class LargeFolder {
  public:
    bool Is(const FolderState& state) const { return state.seconds >= 0 && state == m_state; }
    void List(const std::string& folder, const FolderState& state) {
        m_state = {};
        m_names.clear();
        EachEntry(folder, [this](std::string_view name) { m_names.emplace_back(name); });
        std::sort(m_names.begin(), m_names.end(), IsBefore);
        m_state = state;
    }
    template <class Take>
    void EachStartingWith(const std::string& start, const Take& take) const {
        auto name = std::lower_bound(
            m_names.begin(), m_names.end(), start,
            [](const std::string& a, const std::string& b) { return CompareButForCase(a, b) < 0; });
        for (; name != m_names.end() && StartsWithButForCase(*name, start); ++name)
            take(std::string_view(*name));
    }

  private:
    FolderState m_state;
    std::vector<std::string> m_names;  // in the order of IsBefore
};

// Calls `take` for the entries that begin with `start`, and for others of a small folder.
template <class Take>
void EachCandidate(const std::string& folder, const std::string& start, const Take& take) {
    static std::mutex mutex;
    static LargeFolder kept;
    // Before the listing: what changes meanwhile makes the listing one of an earlier state.
    const FolderState state = StateOf(folder);
    {
        const std::lock_guard lock(mutex);
        if (kept.Is(state)) {
            kept.EachStartingWith(start, take);
            return;
        }
    }
    std::size_t count = 0;
    EachEntry(folder, [&](std::string_view name) {
        ++count;
        take(name);
    });
    if (count <= kSmallFolder || !HasSettled(state)) return;
    const std::lock_guard lock(mutex);
    kept.List(folder, state);
}

}  // namespace

std::string EntryAnyCase(const std::string& folder, const std::string& name) {
    std::string found;
    EachCandidate(folder, name, [&](std::string_view candidate) {
        if (CompareButForCase(candidate, name) == 0 && (found.empty() || candidate < found))
            found = candidate;
    });
    return found;
}

std::vector<std::string> EntriesStartingWith(const std::string& folder, const std::string& start) {
    std::vector<std::string> names;
    EachCandidate(folder, start, [&](std::string_view candidate) {
        if (StartsWithButForCase(candidate, start)) names.emplace_back(candidate);
    });
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> FilesNamedBy(const std::string& path) {
    return {path};
}

}  // namespace lumerin
