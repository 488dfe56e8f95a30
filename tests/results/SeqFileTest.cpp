// SPDX-License-Identifier: MIT
#include "results/SeqFile.h"

#include <numeric>

#include "support/ResultProject.h"

namespace lumerin {

namespace {

std::vector<unsigned char> Counting(std::size_t count) {
    std::vector<unsigned char> bytes(count);
    std::iota(bytes.begin(), bytes.end(), static_cast<unsigned char>(1));
    return bytes;
}

std::string Text(const std::vector<unsigned char>& bytes) {
    return {bytes.begin(), bytes.end()};
}

}  // namespace

TEST(SeqFile, ARecordOf128BytesIsOneBlock) {
    const ResultProject project;
    const std::string record = Text(Counting(128));
    project.WriteFile(".x", "K\x80" + record + "\x80\x82");
    CSeqFile file(project.Path(".x"));
    std::string read(128, '\0');
    EXPECT_EQ(file.Read(read.data(), 128), 128U);
    EXPECT_EQ(read, record);
}

TEST(SeqFile, ARecordOf129BytesIsABlockThatGoesOnAndOneOfOneByte) {
    const ResultProject project;
    const std::string record = Text(Counting(129));
    project.WriteFile(".x", "K\x81" + record.substr(0, 128) + "\x81\x01" + record.substr(128) + "\x01\x82");
    CSeqFile file(project.Path(".x"));
    std::string read(129, '\0');
    EXPECT_EQ(file.Read(read.data(), 129), 129U);
    EXPECT_EQ(read, record);
}

TEST(SeqFile, ARequestOf256BytesCrossesTwoBlocks) {
    const ResultProject project;
    const std::string record = Text(Counting(256));
    project.WriteFile(".x", SeqBytes().Frame(record).Ints({7}).End());
    CSeqFile file(project.Path(".x"));
    std::string read(256, '\0');
    EXPECT_EQ(file.Read(read.data(), 256), 256U);
    EXPECT_EQ(read, record);
    int next = 0;
    EXPECT_EQ(file.Read(&next, 4), 4U);
    EXPECT_EQ(next, 7);
}

TEST(SeqFile, AMissingOptionalRecordReadsAsNothing) {
    const ResultProject project;
    project.WriteFile(".x", SeqBytes().Ints({5}).End());
    CSeqFile file(project.Path(".x"));
    int value = 0;
    EXPECT_EQ(file.Read(&value, 4), 4U);
    value = 99;
    EXPECT_EQ(file.Read(&value, 4), 0U);
    EXPECT_EQ(value, 99);
}

TEST(SeqFile, ARequestOfNothingLeavesThePosition) {
    const ResultProject project;
    project.WriteFile(".x", SeqBytes().Ints({5}).End());
    CSeqFile file(project.Path(".x"));
    int value = 0;
    EXPECT_EQ(file.Read(&value, 0), 0U);
    EXPECT_EQ(file.Read(&value, 4), 4U);
    EXPECT_EQ(value, 5);
}

TEST(SeqFile, AFileWithoutItsEndMarkEndsQuietly) {
    const ResultProject project;
    project.WriteFile(".x", SeqBytes().Ints({5}).WithoutEnd());
    CSeqFile file(project.Path(".x"));
    int value = 0;
    EXPECT_EQ(file.Read(&value, 4), 4U);
    EXPECT_EQ(file.Read(&value, 4), 0U);
}

TEST(SeqFile, TheEndInsideARequestGivesNothingThoughPartWasStored) {
    const ResultProject project;
    project.WriteFile(".x", SeqBytes().Ints({5}).End());
    CSeqFile file(project.Path(".x"));
    std::array<int, 2> values{};
    EXPECT_EQ(file.Read(values.data(), 8), 0U);
    EXPECT_EQ(values[0], 5);
}

TEST(SeqFile, HostileFrameLengthsEnd) {
    const ResultProject project;
    // Empty blocks, then a block whose length of 144 bytes is not complete in the file.
    project.WriteFile(".x", std::string("K\0\0\0\0\x90", 6) + "abc");
    CSeqFile file(project.Path(".x"));
    std::array<char, 200> buffer{};
    EXPECT_EQ(file.Read(buffer.data(), 200), 0U);
    EXPECT_EQ(file.Read(buffer.data(), 200), 0U);
}

TEST(SeqFile, TheConstructorThrowsWithTheNameOfTheFile) {
    const ResultProject project;
    EXPECT_THROW(CSeqFile(project.Path(".none")), CFileException);
    project.WriteFile(".x", "Q");
    try {
        CSeqFile file(project.Path(".x"));
        FAIL();
    } catch (const CFileException& error) {
        EXPECT_EQ(error.m_cause, CFileException::generic);
        EXPECT_THAT(std::string(error.what()), testing::HasSubstr("p.x"));
    }
}

TEST(SeqFile, OpenAnswersFalseAndTheNextReadThrows) {
    const ResultProject project;
    project.WriteFile(".x", "Q");
    CSeqFile file;
    CFileException error(CFileException::none, "", "");
    EXPECT_FALSE(file.Open(project.Path(".x"), &error));
    EXPECT_EQ(error.m_cause, CFileException::generic);
    int value = 0;
    EXPECT_THROW(file.Read(&value, 4), CFileException);
    CSeqFile missing;
    EXPECT_FALSE(missing.Open(project.Path(".none")));
    EXPECT_THROW(missing.Read(&value, 4), CFileException);
}

TEST(DirFile, ARecordOfNoLengthIsNoRead) {
    const ResultProject project;
    project.WriteFile(".x", "aaaa");
    CDirFile file;
    ASSERT_TRUE(file.Open(project.Path(".x"), 0));
    EXPECT_EQ(file.Read(nullptr, 3), 0U);
}

TEST(DirFile, ReadsNumberedRecordsAndKeepsTheLastPastTheEnd) {
    const ResultProject project;
    project.WriteFile(".x", "aaaabbbbcc");
    CDirFile file;
    ASSERT_TRUE(file.Open(project.Path(".x"), 4));
    std::string record(4, '-');
    EXPECT_EQ(file.Read(record.data(), 2), 4U);
    EXPECT_EQ(record, "bbbb");
    EXPECT_LT(file.Read(record.data(), 3), 4U);
    EXPECT_EQ(record, "bbbb");
    EXPECT_EQ(file.Read(record.data(), 900), 0U);
    EXPECT_EQ(record, "bbbb");
    EXPECT_THROW(file.Read(record.data(), 0), CFileException);
}

}  // namespace lumerin
