// SPDX-License-Identifier: MIT
#include "framework/File.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>

#include "framework/FolderNames.h"
#include "framework/TemporaryFolder.h"
#include "support/ScratchFolder.h"

namespace lumerin {

namespace {

namespace fs = std::filesystem;

class FileTest : public testing::Test {
  protected:
    FileTest() { fs::create_directories(m_scratch.Path() / "Sub"); }

    std::string Write(const std::string& name, const std::string& content) {
        m_scratch.Write(name, content);
        return Path(name);
    }
    std::string Path(const std::string& name) const { return m_scratch.PathOf(name); }

    const ScratchFolder m_scratch;
};

TEST_F(FileTest, IsFoundWhateverTheCaseOfItsName) {
    const std::string path = Write("Sub/Pier.PLF", "x");
    EXPECT_EQ(FindFileAnyCase(Path("Sub/Pier.PLF")), path);
    EXPECT_EQ(FindFileAnyCase(Path("Sub/pier.plf")), path);
    EXPECT_EQ(FindFileAnyCase(Path("sub/PIER.plf")), path);
    EXPECT_EQ(FindFileAnyCase(Path("sub/PIER.pl")), "");
    EXPECT_EQ(FindFileAnyCase(""), "");
}

TEST_F(FileTest, EveryLetterHasTwoCasesAndNoOtherCharacterHas) {
    const std::string upper = Write("ABCDEFGHIJKLMNOPQRSTUVWXYZ.U", "x");
    const std::string lower = Write("abcdefghijklmnopqrstuvwxyz.l", "x");
    EXPECT_EQ(FindFileAnyCase(Path("abcdefghijklmnopqrstuvwxyz.u")), upper);
    EXPECT_EQ(FindFileAnyCase(Path("ABCDEFGHIJKLMNOPQRSTUVWXYZ.L")), lower);
    // The neighbours of the letters, 32 apart like the two cases of a letter.
    Write("a@b", "x");
    Write("a[b", "x");
    EXPECT_EQ(FindFileAnyCase(Path("a`b")), "");
    EXPECT_EQ(FindFileAnyCase(Path("a{b")), "");
}

TEST_F(FileTest, AnExactNameGoesBeforeOthersAndByteOrderDecidesAmongThem) {
    const std::string upper = Write("a.PLF", "upper");
    const std::string lower = Write("a.plf", "lower");
    EXPECT_EQ(FindFileAnyCase(lower), lower);
    EXPECT_EQ(FindFileAnyCase(upper), upper);
    EXPECT_EQ(FindFileAnyCase(Path("a.Plf")), upper);
}

// The names of a large folder that has not changed for a while are kept.
TEST_F(FileTest, ALargeFolderHasTheNamesOfTheMoment) {
    for (int i = 0; i < 400; ++i) Write("Sub/p" + std::to_string(i) + ".PLF", "x");
    const auto settle = [this] {
        fs::last_write_time(Path("Sub"), fs::file_time_type::clock::now() - std::chrono::hours(1));
    };
    settle();
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(FindFileAnyCase(Path("Sub/P17.plf")), Path("Sub/p17.PLF"));
        EXPECT_EQ(FindFileAnyCase(Path("Sub/P17.pl")), "");
        EXPECT_EQ(FindFileAnyCase(Path("Sub/P400.plf")), "");
    }
    const std::string late = Write("Sub/p400.PLF", "x");
    Write("Sub/P17.PLF", "x");
    EXPECT_EQ(FindFileAnyCase(Path("Sub/P400.plf")), late);
    fs::last_write_time(Path("Sub"), fs::file_time_type::clock::now() - std::chrono::minutes(1));
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(FindFileAnyCase(Path("Sub/P400.plf")), late);
        EXPECT_EQ(FindFileAnyCase(Path("Sub/P17.plf")), Path("Sub/P17.PLF"));  // the first in byte order
    }
    fs::remove(late);
    EXPECT_EQ(FindFileAnyCase(Path("Sub/P400.plf")), "");
}

TEST_F(FileTest, ReadsSeeksAndReturnsItsLength) {
    CFile file(Write("data", "0123456789"));
    std::array<char, 16> buffer{};
    EXPECT_EQ(file.Length(), 10);
    EXPECT_EQ(file.ReadBytes(buffer.data(), 4), 4U);
    EXPECT_EQ(std::string(buffer.data(), 4), "0123");
    EXPECT_EQ(file.Length(), 10);  // asking does not move the position
    EXPECT_EQ(file.ReadBytes(buffer.data(), 16), 6U);
    EXPECT_EQ(file.ReadBytes(buffer.data(), 16), 0U);
    file.Seek(8);
    EXPECT_EQ(file.ReadBytes(buffer.data(), 16), 2U);
    EXPECT_EQ(std::string(buffer.data(), 2), "89");
    EXPECT_THROW(file.Seek(-1), CFileException);
    file.Close();
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(file.Length(), 0);
    EXPECT_THROW(file.ReadBytes(buffer.data(), 1), CFileException);
    EXPECT_THROW(file.Seek(0), CFileException);
}

