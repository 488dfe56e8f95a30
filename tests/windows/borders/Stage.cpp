// SPDX-License-Identifier: MIT
#include "Stage.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "host/WindowReader.h"

namespace lumerin {

namespace {

constexpr UINT kTickMilliseconds = 10;
constexpr const char* kAnswered = "BordersAnswered";
constexpr const char* kHostClass = "BordersHost";

int g_failed = 0;

// The visits of this thread; one thread works at a time.
Visits*& Current() {
    static Visits* visits = nullptr;
    return visits;
}

void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (Current() != nullptr) Current()->Tick();
}

}  // namespace

Module LoadModule() {
    std::array<char, MAX_PATH> program{};
    GetModuleFileNameA(nullptr, program.data(), static_cast<DWORD>(program.size()));
    std::string path = program.data();
    path = path.substr(0, path.rfind('\\') + 1) + "Lumerin.dll";
    Module module;
    module.handle = LoadLibraryA(path.c_str());
    if (module.handle != nullptr) {
        const FARPROC address = GetProcAddress(module.handle, "LaunchLumerin");
        module.launch = reinterpret_cast<ModuleExport>(reinterpret_cast<void*>(address));
    }
    if (module.launch != nullptr) return module;
    std::printf("FAILED %s could not be loaded\n", path.c_str());
    ExitProcess(3);
}

void Check(bool holds, const std::string& what) {
    if (!holds) {
        ++g_failed;
        std::printf("FAILED %s\n", what.c_str());
        std::fflush(stdout);
    }
}

int FailedChecks() {
    return g_failed;
}

HostWindow::HostWindow() {
    WNDCLASSA host{};
    host.lpfnWndProc = DefWindowProcA;
    host.hInstance = GetModuleHandleA(nullptr);
    host.lpszClassName = kHostClass;
    RegisterClassA(&host);
    m_window = CreateWindowExA(0, kHostClass, "Host", WS_OVERLAPPEDWINDOW, 40, 40, 300, 200, nullptr, nullptr,
                               host.hInstance, nullptr);
    ShowWindow(m_window, SW_SHOWNOACTIVATE);
    Pump();
}

void Pump(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    for (;;) {
        MSG message{};
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        const DWORD passed = GetTickCount() - start;
        if (passed >= milliseconds) return;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - passed, QS_ALLINPUT);
    }
}

Visits::Visits(std::function<void(HWND)> visit) : m_visit(std::move(visit)) {
    Current() = this;
    m_timer = SetTimer(nullptr, 0, kTickMilliseconds, OnTimer);
}

Visits::~Visits() {
    KillTimer(nullptr, m_timer);
    Current() = nullptr;
}

int Visits::BoxesWith(const std::string& text) const {
    return static_cast<int>(std::count_if(boxes.begin(), boxes.end(), [&](const std::string& box) {
        return box.find(text) != std::string::npos;
    }));
}

void Visits::Tick() {
    const HWND front = FrontDialog();
    if (front == nullptr) return;
    if (IsMessageBox(front)) {
        // The next box may have the handle of the one before, but not its mark.
        if (GetPropA(front, kAnswered) != nullptr) return;
        SetPropA(front, kAnswered, front);
        const MessageBoxState state = ReadMessageBox(front);
        boxes.push_back(state.text);
        if (onBox) onBox(front);
        PostMessageA(state.yes != nullptr ? state.yes : state.ok, BM_CLICK, 0, 0);
        return;
    }
    // Windows that are gone may come back under the same handle.
    std::erase_if(m_visited, [](HWND window) { return IsWindow(window) == FALSE; });
    if (m_visited.insert(front).second) m_visit(front);
}

void Press(HWND dialog, int button) {
    SendMessageA(GetDlgItem(dialog, button), BM_CLICK, 0, 0);
}

void Key(HWND window, WPARAM key, bool control, bool shift) {
    std::array<BYTE, 256> before{}, keys{};
    GetKeyboardState(before.data());
    keys = before;
    keys[VK_CONTROL] = control ? 0x80 : 0;
    keys[VK_SHIFT] = shift ? 0x80 : 0;
    SetKeyboardState(keys.data());
    SendMessageA(window, WM_KEYDOWN, key, 1);
    SetKeyboardState(before.data());
}

void Cancel(HWND dialog) {
    SendMessageA(dialog, WM_COMMAND, 2, 0);
}

}  // namespace lumerin
