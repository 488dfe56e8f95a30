// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "cli/Command.h"
#include "cli/Options.h"

namespace lumerin {

struct DriveOptions {
    std::string project;
    std::string script;  // its path; "-" for standard input
    int format = 0;
    bool hasPlotModule = true;
    std::string textA, textB;  // arguments 4 and 5 of the export
    std::string plotArgument;  // argument 6, for the plot module
    CommonOptions common;
};

// Calls the export under a script, once and again for each line "again"; the JSON lines go to `out`.
ExitStatus RunDrive(const DriveOptions& options, std::ostream& out, std::ostream& err);
// The same with the script's text.
ExitStatus DriveScript(const DriveOptions& options, const std::string& script, std::ostream& out,
                       std::ostream& err);

// "drive": plays a script on the dialogs.
ProgramCommand AddDriveCommand(CommandParser& program);

}  // namespace lumerin
