// SPDX-License-Identifier: MIT
// The mouse on the grid: which cell a press finds, what a drag and its loss do, and the title tip below it.
#include "GridFixture.h"

namespace lumerin {

namespace {

constexpr const char* kLong = "a text too long for it";
constexpr unsigned kShiftKey = 16;

class GridMouse : public GridFixture {
  protected:
    bool Do(MouseDeed deed, int row, int column, KeyState keys = {}) {
        MouseAction action;
        action.deed = deed;
        action.spot = {MousePlace::cell, row, column};
        action.keys = keys;
        return m_host->Mouse(action);
    }
    bool Go(MousePlace place, MouseDeed deed = MouseDeed::move) {
        MouseAction action;
        action.deed = deed;
        action.spot.place = place;
        return m_host->Mouse(action);
    }
    bool Scroll(ScrollPart part, int count = 1) {
        MouseAction action;
        action.deed = MouseDeed::scroll;
        action.part = part;
        action.count = count;
        return m_host->Mouse(action);
    }
    bool IsEditing(int row, int column) { return m_grid.GetCell(row, column)->IsEditing(); }
};

using testing::ElementsAre;

TEST_F(GridMouse, TheClickThatBringsTheFocusFindsTheCellUnderThePointer) {
    Build(61, 2);
    ASSERT_TRUE(Scroll(ScrollPart::lineDown, 35));
    ASSERT_TRUE(Do(MouseDeed::doubleClick, 39, 1));
    EXPECT_EQ(Focus(), (CCellID{39, 1}));
    EXPECT_TRUE(IsEditing(39, 1));
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 35);
}

TEST_F(GridMouse, AClickOnAHalfVisibleRowLeavesItUnderThePointer) {
    Build(50, 2, {250, 195});  // nine rows and 15 pixels of the tenth
    EXPECT_TRUE(Do(MouseDeed::click, 9, 1));
    EXPECT_EQ(Focus(), (CCellID{9, 1}));
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 0);
    EXPECT_TRUE(Do(MouseDeed::doubleClick, 9, 1));
    EXPECT_TRUE(IsEditing(9, 1));
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 1);  // its editor is seen whole
}

TEST_F(GridMouse, AClickBesideTheCellsGivesTheKeysTheFirstCellInSight) {
    Build(50, 2, {250, 195});
    Scroll(ScrollPart::last);
    ASSERT_EQ(m_grid.FirstVisibleCell().row, 41);
    EXPECT_TRUE(Go(MousePlace::beside, MouseDeed::click));
    EXPECT_EQ(Focus(), (CCellID{41, 0}));
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 41);
    // With a focus cell it stays.
    Do(MouseDeed::click, 45, 1);
    Go(MousePlace::beside, MouseDeed::click);
    EXPECT_EQ(Focus(), (CCellID{45, 1}));
}

TEST_F(GridMouse, ShiftAndTheFirstClickSelectItsCellAlone) {
    Build(5, 4);
    Do(MouseDeed::click, 2, 2, kShift);
    EXPECT_THAT(m_grid.SelectedCells(), ElementsAre(CCellID{2, 2}));
    Do(MouseDeed::click, 3, 3, kShift);
    EXPECT_EQ(m_grid.SelectedCells().size(), 4u);
}

// A dialog whose handler takes rows away when the focus leaves another control.
class ShrinkingHost : public HeadlessGrid {
  public:
    ShrinkingHost(CGridCtrl& grid) : HeadlessGrid(grid, {250, 200}), m_ctrl(grid) {}
    void TakeFocus() override { m_ctrl.SetRowCount(1); }

  private:
    CGridCtrl& m_ctrl;
};

TEST(GridMouseFocus, ACellThatAHandlerTookAwayIsNotClicked) {
    CGridCtrl grid;
    grid.SetHost(std::make_unique<ShrinkingHost>(grid));
    grid.SetRowCount(5);
    grid.SetColumnCount(1);
    for (int row = 0; row < 5; ++row) grid.SetRowHeight(row, 20);
    grid.OnLeftDown({5, 70}, {});
    EXPECT_EQ(grid.FocusCell(), (CCellID{0, 0}));
}

TEST_F(GridMouse, LossOfTheCaptureEndsTheDragAndItsTimer) {
    for (const MouseDeed deed : {MouseDeed::lose, MouseDeed::cancel}) {
        Build(50, 2);
        Do(MouseDeed::press, 1, 0);
        ASSERT_TRUE(m_host->IsCaptured());
        Do(MouseDeed::move, 2, 1);
        Do(deed, 0, 0);
        EXPECT_FALSE(m_host->IsCaptured());  // and with it the timer
        Do(MouseDeed::move, 4, 1);
        m_grid.OnDragTimer();
        EXPECT_EQ(m_grid.SelectedCells().size(), 4u);
        EXPECT_TRUE(m_grid.OnChar('x', {}));  // no mouse action runs any more
        m_grid.EndOpenEdit();
        Go(MousePlace::here, MouseDeed::release);
    }
}

