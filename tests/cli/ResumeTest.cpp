// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/ProgramRun.h"
#include "support/SampleFolder.h"

namespace lumerin {

// --resume: which projects are passed over, and that a run with it gives what a run without it would give.

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class Resume : public testing::Test {
  protected:
    Resume() {
        for (const char* name : {"a", "b", "c"}) folder.WriteSmall(name);
    }
    // The last line on standard error of a run over the given projects; its standard output is in `out`.
    std::string Lumerin(std::vector<std::string> words, const std::vector<std::string>& projects) {
        for (const std::string& project : projects) words.push_back(folder.Base(project));
        const ProgramRun run = RunLumerin(words);
        status = run.status;
        out = run.out;
        const std::string& text = run.err;
        const std::size_t end = text.empty() ? 0 : text.rfind('\n', text.size() - 2);
        return end == std::string::npos ? text : text.substr(end == 0 ? 0 : end + 1);
    }
    std::string Check(const std::vector<std::string>& projects, const std::vector<std::string>& more = {}) {
        std::vector<std::string> words{"check", "--resume", "-o", Output()};
        words.insert(words.end(), more.begin(), more.end());
        return Lumerin(words, projects);
    }
    std::string Output() const { return folder.Base("result"); }
    std::string Stamps() const { return Output() + ".stamps"; }
    std::string Read(const std::string& path) const {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static void Write(const std::string& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    // Another time, the same bytes.
    void Touch(const std::string& file) const {
        std::filesystem::last_write_time(
            folder.Base(file), std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    }

    SampleFolder folder;
    ExitStatus status = kExitDone;
    std::string out;
};

constexpr const char* kAllDone = "3 projects: 3 fail\n";
constexpr const char* kAllUnchanged = "3 projects: 3 fail; 3 unchanged\n";
constexpr const char* kOneDone = "3 projects: 3 fail; 2 unchanged\n";

const std::vector<std::string> kThree{"a", "b", "c"};

TEST_F(Resume, UnchangedProjectsArePassedOverAndTheirVerdictsCount) {
    EXPECT_EQ(Check(kThree, {"--limit", "0.001"}), kAllDone);
    const std::string whole = Read(Output());
    EXPECT_THAT(whole, HasSubstr("a.in  FAIL"));
    EXPECT_EQ(Check(kThree, {"--limit", "0.001"}), kAllUnchanged);
    EXPECT_EQ(status, kExitIncomplete);
    EXPECT_EQ(Read(Output()), whole);
    EXPECT_EQ(out, Output() + "\n");
}

TEST_F(Resume, AnyChangedNewOrMissingFileOfAProjectCounts) {
    const std::vector<std::string> limit{"--limit", "0.001"};
    Check(kThree, limit);
    Touch("b.MIS");
    EXPECT_EQ(Check(kThree, limit), kOneDone);
    EXPECT_EQ(Check(kThree, limit), kAllUnchanged);
    Write(folder.Base("c.BRG"), "");  // in any letter case
    EXPECT_EQ(Check(kThree, limit), kOneDone);
    std::filesystem::remove(folder.Base("c.BRG"));
    EXPECT_EQ(Check(kThree, limit), kOneDone);
    const auto time = std::filesystem::last_write_time(folder.Base("a.PIL"));
    std::filesystem::resize_file(folder.Base("a.PIL"), std::filesystem::file_size(folder.Base("a.PIL")) + 1);
    std::filesystem::last_write_time(folder.Base("a.PIL"), time);
    EXPECT_EQ(Check(kThree, limit), kOneDone);
    EXPECT_EQ(Check(kThree, limit), kAllUnchanged);
}

// The order is that of the arguments, whatever was done when.
TEST_F(Resume, TheOutputIsThatOfARunOverAllOfThem) {
    for (const char* format : {"text", "csv"}) {
        Check({"c"}, {"--format", format, "--limit", "0.001"});
        Check({"b", "c"}, {"--format", format, "--limit", "0.001"});
        EXPECT_EQ(Check(kThree, {"--format", format, "--limit", "0.001"}), kOneDone);
        const std::string resumed = Read(Output());
        Lumerin({"check", "--format", format, "--limit", "0.001"}, kThree);
        EXPECT_EQ(resumed, out);
        std::filesystem::remove(Stamps());
    }
}

// The number of jobs is no option of the outcome.
TEST_F(Resume, JobsPassOverTheSameProjects) {
    Check({"b"}, {"--limit", "0.001"});
    EXPECT_EQ(Check(kThree, {"--limit", "0.001", "--jobs", "3"}), "3 projects: 3 fail; 1 unchanged\n");
    const std::string resumed = Read(Output());
    Lumerin({"check", "--limit", "0.001"}, kThree);
    EXPECT_EQ(resumed, out);
    EXPECT_EQ(Check(kThree, {"--limit", "0.001", "--jobs", "2"}), kAllUnchanged);
}

TEST_F(Resume, OtherOptionsPassOverNothing) {
    Check(kThree, {"--limit", "0.001"});
    EXPECT_EQ(Check(kThree, {"--limit", "0.002"}), kAllDone);
    EXPECT_EQ(Check(kThree, {"--limit", "0.002", "--brief"}), kAllDone);
    EXPECT_EQ(Check(kThree, {"--limit", "0.002", "--brief"}), kAllUnchanged);
    // Where the names come from is no option of the outcome.
    Write(folder.Base("list"), folder.Base("a") + "\n" + folder.Base("b") + "\n");
    EXPECT_EQ(Check({"c"}, {"--limit", "0.002", "--brief", "--files-from", folder.Base("list")}),
              kAllUnchanged);
}

TEST_F(Resume, StampsOfAnotherVersionPassOverNothing) {
    const std::vector<std::string> limit{"--limit", "0.001"};
    Check(kThree, limit);
    std::string stamps = Read(Stamps());
    const std::size_t version = stamps.find("lumerin stamps 1\t") + 17;
    stamps[version] = stamps[version] == '9' ? '8' : '9';
    Write(Stamps(), stamps);
    EXPECT_EQ(Check(kThree, limit), kAllDone);
}

TEST_F(Resume, ADamagedByteOfTheStampsPassesOverNothing) {
    const std::vector<std::string> limit{"--limit", "0.001"};
    Check(kThree, limit);
    const std::string whole = Read(Stamps());
    for (std::size_t at = 0; at < whole.size(); at += 37) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 1);
        if (whole[at] == '\n' || damaged[at] == '\n') continue;
        Write(Stamps(), damaged);
        ASSERT_EQ(Check(kThree, limit), kAllDone) << "byte " << at;
    }
}

// A run that is ended has written a part of a line at most.
TEST_F(Resume, ARunThatWasEndedIsGoneOnWith) {
    const std::vector<std::string> limit{"--limit", "0.001"};
    Check(kThree, limit);
    const std::string whole = Read(Stamps()), result = Read(Output());
    std::filesystem::remove(Output());
    for (std::size_t missing = 1; missing < 100; missing += 9) {
        Write(Stamps(), whole.substr(0, whole.size() - missing));
        ASSERT_EQ(Check(kThree, limit), kOneDone) << missing;
        ASSERT_EQ(Read(Stamps()), whole) << missing;
        ASSERT_EQ(Read(Output()), result) << missing;
    }
}

TEST_F(Resume, AProjectThatCouldNotBeLoadedIsTriedAgain) {
    std::filesystem::rename(folder.Base("b.PLF"), folder.Base("kept"));
    EXPECT_EQ(Check(kThree, {"--limit", "0.001"}), "3 projects: 2 fail, 1 not loaded\n");
    EXPECT_EQ(Check(kThree, {"--limit", "0.001"}), "3 projects: 2 fail, 1 not loaded; 2 unchanged\n");
    EXPECT_EQ(status, kExitNotLoaded);
}

TEST_F(Resume, StampsDoNotGrowFromRunToRun) {
    const std::vector<std::string> limit{"--limit", "0.001"};
    Check(kThree, limit);
    const std::size_t length = Read(Stamps()).size();
    for (int i = 0; i < 3; ++i) {
        Touch("b.MIS");
        Check(kThree, limit);
        EXPECT_EQ(Read(Stamps()).size(), length);
    }
}

TEST_F(Resume, ExportsToAFolderKeepTheFilesOfUnchangedProjects) {
    const std::string output = folder.Base("data/");
    const std::vector<std::string> words{"export", "--table", "verdict,projects", "-o", output, "--resume"};
    EXPECT_EQ(Lumerin(words, kThree), "3 projects: 3 done\n");
    const std::string paths = out;
    EXPECT_THAT(paths, HasSubstr("b-verdict.csv\n"));
    EXPECT_EQ(Lumerin(words, kThree), "3 projects: 3 done; 3 unchanged\n");
    EXPECT_EQ(out, paths);
    // A file that was deleted or written by somebody else is written again.
    const std::string rows = Read(output + "b-verdict.csv");
    std::filesystem::remove(output + "b-verdict.csv");
    EXPECT_EQ(Lumerin(words, kThree), "3 projects: 3 done; 2 unchanged\n");
    EXPECT_EQ(Read(output + "b-verdict.csv"), rows);
    Write(output + "b-verdict.csv", "other");
    EXPECT_EQ(Lumerin(words, kThree), "3 projects: 3 done; 2 unchanged\n");
    EXPECT_EQ(Read(output + "b-verdict.csv"), rows);
}

TEST_F(Resume, ReportsKeepTheirRecords) {
    const std::vector<std::string> words{"report",  "--json", "--table", "axial", "-o", folder.Base("docs"),
                                         "--resume"};
    EXPECT_EQ(Lumerin(words, kThree), "3 projects: 3 done\n");
    const std::string records = out;
    EXPECT_EQ(Lumerin(words, kThree), "3 projects: 3 done; 3 unchanged\n");
    EXPECT_EQ(out, records);
    Touch("c.vmd");
    EXPECT_EQ(Lumerin(words, kThree), "3 projects: 3 done; 2 unchanged\n");
}

// A table that does not apply is said again each time, so such a project is never passed over.
TEST_F(Resume, AReportWithAMessageIsDoneAgain) {
    const std::vector<std::string> words{"report", "--table",           "axial,column-dc",
                                         "-o",     folder.Base("docs"), "--resume"};
    Lumerin(words, kThree);
    EXPECT_EQ(status, kExitIncomplete);
    EXPECT_THAT(Lumerin(words, kThree), Not(HasSubstr("unchanged")));
}

TEST_F(Resume, WithoutAPlaceForItsStampsItIsWrongUsage) {
    const auto says = [this](const std::vector<std::string>& words) {
        std::string text = Lumerin(words, {"a"});
        EXPECT_EQ(status, kExitUsage);
        return text;
    };
    EXPECT_EQ(says({"check", "--resume"}), "lumerin: --resume needs -o FILE\n");
    EXPECT_EQ(says({"report", "--resume"}), "lumerin: --resume needs -o DIR\n");
    EXPECT_EQ(says({"report", "--table", "axial", "--resume", "-o", "-"}),
              "lumerin: --resume needs -o DIR\n");
    const char* folderText =
        "lumerin: --resume needs a folder, for a file for each project and table: -o DIR/\n";
    EXPECT_EQ(says({"export", "--table", "verdict", "--resume"}), folderText);
    EXPECT_EQ(says({"export", "--table", "verdict", "--resume", "-o", folder.Base("x.csv")}), folderText);
    EXPECT_EQ(
        says({"export", "--table", "verdict", "--format", "sqlite", "--resume", "-o", folder.Base("x")}),
        folderText);
    EXPECT_THAT(says({"check", "--resume", "-o", folder.Base("none/x")}), HasSubstr("there is no folder"));
}

TEST_F(Resume, AnOutputFileOfCheckIsReplacedWhenAllIsDone) {
    Write(Output(), "earlier");
    EXPECT_EQ(Lumerin({"check", "--limit", "0.001", "-o", Output()}, kThree), kAllDone);
    EXPECT_THAT(Read(Output()), Not(HasSubstr("earlier")));
    EXPECT_EQ(out, Output() + "\n");
    EXPECT_FALSE(std::filesystem::exists(Stamps()));
    EXPECT_THAT(Lumerin({"check", "-o", folder.Base("none/x")}, kThree), HasSubstr("there is no folder"));
    EXPECT_EQ(status, kExitIncomplete);
}

}  // namespace

}  // namespace lumerin
