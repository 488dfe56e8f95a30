// SPDX-License-Identifier: MIT
#include "framework/File.h"
#include "framework/win32/Windows32.h"

namespace lumerin {

// Windows finds files whatever their case. A path is bytes of the code page here; std::filesystem::path would
// assume another encoding.

std::string FindFileAnyCase(const std::string& path) {
    return GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES ? std::string() : path;
}

bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

FileStamp StampOf(const std::string& path) {
    const HANDLE file = CreateFileA(path.c_str(), FILE_READ_ATTRIBUTES,
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

}  // namespace lumerin
