// SPDX-License-Identifier: MIT
#include "web/HtmlTable.h"

#include <vector>

namespace lumerin {

HtmlTable::HtmlTable(Html& html, const HtmlTableHead& head, std::span<const HtmlColumn> columns)
    : m_html(html) {
    html.Raw("<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-labelledby=\"").Text(head.id);
    html.Raw("-caption\">\n<table id=\"").Text(head.id).Raw("\" class=\"list");
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!columns[i].isNumber) html.Raw(" l" + std::to_string(i + 1));
    }
    html.Raw("\">\n<caption id=\"").Text(head.id).Raw("-caption\">");
    html.Element("h3", head.caption);
    if (!head.remark.empty()) html.Element("small", head.remark);
    html.Raw("</caption>\n<thead><tr>");
    for (const HtmlColumn& column : columns) {
        html.Raw("<th scope=\"col\" data-name=\"").Text(column.words).Raw("\">").Text(column.words);
        html.Raw("<small>").Text(column.lower).Raw("</small></th>");
    }
    html.Raw("</tr></thead>\n<tbody>\n");
}

void HtmlTable::Row(std::span<const HtmlCell> cells, std::string_view id) {
    m_html.Raw("<tr");
    if (!id.empty()) m_html.Raw(" id=\"").Text(id).Raw("\"");
    m_html.Raw(">");
    for (const HtmlCell& cell : cells) {
        m_html.Raw("<td");
        if (cell.span > 1) m_html.Raw(" colspan=\"" + std::to_string(cell.span) + "\"");
        if (cell.isOver) m_html.Raw(" class=\"over\"");
        m_html.Raw(">");
        if (!cell.link.empty()) m_html.Raw("<a href=\"#").Text(cell.link).Raw("\">");
        m_html.Text(cell.text);
        if (!cell.link.empty()) m_html.Raw("</a>");
        if (cell.isOver) m_html.Raw(" <em>over</em>");
        m_html.Raw("</td>");
    }
    m_html.Raw("</tr>\n");
}

void HtmlTable::TextRow(std::span<const std::string> texts, std::optional<std::size_t> over) {
    std::vector<HtmlCell> cells(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) cells[i].text = texts[i];
    if (over) cells.at(*over).isOver = true;
    Row(cells);
}

void HtmlTable::Finish() {
    m_html.Raw("</tbody>\n</table>\n</div>\n");
}

}  // namespace lumerin
