// SPDX-License-Identifier: MIT
#include "embedment/StudyCurves.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "embedment/Plot.h"
#include "embedment/SvgCanvas.h"
#include "framework/Index.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr double kPictureWidth = 900.0, kPictureHeight = 540.0;
constexpr std::uint32_t kColours[] = {0x1f4e79, 0xb45309};
constexpr int kMostDecimals = 9;

constexpr StudyWords kWords[kQuantityCount] = {
    {"Displacement", "(in)", "(m)"}, {"Displacement", "(in)", "(m)"}, {"Displacement", "(in)", "(m)"},
    {"Force", "(kips)", "(kN)"},     {"Force", "(kips)", "(kN)"},
};

std::size_t PlaceOf(int quantity) {
    return Index(std::clamp(quantity, 0, kQuantityCount - 1));
}

bool HasValue(const StudyPoint& point) {
    return point.isComplete && std::isfinite(point.embedment) && std::isfinite(point.value);
}

std::string FormatOf(int decimals) {
    return "%." + std::to_string(decimals) + "f";
}

void AddCurve(CPlot& plot, int element, const StudyCurve& curve, bool named) {
    plot.Call(kGraphAddElement, {});
    plot.Set(kGraphElement, element);
    plot.Distinguish(kColours[element % 2], named ? curve.name : "");
    for (const StudyPoint& point : curve.points) {
        if (HasValue(point)) {
            plot.Call(kGraphPlotPoint, std::array<GraphValue, 3>{point.embedment, point.value, 1});
        } else {
            plot.LeaveGap();
        }
    }
}

}  // namespace

CEnvelopePoint FindEnvelopePoint(const CEmbedmentResults& results, const StudyCases& cases, int trial,
                                 int quantity, int mode) {
    CEnvelopePoint point;
    point.nQuantity = quantity;
    point.nTrial = trial;
    point.nCase = cases.first;
    point.dEmbedment = results.GetEmbedment(trial);
    point.dValue = results.GetValue(trial, point.nCase, quantity);
    for (int i = 0; i < results.GetCaseCount(); ++i) {
        if (!cases.takesPart(i)) continue;
        const double value = results.GetValue(trial, i, quantity);
        const bool beyond = mode == 0 ? value > point.dValue : value < point.dValue;
        if (!beyond) continue;
        point.nCase = i;
        point.dValue = value;
    }
    point.dPile = results.GetLocation(trial, point.nCase, quantity);
    return point;
}

const StudyWords& StudyWordsOf(int quantity) {
    return kWords[PlaceOf(quantity)];
}

namespace {

std::string NameOfCase(bool combinations, int number) {
    return FormatNumbered(combinations ? "Load Comb %d" : "Load Case %d", number);
}
std::string TitleOf(const std::string& curves, int quantity) {
    return curves + " - Embedment vs " + kQuantityNames[PlaceOf(quantity)];
}

}  // namespace

std::string StudyTitle(bool combinations, int number, int quantity) {
    return TitleOf(NameOfCase(combinations, number), quantity);
}

std::string StudyAxisLabel(int quantity, int units) {
    const StudyWords& words = StudyWordsOf(quantity);
    return std::string(kQuantityNames[PlaceOf(quantity)]) + " " + (units == 0 ? words.unitUs : words.unitSi);
}

std::vector<bool> StudyView::Curves() const {
    if (envelope < 0) return {false};
    if (hasCase) return {true, false};
    return {true};
}

std::string StudyCurveName(const StudyView& view, bool isEnvelope, bool combinations) {
    if (!isEnvelope) return NameOfCase(combinations, view.loadCase);
    return view.envelope == 0 ? "Max Envelope" : "Min Envelope";
}

StudyCurve StudyCurveOf(const CEmbedmentResults& results, const StudyCases& cases, const StudyView& view,
                        bool isEnvelope, bool combinations) {
    StudyCurve curve{StudyCurveName(view, isEnvelope, combinations), {}};
    for (int trial = 0; trial < results.GetTrialCount(); ++trial) {
        StudyPoint point{trial + 1, !results.IsTrialIncomplete(trial), results.GetEmbedment(trial)};
        int loadCase = view.loadCase - 1;
        if (isEnvelope) {
            loadCase = FindEnvelopePoint(results, cases, trial, view.quantity, view.envelope).nCase;
        }
        point.value = results.GetValue(trial, loadCase, view.quantity);
        point.pile = results.GetLocation(trial, loadCase, view.quantity);
        point.loadCase = loadCase + 1;
        curve.points.push_back(point);
    }
    return curve;
}

