// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "figures/Svg.h"
#include "records/Evaluation.h"

namespace lumerin {

// What the elevation of a substructure shows: its frame in the x-z plane, in ft or m. x is the location along
// the cap that the cap tables print. z is that of the model, so that it falls towards the cap in a model
// whose z points down.

// An element, or the stub of a pile, with its greatest ratio over both ends and all classes.
struct ElevationBar {
    MemberKind kind = MemberKind::other;
    int member = 0;  // from 1; 0: of no member
    int number = 0;  // ELEM; of a pile stub that of its worst element
    int nodeI = 0, nodeJ = 0;
    Point from, to;  // x and z; equal for a pile, whose nodes below its head have no coordinates
    EndExtreme ratio;
    std::string place;  // of the ratio
    bool masked = false;
};

struct ElevationNode {
    int number = 0;
    Point at;
};

struct ElevationPicture {
    std::vector<ElevationBar> frame;  // in the order of the element table, members first
    std::vector<ElevationBar> piles;  // one each
    std::vector<ElevationNode> nodes;
    bool zFalls = false;      // from the foot of a column to the cap
    bool hasColumns = false;  // that show it
    int withoutPlace = 0;     // elements whose nodes the model does not list
    // The element with the greatest ratio; null: none has one.
    const ElevationBar* Worst() const;
    bool IsEmpty() const { return frame.empty() && piles.empty(); }
};

// `pier` counts from 0.
ElevationPicture DescribeElevation(const Evaluation& evaluation, std::size_t pier);

}  // namespace lumerin
