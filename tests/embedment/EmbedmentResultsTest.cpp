// SPDX-License-Identifier: MIT
#include "embedment/EmbedmentResults.h"

#include <gmock/gmock.h>

#include "framework/File.h"
#include "support/StudyFolder.h"

namespace lumerin {

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

// Header and one case: the five values 1.5 to 5.5 at the piles 1 to 5.
constexpr const char* kThreeTrials = " 7  3  0  2  10.0\n";
constexpr const char* kCaseOne = "  1  1.5 1  2.5 2  3.5 3  4.5 4  5.5 5\n";

class EmbedmentResultsTest : public StudyFileTest {};

TEST_F(EmbedmentResultsTest, ReadsTheFiveValuesAndTheirPiles) {
    WriteBase(std::string(" 7  1  0  2  10.5\n") + kCaseOne +
              "2, -1.25, 9, 0, 8, 0, 7, 1e3, 6, -2e3, 5\nEOF\n");
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_EQ(results.GetSubstructure(), 7);
    EXPECT_EQ(results.GetTrialCount(), 1);
    EXPECT_EQ(results.GetCaseCount(), 2);
    EXPECT_EQ(results.GetEmbedment(0), 10.5);
    EXPECT_FALSE(results.IsTrialIncomplete(0));
    for (int q = 0; q < kQuantityCount; ++q) {
        EXPECT_EQ(results.GetValue(0, 0, q), q + 1.5);
        EXPECT_EQ(results.GetLocation(0, 0, q), q + 1);
    }
    EXPECT_EQ(results.GetValue(0, 1, kLateral), -1.25);
    EXPECT_EQ(results.GetLocation(0, 1, kLateral), 9);
    EXPECT_EQ(results.GetValue(0, 1, kMaxAxial), 1000.0);
    EXPECT_EQ(results.GetValue(0, 1, kMinAxial), -2000.0);
}

TEST_F(EmbedmentResultsTest, ABaseFileWithoutEndMarkIsIncompleteAndTheOthersAreRead) {
    WriteBase(std::string(kThreeTrials) + kCaseOne);
    WriteTrial(2, std::string(" 7 3 0 2 12.0\n") + kCaseOne + "EOF\n");
    WriteTrial(3, std::string(" 7 3 0 2 14.0\n") + kCaseOne + "EOF");
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_TRUE(results.IsTrialIncomplete(0));
    EXPECT_EQ(results.GetEmbedment(0), 0.0);
    EXPECT_EQ(results.GetValue(0, 0, kLateral), 0.0);
    EXPECT_FALSE(results.IsTrialIncomplete(1));
    EXPECT_FALSE(results.IsTrialIncomplete(2));
    EXPECT_EQ(results.GetEmbedment(2), 14.0);
    EXPECT_TRUE(messages.texts.empty());
}

TEST_F(EmbedmentResultsTest, AMissingTrialFolderLeavesAGapWithoutAMessage) {
    WriteBase(std::string(kThreeTrials) + kCaseOne + "EOF\n");
    WriteTrial(3, std::string(" 7 3 0 2 14.0\n") + kCaseOne + "EOF\n");
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_TRUE(results.IsTrialIncomplete(1));
    EXPECT_EQ(results.FindAdjacentTrial(0, false), 2);
    EXPECT_EQ(results.FindAdjacentTrial(2, true), 0);
    EXPECT_EQ(results.FindAdjacentTrial(2, false), -1);
    EXPECT_EQ(results.FindAdjacentTrial(0, true), -1);
    EXPECT_TRUE(messages.texts.empty());
}

TEST_F(EmbedmentResultsTest, AStudyOfOneTrialTriesTheBaseFileAlone) {
    WriteBase(std::string(" 1 1 0 2 10\n") + kCaseOne + "EOF\n");
    WriteTrial(2, std::string(" 1 2 0 2 12\n") + kCaseOne + "EOF\n");
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_EQ(results.GetTrialCount(), 1);
    EXPECT_EQ(results.GetEmbedment(0), 10.0);
    EXPECT_TRUE(results.IsTrialIncomplete(1));
}

TEST_F(EmbedmentResultsTest, CaseNumbersOutsideTheTableArePassedOver) {
    WriteBase(
        " 1 1 0 2 10\n"
        "0 9 9 9 9 9 9 9 9 9 9\n"
        "-1 9 9 9 9 9 9 9 9 9 9\n"
        "3 9 9 9 9 9 9 9 9 9 9\n"
        "99999999999 9 9 9 9 9 9 9 9 9 9\n"
        "1e300 9 9 9 9 9 9 9 9 9 9\n"
        "2.9 7 1 7 1 7 1 7 1 7 1e99\n"
        "EOF\n");
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_EQ(results.GetValue(0, 0, kLateral), 0.0);
    EXPECT_EQ(results.GetValue(0, 1, kLateral), 7.0);    // 2.9 is case 2
    EXPECT_EQ(results.GetLocation(0, 1, kMinAxial), 0);  // no pile has such a number
    EXPECT_EQ(results.GetValue(0, 2, kLateral), 0.0);
    EXPECT_EQ(results.GetValue(0, -1, kLateral), 0.0);
    EXPECT_EQ(results.GetValue(0, 1, 5), 0.0);
    EXPECT_EQ(results.GetValue(0, 1, -1), 0.0);
    EXPECT_EQ(results.GetValue(5, 1, 0), 0.0);
    EXPECT_EQ(results.GetLocation(-1, 1, 0), 0);
    EXPECT_EQ(results.GetEmbedment(-1), 0.0);
}

TEST_F(EmbedmentResultsTest, OtherCountsInATrialHeaderChangeNeitherTheTrialsNorTheTable) {
    WriteBase(std::string(" 1 2 0 2 10\n") + kCaseOne + "EOF\n");
    WriteTrial(2, std::string(" 4.7 9 0 5 12.5\n") + kCaseOne + "5 1 1 1 1 1 1 1 1 1 1\nEOF\n");
    WriteTrial(3, std::string(" 1 2 0 2 14\n") + kCaseOne + "EOF\n");
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_EQ(results.GetTrialCount(), 2);
    EXPECT_EQ(results.GetSubstructure(), 4);
    EXPECT_EQ(results.GetCaseCount(), 5);  // the header that was read last
    EXPECT_EQ(results.GetValue(1, 0, kLateral), 1.5);
    EXPECT_EQ(results.GetValue(1, 4, kLateral), 0.0);  // the base file's table ends at case 2
}

TEST_F(EmbedmentResultsTest, AbsurdCountsInATrialHeaderAreNotTaken) {
    WriteBase(std::string(" 1 3 0 2 10\n") + kCaseOne + "EOF\n");
    WriteTrial(2, std::string(" 1e40 -3 0 -7 12\n") + kCaseOne + "EOF\n");
    WriteTrial(3, std::string(" 1 1e40 0 1e12 14\n") + kCaseOne + "EOF\n");
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_EQ(results.GetTrialCount(), 3);
    EXPECT_EQ(results.GetCaseCount(), 2);
    EXPECT_EQ(results.GetSubstructure(), 1);
}

TEST_F(EmbedmentResultsTest, ABlankFirstLineLeavesATrialsHeaderUnread) {
    WriteBase(std::string("\n\n 3 1 0 2 10.25\n") + kCaseOne + "EOF\n");
    CEmbedmentResults results(inputFile, messages);
    EXPECT_EQ(results.GetTrialCount(), 1);  // the counts are searched for
    results.LoadTrials();
    // The trial's header then reads as the data of case 3, which the table does not have.
    EXPECT_EQ(results.GetEmbedment(0), 0.0);
    EXPECT_EQ(results.GetValue(0, 0, kLateral), 1.5);
    EXPECT_FALSE(results.IsTrialIncomplete(0));
}

TEST_F(EmbedmentResultsTest, LinesAfterTheEndMarkStillCount) {
    WriteBase(std::string(" 1 1 0 2 10\nEOF\n") + kCaseOne);
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_FALSE(results.IsTrialIncomplete(0));
    EXPECT_EQ(results.GetValue(0, 0, kMinAxial), 5.5);
}

TEST_F(EmbedmentResultsTest, TheEndMarkMayFollowBlanksAndEndsTheLine) {
    Write("blanks", "  \tEOF\r\n");
    Write("after", "EOF \n");
    Write("word", "EOFX\n");
    Write("lower", "eof\n");
    EXPECT_TRUE(CEmbedmentResults::IsTrialFileComplete((folder / "blanks").string()));
    EXPECT_FALSE(CEmbedmentResults::IsTrialFileComplete((folder / "after").string()));
    EXPECT_FALSE(CEmbedmentResults::IsTrialFileComplete((folder / "word").string()));
    EXPECT_FALSE(CEmbedmentResults::IsTrialFileComplete((folder / "lower").string()));
    EXPECT_FALSE(CEmbedmentResults::IsTrialFileComplete((folder / "missing").string()));
}

TEST_F(EmbedmentResultsTest, ALineOfMoreThan255CharactersEndsTheScan) {
    const std::string blanks(255, ' ');
    Write("fits", blanks + "\nEOF\n");
    Write("long", blanks + " \nEOF\n");
    EXPECT_TRUE(CEmbedmentResults::IsTrialFileComplete((folder / "fits").string()));
    EXPECT_FALSE(CEmbedmentResults::IsTrialFileComplete((folder / "long").string()));
    // After the end mark: the long line's first part is used, what follows it is not.
    const std::string data = "2 8 1 8 1 8 1 8 1 8 1";
    WriteBase(std::string(" 1 1 0 2 10\nEOF\n") + data + blanks + "\n" + kCaseOne);
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_EQ(results.GetValue(0, 1, kLateral), 8.0);
    EXPECT_EQ(results.GetValue(0, 0, kLateral), 0.0);
}

TEST_F(EmbedmentResultsTest, FilesAreFoundWhateverTheCaseOfTheirNames) {
    Write("A.pel", std::string(" 1 2 0 2 10\n") + kCaseOne + "EOF\n");
    Write("mpte2/A_mpte2.pel", std::string(" 1 2 0 2 12\n") + kCaseOne + "EOF\n");
    CEmbedmentResults results(inputFile, messages);
    results.LoadTrials();
    EXPECT_FALSE(results.IsTrialIncomplete(0));
    EXPECT_FALSE(results.IsTrialIncomplete(1));
}

TEST_F(EmbedmentResultsTest, AMissingBaseFileIsReported) {
    CEmbedmentResults results(inputFile, messages);
    EXPECT_THAT(messages.texts, ElementsAre("Error opening the base PEL results file."));
    EXPECT_EQ(results.GetTrialCount(), 0);
    EXPECT_EQ(results.GetCaseCount(), 0);
    EXPECT_EQ(results.GetSubstructure(), 1);
    results.LoadTrials();
    EXPECT_EQ(results.GetTrialOrder(), CEmbedmentResults::kNoOrder);
}

TEST_F(EmbedmentResultsTest, ABaseFileWithoutANumberIsReported) {
    WriteBase("\nno number here\n\n");
    CEmbedmentResults results(inputFile, messages);
    EXPECT_THAT(messages.texts, ElementsAre("Error reading PEL global data."));
    EXPECT_EQ(results.GetTrialCount(), 0);
}

TEST_F(EmbedmentResultsTest, AMissingTrialFileIsReportedWhenItIsRead) {
    WriteBase(" 1 1 0 2 10\n");
    CEmbedmentResults results(inputFile, messages);
    results.ReadTrialFile((folder / "missing").string(), 0);
    EXPECT_THAT(messages.texts, ElementsAre("Error opening the PEL results file."));
    results.ReadTrialFile((folder / "a.PEL").string(), 1);  // no such row
    EXPECT_TRUE(results.IsTrialIncomplete(1));
}

TEST_F(EmbedmentResultsTest, CountsThatNoStudyHasAreRefusedWithTheFilesName) {
    for (const char* header : {"1 -3 0 2 10", "1 2 0 -2 10", "1 2000000000 0 2 10", "1 2 0 2000000000 10"}) {
        WriteBase(std::string(header) + "\nEOF\n");
        try {
            CEmbedmentResults results(inputFile, messages);
            ADD_FAILURE() << header;
        } catch (const CFileException& failure) {
            EXPECT_THAT(failure.what(), HasSubstr("a.PEL"));
        }
    }
}

TEST_F(EmbedmentResultsTest, TheOrderIsThatOfTheFirstTwoCompleteTrials) {
    const auto order = [this](const char* first, const char* second) {
        const std::string header = " 1 3 0 1 ";
        WriteBase(header + first + "\nEOF\n");
        WriteTrial(3, header + second + "\nEOF\n");
        CEmbedmentResults results(inputFile, messages);
        results.LoadTrials();
        return results.GetTrialOrder();
    };
    EXPECT_EQ(order("10", "12"), CEmbedmentResults::kAscending);
    EXPECT_EQ(order("12", "12"), CEmbedmentResults::kAscending);
    EXPECT_EQ(order("12", "10"), CEmbedmentResults::kDescending);
    std::filesystem::remove_all(folder / "MPTE3");
    CEmbedmentResults one(inputFile, messages);
    one.LoadTrials();
    EXPECT_EQ(one.GetTrialOrder(), CEmbedmentResults::kNoOrder);
}

}  // namespace

}  // namespace lumerin
