// SPDX-License-Identifier: MIT
#include "framework/WholeFilePlatform.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "framework/Index.h"
#include "framework/windows/System.h"
#include "framework/windows/WidePath.h"

namespace lumerin {

namespace wholefile {

const std::string_view kTemporaryEnding = ".LMW";

namespace {

using windows::WidePath;

constexpr DWORD kAllShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kPiece = 16384;
constexpr std::size_t kLargestWrite = std::size_t{1} << 20;

HANDLE ToHandle(Handle handle) {
    return reinterpret_cast<HANDLE>(handle);
}

Handle FromHandle(HANDLE handle) {
    return handle == INVALID_HANDLE_VALUE ? kNoHandle : reinterpret_cast<Handle>(handle);
}

// For file names among which our temporary files are searched; those are plain ASCII.
std::string Narrow(std::wstring_view wide) {
    std::string text;
    for (const wchar_t c : wide) text += c < 0x80 ? static_cast<char>(c) : '?';
    return text;
}

struct SearchCloser {
    void operator()(HANDLE search) const { FindClose(search); }
};

HANDLE OpenForWriting(const std::string& path) {
    return CreateFileW(WidePath(path).c_str(), GENERIC_WRITE, kAllShared, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
}

bool IsPlainFile(DWORD attributes) {
    return (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
}

}  // namespace

Target LookAt(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(WidePath(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        // Under Wine the folder may contain files that Windows does not have, such as a pipe. It cannot be
        // removed from here, and opening it could block for ever.
        const DWORD error = GetLastError();
        const bool absent = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
        return absent ? Target::absent : Target::refused;
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return Target::refused;
    if (!IsPlainFile(attributes)) return Target::replaceable;
    const HANDLE file = OpenForWriting(path);
    if (file == INVALID_HANDLE_VALUE) {
        // The program that has it open may close it before the document is ready, or may allow it to be
        // replaced.
        return GetLastError() == ERROR_SHARING_VIOLATION ? Target::file : Target::refused;
    }
    CloseHandle(file);
    return Target::file;
}

std::string FolderPart(const std::string& path) {
    return path.substr(0, path.find_last_of("\\/:") + 1);
}

// Sharing of deletion is refused, so that no other process removes it as a left-over.
Handle CreateNew(const std::string& path, bool& taken) {
    const HANDLE file = CreateFileW(WidePath(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                                    FILE_SHARE_READ, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    taken = file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_EXISTS;
    return FromHandle(file);
}

Handle CreateNameless() {
    std::array<wchar_t, MAX_PATH> folder{}, path{};
    if (GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()) == 0) return kNoHandle;
    if (GetTempFileNameW(folder.data(), L"lum", 0, path.data()) == 0) return kNoHandle;
    const HANDLE file = CreateFileW(path.data(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) DeleteFileW(path.data());
    return FromHandle(file);
}

// A new file inherits the rights of its folder, as the earlier one did.
void CopyRights(Handle, const std::string&) noexcept {}

bool Write(Handle handle, const void* bytes, std::size_t count) noexcept {
    const char* from = static_cast<const char*>(bytes);
    while (count > 0) {
        const auto piece = static_cast<DWORD>(count < kLargestWrite ? count : kLargestWrite);
        DWORD stored = 0;
        if (!WriteFile(ToHandle(handle), from, piece, &stored, nullptr) || stored == 0) return false;
        from += stored;
        count -= stored;
    }
    return true;
}

// A server that could not store the data reports it here at the latest.
bool Settle(Handle handle) noexcept {
    return FlushFileBuffers(ToHandle(handle)) != FALSE;
}

// By the handle, so that the file is never closed under its temporary name.
bool Rename(Handle handle, const std::string&, const std::string& to) {
    const std::wstring name = WidePath(to);
    const std::size_t nameBytes = name.size() * sizeof(wchar_t);
    std::vector<std::byte> memory(sizeof(FILE_RENAME_INFO) + nameBytes);
    auto* info = reinterpret_cast<FILE_RENAME_INFO*>(memory.data());
    info->ReplaceIfExists = TRUE;
    info->RootDirectory = nullptr;
    info->FileNameLength = static_cast<DWORD>(nameBytes);
    std::memcpy(info->FileName, name.data(), nameBytes);
    return SetFileInformationByHandle(ToHandle(handle), FileRenameInfo, info,
                                      static_cast<DWORD>(memory.size())) != FALSE;
}

bool CopyInto(Handle handle, const std::string& to) {
    const HANDLE file = OpenForWriting(to);
    if (file == INVALID_HANDLE_VALUE) return false;
    BY_HANDLE_FILE_INFORMATION found{};
    const LARGE_INTEGER start{};
    bool whole = GetFileInformationByHandle(file, &found) && IsPlainFile(found.dwFileAttributes) &&
                 SetEndOfFile(file) && SetFilePointerEx(ToHandle(handle), start, nullptr, FILE_BEGIN);
    std::array<char, kPiece> piece{};
    DWORD got = 1;
    while (whole && got > 0) {
        whole = ReadFile(ToHandle(handle), piece.data(), kPiece, &got, nullptr) &&
                Write(FromHandle(file), piece.data(), got);
    }
    return CloseHandle(file) && whole;
}

void Close(Handle handle) noexcept {
    CloseHandle(ToHandle(handle));
}

void Remove(Handle handle, const std::string&) noexcept {
    FILE_DISPOSITION_INFO gone{};
    gone.DeleteFile = TRUE;
    SetFileInformationByHandle(ToHandle(handle), FileDispositionInfo, &gone, sizeof gone);
    CloseHandle(ToHandle(handle));
}

void RemoveLeftOvers(const std::string& folder) {
    WIN32_FIND_DATAW found{};
    const std::string pattern = folder + "~??????" + std::string(kTemporaryEnding);
    const HANDLE first = FindFirstFileW(WidePath(pattern).c_str(), &found);
    if (first == INVALID_HANDLE_VALUE) return;
    const std::unique_ptr<void, SearchCloser> search(first);
    do {
        const std::string name = Narrow(found.cFileName);
        // A file that is still being written cannot be deleted.
        if (IsPlainFile(found.dwFileAttributes) && IsTemporaryName(name))
            DeleteFileW(WidePath(folder + name).c_str());
    } while (FindNextFileW(search.get(), &found));
}

}  // namespace wholefile

}  // namespace lumerin
