// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// Whether every force of a family of members, in every case of a substructure, is a finite number; chosen or
// not.
struct FiniteForces {
    bool piles = true, columns = true, extraMembers = true;
    bool pileHeads = true;  // D/C ratio and axial force at the head ends
};

}  // namespace lumerin
