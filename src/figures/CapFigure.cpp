// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>

#include "figures/CapData.h"
#include "figures/FigureList.h"
#include "figures/Frame.h"
#include "figures/Marks.h"
#include "figures/RatioColour.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

using namespace figure;

constexpr double kPanelHeight = 190.0, kPanelGap = 52.0, kStripHeight = 12.0;
constexpr double kSchemeHeight = 96.0, kAxisHeight = 40.0, kLegendHeight = 26.0;

// What the two figures differ in.
struct CapForm {
    CapForce force;
    std::string_view title, word;
    Quantity quantity;
};
constexpr CapForm kShear{CapForce::shear, "Cap shear F22", "F22", Quantity::force};
constexpr CapForm kMoment{CapForce::moment, "Cap moment M33", "M33", Quantity::moment};

// A text that stays inside the plot, and is left out where it would lie on an earlier one of its line.
class LabelLine {
  public:
    LabelLine(Svg& svg, double y) : m_svg(svg), m_y(y) {}
    void Add(double x, const std::string& text) {
        const double half = TextWidth(text, kSmall) / 2.0;
        const double centre = std::clamp(x, kLeft + half, kWidth - kRight - half);
        if (centre - half < m_end + 4.0) return;
        m_svg.Text(text, {centre, m_y}, {kSmall, false, Anchor::middle, kMark, false, true});
        m_end = centre + half;
    }

  private:
    Svg& m_svg;
    double m_y, m_end = 0.0;
};

class CapFigure {
  public:
    CapFigure(const Evaluation& evaluation, const FigureRequest& request, const CapForm& form)
        : m_evaluation(evaluation),
          m_request(request),
          m_form(form),
          m_picture(DescribeCap(evaluation, Index(request.substructure - 1), form.force)),
          m_svg(kWidth, Height(), form.title, Description()),
          m_x(Low(), High(), kLeft, kWidth - kRight, 10, false) {}

    std::string Draw() {
        if (m_picture.IsEmpty()) {
            return Sentence(m_evaluation, m_form.title, m_request.substructure,
                            "This substructure has no cap.");
        }
        m_svg.Rect(0, 0, kWidth, Height(), {"#ffffff", {}, 0, {}});
        DrawHead(m_svg, m_evaluation, m_form.title, m_request.substructure,
                 "Greatest and least value over all chosen cases at each node; D/C limit " +
                     NumberText(m_evaluation.Bounds().ratio));
        FindRange();
        double top = kHeadHeight + 18.0;
        for (const CapPanel& panel : m_picture.panels) {
            DrawPanel(panel, top);
            top += kPanelHeight + kStripHeight + kPanelGap;
        }
        DrawScheme(top - 20.0);
        DrawXAxis(m_svg, m_x, top - 20.0 + kSchemeHeight,
                  WithUnit("location along the cap", Quantity::length, m_evaluation));
        DrawLegend(Height() - 10.0);
        return m_svg.Document();
    }

  private:
    double Height() const {
        return kHeadHeight + 18.0 +
               static_cast<double>(m_picture.panels.size()) * (kPanelHeight + kStripHeight + kPanelGap) +
               kSchemeHeight + kAxisHeight + kLegendHeight;
    }
    std::string Description() const {
        return "The envelope of " + std::string(m_form.word) +
               " along the cap, a panel for each limit class.";
    }
    // A column at the end of the cap has half of its width beyond it.
    double Low() const {
        double low = m_picture.from;
        for (const CapSupport& support : m_picture.supports)
            low = std::min(low, support.x - support.width / 2.0);
        return low - Margin();
    }
    double High() const {
        double high = m_picture.to;
        for (const CapSupport& support : m_picture.supports)
            high = std::max(high, support.x + support.width / 2.0);
        return high + Margin();
    }
    double Margin() const { return (m_picture.to - m_picture.from) * 0.02; }

    void FindRange() {
        for (const CapPanel& panel : m_picture.panels) {
            for (const BandRun& run : panel.runs) {
                for (const BandPoint& point : run) {
                    Widen(point.greatest);
                    Widen(point.least);
                }
            }
        }
    }
    void Widen(const EndExtreme& extreme) {
        if (extreme.loadCase < 0 || !std::isfinite(extreme.value)) return;
        m_least = std::min(m_least, static_cast<double>(extreme.value));
        m_greatest = std::max(m_greatest, static_cast<double>(extreme.value));
    }

