// SPDX-License-Identifier: MIT
#include "web/Page.h"

#include "figures/Svg.h"
#include "text/Utf8.h"
#include "web/PageParts.h"

namespace lumerin {

std::string HtmlText(std::string_view text) {
    return EscapeXml(ToUtf8(text));
}

Html& Html::Raw(std::string_view markup) {
    m_markup.append(markup);
    return *this;
}

Html& Html::Text(std::string_view text) {
    m_markup += HtmlText(text);
    return *this;
}

Html& Html::Element(std::string_view tag, std::string_view text) {
    Raw("<").Raw(tag).Raw(">").Text(text);
    return Raw("</").Raw(tag.substr(0, tag.find(' '))).Raw(">\n");
}

void BeginPage(const PageHead& head, const PageOutput& output) {
    Html html;
    html.Raw("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n");
    // A page that asks for nothing cannot be made to ask by a text of a project.
    html.Raw(
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; "
        "style-src 'unsafe-inline'; script-src 'unsafe-inline'\">\n");
    html.Raw("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
    html.Raw("<meta name=\"generator\" content=\"").Text(head.generator).Raw("\">\n");
    html.Raw("<link rel=\"icon\" href=\"data:,\">\n");
    html.Element("title", head.title);
    html.Raw("<style>\n").Raw(kPageStyle);
    html.Raw("@page { size: ").Raw(head.letterPaper ? "letter" : "A4").Raw(" landscape; }\n");
    html.Raw("</style>\n</head>\n<body>\n<a class=\"skip\" href=\"#main\">Skip to the content</a>\n");
    output(html.Take());
}

void EndPage(const PageOutput& output) {
    Html html;
    html.Raw("<script>\n").Raw(kPageScript).Raw("</script>\n</body>\n</html>\n");
    output(html.Take());
}

}  // namespace lumerin
