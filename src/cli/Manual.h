// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/OptionTexts.h"

namespace lumerin {

// The manual page of the program, or of a command of it, in the language of man(7).
std::string ProgramPage(const CLI::App& program);
std::string CommandPage(const CommandText& command);

// A script for bash that completes commands, options, their words, projects and files.
std::string BashCompletion(const CLI::App& program);

}  // namespace lumerin
