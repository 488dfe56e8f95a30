// SPDX-License-Identifier: MIT
// Faults that the compiler's checks must stop before they have an effect.
//   overrun guard      prints the number that guards the stack: another one in each process
//   overrun stack N    writes N bytes to a buffer of 16
//   overrun copy N     copies N bytes to a buffer of 16 by the library
// "went on" reports that nothing has stopped it.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

extern "C" void* __stack_chk_guard;

namespace {

constexpr std::size_t kSize = 16;

[[gnu::noinline]] void Fill(volatile char* bytes, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) bytes[i] = 'A';
}

[[gnu::noinline]] void WritePast(std::size_t count) {
    char bytes[kSize];
    Fill(bytes, count);
    std::printf("%c\n", bytes[kSize - 1]);
}

[[gnu::noinline]] void CopyPast(const char* from, std::size_t count) {
    static char bytes[kSize];
    std::memcpy(bytes, from, count);
    std::printf("%c\n", bytes[kSize - 1]);
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view what = argc > 1 ? argv[1] : "";
    const std::size_t count = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 0;
    static const char text[4 * kSize] = "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA";
    if (what == "guard") {
        std::printf("%p\n", __stack_chk_guard);
        return 0;
    }
    if (what == "stack") WritePast(count);
    if (what == "copy") CopyPast(text, count);
    std::puts("went on");
    return 0;
}
