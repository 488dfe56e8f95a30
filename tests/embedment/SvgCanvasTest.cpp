// SPDX-License-Identifier: MIT
#include "embedment/SvgCanvas.h"

#include <gmock/gmock.h>

#include "PlotSamples.h"

namespace lumerin {

using testing::HasSubstr;
using testing::Not;

TEST(SvgCanvas, WritesTextsAsXml) {
    CPlot plot = MakePlot(0.0, 1.0, 0.0, 1.0);
    plot.Set(kGraphCaption, std::string("a<b> & \"c\" \x91"
                                        "d\x92 \x01\xb0"));
    const std::string picture = PlotAsSvg(plot, 300.0, 200.0);
    EXPECT_THAT(picture, HasSubstr("a&lt;b&gt; &amp; &quot;c&quot; \xe2\x80\x98"
                                   "d\xe2\x80\x99 \xc2\xb0<"));
    EXPECT_THAT(picture, HasSubstr("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"300\" height=\"200\""));
    EXPECT_THAT(picture, Not(HasSubstr("nan")));
    EXPECT_EQ(picture.substr(picture.size() - 7), "</svg>\n");
}

TEST(SvgCanvas, WritesEachPartWithItsPlaceAndColour) {
    SvgCanvas canvas(30.0, 20.5);
    canvas.FillRect({1.0, 2.0, 4.25, 8.0}, 0x00abcd);
    canvas.RuleLine({1.7, 2.0}, {1.7, 9.99}, 1.0, 0x123456);
    canvas.Polyline(std::vector<PlotPoint>{{0.0, 1.5}, {-0.001, 2.005}}, 1.3, 0xfedcba);
    canvas.Disc({5.0, 6.0}, 3.0, 0x000001, 0xffffff);
    canvas.Text("a", {1.0, 2.0}, {12.0, false}, TextAnchor::start, false, 0x222222);
    canvas.Text("b", {3.0, 4.0}, {10.5, true}, TextAnchor::end, true, 0x222222);
    EXPECT_EQ(
        canvas.Document(),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"30\" height=\"20.5\" viewBox=\"0 0 30 20.5\""
        " font-family=\"Segoe UI, Helvetica, Arial, sans-serif\">\n"
        "<rect x=\"1\" y=\"2\" width=\"3.25\" height=\"6\" fill=\"#00abcd\"/>\n"
        // A line one pixel wide runs through the centres of its pixels.
        "<path d=\"M1.5 2.5L1.5 9.5\" stroke=\"#123456\" stroke-width=\"1\" stroke-linecap=\"square\"/>\n"
        "<polyline points=\"0,1.5 0,2\" stroke=\"#fedcba\" stroke-width=\"1.3\" fill=\"none\""
        " stroke-linejoin=\"round\" stroke-linecap=\"round\"/>\n"
        // The ring takes a third of the radius.
        "<circle cx=\"5\" cy=\"6\" r=\"3\" fill=\"#000001\" stroke=\"#ffffff\" stroke-width=\"1\"/>\n"
        "<text font-size=\"12\" text-anchor=\"start\" fill=\"#222222\" x=\"1\" y=\"2\">a</text>\n"
        "<text font-size=\"10.5\" text-anchor=\"end\" fill=\"#222222\" font-weight=\"bold\""
        " transform=\"translate(3 4) rotate(-90)\">b</text>\n"
        "</svg>\n");
}

// Widths of a plain sans serif font in shares of its height, near enough to keep texts apart.
TEST(SvgCanvas, MeasuresTextsByTheirCharacters) {
    const SvgCanvas canvas(10.0, 10.0);
    const auto width = [&canvas](const char* text) { return canvas.TextWidth(text, {100.0, false}); };
    for (const char* text : {"0", "5", "9"}) EXPECT_NEAR(width(text), 55.6, 1e-9) << text;
    for (const char* text : {".", ",", " ", "i", "l", "j"}) EXPECT_NEAR(width(text), 26.0, 1e-9) << text;
    for (const char* text : {"-", "(", ")", "t", "f", "r"}) EXPECT_NEAR(width(text), 33.3, 1e-9) << text;
    for (const char* text : {"m", "w", "M", "W"}) EXPECT_NEAR(width(text), 85.0, 1e-9) << text;
    for (const char* text : {"A", "K", "Z"}) EXPECT_NEAR(width(text), 68.0, 1e-9) << text;
    for (const char* text : {"a", "z", "/", ":", "@", "["}) EXPECT_NEAR(width(text), 55.0, 1e-9) << text;
    EXPECT_NEAR(width("M1 a"), 85.0 + 55.6 + 26.0 + 55.0, 1e-9);
    EXPECT_NEAR(canvas.TextWidth("M", {10.0, true}), 8.5 * 1.06, 1e-9);
}

TEST(SvgCanvas, DrawsEachPointAndOneLine) {
    CPlot plot = MakePlot(0.0, 1.0, 0.0, 1.0);
    AddPoint(plot, 0.25, 0.25);
    AddPoint(plot, 0.75, 0.75);
    const std::string picture = PlotAsSvg(plot, 300.0, 200.0);
    const auto count = [&picture](const std::string& word) {
        std::size_t found = 0;
        for (std::size_t at = picture.find(word); at != std::string::npos; at = picture.find(word, at + 1))
            ++found;
        return found;
    };
    EXPECT_EQ(count("<circle"), 2u);
    EXPECT_EQ(count("<polyline"), 1u);
    EXPECT_EQ(count("stroke=\"#ff0000\""), 4u);  // the colour is blue, green, red from the top: grid lines
}

}  // namespace lumerin
