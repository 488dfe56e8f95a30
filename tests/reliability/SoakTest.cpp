#include <malloc.h>

#include <cstdlib>

#include "batch/DriveCommand.h"
#include "reliability/BrokenProject.h"

// One process opens the dialogs, presses every button and closes them, again and again, as the host does
// through a long day. LUMERIN_SOAK_ROUNDS sets the number of rounds.

namespace {

constexpr const char* kEveryButton =
    "click 1037\nclick 1038\nclick 1039\nclick 1047\ncell 1 1 1\nclick 1046\nclick 1042\nclick 1\nclick "
    "1037\n"
    "click 1021\nclick 1013\nclick 1004\nclick 1005\nclick 1006\nclick 1007\nclick 1008\nclick 1009\nclick "
    "1010\n"
    "click 1011\nclick 1012\nclick 1001\nclick 1019\nclick 1015\nclick 1015\nclick 1014\nclick 1016\nclick "
    "1017\n"
    "click 1018\nclick 1004\nclick 1001\nclick 1002\nclick 1020\nclick 1005\nclick 1010\nclick 1001\nclick "
    "1002\n"
    "click 1022\nspin 1026 up\nselect 1027 2\nclick 1034\nselect 1035 1\nclick 1033\ngraph-click 20\nclick "
    "1022\n"
    "click 2\nkey F1 1004\nclick 1\n";

std::size_t OpenFiles() {
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

// Files that were written and handed to a viewer, by the lines of the round.
std::size_t OpenedFiles(const std::string& lines) {
    std::size_t count = 0;
    for (std::size_t at = lines.find("{\"open\""); at != std::string::npos;
         at = lines.find("{\"open\"", at + 1))
        ++count;
    return count;
}

std::size_t MemoryInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

TEST(Soak, MemoryAndOpenFilesDoNotGrow) {
    const char* setting = std::getenv("LUMERIN_SOAK_ROUNDS");
    const int rounds = setting == nullptr ? 20 : std::atoi(setting);
    ASSERT_GE(rounds, 10);
    const BrokenProject project("pier");
    DriveOptions options;
    options.project = project.Base() + ".in";
    options.common.version = "5.2.1";
    // What the first rounds take once stays: buffers of streams, the session's texts.
    constexpr int kWarm = 5;
    std::size_t memory = 0, files = 0;
    for (int round = 0; round < rounds; ++round) {
        {
            std::ostringstream out, err;
            options.format = round % 3;
            ASSERT_EQ(DriveScript(options, kEveryButton, out, err), kExitDone) << err.str();
            const std::string lines = out.str();
            // Eleven files in the spreadsheet format, three PDF documents, four texts: a round that is not
            // played whole would prove nothing.
            ASSERT_GE(OpenedFiles(lines), 18U);
            ASSERT_EQ(lines.find("operation failed"), std::string::npos);
        }
        if (round == kWarm) {
            memory = MemoryInUse();
            files = OpenFiles();
        }
    }
    EXPECT_EQ(OpenFiles(), files);
    // Under the sanitizers their own leak check judges; elsewhere 64 KB in all are allowed for caches.
    if (!kSanitized) {
        EXPECT_LT(MemoryInUse(), memory + (std::size_t{64} << 10));
    }
    std::printf(
        "soak: %d rounds, memory in use %zu KB after round %d and %zu KB at the end, open files %zu\n",
        rounds, memory >> 10, kWarm + 1, MemoryInUse() >> 10, OpenFiles());
}

}  // namespace
