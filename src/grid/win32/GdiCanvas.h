// SPDX-License-Identifier: MIT
#pragma once

#include "framework/win32/Windows32.h"
#include "grid/Canvas.h"

namespace lumerin {

// Drawing with the platform's device contexts. The canvas does not own the context that it is given; one that
// MakeCompatible made owns its bitmap.
class GdiCanvas : public CDC {
  public:
    explicit GdiCanvas(HDC dc) : m_dc(dc) {}
    GdiCanvas(HDC compatibleTo, const GridRect& rect);
    ~GdiCanvas() override;

    void FillRect(const GridRect& rect, Colour colour) override;
    void Line(GridPoint from, GridPoint to, Colour colour) override;
    void DrawText(std::string_view text, const GridRect& rect, unsigned format, const FontRecord& font,
                  Colour colour) override;
    GridSize TextSize(std::string_view text, const FontRecord& font) override;
    std::unique_ptr<CDC> MakeCompatible(const GridRect& rect) override;
    void CopyFrom(CDC& source, const GridRect& rect) override;

  private:
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;  // owned; null for a canvas on a foreign context
    HGDIOBJ m_oldBitmap = nullptr;
};

namespace win32 {

// The platform's font for a record; made once and kept.
HFONT FontFor(const FontRecord& font);

inline RECT ToRect(const GridRect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

}  // namespace win32

}  // namespace lumerin
