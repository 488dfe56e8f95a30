// SPDX-License-Identifier: MIT
#include "grid/win32/GdiCanvas.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace lumerin {

namespace {

// Fonts are few and live as long as the module.
class FontCache {
  public:
    FontCache() = default;
    FontCache(const FontCache&) = delete;
    FontCache& operator=(const FontCache&) = delete;
    ~FontCache() {
        for (const auto& entry : m_fonts) DeleteObject(entry.second);
    }
    HFONT Get(const FontRecord& font) {
        HFONT& handle = m_fonts[std::tuple(font.face, font.height, font.underlined)];
        if (handle == nullptr) {
            handle = CreateFontA(font.height, 0, 0, 0, FW_NORMAL, FALSE, font.underlined ? TRUE : FALSE,
                                 FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                 DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, font.face.c_str());
        }
        return handle;
    }

  private:
    std::map<std::tuple<std::string, int, bool>, HFONT> m_fonts;
};

}  // namespace

namespace win32 {

HFONT FontFor(const FontRecord& font) {
    static FontCache cache;
    return cache.Get(font);
}

}  // namespace win32

GdiCanvas::GdiCanvas(HDC compatibleTo, const GridRect& rect) : m_dc(CreateCompatibleDC(compatibleTo)) {
    m_bitmap = CreateCompatibleBitmap(compatibleTo, std::max(rect.Width(), 1), std::max(rect.Height(), 1));
    m_oldBitmap = SelectObject(m_dc, m_bitmap);
    SetViewportOrgEx(m_dc, -rect.left, -rect.top, nullptr);
}

GdiCanvas::~GdiCanvas() {
    if (m_bitmap == nullptr) return;
    SelectObject(m_dc, m_oldBitmap);
    DeleteObject(m_bitmap);
    DeleteDC(m_dc);
}

void GdiCanvas::FillRect(const GridRect& rect, Colour colour) {
    const RECT area = win32::ToRect(rect);
    const HBRUSH brush = CreateSolidBrush(colour);
    ::FillRect(m_dc, &area, brush);
    DeleteObject(brush);
}

void GdiCanvas::Line(GridPoint from, GridPoint to, Colour colour) {
    const HPEN pen = CreatePen(PS_SOLID, 1, colour);
    const HGDIOBJ before = SelectObject(m_dc, pen);
    MoveToEx(m_dc, from.x, from.y, nullptr);
    LineTo(m_dc, to.x, to.y);
    SelectObject(m_dc, before);
    DeleteObject(pen);
}

void GdiCanvas::DrawText(std::string_view text, const GridRect& rect, unsigned format, const FontRecord& font,
                         Colour colour) {
    RECT area = win32::ToRect(rect);
    const HGDIOBJ before = SelectObject(m_dc, win32::FontFor(font));
    SetBkMode(m_dc, TRANSPARENT);
    SetTextColor(m_dc, colour);
    DrawTextA(m_dc, text.data(), static_cast<int>(text.size()), &area, format);
    SelectObject(m_dc, before);
}

GridSize GdiCanvas::TextSize(std::string_view text, const FontRecord& font) {
    const HGDIOBJ before = SelectObject(m_dc, win32::FontFor(font));
    SIZE size{};
    GetTextExtentPoint32A(m_dc, text.data(), static_cast<int>(text.size()), &size);
    TEXTMETRICA metrics{};
    GetTextMetricsA(m_dc, &metrics);
    SelectObject(m_dc, before);
    return {static_cast<int>(size.cx), static_cast<int>(metrics.tmHeight)};
}

std::unique_ptr<CDC> GdiCanvas::MakeCompatible(const GridRect& rect) {
    return std::make_unique<GdiCanvas>(m_dc, rect);
}

void GdiCanvas::CopyFrom(CDC& source, const GridRect& rect) {
    const auto* bitmap = dynamic_cast<const GdiCanvas*>(&source);
    if (bitmap == nullptr) return;
    BitBlt(m_dc, rect.left, rect.top, rect.Width(), rect.Height(), bitmap->m_dc, rect.left, rect.top,
           SRCCOPY);
}

}  // namespace lumerin
