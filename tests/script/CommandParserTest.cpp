// SPDX-License-Identifier: MIT
#include "script/CommandParser.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace lumerin {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

// "program run FILES... [--count N] [--name TEXT] [--list WORD]... [--brief]"
class CommandParsing : public testing::Test {
  protected:
    CommandParsing() : program("program", "Does something"), command(program.AddCommand("run", "Runs it")) {
        program.AddVersion("program 3");
        program.RequireCommand();
        command.Add("FILES", files, "What to run").Required();
        command.Add("-c,--count", count, "How often").InRange(1, 9).Takes("N");
        command.Add("--name", name, "Its name")
            .Converted([](std::string_view given) { return std::string(given) + "!"; })
            .Takes("WORD");
        command.Add("--list", list, "Words").OneValueEach().Takes("LIST");
        command.Add("--top", top, "How many").Takes("N");
        command
            .OnInteger(
                "--element", [this](int number) { element = number; }, "Which")
            .Positive();
        command.AddFlag("--brief", brief, "Prints less");
        command.OnNumber(
            "--limit", [](double) { throw std::invalid_argument("no such limit"); }, "A limit");
    }

    ParseResult Parse(std::vector<const char*> words) {
        words.insert(words.begin(), "program");
        return program.Parse(static_cast<int>(words.size()), words.data());
    }

    ProgramParser program;
    CommandParser command;
    std::vector<std::string> files, list;
    std::string name;
    int count = 0, element = 0;
    std::size_t top = 0;
    bool brief = false;
};

TEST_F(CommandParsing, RefusesNumbersBelowWhatTheyCount) {
    EXPECT_EQ(Parse({"run", "a", "--top", "0", "--element", "1"}).outcome, ParseOutcome::parsed);
    EXPECT_EQ(Parse({"run", "a", "--top", "-1"}).reason, "--top: \"-1\" is less than 0");
    for (const char* number : {"0", "-5", "none"}) {
        EXPECT_EQ(Parse({"run", "a", "--element", number}).reason,
                  std::string("--element: \"") + number + "\" is not greater than 0");
    }
}

TEST_F(CommandParsing, FillsTheVariablesAndRemembersWhatWasGiven) {
    EXPECT_EQ(Parse({"run", "--list", "a", "one", "-c", "3", "--name", "x", "--list", "b", "two"}).outcome,
              ParseOutcome::parsed);
    EXPECT_TRUE(command.IsParsed());
    EXPECT_THAT(files, ElementsAre("one", "two"));
    EXPECT_THAT(list, ElementsAre("a", "b"));
    EXPECT_EQ(count, 3);
    EXPECT_EQ(name, "x!");
    EXPECT_FALSE(brief);
    std::vector<std::string> given;
    for (const GivenOption& option : command.Given()) {
        given.push_back(option.name);
        for (const std::string& value : option.values) given.back() += '=' + value;
    }
    EXPECT_THAT(given, ElementsAre("--count=3", "--name=x!", "--list=a=b"));
}

TEST_F(CommandParsing, SaysWhyNothingWasParsed) {
    const ParseResult range = Parse({"run", "one", "--count", "10"});
    EXPECT_EQ(range.outcome, ParseOutcome::wrong);
    EXPECT_EQ(range.text, range.reason + "\nRun with --help for more information.\n");
    EXPECT_THAT(range.reason, HasSubstr("10"));
    EXPECT_EQ(Parse({"run"}).outcome, ParseOutcome::wrong);
    EXPECT_EQ(Parse({}).outcome, ParseOutcome::wrong);
    EXPECT_EQ(Parse({"run", "one", "--count", "many"}).outcome, ParseOutcome::wrong);
    EXPECT_EQ(Parse({"run", "one", "--conut=3"}).outcome, ParseOutcome::extra);
    EXPECT_THAT(command.Remaining(), ElementsAre("--conut=3"));
    EXPECT_THROW(Parse({"run", "one", "--limit", "3"}), std::invalid_argument);
}

TEST_F(CommandParsing, HelpAndVersionAreNoFaults) {
    const ParseResult help = Parse({"run", "--help"});
    EXPECT_EQ(help.outcome, ParseOutcome::help);
    EXPECT_THAT(help.text, StartsWith("Runs it\n"));
    EXPECT_EQ(help.reason, "");
    const ParseResult version = Parse({"--version"});
    EXPECT_EQ(version.outcome, ParseOutcome::text);
    EXPECT_EQ(version.text, "program 3\n");
}

TEST_F(CommandParsing, DescribesItsOptionsArgumentsFirst) {
    const std::vector<OptionText> options = command.Options();
    ASSERT_EQ(options.size(), 9U);
    EXPECT_TRUE(options[0].isArgument && options[0].isRequired && options[0].isRepeated);
    EXPECT_THAT(options[0].names, ElementsAre("FILES"));
    EXPECT_THAT(options[1].names, ElementsAre("-h", "--help"));
    EXPECT_EQ(options[1].value, "");
    EXPECT_THAT(options[2].names, ElementsAre("-c", "--count"));
    EXPECT_EQ(options[2].value, "N");  // without the words of its range
    EXPECT_EQ(options[2].meaning, "How often");
    EXPECT_EQ(options[5].value, "N");
    EXPECT_EQ(options[7].value, "");  // of --brief
}

}  // namespace

}  // namespace lumerin
