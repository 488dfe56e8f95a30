// SPDX-License-Identifier: MIT
#include "FailingMemory.h"

#include <cstdlib>

#include "Imports.h"

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

}  // namespace

namespace failing {

bool Hook(HMODULE module) {
    ReplaceImport(module, "calloc", &FailingCalloc);
    ReplaceImport(module, "realloc", &FailingRealloc);
    return ReplaceImport(module, "malloc", &FailingMalloc);
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
