// SPDX-License-Identifier: MIT
#include "framework/WholeFile.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "framework/ChildProcess.h"
#include "framework/WholeFilePlatform.h"

namespace lumerin {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using wholefile::Target;

class WholeFileTest : public testing::Test {
  protected:
    void SetUp() override {
        m_folder = fs::path(testing::TempDir()) /
                   ("whole-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    void TearDown() override {
        fs::permissions(m_folder, fs::perms::owner_all);
        fs::remove_all(m_folder);
    }

    std::string Path(const std::string& name = "table.txt") const { return (m_folder / name).string(); }
    void Put(const std::string& bytes, const std::string& name = "table.txt") const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
    }
    std::string Read(const std::string& name = "table.txt") const {
        std::ifstream file(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_folder)) names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }
    static bool WriteText(WholeFile& file, const std::string& text) {
        return file.Write(text.data(), text.size());
    }
    bool WriteDocument(const std::string& text, const std::string& name = "table.txt") const {
        WholeFile file;
        return file.Open(Path(name)) && WriteText(file, text) && file.Commit();
    }
    static mode_t RightsOf(const std::string& path) {
        struct stat found {};
        return lstat(path.c_str(), &found) == 0 ? found.st_mode & 07777 : 0;
    }

    fs::path m_folder;
};

TEST_F(WholeFileTest, TheEarlierFileStaysUntilTheDocumentIsComplete) {
    Put("earlier");
    WholeFile file;
    ASSERT_TRUE(file.Open(Path()));
    ASSERT_TRUE(WriteText(file, "new"));
    EXPECT_EQ(Read(), "earlier");
    EXPECT_TRUE(file.Commit());
    EXPECT_EQ(Read(), "new");
    EXPECT_FALSE(file.IsOpen());
    EXPECT_THAT(Names(), ElementsAre("table.txt"));
}

TEST_F(WholeFileTest, ADocumentOfNothingIsAnEmptyFile) {
    Put("earlier");
    WholeFile file;
    ASSERT_TRUE(file.Open(Path()));
    EXPECT_TRUE(file.Commit());
    EXPECT_EQ(Read(), "");
}

TEST_F(WholeFileTest, ADocumentThatIsGivenUpLeavesNothing) {
    Put("earlier");
    {
        WholeFile file;
        ASSERT_TRUE(file.Open(Path()));
        ASSERT_TRUE(WriteText(file, "half of"));
        EXPECT_EQ(Names().size(), 2U);
    }
    EXPECT_EQ(Read(), "earlier");
    EXPECT_THAT(Names(), ElementsAre("table.txt"));
}

TEST_F(WholeFileTest, AWriteThatFailsLeavesTheEarlierFileAndNothingElse) {
    Put("earlier");
    InChild([&] {
        LimitFileSize(10);
        WholeFile file;
        ASSERT_TRUE(file.Open(Path()));
        EXPECT_TRUE(WriteText(file, "0123456"));
        EXPECT_FALSE(WriteText(file, "789abc"));
        // Bytes after a gap do not complete the document.
        LimitFileSize(RLIM_INFINITY);
        EXPECT_FALSE(WriteText(file, "rest"));
        EXPECT_FALSE(file.Commit());
    });
    EXPECT_EQ(Read(), "earlier");
    EXPECT_THAT(Names(), ElementsAre("table.txt"));
}

TEST_F(WholeFileTest, ALinkIsReplacedAndWhatItLeadsToStays) {
    Put("outside", "other");
    fs::create_symlink("other", Path());
    EXPECT_TRUE(WriteDocument("new"));
    EXPECT_FALSE(fs::is_symlink(Path()));
    EXPECT_EQ(Read(), "new");
    EXPECT_EQ(Read("other"), "outside");
    // The same for a link that leads nowhere.
    fs::create_symlink("nowhere", Path("second.txt"));
    EXPECT_TRUE(WriteDocument("new", "second.txt"));
    EXPECT_FALSE(fs::exists(Path("nowhere")));
    EXPECT_EQ(Read("second.txt"), "new");
}

