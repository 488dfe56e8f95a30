// SPDX-License-Identifier: MIT
#include <cstdint>

#include "framework/windows/System.h"

// What the compiler's checks for overwritten stacks and buffers need. Its own library has the same, but asks
// the system's cryptography for the number while the module is being loaded, when no other library may be
// loaded.

namespace lumerin {

// The names are the compiler's. NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {

void* __stack_chk_guard = nullptr;  // stored before each return address that is guarded
void __stack_chk_fail() __attribute__((noreturn));
void __chk_fail() __attribute__((noreturn));
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

constexpr UINT kStackOverrun = 0xc0000409;  // the system's code for it

// Before all other constructors. A function that is guarded must not run while the guard changes, nor must
// this one be.
__attribute__((constructor(101), no_stack_protector)) void ChooseGuard() {
    LARGE_INTEGER counter{};
    FILETIME time{};
    QueryPerformanceCounter(&counter);
    GetSystemTimeAsFileTime(&time);
    std::uint64_t mixed =
        static_cast<std::uint64_t>(counter.QuadPart) ^ (std::uint64_t{time.dwLowDateTime} << 20);
    // The places of the stack and of the module are the system's choice.
    const std::uint32_t parts[] = {GetCurrentProcessId(), GetCurrentThreadId(), GetTickCount(),
                                   reinterpret_cast<std::uint32_t>(&counter),
                                   reinterpret_cast<std::uint32_t>(&__stack_chk_guard)};
    for (const std::uint32_t part : parts) {
        mixed = (mixed ^ part) * 0x9e3779b97f4a7c15u;
        mixed ^= mixed >> 32;
    }
    // The lowest byte ends a text, so that a text that is too long does not go on with the guard as it was.
    __stack_chk_guard = reinterpret_cast<void*>(static_cast<std::uint32_t>(mixed) & ~0xffu);
}

}  // namespace

// The stack cannot be trusted any more, not even for a message.
extern "C" void __stack_chk_fail() {
    TerminateProcess(GetCurrentProcess(), kStackOverrun);
    __builtin_trap();
}

extern "C" void __chk_fail() {
    __stack_chk_fail();
}

}  // namespace lumerin
