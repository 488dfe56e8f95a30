// SPDX-License-Identifier: MIT
#pragma once

#include "embedment/PlotCanvas.h"
#include "framework/win32/Windows32.h"

namespace lumerin {

// Draws on a device context of the platform; lines of one pixel stay one pixel.
class PlotGdiCanvas : public PlotCanvas {
  public:
    explicit PlotGdiCanvas(HDC dc) : m_dc(dc) {}

    void FillRect(const PlotRect& rect, std::uint32_t colour) override;
    void RuleLine(PlotPoint from, PlotPoint to, double width, std::uint32_t colour) override;
    void Polyline(std::span<const PlotPoint> points, double width, std::uint32_t colour) override;
    void Disc(PlotPoint centre, double radius, std::uint32_t fill, std::uint32_t ring) override;
    void Text(std::string_view text, PlotPoint at, const PlotFont& font, TextAnchor anchor, bool turned,
              std::uint32_t colour) override;
    double TextWidth(std::string_view text, const PlotFont& font) const override;

  private:
    HDC m_dc;
};

}  // namespace lumerin
