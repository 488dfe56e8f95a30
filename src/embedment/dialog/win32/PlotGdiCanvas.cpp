// SPDX-License-Identifier: MIT
#include "embedment/dialog/win32/PlotGdiCanvas.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "framework/Index.h"

namespace lumerin {

namespace {

COLORREF ColourOf(std::uint32_t colour) {
    return RGB((colour >> 16) & 0xffu, (colour >> 8) & 0xffu, colour & 0xffu);
}

int Pixel(double value) {
    return static_cast<int>(std::lround(std::clamp(value, -30000.0, 30000.0)));
}

int FloorPixel(double value) {
    return static_cast<int>(std::floor(std::clamp(value, -30000.0, 30000.0)));
}

// A pen, brush or font that is in use while the object lives.
class Selected {
  public:
    Selected(HDC dc, HGDIOBJ object) : m_dc(dc), m_object(object), m_before(SelectObject(dc, object)) {}
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;
    ~Selected() {
        SelectObject(m_dc, m_before);
        DeleteObject(m_object);
    }

  private:
    HDC m_dc;
    HGDIOBJ m_object, m_before;
};

HFONT MakeFont(const PlotFont& font, bool turned) {
    constexpr int kQuarterTurn = 900;  // in tenths of a degree
    const int angle = turned ? kQuarterTurn : 0;
    return CreateFontA(-std::max(Pixel(font.height), 1), 0, angle, angle, font.bold ? FW_SEMIBOLD : FW_NORMAL,
                       FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_TT_PRECIS, CLIP_DEFAULT_PRECIS,
                       DEFAULT_QUALITY, DEFAULT_PITCH | FF_SWISS, "Segoe UI");
}

}  // namespace

void PlotGdiCanvas::FillRect(const PlotRect& rect, std::uint32_t colour) {
    const RECT area{FloorPixel(rect.left), FloorPixel(rect.top), Pixel(rect.right), Pixel(rect.bottom)};
    const HBRUSH brush = CreateSolidBrush(ColourOf(colour));
    ::FillRect(m_dc, &area, brush);
    DeleteObject(brush);
}

void PlotGdiCanvas::RuleLine(PlotPoint from, PlotPoint to, double width, std::uint32_t colour) {
    const int thickness = std::max(Pixel(width), 1);
    const int left = FloorPixel(std::min(from.x, to.x)), top = FloorPixel(std::min(from.y, to.y));
    const int right = FloorPixel(std::max(from.x, to.x)) + thickness;
    const int bottom = FloorPixel(std::max(from.y, to.y)) + thickness;
    FillRect({static_cast<double>(left), static_cast<double>(top), static_cast<double>(right),
              static_cast<double>(bottom)},
             colour);
}

void PlotGdiCanvas::Polyline(std::span<const PlotPoint> points, double width, std::uint32_t colour) {
    std::vector<POINT> places;
    for (const PlotPoint& point : points) places.push_back({Pixel(point.x), Pixel(point.y)});
    const LOGBRUSH brush{BS_SOLID, ColourOf(colour), 0};
    const Selected pen(m_dc, ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_ROUND | PS_JOIN_ROUND,
                                          static_cast<DWORD>(std::max(Pixel(width), 1)), &brush, 0, nullptr));
    ::Polyline(m_dc, places.data(), static_cast<int>(places.size()));
}

void PlotGdiCanvas::Disc(PlotPoint centre, double radius, std::uint32_t fill, std::uint32_t ring) {
    const Selected pen(m_dc, CreatePen(PS_SOLID, 1, ColourOf(ring)));
    const Selected brush(m_dc, CreateSolidBrush(ColourOf(fill)));
    const int r = std::max(Pixel(radius), 2) + 1, x = Pixel(centre.x), y = Pixel(centre.y);
    Ellipse(m_dc, x - r, y - r, x + r + 1, y + r + 1);
}

void PlotGdiCanvas::Text(std::string_view text, PlotPoint at, const PlotFont& font, TextAnchor anchor,
                         bool turned, std::uint32_t colour) {
    constexpr UINT kAnchors[] = {TA_LEFT, TA_CENTER, TA_RIGHT};
    const Selected used(m_dc, MakeFont(font, turned));
    SetBkMode(m_dc, TRANSPARENT);
    SetTextColor(m_dc, ColourOf(colour));
    const UINT before = SetTextAlign(m_dc, kAnchors[Index(anchor)] | TA_BASELINE);
    TextOutA(m_dc, Pixel(at.x), Pixel(at.y), text.data(), static_cast<int>(text.size()));
    SetTextAlign(m_dc, before);
}

double PlotGdiCanvas::TextWidth(std::string_view text, const PlotFont& font) const {
    const Selected used(m_dc, MakeFont(font, false));
    SIZE size{};
    GetTextExtentPoint32A(m_dc, text.data(), static_cast<int>(text.size()), &size);
    return static_cast<double>(size.cx);
}

}  // namespace lumerin
