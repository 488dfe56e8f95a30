// SPDX-License-Identifier: MIT
#include "session/ProgramFiles.h"

#include "framework/Backend.h"

namespace lumerin {

std::string HostProgramPath() {
    return services::ProgramPath();
}

std::string ModulePath() {
    return services::ModulePath();
}

}  // namespace lumerin
