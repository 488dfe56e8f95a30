// SPDX-License-Identifier: MIT
// 32 MB of text on the clipboard, pasted when the process has hardly any addresses left.
#include <cstdio>
#include <cstring>
#include <vector>

#include "Stage.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

constexpr std::size_t kMegabyte = 1 << 20;
constexpr std::size_t kText = 32 * kMegabyte;
enum Control { kCustom = IDC_CUSTOM_CASES, kChoose = IDC_CHOOSE_CASES, kGrid = IDC_CASE_GRID, kOk = 1 };

void FillClipboard() {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, kText + 1);
    auto* bytes = static_cast<char*>(GlobalLock(memory));
    std::memset(bytes, '1', kText);
    bytes[kText] = '\0';
    GlobalUnlock(memory);
    OpenClipboard(nullptr);
    EmptyClipboard();
    Check(SetClipboardData(CF_TEXT, memory) != nullptr, "the clipboard takes the text");
    CloseClipboard();
}

// Takes all addresses of the process except that many bytes in one piece.
class Fill {
  public:
    explicit Fill(std::size_t left) {
        m_blocks.reserve(100000);
        void* kept = VirtualAlloc(nullptr, left, MEM_RESERVE, PAGE_NOACCESS);
        Check(kept != nullptr, "there is room to leave");
        for (std::size_t size = 512 * kMegabyte; size >= 64 << 10; size /= 2) {
            while (void* block = VirtualAlloc(nullptr, size, MEM_RESERVE, PAGE_NOACCESS))
                m_blocks.push_back(block);
        }
        VirtualFree(kept, 0, MEM_RELEASE);
    }
    Fill(const Fill&) = delete;
    Fill& operator=(const Fill&) = delete;
    ~Fill() {
        for (void* block : m_blocks) VirtualFree(block, 0, MEM_RELEASE);
    }

  private:
    std::vector<void*> m_blocks;
};

void Paste(HWND dialog, Visits& visits) {
    const HWND grid = GetDlgItem(dialog, kGrid);
    SetFocus(grid);
    Key(grid, VK_RIGHT);
    Key(grid, VK_DOWN);
    int refused = 0;
    for (const unsigned left : {2U, 16U, 34U, 40U, 60U, 70U, 80U, 100U, 110U, 140U}) {
        const int before = visits.BoxesWith(kNoMemory);
        {
            const Fill fill(left * kMegabyte);
            Key(grid, 'V', true);
            Pump(100);
        }
        Pump(100);
        const int boxes = visits.BoxesWith(kNoMemory) - before;
        std::printf("%d MB left: %d boxes\n", static_cast<int>(left), boxes);
        refused += boxes;
    }
    Check(refused > 0, "at least one paste finds no memory and says so");
    // The dialog is complete.
    Key(grid, VK_DELETE);
    SendMessageA(grid, WM_CHAR, '1', 1);
    Pump();
    Check(FindWindowExA(grid, nullptr, "Edit", nullptr) != nullptr, "a cell can be edited after that");
    Press(dialog, kOk);
}

}  // namespace

void TestFullProcess(const Words& words) {
    const Module module = LoadModule();
    FillClipboard();
    Visits* current = nullptr;
    Visits visits([&](HWND dialog) {
        if (GetDlgItem(dialog, kGrid) != nullptr) {
            Paste(dialog, *current);
            return;
        }
        Press(dialog, kCustom);
        Press(dialog, kChoose);
        Press(dialog, kOk);
    });
    current = &visits;
    Check(module.launch(2, words.at(0).c_str(), "4.17", "", "", "") == 1, "the call ends by Close");
    OpenClipboard(nullptr);
    EmptyClipboard();
    CloseClipboard();
}

}  // namespace lumerin
