// SPDX-License-Identifier: MIT
#include <malloc.h>

#include <cstdlib>

#include "cli/DriveCommand.h"
#include "support/BrokenProject.h"

namespace lumerin {

// One process opens the dialogs, presses every button and closes them, again and again, as the host does
// through a long day. LUMERIN_SOAK_ROUNDS sets the number of rounds.

namespace {

// The module's soak under Wine presses the same.
constexpr const char* kEveryButton = LUMERIN_SOURCE_DIR "/tests/reliability/every-button.script";
// Documents that a round opens in viewers. Of the pier: 7 tables, the full report, the list of cases and the
// study in each of three formats; the pile heads as a spreadsheet twice; the cover sheet in two formats; the
// help page. Of the bridge: the extra members in three formats, the full report in one.
constexpr std::size_t kOpened = 3 * (7 + 3) + 2 + 2 + 1 + 3 + 1;

std::size_t OpenFiles() {
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

// Files that were written and opened in a viewer, by the lines of the round.
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

// The input file of the project, which is named as its preset is.
std::string WriteSmall(const SampleFolder& folder, const std::string& preset) {
    samples::SampleOptions options;
    options.preset = preset;
    options.name = preset;
    options.cases = 3;
    options.rows = 1;
    options.columns = 2;
    return folder.Write(options) + ".in";
}

TEST(Soak, MemoryAndOpenFilesDoNotGrow) {
    const char* setting = std::getenv("LUMERIN_SOAK_ROUNDS");
    const int rounds = setting == nullptr ? 20 : std::atoi(setting);
    ASSERT_GE(rounds, 10);
    const std::string script = ReadBytesOf(kEveryButton);
    ASSERT_FALSE(script.empty());
    headless::ResetState();
    const SampleFolder folder;
    DriveOptions options;
    options.project = WriteSmall(folder, "pier");
    WriteSmall(folder, "bridge");
    options.common.version = "5.2.1";
    // The first rounds take memory that is kept: buffers of streams, the session's texts.
    constexpr int kWarm = 5;
    std::size_t memory = 0, files = 0;
    for (int round = 0; round < rounds; ++round) {
        {
            std::ostringstream out, err;
            options.format = round % 3;
            ASSERT_EQ(DriveScript(options, script, out, err), kExitDone) << err.str();
            const std::string lines = out.str();
            // A round that is not played whole would prove nothing.
            ASSERT_EQ(err.str(), "");
            ASSERT_EQ(OpenedFiles(lines), kOpened);
            ASSERT_EQ(lines.find("refused"), std::string::npos) << lines;
            ASSERT_EQ(lines.find("operation failed"), std::string::npos) << lines;
        }
        if (round == kWarm) {
            memory = MemoryInUse();
            files = OpenFiles();
        }
    }
    EXPECT_EQ(OpenFiles(), files);
    // Under the sanitizers their own leak check decides; elsewhere 64 KB in all are allowed for caches.
    if (!kSanitized) {
        EXPECT_LT(MemoryInUse(), memory + (std::size_t{64} << 10));
    }
    std::printf(
        "soak: %d rounds, memory in use %zu KB after round %d and %zu KB at the end, open files %zu\n",
        rounds, memory >> 10, kWarm + 1, MemoryInUse() >> 10, OpenFiles());
}

}  // namespace

}  // namespace lumerin
