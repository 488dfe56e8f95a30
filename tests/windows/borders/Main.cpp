// SPDX-License-Identifier: MIT
// borders TEST WORD...: a host that is difficult for the module: it is short of memory, calls again, has
// floating-point traps on, loads libraries of its own. Prints each check that fails; exit status 0 when all
// hold, 1 otherwise, and the system's own when the process was ended.
#include <cstdio>
#include <cstring>

#include "Stage.h"

using namespace lumerin;

namespace {

struct Test {
    const char* name;
    void (*run)(const Words&);
};

constexpr Test kTests[] = {
    {"allocations", TestAllocations},  // PROJECT
    {"full", TestFullProcess},         // PROJECT
    {"traps", TestTraps},              // PROJECT
    {"second-call", TestSecondCall},   // PROJECT
    {"owner", TestOwner},              // PROJECT
    {"ole", TestOle},                  // PROJECT
    {"threads", TestThreads},          // PROJECT
    {"cursor", TestCursor},            // PROJECT
    {"printer", TestPrinter},          // PROJECT
    {"drawing", TestDrawing},          // PROJECT
    {"copied-text", TestCopiedText},   // PROJECT
    {"preload", TestPreload},          // PROJECT LIBRARY MESSAGE
};

}  // namespace

int main(int argc, char** argv) {
    const Words words(argv + (argc > 2 ? 2 : argc), argv + argc);
    for (const Test& test : kTests) {
        if (argc < 3 || std::strcmp(test.name, argv[1]) != 0) continue;
        test.run(words);
        if (FailedChecks() == 0) std::printf("passed %s\n", test.name);
        return FailedChecks() == 0 ? 0 : 1;
    }
    std::printf("FAILED there is no such test\n");
    return 2;
}
