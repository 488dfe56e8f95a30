// SPDX-License-Identifier: MIT
#include "samples/CommandLine.h"

#include <charconv>
#include <exception>
#include <filesystem>
#include <functional>
#include <ostream>

#include "samples/OutputFile.h"
#include "samples/Presets.h"
#include "samples/Project.h"
#include "script/CommandParser.h"

namespace lumerin {

namespace samples {
namespace {

constexpr int kStatusDone = 0;
constexpr int kStatusFailed = 2;

template <typename Number>
Number ParseNumber(const std::string& text, const char* option) {
    Number value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || error != std::errc{} || stop != end) {
        throw SampleError(std::string(option) + " cannot be '" + text + "'");
    }
    return value;
}

void ParsePiles(const std::string& text, SampleOptions& options) {
    const auto cross = text.find_first_of("xX");
    if (cross == std::string::npos) throw SampleError("--piles takes ROWSxCOLUMNS, not '" + text + "'");
    options.rows = ParseNumber<int>(text.substr(0, cross), "the rows of --piles");
    options.columns = ParseNumber<int>(text.substr(cross + 1), "the columns of --piles");
}

std::string PresetHelp() {
    std::string help = "Presets:";
    for (const auto& preset : Presets()) {
        help += "\n  " + std::string(preset.name) + std::string(10 - preset.name.size(), ' ') +
                std::string(preset.summary);
    }
    return help + "\nA bent sets all its ROWSxCOLUMNS piles in one row.";
}

struct Arguments {
    std::string folder;
    SampleOptions options;
};

void AddArguments(ProgramParser& parser, Arguments& arguments) {
    SampleOptions& options = arguments.options;
    const auto add = [&parser](const char* name, const char* help,
                               const std::function<void(const std::string&)>& take) {
        parser.OnText(name, take, help);
    };
    parser.Add("DIR", arguments.folder, "folder to write into; made when it is not there").Required();
    add("--name", "name of the project (default: that of the preset)",
        [&options](const std::string& text) { options.name = text; });
    add("--preset", "kind of project (default: pier)",
        [&options](const std::string& text) { options.preset = text; });
    add("--cases", "load cases, combinations or time steps",
        [&options](const std::string& text) { options.cases = ParseNumber<int>(text, "--cases"); });
    add("--filled", "forces for the first and the last so many cases alone, a hole in the file between them",
        [&options](const std::string& text) { options.filled = ParseNumber<int>(text, "--filled"); });
    add("--piles", "pile rows and columns, as in 4x6",
        [&options](const std::string& text) { ParsePiles(text, options); });
    add("--trials", "trials of the embedment study (default: 8)",
        [&options](const std::string& text) { options.trials = ParseNumber<int>(text, "--trials"); });
    add("--seed", "another seed gives other loads (default: 1)",
        [&options](const std::string& text) { options.seed = ParseNumber<std::uint64_t>(text, "--seed"); });
    parser.SetFooter(PresetHelp());
}

void Run(const Arguments& arguments, std::ostream& out) {
    const auto project = MakeProject(arguments.options);
    const std::filesystem::path folder = arguments.folder;
    WriteProject(folder, project);
    out << (folder / (project.name + ".in")).string() << '\n';
}

}  // namespace

int RunMakeSample(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& errors) {
    ProgramParser parser(
        "make-sample",
        "Writes a sample project: an input file with the results of an imagined analysis beside it.");
    Arguments parsed;
    AddArguments(parser, parsed);
    std::vector<const char*> words{"make-sample"};
    for (const std::string& argument : arguments) words.push_back(argument.c_str());
    try {
        const ParseResult result = parser.Parse(static_cast<int>(words.size()), words.data());
        if (result.outcome == ParseOutcome::help) {
            out << result.text;
            return kStatusDone;
        }
        if (result.outcome != ParseOutcome::parsed) throw SampleError(result.reason);
        Run(parsed, out);
        return kStatusDone;
    } catch (const std::exception& error) {
        errors << "make-sample: " << error.what() << '\n';
        return kStatusFailed;
    }
}

}  // namespace samples

}  // namespace lumerin
