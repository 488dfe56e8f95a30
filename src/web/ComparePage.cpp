// SPDX-License-Identifier: MIT
#include "web/ComparePage.h"

#include <algorithm>
#include <array>
#include <utility>

#include "compare/ComparisonText.h"
#include "figures/CapOverlay.h"
#include "figures/Figure.h"
#include "web/HtmlTable.h"

namespace lumerin {

namespace {

struct OverlayKind {
    CapForce force;
    std::string_view figure, title;
};
constexpr std::array<OverlayKind, 2> kOverlays{{
    {CapForce::shear, "cap-shear", "Cap shear F22"},
    {CapForce::moment, "cap-moment", "Cap moment M33"},
}};

std::string RunText(std::string_view name, const RunVerdict& run) {
    std::string text = std::string(name) + ".in: " + std::string(AnswerWord(run.answer));
    if (run.answer == RunVerdict::Answer::none) return text;
    std::string ratio;
    AppendNumber(ratio, run.ratio);
    return text + ", D/C " + ratio + " at " + run.place + " in " + TextOf(run.loadCase);
}

}  // namespace

TableNeeds OverlayNeeds() {
    TableNeeds needs;
    for (const OverlayKind& kind : kOverlays) needs.Add(FindFigure(kind.figure)->needs);
    return needs;
}

std::vector<OverlayFigure> DrawOverlays(const Evaluation& before, const Evaluation& after, UnitSystem units) {
    std::vector<OverlayFigure> figures;
    const std::size_t count = std::min(before.Data().m_Piers.size(), after.Data().m_Piers.size());
    for (int substructure = 1; substructure <= static_cast<int>(count); ++substructure) {
        for (const OverlayKind& kind : kOverlays) {
            std::string svg = DrawCapOverlay(before, after, substructure, kind.force, units);
            if (svg.empty()) continue;
            figures.push_back(
                {std::string(kind.title) + ", substructure " + std::to_string(substructure), std::move(svg)});
        }
    }
    return figures;
}

ComparePage::ComparePage(const std::string& title, std::size_t top, PageOutput output)
    : m_top(top), m_output(std::move(output)) {
    BeginPage({title, "lumerin " + std::string(ProgramVersion()), true}, m_output);
    m_html.Raw("<header>\n").Element("p class=\"kicker\"", "What changed").Element("h1", title);
    m_html.Raw("</header>\n<main id=\"main\">\n");
    m_output(m_html.Take());
}

void ComparePage::Add(const ComparedPair& pair) {
    ++m_pairs;
    m_html.Raw("<section class=\"sheet\">\n").Element("h2", std::string(pair.name) + ".in");
    if (pair.comparison == nullptr) {
        m_html.Raw("<div class=\"verdict fail\">\n").Element("p", pair.message).Raw("</div>\n");
    } else {
        AddComparison(pair);
    }
    m_html.Raw("</section>\n");
    m_output(m_html.Take());
}

void ComparePage::Finish() {
    m_html.Raw("</main>\n<footer>\n").Element("p", "lumerin " + std::string(ProgramVersion()));
    m_html.Raw("</footer>\n");
    m_output(m_html.Take());
    EndPage(m_output);
}

void ComparePage::AddComparison(const ComparedPair& pair) {
    const Comparison& comparison = *pair.comparison;
    m_html.Raw(comparison.Differs() ? "<div class=\"verdict fail\">\n" : "<div class=\"verdict pass\">\n");
    m_html.Raw("<p>").Element("strong", comparison.Differs() ? "Different" : "The same");
    m_html.Text(Summary(comparison)).Raw("</p>\n</div>\n<header>\n<dl>\n");
    m_html.Element("dt", "Old").Element("dd", RunText(pair.before, comparison.before));
    m_html.Element("dt", "New").Element("dd", RunText(pair.after, comparison.after));
    m_html.Element("dt", "Units").Element("dd", UnitSystemName(comparison.units));
    m_html.Raw("</dl>\n</header>\n");
    AddLines("Verdicts", VerdictLines(comparison));
    AddLines("Cases and model", StructureLines(comparison));
    AddLines("Rows of results", RowLines(comparison));
    AddResults(pair, true);
    AddResults(pair, false);
    // Every title of a case that is shown is listed.
    const std::vector<std::string> titles = TitleLines(comparison, m_top);
    if (!titles.empty()) m_html.Element("h3", "Titles of these cases").Raw("<ul>\n");
    for (const std::string& title : titles) m_html.Element("li", title);
    if (!titles.empty()) m_html.Raw("</ul>\n");
    if (pair.figures != nullptr) AddFigures(*pair.figures);
}

std::size_t ComparePage::Shown(std::size_t count) const {
    return m_top == 0 ? count : std::min(count, m_top);
}

void ComparePage::AddRest(std::size_t count) {
    if (Shown(count) == count) return;
    m_html.Element("p class=\"soft\"", "and " + std::to_string(count - Shown(count)) + " more");
}

void ComparePage::AddLines(std::string_view head, const std::vector<std::string>& lines) {
    if (lines.empty()) return;
    m_html.Element("h3", head).Raw("<ul>\n");
    for (std::size_t i = 0; i < Shown(lines.size()); ++i) m_html.Element("li", lines[i]);
    m_html.Raw("</ul>\n");
    AddRest(lines.size());
}

void ComparePage::AddResults(const ComparedPair& pair, bool exceeds) {
    const std::vector<ResultChange>& results =
        exceeds ? pair.comparison->results : pair.comparison->governing;
    if (results.empty()) return;
    static const std::array<HtmlColumn, kResultTexts> kColumns{{{"sub", "", true},
                                                                {"table", "", false},
                                                                {"result", "", false},
                                                                {"value", "", false},
                                                                {"old", "", true},
                                                                {"new", "", true},
                                                                {"change", "", true},
                                                                {"%", "", true},
                                                                {"case", "", false},
                                                                {"place", "", false},
                                                                {"and", "", false}}};
    const std::string id = (exceeds ? "results-" : "governing-") + std::to_string(m_pairs);
    const std::string_view caption =
        exceeds ? "Results over the tolerances, the worst first" : "Another case or place governs alone";
    HtmlTable table(m_html, {id, caption, {}}, kColumns);
    for (std::size_t i = 0; i < Shown(results.size()); ++i) {
        table.TextRow(ResultTexts(results[i], pair.comparison->units));
    }
    table.Finish();
    AddRest(results.size());
}

void ComparePage::AddFigures(const std::vector<OverlayFigure>& figures) {
    for (const OverlayFigure& figure : figures) {
        m_html.Raw("<figure>\n").Element("h3 class=\"heard\"", figure.title);
        m_html.Raw("<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"Figure: ");
        m_html.Text(figure.title).Raw("\">\n").Raw(figure.svg).Raw("</div>\n</figure>\n");
    }
}

}  // namespace lumerin
