// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/OptionTexts.h"

namespace lumerin {

// The manual page of the program, or of a command of it, in the language of man(7).
std::string ProgramPage(const CommandParser& program);
std::string CommandPage(const CommandParser& command);

// A script for bash that completes commands, options, their words, projects and files.
std::string BashCompletion(const CommandParser& program);

}  // namespace lumerin
