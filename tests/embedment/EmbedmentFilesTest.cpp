#include "embedment/EmbedmentFiles.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "session/Session.h"

namespace {

namespace fs = std::filesystem;

class EmbedmentFilesTest : public testing::Test {
  protected:
    EmbedmentFilesTest()
        : m_folder(fs::temp_directory_path() / ("lumerin-mpte-" + std::to_string(getpid()))) {
        fs::create_directories(m_folder);
    }
    ~EmbedmentFilesTest() override {
        fs::remove_all(m_folder);
        g_InputFilePath.clear();
    }

    void WriteInput(const std::string& text) {
        g_InputFilePath = (m_folder / "p.in").string();
        std::ofstream(g_InputFilePath, std::ios::binary) << text;
    }
    static std::string Lines(int count) {
        std::string text;
        for (int i = 0; i < count; ++i) text += "line\n";
        return text;
    }

    fs::path m_folder;
};

TEST_F(EmbedmentFilesTest, TheBaseFileReplacesTheExtension) {
    g_InputFilePath = "/p/a.in";
    EXPECT_EQ(EmbedmentBaseFile(), "/p/a.PEL");
    g_InputFilePath = "/p/a.b.in";
    EXPECT_EQ(EmbedmentBaseFile(), "/p/a.b.PEL");
    g_InputFilePath = "/p.d/a";  // the point is the folder's
    EXPECT_EQ(EmbedmentBaseFile(), "/p.d/a.PEL");
}

TEST_F(EmbedmentFilesTest, TheBaseFileIsFoundWhateverItsCase) {
    WriteInput("");
    EXPECT_FALSE(HasEmbedmentFile());
    std::ofstream(m_folder / "P.pel") << "1 1 0 1 10\n";
    EXPECT_TRUE(HasEmbedmentFile());
    g_InputFilePath.clear();
    EXPECT_FALSE(HasEmbedmentFile());
}

TEST_F(EmbedmentFilesTest, TheRequestStandsBehindNineLinesOfTheProblem) {
    WriteInput("header\nPROBLEM\n" + Lines(9) + "MPTE\nN= 3 M= 1\n");
    EXPECT_TRUE(IsEmbedmentRequested());
    WriteInput("PROBLEM\n" + Lines(20) + "MPTE\nM=1\n");
    EXPECT_TRUE(IsEmbedmentRequested());
    WriteInput("PROBLEM\r\n" + Lines(9) + "MPTE\r\nM= 1\r\n");
    EXPECT_TRUE(IsEmbedmentRequested());
}

TEST_F(EmbedmentFilesTest, TheNinthLinePassedOverMayBeTheMarker) {
    WriteInput("PROBLEM\n" + Lines(8) + "MPTE\nM= 1\n");
    EXPECT_TRUE(IsEmbedmentRequested());
    WriteInput("PROBLEM\n" + Lines(7) + "MPTE\nM= 1\nline\n");
    EXPECT_FALSE(IsEmbedmentRequested());
}

TEST_F(EmbedmentFilesTest, AMarkerBeforeTheProblemDoesNotCount) {
    WriteInput("MPTE\nM= 1\nPROBLEM\n" + Lines(12));
    EXPECT_FALSE(IsEmbedmentRequested());
}

TEST_F(EmbedmentFilesTest, AnythingButOneIsNoRequest) {
    for (const char* line : {"M= 0", "M= 2", "M=", "N= 1", ""}) {
        WriteInput("PROBLEM\n" + Lines(9) + "MPTE\n" + line + "\n");
        EXPECT_FALSE(IsEmbedmentRequested()) << line;
    }
    // The first marker decides.
    WriteInput("PROBLEM\n" + Lines(9) + "MPTE\nM= 0\nMPTE\nM= 1\n");
    EXPECT_FALSE(IsEmbedmentRequested());
}

TEST_F(EmbedmentFilesTest, AFileThatEndsEarlyOrIsMissingIsNoRequest) {
    for (const std::string& text :
         {std::string(), std::string("PROBLEM"), "PROBLEM\n" + Lines(3), "PROBLEM\n" + Lines(9) + "MPTE"}) {
        WriteInput(text);
        EXPECT_FALSE(IsEmbedmentRequested()) << text;
    }
    g_InputFilePath = (m_folder / "none.in").string();
    EXPECT_FALSE(IsEmbedmentRequested());
}

TEST_F(EmbedmentFilesTest, ALineBeyondTheHostsLengthEndsTheReading) {
    WriteInput(std::string(256, 'x') + "\nPROBLEM\n" + Lines(9) + "MPTE\nM= 1\n");
    EXPECT_TRUE(IsEmbedmentRequested());
    WriteInput(std::string(257, 'x') + "\nPROBLEM\n" + Lines(9) + "MPTE\nM= 1\n");
    EXPECT_FALSE(IsEmbedmentRequested());
}

}  // namespace
