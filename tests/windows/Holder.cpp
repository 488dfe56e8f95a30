// SPDX-License-Identifier: MIT
// holder.exe nothing|write FILE...: opens the files for reading and lets others do nothing with them, or read
// and write but not replace them, until a line comes from standard input.
#include <cstdio>
#include <cstring>

#include "host/HostWindows.h"

using namespace lumerin;

int main(int argc, char** argv) {
    int held = 0;
    const bool write = argc > 1 && std::strcmp(argv[1], "write") == 0;
    const DWORD sharing = write ? FILE_SHARE_READ | FILE_SHARE_WRITE : 0;
    for (int i = 2; i < argc; ++i) {
        const HANDLE file = CreateFileA(argv[i], GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file != INVALID_HANDLE_VALUE) ++held;  // closed by the system when this program ends
    }
    std::printf("held %d\n", held);
    std::fflush(stdout);
    return std::getchar() == EOF ? 1 : 0;
}
