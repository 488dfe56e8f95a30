// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "records/Evaluation.h"

namespace lumerin {

// What the envelope figures of a cap show, in the units of the figure: along the cap in ft or m.

enum class CapForce { shear, moment };

// The greatest and the least value at a node: the greater and the lesser of the ends that meet there.
struct BandPoint {
    double x = 0.0;
    EndExtreme greatest, least;
};

// Neighbouring elements without a gap between them.
using BandRun = std::vector<BandPoint>;

// An element with its greatest ratio in the class.
struct StripElement {
    double from = 0.0, to = 0.0;
    float ratio = 0.0F;
    int number = 0;
    bool hasRatio = false;
};

// A row of a printed cap table that has a result.
struct DesignMark {
    double x = 0.0, value = 0.0;
    int loadCase = -1;  // from 0
    bool maximum = true;
    std::string place;
};

struct CapPanel {
    std::string className;  // empty where the cases have no classes
    std::vector<BandRun> runs;
    std::vector<StripElement> strip;
    std::vector<DesignMark> marks;
};

struct CapSupport {
    double x = 0.0, width = 0.0;  // 0: the model has no width
    std::string label;            // "Col 1"
};

struct CapBearingPlace {
    double x = 0.0;
    std::string label;  // "Brg 2"
};

struct CapPicture {
    std::vector<CapPanel> panels;  // a class each
    std::vector<CapSupport> supports;
    std::vector<CapBearingPlace> bearings;
    double from = 0.0, to = 0.0;  // the ends of the cap
    bool IsEmpty() const { return panels.empty(); }
};

// `pier` counts from 0. Empty for a substructure without a cap. The evaluation has the needs of the figure.
CapPicture DescribeCap(const Evaluation& evaluation, std::size_t pier, CapForce force);

}  // namespace lumerin
