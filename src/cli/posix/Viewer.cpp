// SPDX-License-Identifier: MIT
#include "cli/Viewer.h"

#include <spawn.h>
#include <unistd.h>

namespace lumerin {

namespace {
constexpr int kShellSuccess = 42;
constexpr int kNoProgramForType = 31;
}  // namespace

int StartViewer(const std::string& path) {
    std::string program = "xdg-open";
    std::string file = path;
    char* const arguments[] = {program.data(), file.data(), nullptr};
    pid_t process = 0;
    const int failure = posix_spawnp(&process, program.c_str(), nullptr, nullptr, arguments, environ);
    return failure == 0 ? kShellSuccess : kNoProgramForType;
}

}  // namespace lumerin
