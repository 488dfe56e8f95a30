// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace lumerin {

// The words of a parser, from which help, manual pages and completion are made.

struct OptionText {
    std::vector<std::string> names;  // "-o", "--output"; of an argument "PROJECT"
    std::string value;               // "DIR"; empty: the option takes none
    std::string meaning;
    bool isArgument = false;  // by its place, not by a name
    bool isRequired = false, isRepeated = false;
};
// In the order in which they were added, arguments first.
std::vector<OptionText> OptionsOf(const CLI::App& parser);

struct CommandText {
    std::string name, meaning;
    const CLI::App* parser = nullptr;
};
std::vector<CommandText> CommandsOf(const CLI::App& program);

// "[OPTIONS] PROJECT SCRIPT", "[OPTIONS] [PROJECT...]".
std::string UsageOf(const CLI::App& parser);

// The words that an option of a command takes; empty: it takes others.
std::vector<std::string> WordsOf(std::string_view command, std::string_view option);

// The help of a parser, broken to a width; `name` is the command line up to it ("lumerin report").
std::string HelpOf(const CLI::App& parser, const std::string& name, std::size_t width);

}  // namespace lumerin
