// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "figures/Scale.h"
#include "figures/Svg.h"
#include "records/Evaluation.h"

namespace lumerin {

// What all figures have in common: size, colours, the head with project and cases, axes.

namespace figure {

inline constexpr double kWidth = 960.0;
inline constexpr double kLeft = 84.0, kRight = 24.0;  // of the plots
inline constexpr double kHeadHeight = 76.0;
inline constexpr double kSmall = 11.0, kNormal = 12.0, kTitle = 17.0;  // sizes of texts

// Distinct for colour-blind eyes and in grey: a light band, a dark line, a strong mark.
inline constexpr std::string_view kBand = "#cfe1f2", kLine = "#0b559f", kMark = "#1a1a1a";
inline constexpr std::string_view kOver = "#c0392b", kGrid = "#e3e3e3", kAxis = "#555555", kSoft = "#666666",
                                  kConcrete = "#d9d9d9";

// The name of a project without its folders.
std::string ShortName(const Evaluation& evaluation);
// "substructure 1 of 3 (pier)"
std::string SubstructureText(const Evaluation& evaluation, int substructure);
// "cases 1-26", "14 of 26 cases"
std::string CasesText(const Evaluation& evaluation);
// "case 16 GROUP-VII"; `loadCase` from 0.
std::string CaseText(const Evaluation& evaluation, int loadCase);
std::string NumberText(double value);   // the shortest text
std::string RoundedText(double value);  // a force: no decimals from 100 on, else one or two

// Places texts where no earlier one is.
class LabelPlaces {
  public:
    // False: there is no room, nothing was written. Upright texts alone.
    bool Place(Svg& svg, std::string_view text, Point at, const TextStyle& style);

  private:
    struct Taken {
        double left, right, base, size;
    };
    std::vector<Taken> m_taken;
};

// Writes title and the two lines below it.
void DrawHead(Svg& svg, const Evaluation& evaluation, std::string_view title, int substructure,
              std::string_view more);
// A figure that has nothing to draw: head and sentence.
std::string Sentence(const Evaluation& evaluation, std::string_view title, int substructure,
                     std::string_view sentence);

// Horizontal grid lines with the ticks' texts left of them, between two x.
void DrawYAxis(Svg& svg, const Scale& y, double left, double right, std::string_view label);
// The ticks of an x axis at the height `top`.
void DrawXAxis(Svg& svg, const Scale& x, double top, std::string_view label);

// "kips" or "kip-ft" and the like, in brackets after a word.
std::string WithUnit(std::string_view word, Quantity quantity, const Evaluation& evaluation);

}  // namespace figure

}  // namespace lumerin
