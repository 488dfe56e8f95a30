// SPDX-License-Identifier: MIT
// What the grid and its helpers draw and show: title tip, link label, off-screen drawing, printing.
#include <vector>

#include "GridFixture.h"
#include "grid/GridHelpers.h"
#include "grid/Label.h"
#include "grid/MemDC.h"

namespace lumerin {

namespace {

class GridViewing : public GridFixture {};

// A surface that records what is drawn on it.
class RecordingDC : public CDC {
  public:
    explicit RecordingDC(std::vector<std::string>& log, std::string name = "target")
        : m_log(log), m_name(std::move(name)) {}
    void FillRect(const GridRect&, Colour) override { m_log.push_back(m_name + " fill"); }
    void Line(GridPoint, GridPoint, Colour) override { m_log.push_back(m_name + " line"); }
    void DrawText(std::string_view text, const GridRect& rect, unsigned, const FontRecord& font,
                  Colour) override {
        m_log.push_back(m_name + " text " + std::string(text));
        rects.push_back(rect);
        fonts.push_back(font);
    }
    GridSize TextSize(std::string_view text, const FontRecord&) override {
        measured = text;
        return {static_cast<int>(text.size()) * 5, 10};
    }
    std::unique_ptr<CDC> MakeCompatible(const GridRect&) override {
        return std::make_unique<RecordingDC>(m_log, "bitmap");
    }
    void CopyFrom(CDC&, const GridRect&) override { m_log.push_back(m_name + " copy"); }

    std::string measured;
    std::vector<GridRect> rects;
    std::vector<FontRecord> fonts;

