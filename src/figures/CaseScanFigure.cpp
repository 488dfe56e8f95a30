// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "figures/CaseScan.h"
#include "figures/FigureList.h"
#include "figures/Frame.h"
#include "figures/RatioColour.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

using namespace figure;

constexpr std::string_view kHeading = "One element in all cases";
constexpr double kTop = kHeadHeight + 40.0, kPanelHeight = 84.0, kPanelGap = 30.0;
constexpr double kClassGap = 26.0;
constexpr double kLeastStem = 3.0;         // pixels a case that a stem needs
constexpr std::size_t kMostPoints = 2000;  // more cases than these: least and greatest a pixel

struct Panel {
    ForceComponent component;
    std::string_view name;
    Quantity quantity;
};
constexpr std::array<Panel, kComponents> kPanels{{
    {kDemandCapacity, "D/C", Quantity::none},
    {kAxial, "FAX", Quantity::force},
    {kF22, "F22", Quantity::force},
    {kF33, "F33", Quantity::force},
    {kM22, "M22", Quantity::moment},
    {kM33, "M33", Quantity::moment},
    {kTorque, "TORQUE", Quantity::moment},
}};

bool HasValue(const ScannedCase& scanned, const Panel& panel) {
    return scanned.isThere && std::isfinite(scanned.values[Index(panel.component)]);
}
double ValueOf(const ScannedCase& scanned, const Panel& panel) {
    return static_cast<double>(scanned.values[Index(panel.component)]);
}

class CaseScanFigure {
  public:
    CaseScanFigure(const Evaluation& evaluation, const FigureRequest& request, const CaseScan& scan)
        : m_evaluation(evaluation),
          m_request(request),
          m_scan(scan),
          m_svg(kWidth, kTop + kPanels.size() * (kPanelHeight + kPanelGap) + 46.0, kHeading,
                "D/C and forces of one element end over all chosen cases, the limit classes side by side."),
          m_limit(evaluation.Bounds().ratio) {
        for (const ScannedClass& here : scan.classes) m_cases += here.cases.size();
        const double gaps = kClassGap * static_cast<double>(scan.classes.size() - 1);
        m_step = (kWidth - kRight - kLeft - gaps) / static_cast<double>(std::max<std::size_t>(m_cases, 1));
    }

    std::string Draw() {
        m_svg.Rect(0, 0, m_svg.Width(), m_svg.Height(), {"#ffffff", {}, 0, {}});
        const std::string element = "Element " + std::to_string(m_scan.identity.number) + " end " +
                                    (m_scan.end == kEndI ? "I" : "J") + " (" + m_scan.place + ")";
        DrawHead(m_svg, m_evaluation, kHeading, m_request.substructure,
                 element + "; D/C limit " + NumberText(m_limit) +
                     "; rings: the greatest D/C, the greatest size of each force" + MissingText());
        double top = kTop;
        for (const Panel& panel : kPanels) {
            DrawPanel(panel, top);
            top += kPanelHeight + kPanelGap;
        }
        DrawCases(top - kPanelGap);
        return m_svg.Document();
    }

  private:
    std::string MissingText() const {
        std::size_t missing = 0;
        for (const ScannedClass& here : m_scan.classes) {
            missing += Index(static_cast<int>(std::ranges::count(here.cases, false, &ScannedCase::isThere)));
        }
        return missing == 0 ? "" : "; " + std::to_string(missing) + " cases have no record";
    }

    // The middle of case `i` of a class that starts at `left`.
    double X(double left, std::size_t i) const { return left + (static_cast<double>(i) + 0.5) * m_step; }

    template <class Take>
    void EachClass(Take take) const {
        double left = kLeft;
        for (const ScannedClass& here : m_scan.classes) {
            const double right = left + static_cast<double>(here.cases.size()) * m_step;
            take(here, left, right);
            left = right + kClassGap;
        }
    }

    Scale AxisOf(const Panel& panel, double top) const {
        double least = 0.0, greatest = panel.component == kDemandCapacity ? m_limit : 0.0;
        for (const ScannedClass& here : m_scan.classes) {
            for (const ScannedCase& scanned : here.cases) {
                if (!HasValue(scanned, panel)) continue;
                least = std::min(least, ValueOf(scanned, panel));
                greatest = std::max(greatest, ValueOf(scanned, panel));
            }
        }
        return {least, greatest, top + kPanelHeight, top, 4, true};
    }

    void DrawPanel(const Panel& panel, double top) {
        const Scale y = AxisOf(panel, top);
        DrawYAxis(m_svg, y, kLeft, kWidth - kRight, {});
        const bool isRatio = panel.component == kDemandCapacity;
        m_svg.Text(isRatio ? std::string(panel.name) : WithUnit(panel.name, panel.quantity, m_evaluation),
                   {kLeft, top - 7.0}, {kNormal, true, Anchor::start, kMark, false});
        EachClass([&](const ScannedClass& here, double left, double) {
            if (m_cases > kMostPoints) {
                DrawBand(panel, here, left, y);
            } else if (m_step >= kLeastStem) {
                DrawStems(panel, here, left, y);
            } else {
                DrawLine(panel, here, left, y);
            }
        });
        if (isRatio) {
            m_svg.Line({kLeft, y.At(m_limit)}, {kWidth - kRight, y.At(m_limit)}, {{}, kMark, 1.2, "6 3"});
        }
        DrawPeak(panel, y, top);
    }

    bool IsOver(const Panel& panel, double value) const {
        return panel.component == kDemandCapacity && value > m_limit;
    }

