// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "embedment/EmbedmentResults.h"

namespace lumerin {

// The embedment study as curves, as a picture and as an answer.

// The cases that an envelope goes over, from 0.
struct StudyCases {
    int first = 0;  // -1: none
    std::function<bool(int loadCase)> takesPart;
};

// The result of an envelope search at one trial.
struct CEnvelopePoint {
    int nQuantity = 0, nTrial = 0;
    int nCase = -1;  // from 0; -1: no case is selected
    double dPile = 0.0, dEmbedment = 0.0, dValue = 0.0;
};
// The case with the greatest (mode 0) or least (mode 1) value of a trial (from 0); of equal values the
// earlier case.
CEnvelopePoint FindEnvelopePoint(const CEmbedmentResults& results, const StudyCases& cases, int trial,
                                 int quantity, int mode);

// The words of a quantity; a number outside the list counts as its nearer end.
struct StudyWords {
    const char* heading;
    const char* unitUs;
    const char* unitSi;
};
const StudyWords& StudyWordsOf(int quantity);
// "Load Comb 3 - Embedment vs Max Axial Force"
std::string StudyTitle(bool combinations, int number, int quantity);
// "Max Axial Force (kips)"; `units` 0 US, anything else SI.
std::string StudyAxisLabel(int quantity, int units);

// What of a study is shown.
struct StudyView {
    int quantity = kLateral;
    int loadCase = 1;      // from 1
    int envelope = -1;     // 0 greatest, 1 least; -1: the single case
    bool hasCase = false;  // the case is shown beside the envelope

    // By curve, whether it is the envelope.
    std::vector<bool> Curves() const;
};
// "Max Envelope" or "Load Comb 3".
std::string StudyCurveName(const StudyView& view, bool isEnvelope, bool combinations);

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

// The envelope or the single case of a view.
StudyCurve StudyCurveOf(const CEmbedmentResults& results, const StudyCases& cases, const StudyView& view,
                        bool isEnvelope, bool combinations);
std::vector<StudyCurve> StudyCurvesOf(const CEmbedmentResults& results, const StudyCases& cases,
                                      const StudyView& view, bool combinations);
// The numbers of a curve's trials without a value, "5, 8"; empty: none.
std::string TrialsWithoutValue(const StudyCurve& curve);

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
StudyLabels StudyLabelsOf(const StudyView& view, bool combinations, int units);
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
