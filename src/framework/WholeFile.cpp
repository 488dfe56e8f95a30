// SPDX-License-Identifier: MIT
#include "framework/WholeFile.h"

#include <atomic>
#include <chrono>

#include "framework/WholeFilePlatform.h"

namespace lumerin {

namespace {

constexpr char kMark = '~';
constexpr std::size_t kDigits = 6;
constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr int kNameTries = 100;

// The names may be easy to guess: a new file is never made under a name that exists. Documents are written in
// several threads.
std::uint32_t NextNumber() {
    static std::atomic<std::uint32_t> number =
        static_cast<std::uint32_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    std::uint32_t before = number;
    while (!number.compare_exchange_weak(before, before * 1664525u + 1013904223u)) {
    }
    return (before * 1664525u + 1013904223u) >> 8u;
}

// Holds the threads apart for the comparison of a name, without the memory that a mutex of the run-time may
// take at its first lock.
class Turn {
  public:
    explicit Turn(std::atomic_flag& flag) : m_flag(flag) {
        while (m_flag.test_and_set(std::memory_order_acquire)) {
        }
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() { m_flag.clear(std::memory_order_release); }

  private:
    std::atomic_flag& m_flag;
};

// A search of the folder for every document would take a batch longer than writing the documents.
struct ClearedFolder {
    bool known = false;
    std::string name;
};
std::atomic<int> g_batches;
std::atomic_flag g_clearedFlag;  // held while the value of LastCleared is used
ClearedFolder& LastCleared() {
    static ClearedFolder folder;
    return folder;
}

void ClearOnce(const std::string& folder) {
    {
        const Turn turn(g_clearedFlag);
        ClearedFolder& last = LastCleared();
        if (last.known && last.name == folder) return;
        last.name = folder;
        last.known = true;
    }
    wholefile::RemoveLeftOvers(folder);
}

}  // namespace

namespace wholefile {

std::string TemporaryName(std::uint32_t number) {
    std::string name(1, kMark);
    for (std::size_t i = 0; i < kDigits; ++i) name += kHexDigits[number >> (4 * i) & 0xFu];
    return name.append(kTemporaryEnding);
}

bool IsTemporaryName(std::string_view name) {
    return name.size() == 1 + kDigits + kTemporaryEnding.size() && name[0] == kMark &&
           name.substr(1, kDigits).find_first_not_of(kHexDigits) == std::string_view::npos &&
           name.ends_with(kTemporaryEnding);
}

}  // namespace wholefile

bool WholeFile::Open(const std::string& path) {
    Discard();
    m_failed = false;
    const wholefile::Target target = wholefile::LookAt(path);
    if (target == wholefile::Target::refused) return false;
    m_path = path;
    const std::string folder = wholefile::FolderPart(path);
    ClearOnce(folder);
    const bool isFile = target == wholefile::Target::file;
    if (!CreateBeside(folder) && isFile) m_handle = wholefile::CreateNameless();
    if (isFile && !m_temporary.empty()) wholefile::CopyRights(m_handle, path);
    return IsOpen();
}

bool WholeFile::CreateBeside(const std::string& folder) {
    bool taken = true;
    for (int i = 0; taken && i < kNameTries; ++i) {
        m_temporary = folder + wholefile::TemporaryName(NextNumber());
        m_handle = wholefile::CreateNew(m_temporary, taken);
        if (IsOpen()) return true;
    }
    m_temporary.clear();
    return false;
}

bool WholeFile::Write(const void* bytes, std::size_t count) {
    // After a failed write nothing more is written: bytes after a gap would hide that some are missing.
    if (!IsOpen() || m_failed) return false;
    m_failed = !wholefile::Write(m_handle, bytes, count);
    return !m_failed;
}

bool WholeFile::Commit() {
    const bool placed = IsOpen() && !m_failed && wholefile::Settle(m_handle) && Place();
    Discard();
    return placed;
}

bool WholeFile::Place() {
    if (!m_temporary.empty() && wholefile::Rename(m_handle, m_temporary, m_path)) {
        m_temporary.clear();
        return true;
    }
    return wholefile::LookAt(m_path) == wholefile::Target::file && wholefile::CopyInto(m_handle, m_path);
}

void WholeFile::BeginRun() noexcept {
    if (g_batches > 0) return;
    const Turn turn(g_clearedFlag);
    LastCleared().known = false;
}

WholeFile::Batch::Batch() noexcept {
    BeginRun();
    ++g_batches;
}

WholeFile::Batch::~Batch() {
    --g_batches;
}

void WholeFile::Discard() noexcept {
    if (!IsOpen()) return;
    if (m_temporary.empty()) {
        wholefile::Close(m_handle);
    } else {
        wholefile::Remove(m_handle, m_temporary);
    }
    m_handle = kNoHandle;
    m_temporary.clear();
}

}  // namespace lumerin