TEST_F(FileTest, AMissingFileIsNamedWithItsFault) {
    CFileException failure(CFileException::none, "", "");
    CFile file;
    EXPECT_FALSE(file.Open(Path("none.PLF"), &failure));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(failure.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(failure.m_strFileName, Path("none.PLF"));
    EXPECT_EQ(std::string(failure.what()), Path("none.PLF") + ": the file was not found");
    EXPECT_FALSE(file.Open(Path("none.PLF")));
    EXPECT_THROW(CFile{Path("none.PLF")}, CFileException);
    // A caller that ignored the failed open gets the fault from the first read.
    char c = 0;
    try {
        file.ReadBytes(&c, 1);
        FAIL() << "a closed file was read";
    } catch (const CFileException& late) {
        EXPECT_EQ(std::string(late.what()), Path("none.PLF") + ": the file was not found");
    }
}

TEST_F(FileTest, AFolderIsNoFile) {
    CFileException failure(CFileException::none, "", "");
    CFile file;
    EXPECT_FALSE(file.Open(Path("Sub"), &failure));
    EXPECT_EQ(failure.m_cause, CFileException::generic);
    EXPECT_THAT(failure.what(), testing::StartsWith(Path("Sub") + ": the file could not be opened"));
}

TEST_F(FileTest, OpeningAgainLeavesTheFileBefore) {
    CFile file(Write("one", "1"));
    ASSERT_TRUE(file.Open(Write("two", "2")));
    char c = 0;
    EXPECT_EQ(file.ReadBytes(&c, 1), 1U);
    EXPECT_EQ(c, '2');
    EXPECT_EQ(file.Path(), Path("two"));
}

TEST_F(FileTest, SaysWhyAFileCannotBeWritten) {
    const std::string there = Write("there", "content");
    EXPECT_FALSE(ErrorOfWriting(there));
    EXPECT_FALSE(ErrorOfWriting(Path("new")));
    EXPECT_EQ(m_scratch.Read("there"), "content");
    EXPECT_FALSE(m_scratch.Has("new"));
    EXPECT_EQ(std::distance(fs::directory_iterator(m_scratch.Path()), {}), 2) << "something was left";
    EXPECT_EQ(ErrorOfWriting(Path("no folder/new")), std::errc::no_such_file_or_directory);
}

TEST_F(FileTest, MakesAFolderWithThoseAboveIt) {
    EXPECT_TRUE(MakeFolders(Path("one/two/three")));
    EXPECT_TRUE(fs::is_directory(Path("one/two/three")));
    EXPECT_TRUE(MakeFolders(Path("one/two/four/")));
    EXPECT_TRUE(fs::is_directory(Path("one/two/four")));
    EXPECT_TRUE(MakeFolders(Path("one")));
    EXPECT_TRUE(MakeFolders(""));
    EXPECT_FALSE(MakeFolders(Write("file", "x") + "/folder"));
}

TEST_F(FileTest, ALinkToAFolderIsNoRealOne) {
    fs::create_directory_symlink(Path("Sub"), Path("link"));
    EXPECT_TRUE(IsFolder(Path("link")));
    EXPECT_FALSE(IsRealFolder(Path("link")));
    EXPECT_TRUE(IsRealFolder(Path("Sub")));
    EXPECT_FALSE(IsRealFolder(Write("file", "x")));
}

TEST_F(FileTest, HasTheTimeOfItsLastChange) {
    const std::string path = Write("Dated", "x");
    // 2026-11-14T08:30:05Z
    const timespec time{1794645005, 500000000};
    const std::array<timespec, 2> times{time, time};
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
    const auto changed = LastChange(Path("dated"));
    ASSERT_TRUE(changed);
    EXPECT_EQ(std::chrono::duration_cast<std::chrono::milliseconds>(changed->time_since_epoch()).count(),
              1794645005500);
    EXPECT_FALSE(LastChange(Path("none")));
}

TEST_F(FileTest, AFolderNamesItsEntries) {
    Write("Sub/b.in", "");
    Write("Sub/A.in", "");
    Write("Sub/a.out", "");
    using testing::ElementsAre;
    EXPECT_THAT(EntriesStartingWith(Path("Sub"), ""), ElementsAre(".", "..", "A.in", "a.out", "b.in"));
    EXPECT_THAT(EntriesStartingWith(Path("Sub"), "A."), ElementsAre("A.in", "a.out"));
    EXPECT_THAT(EntriesStartingWith(Path("none"), ""), ElementsAre());
}

TEST(TemporaryFolder, IsForItsUserAndGoesWithWhatIsInIt) {
    std::string path;
    {
        const TemporaryFolder folder, other;
        path = folder.Path();
        EXPECT_NE(path, other.Path());
        EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
        std::ofstream(path + "/file") << "x";
        fs::create_directory(path + "/folder");
    }
    EXPECT_FALSE(fs::exists(path));
}

}  // namespace

}  // namespace lumerin
