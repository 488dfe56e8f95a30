// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/Command.h"

namespace lumerin {

// The program lumerin with all its commands.
class Program {
  public:
    Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // The parser of the program; its subcommands are those of the commands.
    const CommandParser& Parser() const { return m_parser; }

    // Parses the arguments and runs the command that they name.
    ExitStatus Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

  private:
    ExitStatus RunCommand(std::ostream& out, std::ostream& err);
    ExitStatus PrintHelp(const std::string& name, std::ostream& out) const;
    // The name of the command that was parsed; empty: none was.
    std::string ParsedCommand() const;
    // Throws std::invalid_argument with the nearest command.
    void RequireCommand(const std::string& word) const;
    // What to say about a word that no option takes; `usual` where it is not a command's.
    std::string ExtraWord(const std::string& usual) const;

    ProgramParser m_parser;
    std::vector<ProgramCommand> m_commands;
    CommandParser m_help;  // the command "help"
    std::string m_helpTopic;
};

}  // namespace lumerin
