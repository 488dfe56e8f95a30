// SPDX-License-Identifier: MIT
#include "web/WebReport.h"

#include <array>
#include <vector>

#include "figures/Figure.h"
#include "records/TableReason.h"
#include "records/TableRows.h"
#include "web/Links.h"
#include "web/PageFigures.h"
#include "web/PrintedTables.h"
#include "web/ReportFront.h"

namespace lumerin {

namespace {

void AppendContents(const Evaluation& evaluation, const std::vector<PageFigure>& figures, Html& html) {
    const CDataSet& data = evaluation.Data();
    const auto entry = [&html](std::string_view id, std::string_view words) {
        html.Raw("<li><a href=\"#").Text(id).Raw("\">").Text(words).Raw("</a></li>\n");
    };
    html.Raw("<nav aria-label=\"Contents\">\n<ul>\n");
    entry("governing", "What governs");
    entry("findings", "Findings about the data");
    html.Raw("<li class=\"group\"><a href=\"#figures\">Figures</a>\n<ul>\n");
    for (const PageFigure& figure : figures) {
        if (figure.svg.empty()) continue;
        entry(figure.id, FigureHeading(evaluation, figure));
    }
    html.Raw("</ul></li>\n");
    entry("signs", "Signs");
    html.Raw("<li class=\"group\"><a href=\"#tables\">Tables</a>\n<ul>\n");
    for (const TableId table : kPrintedTables) {
        if (!WhyTableDoesNotApply(data, evaluation.Selection(), table).empty()) continue;
        entry("s-" + PrintedTableId(table), PrintedTableName(data, table));
    }
    entry("s-t8", "Range of the axial force at each pile head");
    html.Raw("</ul></li>\n");
    entry("cases", "Cases used");
    html.Raw("</ul>\n</nav>\n");
}

void AppendFigures(const Evaluation& evaluation, const std::vector<PageFigure>& figures, const Links& links,
                   Html& html) {
    html.Raw("<section class=\"sheet\" id=\"figures\">\n").Element("h2", "Figures");
    html.Element("p class=\"soft\"", "A mark leads to its row in the tables, and the row leads back.");
    for (const PageFigure& figure : figures) {
        html.Raw("<figure id=\"").Text(figure.id).Raw("\">\n");
        html.Element(figure.svg.empty() ? "h3" : "h3 class=\"heard\"", FigureHeading(evaluation, figure));
        if (figure.svg.empty()) {
            html.Element("p", figure.sentence);
        } else {
            html.Raw("<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"Figure: ");
            html.Text(FigureHeading(evaluation, figure)).Raw("\">\n");
            AppendDrawing(figure, links, html);
            html.Raw("</div>\n");
        }
        html.Raw("</figure>\n");
    }
    html.Raw("</section>\n");
}

void AppendSigns(Html& html) {
    html.Raw("<section class=\"sheet\" id=\"signs\">\n").Element("h2", "Signs");
    html.Raw(
        "<figure>\n<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"Figure: signs\">\n");
    html.Raw(DrawSigns()).Raw("</div>\n</figure>\n");
    html.Element(
        "p",
        "The signs of F22, F33, M22, TORQUE and of M33 outside the cap are as the host defines them, by "
        "the local axes of the element. Max and min are the greatest and the least value with its "
        "sign: -550 is less than 2.");
    html.Raw("<dl class=\"words\">\n");
    struct Word {
        const char *word, *meaning;
    };
    static constexpr std::array<Word, 7> kWords{{
        {"D/C", "demand over capacity; marked \"over\" above the limit, unrounded"},
        {"PROP", "number of the cross section; columns count from 2"},
        {"ELEM, NODE", "numbers of the model"},
        {"I/J", "the end of the element that the row belongs to; I,J: between the ends, interpolated"},
        {"***", "nothing to show here"},
        {"none", "no case has a result here"},
        {"miss", "there is no element at this place of the cap"},
    }};
    for (const Word& word : kWords) html.Element("dt", word.word).Element("dd", word.meaning);
    html.Raw("</dl>\n</section>\n");
}

void AppendPileHeads(const Evaluation& evaluation, Html& html) {
    html.Raw("<section class=\"sheet\" id=\"s-t8\">\n");
    AppendPileHeadRanges(evaluation, html);
    html.Raw("</section>\n");
}

}  // namespace

TableNeeds WebReportNeeds() {
    const std::array<const Table*, 2> tables{FindTable("verdict"), FindTable("findings")};
    TableNeeds needs = NeedsOf(tables);
    for (const TableId table : kPrintedTables) needs.searches |= SearchBit(table);
    for (const FigureKind& figure : AllFigures()) needs.Add(figure.needs);
    return needs;
}

void WriteWebReport(const Evaluation& evaluation, const WebReportTexts& texts, const PageOutput& output) {
    // Rows and marks know each other before the first of them is written.
    Links links;
    const std::vector<PageFigure> figures = DrawFigures(evaluation, links);
    Html tables;
    AppendPrintedTables(evaluation, links, tables);

    BeginPage({ProjectTitle(evaluation) + " - " + InputFileName(evaluation),
               "lumerin " + std::string(ProgramVersion()), evaluation.Units() == UnitSystem::us},
              output);
    Html html;
    AppendCover(evaluation, texts, html);
    AppendContents(evaluation, figures, html);
    html.Raw("<main id=\"main\">\n");
    AppendGoverning(evaluation, html);
    AppendFindings(evaluation, html);
    AppendFigures(evaluation, figures, links, html);
    AppendSigns(html);
    html.Raw("<section id=\"tables\">\n").Element("h2", "Tables");
    output(html.Take());
    output(tables.Take());
    AppendPileHeads(evaluation, html);
    html.Raw("</section>\n");
    AppendCases(evaluation, html);
    html.Raw("</main>\n<footer>\n");
    html.Element("p", InputFileName(evaluation) + ", lumerin " + std::string(ProgramVersion()));
    html.Raw("</footer>\n");
    output(html.Take());
    EndPage(output);
}

}  // namespace lumerin
