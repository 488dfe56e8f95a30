#include "reliability/FaultyCalls.h"

#include <cstddef>
#include <cstdio>

namespace faulty {

long g_callocsLeft = -1;
long g_writesLeft = -1;

namespace {

bool FailsNow(long& left) {
    return left >= 0 && left-- == 0;
}

}  // namespace
}  // namespace faulty

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
