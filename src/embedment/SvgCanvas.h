// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "embedment/PlotCanvas.h"

namespace lumerin {

class CPlot;

// Writes the drawing as a scalable picture: valid UTF-8 XML whatever the texts hold.
class SvgCanvas : public PlotCanvas {
  public:
    SvgCanvas(double width, double height);

    void FillRect(const PlotRect& rect, std::uint32_t colour) override;
    void RuleLine(PlotPoint from, PlotPoint to, double width, std::uint32_t colour) override;
    void Polyline(std::span<const PlotPoint> points, double width, std::uint32_t colour) override;
    void Disc(PlotPoint centre, double radius, std::uint32_t fill, std::uint32_t ring) override;
    void Text(std::string_view text, PlotPoint at, const PlotFont& font, TextAnchor anchor, bool turned,
              std::uint32_t colour) override;
    // By the widths of a common sans-serif face: a picture is laid out before a viewer chooses the font.
    double TextWidth(std::string_view text, const PlotFont& font) const override;

    // The whole document.
    std::string Document() const { return m_body + "</svg>\n"; }

  private:
    std::string m_body;
};

std::string PlotAsSvg(const CPlot& plot, double width, double height);

}  // namespace lumerin
