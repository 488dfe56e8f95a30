// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/ExitStatus.h"
#include "records/Verdict.h"

namespace lumerin {

// The answer of `lumerin check` for one project, and its forms.

struct CheckResult {
    ProjectName name;
    ExitStatus status = kExitDone;
    std::string fault;  // why the project could not be loaded or the choice of cases fits none; else empty
    UnitSystem units = UnitSystem::us;  // of the forces below
    double limit = 1.0;
    int cases = 0, chosen = 0;
    Verdict verdict;
    std::vector<EndRatio> top;
    std::vector<Finding> findings;
    long long milliseconds = 0;
};

// Turns the forces of a result to another unit system.
void ConvertForces(CheckResult& result, UnitSystem system);

// One line, "bridge.in  FAIL  D/C 1.027 at element 18 end I ..."; with `details`, families, pile heads,
// greatest ratios and findings follow. `colour`: the verdict's word is coloured.
void PrintCheck(const CheckResult& result, bool details, bool colour, std::ostream& out);
// One JSON object on one line.
void PrintCheckJson(const CheckResult& result, std::ostream& out);

}  // namespace lumerin
