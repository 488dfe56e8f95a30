// SPDX-License-Identifier: MIT
// The program as a whole: the study, repeatability, leftovers and messages.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>

#include "ProjectReader.h"
#include "samples/CommandLine.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

std::map<std::string, std::string> AllFiles(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        files[std::filesystem::relative(entry.path(), folder).string()] = reader::ReadAll(entry.path());
    }
    return files;
}

std::vector<double> Numbers(const std::string& line) {
    std::istringstream stream(line);
    std::vector<double> numbers;
    for (double number = 0.0; stream >> number;) numbers.push_back(number);
    return numbers;
}

std::string TrialFile(const SampleFolder& folder, int trial) {
    if (trial == 1) return folder.Base("pier.PEL");
    const std::string label = "MPTE" + std::to_string(trial);
    return folder.Base(label + "/pier_" + label + ".PEL");
}

TEST(EmbedmentStudy, HasEightTrialsOneWithoutFolderAndOneUnfinished) {
    const SampleFolder folder;
    folder.Write("pier");
    for (int trial = 1; trial <= 8; ++trial) {
        SCOPED_TRACE(trial);
        ASSERT_EQ(std::filesystem::exists(TrialFile(folder, trial)), trial != 5);
        if (trial == 5) continue;
        const auto lines = reader::ReadLines(TrialFile(folder, trial));
        EXPECT_EQ(lines.back() == "EOF", trial != 7);
        EXPECT_EQ(Numbers(lines.front()), (std::vector<double>{1.0, 8.0, 0.0, 26.0, 64.0 - 4.0 * trial}));
        for (int c = 1; c <= 26; ++c) {
            const auto numbers = Numbers(lines.at(static_cast<std::size_t>(c)));
            ASSERT_EQ(numbers.size(), 11U);
            EXPECT_EQ(numbers[0], c);
            for (std::size_t pile = 2; pile < 11; pile += 2) {
                EXPECT_GE(numbers[pile], 1.0);
                EXPECT_LE(numbers[pile], 8.0);
            }
            // The greatest of all directions is at least that of each direction.
            EXPECT_GE(numbers[1], std::max(numbers[3], numbers[5]) - 1e-6);
            EXPECT_GT(numbers[7], numbers[9]);
        }
    }
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "MPTE5"));
}

TEST(EmbedmentStudy, HeadsMoveMoreOnShorterPiles) {
    const SampleFolder folder;
    folder.Write("pier");
    const auto full = reader::ReadLines(TrialFile(folder, 1));
    const auto shorter = reader::ReadLines(TrialFile(folder, 4));
    const auto shortest = reader::ReadLines(TrialFile(folder, 8));
    for (std::size_t c = 1; c <= 26; ++c) {
        EXPECT_LT(Numbers(full[c])[1], Numbers(shorter[c])[1]);
        EXPECT_LT(Numbers(shorter[c])[1], Numbers(shortest[c])[1]);
    }
}

TEST(WholeProject, SameSeedGivesSameBytesAndAnotherSeedOtherForces) {
    for (const char* preset : {"pier", "bridge", "history"}) {
        const SampleFolder folder;
        samples::SampleOptions options;
        options.preset = preset;
        options.name = "p";
        options.seed = 7;
        folder.Write(options);
        const auto first = AllFiles(folder.Path());
        folder.Write(options);
        EXPECT_EQ(AllFiles(folder.Path()), first) << preset;
        options.seed = 8;
        folder.Write(options);
        const auto other = AllFiles(folder.Path());
        EXPECT_NE(other.at("p.vmd"), first.at("p.vmd")) << preset;
        EXPECT_EQ(other.at("p.PLF"), first.at("p.PLF")) << preset;
    }
}

TEST(WholeProject, AHoleInTheForcesReadsAsZerosBetweenFilledCases) {
    const ScratchFolder folder;
    samples::SampleOptions options;
    options.preset = "group";
    options.cases = 9;
    samples::WriteProject(folder.Path() / "all", samples::MakeProject(options));
    options.filled = 2;
    samples::WriteProject(folder.Path() / "hole", samples::MakeProject(options));
    const std::string all = folder.Read("all/group.vmd"), hole = folder.Read("hole/group.vmd");
    ASSERT_EQ(hole.size(), all.size());
    const std::size_t caseBytes = all.size() / 9;
    EXPECT_EQ(hole.substr(0, 2 * caseBytes), all.substr(0, 2 * caseBytes));
    EXPECT_EQ(hole.substr(2 * caseBytes, 5 * caseBytes), std::string(5 * caseBytes, '\0'));
    EXPECT_EQ(hole.substr(7 * caseBytes), all.substr(7 * caseBytes));
    // The two ends meet without a gap.
    options.filled = 5;
    samples::WriteProject(folder.Path() / "none", samples::MakeProject(options));
    EXPECT_EQ(folder.Read("none/group.vmd"), all);
}

