// SPDX-License-Identifier: MIT
#include "host/Resources.h"

#include <algorithm>
#include <array>
#include <vector>

#include "host/HostWindows.h"
// This header needs windows.h before it.
#include <psapi.h>

namespace lumerin {

namespace {

// Graphics and user objects are numbered below this; a handle's upper half is a stamp against stale ones.
constexpr UINT_PTR kObjectNumbers = 0x10000;
// Kernel handles are multiples of this, and the lowest free one is given out.
constexpr UINT_PTR kHandleStep = 4;
// So many free handles in a row are the end of the table.
constexpr int kHandleGap = 512;
constexpr std::size_t kLeakedBytes = 16 << 10;

// Windows reports its counts. Wine has the call but returns 0, but takes handles without their stamp, so that
// every number can be tried.
template <typename Handle, typename IsOne>
unsigned CountNumbers(UINT_PTR step, IsOne isOne) {
    unsigned count = 0;
    for (UINT_PTR number = step; number < kObjectNumbers; number += step) {
        if (isOne(reinterpret_cast<Handle>(number))) ++count;
    }
    return count;
}

unsigned CountGdi() {
    const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    if (counted != 0) return counted;
    return CountNumbers<HGDIOBJ>(1, [](HGDIOBJ object) { return GetObjectType(object) != 0; });
}

bool IsIcon(HICON icon) {
    ICONINFO info{};
    if (!GetIconInfo(icon, &info)) return false;
    // The bitmaps are copies.
    DeleteObject(info.hbmMask);
    if (info.hbmColor != nullptr) DeleteObject(info.hbmColor);
    return true;
}

bool IsOwn(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

BOOL CALLBACK CountChild(HWND, LPARAM count) {
    ++*reinterpret_cast<unsigned*>(count);
    return TRUE;
}

void CountWindow(HWND window, unsigned& count) {
    if (!IsOwn(window)) return;
    ++count;
    EnumChildWindows(window, CountChild, reinterpret_cast<LPARAM>(&count));
}

BOOL CALLBACK CountTopWindow(HWND window, LPARAM count) {
    CountWindow(window, *reinterpret_cast<unsigned*>(count));
    return TRUE;
}

// Trying every number takes a second here, as the server is asked for each; so they are enumerated.
unsigned CountWindows() {
    unsigned count = 0;
    EnumWindows(CountTopWindow, reinterpret_cast<LPARAM>(&count));
    HWND window = nullptr;
    while ((window = FindWindowExA(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr) {
        CountWindow(window, count);
    }
    return count;
}

unsigned CountUser() {
    const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    if (counted != 0) return counted;
    // A user object has two numbers.
    const auto isMenu = [](HMENU menu) { return IsMenu(menu) != FALSE; };
    const auto isTable = [](HACCEL table) { return CopyAcceleratorTableA(table, nullptr, 0) > 0; };
    return CountWindows() + CountNumbers<HMENU>(2, isMenu) + CountNumbers<HICON>(2, IsIcon) +
           CountNumbers<HACCEL>(2, isTable);
}

// Wine answers 0 when it is asked for the number of handles, so they are tried one by one on either platform.
void CountHandles(Resources& resources) {
    int gap = 0;
    for (UINT_PTR number = kHandleStep; gap < kHandleGap; number += kHandleStep) {
        const HANDLE handle = reinterpret_cast<HANDLE>(number);
        DWORD flags = 0;
        ++gap;
        if (!GetHandleInformation(handle, &flags)) continue;
        gap = 0;
        ++resources.handles;
        if (GetFileType(handle) == FILE_TYPE_DISK) ++resources.files;
    }
}

std::size_t CountHeap() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = std::min(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()),
                                 static_cast<DWORD>(heaps.size()));
    std::size_t bytes = 0;
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        HeapLock(heaps[i]);
        while (HeapWalk(heaps[i], &entry)) {
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
        }
        HeapUnlock(heaps[i]);
    }
    return bytes;
}

// Wine exports the function only under the older name.
std::size_t PrivateBytes() {
    PROCESS_MEMORY_COUNTERS_EX counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                         sizeof counters);
    return std::max(counters.PrivateUsage, counters.PagefileUsage);
}

}  // namespace

Resources CountResources() {
    Resources resources;
    resources.gdi = CountGdi();
    resources.user = CountUser();
    CountHandles(resources);
    resources.heap = CountHeap();
    resources.memory = PrivateBytes();
    return resources;
}

void PrintRound(std::ostream& out, int round, const Resources& resources) {
    out << "{\"round\":" << round << ",\"gdi\":" << resources.gdi << ",\"user\":" << resources.user
        << ",\"handles\":" << resources.handles << ",\"files\":" << resources.files
        << ",\"heap\":" << resources.heap << ",\"memory\":" << resources.memory << "}" << std::endl;
}

void LeakOneOfEach() {
    CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    CreatePopupMenu();
    // With a bitmap for its colours and one for its outline.
    const std::array<BYTE, 4> outline{}, colours{};
    CreateIcon(nullptr, 1, 1, 1, 32, outline.data(), colours.data());
    ACCEL key{FVIRTKEY, VK_F1, 1};
    CreateAcceleratorTableA(&key, 1);
    CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    char program[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    CreateFileA(program, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    static std::vector<std::vector<char>> kept;
    kept.emplace_back(kLeakedBytes);
}

}  // namespace lumerin
