// SPDX-License-Identifier: MIT
#include "cli/Program.h"

#include <algorithm>
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

using AddCommand = ProgramCommand (*)(CommandParser&);

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

std::vector<ProgramCommand> AddCommands(CommandParser& program) {
    std::vector<ProgramCommand> commands;
    for (const AddCommand add : kCommands) commands.push_back(add(program));
    return commands;
}

// "lumerin 1.0.0 (commit 0123456789ab)"
std::string VersionText() {
    std::string text = "lumerin " + std::string(ProgramVersion());
    if (!Commit().empty()) text += " (commit " + std::string(Commit()) + ")";
    return text;
}

}  // namespace

Program::Program()
    : m_parser("lumerin", "Report tables of bridge substructure results"),
      m_commands(AddCommands(m_parser)),
      m_help(m_parser.AddCommand("help", "Print the help of the program or of a command")) {
    m_parser.SetFooter(kProgramFooter);
    m_parser.AddVersion(VersionText());
    m_parser.RequireCommand();
    m_help.Add("COMMAND", m_helpTopic, "The command; none: the program");
}

ExitStatus Program::Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    try {
        if (argc > 1 && argv[1][0] != '-') RequireCommand(argv[1]);
        const ParseResult result = m_parser.Parse(argc, argv);
        switch (result.outcome) {
            case ParseOutcome::parsed:
                return RunCommand(out, err);
            case ParseOutcome::help:
                return PrintHelp(ParsedCommand(), out);
            case ParseOutcome::text:
                out << ForUser(result.text) << std::flush;
                return kExitDone;
            case ParseOutcome::extra:
                PrintLine(err, "lumerin: " + ExtraWord(result.reason));
                break;
            case ParseOutcome::wrong:
                err << ForUser(result.text);
                break;
        }
    } catch (const std::exception& error) {
        PrintLine(err, std::string("lumerin: ") + error.what());
    }
    return kExitUsage;
}

ExitStatus Program::RunCommand(std::ostream& out, std::ostream& err) {
    if (m_help.IsParsed()) return PrintHelp(m_helpTopic, out);
    for (const ProgramCommand& command : m_commands) {
        if (command.parser.IsParsed()) return command.run(out, err);
    }
    return kExitUsage;
}

std::string Program::ParsedCommand() const {
    for (const CommandParser& command : m_parser.Commands()) {
        if (command.IsParsed()) return command.Name();
    }
    return {};
}

void Program::RequireCommand(const std::string& word) const {
    std::vector<std::string> names;
    for (const CommandParser& command : m_parser.Commands()) names.push_back(command.Name());
    if (std::find(names.begin(), names.end(), word) != names.end()) return;
    std::string list;
    for (const std::string& name : names) list += (list.empty() ? "" : ", ") + name;
    throw std::invalid_argument("\"" + word + "\" is no command" + Suggestion(word, names) + " (" + list +
                                ")");
}

std::string Program::ExtraWord(const std::string& usual) const {
    for (const CommandParser& command : m_parser.Commands()) {
        if (!command.IsParsed()) continue;
        std::vector<std::string> names;
        for (const OptionText& option : command.Options()) {
            if (!option.isArgument) names.insert(names.end(), option.names.begin(), option.names.end());
        }
        const std::vector<std::string> words = command.Remaining();
        if (words.empty()) continue;
        const std::string word = words.front().substr(0, words.front().find('='));
        if (word.starts_with('-')) return command.Name() + " has no option " + word + Suggestion(word, names);
        return command.Name() + " takes no further argument: \"" + word + "\"";
    }
    return usual;
}

ExitStatus Program::PrintHelp(const std::string& name, std::ostream& out) const {
    if (name.empty()) {
        out << HelpOf(m_parser, "lumerin", TerminalWidth()) << std::flush;
        return kExitDone;
    }
    RequireCommand(name);
    for (const CommandParser& command : m_parser.Commands()) {
        if (command.Name() == name) out << HelpOf(command, "lumerin " + name, TerminalWidth()) << std::flush;
    }
    return kExitDone;
}

}  // namespace lumerin
