// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace lumerin {

// Words of a record of the member force file, 32-bit floats each.
inline constexpr int kForceRecordWords = 17;
inline constexpr unsigned kForceRecordBytes = kForceRecordWords * 4;

// Pile elements turn the sign of the torque at I, extra members keep their ratios untested.
enum class ForceKind : std::uint8_t { pile, frame, extraMember };

// The element of a record. Element -1: none, the record is skipped.
struct ForceTarget {
    int element = -1;
    ForceKind kind = ForceKind::pile;
};

// Stores a record's words as the element's fourteen forces, signs turned as tables show them:
//     forces   0    1   2  3  4    5   6   7  8  9  10  11   12  13
//     words   13   -1  -2  6  5  +-15 11  14  3  4  -8  -7  -16  12
// End I: FAX, F22, F33, M22, M33, torque, D/C; end J the same. Ratios that are not numbers become 0.0, except
// those of extra members. Returns whether all fourteen are finite in the record.
inline constexpr std::size_t kRatioWordAtI = 11, kRatioWordAtJ = 12;
bool StoreForceRecord(ForceKind kind, const float* words, float* forces);

// Stores consecutive records, each in the forces of its target, which are at `forces` by element. Ends after
// the first record whose forces are not all finite in it and returns its place; all are finite: the count of
// targets.
std::size_t StoreForceRecords(std::span<const ForceTarget> targets, const float* words, float* forces);

// The same, word by word. Compilers without vectors use only this function; the results have the same bits.
std::size_t StoreForceRecordsWordByWord(std::span<const ForceTarget> targets, const float* words,
                                        float* forces);

}  // namespace lumerin