TEST_F(GridMouse, LossOfTheCaptureEndsTheDragOfABorder) {
    Build(3, 3);
    m_grid.SetFixedRowCount(1);
    m_grid.OnLeftDown({99, 5}, {});
    m_grid.OnMouseMove({110, 5}, true);
    m_grid.OnCaptureLost();
    m_grid.OnMouseMove({130, 5}, true);
    EXPECT_EQ(m_grid.GetColumnWidth(1), 60);
}

TEST_F(GridMouse, ADragPastAnEdgeScrollsToTheEnd) {
    Build(50, 2);
    Do(MouseDeed::press, 2, 1);
    Go(MousePlace::below);
    EXPECT_EQ(m_grid.SelectedCells().size(), 48u);
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 40);
    Go(MousePlace::above);
    EXPECT_EQ(m_grid.SelectedCells().size(), 3u);
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 0);
    Go(MousePlace::here, MouseDeed::release);
    EXPECT_FALSE(m_host->IsCaptured());
}

TEST_F(GridMouse, ADragScrollsOnlyOverOrPastTheFixedCells) {
    Build(50, 20);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    m_grid.UpdateScrollBars();
    m_grid.OnScroll(true, 10);
    m_grid.OnScroll(false, 5);
    m_grid.OnLeftDown({60, 45}, {});
    m_grid.OnMouseMove({50, 20}, true);  // the first pixel of the cells that scroll
    m_grid.OnDragTimer();
    EXPECT_EQ(m_grid.FirstVisibleCell(), (CCellID{11, 6}));
    m_grid.OnMouseMove({50, 19}, true);
    m_grid.OnDragTimer();
    EXPECT_EQ(m_grid.FirstVisibleCell(), (CCellID{10, 6}));
    m_grid.OnMouseMove({49, 20}, true);
    m_grid.OnDragTimer();
    EXPECT_EQ(m_grid.FirstVisibleCell(), (CCellID{10, 5}));
}

TEST_F(GridMouse, ADragPastTheSideReachesTheLastColumn) {
    Build(3, 3);
    Do(MouseDeed::press, 1, 1);
    Go(MousePlace::left);
    EXPECT_THAT(m_grid.SelectedCells(), ElementsAre(CCellID{1, 0}, CCellID{1, 1}));
}

TEST_F(GridMouse, ADragPastTheWindowReachesTheLastRowWhereNothingScrolls) {
    Build(3, 3);
    Do(MouseDeed::press, 1, 2);
    Go(MousePlace::below);
    EXPECT_THAT(m_grid.SelectedCells(), ElementsAre(CCellID{1, 2}, CCellID{2, 2}));
    Go(MousePlace::here, MouseDeed::release);
    Do(MouseDeed::press, 1, 1);
    Go(MousePlace::right);
    EXPECT_THAT(m_grid.SelectedCells(), ElementsAre(CCellID{1, 1}, CCellID{1, 2}));
}

TEST_F(GridMouse, APlaceThatIsNotVisibleIsRefused) {
    Build(50, 2);
    EXPECT_FALSE(Do(MouseDeed::click, 30, 0));
    EXPECT_FALSE(Do(MouseDeed::click, 1, 2));
    EXPECT_FALSE(Do(MouseDeed::click, -1, 0));
    EXPECT_EQ(Focus(), CCellID{});
    Build(3, 2);
    EXPECT_FALSE(Scroll(ScrollPart::lineDown));
}

// ---- the title tip

class GridTip : public GridMouse {
  protected:
    void ShowTip() {
        Build(4, 4);
        m_grid.SetCellText(1, 1, kLong);
        ASSERT_TRUE(Do(MouseDeed::move, 1, 1));
        ASSERT_EQ(m_host->Tip(), kLong);
    }
};

TEST_F(GridTip, ADoubleClickOnItCountsForTheCellBelow) {
    ShowTip();
    Do(MouseDeed::doubleClick, 1, 1);
    EXPECT_TRUE(IsEditing(1, 1));
    EXPECT_EQ(m_host->Tip(), "");
}

TEST_F(GridTip, ADoubleClickCountsThoughTheTipComesBackBetween) {
    ShowTip();
    Do(MouseDeed::shakyDouble, 1, 1);
    EXPECT_TRUE(IsEditing(1, 1));
    EXPECT_EQ(m_host->Tip(), "");
}

TEST_F(GridTip, OneClickOnItIsAClickOnTheCellBelow) {
    ShowTip();
    Do(MouseDeed::click, 1, 1);
    EXPECT_EQ(Focus(), (CCellID{1, 1}));
    EXPECT_EQ(m_host->Tip(), "");
    EXPECT_FALSE(IsEditing(1, 1));
    // Much later it is another first click.
    Do(MouseDeed::click, 1, 1);
    EXPECT_FALSE(IsEditing(1, 1));
}

TEST_F(GridTip, ItCoversItsNeighbourAndAClickThereIsTheNeighbours) {
    ShowTip();
    Do(MouseDeed::click, 1, 2);
    EXPECT_EQ(Focus(), (CCellID{1, 2}));
}

