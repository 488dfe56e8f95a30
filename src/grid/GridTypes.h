// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "framework/Keys.h"

namespace lumerin {

// The small types that the grid, its cells and its drawing share.

// A colour in the platform's order: blue, green, red from the third byte down.
using Colour = std::uint32_t;
inline constexpr Colour kDefaultColour = 0xff000000;  // in a cell: the colour of its default cell

// A cell's place; -1 means none.
struct CCellID {
    int row = -1, column = -1;
    bool IsValid() const { return row >= 0 && column >= 0; }
    bool operator==(const CCellID&) const = default;
};

struct GridPoint {
    int x = 0, y = 0;
    bool operator==(const GridPoint&) const = default;
};
struct GridSize {
    int width = 0, height = 0;
};
struct GridRect {
    int left = 0, top = 0, right = 0, bottom = 0;
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool Contains(GridPoint p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }
    bool operator==(const GridRect&) const = default;
};

struct FontRecord {
    std::string face = "Segoe UI";
    int height = -12;  // negative: of the characters, without the leading
    bool underlined = false;
    bool operator==(const FontRecord&) const = default;
};

// System colours by the platform's index.
enum SystemColourIndex { kColourWindow = 5, kColourWindowText = 8, kColourFace = 15, kColourShadow = 16 };

namespace gridplatform {

Colour SystemColour(int index);
// The size of a text in a font, in pixels.
GridSize MeasureText(const std::string& text, const FontRecord& font);
// Horizontal pixels of the screen per logical inch.
int ScreenDpi();
// Milliseconds within which two clicks are one double click.
unsigned DoubleClickTime();

}  // namespace gridplatform

}  // namespace lumerin