TEST(WholeProject, AnotherPresetUnderTheSameNameLeavesNothingOfTheFirst) {
    const SampleFolder folder;
    samples::SampleOptions options;
    options.name = "p";
    options.preset = "group";
    folder.Write(options);
    const auto expected = AllFiles(folder.Path());
    for (const char* preset : {"pier", "bridge"}) {
        options.preset = preset;
        folder.Write(options);
    }
    options.preset = "group";
    folder.Write(options);
    EXPECT_EQ(AllFiles(folder.Path()), expected);
}

TEST(WholeProject, SubstructuresAfterTheFirstHaveTheirNumber) {
    const SampleFolder folder;
    const std::string base = folder.Write("bridge");
    for (const char* suffix : {".PLF", ".PIL", ".pls", ".ash", ".vmd"}) {
        EXPECT_TRUE(std::filesystem::exists(base + suffix));
        EXPECT_TRUE(std::filesystem::exists(base + suffix + "2"));
        EXPECT_TRUE(std::filesystem::exists(base + suffix + "3"));
        EXPECT_FALSE(std::filesystem::exists(base + suffix + "1"));
    }
}

struct Outcome {
    int status = 0;
    std::string out, errors;
};

Outcome RunWith(const std::vector<std::string>& arguments) {
    std::ostringstream out, errors;
    Outcome outcome;
    outcome.status = samples::RunMakeSample(arguments, out, errors);
    outcome.out = out.str();
    outcome.errors = errors.str();
    return outcome;
}

TEST(CommandLine, WritesTheProjectAndPrintsItsInputFile) {
    const SampleFolder folder;
    const auto outcome = RunWith({folder.Path().string(), "--preset", "group", "--name", "quay", "--cases",
                                  "3", "--piles", "2x5", "--seed", "9"});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.out, folder.Base("quay.in") + "\n");
    const auto model = reader::ReadModel(folder.Base("quay"), 0);
    EXPECT_EQ(model.piles, 10);
    EXPECT_EQ(model.pileColumns, 5);
    EXPECT_EQ(model.analysed, 3);
}

TEST(CommandLine, DefaultIsThePierUnderItsOwnName) {
    const SampleFolder folder;
    EXPECT_EQ(RunWith({folder.Path().string()}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(folder.Base("pier.vmd")));
}

TEST(CommandLine, HelpNamesEveryPreset) {
    const auto outcome = RunWith({"--help"});
    EXPECT_EQ(outcome.status, 0);
    for (const auto& preset : samples::Presets()) {
        EXPECT_NE(outcome.out.find(std::string(preset.name)), std::string::npos) << preset.name;
    }
}

TEST(CommandLine, WrongArgumentsGiveOneLineAndStatusTwo) {
    const SampleFolder folder;
    const std::string to = folder.Path().string();
    const std::vector<std::pair<std::vector<std::string>, std::string>> wrong = {
        {{}, "DIR"},
        {{to, "--preset", "tower"}, "unknown preset 'tower'"},
        {{to, "--cases", "0"}, "cases must lie between 1 and"},
        {{to, "--cases", "-4"}, "cases must lie between 1 and"},
        {{to, "--cases", "12.5"}, "--cases cannot be '12.5'"},
        {{to, "--cases", "99999999999"}, "--cases cannot be"},
        {{to, "--piles", "4"}, "--piles takes ROWSxCOLUMNS"},
        {{to, "--piles", "4x"}, "columns of --piles cannot be ''"},
        {{to, "--piles", "0x4"}, "pile rows must lie between 1 and"},
        {{to, "--piles", "4x4x4"}, "columns of --piles cannot be '4x4'"},
        {{to, "--seed", "-1"}, "--seed cannot be '-1'"},
        {{to, "--name", ""}, "'' cannot be the name"},
        {{to, "--name", "a/b"}, "'a/b' cannot be the name"},
        {{to, "--preset", "bent", "--piles", "50x50"}, "too large"},
        {{to, "--bogus"}, "--bogus"},
    };
    for (const auto& [arguments, text] : wrong) {
        const auto outcome = RunWith(arguments);
        EXPECT_EQ(outcome.status, 2) << text;
        EXPECT_EQ(outcome.out, "") << text;
        EXPECT_NE(outcome.errors.find(text), std::string::npos) << outcome.errors;
        EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
    }
    EXPECT_FALSE(std::filesystem::exists(folder.Path()));
}

TEST(CommandLine, FolderThatCannotBeMadeIsNamed) {
    const SampleFolder folder;
    std::filesystem::create_directories(folder.Path());
    std::ofstream(folder.Base("file")) << "x";
    const auto outcome = RunWith({folder.Base("file/below")});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_NE(outcome.errors.find(folder.Base("file/below")), std::string::npos) << outcome.errors;
}

}  // namespace

}  // namespace lumerin
