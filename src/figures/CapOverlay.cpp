// SPDX-License-Identifier: MIT
#include "figures/CapOverlay.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "figures/Frame.h"
#include "framework/Index.h"

namespace lumerin {

namespace {

using namespace figure;

constexpr double kPanelHeight = 190.0, kPanelGap = 36.0, kAxisHeight = 46.0;
constexpr std::string_view kEarlier = "#7d7d7d";

// The envelope of a run with what turns it to the units of the picture.
struct RunPicture {
    RunPicture(const Evaluation& evaluation, int substructure, CapForce force, UnitSystem units)
        : picture(DescribeCap(evaluation, Index(substructure - 1), force)),
          length(ConversionFactor(Quantity::length, evaluation.Units(), units)),
          value(ConversionFactor(force == CapForce::shear ? Quantity::force : Quantity::moment,
                                 evaluation.Units(), units)) {}
    // Null: the run has no such class.
    const CapPanel* Find(const std::string& className) const {
        const auto found = std::ranges::find(picture.panels, className, &CapPanel::className);
        return found == picture.panels.end() ? nullptr : &*found;
    }

    CapPicture picture;
    double length, value;
};

class CapOverlay {
  public:
    CapOverlay(const Evaluation& after, int substructure, CapForce force, UnitSystem units, RunPicture old,
               RunPicture now)
        : m_evaluation(after),
          m_substructure(substructure),
          m_quantity(force == CapForce::shear ? Quantity::force : Quantity::moment),
          m_title(force == CapForce::shear ? "Cap shear F22" : "Cap moment M33"),
          m_word(force == CapForce::shear ? "F22" : "M33"),
          m_units(units),
          m_old(std::move(old)),
          m_new(std::move(now)),
          m_classes(ClassesOfBoth()),
          m_svg(kWidth, Height(), m_title, "The envelopes of two runs along the cap."),
          m_x(End(true), End(false), kLeft, kWidth - kRight, 10, false) {}

    std::string Draw() {
        m_svg.Rect(0, 0, kWidth, Height(), {"#ffffff", {}, 0, {}});
        DrawHead(
            m_svg, m_evaluation, m_title + " of both runs", m_substructure,
            "Greatest and least value at each node: the earlier run dashed and grey, the later one solid");
        for (const RunPicture* run : {&m_old, &m_new}) FindRange(*run);
        double top = kHeadHeight + 18.0;
        for (const std::string& className : m_classes) {
            DrawPanel(className, top);
            top += kPanelHeight + kPanelGap;
        }
        DrawXAxis(m_svg, m_x, top - kPanelGap + 8.0, Named("location along the cap", Quantity::length));
        return m_svg.Document();
    }

  private:
    std::vector<std::string> ClassesOfBoth() const {
        std::vector<std::string> names;
        for (const RunPicture* run : {&m_new, &m_old}) {
            for (const CapPanel& panel : run->picture.panels) {
                if (std::ranges::find(names, panel.className) == names.end())
                    names.push_back(panel.className);
            }
        }
        return names;
    }
    double Height() const {
        return kHeadHeight + 18.0 + static_cast<double>(m_classes.size()) * (kPanelHeight + kPanelGap) +
               kAxisHeight;
    }
    // The left or the right end of the longer cap.
    double End(bool left) const {
        std::vector<double> ends;
        for (const RunPicture* run : {&m_old, &m_new}) {
            if (run->picture.IsEmpty()) continue;
            ends.push_back((left ? run->picture.from : run->picture.to) * run->length);
        }
        return left ? std::ranges::min(ends) : std::ranges::max(ends);
    }
    std::string Named(std::string_view word, Quantity quantity) const {
        return std::string(word) + " (" + std::string(UnitName(quantity, m_units)) + ")";
    }

    void FindRange(const RunPicture& run) {
        for (const CapPanel& panel : run.picture.panels) {
            for (const BandRun& band : panel.runs) {
                for (const BandPoint& point : band) {
                    Widen(point.greatest, run.value);
                    Widen(point.least, run.value);
                }
            }
        }
    }
    void Widen(const EndExtreme& extreme, double factor) {
        if (extreme.loadCase < 0 || !std::isfinite(extreme.value)) return;
        m_least = std::min(m_least, extreme.value * factor);
        m_greatest = std::max(m_greatest, extreme.value * factor);
    }

    void DrawPanel(const std::string& className, double top) {
        const Scale y(m_least, m_greatest, top + kPanelHeight, top, 6, true);
        DrawYAxis(m_svg, y, kLeft, kWidth - kRight, {});
        m_svg.Text(Named(m_word, m_quantity), {18.0, top + kPanelHeight / 2.0},
                   {kNormal, false, Anchor::middle, kAxis, true});
        if (!className.empty()) {
            m_svg.Text(className, {kLeft, top - 7.0}, {kNormal, true, Anchor::start, kMark, false});
        }
        if (const CapPanel* panel = m_old.Find(className)) {
            DrawLines(*panel, m_old, y, {{}, kEarlier, 1.6, "5 3"});
        }
        if (const CapPanel* panel = m_new.Find(className)) DrawLines(*panel, m_new, y, {{}, kLine, 1.6, {}});
    }

    void DrawLines(const CapPanel& panel, const RunPicture& run, const Scale& y, const ShapeStyle& style) {
        for (const BandRun& band : panel.runs) {
            std::vector<Point> upper, lower;
            for (const BandPoint& point : band) {
                if (point.greatest.loadCase < 0 || point.least.loadCase < 0) continue;
                if (!std::isfinite(point.greatest.value) || !std::isfinite(point.least.value)) continue;
                const double x = m_x.At(point.x * run.length);
                upper.push_back({x, y.At(point.greatest.value * run.value)});
                lower.push_back({x, y.At(point.least.value * run.value)});
            }
            if (upper.empty()) continue;
            m_svg.Polyline(upper, style);
            m_svg.Polyline(lower, style);
        }
    }

    const Evaluation& m_evaluation;
    int m_substructure;
    Quantity m_quantity;
    std::string m_title, m_word;
    UnitSystem m_units;
    RunPicture m_old, m_new;
    std::vector<std::string> m_classes;
    Svg m_svg;
    Scale m_x;
    double m_least = 0.0, m_greatest = 0.0;  // zero is always on the axis
};

}  // namespace

std::string DrawCapOverlay(const Evaluation& before, const Evaluation& after, int substructure,
                           CapForce force, UnitSystem units) {
    RunPicture old(before, substructure, force, units), now(after, substructure, force, units);
    if (old.picture.IsEmpty() && now.picture.IsEmpty()) return {};
    return CapOverlay(after, substructure, force, units, std::move(old), std::move(now)).Draw();
}

}  // namespace lumerin
