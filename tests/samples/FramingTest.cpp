// SPDX-License-Identifier: MIT
// Sequential files, byte by byte.
#include <gtest/gtest.h>

#include "ProjectReader.h"
#include "samples/OutputFile.h"
#include "samples/ResultFiles.h"
#include "support/SampleFolder.h"

namespace lumerin {

using samples::Record;
using samples::SequentialFile;

namespace {

class Framing : public testing::Test {
  protected:
    void SetUp() override { std::filesystem::create_directories(m_folder.Path()); }

    // A file of one record of so many blanks.
    std::string FileOf(std::size_t length) const {
        SequentialFile file(m_folder.Base("file"));
        file.Write(Record().Text("", length));
        file.Close();
        return reader::ReadAll(m_folder.Base("file"));
    }

    SampleFolder m_folder;
};

TEST_F(Framing, IntegerIsStoredLowByteFirstBetweenItsLengths) {
    SequentialFile file(m_folder.Base("file"));
    file.Write(Record().Int(0x01020304));
    file.Write(Record().Int(-2));
    file.Close();
    const std::string expected = "K\x04\x04\x03\x02\x01\x04\x04\xfe\xff\xff\xff\x04\x82";
    EXPECT_EQ(reader::ReadAll(m_folder.Base("file")), expected);
}

TEST_F(Framing, RealIsStoredAsAnIeeeDouble) {
    SequentialFile file(m_folder.Base("file"));
    file.Write(Record().Real(-2.0));  // sign and exponent: 0xC000...
    file.Close();
    EXPECT_EQ(reader::ReadAll(m_folder.Base("file")), std::string("K\x08\0\0\0\0\0\0\0\xc0\x08\x82", 12));
}

TEST_F(Framing, RecordOf128BytesIsOneBlock) {
    EXPECT_EQ(FileOf(128), "K\x80" + std::string(128, ' ') + "\x80\x82");
}

TEST_F(Framing, RecordOf129BytesGoesOnInASecondBlock) {
    EXPECT_EQ(FileOf(129), "K\x81" + std::string(128, ' ') + "\x81\x01 \x01\x82");
}

TEST_F(Framing, RecordOf256BytesEndsWithAFullBlock) {
    const std::string blanks(128, ' ');
    EXPECT_EQ(FileOf(256), "K\x81" + blanks + "\x81\x80" + blanks + "\x80\x82");
}

TEST_F(Framing, EmptyRecordLeavesNoBlock) {
    EXPECT_EQ(FileOf(0), "K\x82");
}

TEST_F(Framing, TextIsCutOrFilledWithBlanks) {
    EXPECT_EQ(Record().Text("abcdef", 3).Bytes(), "abc");
    EXPECT_EQ(Record().Text("ab", 4).Bytes(), "ab  ");
}

TEST_F(Framing, RecordsOfManySizesComeBackFromTheReader) {
    SequentialFile file(m_folder.Base("file"));
    std::vector<std::string> written;
    for (int words = 1; words < 200; words += 7) {
        Record record;
        for (int w = 0; w < words; ++w) record.Int(w * 1000003 - words);
        file.Write(record);
        written.push_back(record.Bytes());
    }
    file.Close();
    EXPECT_EQ(reader::Records(reader::ReadAll(m_folder.Base("file"))), written);
}

TEST_F(Framing, FullDeviceIsReportedByName) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no full device here";
    samples::OutputFile file("/dev/full");
    file.Write(std::string_view("x"));
    try {
        file.Close();
        FAIL() << "no error";
    } catch (const samples::SampleError& error) {
        EXPECT_NE(std::string(error.what()).find("cannot write /dev/full"), std::string::npos)
            << error.what();
    }
}

TEST_F(Framing, FolderThatIsMissingIsReportedByName) {
    EXPECT_THROW(samples::OutputFile(m_folder.Base("missing/file")), samples::SampleError);
}

}  // namespace

}  // namespace lumerin
