// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <map>

#include "cli/DriveCommand.h"
#include "cli/EmbedmentCommand.h"
#include "framework/ChildProcess.h"
#include "framework/WholeFilePlatform.h"
#include "reliability/FaultyCalls.h"
#include "support/BrokenProject.h"

namespace lumerin {

// Files that cannot be written: the program names each, ends with a status other than zero, and leaves the
// earlier file as it was.

namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kAxialText = "_Max_Axial_Forces_Pile_Heads.txt";
const std::vector<std::string> kTableWords{"axial",      "pile-dc",     "column-dc",     "cap-shear",
                                           "cap-moment", "pile-forces", "column-forces", "extra-members",
                                           "pile-heads", "title",       "envelopes",     "full"};

// The bytes of all files of the project's tables, by name.
std::map<std::string, std::string> Documents(const BrokenProject& project) {
    std::map<std::string, std::string> documents;
    for (const auto& entry : fs::directory_iterator(project.Folder())) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with("p_")) documents[name] = ReadBytesOf(entry.path());
    }
    return documents;
}

std::vector<std::string> TemporaryFiles(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (wholefile::IsTemporaryName(name)) names.push_back(name);
    }
    return names;
}

TEST(OutputFault, AReadOnlyFolderIsNamedAndTheEarlierFileStays) {
    const BrokenProject project("pier");
    const std::string earlier = project.Base() + kAxialText;
    WriteBytesOf(earlier, "earlier");
    fs::permissions(earlier, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    fs::permissions(project.Folder(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                          fs::perms::others_exec);
    InChild([&] {
        ASSERT_TRUE(GiveUpRoot());
        const Answer answer = ReportOf(project.Base(), {"axial", "title", "envelopes"});
        EXPECT_EQ(answer.status, kExitIncomplete);
        EXPECT_EQ(answer.out, "");
        EXPECT_THAT(answer.said, Contains(HasSubstr(project.Base() + kAxialText)));
        EXPECT_THAT(answer.said, Contains(HasSubstr(project.Base() + "_Title Page.txt")));
        EXPECT_THAT(answer.said, Contains(HasSubstr(project.Base() + "_Envelopes.txt")));
    });
    EXPECT_EQ(ReadBytesOf(earlier), "earlier");
    fs::permissions(project.Folder(), fs::perms::owner_all);
}

TEST(OutputFault, AFullDiskIsNamedForEveryTableInEveryFormatAndTheEarlierFileStays) {
    const BrokenProject project("pier");
    for (const int format : {kFormatText, kFormatPdf, kFormatSpreadsheet}) {
        for (const std::string& table : kTableWords) {
            const Answer whole = ReportOf(project.Base(), {table}, {format});
            if (whole.status != kExitDone) continue;  // the table has no such form
            const std::string path = whole.out.substr(0, whole.out.find('\n'));
            ASSERT_TRUE(fs::exists(path)) << path;
            WriteBytesOf(path, "earlier");
            InChild([&] {
                LimitFileSize(0);
                const Answer answer = ReportOf(project.Base(), {table}, {format});
                EXPECT_EQ(answer.status, kExitIncomplete) << path;
                EXPECT_EQ(answer.out, "") << path;
                EXPECT_THAT(answer.said, Contains(HasSubstr(path)));
            });
            EXPECT_EQ(ReadBytesOf(path), "earlier") << path;
        }
    }
    EXPECT_THAT(TemporaryFiles(project.Folder()), IsEmpty());
}

// The disk fills at byte 0, 1, 2, 4 ... of a file until a run passes clean.
TEST(OutputFault, ADiskThatFillsAtAnyPlaceIsNamed) {
    const BrokenProject project("pier");
    for (const int format : {kFormatText, kFormatPdf, kFormatSpreadsheet}) {
        bool clean = false;
        for (rlim_t room = 0; !clean; room = room == 0 ? 1 : room * 2) {
            ASSERT_LT(room, rlim_t{1} << 30);
            InChild([&] {
                LimitFileSize(room);
                const Answer answer = ReportOf(project.Base(), {"full"}, {format});
                if (answer.status == kExitDone) {
                    // Nothing failed, so all files are complete. Only the status shows it.
                    LimitFileSize(RLIM_INFINITY);
                    WriteBytesOf(project.Base() + ".clean", "");
                    return;
                }
                EXPECT_EQ(answer.status, kExitIncomplete);
                EXPECT_THAT(answer.said, Contains(HasSubstr(project.Base() + "_Full_Report")));
            });
            clean = fs::remove(project.Base() + ".clean");
        }
    }
}

// One write after the other stores half of its bytes only, and those after it succeed again: whatever file
// that is, it is named.
TEST(OutputFault, AnySingleWriteMayFail) {
    const BrokenProject project("pier", 300);
    for (const int format : {kFormatText, kFormatPdf, kFormatSpreadsheet}) {
        std::vector<std::string> tables;
        for (const std::string& table : kTableWords) {
            if (ReportOf(project.Base(), {table}, {format}).status == kExitDone) tables.push_back(table);
        }
        const auto whole = Documents(project);
        long writes = 0;
        for (;; ++writes) {
            faulty::g_writesLeft = writes;
            const Answer answer = ReportOf(project.Base(), tables, {format});
            const bool failed = faulty::g_writesLeft < 0;
            faulty::g_writesLeft = -1;
            if (!failed) break;
            ASSERT_EQ(answer.status, kExitIncomplete) << "write " << writes;
            ASSERT_EQ(answer.said.size(), 1U) << testing::PrintToString(answer.said);
            ASSERT_THAT(answer.said[0], HasSubstr(project.Base() + "_"));
            // The other tables are there.
            ASSERT_EQ(std::count(answer.out.begin(), answer.out.end(), '\n'), std::ssize(tables) - 1);
            ASSERT_TRUE(Documents(project) == whole) << "write " << writes;
        }
        EXPECT_THAT(TemporaryFiles(project.Folder()), IsEmpty());
        EXPECT_GE(writes, std::ssize(tables));
        RecordProperty("writes" + std::to_string(format), static_cast<int>(writes));
    }
}

// The process is killed at one write after the other, in the middle of it: no file is cut, and the next run
// clears up.
TEST(OutputFault, AKillAtAnyWriteLeavesEveryFileWhole) {
    const BrokenProject project("pier", 300);
    const std::vector<std::string> tables{"axial", "cap-shear", "title", "envelopes", "full"};
    for (const int format : {kFormatText, kFormatPdf, kFormatSpreadsheet}) {
        ReportOf(project.Base(), tables, {format});
        const auto whole = Documents(project);
        std::size_t leftOvers = 0;
        bool clean = false;
        for (long writes = 0; !clean; ++writes) {
            ASSERT_LT(writes, 1000);
            const int status = StatusOfChild([&] {
                faulty::g_writesToDeath = writes;
                ReportOf(project.Base(), tables, {format});
            });
            clean = WIFEXITED(status);
            ASSERT_TRUE(clean || WTERMSIG(status) == SIGKILL) << WTERMSIG(status);
            ASSERT_TRUE(Documents(project) == whole) << "write " << writes;
            const std::size_t left = TemporaryFiles(project.Folder()).size();
            ASSERT_EQ(left, clean ? 0U : 1U) << "write " << writes;
            leftOvers += left;
        }
        EXPECT_GE(leftOvers, 4U);
        RecordProperty("kills" + std::to_string(format), static_cast<int>(leftOvers));
    }
}

TEST(OutputFault, LinksAndPipesInThePlaceOfFilesAreReplaced) {
    const BrokenProject project("pier");
    ASSERT_EQ(ReportOf(project.Base(), kTableWords).status, kExitIncomplete);  // the pile heads have no text
    const auto whole = Documents(project);
    ASSERT_GT(whole.size(), 8U);
    const fs::path outside = project.Folder() / "outside";
    for (const bool pipes : {false, true}) {
        for (const auto& [name, bytes] : whole) {
            const fs::path path = project.Folder() / name;
            fs::remove(path);
            WriteBytesOf(outside / name, "not ours");
            if (pipes) {
                ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
            } else {
                fs::create_directories(outside);
                WriteBytesOf(outside / name, "not ours");
                fs::create_symlink(outside / name, path);
            }
        }
        const int status = StatusOfChild([&] {
            alarm(60);
            ReportOf(project.Base(), kTableWords);
        });
        ASSERT_EQ(status, 0) << "it waited for a reader";
        EXPECT_TRUE(Documents(project) == whole);
        for (const auto& [name, bytes] : whole) {
            EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(project.Folder() / name))) << name;
            EXPECT_EQ(ReadBytesOf(outside / name), "not ours") << name;
        }
    }
}

