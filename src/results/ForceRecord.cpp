// SPDX-License-Identifier: MIT
#include "results/ForceRecord.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "framework/Index.h"
#include "model/Element.h"

namespace lumerin {

namespace {

constexpr std::uint32_t kTurn = 0x80000000U;  // the bit of a float's sign

// Replaces ratios that are not numbers.
void RepairRatios(ForceKind kind, float* forces) {
    for (const std::size_t ratio :
         {std::size_t{kDemandCapacity}, std::size_t{kComponents + kDemandCapacity}}) {
        if (kind != ForceKind::extraMember && !std::isfinite(forces[ratio])) forces[ratio] = 0.0F;
    }
}

// The word of each force. Only the sign bit is turned, so that a value that is not a number keeps its bits.
struct ForceWord {
    std::size_t word;
    std::uint32_t turn;
};
constexpr std::size_t kTorqueAtI = 5;
constexpr std::array<ForceWord, kForcesPerElement> kForceWords{{{13, 0},
                                                                {1, kTurn},
                                                                {2, kTurn},
                                                                {6, 0},
                                                                {5, 0},
                                                                {15, 0},
                                                                {11, 0},
                                                                {14, 0},
                                                                {3, 0},
                                                                {4, 0},
                                                                {8, kTurn},
                                                                {7, kTurn},
                                                                {16, kTurn},
                                                                {12, 0}}};

bool StoreWordByWord(ForceKind kind, const float* words, float* forces) {
    for (std::size_t i = 0; i < kForceWords.size(); ++i) {
        std::uint32_t bits;
        std::memcpy(&bits, words + kForceWords[i].word, sizeof bits);
        bits ^= kForceWords[i].turn;
        if (i == kTorqueAtI && kind == ForceKind::pile) bits ^= kTurn;
        std::memcpy(forces + i, &bits, sizeof bits);
    }
    const bool finite =
        std::all_of(forces, forces + kForcesPerElement, [](float force) { return std::isfinite(force); });
    if (!finite) RepairRatios(kind, forces);
    return finite;
}

template <typename Store>
std::size_t StoreRun(std::span<const ForceTarget> targets, const float* words, float* forces, Store store) {
    for (std::size_t i = 0; i < targets.size(); ++i, words += kForceRecordWords) {
        if (targets[i].element < 0) continue;
        float* to = forces + Index(targets[i].element) * kForcesPerElement;
        if (!store(targets[i].kind, words, to)) return i;
    }
    return targets.size();
}

#ifdef __GNUC__

// Four 32-bit words side by side, and the same bits as floats.
using WordQuad = std::uint32_t __attribute__((vector_size(16)));
using FloatQuad = float __attribute__((vector_size(16)));

WordQuad LoadQuad(const float* from) {
    WordQuad quad;
    std::memcpy(&quad, from, sizeof quad);
    return quad;
}

void StoreQuad(float* to, WordQuad quad) {
    std::memcpy(to, &quad, sizeof quad);
}

// A difference with itself is zero for finite numbers and not a number for all others.
FloatQuad ZeroIfFinite(WordQuad quad) {
    const auto values = reinterpret_cast<FloatQuad>(quad);
    return values - values;
}

// Four words at a time, because it runs once for every record of a project.
bool StoreInQuads(ForceKind kind, const float* words, float* forces) {
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
    RepairRatios(kind, forces);
    return false;
}

#else

bool StoreInQuads(ForceKind kind, const float* words, float* forces) {
    return StoreWordByWord(kind, words, forces);
}

#endif

}  // namespace

bool StoreForceRecord(ForceKind kind, const float* words, float* forces) {
    return StoreInQuads(kind, words, forces);
}

std::size_t StoreForceRecords(std::span<const ForceTarget> targets, const float* words, float* forces) {
    return StoreRun(targets, words, forces, StoreInQuads);
}

std::size_t StoreForceRecordsWordByWord(std::span<const ForceTarget> targets, const float* words,
                                        float* forces) {
    return StoreRun(targets, words, forces, StoreWordByWord);
}

}  // namespace lumerin
