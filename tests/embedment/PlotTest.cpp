// SPDX-License-Identifier: MIT
#include "embedment/Plot.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "PlotSamples.h"
#include "embedment/SvgCanvas.h"

namespace lumerin {

using testing::ElementsAre;

namespace {

// Records what is drawn; a character is half as wide as high.
class RecordingCanvas : public PlotCanvas {
  public:
    struct TextCall {
        std::string text;
        PlotPoint at;
        double height;
        bool turned;
        TextAnchor anchor;
        bool bold;
    };
    void FillRect(const PlotRect& rect, std::uint32_t) override { fills.push_back(rect); }
    void RuleLine(PlotPoint from, PlotPoint to, double, std::uint32_t) override {
        rules.emplace_back(from, to);
    }
    void Polyline(std::span<const PlotPoint> points, double, std::uint32_t) override {
        lines.emplace_back(points.begin(), points.end());
    }
    void Disc(PlotPoint centre, double, std::uint32_t, std::uint32_t) override { discs.push_back(centre); }
    void Text(std::string_view text, PlotPoint at, const PlotFont& font, TextAnchor anchor, bool turned,
              std::uint32_t) override {
        texts.push_back({std::string(text), at, font.height, turned, anchor, font.bold});
    }
    double TextWidth(std::string_view text, const PlotFont& font) const override {
        return static_cast<double>(text.size()) * font.height / 2.0;
    }
    std::vector<std::string> Texts() const {
        std::vector<std::string> all;
        for (const TextCall& call : texts) all.push_back(call.text);
        return all;
    }

