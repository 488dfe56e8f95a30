// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lumerin {

// The standard streams of the program, and what they are connected to.
namespace console {

enum class Stream { output, error };

// For the life of the program. Each of the three streams is open, so that no document gets its number, and
// passes bytes on as they are; writing to one that was closed fails. A console gets the characters of UTF-8.
class StandardStreams {
  public:
    StandardStreams();
    StandardStreams(const StandardStreams&) = delete;
    StandardStreams& operator=(const StandardStreams&) = delete;
    // What it does is the platform's. NOLINTNEXTLINE(performance-trivially-destructible)
    ~StandardStreams();
};

bool IsConsole(Stream stream);
// Whether it is a console that colours text and erases lines by escape sequences.
bool TakesEscapes(Stream stream);
// The columns that a line may have on the console of standard output; 0: it is none.
std::size_t Width();

// The words of the command line as UTF-8, the program's name first.
std::vector<std::string> CommandLine(int argc, const char* const* argv);

}  // namespace console

}  // namespace lumerin
