// SPDX-License-Identifier: MIT
#include "reliability/FaultyCalls.h"

#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace lumerin::faulty {

std::atomic<long> g_allocationsLeft{-1};
long g_writesLeft = -1;
long g_writesToDeath = -1;

namespace {

bool FailsNow(long& left) {
    return left >= 0 && left-- == 0;
}

}  // namespace
}  // namespace lumerin::faulty

namespace {

void* Allocate(std::size_t bytes) {
    if (lumerin::faulty::g_allocationsLeft >= 0 && lumerin::faulty::g_allocationsLeft-- == 0)
        throw std::bad_alloc();
    void* memory = std::malloc(bytes == 0 ? 1 : bytes);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

}  // namespace

void* operator new(std::size_t bytes) {
    return Allocate(bytes);
}
void* operator new[](std::size_t bytes) {
    return Allocate(bytes);
}
// The form without exceptions, which the library's sorts use, fails by the same count.
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    try {
        return Allocate(bytes);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

// The names that the linker's option --wrap requires.
extern "C" {

ssize_t __real_write(int file, const void* from, std::size_t bytes);

ssize_t __wrap_write(int file, const void* from, std::size_t bytes) {
    if (lumerin::faulty::FailsNow(lumerin::faulty::g_writesToDeath)) {
        const ssize_t stored = __real_write(file, from, bytes / 2);
        return kill(getpid(), SIGKILL) == 0 ? stored : -1;
    }
    if (!lumerin::faulty::FailsNow(lumerin::faulty::g_writesLeft)) return __real_write(file, from, bytes);
    const ssize_t stored = __real_write(file, from, bytes / 2);
    errno = ENOSPC;
    return stored < 0 ? stored : -1;
}
}
