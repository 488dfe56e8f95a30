// SPDX-License-Identifier: MIT
// Positions in the painted window: lines, backgrounds, texts, the frame of the focus.
#include <cstdio>
#include <vector>

#include "GridFixture.h"

namespace lumerin {

namespace {

using testing::ElementsAre;

// Records each call with its place, left, top, right, bottom, and its colour.
class PlaceDC : public CDC {
  public:
    explicit PlaceDC(std::vector<std::string>& log) : m_log(log) {}
    void FillRect(const GridRect& r, Colour colour) override { Log("fill", r, colour, ""); }
    void Line(GridPoint a, GridPoint b, Colour colour) override {
        Log("line", {a.x, a.y, b.x, b.y}, colour, "");
    }
    void DrawText(std::string_view text, const GridRect& r, unsigned format, const FontRecord&,
                  Colour colour) override {
        Log("text", r, colour, " " + std::to_string(format) + " " + std::string(text));
    }
    GridSize TextSize(std::string_view text, const FontRecord&) override {
        return {static_cast<int>(text.size()) * 6, 12};
    }
    std::unique_ptr<CDC> MakeCompatible(const GridRect&) override { return std::make_unique<PlaceDC>(m_log); }
    void CopyFrom(CDC&, const GridRect& r) override { Log("copy", r, 0, ""); }

