// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "model/Pier.h"
#include "results/PierModel.h"

namespace lumerin {

// Words of a record of the member force file, 32-bit floats each.
inline constexpr int kForceRecordWords = 17;
inline constexpr unsigned kForceRecordBytes = kForceRecordWords * 4;

// Pile elements turn the sign of the torque at I, extra members keep their ratios untested.
enum class ForceKind : std::uint8_t { pile, frame, extraMember };

// Which record of a case's block feeds which element. The same for every case.
struct CForceRead {
    long long record;  // from 1 inside the block
    int element;       // of the substructure's element list
    ForceKind kind;
};

// The reads of one load case in the order in which they are done: piles from the head, the cap from left to
// right, the columns, the extra members. `firstType` is the first substructure's structure type.
std::vector<CForceRead> PlanForceReads(const CPier& pier, const PierModel& model, StructureType firstType);

// Replaces ratios that are no numbers by 0.0, but for those of extra members. Returns whether all fourteen
// forces are finite now.
bool RepairRatios(ForceKind kind, float* forces);

// Four 32-bit words side by side, and the same bits as floats.
using WordQuad = std::uint32_t __attribute__((vector_size(16)));
using FloatQuad = float __attribute__((vector_size(16)));

inline WordQuad LoadQuad(const float* from) {
    WordQuad quad;
    std::memcpy(&quad, from, sizeof quad);
    return quad;
}

inline void StoreQuad(float* to, WordQuad quad) {
    std::memcpy(to, &quad, sizeof quad);
}

// A difference with itself is zero for finite numbers and not a number for all others.
inline FloatQuad ZeroIfFinite(WordQuad quad) {
    const auto values = reinterpret_cast<FloatQuad>(quad);
    return values - values;
}

// Stores a record's words as the element's fourteen forces, signs turned as tables show them:
//     forces   0    1   2  3  4    5   6   7  8  9  10  11   12  13
//     words   13   -1  -2  6  5  +-15 11  14  3  4  -8  -7  -16  12
// End I: FAX, F22, F33, M22, M33, torque, D/C; end J the same. Returns whether all of them are finite. In the
// header, and four words at a time, because it runs once for every record of a project.
inline bool StoreForceRecord(ForceKind kind, const float* words, float* forces) {
    constexpr std::uint32_t kTurn = 0x80000000U;  // the bit of a float's sign
    const WordQuad at1 = LoadQuad(words + 1), at5 = LoadQuad(words + 5), at11 = LoadQuad(words + 11),
                   at13 = LoadQuad(words + 13);
    const WordQuad f13f1 = __builtin_shufflevector(at13, at1, 0, 4, 5, 5);
    const WordQuad f6f5 = __builtin_shufflevector(at5, at13, 1, 0, 6, 6);
    const WordQuad f11f14 = __builtin_shufflevector(at11, at11, 0, 3, 0, 3);
    const WordQuad f8f7 = __builtin_shufflevector(at5, at5, 3, 2, 3, 2);
    const WordQuad f16f12 = __builtin_shufflevector(at13, at11, 3, 3, 5, 5);
    const std::uint32_t pileTorque = kind == ForceKind::pile ? kTurn : 0U;
    StoreQuad(forces, __builtin_shufflevector(f13f1, f6f5, 0, 1, 2, 4) ^ WordQuad{0, kTurn, kTurn, 0});
    StoreQuad(forces + 4, __builtin_shufflevector(f6f5, f11f14, 1, 2, 4, 5) ^ WordQuad{0, pileTorque, 0, 0});
    StoreQuad(forces + 8, __builtin_shufflevector(at1, f8f7, 2, 3, 4, 5) ^ WordQuad{0, 0, kTurn, kTurn});
    StoreQuad(forces + 10,
              __builtin_shufflevector(f8f7, f16f12, 0, 1, 4, 6) ^ WordQuad{kTurn, kTurn, kTurn, 0});
    const FloatQuad lanes =
        (ZeroIfFinite(at1) + ZeroIfFinite(at5)) + (ZeroIfFinite(at11) + ZeroIfFinite(at13));
    if ((lanes[0] + lanes[1]) + (lanes[2] + lanes[3]) == 0.0F) return true;
    return RepairRatios(kind, forces);
}

}  // namespace lumerin
