// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "records/CaseChoice.h"
#include "records/Evaluation.h"
#include "records/OpenProject.h"

namespace lumerin {

enum class CheckFormat { text, json, csv };

struct CheckRequest {
    std::vector<ProjectName> projects;
    CaseChoice cases;
    Limits limits;
    std::optional<UnitSystem> units;  // none: those of each project
    CheckFormat format = CheckFormat::text;
    std::size_t top = 0;  // how many of the greatest ratios are listed
    bool brief = false;   // one line a project
    bool colour = false;
    std::size_t jobs = 1;      // projects at once
    std::string output = "-";  // a file, which is replaced when all projects are done, or standard output
    // Where the stamps of --resume are and what they hold for; empty: each project is done.
    std::string stamps, options;
};

// The verdict of each project. A project that fails in any way does not stop the others. Throws
// std::invalid_argument when no stamps can be kept.
ExitStatus RunCheck(const CheckRequest& request, std::ostream& out, std::ostream& err);

ProgramCommand AddCheckCommand(CommandParser& program);

}  // namespace lumerin
