// SPDX-License-Identifier: MIT
#include "Imports.h"

#include <cstring>

namespace lumerin {

namespace {

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

}  // namespace

bool ReplaceImport(HMODULE module, const char* name, void* function) {
    void** place = FindImport(module, name);
    DWORD before = 0;
    if (place == nullptr || !VirtualProtect(place, sizeof *place, PAGE_READWRITE, &before)) return false;
    *place = function;
    VirtualProtect(place, sizeof *place, before, &before);
    return true;
}

}  // namespace lumerin
