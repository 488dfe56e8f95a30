// SPDX-License-Identifier: MIT
#include <iostream>

#include "cli/Program.h"
#include "cli/Terminal.h"
#include "script/Border.h"

// The program lumerin: tables, verdict and data of a project without a screen.
int main(int argc, char** argv) {
    using namespace lumerin;
    OpenStandardStreams();
    ExitStatus status = kExitUsage;
    try {
        status = Program().Run(argc, argv, std::cout, std::cerr);
    } catch (const std::exception& error) {
        PrintLine(std::cerr, std::string("lumerin: ") + error.what());
    }
    std::cout.flush();
    if (!std::cout) {
        PrintLine(std::cerr, "lumerin: standard output could not be written whole");
        status = Worse(status, kExitIncomplete);
    }
    return status;
}
