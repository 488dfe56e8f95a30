// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "records/Evaluation.h"

namespace lumerin {

// Does it pass? The greatest D/C of each member family, over every element end and all chosen cases.

// An element end with the case of its greatest ratio.
struct EndRatio {
    int substructure = 0;  // from 1
    std::string family;    // "pile", "column", "cap", "extra_member", "other"
    float ratio = 0.0F;    // unrounded
    std::string place;     // in the engineer's words: "Col 1 CL", "pile 5 head", "element 18 end I"
    int element = 0;       // ELEM number
    int node = 0;
    int end = 0;                    // 0 I, 1 J
    int loadCase = 0;               // from 1
    std::string limitState;         // empty without combinations
    std::array<float, 6> forces{};  // FAX, F22, F33, M22, M33, TORQUE of that end in that case
};

// A family of members of a substructure.
struct FamilyVerdict {
    EndRatio worst;
    double limit = 1.0;
    long long ends = 0;      // element ends that were looked at
    long long endsOver = 0;  // ends whose greatest ratio is over the limit
    bool passes = true;
};

// A pile head against a capacity that was given.
struct HeadVerdict {
    int substructure = 0, pile = 0;  // from 1
    bool tension = false;            // else compression
    float force = 0.0F;              // axial, positive in tension
    int loadCase = 0;                // from 1
    std::string limitState;
    double capacity = 0.0;
    bool passes = true;
};

struct Verdict {
    std::vector<FamilyVerdict> families;  // by substructure, then family
    std::vector<HeadVerdict> heads;  // those over a capacity, and the worst of each substructure and sign
    bool passes = true;
    // The family with the greatest ratio; null: no element has a ratio in the chosen cases.
    const FamilyVerdict* Worst() const;
};

// A ratio with three decimals; with all of its digits where the decimals would hide on which side of the
// limit it is.
std::string RatioText(double ratio, double limit);

// The evaluation must have the needs of the table "verdict".
Verdict Judge(const Evaluation& evaluation);
// The `count` greatest ratios of element ends, the greatest first.
std::vector<EndRatio> GreatestRatios(const Evaluation& evaluation, std::size_t count);

}  // namespace lumerin
