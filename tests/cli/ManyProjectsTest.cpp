// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <sstream>

#include "support/ProgramRun.h"
#include "support/SampleFolder.h"

namespace lumerin {

// Many projects in one run: how they are named, and that a broken one stops none of the others.

namespace {

using testing::EndsWith;
using testing::HasSubstr;

class ManyProjects : public testing::Test {
  protected:
    // The first words of the lines that `check --brief` prints, without the folder of the samples.
    static std::vector<std::string> Names(const ProgramRun& outcome, const std::string& root) {
        std::vector<std::string> names;
        std::istringstream lines(outcome.out);
        for (std::string line; std::getline(lines, line);) {
            names.push_back(line.substr(root.size() + 1, line.find("  ") - root.size() - 1));
        }
        return names;
    }

    SampleFolder folder;
};

// Each way in which one of three projects is broken, and what is said of it.
struct Fault {
    const char* name;
    std::function<void(const std::string& base)> make;
    const char* text;
};

void Replace(const std::string& path, const std::function<void(const std::string&)>& make) {
    std::filesystem::remove(path);
    make(path);
}

// A file that can be opened and not read; the rights of files do not hold for the administrator.
void MakeUnreadable(const std::string& path) {
    std::filesystem::permissions(path, std::filesystem::perms::none);
    if (geteuid() == 0) {
        Replace(path,
                [](const std::string& name) { std::filesystem::create_symlink("/proc/self/mem", name); });
    }
}

const Fault kFaults[] = {
    {"Missing", [](const std::string& base) { std::filesystem::remove(base + ".PLF"); }, "b.PLF: the file"},
    {"MissingAltogether", [](const std::string& base) { std::filesystem::remove(base + ".TWR"); },
     "no project "},
    {"Truncated", [](const std::string& base) { std::filesystem::resize_file(base + ".PLF", 100); },
     "b.PLF: ends before"},
    {"Empty", [](const std::string& base) { std::filesystem::resize_file(base + ".PIL", 0); }, "b.PIL: "},
    {"Unreadable", [](const std::string& base) { MakeUnreadable(base + ".PLF"); },
     "b.PLF: the file could not be "},
    {"AFolderInPlaceOfAFile",
     [](const std::string& base) {
         Replace(base + ".vmd", [](const std::string& path) { std::filesystem::create_directory(path); });
     },
     "b.vmd: the file could not be opened (Is a directory)"},
    // A sparse file of a tebibyte whose first record announces more substructures than any project has.
    {"TooBig",
     [](const std::string& base) {
         std::ofstream(base + ".TWR", std::ios::binary) << std::string("K\x04\xff\xff\xff\x7f\x04\x82", 8);
         std::filesystem::resize_file(base + ".TWR", 1ULL << 40U);
     },
     "b.TWR: substructure count 2147483647 is out of range"},
};

class BrokenAmongMany : public ManyProjects, public testing::WithParamInterface<Fault> {
  protected:
    BrokenAmongMany() { GetParam().make(b); }