  private:
    std::vector<std::string>& m_log;
    std::string m_name;
};

TEST_F(GridViewing, PaintingReachesTheWindowInOneStep) {
    Build(1, 1);
    std::vector<std::string> log;
    RecordingDC dc(log);
    m_grid.Paint(dc, {0, 0, 250, 200});
    ASSERT_FALSE(log.empty());
    EXPECT_EQ(log.back(), "target copy");
    for (std::size_t i = 0; i + 1 < log.size(); ++i) EXPECT_EQ(log[i].substr(0, 6), "bitmap") << log[i];
    EXPECT_THAT(log, testing::Contains("bitmap text r0c0"));
}

TEST_F(GridViewing, OnlyVisibleRowsAreDrawn) {
    Build(1000, 1, {250, 200});
    std::vector<std::string> log;
    RecordingDC dc(log);
    m_grid.ScrollCellIntoView(500, 0);
    m_grid.Paint(dc, {0, 0, 250, 200});
    EXPECT_THAT(log, testing::Contains("bitmap text r500c0"));
    EXPECT_THAT(log, testing::Not(testing::Contains("bitmap text r0c0")));
    EXPECT_EQ(std::count_if(log.begin(), log.end(),
                            [](const std::string& s) { return s.starts_with("bitmap text"); }),
              10);
}

TEST(MemDC, WhatIsDrawnGoesToTheBitmapAndIsCopiedAtTheEnd) {
    std::vector<std::string> log;
    RecordingDC target(log);
    {
        Ovrelle::CMemDC dc(target, {0, 0, 10, 10});
        dc.FillRect({0, 0, 10, 10}, 0);
        dc.Line({0, 0}, {5, 0}, 0);
        EXPECT_THAT(log, testing::ElementsAre("bitmap fill", "bitmap line"));
    }
    EXPECT_EQ(log.back(), "target copy");
}

TEST(TitleTip, ATextIsCutOffWhenItIsWiderThanTheCellWithinItsMargins) {
    EXPECT_FALSE(CTitleTip::IsCutOff(44, 50, 3));
    EXPECT_TRUE(CTitleTip::IsCutOff(45, 50, 3));
}

TEST_F(GridViewing, TheTipShowsOverACutOffTextAndGoesWithTheNextKey) {
    Build(2, 2);
    m_grid.SetCellText(0, 0, "a text too long for it");
    m_grid.OnMouseMove({10, 10}, false);
    EXPECT_EQ(m_host->Tip(), "a text too long for it");
    Press(kKeyDown);
    EXPECT_EQ(m_host->Tip(), "");
}

TEST_F(GridViewing, TheTipGoesWhenThePointerIsOverAnotherCell) {
    Build(2, 2);
    m_grid.SetCellText(0, 0, "a text too long for it");
    m_grid.OnMouseMove({10, 10}, false);
    m_grid.OnMouseMove({75, 10}, false);
    EXPECT_EQ(m_host->Tip(), "");
}

TEST_F(GridViewing, ATextThatFitsHasNoTip) {
    Build(2, 2);
    m_grid.OnMouseMove({10, 10}, false);
    EXPECT_EQ(m_host->Tip(), "");
}

TEST(Label, ANewLabelIsAPlainText) {
    const CLabel label;
    EXPECT_EQ(label.TextColour(), gridplatform::SystemColour(8));
    EXPECT_FALSE(label.HasHandCursor());
    EXPECT_FALSE(label.IsHover());
}

TEST(Label, AScaledLabelIsALink) {
    CLabel label;
    label.SetScale(1.25);
    EXPECT_EQ(label.TextColour(), 0xcc6600u);
    EXPECT_EQ(label.Font().face, "Segoe UI");
    EXPECT_EQ(label.Font().height, -15);
    EXPECT_TRUE(label.HasHandCursor());
    CLabel odd;
    odd.SetScale(1.46);  // 17.52 pixels
    EXPECT_EQ(odd.Font().height, -17);
}

TEST(Label, ThePointerTurnsTheLinkBlueAndBack) {
    CLabel label;
    label.SetScale(1.0);
    label.OnMouseMove();
    EXPECT_TRUE(label.IsHover());
    EXPECT_EQ(label.TextColour(), 0xff0000u);
    label.SetHover(false);
    EXPECT_FALSE(label.IsHover());
    EXPECT_EQ(label.TextColour(), 0xcc6600u);
}

TEST(Label, TheScaleIsNeverBelowOne) {
    EXPECT_DOUBLE_EQ(ScreenScale(), 1.0);
}

TEST_F(GridViewing, PrintingMeasures52LettersOfItsAlphabet) {
    Build(1, 1);
    std::vector<std::string> log;
    RecordingDC dc(log);
    m_grid.PrintBegin(dc, {600, 200});
    EXPECT_EQ(dc.measured, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSATUVWXY");
    EXPECT_EQ(m_grid.PrintCharacterWidth(), 5);
    EXPECT_EQ(m_grid.PrintFont().face, "Arial");
    EXPECT_EQ(m_grid.PrintFont().height, -10);
    m_grid.PrintEnd();
    EXPECT_EQ(m_grid.PrintCharacterWidth(), 0);
}

TEST_F(GridViewing, APrintedPageRepeatsTheHeadingRows) {
    Build(11, 2);
    m_grid.SetFixedRowCount(1);
    m_grid.SetPrintTexts("head", "sub", "foot");
    std::vector<std::string> log;
    RecordingDC dc(log);
    m_grid.PrintBegin(dc, {600, 96});  // 8 lines of 12: header, heading, footer, one fixed row, four rows
    EXPECT_EQ(m_grid.PrintPageCount(), 3);
    m_grid.PrintPage(dc, 3);
    EXPECT_THAT(log, testing::ElementsAre("target text head", "target text sub", "target text r0c0",
                                          "target text r0c1", "target text r9c0", "target text r9c1",
                                          "target text r10c0", "target text r10c1", "target text foot"));
    log.clear();
    m_grid.PrintPage(dc, 4);
    m_grid.PrintPage(dc, 0);
    EXPECT_TRUE(log.empty());
}

TEST_F(GridViewing, APageThatIsTooLowPrintsARowAtATime) {
    Build(6, 2);
    m_grid.SetFixedRowCount(1);
    std::vector<std::string> log;
    RecordingDC dc(log);
    for (const int height : {60, 30}) {  // five lines of 12, the least that a row fits in; two
        m_grid.PrintBegin(dc, {600, height});
        EXPECT_EQ(m_grid.PrintPageCount(), 5) << height;
    }
}

TEST_F(GridViewing, ShadedCellsAreReadOnlyInTheFaceColour) {
    Build(3, 3);
    ShadeFixedCells(m_grid, 1, 1);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const bool shaded = row == 0 || column == 0;
            EXPECT_EQ(m_grid.IsCellReadOnly(row, column), shaded);
            EXPECT_EQ(m_grid.GetCell(row, column)->GetBackground() == gridplatform::SystemColour(15), shaded);
        }
    }
}

TEST_F(GridViewing, InTheCornerTheColumnsFormatWins) {
    Build(3, 3);
    SetGridAlignment(m_grid, 1, 1, 0, 1, 2);
    EXPECT_EQ(m_grid.GetCell(0, 0)->GetFormat(), 0u);
    EXPECT_EQ(m_grid.GetCell(0, 1)->GetFormat(), 1u);
    EXPECT_EQ(m_grid.GetCell(1, 0)->GetFormat(), 0u);
    EXPECT_EQ(m_grid.GetCell(1, 1)->GetFormat(), 2u);
}

TEST_F(GridViewing, AlignmentCountsBelowOneTakeTheGridsOwn) {
    Build(3, 3);
    m_grid.SetFixedRowCount(2);
    SetGridAlignment(m_grid, 0, 0, 0, 1, 2);
    EXPECT_EQ(m_grid.GetCell(1, 0)->GetFormat(), 1u);
    EXPECT_EQ(m_grid.GetCell(2, 0)->GetFormat(), 2u);
}

TEST_F(GridViewing, FittedColumnsFillTheWindowBesideTheScrollBar) {
    Build(3, 3, {117, 100});
    const std::array<int, 3> weights{1, 1, 1};
    std::array<int, 3> widths{};
    FitColumns(m_grid, weights, widths);
    EXPECT_EQ(widths, (std::array<int, 3>{34, 33, 33}));  // 100 pixels remain beside the bar
    EXPECT_EQ(m_grid.GetColumnWidth(0), 34);
    EXPECT_EQ(m_grid.GetColumnWidth(2), 33);
    EXPECT_EQ(m_host->ClientSize().width, 100);
}

}  // namespace

}  // namespace lumerin
