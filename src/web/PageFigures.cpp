// SPDX-License-Identifier: MIT
#include "web/PageFigures.h"

#include <utility>

#include "figures/Figure.h"
#include "framework/File.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr std::string_view kGroup = "<g id=\"", kGroupEnd = "</g>";

// What is between two texts; empty where they are not there.
std::string_view Between(std::string_view text, std::string_view before, std::string_view after) {
    const std::size_t from = text.find(before);
    if (from == std::string_view::npos) return {};
    const std::size_t start = from + before.size();
    return text.substr(start, text.find(after, start) - start);
}

// The drawing with the ids of the page. A name that occurs again is no target and is left out.
std::string WithPageIds(const std::string& svg, const std::string& prefix, Links& links) {
    std::string result;
    std::size_t done = 0;
    for (std::size_t at = svg.find(kGroup); at != std::string::npos; at = svg.find(kGroup, done)) {
        const std::size_t start = at + kGroup.size(), end = svg.find('"', start);
        const std::string id = prefix + svg.substr(start, end - start);
        result.append(svg, done, at - done);
        if (links.HasMark(id)) {
            result += "<g";
        } else {
            result.append(kGroup).append(id) += '"';
            links.AddMark(id);
        }
        done = end + 1;
    }
    return result.append(svg, done);
}

std::string Capitalised(std::string_view name) {
    std::string words = ReplaceAll(name, "-", " ");
    if (!words.empty() && words.front() >= 'a' && words.front() <= 'z') {
        words.front() = static_cast<char>(words.front() - 'a' + 'A');
    }
    return words;
}

// A figure that has nothing to draw says so: its description is its one text.
std::string SentenceOf(const std::string& svg) {
    const std::string words(Between(svg, "<desc>", "</desc>"));
    return svg.find(">" + words + "</text>") == std::string::npos ? std::string() : words;
}

void Draw(const Evaluation& evaluation, const FigureKind& kind, int substructure, PageFigure& figure) {
    FigureRequest request;
    request.substructure = substructure;
    // Of a study the greatest value of all cases is what counts.
    request.study.envelope = 0;
    std::string svg;
    try {
        svg = kind.draw(evaluation, request);
    } catch (const CFileException&) {
        // The findings name the file; the rest of the report is as good without this figure.
        figure.title = Capitalised(kind.name);
        figure.sentence = "The files of this figure cannot be read.";
        return;
    }
    const std::string_view title = Between(svg, "<title>", "</title>");
    figure.title = title.empty() ? Capitalised(kind.name) : std::string(title);
    figure.sentence = SentenceOf(svg);
    // Inside a page a drawing has no declaration of its own.
    if (figure.sentence.empty()) figure.svg = svg.substr(svg.find("<svg"));
}

}  // namespace

std::vector<PageFigure> DrawFigures(const Evaluation& evaluation, Links& links) {
    std::vector<PageFigure> figures;
    const int substructures = static_cast<int>(evaluation.Data().m_Piers.size());
    for (int substructure = 1; substructure <= substructures; ++substructure) {
        for (const FigureKind& kind : AllFigures()) {
            const bool ofProject = kind.scope == FigureScope::project;
            if (ofProject && substructure > 1) continue;
            PageFigure figure;
            figure.id = "figure-" + std::string(kind.name) + "-" + std::to_string(substructure);
            figure.prefix = Links::MarkId(kind.name, static_cast<std::size_t>(substructure), "");
            figure.substructure = ofProject ? 0 : substructure;
            Draw(evaluation, kind, substructure, figure);
            if (!figure.svg.empty()) figure.svg = WithPageIds(figure.svg, figure.prefix, links);
            figures.push_back(std::move(figure));
        }
    }
    return figures;
}

std::string FigureHeading(const Evaluation& evaluation, const PageFigure& figure) {
    if (evaluation.Data().m_Piers.size() == 1 || figure.substructure == 0) return figure.title;
    return figure.title + ", substructure " + std::to_string(figure.substructure);
}

void AppendDrawing(const PageFigure& figure, const Links& links, Html& html) {
    std::string_view rest = figure.svg;
    // A picture with links in it is a group of things for a reader who hears the page.
    constexpr std::string_view kRoot = "<svg", kPicture = " role=\"img\"";
    html.Raw(kRoot).Raw(" role=\"group\" aria-label=\"").Raw(figure.title).Raw("\"");
    rest.remove_prefix(kRoot.size());
    const std::size_t role = rest.substr(0, rest.find('>')).find(kPicture);
    if (role != std::string_view::npos) {
        html.Raw(rest.substr(0, role));
        rest.remove_prefix(role + kPicture.size());
    }
    for (std::size_t at = rest.find(kGroup); at != std::string_view::npos; at = rest.find(kGroup)) {
        const std::string_view group = rest.substr(at);
        const std::string_view row = links.RowOf(std::string(Between(group, kGroup, "\"")));
        const std::size_t end = at + group.find(kGroupEnd) + kGroupEnd.size();
        html.Raw(rest.substr(0, at));
        if (!row.empty()) {
            html.Raw("<a href=\"#")
                .Raw(row)
                .Raw("\" aria-label=\"")
                .Raw(Between(group, "<title>", "</title>"));
            html.Raw("\">");
        }
        html.Raw(rest.substr(at, end - at));
        if (!row.empty()) html.Raw("</a>");
        rest.remove_prefix(end);
    }
    html.Raw(rest);
}

}  // namespace lumerin