    void DrawPanel(const CapPanel& panel, double top) {
        const Scale y(m_least, m_greatest, top + kPanelHeight, top, 6, true);
        DrawYAxis(m_svg, y, kLeft, kWidth - kRight, {});
        m_svg.Text(WithUnit(m_form.word, m_form.quantity, m_evaluation), {18.0, top + kPanelHeight / 2.0},
                   {kNormal, false, Anchor::middle, kAxis, true});
        if (!panel.className.empty()) {
            m_svg.Text(panel.className, {kLeft, top - 7.0}, {kNormal, true, Anchor::start, kMark, false});
        }
        for (const BandRun& run : panel.runs) DrawRun(run, y);
        for (const DesignMark& mark : panel.marks) DrawMark(panel, mark, y);
        DrawPeaks(panel, y);
        DrawStrip(panel, top + kPanelHeight + 22.0);
    }

    void DrawRun(const BandRun& run, const Scale& y) {
        std::vector<Point> upper, lower, area;
        for (const BandPoint& point : run) {
            if (point.greatest.loadCase < 0 || point.least.loadCase < 0) continue;
            upper.push_back({m_x.At(point.x), y.At(point.greatest.value)});
            lower.push_back({m_x.At(point.x), y.At(point.least.value)});
        }
        area = upper;
        area.insert(area.end(), lower.rbegin(), lower.rend());
        if (area.empty()) return;
        m_svg.Polygon(area, {kBand, {}, 0, {}});
        m_svg.Polyline(upper, {{}, kLine, 1.6, {}});
        m_svg.Polyline(lower, {{}, kLine, 1.6, "5 3"});
    }

    // A triangle that points up for a maximum, down for a minimum.
    void DrawMark(const CapPanel& panel, const DesignMark& mark, const Scale& y) {
        if (!std::isfinite(mark.value)) return;
        const double x = m_x.At(mark.x), at = y.At(mark.value), up = mark.maximum ? -1.0 : 1.0;
        m_svg.BeginGroup(mark.place + (mark.maximum ? " max " : " min ") + NumberText(mark.value) + ", " +
                             CaseText(m_evaluation, mark.loadCase),
                         CapMarkName(panel.className, mark.maximum, mark.place));
        const std::array<Point, 3> triangle{{{x, at}, {x - 4.0, at - up * 7.0}, {x + 4.0, at - up * 7.0}}};
        m_svg.Polygon(triangle, {"#ffffff", kMark, 1.0, {}});
        m_svg.EndGroup();
    }

    // The greatest and the least value of the panel, with their cases.
    void DrawPeaks(const CapPanel& panel, const Scale& y) {
        const BandPoint* greatest = nullptr;
        const BandPoint* least = nullptr;
        for (const BandRun& run : panel.runs) {
            for (const BandPoint& point : run) {
                if (point.greatest.loadCase < 0) continue;
                if (!greatest || point.greatest.value > greatest->greatest.value) greatest = &point;
                if (!least || point.least.value < least->least.value) least = &point;
            }
        }
        if (greatest == nullptr) return;
        DrawPeak(greatest->x, greatest->greatest, y, -8.0);
        DrawPeak(least->x, least->least, y, 17.0);
    }
    void DrawPeak(double x, const EndExtreme& extreme, const Scale& y, double shift) {
        const std::string text = RoundedText(extreme.value) + ", " + CaseText(m_evaluation, extreme.loadCase);
        const double half = TextWidth(text, kSmall, true) / 2.0;
        const double at = y.At(extreme.value);
        const double centre = std::clamp(m_x.At(x), kLeft + half, kWidth - kRight - half);
        m_svg.Circle({m_x.At(x), at}, 3.0, {kLine, {}, 0, {}});
        m_svg.Text(text, {centre, at + shift}, {kSmall, true, Anchor::middle, kMark, false, true});
    }

