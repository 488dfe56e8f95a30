// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lumerin {

// A picture as SVG, built from front to back of its text: what is drawn later lies on top. Coordinates are
// pixels from the upper left corner, y downwards. The same calls give the same bytes on every machine.

struct Point {
    double x = 0.0, y = 0.0;
};

enum class Anchor { start, middle, end };

// How a text looks. Widths are those of Arial and of the faces that have its metrics.
struct TextStyle {
    double size = 12.0;
    bool bold = false;
    Anchor anchor = Anchor::start;
    std::string_view colour = "#1a1a1a";
    bool upwards = false;  // turned by 90 degrees against the clock
    bool halo = false;     // a white edge, for a text over lines
};

// Fill and line of a shape; empty: none.
struct ShapeStyle {
    std::string_view fill;
    std::string_view stroke;
    double width = 1.0;
    std::string_view dashes;  // of the line: "4 3"
};

// The width of a UTF-8 text in pixels.
double TextWidth(std::string_view text, double size, bool bold = false);
// A coordinate or length with two decimals at most.
std::string Coordinate(double value);
// A UTF-8 text inside an XML document; characters that none may hold are left out.
std::string EscapeXml(std::string_view text);

class Svg {
  public:
    // `title` and `description` are for readers who do not see the picture.
    Svg(double width, double height, std::string_view title, std::string_view description);

    // Everything until the end of the group belongs together; a title is shown under the mouse.
    void BeginGroup(std::string_view title = {}, std::string_view id = {});
    void EndGroup();

    void Rect(double left, double top, double width, double height, const ShapeStyle& style);
    void Line(Point from, Point to, const ShapeStyle& style);
    void Polyline(std::span<const Point> points, const ShapeStyle& style);
    void Polygon(std::span<const Point> points, const ShapeStyle& style);
    void Circle(Point centre, double radius, const ShapeStyle& style);
    // `at` is on the base line.
    void Text(std::string_view text, Point at, const TextStyle& style = {});

    double Width() const { return m_width; }
    double Height() const { return m_height; }
    // The whole document.
    std::string Document() const;

  private:
    void AddShape(std::string_view element, const std::string& places, const ShapeStyle& style);

    double m_width, m_height;
    std::string m_body;
    int m_open = 0;  // groups
};

}  // namespace lumerin
