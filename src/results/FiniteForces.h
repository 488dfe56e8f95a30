// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// Values of a kind among the forces of a substructure: how many, and the first of them in the order of cases
// and records.
struct ForceFault {
    long long count = 0;
    int loadCase = -1;  // from 0
    int element = -1;   // as in the spans that a pass gives
    int end = 0;        // ElementEnd
    int component = 0;  // ForceComponent
};

// What a pass over all cases of a substructure found; chosen or not.
struct FiniteForces {
    // Whether every force of a family of members is a finite number.
    bool piles = true, columns = true, extraMembers = true;
    bool pileHeads = true;  // D/C ratio and axial force at the head ends

    bool hasRatio = false;  // a D/C ratio of any element is not 0

    ForceFault notFinite;       // forces that are not finite, wherever they are
    ForceFault replacedRatios;  // ratios that are not finite in the file; 0.0 takes their place
};

}  // namespace lumerin