TEST_F(WholeFileTest, ASecondNameOfAFileKeepsItsBytes) {
    Put("earlier");
    fs::create_hard_link(Path(), Path("second"));
    EXPECT_TRUE(WriteDocument("new"));
    EXPECT_EQ(Read("second"), "earlier");
}

TEST_F(WholeFileTest, APipeIsReplacedWithoutAWait) {
    ASSERT_EQ(mkfifo(Path().c_str(), 0666), 0);
    const int status = StatusOfChild([&] {
        alarm(10);
        EXPECT_TRUE(WriteDocument("new"));
    });
    EXPECT_EQ(status, 0) << "it waited for a reader, or failed";
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(Path())));
}

TEST_F(WholeFileTest, FoldersAndDevicesAreRefused) {
    fs::create_directory(Path());
    EXPECT_FALSE(WholeFile().Open(Path()));
    EXPECT_TRUE(fs::is_directory(Path()));
    EXPECT_EQ(wholefile::LookAt("/dev/null"), Target::refused);
    EXPECT_FALSE(WholeFile().Open(Path("missing") + "/table.txt"));
}

TEST_F(WholeFileTest, AFileProtectedAgainstWritingIsRefused) {
    Put("earlier");
    fs::permissions(Path(), fs::perms::owner_read);
    InChild([&] {
        ASSERT_TRUE(GiveUpRoot());
        EXPECT_FALSE(WholeFile().Open(Path()));
    });
    EXPECT_EQ(Read(), "earlier");
    EXPECT_THAT(Names(), ElementsAre("table.txt"));
}

