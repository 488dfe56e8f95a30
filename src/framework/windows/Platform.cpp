// SPDX-License-Identifier: MIT
#include "framework/Platform.h"

#include <vector>

#include "framework/windows/System.h"
#include "framework/windows/WidePath.h"

namespace lumerin {

namespace platform {

LocalTime LocalNow() {
    LocalTime now;
    SYSTEMTIME time{};
    GetLocalTime(&time);
    now.year = time.wYear;
    now.month = time.wMonth;
    now.day = time.wDay;
    now.weekday = time.wDayOfWeek;
    now.hour = time.wHour;
    now.minute = time.wMinute;
    now.second = time.wSecond;
    return now;
}

std::string RunningProgram() {
    // A path has at most as many words.
    std::vector<wchar_t> path(32768);
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return windows::FromWide({path.data(), length});
}

// The system's folder for temporary files belongs to the user.
std::string MakeFolder(const std::string& start) {
    constexpr int kTries = 100;
    LARGE_INTEGER counter{};
    for (int i = 0; i < kTries; ++i) {
        QueryPerformanceCounter(&counter);
        std::string name =
            start + std::to_string(GetCurrentProcessId()) + '-' + std::to_string(counter.QuadPart);
        if (CreateDirectoryW(windows::WidePath(name).c_str(), nullptr)) return name;
        if (GetLastError() != ERROR_ALREADY_EXISTS) break;
    }
    return {};
}

}  // namespace platform

}  // namespace lumerin
