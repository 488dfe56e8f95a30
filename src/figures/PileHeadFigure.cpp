// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "figures/FigureList.h"
#include "figures/Frame.h"
#include "figures/Marks.h"
#include "figures/RatioColour.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

using namespace figure;

constexpr std::string_view kHeading = "Axial forces at the pile heads";
constexpr double kPlotHeight = 300.0, kStripHeight = 16.0;

struct Head {
    int pile = 0;  // from 1
    EndExtreme greatest, least;
    EndExtreme ratio;  // of the head's end
};

std::vector<Head> HeadsOf(const Evaluation& evaluation, std::size_t p) {
    const CPier& pier = evaluation.Data().m_Piers[p];
    const ElementResults& results = evaluation.Elements()[p];
    std::vector<Head> heads;
    for (std::size_t pile = 0; pile < pier.m_Piles.size(); ++pile) {
        if (results.greatestAxial[pile].loadCase < 0) continue;
        heads.push_back({static_cast<int>(pile) + 1, results.greatestAxial[pile], results.leastAxial[pile],
                         results.GreatestRatio(pier.m_Piles[pile].m_nFirstElement, kEndJ)});
    }
    return heads;
}

class PileHeadFigure {
  public:
    PileHeadFigure(const Evaluation& evaluation, const FigureRequest& request)
        : m_evaluation(evaluation),
          m_request(request),
          m_heads(HeadsOf(evaluation, Index(request.substructure - 1))),
          m_svg(kWidth, kTop + kPlotHeight + 110.0, kHeading,
                "The least and the greatest axial force of each pile head over all chosen cases."),
          m_y(Least(), Greatest(), kTop + kPlotHeight, kTop, 8, true) {}

    std::string Draw() {
        if (m_heads.empty()) {
            return Sentence(m_evaluation, kHeading, m_request.substructure,
                            "This substructure has no piles.");
        }
        m_svg.Rect(0, 0, m_svg.Width(), m_svg.Height(), {"#ffffff", {}, 0, {}});
        DrawHead(m_svg, m_evaluation, kHeading, m_request.substructure,
                 "Least and greatest axial force over all chosen cases, tension positive; D/C limit " +
                     NumberText(m_evaluation.Bounds().ratio));
        DrawYAxis(m_svg, m_y, kLeft, kWidth - kRight, WithUnit("axial force", Quantity::force, m_evaluation));
        for (std::size_t i = 0; i < m_heads.size(); ++i) DrawPile(i);
        const Limits& limits = m_evaluation.Bounds();
        if (limits.pileCompression) DrawCapacity(-*limits.pileCompression, "capacity in compression ");
        if (limits.pileTension) DrawCapacity(*limits.pileTension, "capacity in tension ");
        DrawPeaks();
        const double base = kTop + kPlotHeight;
        m_svg.Text("D/C", {kLeft - 6.0, base + 39.0}, {kSmall, false, Anchor::end, kAxis, false});
        m_svg.Text("pile", {(kLeft + kWidth - kRight) / 2.0, base + 76.0},
                   {kNormal, false, Anchor::middle, kAxis, false});
        DrawRatioLegend(m_svg, {kLeft, base + 98.0}, limits.ratio);
        return m_svg.Document();
    }

  private:
    static constexpr double kTop = kHeadHeight + 10.0;

    // Zero and the capacities are on the axis.
    double Greatest() const {
        double greatest = m_evaluation.Bounds().pileTension.value_or(0.0);
        for (const Head& head : m_heads) greatest = std::max(greatest, Finite(head.greatest));
        return greatest;
    }
    double Least() const {
        double least = -m_evaluation.Bounds().pileCompression.value_or(0.0);
        for (const Head& head : m_heads) least = std::min(least, Finite(head.least));
        return least;
    }
    static double Finite(const EndExtreme& extreme) {
        return std::isfinite(extreme.value) ? static_cast<double>(extreme.value) : 0.0;
    }

