// SPDX-License-Identifier: MIT
#include "figures/RatioColour.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "figures/Frame.h"
#include "records/Verdict.h"

namespace lumerin {

namespace {

// By the share of the limit.
struct Step {
    double upTo;
    std::string_view colour, words;
};
constexpr std::array<Step, 4> kSteps{{
    {0.5, "#eaf1f8", "to 50 %"},
    {0.75, "#b5cfe6", "to 75 %"},
    {0.9, "#6fa3cf", "to 90 %"},
    {1.0, "#2f6fa8", "to the limit"},
}};

}  // namespace

std::string_view RatioColour(double ratio, double limit) {
    for (const Step& step : kSteps) {
        if (ratio <= step.upTo * limit) return step.colour;
    }
    return figure::kOver;
}

void DrawRatio(Svg& svg, double ratio, double limit, const Box& box) {
    svg.Rect(box.left, box.top, box.width, box.height, {RatioColour(ratio, limit), figure::kAxis, 0.5, {}});
    if (ratio <= limit) return;
    constexpr double kSpacing = 7.0;
    const double bottom = box.top + box.height, right = box.left + box.width;
    for (double x = box.left - box.height + kSpacing; x < right; x += kSpacing) {
        // From the lower to the upper edge, as far as the box goes.
        const double from = std::max(x, box.left), to = std::min(x + box.height, right);
        svg.Line({from, bottom - (from - x)}, {to, bottom - (to - x)}, {{}, "#ffffff", 1.3, {}});
    }
}

std::string RatioLabel(double ratio, double limit) {
    return RatioText(ratio, limit) + (ratio > limit ? " over the limit" : "");
}

void DrawRatioLegend(Svg& svg, Point at, double limit) {
    constexpr double kSide = 11.0;
    svg.Text("D/C:", at, {figure::kSmall, false, Anchor::start, figure::kAxis, false});
    at.x += TextWidth("D/C:", figure::kSmall) + 8.0;
    const auto entry = [&](double ratio, std::string_view words) {
        DrawRatio(svg, ratio, limit, {at.x, at.y - kSide + 1.0, kSide, kSide});
        at.x += kSide + 5.0;
        svg.Text(words, at, {figure::kSmall, false, Anchor::start, figure::kAxis, false});
        at.x += TextWidth(words, figure::kSmall) + 12.0;
    };
    for (const Step& step : kSteps) entry(step.upTo * limit, step.words);
    entry(2.0 * limit, "over");
}

}  // namespace lumerin
