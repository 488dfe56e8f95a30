// SPDX-License-Identifier: MIT
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <functional>
#include <random>

#include "cli/EmbedmentCommand.h"
#include "support/BrokenProject.h"

namespace lumerin {

// Files that were cut, wrong counts, changed bytes: the project loads, or one message says why not.

namespace {

// Runs the steps in a process that may take no more memory than four times the project's files and 64 MB.
// A step that takes more ends in a message on memory, which the step's own check refuses.
void InLittleMemory(std::size_t fileBytes, const std::function<void()>& steps) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        if (!kSanitized) {  // the sanitizers reserve terabytes
            long pages = 0;
            std::ifstream("/proc/self/statm") >> pages;
            const rlim_t now = static_cast<rlim_t>(pages) * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
            const rlim_t limit = now + 4 * fileBytes + (rlim_t{64} << 20);
            const rlimit both{limit, limit};
            setrlimit(RLIMIT_AS, &both);
        }
        alarm(300);
        steps();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

bool IsForceFile(const std::string& name) {
    return name.find(".vmd") != std::string::npos;
}

bool IsSequential(const std::string& name) {
    for (const char* suffix : {".TWR", ".ncv", ".PLF", ".PIL", ".pls", ".ash"}) {
        if (name.find(suffix) != std::string::npos) return true;
    }
    return false;
}

// The files that the embedment study alone reads.
bool IsStudyFile(const std::string& name) {
    return name.find(".PEL") != std::string::npos || name.ends_with(".in");
}

// Opens the study, and turns its table and its plot; any answer will do that is not a failed check.
testing::AssertionResult IsStudyReadOrReported(const std::string& base) {
    EmbedmentOptions options;
    options.project = base + ".in";
    options.view.envelope = 0;
    std::ostringstream out, err;
    RunEmbedment(options, out, err);
    for (const char* fault : {"operation failed", "enough memory"}) {
        if (err.str().find(fault) != std::string::npos) return testing::AssertionFailure() << err.str();
    }
    return testing::AssertionSuccess();
}

testing::AssertionResult Survives(const BrokenProject& project, const ProjectBytes& file) {
    if (IsStudyFile(file.name)) return IsStudyReadOrReported(project.Base());
    return IsLoadedOrOneClearMessage(ReportOf(project.Base()), project.Base());
}

// The pier's files are cut at every byte; the others', which repeat its records, in steps.
class Truncation : public testing::TestWithParam<const char*> {
  protected:
    static std::size_t Step() { return std::string(GetParam()) == "pier" ? 1 : 5; }
};

TEST_P(Truncation, AFileCutAtAnyByteLoadsOrIsNamed) {
    const BrokenProject project(GetParam());
    ASSERT_EQ(ReportOf(project.Base()).status, kExitDone);
    InLittleMemory(project.TotalBytes(), [&] {
        for (const ProjectBytes& file : project.Files()) {
            // Force records are all alike: every byte of the first two, then steps that share no divisor
            // with 68.
            const std::size_t step = kSanitized ? 23 : Step();
            for (std::size_t length = 0; length < file.bytes.size();) {
                project.Put(file, file.bytes.substr(0, length));
                EXPECT_TRUE(Survives(project, file)) << file.name << " cut at " << length;
                length += IsForceFile(file.name) && length > 136 ? 37 * step : step;
            }
            project.Restore(file);
        }
    });
}

TEST_P(Truncation, AMissingFileLoadsOrIsNamed) {
    const BrokenProject project(GetParam());
    for (const ProjectBytes& file : project.Files()) {
        std::filesystem::remove(project.Folder() / file.name);
        const Answer answer = ReportOf(project.Base(), {"full"}, {kFormatPdf});
        EXPECT_TRUE(IsLoadedOrOneClearMessage(answer, project.Base())) << file.name;
        project.Restore(file);
    }
}

TEST_P(Truncation, ACountOfAnySizeLoadsOrIsNamed) {
    const BrokenProject project(GetParam());
    constexpr std::int32_t kCounts[] = {INT32_MIN, -1, 0, 1, 2, 1000, 1 << 20, INT32_MAX};
    InLittleMemory(project.TotalBytes(), [&] {
        std::size_t turn = 0;
        for (const ProjectBytes& file : project.Files()) {
            if (!IsSequential(file.name)) continue;
            // Every aligned number of every framed record, including the halves of the reals.
            for (std::size_t frame = 1; frame + 1 < file.bytes.size();) {
                const std::size_t length =
                    std::min<std::size_t>(static_cast<unsigned char>(file.bytes[frame]), 128);
                for (std::size_t at = frame + 1; at + 4 <= std::min(frame + 1 + length, file.bytes.size());
                     at += 4) {
                    for (const std::int32_t count : kCounts) {
                        if (++turn % (kSanitized ? 23 : Step()) != 0) continue;
                        std::string bytes = file.bytes;
                        std::memcpy(bytes.data() + at, &count, sizeof(count));
                        project.Put(file, bytes);
                        EXPECT_TRUE(IsLoadedOrOneClearMessage(ReportOf(project.Base()), project.Base()))
                            << file.name << " with " << count << " at " << at;
                    }
                }
                frame += length + 2;
            }
            project.Restore(file);
        }
    });
}

TEST_P(Truncation, ChangedBytesLoadOrAreNamed) {
    const BrokenProject project(GetParam());
    std::mt19937 random(20261114);
    constexpr int kFormats[] = {kFormatText, kFormatPdf, kFormatSpreadsheet};
    InLittleMemory(project.TotalBytes(), [&] {
        for (int round = 0; round < (kSanitized ? 60 : 600); ++round) {
            const ProjectBytes& file = project.Files()[random() % project.Files().size()];
            std::string bytes = file.bytes;
            for (unsigned changes = 1 + random() % 4; changes > 0 && !bytes.empty(); --changes) {
                bytes[random() % bytes.size()] = static_cast<char>(random());
            }
            project.Put(file, bytes);
            const Answer answer = ReportOf(project.Base(), {"full"}, {kFormats[round % 3]});
            EXPECT_TRUE(IsLoadedOrOneClearMessage(answer, project.Base()))
                << file.name << " in round " << round;
            project.Restore(file);
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Samples, Truncation, testing::Values("pier", "bent", "bridge"),
                         [](const auto& preset) { return std::string(preset.param); });

}  // namespace

}  // namespace lumerin
