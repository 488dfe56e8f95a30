// SPDX-License-Identifier: MIT
#include "embedment/SvgCanvas.h"

#include <cmath>

#include "embedment/Plot.h"
#include "framework/Index.h"
#include "text/Format.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

// Two decimals at most, none where they are zeros.
std::string Coordinate(double value) {
    std::string text = FormatFixed(value, 2);
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? std::string(1, '0') : text;
}

std::string ColourText(std::uint32_t colour) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text(1, '#');
    for (int shift = 20; shift >= 0; shift -= 4) text += kDigits[(colour >> shift) & 0xfu];
    return text;
}

// Characters that no XML document may hold are left out.
std::string Escaped(std::string_view western) {
    std::string text;
    for (const char c : ToUtf8(western)) {
        if (c == '&') {
            text += "&amp;";
        } else if (c == '<') {
            text += "&lt;";
        } else if (c == '>') {
            text += "&gt;";
        } else if (c == '"') {
            text += "&quot;";
        } else if (static_cast<unsigned char>(c) >= 0x20) {
            text += c;
        }
    }
    return text;
}

std::string Attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + '"';
}

// In shares of the font's height.
double CharacterWidth(unsigned char c) {
    if (c >= '0' && c <= '9') return 0.556;
    if (c == '.' || c == ',' || c == ' ' || c == 'i' || c == 'l' || c == 'j') return 0.26;
    if (c == '-' || c == '(' || c == ')' || c == 't' || c == 'f' || c == 'r') return 0.333;
    if (c == 'm' || c == 'w' || c == 'M' || c == 'W') return 0.85;
    return c >= 'A' && c <= 'Z' ? 0.68 : 0.55;
}

constexpr double kBoldShare = 1.06;

}  // namespace

SvgCanvas::SvgCanvas(double width, double height) {
    const std::string w = Coordinate(width), h = Coordinate(height);
    m_body = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"";
    m_body += Attribute("width", w) + Attribute("height", h) + Attribute("viewBox", "0 0 " + w + ' ' + h);
    m_body += " font-family=\"Segoe UI, Helvetica, Arial, sans-serif\">\n";
}

void SvgCanvas::FillRect(const PlotRect& rect, std::uint32_t colour) {
    m_body += "<rect" + Attribute("x", Coordinate(rect.left)) + Attribute("y", Coordinate(rect.top)) +
              Attribute("width", Coordinate(rect.Width())) + Attribute("height", Coordinate(rect.Height())) +
              Attribute("fill", ColourText(colour)) + "/>\n";
}

// Lines of one pixel lie on the middle of a pixel.
void SvgCanvas::RuleLine(PlotPoint from, PlotPoint to, double width, std::uint32_t colour) {
    const auto sharp = [](double value) { return Coordinate(std::floor(value) + 0.5); };
    m_body +=
        "<path" +
        Attribute("d", "M" + sharp(from.x) + ' ' + sharp(from.y) + 'L' + sharp(to.x) + ' ' + sharp(to.y)) +
        Attribute("stroke", ColourText(colour)) + Attribute("stroke-width", Coordinate(width)) +
        " stroke-linecap=\"square\"/>\n";
}

void SvgCanvas::Polyline(std::span<const PlotPoint> points, double width, std::uint32_t colour) {
    std::string places;
    for (const PlotPoint& point : points) {
        if (!places.empty()) places += ' ';
        places += Coordinate(point.x) + ',' + Coordinate(point.y);
    }
    m_body += "<polyline" + Attribute("points", places) + Attribute("stroke", ColourText(colour)) +
              Attribute("stroke-width", Coordinate(width)) +
              " fill=\"none\" stroke-linejoin=\"round\" stroke-linecap=\"round\"/>\n";
}

void SvgCanvas::Disc(PlotPoint centre, double radius, std::uint32_t fill, std::uint32_t ring) {
    m_body += "<circle" + Attribute("cx", Coordinate(centre.x)) + Attribute("cy", Coordinate(centre.y)) +
              Attribute("r", Coordinate(radius)) + Attribute("fill", ColourText(fill)) +
              Attribute("stroke", ColourText(ring)) + Attribute("stroke-width", Coordinate(radius / 3.0)) +
              "/>\n";
}

void SvgCanvas::Text(std::string_view text, PlotPoint at, const PlotFont& font, TextAnchor anchor,
                     bool turned, std::uint32_t colour) {
    constexpr const char* kAnchors[] = {"start", "middle", "end"};
    m_body += "<text" + Attribute("font-size", Coordinate(font.height)) +
              Attribute("text-anchor", kAnchors[Index(anchor)]) + Attribute("fill", ColourText(colour));
    if (font.bold) m_body += " font-weight=\"bold\"";
    const std::string x = Coordinate(at.x), y = Coordinate(at.y);
    m_body += turned ? Attribute("transform", "translate(" + x + ' ' + y + ") rotate(-90)")
                     : Attribute("x", x) + Attribute("y", y);
    m_body += '>' + Escaped(text) + "</text>\n";
}

double SvgCanvas::TextWidth(std::string_view text, const PlotFont& font) const {
    double width = 0.0;
    for (const char c : text) width += CharacterWidth(static_cast<unsigned char>(c));
    return width * font.height * (font.bold ? kBoldShare : 1.0);
}

std::string PlotAsSvg(const CPlot& plot, double width, double height) {
    SvgCanvas canvas(width, height);
    plot.Draw(canvas, width, height);
    return canvas.Document();
}

}  // namespace lumerin