std::vector<StudyCurve> StudyCurvesOf(const CEmbedmentResults& results, const StudyCases& cases,
                                      const StudyView& view, bool combinations) {
    std::vector<StudyCurve> curves;
    for (const bool isEnvelope : view.Curves()) {
        curves.push_back(StudyCurveOf(results, cases, view, isEnvelope, combinations));
    }
    return curves;
}

std::string TrialsWithoutValue(const StudyCurve& curve) {
    std::string missing;
    for (const StudyPoint& point : curve.points) {
        if (point.isComplete && std::isfinite(point.value)) continue;
        missing += (missing.empty() ? "" : ", ") + std::to_string(point.trial);
    }
    return missing;
}

StudyLabels StudyLabelsOf(const StudyView& view, bool combinations, int units) {
    std::string names;
    for (const bool isEnvelope : view.Curves()) {
        names += (names.empty() ? "" : ", ") + StudyCurveName(view, isEnvelope, combinations);
    }
    return {TitleOf(names, view.quantity), std::string("Embedment Length ") + (units == 0 ? "(ft)" : "(m)"),
            StudyAxisLabel(view.quantity, units)};
}

RoundAxis RoundAxisFor(double least, double greatest) {
    constexpr double kSteps[] = {1.0, 2.0, 5.0, 10.0};
    constexpr double kMostParts = 8.0;
    if (!(least < greatest)) {
        const double half = std::max(std::fabs(least) * 0.1, 0.5);
        least -= half;
        greatest += half;
    }
    const double power = std::pow(10.0, std::floor(std::log10((greatest - least) / kMostParts)));
    for (const double factor : kSteps) {
        const double step = factor * power;
        // A value that is a multiple but for its last bits is one.
        const double first = std::floor(least / step + 1e-9), last = std::ceil(greatest / step - 1e-9);
        if (last - first > kMostParts && factor < 10.0) continue;
        const int decimals =
            std::clamp(static_cast<int>(-std::floor(std::log10(step) + 1e-9)), 0, kMostDecimals);
        return {first * step, last * step, std::max(1, static_cast<int>(last - first)), decimals};
    }
    return {least, greatest, 1, kMostDecimals};
}

std::string StudyPicture(const StudyLabels& labels, std::span<const StudyCurve> curves) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    double left = kInfinity, right = -kInfinity, low = kInfinity, high = -kInfinity;
    for (const StudyCurve& curve : curves) {
        for (const StudyPoint& point : curve.points) {
            if (!HasValue(point)) continue;
            left = std::min(left, point.embedment);
            right = std::max(right, point.embedment);
            low = std::min(low, point.value);
            high = std::max(high, point.value);
        }
    }
    CPlot plot;
    plot.Set(kGraphCaption, labels.title);
    plot.Set(kGraphLabelX, labels.x);
    plot.Set(kGraphLabelY, labels.y);
    plot.Set(kGraphShowGrid, true);
    if (left <= right) {
        const RoundAxis x = RoundAxisFor(left, right), y = RoundAxisFor(low, high);
        plot.Call(kGraphSetRanges, std::array<GraphValue, 4>{x.min, x.max, y.min, y.max});
        plot.Set(kGraphTicksX, x.ticks);
        plot.Set(kGraphTicksY, y.ticks);
        plot.Set(kGraphFormatX, FormatOf(x.decimals));
        plot.Set(kGraphFormatY, FormatOf(y.decimals));
    }
    int element = 0;
    for (const StudyCurve& curve : curves) AddCurve(plot, element++, curve, curves.size() > 1);
    return PlotAsSvg(plot, kPictureWidth, kPictureHeight);
}

EmbedmentAnswer FindEmbedment(std::span<const StudyPoint> points, double limit) {
    EmbedmentAnswer answer;
    std::vector<StudyPoint> tried;
    for (const StudyPoint& point : points) {
        if (HasValue(point)) {
            tried.push_back(point);
        } else {
            answer.incomplete.push_back(point.trial);
        }
    }
    // From the longest, so that a shorter trial that holds by chance is no answer.
    std::stable_sort(tried.begin(), tried.end(),
                     [](const StudyPoint& a, const StudyPoint& b) { return a.embedment > b.embedment; });
    for (const StudyPoint& point : tried) {
        if (std::fabs(point.value) <= limit) {
            answer.shortest = point;
            continue;
        }
        answer.tooShort = point;
        break;
    }
    if (answer.shortest && answer.tooShort) {
        const double good = std::fabs(answer.shortest->value), bad = std::fabs(answer.tooShort->value);
        const double share = (limit - good) / (bad - good);
        answer.interpolated =
            answer.shortest->embedment + share * (answer.tooShort->embedment - answer.shortest->embedment);
    }
    return answer;
}

}  // namespace lumerin
