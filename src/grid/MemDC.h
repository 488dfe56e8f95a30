// SPDX-License-Identifier: MIT
#pragma once

#include "grid/Canvas.h"

namespace lumerin {

namespace Ovrelle {

// Drawing goes to a bitmap of the target's size and reaches the target in one step when this object ends, so
// that an unfinished drawing is never visible.
class CMemDC : public CDC {
  public:
    static const CRuntimeClass classCMemDC;
    const CRuntimeClass& GetRuntimeClass() const override { return classCMemDC; }

    CMemDC(CDC& target, const GridRect& rect);
    ~CMemDC() override;

    void FillRect(const GridRect& rect, Colour colour) override;
    void Line(GridPoint from, GridPoint to, Colour colour) override;
    void DrawText(std::string_view text, const GridRect& rect, unsigned format, const FontRecord& font,
                  Colour colour) override;
    GridSize TextSize(std::string_view text, const FontRecord& font) override;
    std::unique_ptr<CDC> MakeCompatible(const GridRect& rect) override;
    void CopyFrom(CDC& source, const GridRect& rect) override;

  private:
    CDC& m_target;
    GridRect m_rect;
    std::unique_ptr<CDC> m_bitmap;
};

inline const CRuntimeClass CMemDC::classCMemDC{"CMemDC", &CDC::classCDC};

}  // namespace Ovrelle

}  // namespace lumerin
