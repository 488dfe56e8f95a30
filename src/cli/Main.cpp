// SPDX-License-Identifier: MIT
#include <iostream>

#include "cli/Console.h"
#include "cli/Program.h"
#include "cli/Terminal.h"
#include "script/Border.h"

// The program lumerin: tables, verdict and data of a project without a screen.
int main(int argc, char** argv) {
    using namespace lumerin;
    const console::StandardStreams streams;
    ExitStatus status = kExitUsage;
    try {
        const std::vector<std::string> words = console::CommandLine(argc, argv);
        std::vector<const char*> line;
        line.reserve(words.size());
        for (const std::string& word : words) line.push_back(word.c_str());
        status = Program().Run(static_cast<int>(line.size()), line.data(), std::cout, std::cerr);
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