    void DrawStrip(const CapPanel& panel, double top) {
        m_svg.Text("D/C", {kLeft - 6.0, top + 10.0}, {kSmall, false, Anchor::end, kAxis, false});
        const StripElement* worst = nullptr;
        for (const StripElement& element : panel.strip) {
            if (!element.hasRatio) continue;
            const double from = m_x.At(element.from), to = m_x.At(element.to);
            m_svg.BeginGroup("element " + std::to_string(element.number) + ": D/C " +
                             NumberText(static_cast<double>(element.ratio)));
            DrawRatio(m_svg, element.ratio, m_evaluation.Bounds().ratio,
                      {std::min(from, to), top, std::abs(to - from), kStripHeight});
            m_svg.EndGroup();
            if (!worst || element.ratio > worst->ratio) worst = &element;
        }
        if (worst == nullptr) return;
        LabelLine line(m_svg, top + kStripHeight + 11.0);
        line.Add(m_x.At((worst->from + worst->to) / 2.0),
                 "D/C " + RatioLabel(worst->ratio, m_evaluation.Bounds().ratio) + ", element " +
                     std::to_string(worst->number));
    }

    // Cap, supports with their faces and centrelines, bearings, all to the scale of the axis.
    void DrawScheme(double top) {
        const double cap = top + 26.0, capHeight = 14.0, foot = cap + capHeight + 34.0;
        m_svg.Rect(m_x.At(m_picture.from), cap, m_x.At(m_picture.to) - m_x.At(m_picture.from), capHeight,
                   {kConcrete, kAxis, 1.0, {}});
        LabelLine supports(m_svg, foot + 13.0);
        for (const CapSupport& support : m_picture.supports) {
            const double x = m_x.At(support.x);
            if (support.width > 0.0) {
                const double left = m_x.At(support.x - support.width / 2.0);
                const double right = m_x.At(support.x + support.width / 2.0);
                m_svg.Rect(left, cap + capHeight, right - left, foot - cap - capHeight,
                           {kConcrete, kAxis, 1.0, {}});
            }
            m_svg.Line({x, cap - 4.0}, {x, foot}, {{}, kAxis, 1.0, "7 2 2 2"});
            supports.Add(x, support.label);
        }
        LabelLine bearings(m_svg, cap - 12.0);
        for (const CapBearingPlace& bearing : m_picture.bearings) DrawBearing(bearing, cap, bearings);
    }
    void DrawBearing(const CapBearingPlace& bearing, double cap, LabelLine& labels) {
        const bool isOff = bearing.x < m_picture.from || bearing.x > m_picture.to;
        const double x = m_x.At(std::clamp(bearing.x, m_picture.from, m_picture.to));
        const std::array<Point, 3> triangle{{{x, cap}, {x - 5.0, cap - 8.0}, {x + 5.0, cap - 8.0}}};
        m_svg.Polygon(triangle, {isOff ? "#ffffff" : kAxis, kAxis, 1.0, {}});
        labels.Add(x, bearing.label + (isOff ? " (off the cap)" : ""));
    }

    void DrawLegend(double y) {
        double x = kLeft;
        const auto text = [&](std::string_view words) {
            m_svg.Text(words, {x, y}, {kSmall, false, Anchor::start, kAxis, false});
            x += TextWidth(words, kSmall) + 22.0;
        };
        m_svg.Line({x, y - 4.0}, {x + 22.0, y - 4.0}, {{}, kLine, 1.6, {}});
        x += 28.0;
        text("greatest");
        m_svg.Line({x, y - 4.0}, {x + 22.0, y - 4.0}, {{}, kLine, 1.6, "5 3"});
        x += 28.0;
        text("least");
        const std::array<Point, 3> triangle{{{x + 4.0, y - 8.0}, {x, y - 1.0}, {x + 8.0, y - 1.0}}};
        m_svg.Polygon(triangle, {"#ffffff", kMark, 1.0, {}});
        x += 14.0;
        text("design place of the printed table (downwards: least)");
        DrawRatioLegend(m_svg, {x, y}, m_evaluation.Bounds().ratio);
    }

    const Evaluation& m_evaluation;
    const FigureRequest& m_request;
    const CapForm& m_form;
    CapPicture m_picture;
    Svg m_svg;
    Scale m_x;
    double m_least = 0.0, m_greatest = 0.0;  // zero is always on the axis
};

}  // namespace

std::string DrawCapShear(const Evaluation& evaluation, const FigureRequest& request) {
    return CapFigure(evaluation, request, kShear).Draw();
}

std::string DrawCapMoment(const Evaluation& evaluation, const FigureRequest& request) {
    return CapFigure(evaluation, request, kMoment).Draw();
}

}  // namespace lumerin
