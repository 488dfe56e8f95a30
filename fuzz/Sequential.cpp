// SPDX-License-Identifier: MIT
// The first byte is the number of bytes of each read; the rest is the file.

#include <vector>

#include "fuzz/Playground.h"
#include "results/SeqFile.h"

using namespace lumerin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return -1;
    TheFolder().Write(".seq", Text(data + 1, size - 1));
    std::vector<unsigned char> buffer(data[0]);
    try {
        CSeqFile file(TheFolder().Base() + ".seq");
        while (file.Read(buffer.data(), static_cast<unsigned>(buffer.size())) > 0) {
        }
        file.ReadRecord(buffer.data(), static_cast<unsigned>(buffer.size()), "last");
    } catch (const CFileException&) {
        // A file that ends or lacks its mark.
    }
    return 0;
}
