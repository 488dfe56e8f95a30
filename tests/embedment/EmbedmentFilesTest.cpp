// SPDX-License-Identifier: MIT
#include "embedment/EmbedmentFiles.h"

#include "support/StudyFolder.h"

namespace lumerin {

namespace {

class EmbedmentFilesTest : public StudyFileTest {
  protected:
    bool Requested(const std::string& input) const {
        Write("a.in", input);
        return IsEmbedmentRequested(inputFile);
    }
};

// "PROBLEM" and the eight lines after it; the ninth is the first that may be the section's marker.
const std::string kProblem = "PROBLEM\n1\n2\n3\n4\n5\n6\n7\n8\n";

TEST_F(EmbedmentFilesTest, TheBaseFileHasTheInputFilesNameWithItsOwnExtension) {
    EXPECT_FALSE(HasEmbedmentFile(inputFile));
    WriteBase("");
    EXPECT_TRUE(HasEmbedmentFile(inputFile));
    inputFile = "folder.d/project";
    EXPECT_EQ(EmbedmentBaseFile(inputFile), "folder.d/project.PEL");
    inputFile = "C:\\p\\a.b.in";
    EXPECT_EQ(EmbedmentBaseFile(inputFile), "C:\\p\\a.b.PEL");
    inputFile.clear();
    EXPECT_FALSE(HasEmbedmentFile(inputFile));
}

TEST_F(EmbedmentFilesTest, TheStudyIsRequestedAfterTheProblemSection) {
    EXPECT_TRUE(Requested(kProblem + "MPTE\nM= 1\n"));
    EXPECT_TRUE(Requested(kProblem + "9\n10\nMPTE study\nN= 4 m=1\n"));
    EXPECT_TRUE(Requested("TITLE\n" + kProblem + "MPTE\r\nM= 1\r\n"));
    EXPECT_FALSE(Requested(kProblem + "MPTE\nM= 0\n"));
    EXPECT_FALSE(Requested(kProblem + "MPTE\nM= 2\n"));
    EXPECT_FALSE(Requested(kProblem + "MPTE\n"));
    EXPECT_FALSE(Requested(kProblem + "MPTE\nno key\nM= 1\n"));
    EXPECT_FALSE(Requested(kProblem + "M= 1\n"));
    EXPECT_FALSE(Requested(""));
}

TEST_F(EmbedmentFilesTest, AMarkerBeforeOrInsideTheProblemSectionDoesNotCount) {
    EXPECT_FALSE(Requested("MPTE\nM= 1\n" + kProblem + "9\n"));
    EXPECT_FALSE(Requested("PROBLEM\nMPTE\nM= 1\n3\n4\n5\n6\n7\n8\n9\n"));
    EXPECT_FALSE(Requested("PROBLEM\n1\n2\nMPTE\n"));
    // The first marker decides.
    EXPECT_FALSE(Requested(kProblem + "MPTE\nM= 0\nMPTE\nM= 1\n"));
}

TEST_F(EmbedmentFilesTest, ALineOfMoreThan256CharactersEndsTheSearch) {
    EXPECT_TRUE(Requested(std::string(256, 'x') + "\n" + kProblem + "MPTE\nM= 1\n"));
    EXPECT_TRUE(Requested(std::string(256, 'x') + "\r\n" + kProblem + "MPTE\nM= 1\n"));
    EXPECT_FALSE(Requested(std::string(257, 'x') + "\n" + kProblem + "MPTE\nM= 1\n"));
    // Its first part is still used.
    EXPECT_TRUE(Requested(kProblem + "MPTE\nM= 1" + std::string(300, ' ') + "\n"));
}

TEST_F(EmbedmentFilesTest, AProjectWithoutInputFileAsksForNothing) {
    EXPECT_FALSE(IsEmbedmentRequested(inputFile));
}

}  // namespace

}  // namespace lumerin
