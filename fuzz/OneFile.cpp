// SPDX-License-Identifier: MIT
// One file of a project comes from the fuzzer; the load and the full report follow. Which file it is, is in
// the name of the program.

#include <iostream>

#include "fuzz/Playground.h"

using namespace lumerin;

namespace {

struct Reader {
    std::string_view name, preset, file;
};

constexpr Reader kReaders[] = {
#include "Readers.inc"  // by fuzz/CMakeLists.txt
};

const Reader* reader = nullptr;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char*** argv) {
    const std::string_view path = **argv;
    for (const Reader& each : kReaders) {
        if (path.ends_with("fuzz-" + std::string(each.name))) reader = &each;
    }
    if (reader != nullptr) return 0;
    std::cerr << path << ": no reader has this name\n";
    std::exit(2);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Archive sample = SampleArchive(std::string(reader->preset));
    static const bool written = (TheFolder().WriteArchive(sample), true);
    if (!written || !TheFolder().Write(std::string(reader->file), Text(data, size))) return -1;
    TheFolder().Play("click 1001\nclick 1022\nspin 1026 up\nclick 1034\n");
    return 0;
}