  private:
    void Log(const char* what, const GridRect& r, Colour colour, const std::string& rest) {
        char text[80];
        std::snprintf(text, sizeof text, "%s %d %d %d %d %06x", what, r.left, r.top, r.right, r.bottom,
                      colour);
        m_log.push_back(text + rest);
    }
    std::vector<std::string>& m_log;
};

class GridDraw : public GridFixture {
  protected:
    std::vector<std::string> Painted(const GridRect& area) {
        std::vector<std::string> log;
        PlaceDC dc(log);
        m_grid.Paint(dc, area);
        return log;
    }
    // What is painted of one cell, without the window's background and the copy: those of all calls that are
    // in it.
    std::vector<std::string> PaintedCell(int left, int top) {
        std::vector<std::string> log;
        for (const std::string& call : Painted({0, 0, 250, 200})) {
            int l = 0, t = 0, r = 0, b = 0;
            if (std::sscanf(call.c_str(), "%*s %d %d %d %d", &l, &t, &r, &b) != 4) continue;
            if (l >= left && t >= top && r <= left + 50 && b <= top + 20) log.push_back(call);
        }
        return log;
    }
};

// Left, on one line, in the middle of its height, no prefix, an ellipsis: 0 + 32 + 4 + 2048 + 32768.
constexpr const char* kText = "34852";

// The lines take the last row and column of pixels; texts keep 3 pixels from the sides.
TEST_F(GridDraw, ACellHasItsLinesItsBackgroundAndItsText) {
    Build(1, 1);
    EXPECT_THAT(Painted({0, 0, 250, 200}),
                ElementsAre("fill 0 0 250 200 a0a0a0", "line 0 19 50 19 c0c0c0", "line 49 0 49 20 c0c0c0",
                            "fill 0 0 49 19 ffffff", std::string("text 3 0 46 19 000000 ") + kText + " r0c0",
                            "copy 0 0 250 200 000000"));
    EXPECT_THAT(Painted({10, 10, 10, 20}), testing::IsEmpty());
    EXPECT_THAT(Painted({10, 10, 20, 10}), testing::IsEmpty());
}

TEST_F(GridDraw, TheFocusHasAFrameAndTheRestOfTheSelectionItsColour) {
    Build(2, 2);
    FocusOn(1, 0);
    m_grid.SelectRange(1, 0, 1, 1, false, true);
    EXPECT_THAT(
        PaintedCell(0, 20),
        ElementsAre("line 0 39 50 39 c0c0c0", "line 49 20 49 40 c0c0c0", "fill 0 20 49 39 ffffff",
                    std::string("text 3 20 46 39 000000 ") + kText + " r1c0", "line 0 20 49 20 000000",
                    "line 0 38 49 38 000000", "line 0 20 0 39 000000", "line 48 20 48 39 000000"));
    EXPECT_THAT(PaintedCell(50, 20),
                ElementsAre("line 50 39 100 39 c0c0c0", "line 99 20 99 40 c0c0c0", "fill 50 20 99 39 f0d9c4",
                            std::string("text 53 20 96 39 000000 ") + kText + " r1c1"));
    EXPECT_THAT(PaintedCell(50, 0), testing::Contains("fill 50 0 99 19 ffffff"));
}

TEST_F(GridDraw, HeadingsHaveTheColourOfButtonsUnlessACellHasItsOwn) {
    Build(2, 2);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    const auto background = [this](int left, int top) {
        const std::string call = PaintedCell(left, top).at(2);  // after both lines
        return call.substr(0, 4) + call.substr(call.rfind(' '));
    };
    EXPECT_EQ(background(0, 0), "fill f0f0f0");
    EXPECT_EQ(background(50, 0), "fill f0f0f0");
    EXPECT_EQ(background(0, 20), "fill f0f0f0");
    EXPECT_EQ(background(50, 20), "fill ffffff");
    m_grid.SetCellBackground(1, 0, 0x123456);
    m_grid.SetCellBackground(1, 1, 0x654321);
    EXPECT_EQ(background(0, 20), "fill 123456");
    EXPECT_EQ(background(50, 20), "fill 654321");
}

TEST_F(GridDraw, ATextWithoutSpaceIsLeftOut) {
    Build(1, 3);
    m_grid.SetColumnWidth(0, 8);  // 7 without its line, 1 within the margins
    m_grid.SetColumnWidth(1, 7);  // 6 and none
    m_grid.SetCellText(0, 2, "");
    std::vector<std::string> texts;
    for (const std::string& call : Painted({0, 0, 250, 200})) {
        if (call.starts_with("text")) texts.push_back(call);
    }
    EXPECT_THAT(texts, ElementsAre(std::string("text 3 0 4 19 000000 ") + kText + " r0c0"));
}

// Rows of 20 in a window of 50, columns of 50 in one of 120: the third of each shows in part, the fourth not.
TEST_F(GridDraw, CellsThatShowInPartAreDrawnAndHiddenOnesAreNot) {
    Build(9, 9, {137, 67});
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    m_grid.SetRowHeight(2, 0);
    m_grid.SetColumnWidth(2, 0);
    std::vector<std::string> texts;
    for (const std::string& call : Painted({0, 0, 137, 67})) {
        if (call.starts_with("text")) texts.push_back(call.substr(call.rfind(' ') + 1));
    }
    // The scroll bars are 17 wide.
    EXPECT_THAT(texts, ElementsAre("r0c0", "r0c1", "r0c3", "r1c0", "r1c1", "r1c3", "r3c0", "r3c1", "r3c3"));
}

// Both scroll bars of 17 leave 233 by 183.
TEST_F(GridDraw, ACellHasAPlaceAsLongAsItIsNotScrolledOut) {
    Build(50, 20, {250, 200});
    const auto place = [this](int row, int column) {
        GridRect rect{-1, -1, -1, -1};
        return m_grid.CellRect(row, column, rect) ? rect : GridRect{};
    };
    constexpr GridRect kNone{};
    EXPECT_EQ(place(9, 4), (GridRect{200, 180, 250, 200}));
    EXPECT_EQ(place(10, 0), kNone);
    EXPECT_EQ(place(0, 5), kNone);
    EXPECT_EQ(place(-1, 0), kNone);
    EXPECT_EQ(place(0, 20), kNone);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    m_grid.ScrollCellIntoView(49, 19);
    // The last row ends with the window or before it: 8 rows fit below the heading, from 42 on; 3 columns,
    // from 17 on.
    EXPECT_EQ(place(0, 0), (GridRect{0, 0, 50, 20}));
    EXPECT_EQ(place(42, 17), (GridRect{50, 20, 100, 40}));
    EXPECT_EQ(place(49, 19), (GridRect{150, 160, 200, 180}));
    EXPECT_EQ(place(41, 17), kNone);
    EXPECT_EQ(place(42, 16), kNone);
    EXPECT_EQ(place(0, 18), (GridRect{100, 0, 150, 20}));
    m_grid.SetRowHeight(43, 0);
    EXPECT_EQ(place(43, 17), kNone);
    EXPECT_EQ(place(44, 17), (GridRect{50, 40, 100, 60}));
}

// A window that counts how often all of it is drawn anew.
class CountingGrid : public HeadlessGrid {
  public:
    CountingGrid(CGridCtrl& grid, GridSize size) : HeadlessGrid(grid, size) {}
    void InvalidateAll() override { ++whole; }
    int whole = 0;
};

// The scroll bars are set before each paint: a picture that fits them must not be asked for again.
TEST(GridBars, OnlyAPictureThatIsScrolledTooFarIsDrawnAnewWithTheBars) {
    CGridCtrl grid;
    auto host = std::make_unique<CountingGrid>(grid, GridSize{250, 200});
    CountingGrid& window = *host;
    grid.SetHost(std::move(host));
    grid.SetRowCount(50);
    grid.SetColumnCount(20);
    for (int row = 0; row < 50; ++row) grid.SetRowHeight(row, 20);
    for (int column = 0; column < 20; ++column) grid.SetColumnWidth(column, 50);
    grid.UpdateScrollBars();
    // Both bars leave 233 by 183: nine rows and four columns.
    for (const CCellID end : {CCellID{0, 0}, CCellID{49, 0}, CCellID{0, 19}, CCellID{49, 19}}) {
        grid.ScrollCellIntoView(end.row, end.column);
        window.whole = 0;
        grid.UpdateScrollBars();
        EXPECT_EQ(window.whole, 0) << end.row << ' ' << end.column;
    }
    EXPECT_EQ(grid.FirstVisibleCell(), (CCellID{41, 16}));
    grid.SetColumnCount(19);
    window.whole = 0;
    grid.UpdateScrollBars();
    EXPECT_EQ(grid.FirstVisibleCell(), (CCellID{41, 15}));
    EXPECT_EQ(window.whole, 1);
}

}  // namespace

}  // namespace lumerin
