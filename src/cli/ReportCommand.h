// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Command.h"

namespace lumerin {

// "report": writes tables of projects by the buttons of the report dialog.
ProgramCommand AddReportCommand(CommandParser& program);

}  // namespace lumerin
