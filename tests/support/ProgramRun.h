// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/Program.h"

namespace lumerin {

// What a command ended with and printed.
struct ProgramRun {
    ExitStatus status = kExitDone;
    std::string out, err;
};

// A run of a command, a function of its two streams.
template <class Command>
ProgramRun RunCommand(const Command& command) {
    std::ostringstream out, err;
    const ExitStatus status = command(out, err);
    return {status, out.str(), err.str()};
}

// A run of the whole program in this process, with the words that are typed after its name.
inline ProgramRun RunLumerin(Program& program, const std::vector<std::string>& words) {
    std::vector<const char*> argv{"lumerin"};
    for (const std::string& word : words) argv.push_back(word.c_str());
    return RunCommand([&](std::ostream& out, std::ostream& err) {
        return program.Run(static_cast<int>(argv.size()), argv.data(), out, err);
    });
}

inline ProgramRun RunLumerin(const std::vector<std::string>& words) {
    Program program;
    return RunLumerin(program, words);
}

}  // namespace lumerin
