// SPDX-License-Identifier: MIT
#include "figures/Svg.h"

#include <array>
#include <cmath>

#include "framework/Index.h"
#include "text/Format.h"

namespace lumerin {

namespace {

// Advance widths of Arial in thousandths of the size, from the blank to the tilde.
constexpr std::array<int, 95> kWidths{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr int kOtherWidth = 778;  // of a character outside that range: no letter of the Western page is wider
constexpr double kBoldShare = 1.1;

std::string Attribute(std::string_view name, std::string_view value) {
    std::string text(" ");
    text.append(name).append("=\"").append(value);
    return text += '"';
}

std::string StyleText(const ShapeStyle& style) {
    std::string text = Attribute("fill", style.fill.empty() ? "none" : style.fill);
    if (style.stroke.empty()) return text;
    text += Attribute("stroke", style.stroke) + Attribute("stroke-width", Coordinate(style.width));
    if (!style.dashes.empty()) text += Attribute("stroke-dasharray", style.dashes);
    return text;
}

std::string Places(std::span<const Point> points) {
    std::string text;
    for (const Point& point : points) {
        if (!text.empty()) text += ' ';
        text += Coordinate(point.x) + ',' + Coordinate(point.y);
    }
    return Attribute("points", text);
}

}  // namespace

double TextWidth(std::string_view text, double size, bool bold) {
    int width = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte < 0x7F) {
            width += kWidths[byte - 0x20U];
        } else if ((byte & 0xC0U) != 0x80U) {
            width += kOtherWidth;  // the first byte of a character
        }
    }
    return width / 1000.0 * size * (bold ? kBoldShare : 1.0);
}

std::string Coordinate(double value) {
    if (!std::isfinite(value)) return "0";
    std::string text = FormatFixed(value, 2);
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string EscapeXml(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '&') {
            escaped += "&amp;";
        } else if (c == '<') {
            escaped += "&lt;";
        } else if (c == '>') {
            escaped += "&gt;";
        } else if (c == '"') {
            escaped += "&quot;";
        } else if (static_cast<unsigned char>(c) >= 0x20) {
            escaped += c;
        }
    }
    return escaped;
}

Svg::Svg(double width, double height, std::string_view title, std::string_view description)
    : m_width(width), m_height(height) {
    m_body = "<title>" + EscapeXml(title) + "</title>\n<desc>" + EscapeXml(description) + "</desc>\n";
}

void Svg::BeginGroup(std::string_view title, std::string_view id) {
    m_body += "<g";
    if (!id.empty()) m_body += Attribute("id", EscapeXml(id));
    m_body += ">";
    if (!title.empty()) m_body += "<title>" + EscapeXml(title) + "</title>";
    m_body += '\n';
    ++m_open;
}

void Svg::EndGroup() {
    if (m_open == 0) return;
    m_body += "</g>\n";
    --m_open;
}

void Svg::AddShape(std::string_view element, const std::string& places, const ShapeStyle& style) {
    m_body.append("<").append(element).append(places);
    m_body += StyleText(style) + "/>\n";
}

void Svg::Rect(double left, double top, double width, double height, const ShapeStyle& style) {
    AddShape("rect",
             Attribute("x", Coordinate(left)) + Attribute("y", Coordinate(top)) +
                 Attribute("width", Coordinate(width)) + Attribute("height", Coordinate(height)),
             style);
}

void Svg::Line(Point from, Point to, const ShapeStyle& style) {
    AddShape("line",
             Attribute("x1", Coordinate(from.x)) + Attribute("y1", Coordinate(from.y)) +
                 Attribute("x2", Coordinate(to.x)) + Attribute("y2", Coordinate(to.y)),
             style);
}

void Svg::Polyline(std::span<const Point> points, const ShapeStyle& style) {
    AddShape("polyline", Places(points), style);
}

void Svg::Polygon(std::span<const Point> points, const ShapeStyle& style) {
    AddShape("polygon", Places(points), style);
}

void Svg::Circle(Point centre, double radius, const ShapeStyle& style) {
    AddShape("circle",
             Attribute("cx", Coordinate(centre.x)) + Attribute("cy", Coordinate(centre.y)) +
                 Attribute("r", Coordinate(radius)),
             style);
}

void Svg::Text(std::string_view text, Point at, const TextStyle& style) {
    constexpr std::array<const char*, 3> kAnchors{"start", "middle", "end"};
    const std::string x = Coordinate(at.x), y = Coordinate(at.y);
    m_body += "<text" + Attribute("font-size", Coordinate(style.size)) + Attribute("fill", style.colour);
    if (style.anchor != Anchor::start) {
        m_body += Attribute("text-anchor", kAnchors[Index(static_cast<int>(style.anchor))]);
    }
    if (style.bold) m_body += Attribute("font-weight", "bold");
    if (style.halo) m_body += " stroke=\"#ffffff\" stroke-width=\"3\" paint-order=\"stroke\"";
    m_body += style.upwards ? Attribute("transform", "translate(" + x + " " + y + ") rotate(-90)")
                            : Attribute("x", x) + Attribute("y", y);
    m_body += ">" + EscapeXml(text) + "</text>\n";
}

std::string Svg::Document() const {
    const std::string w = Coordinate(m_width), h = Coordinate(m_height);
    std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("width", w) +
                       Attribute("height", h) + Attribute("viewBox", "0 0 " + w + " " + h) +
                       " font-family=\"Arial, Helvetica, Liberation Sans, sans-serif\" role=\"img\">\n" +
                       m_body;
    for (int i = 0; i < m_open; ++i) text += "</g>\n";
    return text + "</svg>\n";
}

}  // namespace lumerin
