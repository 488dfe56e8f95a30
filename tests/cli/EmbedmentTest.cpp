// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "cli/EmbedmentCommand.h"
#include "cli/StudyArguments.h"
#include "support/SampleFolder.h"

namespace lumerin {

// The study of the sample pier: eight trials of which the fifth is missing and the seventh is unfinished.

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class EmbedmentCommandTest : public testing::Test {
  protected:
    void SetUp() override {
        headless::ResetState();
        base = folder.Write("pier");
        options.project = base + ".in";
    }
    void TearDown() override { headless::ResetState(); }

    ExitStatus Run() {
        out.str("");
        err.str("");
        return RunEmbedment(options, out, err);
    }
    // The words of a line of the output, from 0.
    std::vector<std::string> Words(int line) const {
        std::istringstream all(out.str());
        std::string text;
        for (int i = 0; i <= line; ++i) std::getline(all, text);
        std::istringstream words(text);
        return {std::istream_iterator<std::string>(words), {}};
    }

    SampleFolder folder;
    std::string base;
    EmbedmentOptions options;
    std::ostringstream out, err;
};

TEST_F(EmbedmentCommandTest, PrintsTheTableOfTheFirstCase) {
    ASSERT_EQ(Run(), kExitDone) << err.str();
    std::ifstream study(base + ".PEL");
    double substructure = 0, trials = 0, unused = 0, cases = 0, length = 0;
    study >> substructure >> trials >> unused >> cases >> length;
    std::string number, value, pile;
    study >> number >> value >> pile;
    EXPECT_THAT(out.str(), testing::StartsWith("Load Comb 1 - Embedment vs Lateral Displacement\n"));
    EXPECT_THAT(Words(1), ElementsAre("Trial", "Load", "Comb", "Pile", "Embedment", "Displacement"));
    EXPECT_THAT(Words(2), ElementsAre("(ft)", "(in)"));
    EXPECT_THAT(Words(3), ElementsAre("1", number, pile, "60.00", value));
    EXPECT_THAT(Words(7), ElementsAre("5", "NA", "NA", "NA", "NA"));
    EXPECT_THAT(Words(9), ElementsAre("7", "NA", "NA", "NA", "NA"));
    EXPECT_TRUE(err.str().empty());
}

TEST_F(EmbedmentCommandTest, AnEnvelopeIsNamedForWhatItIs) {
    options.view.envelope = ReadEnvelope("min");
    options.view.quantity = 4;
    ASSERT_EQ(Run(), kExitDone) << err.str();
    EXPECT_THAT(out.str(), testing::StartsWith("Min Envelope - Embedment vs Min Axial Force\n"));
    EXPECT_THAT(Words(2), ElementsAre("(ft)", "(kips)"));
    EXPECT_THROW(ReadEnvelope("mean"), std::invalid_argument);
}

TEST_F(EmbedmentCommandTest, WritesPictureAndWorkbookAndPrintsTheirPaths) {
    options.picture = folder.Base("curve.svg");
    options.workbook = true;
    options.view.loadCase = 2;
    ASSERT_EQ(Run(), kExitDone) << err.str();
    const std::string workbook = base + "_LoadComb2-EmbedmentvsLateralDisplacement.xml";
    EXPECT_THAT(out.str(), testing::EndsWith("\n\n" + options.picture + "\n" + workbook + "\n"));
    EXPECT_TRUE(std::filesystem::exists(workbook));
    std::ifstream file(options.picture);
    const std::string picture(std::istreambuf_iterator<char>(file), {});
    EXPECT_THAT(picture, HasSubstr("Load Comb 2 - Embedment vs Lateral Displacement</text>"));
}

TEST_F(EmbedmentCommandTest, ThePictureLeavesAGapAtAnUnfinishedTrial) {
    options.picture = folder.Base("curve.svg");
    const auto count = [this](const std::string& what) {
        std::ifstream file(options.picture);
        const std::string picture(std::istreambuf_iterator<char>(file), {});
        std::size_t hits = 0;
        for (std::size_t at = picture.find(what); at != std::string::npos; at = picture.find(what, at + 1))
            ++hits;
        return hits;
    };
    ASSERT_EQ(Run(), kExitDone) << err.str();
    EXPECT_EQ(count("<circle"), 6U);
    EXPECT_EQ(count("<polyline"), 1U);  // trials 1 to 4; 6 and 8 are alone
    // With the seventh finished 6 to 8 are a second line.
    std::ofstream(folder.Base("MPTE7/pier_MPTE7.PEL"), std::ios::app) << "EOF\n";
    ASSERT_EQ(Run(), kExitDone) << err.str();
    EXPECT_EQ(count("<circle"), 7U);
    EXPECT_EQ(count("<polyline"), 2U);
}

TEST_F(EmbedmentCommandTest, NamesInUtf8StayThoseOfTheFiles) {
    samples::SampleOptions sample;
    sample.name =
        "Gr\xC3\xB6\xC3\x9F"
        "e";
    base = folder.Write(sample);
    options.project = base + ".in";
    options.picture = folder.Base("\xE6\xA9\x8B.svg");
    options.workbook = true;
    ASSERT_EQ(Run(), kExitDone) << err.str();
    const std::string workbook = base + "_LoadComb1-EmbedmentvsLateralDisplacement.xml";
    EXPECT_THAT(out.str(), testing::EndsWith("\n\n" + options.picture + "\n" + workbook + "\n"));
    EXPECT_TRUE(std::filesystem::exists(workbook));
    EXPECT_THAT(Words(4), ElementsAre("2", testing::_, testing::_, "56.00", testing::_));
}

TEST_F(EmbedmentCommandTest, ACaseThatTheStudyDoesNotHaveIsWrongUse) {
    options.view.loadCase = 9999;
    EXPECT_EQ(Run(), kExitUsage);
    EXPECT_THAT(err.str(), HasSubstr("Invalid load case."));
    EXPECT_TRUE(out.str().empty());
}

TEST_F(EmbedmentCommandTest, APictureThatCannotBeWrittenIsReported) {
    options.picture = folder.Base("nowhere/curve.svg");
    EXPECT_EQ(Run(), kExitIncomplete);
    EXPECT_THAT(err.str(), HasSubstr("curve.svg could not be written"));
    EXPECT_THAT(out.str(), Not(HasSubstr("curve.svg")));
}

TEST_F(EmbedmentCommandTest, AProjectWithoutAStudyIsReported) {
    std::filesystem::remove(base + ".PEL");
    EXPECT_EQ(Run(), kExitIncomplete);
    EXPECT_THAT(err.str(), HasSubstr("no embedment study"));
    options.project = folder.Base("nothing.in");
    EXPECT_EQ(Run(), kExitNotLoaded);
}

// Trials of 60, 56, 52 and 48 ft, one that is missing, 40 ft, one that is unfinished, 32 ft.
TEST_F(EmbedmentCommandTest, AnEnvelopeAndACaseAreTwoTablesAndTwoCurves) {
    options.view.envelope = 0;
    options.view.loadCase = 3;
    options.view.hasCase = true;
    options.picture = folder.Base("curve.svg");
    ASSERT_EQ(Run(), kExitDone) << err.str();
    EXPECT_THAT(out.str(), testing::StartsWith("Max Envelope - Embedment vs Lateral Displacement\n"));
    EXPECT_THAT(out.str(), HasSubstr("\n\nLoad Comb 3 - Embedment vs Lateral Displacement\n"));
    std::ifstream file(options.picture);
    const std::string picture(std::istreambuf_iterator<char>(file), {});
    EXPECT_THAT(picture, HasSubstr(">Max Envelope, Load Comb 3 - Embedment vs Lateral Displacement</text>"));
    EXPECT_THAT(picture, HasSubstr(">Max Envelope</text>"));
    EXPECT_THAT(picture, HasSubstr(">Load Comb 3</text>"));
    // What is left out is named.
    EXPECT_THAT(err.str(), HasSubstr("gap for the incomplete trials 5, 7\n"));
}

TEST_F(EmbedmentCommandTest, ADisplacementIsHeldByTheShortestTrialThatIsStillLongEnough) {
    options.view.envelope = 0;
    ASSERT_EQ(Run(), kExitDone) << err.str();
    const double held = std::stod(Words(6)[4]), exceeded = std::stod(Words(8)[4]);  // 48 ft and 40 ft
    ASSERT_LT(held, exceeded);
    options.maxDisplacement = (held + exceeded) / 2.0;
    ASSERT_EQ(Run(), kExitDone) << err.str();
    EXPECT_THAT(out.str(), HasSubstr("  Shortest tried embedment that holds: 48.00 ft (trial 4: "));
    EXPECT_THAT(out.str(), HasSubstr("  Interpolated embedment: 44.00 ft (too short: 40.00 ft, trial 6: "));
    EXPECT_THAT(out.str(), HasSubstr("  Incomplete trials: 5, 7\n"));
    options.maxDisplacement = 1e-6;
    EXPECT_EQ(Run(), kExitIncomplete);
    EXPECT_THAT(out.str(), HasSubstr("  No tried embedment holds\n"));
}

TEST(StudyCurves, AShorterTrialThatHoldsByChanceIsNoAnswer) {
    const std::vector<StudyPoint> points = {{1, true, 30.0, 0.5, 1, 1},
                                            {2, true, 40.0, -2.0, 1, 1},
                                            {3, true, 50.0, 1.0, 1, 1},
                                            {4, false, 0.0, 0.0, 0, 0},
                                            {5, true, 60.0, 0.2, 1, 1}};
    const EmbedmentAnswer answer = FindEmbedment(points, 1.0);
    ASSERT_TRUE(answer.shortest && answer.tooShort && answer.interpolated);
    EXPECT_EQ(answer.shortest->trial, 3);
    EXPECT_EQ(answer.tooShort->trial, 2);
    EXPECT_DOUBLE_EQ(*answer.interpolated, 50.0);  // it holds exactly there
    EXPECT_EQ(answer.incomplete, std::vector<int>{4});
    EXPECT_DOUBLE_EQ(*FindEmbedment(points, 1.5).interpolated, 45.0);
    EXPECT_FALSE(FindEmbedment(points, 3.0).interpolated.has_value());
    EXPECT_FALSE(FindEmbedment(points, 0.1).shortest.has_value());
}

TEST(StudyCurves, AxesHaveRoundTicksAndHoldTheirData) {
    // Steps of 0.005 would be nine parts, one more than an axis has.
    const RoundAxis displacement = RoundAxisFor(0.0843, 0.1204);
    EXPECT_DOUBLE_EQ(displacement.min, 0.08);
    EXPECT_DOUBLE_EQ(displacement.max, 0.13);
    EXPECT_EQ(displacement.decimals, 2);
    EXPECT_EQ(displacement.ticks, 5);
    const RoundAxis length = RoundAxisFor(32.0, 60.0);
    EXPECT_DOUBLE_EQ(length.min, 30.0);
    EXPECT_DOUBLE_EQ(length.max, 60.0);
    EXPECT_EQ(length.ticks, 6);
    EXPECT_EQ(length.decimals, 0);
    for (const auto& [low, high] : std::vector<std::pair<double, double>>{
             {-1234.5, 17.0}, {5.0, 5.0}, {0.0, 0.0}, {1e-9, 3e-9}, {-3e7, -1e7}, {0.0, 1.0}}) {
        const RoundAxis axis = RoundAxisFor(low, high);
        EXPECT_LE(axis.min, low);
        EXPECT_GE(axis.max, high);
        EXPECT_GE(axis.ticks, 1);
        EXPECT_LE(axis.ticks, 10);
    }
}

}  // namespace

}  // namespace lumerin
