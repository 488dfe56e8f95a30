// SPDX-License-Identifier: MIT
#include "cli/OptionTexts.h"

#include <algorithm>

#include "cli/Options.h"
#include "cli/OwnDocuments.h"
#include "cli/Terminal.h"
#include "compare/ResultColumns.h"
#include "records/Table.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

constexpr std::size_t kMeaningColumn = 24;

std::string Joined(const std::vector<std::string>& words, const char* between) {
    std::string text;
    for (const std::string& word : words) {
        if (!text.empty()) text += between;
        text += word;
    }
    return text;
}

// A name and its meaning in two columns.
std::string Entry(const std::string& name, const std::string& meaning, std::size_t width) {
    std::string line = "  " + name;
    if (line.size() + 2 > kMeaningColumn) {
        line += '\n' + std::string(kMeaningColumn, ' ');
    } else {
        line.append(kMeaningColumn - line.size(), ' ');
    }
    const std::string wrapped = Wrapped(meaning, width - kMeaningColumn);
    for (const char c : wrapped) {
        line += c;
        if (c == '\n') line.append(kMeaningColumn, ' ');
    }
    return line + '\n';
}

}  // namespace

std::string UsageOf(const CommandParser& parser) {
    std::string usage = "[OPTIONS]";
    for (const OptionText& option : parser.Options()) {
        if (!option.isArgument) continue;
        const std::string name = option.names.front() + (option.isRepeated ? "..." : "");
        usage += option.isRequired ? ' ' + name : " [" + name + ']';
    }
    return parser.Commands().empty() ? usage : usage + " COMMAND ...";
}

std::vector<std::string> WordsOf(std::string_view command, std::string_view option) {
    if (option == "--format") {
        if (command == "check") return {"text", "json", "csv"};
        if (command == "compare") return {"text", "json", "csv", "html"};
        if (command == "info") return {"text", "json"};
        if (command == "export") return {"csv", "jsonl", "sqlite", "xlsx"};
        if (command == "report") return ReportFormats();
        return {"text", "pdf", "excel"};
    }
    if (option == "--table" && command == "export") {
        std::vector<std::string> names{"all"};
        for (const Table& table : AllTables()) names.emplace_back(table.name);
        return names;
    }
    if (option == "--table" && command == "compare") {
        std::vector<std::string> names{"all"};
        for (const Table* table : ComparableTables()) names.emplace_back(table->name);
        return names;
    }
    if (option == "--table") {
        const std::string list = TableNames();
        std::vector<std::string> names;
        for (const std::string_view name : SplitList(list)) {
            names.emplace_back(name.substr(std::min(name.find_first_not_of(' '), name.size())));
        }
        return names;
    }
    if (option == "--class") return {"strength", "service", "extreme", "fatigue"};
    if (option == "--units") return {"us", "si"};
    if (option == "--footer") return {"none", "date", "time", "version", "filename"};
    if (option == "--end") return {"I", "J"};
    if (option == "--envelope") return {"max", "min"};
    if (option == "--quantity") return QuantityWords();
    return {};
}

std::string HelpOf(const CommandParser& parser, const std::string& name, std::size_t width) {
    std::string text = Wrapped(parser.Description(), width) + "\n\n";
    text += Wrapped("Usage: " + name + ' ' + UsageOf(parser), width, 2) + '\n';
    std::string arguments, options;
    for (const OptionText& option : parser.Options()) {
        const std::string value = option.value.empty() ? "" : ' ' + option.value;
        (option.isArgument ? arguments : options) +=
            Entry(Joined(option.names, ", ") + value, option.meaning, width);
    }
    if (!arguments.empty()) text += "\nArguments:\n" + arguments;
    if (!options.empty()) text += "\nOptions:\n" + options;
    std::string commands;
    for (const CommandParser& command : parser.Commands()) {
        commands += Entry(command.Name(), command.Description(), width);
    }
    if (!commands.empty()) text += "\nCommands:\n" + commands;
    const std::string footer = parser.Footer();
    return footer.empty() ? text : text + '\n' + Wrapped(footer, width) + '\n';
}

}  // namespace lumerin
