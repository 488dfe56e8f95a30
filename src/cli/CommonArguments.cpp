// SPDX-License-Identifier: MIT
#include "cli/CommonArguments.h"

#include "script/Border.h"

namespace lumerin {

void AddText(CommandParser& command, const char* name, std::string& text, const char* help) {
    command.Add(name, text, help).Converted(FromUser).Takes("TEXT");
}

void AddCommonOptions(CommandParser& command, CommonOptions& options) {
    AddText(command, "--version-text", options.version, "The host's version, for title page and footers");
    command.Add("--font-size", options.fontSize, "Font size of the text viewer in points, 1 to 100")
        .InRange(1, 100)
        .Takes("N");
    command.Add("--clock", options.clock, "Date and time to print, YYYY-MM-DDTHH:MM:SS").Takes("TIME");
}

}  // namespace lumerin
