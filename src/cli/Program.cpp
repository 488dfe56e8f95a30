// SPDX-License-Identifier: MIT
#include "cli/Program.h"

#include <CLI/CLI.hpp>
#include <sstream>

#include "cli/CheckCommand.h"
#include "cli/DriveCommand.h"
#include "cli/EmbedmentCommand.h"
#include "cli/ExportCommand.h"
#include "cli/InfoCommand.h"
#include "cli/ReportCommand.h"
#include "script/Border.h"

namespace lumerin {

namespace {

using AddCommand = ProgramCommand (*)(CLI::App&);

// In the order of the help.
constexpr AddCommand kCommands[] = {
    AddReportCommand, AddCheckCommand, AddInfoCommand, AddExportCommand, AddEmbedmentCommand, AddDriveCommand,
};

}  // namespace

Program::Program() : m_parser(std::make_unique<CLI::App>("Report tables of bridge substructure results")) {
    m_parser->name("lumerin");
    m_parser->set_version_flag("--version", "lumerin " LUMERIN_VERSION);
    m_parser->require_subcommand(1);
    for (const AddCommand add : kCommands) m_commands.push_back(add(*m_parser));
    m_help = m_parser->add_subcommand("help", "Print the help of the program or of a command");
    m_help->add_option("COMMAND", m_helpTopic, "The command; none: the program");
}

Program::~Program() = default;

ExitStatus Program::Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    try {
        m_parser->parse(argc, argv);
        return RunCommand(out, err);
    } catch (const CLI::ParseError& error) {
        std::ostringstream help, fault;
        const int status = m_parser->exit(error, help, fault);
        out << ForUser(help.str()) << std::flush;
        err << ForUser(fault.str());
        return status == 0 ? kExitDone : kExitUsage;
    } catch (const std::exception& error) {
        PrintLine(err, std::string("lumerin: ") + error.what());
        return kExitUsage;
    }
}

ExitStatus Program::RunCommand(std::ostream& out, std::ostream& err) {
    if (m_help->parsed()) return PrintHelp(m_helpTopic, out, err);
    for (const ProgramCommand& command : m_commands) {
        if (command.parser->parsed()) return command.run(out, err);
    }
    return kExitUsage;
}

ExitStatus Program::PrintHelp(const std::string& command, std::ostream& out, std::ostream& err) const {
    if (command.empty()) {
        out << m_parser->help() << std::flush;
        return kExitDone;
    }
    for (const ProgramCommand& known : m_commands) {
        if (known.parser->get_name() != command) continue;
        out << known.parser->help("lumerin") << std::flush;
        return kExitDone;
    }
    PrintLine(err, "lumerin: \"" + command + "\" is no command");
    return kExitUsage;
}

}  // namespace lumerin
