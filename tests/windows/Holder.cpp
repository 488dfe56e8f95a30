// holder.exe FILE...: opens the files and shares them with nobody, until a line comes from standard input.
#include <cstdio>

#include "host/HostWindows.h"

int main(int argc, char** argv) {
    int held = 0;
    for (int i = 1; i < argc; ++i) {
        const HANDLE file =
            CreateFileA(argv[i], GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file != INVALID_HANDLE_VALUE) ++held;  // closed by the system when this program ends
    }
    std::printf("held %d\n", held);
    std::fflush(stdout);
    return std::getchar() == EOF ? 1 : 0;
}
