// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "embedment/StudyCurves.h"
#include "script/CommandParser.h"

namespace lumerin {

// max or min, in letters of either case: 0 or 1. Throws std::invalid_argument with the nearest word.
int ReadEnvelope(std::string_view text);

// --case, --envelope and --quantity. `view` must live as long as the parser. A wrong value is reported while
// the command line is parsed.
void AddStudyOptions(CommandParser& command, StudyView& view);

}  // namespace lumerin
