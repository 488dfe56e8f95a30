// SPDX-License-Identifier: MIT
#include "samples/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <exception>
#include <ostream>

#include "samples/OutputFile.h"
#include "samples/Presets.h"
#include "samples/Project.h"

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
    std::string folder, name, cases, filled, piles, seed, trials;
    SampleOptions options;
};

void AddArguments(CLI::App& app, Arguments& arguments) {
    app.add_option("DIR", arguments.folder, "folder to write into; made when it is not there")->required();
    app.add_option("--name", arguments.name, "name of the project (default: that of the preset)");
    app.add_option("--preset", arguments.options.preset, "kind of project")->capture_default_str();
    app.add_option("--cases", arguments.cases, "load cases, combinations or time steps");
    app.add_option("--filled", arguments.filled,
                   "forces for the first and the last so many cases alone, a hole in the file between them");
    app.add_option("--piles", arguments.piles, "pile rows and columns, as in 4x6");
    app.add_option("--trials", arguments.trials, "trials of the embedment study (default: 8)");
    app.add_option("--seed", arguments.seed, "another seed gives other loads (default: 1)");
    app.footer(PresetHelp());
}

void Run(const CLI::App& app, Arguments& arguments, std::ostream& out) {
    if (app.count("--name") > 0) arguments.options.name = arguments.name;
    if (app.count("--cases") > 0) arguments.options.cases = ParseNumber<int>(arguments.cases, "--cases");
    if (app.count("--filled") > 0) arguments.options.filled = ParseNumber<int>(arguments.filled, "--filled");
    if (app.count("--piles") > 0) ParsePiles(arguments.piles, arguments.options);
    if (app.count("--seed") > 0)
        arguments.options.seed = ParseNumber<std::uint64_t>(arguments.seed, "--seed");
    if (app.count("--trials") > 0) arguments.options.trials = ParseNumber<int>(arguments.trials, "--trials");
    const auto project = MakeProject(arguments.options);
    const std::filesystem::path folder = arguments.folder;
    WriteProject(folder, project);
    out << (folder / (project.name + ".in")).string() << '\n';
}

}  // namespace

int RunMakeSample(std::vector<std::string> arguments, std::ostream& out, std::ostream& errors) {
    CLI::App app("Writes a sample project: an input file with the results of an imagined analysis beside it.",
                 "make-sample");
    Arguments parsed;
    AddArguments(app, parsed);
    try {
        std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the back
        app.parse(arguments);
        Run(app, parsed, out);
        return kStatusDone;
    } catch (const CLI::Success& help) {
        return app.exit(help, out, errors);
    } catch (const std::exception& error) {
        errors << "make-sample: " << error.what() << '\n';
        return kStatusFailed;
    }
}

}  // namespace samples

}  // namespace lumerin