    const std::string a = folder.WriteSmall("a"), b = folder.WriteSmall("b"), c = folder.WriteSmall("c");
};

TEST_P(BrokenAmongMany, CheckJudgesTheOthers) {
    const ProgramRun outcome = RunLumerin({"check", "--limit", "100", "--format", "json", a, b, c});
    EXPECT_EQ(outcome.status, kExitNotLoaded);
    EXPECT_THAT(outcome.out, HasSubstr("{\"project\":\"" + a + "\",\"status\":0,\"passes\":true,"));
    EXPECT_THAT(outcome.out, HasSubstr("{\"project\":\"" + b + "\",\"status\":3,\"passes\":null,"));
    EXPECT_THAT(outcome.out, HasSubstr(GetParam().text));
    EXPECT_THAT(outcome.out, HasSubstr("{\"project\":\"" + c + "\",\"status\":0,\"passes\":true,"));
    EXPECT_EQ(outcome.err, "3 projects: 2 pass, 1 not loaded\n");
}

TEST_P(BrokenAmongMany, ExportWritesTheRowsOfTheOthers) {
    const ProgramRun outcome = RunLumerin({"export", "--table", "projects", a, b, c});
    EXPECT_EQ(outcome.status, kExitNotLoaded);
    EXPECT_THAT(outcome.out, HasSubstr("\r\n" + a + ","));
    EXPECT_THAT(outcome.out, testing::Not(HasSubstr("\r\n" + b + ",")));
    EXPECT_THAT(outcome.out, HasSubstr("\r\n" + c + ","));
    EXPECT_THAT(outcome.err, HasSubstr(GetParam().text));
    EXPECT_THAT(outcome.err, EndsWith("3 projects: 2 done, 1 not loaded\n"));
}

TEST_P(BrokenAmongMany, ReportWritesTheTablesOfTheOthers) {
    const std::string output = folder.Base("out");
    const ProgramRun outcome = RunLumerin({"report", "--json", "--table", "axial", "-o", output, a, b, c});
    EXPECT_EQ(outcome.status, kExitNotLoaded);
    EXPECT_THAT(outcome.out, HasSubstr("{\"project\":\"" + a + "\",\"status\":0,\"files\":[\"" + output));
    EXPECT_THAT(outcome.out, HasSubstr("{\"project\":\"" + b + "\",\"status\":3,\"files\":[],"));
    EXPECT_THAT(outcome.out, HasSubstr("{\"project\":\"" + c + "\",\"status\":0,\"files\":[\"" + output));
    EXPECT_THAT(outcome.out, HasSubstr(GetParam().text));
    EXPECT_THAT(outcome.err, EndsWith("3 projects: 2 done, 1 not loaded\n"));
    EXPECT_TRUE(std::filesystem::exists(output + "/c_Max_Axial_Forces_Pile_Heads.txt"));
}

INSTANTIATE_TEST_SUITE_P(Faults, BrokenAmongMany, testing::ValuesIn(kFaults),
                         [](const testing::TestParamInfo<Fault>& fault) { return fault.param.name; });

TEST_F(ManyProjects, AFolderStandsForAllProjectsBelowIt) {
    folder.WriteSmall("b");
    folder.WriteSmall("a");
    const std::string root = folder.Path().string();
    std::filesystem::create_directories(root + "/deep/er");
    for (const auto& file : std::filesystem::directory_iterator(root)) {
        const std::string name = file.path().filename().string();
        if (name.starts_with("a.")) std::filesystem::copy_file(file, root + "/deep/er/z" + name.substr(1));
    }
    std::filesystem::rename(root + "/deep/er/z.in", root + "/deep/er/z.IN");
    std::ofstream(root + "/notes.txt") << "no project";
    const ProgramRun outcome = RunLumerin({"check", "--brief", "--limit", "100", root});
    EXPECT_EQ(outcome.status, kExitDone);
    EXPECT_EQ(
        Names(outcome, root),
        (std::vector<std::string>{"a.in", "b.in", "deep/er/z.in"}));  // whatever the case of its extension
}

TEST_F(ManyProjects, AListNamesFoldersToo) {
    folder.WriteSmall("a");
    const std::string root = folder.Path().string(), list = folder.Base("list.txt");
    std::ofstream(list) << root << "\r\n\n" << folder.Base("a") << '\n';
    const ProgramRun outcome = RunLumerin({"check", "--brief", "--limit", "100", "--files-from", list});
    EXPECT_EQ(Names(outcome, root), (std::vector<std::string>{"a.in", "a.in"}));
}

TEST_F(ManyProjects, AProjectComesBeforeAFolderOfItsName) {
    const std::string a = folder.WriteSmall("a");
    std::filesystem::create_directory(a);
    EXPECT_EQ(Names(RunLumerin({"check", "--brief", a}), folder.Path().string()),
              std::vector<std::string>{"a.in"});
}

// Else a folder that is not mounted would look like one whose bridges all pass.
TEST_F(ManyProjects, AFolderWithoutProjectsIsReportedAndStopsNoOther) {
    const std::string a = folder.WriteSmall("a"), empty = folder.Base("empty");
    std::filesystem::create_directory(empty);
    const std::string text = "the folder " + empty + " has no project (*.in) that can be read";
    const ProgramRun check = RunLumerin({"check", "--brief", "--limit", "100", empty, a});
    EXPECT_EQ(check.status, kExitNotLoaded);
    EXPECT_THAT(check.out, HasSubstr("ERROR  " + text + "\n" + a + ".in  PASS"));
    const ProgramRun report = RunLumerin({"report", "--table", "axial", empty, a});
    EXPECT_THAT(report.err, HasSubstr("lumerin: " + text + "\n"));
    EXPECT_THAT(report.err, EndsWith("2 projects: 1 done, 1 not loaded\n"));
}

// The order is that of the arguments, whichever project is done first; the last one is the largest.
TEST_F(ManyProjects, JobsChangeNoByte) {
    std::vector<std::string> words{"check", "--limit", "1", "--top", "3"};
    samples::SampleOptions large;
    large.preset = "pier";
    large.name = "large";
    large.cases = 200;
    words.push_back(folder.Write(large));
    for (int i = 0; i < 20; ++i) words.push_back(folder.WriteSmall("p" + std::to_string(i)));
    words.push_back(folder.Base("missing"));
    std::filesystem::resize_file(folder.Base("p7.PLF"), 100);
    std::filesystem::resize_file(folder.Base("p9.vmd"), 2000);
    for (const char* format : {"text", "csv"}) {
        std::vector<std::string> one = words;
        one.insert(one.end(), {"--format", format});
        const ProgramRun expected = RunLumerin(one);
        EXPECT_EQ(expected.status, kExitNotLoaded);
        for (const char* jobs : {"2", "7", "100"}) {
            std::vector<std::string> many = one;
            many.insert(many.end(), {"--jobs", jobs});
            const ProgramRun outcome = RunLumerin(many);
            EXPECT_EQ(outcome.status, expected.status);
            EXPECT_EQ(outcome.out, expected.out) << jobs;
            EXPECT_EQ(outcome.err, expected.err) << jobs;
        }
    }
    EXPECT_EQ(RunLumerin({"check", "--jobs", "0", folder.Base("p1")}).status, kExitUsage);
}

// A link to the folder above would make the search endless.
TEST_F(ManyProjects, LinksToFoldersAreNotFollowed) {
    folder.WriteSmall("a");
    const std::string root = folder.Path().string();
    std::filesystem::create_directory_symlink(root, root + "/again");
    EXPECT_EQ(Names(RunLumerin({"check", "--brief", root}), root), std::vector<std::string>{"a.in"});
}

}  // namespace

}  // namespace lumerin
