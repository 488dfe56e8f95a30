// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace lumerin {

namespace console {

StandardStreams::StandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest free number is given, which is that of the stream.
        if (fcntl(stream, F_GETFD) == -1) open("/dev/null", O_RDONLY);
    }
}

StandardStreams::~StandardStreams() = default;

bool IsConsole(Stream stream) {
    return isatty(stream == Stream::output ? STDOUT_FILENO : STDERR_FILENO) != 0;
}

bool TakesEscapes(Stream stream) {
    return IsConsole(stream);
}

std::size_t Width() {
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

std::vector<std::string> CommandLine(int argc, const char* const* argv) {
    return {argv, argv + argc};
}

}  // namespace console

}  // namespace lumerin
