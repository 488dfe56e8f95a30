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

// Replaces ratios that are no numbers by 0.0, but for those of extra members. Returns whether all fourteen
// forces are finite now.
bool RepairRatios(ForceKind kind, float* forces);

// Stores a record's words as the element's fourteen forces, signs turned as tables show them.
// Returns whether all of them are finite. In the header because it runs once for every record of a project.
inline bool StoreForceRecord(ForceKind kind, const float* words, float* forces) {
    // End I: FAX, F22, F33, M22, M33, torque, D/C; end J the same.
    forces[0] = words[13];
    forces[1] = -words[1];
    forces[2] = -words[2];
    forces[3] = words[6];
    forces[4] = words[5];
    forces[5] = kind == ForceKind::pile ? -words[15] : words[15];
    forces[6] = words[11];
    forces[7] = words[14];
    forces[8] = words[3];
    forces[9] = words[4];
    forces[10] = -words[8];
    forces[11] = -words[7];
    forces[12] = -words[16];
    forces[13] = words[12];
    // A difference with itself is zero for finite numbers and not a number for all others.
    float sum = 0.0F;
    for (std::size_t i = 0; i < kForcesPerElement; ++i) sum += forces[i] - forces[i];
    if (sum == 0.0F) return true;
    return RepairRatios(kind, forces);
}
