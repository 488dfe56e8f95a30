// SPDX-License-Identifier: MIT
#include "export/LibraryPaths.h"

#include <string_view>

#include "framework/Index.h"
#include "framework/windows/System.h"
#include "framework/windows/WidePath.h"

namespace lumerin {

namespace {

// Of the run-time library, which has no way to ask for another one on every Windows.
constexpr UINT kNarrowPage = CP_ACP;

// Empty: the code page lacks a letter. Some of its letters resemble others, so that the way back is the test.
std::string Narrow(std::wstring_view wide) {
    const auto length = static_cast<int>(wide.size());
    const int bytes = WideCharToMultiByte(kNarrowPage, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string narrow(Index(bytes), '\0');
    WideCharToMultiByte(kNarrowPage, 0, wide.data(), length, narrow.data(), bytes, nullptr, nullptr);
    std::wstring back(wide.size(), L'\0');
    const int got = MultiByteToWideChar(kNarrowPage, 0, narrow.data(), bytes, back.data(), length);
    back.resize(Index(got));
    return back == wide ? narrow : std::string();
}

}  // namespace

// A folder's short name has letters of every code page.
std::string FolderForFopen(const std::string& folder) {
    const std::wstring wide = windows::WidePath(folder);
    std::string narrow = Narrow(wide);
    if (!narrow.empty()) return narrow;
    std::wstring name(GetShortPathNameW(wide.c_str(), nullptr, 0), L'\0');
    name.resize(GetShortPathNameW(wide.c_str(), name.data(), static_cast<DWORD>(name.size())));
    return Narrow(name);
}

std::string PathForSqlite(const std::string& path) {
    return windows::FromWide(windows::WidePath(path));
}

const char* SqliteFileFunctions() {
    return "win32-longpath";
}

}  // namespace lumerin