TEST(OutputFault, AFolderInThePlaceOfAFileIsNamed) {
    const BrokenProject project("pier");
    fs::create_directory(project.Base() + kAxialText);
    const Answer answer = ReportOf(project.Base(), {"axial", "pile-dc"});
    EXPECT_EQ(answer.status, kExitIncomplete);
    EXPECT_THAT(answer.said, Contains(HasSubstr(project.Base() + kAxialText)));
    EXPECT_THAT(answer.out, HasSubstr("_Max_DC_For_Pile_Sections.txt"));
}

// Another program that reads the earlier file, or has it locked, does not keep the new one from being
// written.
TEST(OutputFault, AFileHeldOpenIsReplaced) {
    const BrokenProject project("pier");
    const std::string path = project.Base() + kAxialText;
    WriteBytesOf(path, "earlier");
    const int held = open(path.c_str(), O_RDWR);
    ASSERT_GE(held, 0);
    ASSERT_EQ(flock(held, LOCK_EX), 0);
    EXPECT_EQ(ReportOf(project.Base(), {"axial"}).status, kExitDone);
    close(held);
    EXPECT_THAT(ReadBytesOf(path), HasSubstr("Maximum Axial Forces at All Pile Heads"));
}

TEST(OutputFault, AScriptsFilesAreNamedToo) {
    const BrokenProject project("pier");
    DriveOptions options;
    options.project = project.Base() + ".in";
    options.format = kFormatText;
    InChild([&] {
        LimitFileSize(0);
        std::ostringstream out, err;
        EXPECT_EQ(DriveScript(options, "click 1004\nclick 1009\n", out, err), kExitIncomplete);
        EXPECT_THAT(err.str(), HasSubstr(project.Base() + kAxialText + " could not be written whole"));
        EXPECT_THAT(err.str(), HasSubstr(project.Base() + "_Envelopes.txt could not be written whole"));
    });
}

