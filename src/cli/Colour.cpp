// SPDX-License-Identifier: MIT
#include "cli/Colour.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>

namespace lumerin {

bool MayColour(const std::ostream& out) {
    const char* refused = std::getenv("NO_COLOR");
    const bool allowed = refused == nullptr || *refused == '\0';
    return allowed && out.rdbuf() == std::cout.rdbuf() && isatty(STDOUT_FILENO) != 0;
}

}  // namespace lumerin
