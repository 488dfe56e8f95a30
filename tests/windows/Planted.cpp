// SPDX-License-Identifier: MIT
// A file that somebody has put beside a project, built as a library and as a program: it leaves a file
// "planted-ran" in the current folder as soon as it runs, or is only loaded.
#include <cstdio>

#include "host/HostWindows.h"

namespace {

void LeaveMark() {
    if (std::FILE* file = std::fopen("planted-ran", "wb")) std::fclose(file);
}

}  // namespace

#ifdef PLANTED_LIBRARY
BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) LeaveMark();
    return TRUE;
}
#else
int main() {
    LeaveMark();
    return 0;
}
#endif
