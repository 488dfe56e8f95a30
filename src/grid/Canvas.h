// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>

#include "framework/Object.h"
#include "grid/GridTypes.h"

namespace lumerin {

// Formats of drawn text, the numbers of the platform's text drawing.
enum TextFormat : unsigned {
    kTextLeft = 0,
    kTextCenter = 1,
    kTextRight = 2,
    kTextMiddle = 4,  // vertically centred; holds for a single line
    kTextWordBreak = 16,
    kTextSingleLine = 32,
    kTextNoPrefix = 2048,
    kTextEndEllipsis = 32768,
};
inline constexpr unsigned kTextAlignMask = 3;

// A surface that the grid's classes draw on. The Windows backend draws with the platform's device context.
class CDC : public CObject {
  public:
    static const CRuntimeClass classCDC;
    const CRuntimeClass& GetRuntimeClass() const override { return classCDC; }

    virtual void FillRect(const GridRect& rect, Colour colour) = 0;
    // From one point up to, but without, the other; horizontal or vertical.
    virtual void Line(GridPoint from, GridPoint to, Colour colour) = 0;
    virtual void DrawText(std::string_view text, const GridRect& rect, unsigned format,
                          const FontRecord& font, Colour colour) = 0;
    virtual GridSize TextSize(std::string_view text, const FontRecord& font) = 0;

    // A surface in memory with the same colours that shows the part `rect` of this one, addressed by the
    // same coordinates.
    virtual std::unique_ptr<CDC> MakeCompatible(const GridRect& rect) = 0;
    // Copies `rect` from a surface that MakeCompatible of this one made.
    virtual void CopyFrom(CDC& source, const GridRect& rect) = 0;
};

inline const CRuntimeClass CDC::classCDC{"CDC", &CObject::classCObject};

}  // namespace lumerin
