// SPDX-License-Identifier: MIT
#include "session/win32/module/Runtime.h"

#include <cxxabi.h>

#include <atomic>
#include <cstdlib>
#include <cstring>

#include "framework/win32/Windows32.h"

namespace lumerin {

// The tables by which the run-time finds the handlers of an exception.
//
// At the load of a module the compiler's start code registers its tables. Where the process has loaded a
// libgcc_s_dw2-1.dll, as a host or another module of the same compiler may have, it registers them there and
// nowhere else; but this module throws by its own copy of that library, which then finds no handler and ends
// the process. So they are registered in the own copy too where it does not know them.

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's and the compiler's own names
extern "C" {

extern IMAGE_DOS_HEADER __ImageBase;

struct FrameBases {
    void* text;
    void* data;
    void* function;
};
const void* _Unwind_Find_FDE(void* address, FrameBases* bases);
void __register_frame_info(const void* table, void* object);
void* __deregister_frame_info(const void* table);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

// What the own copy remembers the tables by; as big as its own record or bigger.
void* g_object[16];
const void* g_table = nullptr;

// The section of the tables; the names in the header have 8 characters. Null: there is none.
const void* FindTable() {
    constexpr char kName[] = {'.', 'e', 'h', '_', 'f', 'r', 'a', 'm'};
    const auto* base = reinterpret_cast<const char*>(&__ImageBase);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS32*>(base + __ImageBase.e_lfanew);
    const auto* section = reinterpret_cast<const IMAGE_SECTION_HEADER*>(headers + 1);
    for (const auto* end = section + headers->FileHeader.NumberOfSections; section != end; ++section) {
        if (std::memcmp(section->Name, kName, sizeof kName) == 0) return base + section->VirtualAddress;
    }
    return nullptr;
}

// Before all other constructors, any of which may throw.
[[gnu::constructor(101)]] void RegisterFrames() {
    FrameBases bases{};
    if (_Unwind_Find_FDE(reinterpret_cast<void*>(&RegisterFrames), &bases) != nullptr) return;
    g_table = FindTable();
    if (g_table != nullptr) __register_frame_info(g_table, g_object);
}

[[gnu::destructor(101)]] void DeregisterFrames() {
    if (g_table != nullptr) __deregister_frame_info(g_table);
}

}  // namespace

// ---- memory for exceptions
//
// An exception that gets no memory is made in a reserve of the run-time's. The lock of the reserve takes
// memory when it is first used; without it the run-time throws inside of its throw, for ever. So the reserve
// is used once while there is memory, which needs an allocation that is refused: all of the module's come
// through here.

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names for a function that is wrapped
extern "C" {

void* __real_malloc(std::size_t bytes);
void* __wrap_malloc(std::size_t bytes);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

std::atomic<DWORD> g_refusedThread{0};  // whose next allocation is refused; 0: nobody's

constexpr std::size_t kPrepared = 256 << 10;  // far more than all that is made below

void UseReserve() {
    g_refusedThread = GetCurrentThreadId();
    abi::__cxa_free_exception(abi::__cxa_allocate_exception(1));
    g_refusedThread = 0;
}

// The lock of all local statics that are made at their first use.
bool MakeLocalStatic() {
    static const bool made = GetCurrentThreadId() != 0;
    return made;
}

}  // namespace

extern "C" void* __wrap_malloc(std::size_t bytes) {
    if (g_refusedThread != 0 && g_refusedThread == GetCurrentThreadId()) {
        g_refusedThread = 0;
        return nullptr;
    }
    return __real_malloc(bytes);
}

bool PrepareRuntime() noexcept {
    // Volatile, or the compiler takes the two calls for one that does nothing.
    // NOLINTBEGIN(cppcoreguidelines-no-malloc): the reserve of malloc itself is what is made here
    void* volatile memory = std::malloc(kPrepared);
    if (memory == nullptr) return false;
    std::free(memory);
    // NOLINTEND(cppcoreguidelines-no-malloc)
    static std::atomic_flag used;
    if (!used.test_and_set()) UseReserve();
    MakeLocalStatic();
    try {
        throw 0;
    } catch (int) {
        return true;
    }
}

}  // namespace lumerin
