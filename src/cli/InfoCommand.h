// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <vector>

#include "cli/Command.h"
#include "records/OpenProject.h"

namespace lumerin {

struct InfoRequest {
    std::vector<ProjectName> projects;
    bool listCases = false;  // with their titles and limit states
    bool findings = false;   // read the forces for what is wrong with them
    bool json = false;
};

// Describes each project. A project that fails in any way does not stop the others.
ExitStatus RunInfo(const InfoRequest& request, std::ostream& out, std::ostream& err);

ProgramCommand AddInfoCommand(CommandParser& program);

}  // namespace lumerin
