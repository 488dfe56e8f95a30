// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace lumerin {

// The command lines of the programs: options, arguments and commands, each bound to a variable or a function.
// CLI11 does the parsing. Its header, which takes seconds to compile, is read by CommandParser.cpp alone.

// An option, a flag or an argument. A small handle: the parser owns what it refers to.
class CommandOption {
  public:
    explicit CommandOption(CLI::Option* option) : m_option(option) {}

    CommandOption Required();
    // The word that the help shows for its value: "FILE".
    CommandOption Takes(const char* value);
    CommandOption InRange(int least, int greatest);
    CommandOption Positive();
    // Of a list: each use of the option takes one value, so that an argument can follow it.
    CommandOption OneValueEach();
    CommandOption Converted(std::string (*convert)(std::string_view));
    // Refused without the other one.
    CommandOption Needs(CommandOption other);

  private:
    CLI::Option* m_option;
};

// What help, manual pages and completion show of an option.
struct OptionText {
    std::vector<std::string> names;  // "-o", "--output"; of an argument "PROJECT"
    std::string value;               // "DIR"; empty: the option takes none
    std::string meaning;
    bool isArgument = false;  // by its place, not by a name
    bool isRequired = false, isRepeated = false;
};

// An option that was given.
struct GivenOption {
    std::string name;  // the long one where it has both: "--output"
    std::vector<std::string> values;
};

// The parser of a program, or of a command of it. A small handle: the ProgramParser owns what it refers to.
class CommandParser {
  public:
    explicit CommandParser(CLI::App* parser) : m_parser(parser) {}

    // Each adds an option ("-o,--output") or, where the name has no hyphen, an argument. The variable must
    // live as long as the parser.
    CommandOption Add(const std::string& name, std::string& value, const std::string& help);
    CommandOption Add(const std::string& name, int& value, const std::string& help);
    CommandOption Add(const std::string& name, std::size_t& value, const std::string& help);
    CommandOption Add(const std::string& name, std::optional<std::size_t>& value, const std::string& help);
    CommandOption Add(const std::string& name, std::vector<std::string>& values, const std::string& help);
    // Set to true by the flag, or to false by one whose name begins with "!".
    CommandOption AddFlag(const std::string& name, bool& value, const std::string& help);

    // Options whose value a function takes while the command line is parsed. What it throws leaves Parse().
    CommandOption OnText(const std::string& name, const std::function<void(const std::string&)>& take,
                         const std::string& help);
    CommandOption OnTexts(const std::string& name,
                          const std::function<void(const std::vector<std::string>&)>& take,
                          const std::string& help);
    CommandOption OnInteger(const std::string& name, const std::function<void(int)>& take,
                            const std::string& help);
    CommandOption OnNumber(const std::string& name, const std::function<void(double)>& take,
                           const std::string& help);

    CommandParser AddCommand(const std::string& name, const std::string& description);
    // The text after the options.
    void SetFooter(const std::string& footer);

    std::string Name() const;
    std::string Description() const;
    std::string Footer() const;
    // In the order in which they were added, arguments first.
    std::vector<OptionText> Options() const;
    std::vector<CommandParser> Commands() const;

    // Of the last Parse(): whether the command was named, the words that it does not take, and the options
    // that were given, in the order of the help, without arguments.
    bool IsParsed() const;
    std::vector<std::string> Remaining() const;
    std::vector<GivenOption> Given() const;

  protected:
    CLI::App* m_parser;
};

enum class ParseOutcome {
    parsed,
    help,   // the user asks for it; the text is that of the whole program
    text,   // the user asks for a text, such as the version
    extra,  // a word is left that nothing takes
    wrong,
};

struct ParseResult {
    ParseOutcome outcome = ParseOutcome::parsed;
    std::string
        text;  // for standard output (help, text) or standard error (extra, wrong), with its line feed
    std::string reason;  // of extra and wrong: one sentence without the advice that follows it in the text
};

// The parser of a program.
class ProgramParser : public CommandParser {
  public:
    ProgramParser(const std::string& name, const std::string& description);
    ProgramParser(const ProgramParser&) = delete;
    ProgramParser& operator=(const ProgramParser&) = delete;
    ~ProgramParser();

    void AddVersion(const std::string& text);
    void RequireCommand();
    ParseResult Parse(int argc, const char* const* argv);

  private:
    std::unique_ptr<CLI::App> m_owned;
};

}  // namespace lumerin
