// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/Options.h"
#include "script/CommandParser.h"

namespace lumerin {

// Options that several commands have. The variables must live as long as the parser.

// An option whose text the product shows or passes on; `text` is in its code page.
void AddText(CommandParser& command, const char* name, std::string& text, const char* help);
// The host's version, the viewer's font size and the clock.
void AddCommonOptions(CommandParser& command, CommonOptions& options);

}  // namespace lumerin
