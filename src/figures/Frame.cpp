// SPDX-License-Identifier: MIT
#include "figures/Frame.h"

#include <cmath>

#include "framework/Index.h"
#include "records/TableRows.h"
#include "tables/Words.h"
#include "text/Format.h"

namespace lumerin::figure {

std::string ShortName(const Evaluation& evaluation) {
    const std::string& name = evaluation.Opened().name.name;
    const std::size_t separator = name.find_last_of("/\\");
    return (separator == std::string::npos ? name : name.substr(separator + 1)) + ".in";
}

std::string SubstructureText(const Evaluation& evaluation, int substructure) {
    const CDataSet& data = evaluation.Data();
    std::string text = "substructure " + std::to_string(substructure);
    if (data.m_Piers.size() > 1) text += " of " + std::to_string(data.m_Piers.size());
    text += " (";
    text += StructureTypeName(data.m_Piers.at(Index(substructure - 1)).m_nStructureType);
    return text + ")";
}

std::string CasesText(const Evaluation& evaluation) {
    const int cases = evaluation.Data().FirstPier().m_nLoadCases;
    const int chosen = evaluation.Selection().SelectedCount(cases);
    if (chosen < cases) return std::to_string(chosen) + " of " + std::to_string(cases) + " cases";
    return cases == 1 ? "1 case" : "all " + std::to_string(cases) + " cases";
}

std::string CaseText(const Evaluation& evaluation, int loadCase) {
    const std::string_view state = LimitStateIn(evaluation.Data(), loadCase);
    return "case " + std::to_string(loadCase + 1) + (state.empty() ? "" : " " + std::string(state));
}

std::string NumberText(double value) {
    std::string text;
    AppendNumber(text, value);
    return text;
}

std::string RoundedText(double value) {
    const double size = std::abs(value);
    return FormatFixed(value, size >= 100.0 ? 0 : size >= 10.0 ? 1 : 2);
}

bool LabelPlaces::Place(Svg& svg, std::string_view text, Point at, const TextStyle& style) {
    constexpr double kGap = 2.0;
    const double width = TextWidth(text, style.size, style.bold);
    const double left = style.anchor == Anchor::start    ? at.x
                        : style.anchor == Anchor::middle ? at.x - width / 2.0
                                                         : at.x - width;
    const Taken here{left, left + width, at.y, style.size};
    if (here.left < 0.0 || here.right > svg.Width()) return false;
    for (const Taken& other : m_taken) {
        const bool isBeside = here.right + kGap <= other.left || other.right + kGap <= here.left;
        if (!isBeside && std::abs(here.base - other.base) < std::max(here.size, other.size)) return false;
    }
    m_taken.push_back(here);
    svg.Text(text, at, style);
    return true;
}

void DrawHead(Svg& svg, const Evaluation& evaluation, std::string_view title, int substructure,
              std::string_view more) {
    TextStyle style;
    style.size = kTitle;
    style.bold = true;
    svg.Text(title, {kLeft, 28.0}, style);
    TextStyle line;
    line.colour = kSoft;
    svg.Text(ShortName(evaluation) + ", " + SubstructureText(evaluation, substructure) + ", " +
                 CasesText(evaluation),
             {kLeft, 46.0}, line);
    svg.Text(more, {kLeft, 62.0}, line);
}

std::string Sentence(const Evaluation& evaluation, std::string_view title, int substructure,
                     std::string_view sentence) {
    Svg svg(kWidth, kHeadHeight + 40.0, title, sentence);
    svg.Rect(0, 0, svg.Width(), svg.Height(), {"#ffffff", {}, 0, {}});
    DrawHead(svg, evaluation, title, substructure, {});
    svg.Text(sentence, {kLeft, kHeadHeight + 14.0});
    return svg.Document();
}

void DrawYAxis(Svg& svg, const Scale& y, double left, double right, std::string_view label) {
    for (const double tick : y.Ticks()) {
        const double at = y.At(tick);
        svg.Line({left, at}, {right, at}, {{}, tick == 0.0 ? kAxis : kGrid, 1.0, {}});
        svg.Text(y.TickText(tick), {left - 6.0, at + 4.0}, {kSmall, false, Anchor::end, kAxis, false});
    }
    if (label.empty()) return;
    const double middle = (y.At(y.Low()) + y.At(y.High())) / 2.0;
    svg.Text(label, {18.0, middle}, {kNormal, false, Anchor::middle, kAxis, true});
}

void DrawXAxis(Svg& svg, const Scale& x, double top, std::string_view label) {
    svg.Line({x.At(x.Low()), top}, {x.At(x.High()), top}, {{}, kAxis, 1.0, {}});
    for (const double tick : x.Ticks()) {
        svg.Line({x.At(tick), top}, {x.At(tick), top + 4.0}, {{}, kAxis, 1.0, {}});
        svg.Text(x.TickText(tick), {x.At(tick), top + 16.0}, {kSmall, false, Anchor::middle, kAxis, false});
    }
    svg.Text(label, {(x.At(x.Low()) + x.At(x.High())) / 2.0, top + 33.0},
             {kNormal, false, Anchor::middle, kAxis, false});
}

std::string WithUnit(std::string_view word, Quantity quantity, const Evaluation& evaluation) {
    return std::string(word) + " (" + std::string(UnitName(quantity, evaluation.Units())) + ")";
}

}  // namespace lumerin::figure
