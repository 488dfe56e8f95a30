// SPDX-License-Identifier: MIT
// One file of a project comes from the fuzzer; the load and the full report follow.

#include "fuzz/Playground.h"

using namespace lumerin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Archive sample = SampleArchive(FUZZ_PRESET);
    static const bool written = (TheFolder().WriteArchive(sample), true);
    if (!written || !TheFolder().Write(FUZZ_FILE, Text(data, size))) return -1;
    TheFolder().Play("click 1001\nclick 1022\nspin 1026 up\nclick 1034\n");
    return 0;
}
