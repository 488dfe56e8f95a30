// SPDX-License-Identifier: MIT
#include "cli/Program.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "cli/CheckCommand.h"
#include "cli/Commit.h"
#include "cli/CompareCommand.h"
#include "cli/DriveCommand.h"
#include "cli/EmbedmentCommand.h"
#include "cli/ExportCommand.h"
#include "cli/InfoCommand.h"
#include "cli/OptionTexts.h"
#include "cli/PlotCommand.h"
#include "cli/ReportCommand.h"
#include "cli/Suggest.h"
#include "cli/Terminal.h"
#include "records/Table.h"
#include "script/Border.h"

namespace lumerin {

namespace {

using AddCommand = ProgramCommand (*)(CLI::App&);

// In the order of the help.
constexpr AddCommand kCommands[] = {
    AddReportCommand, AddCheckCommand,   AddInfoCommand,      AddExportCommand,
    AddPlotCommand,   AddCompareCommand, AddEmbedmentCommand, AddDriveCommand,
};

constexpr const char* kProgramFooter =
    "Examples:\n"
    "  lumerin check bridge.in\n"
    "  lumerin report bridge.in --table axial --format pdf\n"
    "  lumerin help report\n"
    "\n"
    "Exit status:\n"
    "  0  done; of check: passes; of compare: nothing differs\n"
    "  1  something is missing in the output; of check: over the limit; of compare: something differs\n"
    "  2  wrong usage\n"
    "  3  a project could not be loaded\n"
    "  4  the data of a project have errors\n"
    "\n"
    "Of several statuses the first of 2, 3, 4, 1, 0 is that of the program.";

}  // namespace

namespace {

// "lumerin 1.0.0 (commit 0123456789ab)"
std::string VersionText() {
    std::string text = "lumerin " + std::string(ProgramVersion());
    if (!Commit().empty()) text += " (commit " + std::string(Commit()) + ")";
    return text;
}

}  // namespace

Program::Program() : m_parser(std::make_unique<CLI::App>("Report tables of bridge substructure results")) {
    m_parser->name("lumerin");
    // The parsers of the commands take it over.
    m_parser->formatter_fn([](const CLI::App* parser, const std::string&, CLI::AppFormatMode) {
        const bool isProgram = parser->get_parent() == nullptr;
        return HelpOf(*parser, isProgram ? "lumerin" : "lumerin " + parser->get_name(), TerminalWidth());
    });
    m_parser->footer(kProgramFooter);
    m_parser->set_version_flag("--version", VersionText());
    m_parser->require_subcommand(1);
    for (const AddCommand add : kCommands) m_commands.push_back(add(*m_parser));
    m_help = m_parser->add_subcommand("help", "Print the help of the program or of a command");
    m_help->footer("");
    m_help->add_option("COMMAND", m_helpTopic, "The command; none: the program");
}

Program::~Program() = default;

ExitStatus Program::Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    try {
        if (argc > 1 && argv[1][0] != '-') RequireCommand(argv[1]);
        m_parser->parse(argc, argv);
        return RunCommand(out, err);
    } catch (const CLI::ExtrasError& error) {
        PrintLine(err, "lumerin: " + ExtraWord(error.what()));
        return kExitUsage;
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
    if (m_help->parsed()) return PrintHelp(m_helpTopic, out);
    for (const ProgramCommand& command : m_commands) {
        if (command.parser->parsed()) return command.run(out, err);
    }
    return kExitUsage;
}

void Program::RequireCommand(const std::string& word) const {
    std::vector<std::string> names;
    for (const CommandText& command : CommandsOf(*m_parser)) names.push_back(command.name);
    if (std::find(names.begin(), names.end(), word) != names.end()) return;
    std::string list;
    for (const std::string& name : names) list += (list.empty() ? "" : ", ") + name;
    throw std::invalid_argument("\"" + word + "\" is no command" + Suggestion(word, names) + " (" + list +
                                ")");
}

std::string Program::ExtraWord(const std::string& usual) const {
    for (const CommandText& command : CommandsOf(*m_parser)) {
        if (!command.parser->parsed()) continue;
        std::vector<std::string> names;
        for (const OptionText& option : OptionsOf(*command.parser)) {
            if (!option.isArgument) names.insert(names.end(), option.names.begin(), option.names.end());
        }
        const std::vector<std::string> words = command.parser->remaining();
        if (words.empty()) continue;
        const std::string word = words.front().substr(0, words.front().find('='));
        if (word.starts_with('-')) return command.name + " has no option " + word + Suggestion(word, names);
        return command.name + " takes no further argument: \"" + word + "\"";
    }
    return usual;
}

ExitStatus Program::PrintHelp(const std::string& command, std::ostream& out) const {
    if (command.empty()) {
        out << HelpOf(*m_parser, "lumerin", TerminalWidth()) << std::flush;
        return kExitDone;
    }
    RequireCommand(command);
    out << m_parser->get_subcommand(command)->help() << std::flush;
    return kExitDone;
}

}  // namespace lumerin