    double Step() const { return (kWidth - kRight - kLeft) / static_cast<double>(m_heads.size()); }
    double Middle(std::size_t i) const { return kLeft + (static_cast<double>(i) + 0.5) * Step(); }

    void DrawPile(std::size_t i) {
        const Head& head = m_heads[i];
        const double width = std::clamp(Step() * 0.5, 1.0, 26.0), left = Middle(i) - width / 2.0;
        const double top = m_y.At(Finite(head.greatest)), bottom = m_y.At(Finite(head.least));
        const std::string number = std::to_string(head.pile);
        m_svg.BeginGroup("pile " + number + ": " + NumberText(Finite(head.least)) + " (" +
                             CaseText(m_evaluation, head.least.loadCase) + ") to " +
                             NumberText(Finite(head.greatest)) + " (" +
                             CaseText(m_evaluation, head.greatest.loadCase) + ")",
                         MemberMarkName("pile " + number));
        m_svg.Rect(left, top, width, std::max(bottom - top, 1.0), {kBand, kLine, 1.0, {}});
        m_svg.EndGroup();
        const double base = kTop + kPlotHeight;
        if (head.ratio.loadCase >= 0) {
            m_svg.BeginGroup("pile " + number + " head: D/C " +
                             NumberText(static_cast<double>(head.ratio.value)) + ", " +
                             CaseText(m_evaluation, head.ratio.loadCase));
            DrawRatio(m_svg, head.ratio.value, m_evaluation.Bounds().ratio,
                      {left, base + 27.0, width, kStripHeight});
            m_svg.EndGroup();
        }
        // Every pile has its number as long as there is room for it.
        const double room = TextWidth(std::to_string(m_heads.back().pile), kSmall) + 4.0;
        const auto every = static_cast<std::size_t>(std::max(std::ceil(room / Step()), 1.0));
        if (i % every == 0) {
            m_svg.Text(number, {Middle(i), base + 58.0}, {kSmall, false, Anchor::middle, kMark, false});
        }
    }

    void DrawCapacity(double force, std::string_view words) {
        const double at = m_y.At(force);
        m_svg.Line({kLeft, at}, {kWidth - kRight, at}, {{}, kOver, 1.4, "8 4"});
        m_svg.Text(std::string(words) + RoundedText(std::abs(force)), {kWidth - kRight, at - 4.0},
                   {kSmall, true, Anchor::end, kOver, false, true});
    }

    void DrawPeaks() {
        const auto greatest =
            std::ranges::max_element(m_heads, {}, [](const Head& head) { return Finite(head.greatest); });
        const auto least =
            std::ranges::min_element(m_heads, {}, [](const Head& head) { return Finite(head.least); });
        if (Finite(greatest->greatest) > 0.0) {
            DrawPeak(static_cast<std::size_t>(greatest - m_heads.begin()), greatest->greatest, -6.0);
        }
        DrawPeak(static_cast<std::size_t>(least - m_heads.begin()), least->least, 15.0);
    }
    void DrawPeak(std::size_t i, const EndExtreme& extreme, double shift) {
        const std::string text =
            RoundedText(Finite(extreme)) + ", " + CaseText(m_evaluation, extreme.loadCase);
        const double half = TextWidth(text, kSmall, true) / 2.0;
        m_svg.Text(
            text,
            {std::clamp(Middle(i), kLeft + half, kWidth - kRight - half), m_y.At(Finite(extreme)) + shift},
            {kSmall, true, Anchor::middle, kMark, false, true});
    }

    const Evaluation& m_evaluation;
    const FigureRequest& m_request;
    std::vector<Head> m_heads;
    Svg m_svg;
    Scale m_y;
};

}  // namespace

std::string DrawPileHeads(const Evaluation& evaluation, const FigureRequest& request) {
    return PileHeadFigure(evaluation, request).Draw();
}

}  // namespace lumerin
