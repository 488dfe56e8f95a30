// SPDX-License-Identifier: MIT
#include "framework/windows/WidePath.h"

#include "framework/Backend.h"
#include "framework/Index.h"
#include "framework/NativePath.h"
#include "framework/windows/System.h"

namespace lumerin {

namespace {

constexpr std::wstring_view kLong = L"\\\\?\\", kLongServer = L"\\\\?\\UNC\\", kServer = L"\\\\";
// A folder's path must leave space for a short name of a file in it.
constexpr std::size_t kLongest = MAX_PATH - 12;

UINT PathCodePage() {
    if (services::PathsAreUtf8()) return CP_UTF8;
    return AreFileApisANSI() ? CP_ACP : CP_OEMCP;
}

// From the current folder or drive, with the system's separators and without "." and "..", none of which it
// finds in a path with the prefix.
std::wstring FullPath(const std::wstring& path) {
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD length =
        GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length == 0 || length >= full.size()) return path;
    full.resize(length);
    return full;
}

}  // namespace

namespace windows {

std::wstring ToWide(std::string_view text) {
    // No encoding has more words than bytes.
    std::wstring wide(text.size(), L'\0');
    const auto length = static_cast<int>(text.size());
    const int got = MultiByteToWideChar(PathCodePage(), 0, text.data(), length, wide.data(), length);
    wide.resize(Index(got));
    return wide;
}

std::string FromWide(std::wstring_view text) {
    const auto length = static_cast<int>(text.size());
    const UINT page = PathCodePage();
    const int bytes = WideCharToMultiByte(page, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string narrow(Index(bytes), '\0');
    WideCharToMultiByte(page, 0, text.data(), length, narrow.data(), bytes, nullptr, nullptr);
    return narrow;
}

std::wstring WidePath(const std::string& path) {
    std::wstring wide = ToWide(path);
    if (!services::PathsAreUtf8() || wide.size() < kLongest || wide.starts_with(kLong)) return wide;
    const std::wstring full = FullPath(wide);
    if (full.starts_with(kServer)) return std::wstring(kLongServer).append(full, kServer.size());
    return std::wstring(kLong) + full;
}

bool IsTooLong(const std::string& path) {
    return !services::PathsAreUtf8() && path.size() >= MAX_PATH;
}

}  // namespace windows

std::filesystem::path NativePath(const std::string& path) {
    return windows::WidePath(path);
}

std::string FromNativePath(const std::filesystem::path& path) {
    std::wstring_view wide = path.native();
    if (wide.starts_with(kLongServer)) {
        return windows::FromWide(std::wstring(kServer).append(wide.substr(kLongServer.size())));
    }
    if (wide.starts_with(kLong)) wide.remove_prefix(kLong.size());
    return windows::FromWide(wide);
}

}  // namespace lumerin