    std::vector<PlotRect> fills;
    std::vector<std::pair<PlotPoint, PlotPoint>> rules;
    std::vector<std::vector<PlotPoint>> lines;
    std::vector<PlotPoint> discs;
    std::vector<TextCall> texts;
};

constexpr double kWidth = 520.0, kHeight = 260.0;  // text of 10 pixels

RecordingCanvas Drawn(const CPlot& plot) {
    RecordingCanvas canvas;
    plot.Draw(canvas, kWidth, kHeight);
    return canvas;
}

}  // namespace

TEST(Plot, ReturnsTheValuesThatWereSet) {
    CPlot plot;
    EXPECT_EQ(std::get<int>(plot.Get(kGraphElementCount)), 0);
    plot.Call(kGraphAddElement, {});
    plot.Call(kGraphAddElement, {});
    EXPECT_EQ(std::get<int>(plot.Get(kGraphElementCount)), 2);
    plot.Call(kGraphClearElements, {});
    EXPECT_EQ(std::get<int>(plot.Get(kGraphElementCount)), 0);
    plot.Set(kGraphElementB, 5);
    EXPECT_EQ(std::get<int>(plot.Get(kGraphElementB)), 5);
    plot.Call(999, {});  // an unknown id
}

TEST(Plot, LabelsBothAxesFromEndToEndInTheirFormats) {
    const RecordingCanvas canvas = Drawn(MakePlot(10.0, 20.0, -1.0, 1.0));
    EXPECT_THAT(canvas.Texts(), ElementsAre("10.00", "15.00", "20.00", "-1.0", "-0.5", "0.0", "0.5", "1.0",
                                            "Caption", "Length", "Force"));
    EXPECT_TRUE(canvas.texts.back().turned);
}

// A text of 10 in a drawing of 520 by 260. The labels of y are 15 wide, those of x 25. Left of the frame: 2.6
// texts for the title, 15, 0.4 texts and a tick of 0.4: 49. Above it 2.9 texts, below it 4.2; to its right
// half a label and 0.6 texts, 18.5.
TEST(Plot, EveryPartHasItsPlace) {
    constexpr double kLeft = 49.0, kTop = 29.0, kRight = 502.0, kBottom = 218.0, kTick = 4.0;
    constexpr double kMiddle = (kLeft + kRight) / 2.0;
    const RecordingCanvas canvas = Drawn(MakePlot(10.0, 20.0, 0.0, 4.0));
    struct Place {
        const char* text;
        double x, y, height;
        TextAnchor anchor;
        bool turned, bold;
    };
    const Place places[] = {
        {"10.00", kLeft, 233.5, 10.0, TextAnchor::middle, false, false},  // 1.15 texts below the tick
        {"15.00", kMiddle, 233.5, 10.0, TextAnchor::middle, false, false},
        {"20.00", kRight, 233.5, 10.0, TextAnchor::middle, false, false},
        {"0.0", 41.0, kBottom + 3.5, 10.0, TextAnchor::end, false, false},  // 0.4 texts left of the tick
        {"1.0", 41.0, 174.25, 10.0, TextAnchor::end, false, false},         // a quarter of 189 higher
        {"2.0", 41.0, 127.0, 10.0, TextAnchor::end, false, false},
        {"3.0", 41.0, 79.75, 10.0, TextAnchor::end, false, false},
        {"4.0", 41.0, kTop + 3.5, 10.0, TextAnchor::end, false, false},
        {"Caption", kMiddle, kTop - 10.0, 12.0, TextAnchor::middle, false, true},
        {"Length", kMiddle, 250.5, 10.0, TextAnchor::middle, false, false},
        {"Force", 16.0, 123.5, 10.0, TextAnchor::middle, true, false},
    };
    ASSERT_EQ(canvas.texts.size(), std::size(places));
    for (std::size_t i = 0; i < std::size(places); ++i) {
        const RecordingCanvas::TextCall& text = canvas.texts[i];
        EXPECT_EQ(text.text, places[i].text);
        EXPECT_NEAR(text.at.x, places[i].x, 1e-9) << text.text;
        EXPECT_NEAR(text.at.y, places[i].y, 1e-9) << text.text;
        EXPECT_NEAR(text.height, places[i].height, 1e-9) << text.text;
        EXPECT_EQ(text.anchor, places[i].anchor) << text.text;
        EXPECT_EQ(text.turned, places[i].turned) << text.text;
        EXPECT_EQ(text.bold, places[i].bold) << text.text;
    }
    // Grid lines at the inner labels, the frame, a tick at each label.
    const double rules[][4] = {
        {kMiddle, kTop, kMiddle, kBottom},
        {kLeft, 170.75, kRight, 170.75},
        {kLeft, 123.5, kRight, 123.5},
        {kLeft, 76.25, kRight, 76.25},
        {kLeft, kTop, kRight, kTop},
        {kRight, kTop, kRight, kBottom},
        {kLeft, kBottom, kRight, kBottom},
        {kLeft, kTop, kLeft, kBottom},
        {kLeft, kBottom, kLeft, kBottom + kTick},
        {kMiddle, kBottom, kMiddle, kBottom + kTick},
        {kRight, kBottom, kRight, kBottom + kTick},
        {kLeft - kTick, kBottom, kLeft, kBottom},
        {kLeft - kTick, 170.75, kLeft, 170.75},
        {kLeft - kTick, 123.5, kLeft, 123.5},
        {kLeft - kTick, 76.25, kLeft, 76.25},
        {kLeft - kTick, kTop, kLeft, kTop},
    };
    ASSERT_EQ(canvas.rules.size(), std::size(rules));
    for (std::size_t i = 0; i < std::size(rules); ++i) {
        EXPECT_NEAR(canvas.rules[i].first.x, rules[i][0], 1e-9) << i;
        EXPECT_NEAR(canvas.rules[i].first.y, rules[i][1], 1e-9) << i;
        EXPECT_NEAR(canvas.rules[i].second.x, rules[i][2], 1e-9) << i;
        EXPECT_NEAR(canvas.rules[i].second.y, rules[i][3], 1e-9) << i;
    }
}

TEST(Plot, AZeroBetweenTheEndsHasALine) {
    const auto zeroLines = [](double min, double max, double y) {
        const RecordingCanvas canvas = Drawn(MakePlot(10.0, 20.0, min, max));
        return std::count_if(canvas.rules.begin(), canvas.rules.end(), [y](const auto& rule) {
            return std::fabs(rule.first.y - y) < 1e-9 && std::fabs(rule.second.y - y) < 1e-9;
        });
    };
    // -1 to 3: zero is a quarter up, on a grid line and on the tick of its label: one line more than those.
    EXPECT_EQ(zeroLines(-1.0, 3.0, 170.75), 3);
    EXPECT_EQ(zeroLines(1.0, 5.0, 170.75), 2);
    // At an end it is the frame's own line, with the tick.
    EXPECT_EQ(zeroLines(0.0, 4.0, 218.0), 2);
    EXPECT_EQ(zeroLines(-4.0, 0.0, 29.0), 2);
}

TEST(Plot, EverythingIsInsideTheDrawing) {
    for (const double width : {120.0, 580.0, 3000.0}) {
        for (const double height : {90.0, 306.0, 2000.0}) {
            RecordingCanvas canvas;
            CPlot plot = MakePlot(9.0, 24.0, -1952.0, 48.0);
            AddPoint(plot, 10.0, -500.0);
            AddPoint(plot, 20.0, 0.0);
            plot.Draw(canvas, width, height);
            for (const auto& text : canvas.texts) {
                EXPECT_GE(text.at.x, 0.0) << width << " x " << height;
                EXPECT_LE(text.at.x, width);
                EXPECT_GE(text.at.y, 0.0);
                EXPECT_LE(text.at.y, height);
            }
            for (const auto& [from, to] : canvas.rules) {
                EXPECT_LE(std::max(from.x, to.x), width);
                EXPECT_LE(std::max(from.y, to.y), height);
            }
        }
    }
}

TEST(Plot, JoinsThePointsByALine) {
    CPlot plot = MakePlot(10.0, 20.0, 0.0, 4.0);
    AddPoint(plot, 10.0, 0.0);
    AddPoint(plot, 15.0, 2.0);
    AddPoint(plot, 20.0, 4.0);
    const RecordingCanvas canvas = Drawn(plot);
    ASSERT_EQ(canvas.lines.size(), 1u);
    ASSERT_EQ(canvas.lines[0].size(), 3u);
    ASSERT_EQ(canvas.discs.size(), 3u);
    // The middle of the data is the middle between its ends.
    EXPECT_NEAR(canvas.discs[1].x, (canvas.discs[0].x + canvas.discs[2].x) / 2.0, 1e-9);
    EXPECT_NEAR(canvas.discs[1].y, (canvas.discs[0].y + canvas.discs[2].y) / 2.0, 1e-9);
    EXPECT_GT(canvas.discs[0].y, canvas.discs[2].y);  // greater values are higher up
}

TEST(Plot, AGapIsNotJoined) {
    CPlot plot = MakePlot(10.0, 20.0, 0.0, 4.0);
    plot.LeaveGap();  // before the first point there is no line to interrupt
    AddPoint(plot, 10.0, 0.0);
    AddPoint(plot, 12.0, 1.0);
    plot.LeaveGap();
    AddPoint(plot, 14.0, 2.0);
    plot.LeaveGap();
    AddPoint(plot, 16.0, 3.0);
    AddPoint(plot, 18.0, 3.5);
    AddPoint(plot, 20.0, 4.0);
    const RecordingCanvas canvas = Drawn(plot);
    ASSERT_EQ(canvas.discs.size(), 6u);
    ASSERT_EQ(canvas.lines.size(), 2u);
    EXPECT_EQ(canvas.lines[0].size(), 2u);
    EXPECT_EQ(canvas.lines[1].size(), 3u);
    EXPECT_EQ(canvas.lines[1][0].x, canvas.discs[3].x);
}

TEST(Plot, AGapWithoutAnElementIsNone) {
    CPlot plot;
    plot.LeaveGap();
    plot.Call(kGraphAddElement, {});
    plot.Set(kGraphElement, -1);
    plot.LeaveGap();
    EXPECT_EQ(std::get<int>(plot.Get(kGraphElementCount)), 1);
}

TEST(Plot, ALineToAPointOutsideEndsAtTheFrame) {
    CPlot plot = MakePlot(10.0, 20.0, 0.0, 4.0);
    AddPoint(plot, 10.0, 2.0);
    AddPoint(plot, 20.0, 6.0);  // leaves the frame half-way, at x 15
    const RecordingCanvas canvas = Drawn(plot);
    ASSERT_EQ(canvas.discs.size(), 1u);
    ASSERT_EQ(canvas.lines.size(), 1u);
    const double middle = plot.PixelOf(15.0, canvas, kWidth, kHeight);
    EXPECT_NEAR(canvas.lines[0].back().x, middle, 1e-9);
    CPlot outside = MakePlot(10.0, 20.0, 0.0, 4.0);
    AddPoint(outside, 10.0, 5.0);
    AddPoint(outside, 20.0, 6.0);
    EXPECT_TRUE(Drawn(outside).lines.empty());
    EXPECT_TRUE(Drawn(outside).discs.empty());
}

// The frame of this drawing goes from 29 down to 218: 2.9 heights of the text below the top, 4.2 above the
// bottom.
TEST(Plot, ALineCrossesTheFrameWhereItsValuesDo) {
    constexpr double kTop = 29.0, kMiddle = 123.5, kBottom = 218.0;
    struct Crossing {
        double outsideX, outsideY, insideX, insideY;  // values of the two points
        double x, pixelY;                             // where the line between them meets the frame
    };
    const Crossing crossings[] = {
        {10.0, 6.0, 20.0, 2.0, 15.0, kTop},      // 6 to 2 passes 4 half-way
        {20.0, 6.0, 10.0, 2.0, 15.0, kTop},      //
        {10.0, -2.0, 20.0, 2.0, 15.0, kBottom},  // -2 to 2 passes 0 half-way
        {5.0, 1.0, 15.0, 3.0, 10.0, kMiddle},    // 5 to 15 passes 10 half-way, at a value of 2
        {25.0, 1.0, 15.0, 3.0, 20.0, kMiddle},
    };
    for (const Crossing& c : crossings) {
        for (const bool enters : {true, false}) {
            CPlot plot = MakePlot(10.0, 20.0, 0.0, 4.0);
            if (enters) AddPoint(plot, c.outsideX, c.outsideY);
            AddPoint(plot, c.insideX, c.insideY);
            if (!enters) AddPoint(plot, c.outsideX, c.outsideY);
            const RecordingCanvas canvas = Drawn(plot);
            ASSERT_EQ(canvas.discs.size(), 1u);
            ASSERT_EQ(canvas.lines.size(), 1u);
            ASSERT_EQ(canvas.lines[0].size(), 2u);
            const PlotPoint& at = canvas.lines[0][enters ? 0 : 1];
            const PlotPoint& inside = canvas.lines[0][enters ? 1 : 0];
            EXPECT_NEAR(at.x, plot.PixelOf(c.x, canvas, kWidth, kHeight), 1e-9) << enters;
            EXPECT_NEAR(at.y, c.pixelY, 1e-9) << enters;
            EXPECT_EQ(inside.x, canvas.discs[0].x);
            EXPECT_EQ(inside.y, canvas.discs[0].y);
        }
    }
}

TEST(Plot, APlaceAndItsXBelongTogether) {
    const CPlot plot = MakePlot(10.0, 20.0, 0.0, 4.0);
    const RecordingCanvas canvas;
    for (const double x : {5.0, 10.0, 12.5, 20.0, 31.0}) {
        EXPECT_NEAR(plot.XAt(plot.PixelOf(x, canvas, kWidth, kHeight), canvas, kWidth, kHeight), x, 1e-9);
    }
}

TEST(Plot, ARangeWithoutLengthOrEndDrawsTheFrameAlone) {
    const double inf = std::numeric_limits<double>::infinity();
    const double ranges[][2] = {{1.0, 1.0}, {2.0, 1.0}, {-inf, inf}, {std::nan(""), 1.0}, {-1e308, 1e308}};
    for (const auto& range : ranges) {
        CPlot plot = MakePlot(range[0], range[1], 0.0, 1.0);
        AddPoint(plot, 1.0, 0.5);
        const RecordingCanvas canvas = Drawn(plot);
        EXPECT_TRUE(canvas.discs.empty());
        EXPECT_TRUE(canvas.lines.empty());
        EXPECT_GE(canvas.rules.size(), 4u);
        EXPECT_TRUE(std::isfinite(plot.PixelOf(1.0, canvas, kWidth, kHeight)));
    }
}

TEST(Plot, LongNumbersTakeTheShortForm) {
    const RecordingCanvas canvas = Drawn(MakePlot(1.0, 2.0, 0.0, 4e20));
    EXPECT_THAT(canvas.Texts(), testing::Contains("4e+20"));
}

TEST(Plot, PointsWithoutAnElementAreDropped) {
    CPlot plot;
    plot.Call(kGraphSetRanges, std::vector<GraphValue>{0.0, 1.0, 0.0, 1.0});
    AddPoint(plot, 0.5, 0.5);
    plot.Call(kGraphAddElement, {});
    plot.Set(kGraphElement, 7);
    AddPoint(plot, 0.5, 0.5);
    plot.Call(kGraphPlotPoint, {});
    plot.Call(kGraphSetRanges, {});
    EXPECT_TRUE(Drawn(plot).discs.empty());
}

TEST(Plot, ACaptionThatIsTooLongGetsSmaller) {
    CPlot plot = MakePlot(0.0, 1.0, 0.0, 1.0);
    plot.Set(kGraphCaption, std::string(80, 'x'));
    const RecordingCanvas canvas = Drawn(plot);
    for (const auto& text : canvas.texts) {
        if (text.text.size() == 80) {
            EXPECT_LT(text.height, 12.0);
        }
    }
}

}  // namespace lumerin
