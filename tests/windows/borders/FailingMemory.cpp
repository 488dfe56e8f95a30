// SPDX-License-Identifier: MIT
#include "FailingMemory.h"

#include <cstdlib>
#include <cstring>

namespace lumerin {

namespace {

long g_left = -1;  // calls that succeed before one fails; below 0: all do
bool g_all = false, g_failed = false;

bool FailsNow() {
    if (g_left < 0) return false;
    if (g_left > 0) {
        --g_left;
        return false;
    }
    g_failed = true;
    if (!g_all) g_left = -1;
    return true;
}

void* FailingMalloc(std::size_t bytes) {
    return FailsNow() ? nullptr : std::malloc(bytes);
}
void* FailingCalloc(std::size_t count, std::size_t bytes) {
    return FailsNow() ? nullptr : std::calloc(count, bytes);
}
void* FailingRealloc(void* memory, std::size_t bytes) {
    return FailsNow() ? nullptr : std::realloc(memory, bytes);
}

// The place in which a module keeps the address of a function that it imports; null: it imports none.
void** FindImport(HMODULE module, const char* function) {
    auto* base = reinterpret_cast<char*>(module);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS32*>(
        base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const DWORD at = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + at); library->Name != 0;
         ++library) {
        const auto* name = reinterpret_cast<const DWORD*>(base + library->OriginalFirstThunk);
        auto* place = reinterpret_cast<void**>(base + library->FirstThunk);
        for (; *name != 0; ++name, ++place) {
            if ((*name & IMAGE_ORDINAL_FLAG32) != 0) continue;
            const auto* byName = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + *name);
            if (std::strcmp(reinterpret_cast<const char*>(byName->Name), function) == 0) return place;
        }
    }
    return nullptr;
}

template <class Function>
bool Replace(HMODULE module, const char* name, Function* function) {
    void** place = FindImport(module, name);
    DWORD before = 0;
    if (place == nullptr || !VirtualProtect(place, sizeof *place, PAGE_READWRITE, &before)) return false;
    *place = reinterpret_cast<void*>(function);
    VirtualProtect(place, sizeof *place, before, &before);
    return true;
}

}  // namespace

namespace failing {

bool Hook(HMODULE module) {
    Replace(module, "calloc", &FailingCalloc);
    Replace(module, "realloc", &FailingRealloc);
    return Replace(module, "malloc", &FailingMalloc);
}

void Arm(long number, bool all) {
    g_failed = false;
    g_all = all;
    g_left = number;
}

bool Disarm() {
    g_left = -1;
    g_all = false;
    return g_failed;
}

}  // namespace failing

}  // namespace lumerin
