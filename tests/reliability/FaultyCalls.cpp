#include "reliability/FaultyCalls.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace faulty {

std::atomic<long> g_allocationsLeft{-1};
long g_callocsLeft = -1;
long g_writesLeft = -1;

namespace {

bool FailsNow(long& left) {
    return left >= 0 && left-- == 0;
}

}  // namespace
}  // namespace faulty

namespace {

void* Allocate(std::size_t bytes) {
    if (faulty::g_allocationsLeft >= 0 && faulty::g_allocationsLeft-- == 0) throw std::bad_alloc();
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

// The names that the linker's option --wrap asks for.
extern "C" {

void* __real_calloc(std::size_t count, std::size_t bytes);
std::size_t __real_fwrite(const void* from, std::size_t bytes, std::size_t count, std::FILE* file);

void* __wrap_calloc(std::size_t count, std::size_t bytes) {
    if (faulty::FailsNow(faulty::g_callocsLeft)) return nullptr;
    return __real_calloc(count, bytes);
}

std::size_t __wrap_fwrite(const void* from, std::size_t bytes, std::size_t count, std::FILE* file) {
    if (faulty::FailsNow(faulty::g_writesLeft)) return __real_fwrite(from, bytes, count / 2, file);
    return __real_fwrite(from, bytes, count, file);
}
}
