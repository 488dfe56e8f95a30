// SPDX-License-Identifier: MIT
// The record's length (one byte), the numbers of four records (four bytes each), then the file.

#include <array>
#include <cstring>
#include <vector>

#include "fuzz/Playground.h"
#include "results/SeqFile.h"

using namespace lumerin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::array<std::int32_t, 4> records{};
    if (size < 1 + sizeof(records)) return -1;
    std::memcpy(records.data(), data + 1, sizeof(records));
    TheFolder().Write(".dir", Text(data + 1 + sizeof(records), size - 1 - sizeof(records)));
    std::vector<unsigned char> buffer(data[0]);
    CDirFile file;
    file.Open(TheFolder().Base() + ".dir", data[0]);
    for (const std::int32_t record : records) {
        try {
            file.Read(buffer.data(), record);
        } catch (const CFileException&) {
            // A place before the file's start.
        }
    }
    return 0;
}
