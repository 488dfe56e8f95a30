// SPDX-License-Identifier: MIT
#include "cli/CommonArguments.h"

#include <CLI/CLI.hpp>

#include "script/Border.h"

namespace lumerin {

CLI::Option* AddText(CLI::App& command, const char* name, std::string& text, const char* help) {
    return command.add_option(name, text, help)
        ->transform([](const std::string& given) { return FromUser(given); })
        ->type_name("TEXT");
}

void AddCommonOptions(CLI::App& command, CommonOptions& options) {
    AddText(command, "--version-text", options.version, "The host's version, for title page and footers");
    command.add_option("--font-size", options.fontSize, "Font size of the text viewer in points, 1 to 100")
        ->check(CLI::Range(1, 100))
        ->type_name("N");
    command.add_option("--clock", options.clock, "Date and time to print, YYYY-MM-DDTHH:MM:SS")
        ->type_name("TIME");
}

}  // namespace lumerin
