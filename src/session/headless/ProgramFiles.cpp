// SPDX-License-Identifier: MIT
#include "session/ProgramFiles.h"

#include "framework/headless/Headless.h"
#include "session/Constants.h"
#include "text/Paths.h"

namespace lumerin {

namespace {

std::string BesideProgram(const char* name) {
    const std::string program = services::ProgramPath();
    return FolderOf(program) + name;
}

}  // namespace

std::string HostProgramPath() {
    const std::string& path = headless::State().programPath;
    return path.empty() ? BesideProgram(g_HostProgramName) : path;
}

std::string ModulePath() {
    const std::string& path = headless::State().modulePath;
    return path.empty() ? BesideProgram(g_ModuleFileName) : path;
}

}  // namespace lumerin
