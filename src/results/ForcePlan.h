#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/Pier.h"
#include "results/CollectData.h"

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
std::vector<CForceRead> PlanForceReads(const CPier& pier, const CPierReadState& state, int firstType);

// Stores a record's words as the element's fourteen forces, signs turned as tables show them.
// Returns whether all of them are finite.
bool StoreForceRecord(ForceKind kind, const float* words, float* forces);
