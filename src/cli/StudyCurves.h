// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace lumerin {

// The embedment study as a picture and as an answer.

// A trial of the study. Its value is in the unit of the quantity.
struct StudyPoint {
    int trial = 0;  // from 1
    bool isComplete = false;
    double embedment = 0.0, value = 0.0;
    int loadCase = 0;  // from 1, where the value is; 0: none
    int pile = 0;
};

struct StudyCurve {
    std::string name;  // drawn beside the curve where there are several
    std::vector<StudyPoint> points;
};

// An axis whose ends and ticks are whole multiples of 1, 2 or 5 times a power of ten. It holds all values.
struct RoundAxis {
    double min = 0.0, max = 1.0;
    int ticks = 1;     // equal parts
    int decimals = 0;  // of the labels
};
RoundAxis RoundAxisFor(double least, double greatest);

struct StudyLabels {
    std::string title, x, y;  // in the code page
};
// A scalable picture of the curves. Its axes fit the finite values of the complete trials; a trial without
// one is a gap in the line.
std::string StudyPicture(const StudyLabels& labels, std::span<const StudyCurve> curves);

// How short the piles may be for a value that is not to be exceeded.
struct EmbedmentAnswer {
    // The shortest tried embedment that holds, and with which every longer one holds too.
    std::optional<StudyPoint> shortest;
    // Where the straight line to the next shorter trial, which does not hold, crosses the limit.
    std::optional<double> interpolated;
    std::optional<StudyPoint> tooShort;  // that trial
    std::vector<int> incomplete;         // numbers of trials without a finite value
};
// A value holds when its size is at most the limit.
EmbedmentAnswer FindEmbedment(std::span<const StudyPoint> points, double limit);

}  // namespace lumerin