// Its folder accepts no new file, so nothing can replace it.
TEST_F(WholeFileTest, AFileOfAProtectedFolderIsWrittenInPlaceWhenAllBytesAreThere) {
    Put("earlier and longer");
    fs::create_hard_link(Path(), Path("same"));
    fs::permissions(m_folder, fs::perms::owner_read | fs::perms::owner_exec);
    InChild([&] {
        ASSERT_TRUE(GiveUpRoot());
        WholeFile file;
        ASSERT_TRUE(file.Open(Path()));
        ASSERT_TRUE(WriteText(file, std::string(100'000, 'x')));
        EXPECT_EQ(Read(), "earlier and longer");
        file.Discard();
        EXPECT_EQ(Read(), "earlier and longer");
        EXPECT_TRUE(WriteDocument(std::string(100'000, 'n')));
        EXPECT_TRUE(Read() == std::string(100'000, 'n'));
        EXPECT_TRUE(WriteDocument("new"));
        EXPECT_FALSE(WholeFile().Open(Path("absent.txt")));
    });
    EXPECT_EQ(Read("same"), "new");
    EXPECT_THAT(Names(), ElementsAre("same", "table.txt"));
}

TEST_F(WholeFileTest, RightsAreThoseOfTheFileBefore) {
    const mode_t mask = umask(022);
    EXPECT_TRUE(WriteDocument("new"));
    EXPECT_EQ(RightsOf(Path()), 0644u);
    for (const mode_t rights : {0600u, 0666u, 0640u, 0755u}) {
        ASSERT_EQ(chmod(Path().c_str(), rights), 0);
        EXPECT_TRUE(WriteDocument("new"));
        EXPECT_EQ(RightsOf(Path()), rights);
    }
    // The rights of a link have no meaning.
    fs::remove(Path());
    fs::create_symlink("nowhere", Path());
    EXPECT_TRUE(WriteDocument("new"));
    EXPECT_EQ(RightsOf(Path()), 0644u);
    umask(mask);
}

TEST_F(WholeFileTest, TheLongestNameThatAFileCanHaveIsNotTooLong) {
    const std::string name(255, 'n');
    EXPECT_TRUE(WriteDocument("new", name));
    EXPECT_EQ(Read(name), "new");
    EXPECT_FALSE(WholeFile().Open(Path(name + "n")) && WriteDocument("new", name + "n"));
    EXPECT_THAT(Names(), ElementsAre(name));
}

TEST_F(WholeFileTest, AProcessThatIsKilledLeavesTheEarlierFileAndTheNextOneClearsUp) {
    Put("earlier");
    const int status = StatusOfChild([&] {
        WholeFile file;
        if (file.Open(Path()) && WriteText(file, "half of")) kill(getpid(), SIGKILL);
    });
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(Read(), "earlier");
    ASSERT_EQ(Names().size(), 2U);
    EXPECT_TRUE(WriteDocument("other", "other.txt"));
    EXPECT_THAT(Names(), ElementsAre("other.txt", "table.txt"));
    EXPECT_EQ(Read(), "earlier");
}

TEST_F(WholeFileTest, ClearingLeavesWhatAnotherProcessIsWritingAndWhatIsNotOurs) {
    WholeFile live;
    ASSERT_TRUE(live.Open(Path()));
    ASSERT_TRUE(WriteText(live, "live"));
    const std::string temporary = Names().front();
    ASSERT_TRUE(wholefile::IsTemporaryName(temporary)) << temporary;
    const std::vector<std::string> others{"0123456.LML", "~012345.LMW",  "~012345.TXT", "~01234.LML",
                                          "~01234G.LML", "~0123456.LML", "~abcdef.LML"};
    for (const std::string& name : others) Put("kept", name);
    fs::create_directory(Path("~00000A.LML"));
    fs::create_symlink(others[0], Path("~00000B.LML"));
    Put("left over", "~00000C.LML");
    EXPECT_TRUE(WriteDocument("other", "other.txt"));
    EXPECT_TRUE(fs::exists(Path("~00000C.LML")));  // the folder was looked through already
    WholeFile::BeginRun();
    EXPECT_TRUE(WriteDocument("other", "other.txt"));
    EXPECT_FALSE(fs::exists(Path("~00000C.LML")));
    EXPECT_TRUE(fs::is_directory(Path("~00000A.LML")));
    EXPECT_TRUE(fs::is_symlink(Path("~00000B.LML")));
    for (const std::string& name : others) EXPECT_EQ(Read(name), "kept") << name;
    EXPECT_TRUE(fs::exists(Path(temporary)));
    EXPECT_TRUE(live.Commit());
    EXPECT_EQ(Read(), "live");
}

// A batch that lists the folder for each of its projects takes longer with every document that is there.
TEST_F(WholeFileTest, ABatchIsOneRun) {
    Put("left over", "~00000C.LML");
    {
        const WholeFile::Batch batch;
        EXPECT_TRUE(WriteDocument("other", "other.txt"));
        EXPECT_FALSE(fs::exists(Path("~00000C.LML")));
        Put("left over", "~00000C.LML");
        WholeFile::BeginRun();
        EXPECT_TRUE(WriteDocument("other", "other.txt"));
        EXPECT_TRUE(fs::exists(Path("~00000C.LML")));
    }
    WholeFile::BeginRun();
    EXPECT_TRUE(WriteDocument("other", "other.txt"));
    EXPECT_FALSE(fs::exists(Path("~00000C.LML")));
}

// Names that a file or a link to another place has are skipped.
TEST_F(WholeFileTest, ATemporaryFileIsNewAndFollowsNoLink) {
    bool taken = false;
    Put("kept", "file");
    fs::create_symlink("nowhere", Path("link"));
    for (const char* name : {"file", "link"}) {
        EXPECT_EQ(wholefile::CreateNew(Path(name), taken), wholefile::kNoHandle);
        EXPECT_TRUE(taken);
    }
    EXPECT_EQ(wholefile::CreateNew(Path("missing") + "/file", taken), wholefile::kNoHandle);
    EXPECT_FALSE(taken);
    EXPECT_EQ(Read("file"), "kept");
    EXPECT_FALSE(fs::exists(Path("nowhere")));
}

TEST_F(WholeFileTest, TemporaryNamesAreShort) {
    EXPECT_EQ(wholefile::TemporaryName(0xABC123), "~321CBA.LML");
    EXPECT_EQ(wholefile::FolderPart("/a/b/p_t.txt"), "/a/b/");
    EXPECT_EQ(wholefile::FolderPart("p_t.txt"), "");
}

}  // namespace

}  // namespace lumerin
