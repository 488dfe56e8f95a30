// SPDX-License-Identifier: MIT
// A whole project as an archive of its files: loaded, and every table made in every format, or every table of
// records, the verdict and the findings.

#include <random>

#include "fuzz/Playground.h"

using namespace lumerin;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

constexpr std::size_t kRoomToGrow = 64;

// A number of the size of a count: small, a limit of its type, or near one.
std::uint32_t Count(std::minstd_rand& random) {
    static constexpr std::uint32_t kCounts[] = {
        0,   1,   2,     3,     4,          5,          7,          8,          9,         100,
        255, 256, 32767, 65536, 0x7FFFFFFF, 0x7FFFFFFE, 0x80000000, 0xFFFFFFFF, 0xFFFFFFFE};
    return kCounts[random() % std::size(kCounts)];
}

// Changes one file and keeps the archive's own lengths correct.
void ChangeFile(std::string& bytes, std::minstd_rand& random, std::size_t room) {
    if (random() % 2 == 0 && bytes.size() >= 5) {
        const std::uint32_t count = Count(random);
        // Framed records begin after the mark and a length byte, so that counts are at any alignment.
        const std::size_t at = random() % (bytes.size() - 4);
        for (std::size_t i = 0; i < 4; ++i) bytes[at + i] = static_cast<char>(count >> (8 * i));
        return;
    }
    const std::size_t size = bytes.size();
    bytes.resize(size + std::min(room, kRoomToGrow));
    bytes.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(bytes.data()), size, bytes.size()));
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
    std::minstd_rand random(seed);
    Archive archive = Unpack(Bytes(data, size));
    if (archive.files.empty() || random() % 50 == 0) return LLVMFuzzerMutate(data, size, maxSize);
    if (random() % 8 == 0) archive.choice = static_cast<std::uint8_t>(random());
    const std::size_t at = random() % archive.files.size();
    if (random() % 40 == 0) {
        archive.files.erase(archive.files.begin() + static_cast<std::ptrdiff_t>(at));
    } else {
        ChangeFile(archive.files[at].second, random, maxSize > size ? maxSize - size : 0);
    }
    const std::string bytes = Pack(archive);
    if (bytes.size() > maxSize) return LLVMFuzzerMutate(data, size, maxSize);
    std::copy(bytes.begin(), bytes.end(), data);
    return bytes.size();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Archive archive = Unpack(Bytes(data, size));
    TheFolder().WriteArchive(archive);
#ifdef FUZZ_RECORDS
    TheFolder().EvaluateTables();
#else
    TheFolder().Play(EveryTableScript(archive.choice));
#endif
    return 0;
}