TEST(OutputFault, TheStudysWorkbookAndPictureAreNamedAndTheEarlierFilesStay) {
    const BrokenProject project("pier");
    EmbedmentOptions options;
    options.project = project.Base() + ".in";
    options.view.loadCase = 1;
    options.workbook = true;
    options.picture = project.Base() + ".svg";
    std::ostringstream out, err;
    ASSERT_EQ(RunEmbedment(options, out, err), kExitDone) << err.str();
    std::vector<std::string> written;
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(project.Base())) written.push_back(line);
    }
    ASSERT_EQ(written.size(), 2U);
    for (const std::string& path : written) WriteBytesOf(path, "earlier");
    InChild([&] {
        LimitFileSize(0);
        std::ostringstream failedOut, failedErr;
        EXPECT_EQ(RunEmbedment(options, failedOut, failedErr), kExitIncomplete);
        for (const std::string& path : written) {
            EXPECT_THAT(failedErr.str(), HasSubstr(path));
            EXPECT_THAT(failedOut.str(), Not(HasSubstr(path)));
        }
    });
    for (const std::string& path : written) EXPECT_EQ(ReadBytesOf(path), "earlier");
    // A link in place of either file is replaced.
    for (const std::string& path : written) {
        fs::remove(path);
        fs::create_symlink("outside", path);
    }
    EXPECT_EQ(RunEmbedment(options, out, err), kExitDone) << err.str();
    for (const std::string& path : written) EXPECT_FALSE(fs::is_symlink(path)) << path;
    EXPECT_FALSE(fs::exists(project.Folder() / "outside"));
}

// The picture's name is the user's own.
TEST(OutputFault, ThePictureMayGoToADevice) {
    const BrokenProject project("pier");
    EmbedmentOptions options;
    options.project = project.Base() + ".in";
    std::ostringstream out, err;
    options.picture = "/dev/null";
    EXPECT_EQ(RunEmbedment(options, out, err), kExitDone) << err.str();
    options.picture = "/dev/full";
    EXPECT_EQ(RunEmbedment(options, out, err), kExitIncomplete);
    EXPECT_THAT(err.str(), HasSubstr("/dev/full"));
    EXPECT_TRUE(fs::is_character_file("/dev/null") && fs::is_character_file("/dev/full"));
}

// The names of folders that engineers have. \xFC and \xE9 are letters of the Western code page.
TEST(OutputFault, PathsOfAnyWordsGiveTheSameFiles) {
    const BrokenProject plain("pier");
    const auto formats = std::vector<int>{kFormatText, kFormatPdf, kFormatSpreadsheet};
    ASSERT_EQ(ReportOf(plain.Base(), {"full", "cap-shear"}, formats).status, kExitDone);
    const std::string long250 = std::string(250 - 3, 'a') + "(1)";
    for (const std::string& name : {std::string("two words [1] & more (2)"),
                                    std::string("Br\xFC"
                                                "cke caf\xE9"),
                                    std::string("100% 'new'; #7"), long250}) {
        const fs::path folder = plain.Folder() / name;
        fs::create_directory(folder);
        for (const ProjectBytes& file : plain.Files()) {
            if (file.name.find('/') == std::string::npos) WriteBytesOf(folder / file.name, file.bytes);
        }
        const Answer answer = ReportOf((folder / "p").string(), {"full", "cap-shear"}, formats);
        EXPECT_EQ(answer.status, kExitDone) << name;
        EXPECT_TRUE(answer.said.empty()) << answer.said.front();
        for (const char* file :
             {"p_Full_Report.txt", "p_Max_PierCap_Shear_Design.xml", "p_Full_Report.pdf"}) {
            EXPECT_TRUE(fs::exists(folder / file)) << name << "/" << file;
        }
        EXPECT_EQ(ReadBytesOf(folder / "p_Full_Report.txt"), ReadBytesOf(plain.Base() + "_Full_Report.txt"));
        EXPECT_EQ(ReadBytesOf(folder / "p_Max_PierCap_Shear_Design.xml"),
                  ReadBytesOf(plain.Base() + "_Max_PierCap_Shear_Design.xml"));
    }
}

}  // namespace

}  // namespace lumerin
