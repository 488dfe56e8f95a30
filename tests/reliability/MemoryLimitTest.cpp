// SPDX-License-Identifier: MIT
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "support/BrokenProject.h"

namespace lumerin {

// Memory grows with the elements, not with the force file: a process that has less memory than the file's
// length makes the same report.

namespace {

constexpr int kManyCases = 30000;

// The exit status of the program itself with so many bytes of addresses.
int StatusWithRoom(const BrokenProject& project, rlim_t bytes) {
    const std::string input = project.Base() + ".in";
    const pid_t child = fork();
    if (child == 0) {
        const rlimit limit{bytes, bytes};
        setrlimit(RLIMIT_AS, &limit);
        execl(LUMERIN_BINARY_DIR "/lumerin", "lumerin", "report", input.c_str(), "--table", "axial", nullptr);
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

TEST(MemoryLimit, AForceFileMayBeLargerThanTheMemoryOfTheProcess) {
    if (kSanitized) GTEST_SKIP() << "the sanitizers reserve terabytes";
    const BrokenProject project("pier", kManyCases);
    const auto fileBytes = std::filesystem::file_size(project.Base() + ".vmd");
    ASSERT_EQ(ReportOf(project.Base(), {"axial"}).status, kExitDone);
    const std::string table = project.Base() + "_Max_Axial_Forces_Pile_Heads.txt";
    const std::string whole = ReadBytesOf(table);
    ASSERT_FALSE(whole.empty());
    std::filesystem::remove(table);
    constexpr rlim_t kRoom = rlim_t{64} << 20;  // with the program itself and its libraries
    ASSERT_GT(fileBytes, kRoom + kRoom / 2);
    EXPECT_EQ(StatusWithRoom(project, kRoom), kExitDone);
    EXPECT_EQ(ReadBytesOf(table), whole);
}

}  // namespace

}  // namespace lumerin
