// SPDX-License-Identifier: MIT
// stranger.exe [press]: another program on the machine that sends the module's windows the queries of their
// driver, without its token and with wrong ones, with pointers into the module's process and with invalid
// ones.
// With "press" it opens and closes the dialogs itself, in a host that has no driver. Prints what was answered
// or written; exit status 1 then, and when a window was not found or was destroyed by it.
#include <array>
#include <cstdio>
#include <cstring>

#include "host/HostWindows.h"
#include "session/ReportControls.h"

using namespace lumerin;

namespace {

constexpr const char* kReportTitle = "Lumerin Generator";
constexpr int kOk = 1, kCancel = 2;  // buttons of the dialogs
constexpr const char* kGridClass = "MFCGridCtrl";
constexpr const char* kGraphClass = "LumerinGraph";
constexpr DWORD kPatience = 30000;  // milliseconds until a window must exist
constexpr UINT kAnswerTime = 5000;  // milliseconds that a message may take
constexpr UINT kMessages = 16;      // from the first one of each range
constexpr std::size_t kBlockSize = 4096;
constexpr unsigned char kPattern = 0xa5;

struct Search {
    const char* windowClass;
    HWND found;
};

BOOL CALLBACK TakeChild(HWND window, LPARAM search) {
    auto& wanted = *reinterpret_cast<Search*>(search);
    std::array<char, 64> name{};
    GetClassNameA(window, name.data(), static_cast<int>(name.size()));
    if (lstrcmpiA(name.data(), wanted.windowClass) != 0 || !IsWindowVisible(window)) return TRUE;
    wanted.found = window;
    return FALSE;
}

BOOL CALLBACK SearchDialog(HWND window, LPARAM search) {
    if (IsWindowVisible(window)) EnumChildWindows(window, TakeChild, search);
    return reinterpret_cast<Search*>(search)->found == nullptr ? TRUE : FALSE;
}

// The first window of the class in any dialog of the screen; null: none came.
HWND WaitForChild(const char* windowClass) {
    const DWORD start = GetTickCount();
    do {
        Search search{windowClass, nullptr};
        EnumWindows(SearchDialog, reinterpret_cast<LPARAM>(&search));
        if (search.found != nullptr) return search.found;
        Sleep(10);
    } while (GetTickCount() - start < kPatience);
    std::printf("no window of the class %s\n", windowClass);
    return nullptr;
}

// Memory of the module's process, filled with a pattern.
class Block {
  public:
    explicit Block(HWND window) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        m_process = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
        m_memory = VirtualAllocEx(m_process, nullptr, kBlockSize, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
        m_bytes.fill(kPattern);
        WriteProcessMemory(m_process, m_memory, m_bytes.data(), kBlockSize, nullptr);
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    ~Block() {
        VirtualFreeEx(m_process, m_memory, 0, MEM_RELEASE);
        CloseHandle(m_process);
    }
    LPARAM Address() const { return reinterpret_cast<LPARAM>(m_memory); }
    bool IsUntouched() const {
        std::array<unsigned char, kBlockSize> now{};
        const BOOL read = ReadProcessMemory(m_process, m_memory, now.data(), kBlockSize, nullptr);
        return read != FALSE && now == m_bytes;
    }

  private:
    HANDLE m_process = nullptr;
    void* m_memory = nullptr;
    std::array<unsigned char, kBlockSize> m_bytes{};
};

// True: nothing was answered, nothing written, and the window still exists.
bool Attack(HWND window, const char* name) {
    constexpr WPARAM kTokens[] = {0, 1, 0x7fffffff, 0xdeadbeef, 0xffffffff};
    const Block block(window);
    const LPARAM pointers[] = {0, 1, 2, block.Address(), static_cast<LPARAM>(0xfffffff0u)};
    int sent = 0, answered = 0, lost = 0;
    for (const UINT first : {UINT{WM_USER}, UINT{WM_APP}}) {
        for (UINT message = first; message < first + kMessages; ++message) {
            for (const WPARAM token : kTokens) {
                for (const LPARAM pointer : pointers) {
                    DWORD_PTR result = 0;
                    ++sent;
                    if (!SendMessageTimeoutA(window, message, token, pointer, SMTO_ABORTIFHUNG, kAnswerTime,
                                             &result)) {
                        ++lost;
                    } else if (result != 0) {
                        ++answered;
                    }
                    if (!IsWindow(window)) {
                        std::printf("%s: gone after %d messages\n", name, sent);
                        return false;
                    }
                }
            }
        }
    }
    const bool untouched = block.IsUntouched();
    std::printf("%s: %d messages, %d answered, %d lost, memory %s\n", name, sent, answered, lost,
                untouched ? "untouched" : "WRITTEN");
    return answered == 0 && lost == 0 && untouched;
}

bool AttackChild(const char* windowClass, const char* name) {
    const HWND window = WaitForChild(windowClass);
    return window != nullptr && Attack(window, name);
}

void Press(HWND dialog, int id) {
    PostMessageA(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

// Opens the dialog of the button, attacks, and closes it.
template <typename Step>
bool Within(HWND report, int button, const char* windowClass, const Step& attack) {
    Press(report, button);
    const HWND child = WaitForChild(windowClass);
    if (child == nullptr) return false;
    const bool safe = attack();
    Press(GetParent(child), kCancel);
    while (IsWindow(child)) Sleep(10);
    return safe;
}

bool AttackCases() {
    return AttackChild(kGridClass, "grid of the cases");
}

bool AttackStudy() {
    const bool graph = AttackChild(kGraphClass, "graph");
    return AttackChild(kGridClass, "grid of the study") && graph;
}

bool PressAndAttack() {
    HWND report = nullptr;
    for (int i = 0; i < 1000 && report == nullptr; ++i, Sleep(10))
        report = FindWindowA(nullptr, kReportTitle);
    Press(report, IDC_CUSTOM_CASES);
    const bool cases = Within(report, IDC_CHOOSE_CASES, kGridClass, AttackCases);
    const bool study = Within(report, IDC_EMBEDMENT, kGraphClass, AttackStudy);
    Press(report, kOk);
    return cases && study;
}

// A driver opens the dialogs; the second grid is the one beside the graph.
bool WaitAndAttack() {
    const bool cases = AttackCases();
    return AttackStudy() && cases;
}

}  // namespace

int main(int argc, char** argv) {
    const bool presses = argc > 1 && std::strcmp(argv[1], "press") == 0;
    return (presses ? PressAndAttack() : WaitAndAttack()) ? 0 : 1;
}
