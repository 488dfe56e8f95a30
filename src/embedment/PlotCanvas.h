// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace lumerin {

// A surface for the plot. Coordinates are pixels from the upper left corner, y downwards, with fractions;
// colours are 0xRRGGBB. Texts are of the Western code page.

struct PlotPoint {
    double x = 0.0, y = 0.0;
};

struct PlotRect {
    double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;
    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
    bool Contains(PlotPoint p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }
};

enum class TextAnchor { start, middle, end };

struct PlotFont {
    double height = 12.0;  // pixels
    bool bold = false;
};

class PlotCanvas {
  public:
    virtual ~PlotCanvas() = default;

    virtual void FillRect(const PlotRect& rect, std::uint32_t colour) = 0;
    // A horizontal or vertical line of one sharp width.
    virtual void RuleLine(PlotPoint from, PlotPoint to, double width, std::uint32_t colour) = 0;
    virtual void Polyline(std::span<const PlotPoint> points, double width, std::uint32_t colour) = 0;
    virtual void Disc(PlotPoint centre, double radius, std::uint32_t fill, std::uint32_t ring) = 0;
    // `at` is on the base line. A turned text runs upwards, with `at.x` on its base line.
    virtual void Text(std::string_view text, PlotPoint at, const PlotFont& font, TextAnchor anchor,
                      bool turned, std::uint32_t colour) = 0;
    virtual double TextWidth(std::string_view text, const PlotFont& font) const = 0;
};

}  // namespace lumerin
