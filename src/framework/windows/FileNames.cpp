// SPDX-License-Identifier: MIT
#include "framework/File.h"
#include "framework/windows/System.h"
#include "framework/windows/WidePath.h"

namespace lumerin {

// Windows finds files whatever their case.

namespace {

DWORD AttributesOf(const std::string& path) {
    return windows::IsTooLong(path) ? INVALID_FILE_ATTRIBUTES
                                    : GetFileAttributesW(windows::WidePath(path).c_str());
}

}  // namespace

std::string FindFileAnyCase(const std::string& path) {
    return AttributesOf(path) == INVALID_FILE_ATTRIBUTES ? std::string() : path;
}

std::string PathButForCase(const std::string& path) {
    std::wstring wide = windows::ToWide(path);
    CharUpperBuffW(wide.data(), static_cast<DWORD>(wide.size()));
    return windows::FromWide(wide);
}

bool IsFolder(const std::string& path) {
    const DWORD attributes = AttributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

FileStamp StampOf(const std::string& path) {
    if (windows::IsTooLong(path)) return {};
    const HANDLE file = CreateFileW(windows::WidePath(path).c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    BY_HANDLE_FILE_INFORMATION found{};
    const bool known = GetFileInformationByHandle(file, &found) != FALSE;
    CloseHandle(file);
    if (!known) return {};
    const auto join = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
    return {static_cast<std::int64_t>(join(found.nFileSizeHigh, found.nFileSizeLow)),
            static_cast<std::int64_t>(
                join(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime)),
            found.dwVolumeSerialNumber, join(found.nFileIndexHigh, found.nFileIndexLow)};
}

bool IsRealFolder(const std::string& path) {
    const DWORD attributes = AttributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) ==
               FILE_ATTRIBUTE_DIRECTORY;
}

std::optional<std::chrono::system_clock::time_point> LastChange(const std::string& path) {
    using std::chrono::system_clock;
    using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10000000>>;
    constexpr Ticks kFrom1601To1970 = std::chrono::seconds(11644473600);
    const FileStamp stamp = StampOf(path);
    if (stamp.length < 0) return std::nullopt;
    const Ticks since1970 = Ticks(stamp.modified) - kFrom1601To1970;
    return system_clock::time_point(std::chrono::duration_cast<system_clock::duration>(since1970));
}

std::FILE* OpenForReading(const std::string& path) {
    return _wfopen(windows::WidePath(path).c_str(), L"rb");
}

std::error_code ErrorOfWriting(const std::string& path) {
    // Neither call changes a file: one opens what is there, the other makes a file that goes at once.
    constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const bool isThere = AttributesOf(path) != INVALID_FILE_ATTRIBUTES;
    const std::wstring name = windows::WidePath(path);
    const HANDLE file = CreateFileW(name.c_str(), isThere ? GENERIC_WRITE : GENERIC_WRITE | DELETE, shared,
                                    nullptr, isThere ? OPEN_EXISTING : CREATE_NEW,
                                    isThere ? FILE_ATTRIBUTE_NORMAL : FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        CloseHandle(file);
        return {};
    }
    switch (GetLastError()) {
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            return std::make_error_code(std::errc::device_or_resource_busy);
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
            return std::make_error_code(std::errc::permission_denied);
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return std::make_error_code(std::errc::no_space_on_device);
        case ERROR_INVALID_NAME:
            return std::make_error_code(std::errc::invalid_argument);
        default:
            return std::make_error_code(std::errc::io_error);
    }
}

}  // namespace lumerin
