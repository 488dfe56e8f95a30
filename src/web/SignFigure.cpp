// SPDX-License-Identifier: MIT
#include <array>
#include <string>

#include "figures/Frame.h"
#include "figures/Svg.h"
#include "web/PageFigures.h"

namespace lumerin {

namespace {

using namespace figure;

constexpr double kArrow = 9.0;

// A line with a head at its end.
void DrawArrow(Svg& svg, Point from, Point to, std::string_view colour) {
    const double way = to.x > from.x ? 1.0 : -1.0;
    svg.Line(from, {to.x - way * kArrow, to.y}, {{}, colour, 2.0, {}});
    const std::array<Point, 3> head{
        {to, {to.x - way * kArrow, to.y - kArrow / 2.0}, {to.x - way * kArrow, to.y + kArrow / 2.0}}};
    svg.Polygon(head, {colour, {}, 0, {}});
}

void DrawLabels(Svg& svg, double x, std::string_view title, std::string_view words) {
    svg.Text(title, {x, 150.0}, {kNormal, true, Anchor::middle, kMark, false});
    svg.Text(words, {x, 168.0}, {kNormal, false, Anchor::middle, kAxis, false});
}

void DrawAxial(Svg& svg, double x) {
    svg.Rect(x - 80.0, 62.0, 160.0, 26.0, {kConcrete, kAxis, 1.0, {}});
    DrawArrow(svg, {x - 84.0, 75.0}, {x - 130.0, 75.0}, kLine);
    DrawArrow(svg, {x + 84.0, 75.0}, {x + 130.0, 75.0}, kLine);
    DrawLabels(svg, x, "FAX positive: tension", "A pile in compression has a negative FAX.");
}

// A cap that sags: its lower side is drawn out, its upper side pressed together.
void DrawMoment(Svg& svg, double x) {
    constexpr std::size_t kSteps = 24;
    constexpr double kHalf = 120.0, kSag = 26.0, kDepth = 30.0;
    std::array<Point, 2 * (kSteps + 1)> outline{};
    for (std::size_t i = 0; i <= kSteps; ++i) {
        const double share = 2.0 * static_cast<double>(i) / kSteps - 1.0;
        const double y = 46.0 + kSag * (1.0 - share * share);
        outline.at(i) = {x + share * kHalf, y};
        outline.at(outline.size() - 1 - i) = {x + share * kHalf, y + kDepth};
    }
    svg.Polygon(outline, {kConcrete, kAxis, 1.0, {}});
    DrawArrow(svg, {x - 4.0, 116.0}, {x - 60.0, 116.0}, kLine);
    DrawArrow(svg, {x + 4.0, 116.0}, {x + 60.0, 116.0}, kLine);
    DrawArrow(svg, {x - 60.0, 56.0}, {x - 8.0, 56.0}, kOver);
    DrawArrow(svg, {x + 60.0, 56.0}, {x + 8.0, 56.0}, kOver);
    svg.Text("tension", {x + 68.0, 120.0}, {kSmall, false, Anchor::start, kLine, false});
    svg.Text("compression", {x, 44.0}, {kSmall, false, Anchor::middle, kOver, false});
    DrawLabels(svg, x, "M33 of the cap positive: tension at the bottom",
               "M33 with tension at the top is negative.");
}

}  // namespace

std::string DrawSigns() {
    Svg svg(kWidth, 190.0, "Sign conventions",
            "FAX is positive in tension. M33 of the cap is positive with tension at the bottom.");
    svg.Rect(0, 0, svg.Width(), svg.Height(), {"#ffffff", {}, 0, {}});
    DrawAxial(svg, kWidth * 0.25);
    DrawMoment(svg, kWidth * 0.72);
    return svg.Document();
}

}  // namespace lumerin
