// SPDX-License-Identifier: MIT
// The scripts of tests/scripts that contain their expected output: a line "#= LINE" after an action is a line
// of the output. Every line about focus, messages and refusals must be expected so, in this order; lines of
// the grid's rows may be. tools/test-windows compares the real windows with this face.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/DriveCommand.h"
#include "framework/headless/Headless.h"
#include "samples/CommandLine.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> LinesOf(std::istream& text) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
}

struct ScriptFile {
    std::string text;
    std::string project = "pier";
    std::vector<std::string> sample;    // further arguments of the sample maker
    std::vector<std::string> expected;  // lines of the output

    explicit ScriptFile(const fs::path& path) {
        std::ifstream file(path);
        for (const std::string& line : LinesOf(file)) {
            text += line + "\n";
            if (line.starts_with("#= ")) expected.push_back(line.substr(3));
            std::istringstream words(line);
            std::string mark, word;
            words >> mark >> word;
            if (mark != "#@") continue;
            if (word == "projects") words >> project;
            while (word == "sample" && words >> mark) sample.push_back(mark);
        }
    }
};

// Values that are too long for a cell, in the first trial's cases 1 and 3.
void Widen(const fs::path& study) {
    std::ifstream in(study);
    std::string text;
    for (const std::string& line : LinesOf(in)) {
        std::istringstream words(line);
        std::string number, value, rest;
        words >> number >> value;
        std::getline(words, rest);
        const bool wide = !line.starts_with(" 1  ") && (number == "1" || number == "3");
        text += wide ? number + " 123456789012345678901.5 " + rest + "\n" : line + "\n";
    }
    in.close();
    std::ofstream(study, std::ios::binary) << text;
}

class ScriptFiles : public testing::TestWithParam<std::string> {
  protected:
    ScriptFiles() { headless::ResetState(); }
    ~ScriptFiles() override { headless::ResetState(); }
};

bool MustBeExpected(const std::string& line) {
    return line.starts_with("{\"focus\"") || line.starts_with("{\"message\"") ||
           line.starts_with("{\"refused\"");
}

TEST_P(ScriptFiles, PrintsWhatTheScriptExpects) {
    const ScriptFile script(fs::path(LUMERIN_SOURCE_DIR) / "tests/scripts" / GetParam());
    const SampleFolder folder;
    const bool wide = script.project == "wide-study";
    std::vector<std::string> arguments{folder.Path().string(), "--preset", wide ? "pier" : script.project};
    arguments.insert(arguments.end(), script.sample.begin(), script.sample.end());
    std::ostringstream made, faults;
    ASSERT_EQ(samples::RunMakeSample(arguments, made, faults), 0) << faults.str();
    std::string project = made.str();
    project.pop_back();
    if (wide) Widen(fs::path(project).replace_extension("PEL"));

    DriveOptions options;
    options.project = project;
    options.format = 2;
    std::ostringstream out, err;
    const ExitStatus status = DriveScript(options, script.text, out, err);
    EXPECT_EQ(status, out.str().find("{\"refused\"") == std::string::npos ? kExitDone : kExitIncomplete);
    EXPECT_EQ(err.str(), "");
    ASSERT_FALSE(script.expected.empty());
    auto next = script.expected.begin();
    std::istringstream output(out.str());
    for (const std::string& line : LinesOf(output)) {
        const bool isNext = next != script.expected.end() && line == *next;
        if (isNext) {
            ++next;
        } else if (MustBeExpected(line)) {
            FAIL() << "not expected:  " << line
                   << "\nexpected next: " << (next == script.expected.end() ? "nothing" : *next);
        }
    }
    EXPECT_EQ(next, script.expected.end()) << "did not come: " << *next;
}

std::vector<std::string> ScriptsWithExpectations() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(fs::path(LUMERIN_SOURCE_DIR) / "tests/scripts")) {
        if (entry.path().extension() != ".script") continue;
        if (!ScriptFile(entry.path()).expected.empty()) names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string TestName(const testing::TestParamInfo<std::string>& script) {
    std::string name = fs::path(script.param).stem().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Files, ScriptFiles, testing::ValuesIn(ScriptsWithExpectations()), TestName);

}  // namespace

}  // namespace lumerin
