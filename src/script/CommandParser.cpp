// SPDX-License-Identifier: MIT
#include "script/CommandParser.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

namespace lumerin {

CommandOption CommandOption::Required() {
    m_option->required();
    return *this;
}

CommandOption CommandOption::Takes(const char* value) {
    m_option->type_name(value);
    return *this;
}

CommandOption CommandOption::InRange(int least, int greatest) {
    m_option->check(CLI::Range(least, greatest));
    return *this;
}

CommandOption CommandOption::Positive() {
    m_option->check([](const std::string& text) {
        double number = 0.0;
        const bool isPositive = CLI::detail::lexical_cast(text, number) && number > 0.0;
        return isPositive ? std::string() : "\"" + text + "\" is not greater than 0";
    });
    return *this;
}

CommandOption CommandOption::OneValueEach() {
    m_option->allow_extra_args(false);
    return *this;
}

CommandOption CommandOption::Converted(std::string (*convert)(std::string_view)) {
    m_option->transform([convert](const std::string& given) { return convert(given); });
    return *this;
}

CommandOption CommandOption::Needs(CommandOption other) {
    m_option->needs(other.m_option);
    return *this;
}

namespace {

// The conversion of the library takes -1 for the greatest number.
CommandOption NotNegative(CLI::Option* count) {
    return CommandOption(count->check([](const std::string& text) {
        return text.starts_with('-') ? "\"" + text + "\" is less than 0" : std::string();
    }));
}

}  // namespace

CommandOption CommandParser::Add(const std::string& name, std::string& value, const std::string& help) {
    return CommandOption(m_parser->add_option(name, value, help));
}

CommandOption CommandParser::Add(const std::string& name, int& value, const std::string& help) {
    return CommandOption(m_parser->add_option(name, value, help));
}

CommandOption CommandParser::Add(const std::string& name, std::size_t& value, const std::string& help) {
    return NotNegative(m_parser->add_option(name, value, help));
}

CommandOption CommandParser::Add(const std::string& name, std::optional<std::size_t>& value,
                                 const std::string& help) {
    return NotNegative(m_parser->add_option(name, value, help));
}

CommandOption CommandParser::Add(const std::string& name, std::vector<std::string>& values,
                                 const std::string& help) {
    return CommandOption(m_parser->add_option(name, values, help));
}

CommandOption CommandParser::AddFlag(const std::string& name, bool& value, const std::string& help) {
    return CommandOption(m_parser->add_flag(name, value, help));
}

CommandOption CommandParser::OnText(const std::string& name,
                                    const std::function<void(const std::string&)>& take,
                                    const std::string& help) {
    return CommandOption(m_parser->add_option_function<std::string>(name, take, help));
}

CommandOption CommandParser::OnTexts(const std::string& name,
                                     const std::function<void(const std::vector<std::string>&)>& take,
                                     const std::string& help) {
    return CommandOption(m_parser->add_option_function<std::vector<std::string>>(name, take, help));
}

CommandOption CommandParser::OnInteger(const std::string& name, const std::function<void(int)>& take,
                                       const std::string& help) {
    return CommandOption(m_parser->add_option_function<int>(name, take, help));
}

CommandOption CommandParser::OnNumber(const std::string& name, const std::function<void(double)>& take,
                                      const std::string& help) {
    return CommandOption(m_parser->add_option_function<double>(name, take, help));
}

CommandParser CommandParser::AddCommand(const std::string& name, const std::string& description) {
    return CommandParser(m_parser->add_subcommand(name, description));
}

void CommandParser::SetFooter(const std::string& footer) {
    m_parser->footer(footer);
}

std::string CommandParser::Name() const {
    return m_parser->get_name();
}

std::string CommandParser::Description() const {
    return m_parser->get_description();
}

std::string CommandParser::Footer() const {
    return m_parser->get_footer();
}

namespace {

OptionText TextOf(const CLI::Option& option) {
    OptionText text;
    text.isArgument = option.get_positional();
    text.isRequired = option.get_required();
    text.isRepeated = option.get_expected_max() > 1;
    text.meaning = option.get_description();
    if (text.isArgument) {
        text.names.push_back(option.get_name(true));
        return text;
    }
    for (const std::string& name : option.get_snames()) text.names.push_back("-" + name);
    for (const std::string& name : option.get_lnames()) text.names.push_back("--" + name);
    if (option.get_items_expected_max() == 0) return text;
    // A check appends its own words after a colon.
    const std::string type = option.get_type_name();
    text.value = type.substr(0, type.find(':'));
    return text;
}

}  // namespace

std::vector<OptionText> CommandParser::Options() const {
    std::vector<OptionText> texts;
    for (const CLI::Option* option : m_parser->get_options()) texts.push_back(TextOf(*option));
    std::stable_partition(texts.begin(), texts.end(), [](const OptionText& text) { return text.isArgument; });
    return texts;
}

std::vector<CommandParser> CommandParser::Commands() const {
    std::vector<CommandParser> commands;
    for (CLI::App* command : m_parser->get_subcommands([](CLI::App*) { return true; })) {
        commands.emplace_back(command);
    }
    return commands;
}

bool CommandParser::IsParsed() const {
    return m_parser->parsed();
}

std::vector<std::string> CommandParser::Remaining() const {
    return m_parser->remaining();
}

std::vector<GivenOption> CommandParser::Given() const {
    std::vector<GivenOption> given;
    for (const CLI::Option* option : m_parser->get_options()) {
        if (option->count() == 0 || option->get_positional()) continue;
        given.push_back({option->get_name(), option->results()});
    }
    return given;
}

ProgramParser::ProgramParser(const std::string& name, const std::string& description)
    : CommandParser(nullptr), m_owned(std::make_unique<CLI::App>(description, name)) {
    m_parser = m_owned.get();
    // A path of Linux begins as an option of Windows does.
    m_parser->allow_windows_style_options(false);
}

ProgramParser::~ProgramParser() = default;

void ProgramParser::AddVersion(const std::string& text) {
    m_parser->set_version_flag("--version", text);
}

void ProgramParser::RequireCommand() {
    m_parser->require_subcommand(1);
}

ParseResult ProgramParser::Parse(int argc, const char* const* argv) {
    const auto ended = [this](ParseOutcome outcome, const CLI::Error& error) {
        std::ostringstream out, err;
        const bool isWrong = m_parser->exit(error, out, err) != 0;
        return ParseResult{outcome, isWrong ? err.str() : out.str(), isWrong ? error.what() : ""};
    };
    try {
        m_parser->parse(argc, argv);
        return {};
    } catch (const CLI::CallForHelp& help) {
        return ended(ParseOutcome::help, help);
    } catch (const CLI::Success& asked) {
        return ended(ParseOutcome::text, asked);
    } catch (const CLI::ExtrasError& error) {
        return ended(ParseOutcome::extra, error);
    } catch (const CLI::ParseError& error) {
        return ended(ParseOutcome::wrong, error);
    }
}

}  // namespace lumerin
