// SPDX-License-Identifier: MIT
#include "cli/OptionTexts.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "support/ProgramRun.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

using testing::HasSubstr;
using testing::Not;

// What the program says of a command line whose projects do not exist.
std::string MessageOf(Program& program, const CommandParser& command, const std::string& option,
                      const std::string& word) {
    std::vector<std::string> words{command.Name()};
    for (const OptionText& each : command.Options()) {
        if (!each.isArgument) continue;
        words.emplace_back(each.names.front() == "FIGURE" ? "dc" : "/nowhere/pier");
        if (each.isRepeated) break;
    }
    words.insert(words.end(), {option, word});
    return RunLumerin(program, words).err;
}

// The words that a message lists at its end, "... is no format (text, json)"; those of several words, which
// no completion offers, are left out.
std::vector<std::string> ListedWords(const std::string& message) {
    const std::size_t open = message.rfind('('), close = message.rfind(')');
    if (message.find("\" is no ") == std::string::npos || open == std::string::npos || close < open)
        return {};
    const std::string list = message.substr(open + 1, std::min(close, message.find(';', open)) - open - 1);
    std::vector<std::string> words;
    for (const std::string_view part : SplitList(list)) {
        std::string word(part.substr(std::min(part.find_first_not_of(' '), part.size())));
        if (word.starts_with("or ")) word.erase(0, 3);
        if (word.find(' ') == std::string::npos) words.push_back(word);
    }
    return words;
}

// Options with a value that is neither a path nor free text.
std::vector<OptionText> ValueOptions(const CommandParser& command) {
    std::vector<OptionText> options = command.Options();
    std::erase_if(options, [](const OptionText& option) {
        return option.isArgument || option.value.empty() || option.value.find("FILE") != std::string::npos ||
               option.value == "DIR" || option.value == "TEXT";
    });
    return options;
}

TEST(OptionTexts, EachWordThatIsCompletedIsAccepted) {
    const Program parsers;
    std::size_t tried = 0;
    for (const CommandParser& command : parsers.Parser().Commands()) {
        for (const OptionText& option : ValueOptions(command)) {
            const std::string& name = option.names.back();
            Program program;
            for (const std::string& word : WordsOf(command.Name(), name)) {
                EXPECT_THAT(MessageOf(program, command, name, word), Not(HasSubstr("\" is no ")))
                    << name << ' ' << word;
                ++tried;
            }
        }
    }
    EXPECT_GT(tried, 100U);
}

TEST(OptionTexts, EachWordThatAMessageListsIsCompleted) {
    const Program parsers;
    std::size_t lists = 0;
    for (const CommandParser& command : parsers.Parser().Commands()) {
        for (const OptionText& option : ValueOptions(command)) {
            const std::string& name = option.names.back();
            const std::vector<std::string> completed = WordsOf(command.Name(), name);
            Program program;
            const std::string message = MessageOf(program, command, name, "qqqqqq");
            const std::vector<std::string> listed = ListedWords(message);
            EXPECT_THAT(listed, testing::IsSubsetOf(completed)) << command.Name() << ": " << message;
            // A completion whose option lists no words would not be compared with anything.
            EXPECT_EQ(listed.empty(), completed.empty()) << command.Name() << ' ' << name << ": " << message;
            if (!listed.empty()) ++lists;
        }
    }
    EXPECT_GT(lists, 20U);
}

}  // namespace

}  // namespace lumerin
