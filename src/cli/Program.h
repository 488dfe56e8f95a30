// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
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
    ~Program();

    // The parser of the program; its subcommands are those of the commands.
    const CLI::App& Parser() const { return *m_parser; }

    // Parses the arguments and runs the command that they name.
    ExitStatus Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

  private:
    ExitStatus RunCommand(std::ostream& out, std::ostream& err);
    ExitStatus PrintHelp(const std::string& command, std::ostream& out) const;
    // Throws std::invalid_argument with the nearest command.
    void RequireCommand(const std::string& word) const;
    // What to say about a word that no option takes; `usual` where it is not a command's.
    std::string ExtraWord(const std::string& usual) const;

    std::unique_ptr<CLI::App> m_parser;
    std::vector<ProgramCommand> m_commands;
    CLI::App* m_help = nullptr;  // the command "help"
    std::string m_helpTopic;
};

}  // namespace lumerin
