// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <ostream>

#include "cli/ExitStatus.h"
#include "script/CommandParser.h"

namespace lumerin {

// A command of the program. Each has a pair of files with a function that adds its parser to the program's:
//     ProgramCommand AddReportCommand(CommandParser& program);
// and a line in Program.cpp. Parser, help, manual pages and completion are made from the same options.

// Runs the command with the options that were parsed. Results go to `out`, everything else to `err`. Throws
// std::invalid_argument with a text for the user for wrong usage (status 2).
using CommandRun = std::function<ExitStatus(std::ostream& out, std::ostream& err)>;

struct ProgramCommand {
    CommandParser parser;
    CommandRun run;
};

}  // namespace lumerin
