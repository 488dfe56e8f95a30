// SPDX-License-Identifier: MIT
#include "framework/Platform.h"

#include <unistd.h>

#include <array>
#include <cstdlib>
#include <ctime>

#include "framework/Index.h"

namespace lumerin {

namespace platform {

LocalTime LocalNow() {
    LocalTime now;
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    if (localtime_r(&seconds, &local) == nullptr) return now;
    now.year = local.tm_year + 1900;
    now.month = local.tm_mon + 1;
    now.day = local.tm_mday;
    now.weekday = local.tm_wday;
    now.hour = local.tm_hour;
    now.minute = local.tm_min;
    now.second = local.tm_sec;
    return now;
}

std::string RunningProgram() {
    std::array<char, 4096> path{};
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    return std::string(path.data(), length > 0 ? Index(length) : 0);
}

std::string MakeFolder(const std::string& start) {
    std::string name = start + "XXXXXX";
    return mkdtemp(name.data()) == nullptr ? std::string() : name;
}

}  // namespace platform

}  // namespace lumerin
