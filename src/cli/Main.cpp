// SPDX-License-Identifier: MIT
#include <iostream>

#include "cli/Program.h"
#include "script/Border.h"

// The program lumerin: tables, verdict and data of a project without a screen.
int main(int argc, char** argv) {
    try {
        return lumerin::Program().Run(argc, argv, std::cout, std::cerr);
    } catch (const std::exception& error) {
        lumerin::PrintLine(std::cerr, std::string("lumerin: ") + error.what());
        return lumerin::kExitUsage;
    }
}