TEST(TitleTip, TwoPressesWithinTheDoubleClickTimeAreOneDoubleClickWhereOneHitTheTip) {
    const CCellID cell{1, 1};
    const unsigned limit = gridplatform::DoubleClickTime();
    CTitleTip tip;
    EXPECT_FALSE(tip.IsSecondPress(cell, 1000, true));
    EXPECT_TRUE(tip.IsSecondPress(cell, 1000 + limit, false));
    EXPECT_FALSE(tip.IsSecondPress(cell, 1001 + limit, true));  // a third one begins anew
    EXPECT_FALSE(tip.IsSecondPress(cell, 1002 + 2 * limit, true));
    EXPECT_FALSE(tip.IsSecondPress({2, 1}, 1003 + 2 * limit, true));
    EXPECT_TRUE(tip.IsSecondPress({2, 1}, 1004 + 2 * limit, true));
    // Two on the grid are the platform's.
    EXPECT_FALSE(tip.IsSecondPress(cell, 9000, false));
    EXPECT_FALSE(tip.IsSecondPress(cell, 9001, false));
    EXPECT_TRUE(tip.IsSecondPress(cell, 9002, true));
    // Across the wrap of the clock, and on no cell at all.
    EXPECT_FALSE(tip.IsSecondPress(cell, 0xffffffffu, true));
    EXPECT_TRUE(tip.IsSecondPress(cell, 3, true));
    EXPECT_FALSE(tip.IsSecondPress({}, 20000, true));
    EXPECT_FALSE(tip.IsSecondPress({}, 20001, true));
    EXPECT_FALSE(tip.IsSecondPress(cell, 30000, true));
    tip.ForgetPress();
    EXPECT_FALSE(tip.IsSecondPress(cell, 30001, true));
}

TEST_F(GridTip, APressOnItSoonAfterADoubleClickIsAFirstOne) {
    ShowTip();
    m_grid.SetEditable(false);
    const GridPoint place{75, 30};
    m_grid.OnLeftDown(place, {}, 1000);
    m_grid.OnLeftUp(place);
    m_grid.OnDoubleClick(place);
    m_grid.OnMouseMove({76, 30}, false);
    ASSERT_EQ(m_host->Tip(), kLong);
    m_grid.OnTipLeftDown({76, 30}, {}, 1200);
    EXPECT_TRUE(m_host->IsCaptured());  // as for a drag that begins
}

TEST_F(GridTip, AnyButtonHidesItAndItStaysAwayUntilTheMouseMoves) {
    for (const MouseDeed deed : {MouseDeed::click, MouseDeed::rightClick}) {
        ShowTip();
        Do(deed, 1, 1);
        EXPECT_EQ(m_host->Tip(), "");
        m_grid.OnMouseMove({75, 30}, false);  // the platform repeats the place
        EXPECT_EQ(m_host->Tip(), "");
        m_grid.OnMouseMove({76, 30}, false);
        EXPECT_EQ(m_host->Tip(), kLong);
        m_grid.OnMouseMove({75, 30}, false);
        Go(MousePlace::away);
        EXPECT_EQ(m_host->Tip(), "");
    }
}

TEST_F(GridTip, ItStaysAwayAfterAKeyThoughTheMouseHadMovedOverIt) {
    ShowTip();
    m_grid.OnTipMove({80, 32});
    Press(kShiftKey);
    EXPECT_EQ(m_host->Tip(), "");
    m_grid.OnMouseMove({80, 32}, false);
    EXPECT_EQ(m_host->Tip(), "");
}

TEST_F(GridTip, ATextThatChangesUnderItRenewsOrHidesIt) {
    ShowTip();
    m_grid.SetCellText(1, 1, "another text too long for it");
    EXPECT_EQ(m_host->Tip(), "another text too long for it");
    m_grid.SetCellText(1, 2, "short");
    EXPECT_EQ(m_host->Tip(), "another text too long for it");
    m_grid.SetCellText(1, 1, "short");
    EXPECT_EQ(m_host->Tip(), "");
    EXPECT_EQ(m_grid.TipCell(), CCellID{});
}

TEST_F(GridTip, ACellThatChangesItsPlaceOrSizeLosesIt) {
    ShowTip();
    m_grid.SetColumnWidth(0, 60);
    EXPECT_EQ(m_host->Tip(), "");
}

TEST_F(GridTip, ATextCountsAsCutOffByTheWidthThatItsCellIsDrawnWith) {
    Build(2, 2);
    m_grid.SetCellText(0, 0, "1234567");  // 42 pixels
    m_grid.SetColumnWidth(0, 49);         // less the line and two margins of 3
    Do(MouseDeed::move, 0, 0);
    EXPECT_EQ(m_host->Tip(), "");
    m_grid.SetColumnWidth(0, 48);
    Do(MouseDeed::move, 1, 0);
    Do(MouseDeed::move, 0, 0);
    EXPECT_EQ(m_host->Tip(), "1234567");
}

TEST_F(GridTip, ACellThatIsEditedHasNone) {
    ShowTip();
    Do(MouseDeed::doubleClick, 1, 1);
    Do(MouseDeed::move, 0, 1);
    m_grid.OnMouseMove({75, 30}, false);
    EXPECT_EQ(m_host->Tip(), "");
}

}  // namespace

}  // namespace lumerin
