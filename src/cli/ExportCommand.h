// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Command.h"
#include "cli/ExportRequest.h"

namespace lumerin {

ProgramCommand AddExportCommand(CommandParser& program);

// Exports the tables of all projects. Rows for standard output go to `out`, otherwise the paths of what was
// written; messages go to `err`. A project that fails does not stop the others. Throws std::invalid_argument
// for wrong usage, before anything is written.
ExitStatus RunExport(const ExportRequest& request, std::ostream& out, std::ostream& err);

}  // namespace lumerin
