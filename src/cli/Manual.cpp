// SPDX-License-Identifier: MIT
#include "cli/Manual.h"

#include <algorithm>
#include <sstream>

namespace lumerin {

namespace {

// A text for the body of a page: nothing in it is taken for a request.
std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '\\') {
            escaped += "\\e";
        } else if (c == '-') {
            escaped += "\\-";
        } else if (c == '\'') {
            escaped += "\\(aq";
        } else if (c == '.' && escaped.empty()) {
            escaped += "\\&.";
        } else {
            escaped += c;
        }
    }
    return escaped;
}

std::string UpperCase(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

std::string Head(const std::string& page, const std::string& meaning) {
    std::string lower = meaning;
    if (!lower.empty() && lower[0] >= 'A' && lower[0] <= 'Z')
        lower[0] = static_cast<char>(lower[0] - 'A' + 'a');
    return ".TH " + UpperCase(Escaped(page)) + " 1 \"\" \"lumerin\" \"User commands\"\n.SH NAME\n" +
           Escaped(page) + " \\- " + Escaped(lower) + '\n';
}

std::string Options(const CommandParser& parser) {
    std::string text;
    for (const OptionText& option : parser.Options()) {
        text += ".TP\n";
        const char* separator = "";
        for (const std::string& name : option.names) {
            text += separator + ("\\fB" + Escaped(name) + "\\fR");
            separator = ", ";
        }
        if (!option.value.empty()) text += " \\fI" + Escaped(option.value) + "\\fR";
        text += '\n' + Escaped(option.meaning) + '\n';
    }
    return text;
}

// The paragraphs after the options; "Examples:" and "Exit status:" are sections, indented lines keep their
// breaks.
std::string Footer(const std::string& footer) {
    std::string text = ".SH NOTES\n";
    if (footer.starts_with("Examples:") || footer.starts_with("Exit status:")) text.clear();
    std::istringstream lines(footer);
    bool asItIs = false;
    const auto flow = [&](bool keep) {
        if (keep != asItIs) text += keep ? ".nf\n" : ".fi\n";
        asItIs = keep;
    };
    for (std::string line; std::getline(lines, line);) {
        if (line == "Examples:" || line == "Exit status:") {
            flow(false);
            text += line == "Examples:" ? ".SH EXAMPLES\n" : ".SH EXIT STATUS\n";
        } else if (line.empty()) {
            flow(false);
            text += ".PP\n";
        } else {
            flow(line.starts_with("  "));
            text += Escaped(line.substr(line.starts_with("  ") ? 2 : 0)) + '\n';
        }
    }
    flow(false);
    // A break before a section, or two, are one too many.
    for (std::size_t at = 0; (at = text.find(".PP\n.SH", at)) != std::string::npos;) text.erase(at, 4);
    return text;
}

std::string Quoted(const std::vector<std::string>& words) {
    std::string text = "'";
    for (const std::string& word : words) text += (text.size() > 1 ? " " : "") + word;
    return text + "'";
}

std::string OptionNames(const CommandParser& parser) {
    std::vector<std::string> names;
    for (const OptionText& option : parser.Options()) {
        if (!option.isArgument) names.insert(names.end(), option.names.begin(), option.names.end());
    }
    return Quoted(names);
}

// What follows an option: its words, a folder, a file.
std::string ValueBranches(const CommandParser& command) {
    std::string text;
    for (const OptionText& option : command.Options()) {
        if (option.isArgument || option.value.empty()) continue;
        const std::vector<std::string> words = WordsOf(command.Name(), option.names.back());
        std::string answer = "COMPREPLY=()";
        if (!words.empty()) {
            answer = "_lumerin_list " + Quoted(words);
        } else if (option.value == "DIR") {
            answer = "compopt -o filenames; COMPREPLY=($(compgen -d -- \"$cur\"))";
        } else if (option.value == "FILE" || option.value == "PATH") {
            answer = "compopt -o filenames; COMPREPLY=($(compgen -f -- \"$cur\"))";
        }
        for (const std::string& name : option.names) {
            text.append("        ").append(command.Name()).append(":").append(name).append(") ");
            text.append(answer).append("; return ;;\n");
        }
    }
    return text;
}

}  // namespace

std::string ProgramPage(const CommandParser& program) {
    std::string page = Head("lumerin", program.Description());
    page += ".SH SYNOPSIS\n.B lumerin\n" + Escaped(UsageOf(program)) + "\n.SH COMMANDS\n";
    for (const CommandParser& command : program.Commands()) {
        page += ".TP\n\\fB" + Escaped(command.Name()) + "\\fR\n" + Escaped(command.Description()) + '\n';
    }
    page += ".SH OPTIONS\n" + Options(program) + Footer(program.Footer()) + ".SH SEE ALSO\n";
    const char* separator = "";
    for (const CommandParser& command : program.Commands()) {
        if (command.Name() == "help") continue;
        page += separator + (".BR lumerin\\-" + Escaped(command.Name())) + " (1)";
        separator = ",\n";
    }
    return page + '\n';
}

std::string CommandPage(const CommandParser& command) {
    return Head("lumerin-" + command.Name(), command.Description()) + ".SH SYNOPSIS\n.B lumerin " +
           Escaped(command.Name()) + '\n' + Escaped(UsageOf(command)) + "\n.SH OPTIONS\n" + Options(command) +
           Footer(command.Footer()) + ".SH SEE ALSO\n.BR lumerin (1)\n";
}

std::string BashCompletion(const CommandParser& program) {
    std::vector<std::string> names;
    std::string values, options;
    for (const CommandParser& command : program.Commands()) {
        names.push_back(command.Name());
        values += ValueBranches(command);
        options += "            " + command.Name() + ") options=" + OptionNames(command) + " ;;\n";
    }
    const std::string commands = Quoted(names);
    return "# Completion of lumerin for bash; made from the program's own options.\n"
           "# The word after the last comma, of a list of words.\n"
           "_lumerin_list() {\n"
           "    local before=\n"
           "    [[ $cur != *,* ]] || before=${cur%,*},\n"
           "    COMPREPLY=($(compgen -P \"$before\" -W \"$1\" -- \"${cur##*,}\"))\n"
           "}\n"
           "_lumerin() {\n"
           "    local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
           "    local command=${COMP_WORDS[1]} options=\n"
           "    COMPREPLY=()\n"
           "    if (( COMP_CWORD == 1 )); then\n"
           "        COMPREPLY=($(compgen -W \"" +
           commands.substr(1, commands.size() - 2) +
           " --help --version\" -- \"$cur\"))\n        return\n    fi\n" +
           "    case $command:$previous in\n" + "        help:help) COMPREPLY=($(compgen -W " + commands +
           " -- \"$cur\")); return ;;\n" + values + "    esac\n" +
           "    if [[ $cur == -* ]]; then\n        case $command in\n" + options +
           "        esac\n"
           "        COMPREPLY=($(compgen -W \"$options\" -- \"$cur\"))\n"
           "        return\n    fi\n"
           "    compopt -o filenames 2>/dev/null\n"
           "    COMPREPLY=($(compgen -f -X '!*.[iI][nN]' -- \"$cur\") $(compgen -d -- \"$cur\"))\n"
           "}\n"
           "complete -F _lumerin lumerin\n";
}

}  // namespace lumerin