    // A stem and a mark for each case; those over the limit are squares.
    void DrawStems(const Panel& panel, const ScannedClass& here, double left, const Scale& y) {
        for (std::size_t i = 0; i < here.cases.size(); ++i) {
            const ScannedCase& scanned = here.cases[i];
            if (!HasValue(scanned, panel)) continue;
            const double value = ValueOf(scanned, panel), x = X(left, i), at = y.At(value);
            const bool isOver = IsOver(panel, value);
            const std::string_view colour = isOver ? kOver : kLine;
            m_svg.BeginGroup(CaseText(m_evaluation, scanned.loadCase) + ": " + std::string(panel.name) + " " +
                             NumberText(value));
            m_svg.Line({x, y.At(0.0)}, {x, at}, {{}, colour, std::min(m_step * 0.4, 2.0), {}});
            const double radius = std::min(m_step * 0.35, 3.0);
            if (isOver) {
                m_svg.Rect(x - radius, at - radius, 2.0 * radius, 2.0 * radius, {colour, kMark, 0.8, {}});
            } else {
                m_svg.Circle({x, at}, radius, {colour, {}, 0, {}});
            }
            m_svg.EndGroup();
        }
    }

    void DrawLine(const Panel& panel, const ScannedClass& here, double left, const Scale& y) {
        std::vector<Point> run;
        const auto end = [&] {
            if (!run.empty()) m_svg.Polyline(run, {{}, kLine, 1.0, {}});
            run.clear();
        };
        for (std::size_t i = 0; i < here.cases.size(); ++i) {
            if (HasValue(here.cases[i], panel)) {
                run.push_back({X(left, i), y.At(ValueOf(here.cases[i], panel))});
            } else {
                end();
            }
        }
        end();
    }

    // The least and the greatest of the cases that share a column of pixels.
    void DrawBand(const Panel& panel, const ScannedClass& here, double left, const Scale& y) {
        for (std::size_t i = 0; i < here.cases.size();) {
            const double column = std::floor(X(left, i));
            double least = 0.0, greatest = 0.0;
            bool any = false;
            for (; i < here.cases.size() && std::floor(X(left, i)) == column; ++i) {
                if (!HasValue(here.cases[i], panel)) continue;
                const double value = ValueOf(here.cases[i], panel);
                least = any ? std::min(least, value) : value;
                greatest = any ? std::max(greatest, value) : value;
                any = true;
            }
            if (!any) continue;
            const double upper = y.At(greatest), lower = y.At(least);
            m_svg.Rect(column, upper, 1.0, std::max(lower - upper, 1.0),
                       {IsOver(panel, greatest) ? kOver : kLine, {}, 0, {}});
        }
    }

    // The greatest ratio, or the force with the greatest size.
    void DrawPeak(const Panel& panel, const Scale& y, double top) {
        const ScannedCase* peak = nullptr;
        double x = 0.0;
        EachClass([&](const ScannedClass& here, double left, double) {
            for (std::size_t i = 0; i < here.cases.size(); ++i) {
                if (!HasValue(here.cases[i], panel)) continue;
                const auto size = [&](const ScannedCase& scanned) {
                    const double value = ValueOf(scanned, panel);
                    return panel.component == kDemandCapacity ? value : std::abs(value);
                };
                if (peak != nullptr && size(here.cases[i]) <= size(*peak)) continue;
                peak = &here.cases[i];
                x = X(left, i);
            }
        });
        if (peak == nullptr) {
            m_svg.Text("no values", {kWidth - kRight, top - 7.0}, {kSmall, false, Anchor::end, kSoft, false});
            return;
        }
        const double value = ValueOf(*peak, panel);
        m_svg.Circle({x, y.At(value)}, 5.5, {{}, kMark, 1.4, {}});
        const bool isRatio = panel.component == kDemandCapacity;
        m_svg.Text((isRatio ? RatioLabel(value, m_limit) : RoundedText(value)) + ", " +
                       CaseText(m_evaluation, peak->loadCase),
                   {kWidth - kRight, top - 7.0}, {kSmall, true, Anchor::end, kMark, false});
    }

    // Case numbers where they fit, and below them the classes.
    void DrawCases(double top) {
        LabelPlaces places;
        const TextStyle number{kSmall, false, Anchor::middle, kAxis, false};
        EachClass([&](const ScannedClass& here, double left, double right) {
            m_svg.Line({left, top + 4.0}, {right, top + 4.0}, {{}, kAxis, 1.0, {}});
            const auto place = [&](std::size_t i) {
                places.Place(m_svg, std::to_string(here.cases[i].loadCase + 1), {X(left, i), top + 18.0},
                             number);
            };
            if (here.cases.empty()) return;
            place(0);
            place(here.cases.size() - 1);
            for (std::size_t i = 1; i + 1 < here.cases.size(); ++i) place(i);
            const std::string name = here.name.empty() ? "cases" : here.name;
            places.Place(m_svg, name, {std::max((left + right) / 2.0, kLeft), top + 36.0},
                         {kNormal, true, Anchor::middle, kMark, false});
        });
    }

    const Evaluation& m_evaluation;
    const FigureRequest& m_request;
    const CaseScan& m_scan;
    Svg m_svg;
    double m_limit, m_step = 1.0;
    std::size_t m_cases = 0;
};

}  // namespace

std::string DrawCaseScan(const Evaluation& evaluation, const FigureRequest& request) {
    const ScannedEnd end = EndOf(evaluation, request);
    if (end.identity == nullptr) {
        return Sentence(evaluation, kHeading, request.substructure,
                        "No element of this substructure has a D/C ratio; --element names one.");
    }
    const CaseScan scan = ScanCases(evaluation, Index(request.substructure - 1), end);
    return CaseScanFigure(evaluation, request, scan).Draw();
}

}  // namespace lumerin
