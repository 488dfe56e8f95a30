// SPDX-License-Identifier: MIT
#pragma once

#include "model/Pier.h"

namespace lumerin {

// Small functions that all cap operations share.

inline bool HasCantilevers(const CPier& pier) {
    return pier.m_nCantilevers > 0;
}

// Only piers and pile bents get cap tables. The cap of a mast can be looked up, but has no tables.
inline bool HasCapTables(const CPier& pier) {
    return pier.m_nStructureType == kTypePier || pier.m_nStructureType == kTypePileBent;
}

// The supports of the cap, from left to right: columns, or the piles of a pile bent. The count from the file,
// at most the number of members that the substructure has.
int CapSupportCount(const CPier& pier);

// x of an entry of the node list; 0.0 where the list has no such entry.
double NodeListX(const CPier& pier, long long position);

// Index of a support's top in the node list; -1 for a support that the cap does not have.
long long SupportPosition(const CPier& pier, int support);

// The first entry of the cap points with exactly that x; -1 if there is none.
int FindCapPoint(const CPier& pier, double x);

}  // namespace lumerin
