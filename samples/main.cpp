// SPDX-License-Identifier: MIT
// make-sample: writes a sample project, with every file that the host would write beside its input.
#include <iostream>

#include "samples/CommandLine.h"

using namespace lumerin;

int main(int argc, char** argv) {
    return samples::RunMakeSample({argv + 1, argv + argc}, std::cout, std::cerr);
}
