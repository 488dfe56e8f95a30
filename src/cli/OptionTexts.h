// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "script/CommandParser.h"

namespace lumerin {

// The words of a parser, from which help, manual pages and completion are made.

// "[OPTIONS] PROJECT SCRIPT", "[OPTIONS] [PROJECT...]".
std::string UsageOf(const CommandParser& parser);

// The words that an option of a command takes; empty: it takes others.
std::vector<std::string> WordsOf(std::string_view command, std::string_view option);

// The help of a parser, broken to a width; `name` is the command line up to it ("lumerin report").
std::string HelpOf(const CommandParser& parser, const std::string& name, std::size_t width);

}  // namespace lumerin
