// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "compare/Comparison.h"
#include "web/Page.h"

namespace lumerin {

// What changed between two runs, as one web page; several pairs of projects go to it one after the other.

// The envelopes of a cap of both runs.
struct OverlayFigure {
    std::string title;  // "Cap moment M33, substructure 1"
    std::string svg;
};
// What an evaluation must have for them.
TableNeeds OverlayNeeds();
// Those of all substructures that both runs have. Throws CFileException.
std::vector<OverlayFigure> DrawOverlays(const Evaluation& before, const Evaluation& after, UnitSystem units);

struct ComparedPair {
    std::string_view name;
    std::string_view before, after;  // the projects
    std::string_view message;        // in place of a comparison; else empty
    const Comparison* comparison = nullptr;
    const std::vector<OverlayFigure>* figures = nullptr;
};

class ComparePage {
  public:
    // `top`: rows of each list at most; 0: all.
    ComparePage(const std::string& title, std::size_t top, PageOutput output);
    void Add(const ComparedPair& pair);
    void Finish();

  private:
    void AddComparison(const ComparedPair& pair);
    void AddLines(std::string_view head, const std::vector<std::string>& lines);
    void AddResults(const ComparedPair& pair, bool exceeds);
    void AddFigures(const std::vector<OverlayFigure>& figures);
    std::size_t Shown(std::size_t count) const;
    void AddRest(std::size_t count);

    std::size_t m_top;
    PageOutput m_output;
    Html m_html;
    int m_pairs = 0;
};

}  // namespace lumerin
