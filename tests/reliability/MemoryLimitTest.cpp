#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/Launch.h"
#include "reliability/BrokenProject.h"
#include "reliability/FaultyCalls.h"

// Forces that do not fit: one message names the file and the size, the dialog stays, and the next run is
// whole.

namespace {

using testing::HasSubstr;

constexpr int kManyCases = 15000;
constexpr const char* kNoRoom = " MB of memory for its forces, more than this process can have";

// The megabytes that forces of that file take: 14 floats for each record of 17.
int MegabytesOfForces(const ProjectBytes& file) {
    return static_cast<int>(file.bytes.size() / 68 * 56 >> 20);
}

// The number in front of the words; -1 when they are not there.
int ToldMegabytes(const std::string& text) {
    const std::size_t end = text.find(kNoRoom), needs = text.rfind("needs ", end);
    if (end == std::string::npos || needs == std::string::npos) return -1;
    return std::stoi(text.substr(needs + 6, end - needs - 6));
}

// Some records of a file feed no element; the cases themselves come on top of their forces.
void ExpectSize(const std::string& said, int megabytes) {
    EXPECT_GT(ToldMegabytes(said), megabytes * 4 / 5);
    EXPECT_LE(ToldMegabytes(said), megabytes + 2);
}

// Opens the dialog as the host does, presses two tables, and keeps what was said and whether the presses came
// to a dialog that was still open.
struct Session : headless::Sink {
    explicit Session(const std::string& base) {
        headless::ResetState();
        headless::State().clock = LocalTime{2026, 11, 14, 6, 8, 30, 0};
        headless::SetSink(this);
        headless::SetModalDriver([this](headless::HeadlessDialog& dialog) {
            for (const int button : {1004, 1009}) dialog.Click(button);
            openAfterPresses = dialog.IsOpen();
            dialog.Close();
        });
        result = LaunchLumerin(kFormatText, (base + ".in").c_str(), "5.2.1", "", "", "");
        headless::ResetState();
    }
    MessageAnswer OnMessage(const headless::Message& message) override {
        messages.push_back(message.text);
        return headless::Sink::OnMessage(message);
    }

    std::vector<std::string> messages;
    bool openAfterPresses = false;
    unsigned result = 0;
};

TEST(MemoryLimit, AnyBlockOfForcesMayBeRefused) {
    const BrokenProject project("pier", kManyCases);
    ASSERT_EQ(Report(project.Base(), {"axial"}).status, kExitDone);
    const std::string table = project.Base() + "_Max_Axial_Forces_Pile_Heads.txt";
    const std::string whole = ReadBytesOf(table);
    const int megabytes = MegabytesOfForces(project.File("p.vmd"));
    ASSERT_GT(megabytes, 32);  // three blocks at least
    long refused = 0;
    for (;; ++refused) {
        faulty::g_callocsLeft = refused;
        const Session session(project.Base());
        const bool failed = faulty::g_callocsLeft < 0;
        faulty::g_callocsLeft = -1;
        EXPECT_TRUE(session.openAfterPresses);
        if (!failed) break;
        // The second is the answer to the press behind it.
        ASSERT_EQ(session.messages.size(), 2U) << testing::PrintToString(session.messages);
        EXPECT_THAT(session.messages[1], HasSubstr("There are no results to view."));
        EXPECT_THAT(session.messages[0], HasSubstr(project.Base() + ".vmd"));
        ExpectSize(session.messages[0], megabytes);
    }
    EXPECT_GE(refused, 3);
    EXPECT_EQ(Report(project.Base(), {"axial"}).status, kExitDone);
    EXPECT_EQ(ReadBytesOf(table), whole);
}

// The program itself with so many bytes of addresses; its exit status, and what it said.
int StatusWithRoom(const BrokenProject& project, rlim_t bytes, std::string& said) {
    const std::string errors = project.Base() + ".said", input = project.Base() + ".in";
    const pid_t child = fork();
    if (child == 0) {
        const rlimit limit{bytes, bytes};
        setrlimit(RLIMIT_AS, &limit);
        if (std::freopen(errors.c_str(), "w", stderr) == nullptr) _exit(126);
        execl(LUMERIN_BINARY_DIR "/lumerin", "lumerin", "report", input.c_str(), "--table", "full", nullptr);
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    said = ReadBytesOf(errors);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

TEST(MemoryLimit, AProcessWithTooLittleRoomSaysHowMuchItNeeds) {
    if (kSanitized) GTEST_SKIP() << "the sanitizers reserve terabytes";
    const BrokenProject project("pier", kManyCases);
    const int megabytes = MegabytesOfForces(project.File("p.vmd"));
    constexpr rlim_t kStep = rlim_t{5} << 19;  // 2.5 MB
    const std::string file = project.Base() + ".vmd: needs ";
    std::string said;
    int refused = 0;
    for (rlim_t room = rlim_t{32} << 20;; room += kStep, ++refused) {
        ASSERT_LT(room, rlim_t{200} << 20);
        const int status = StatusWithRoom(project, room, said);
        if (status == kExitDone) break;
        ASSERT_EQ(status, kExitNotLoaded) << "with " << (room >> 20) << " MB: " << said;
        EXPECT_THAT(said, HasSubstr(file));
        ExpectSize(said, megabytes);
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1);
    }
    EXPECT_GE(refused, 4);
}

}  // namespace
