// SPDX-License-Identifier: MIT
#include "GridFixture.h"

namespace lumerin {

namespace {

class GridFocus : public GridFixture {};

TEST_F(GridFocus, ArrowsMoveByOneAndStopAtTheEdges) {
    Build(3, 3);
    FocusOn(1, 1);
    Press(kKeyDown);
    EXPECT_EQ(Focus(), (CCellID{2, 1}));
    Press(kKeyDown);
    EXPECT_EQ(Focus(), (CCellID{2, 1}));
    Press(kKeyRight);
    Press(kKeyRight);
    EXPECT_EQ(Focus(), (CCellID{2, 2}));
    Press(kKeyUp);
    Press(kKeyLeft);
    EXPECT_EQ(Focus(), (CCellID{1, 1}));
}

TEST_F(GridFocus, TheFocusCellCarriesItsStateBit) {
    Build(2, 2);
    FocusOn(0, 0);
    Press(kKeyDown);
    EXPECT_FALSE(m_grid.GetCell(0, 0)->IsFocused());
    EXPECT_TRUE(m_grid.GetCell(1, 0)->IsFocused());
}

TEST_F(GridFocus, AColumnOfWidthZeroIsPassedOver) {
    Build(2, 3);
    m_grid.SetColumnWidth(1, 0);
    FocusOn(0, 0);
    Press(kKeyRight);
    EXPECT_EQ(Focus(), (CCellID{0, 2}));
    Press(kKeyLeft);
    EXPECT_EQ(Focus(), (CCellID{0, 0}));
    Press(kKeyTab);
    EXPECT_EQ(Focus(), (CCellID{0, 2}));
}

TEST_F(GridFocus, ARowOfHeightZeroIsPassedOver) {
    Build(4, 1);
    m_grid.SetRowHeight(1, 0);
    m_grid.SetRowHeight(2, 0);
    FocusOn(0, 0);
    Press(kKeyDown);
    EXPECT_EQ(Focus(), (CCellID{3, 0}));
    Press(kKeyUp);
    EXPECT_EQ(Focus(), (CCellID{0, 0}));
    m_grid.SetRowHeight(0, 0);
    FocusOn(3, 0);
    Press(kKeyUp);
    EXPECT_EQ(Focus(), (CCellID{3, 0}));
}

TEST_F(GridFocus, TabAtTheEndOfARowGoesToTheNextRowsFirstNormalCell) {
    Build(3, 3);
    m_grid.SetFixedColumnCount(1);
    FocusOn(0, 2);
    Press(kKeyTab);
    EXPECT_EQ(Focus(), (CCellID{1, 1}));
    Press(kKeyTab, kShift);
    EXPECT_EQ(Focus(), (CCellID{0, 2}));
}

TEST_F(GridFocus, TabOnTheLastCellGoesOnToTheDialog) {
    Build(2, 2);
    FocusOn(1, 1);
    Press(kKeyTab);
    EXPECT_EQ(Focus(), (CCellID{1, 1}));
    EXPECT_EQ(m_host->LeftForwards(), 1);
    EXPECT_EQ(m_host->LeftBackwards(), 0);
}

TEST_F(GridFocus, ShiftTabOnTheFirstCellGoesBackToTheDialog) {
    Build(2, 2);
    FocusOn(0, 0);
    Press(kKeyTab, kShift);
    EXPECT_EQ(m_host->LeftBackwards(), 1);
}

TEST_F(GridFocus, WithoutTheTabFlagTheGridHasNoUseForTab) {
    Build(2, 2);
    m_grid.SetTabMoves(false);
    FocusOn(0, 0);
    EXPECT_FALSE(m_grid.OnKeyDown(kKeyTab, {}));
    EXPECT_EQ(Focus(), (CCellID{0, 0}));
}

// Keys that the grid does not use reach the dialog's default and cancel buttons and its next control.
TEST_F(GridFocus, TheDialogKeepsItsOwnKeys) {
    Build(2, 2);
    EXPECT_FALSE(m_host->PressKey(kKeyEscape, {}));
    EXPECT_TRUE(m_host->PressKey(kKeyReturn, {}));
    EXPECT_TRUE(m_host->PressKey(kKeyTab, {}));
    m_grid.SetEditable(false);
    m_grid.SetTabMoves(false);
    EXPECT_FALSE(m_host->PressKey(kKeyReturn, {}));
    EXPECT_FALSE(m_host->PressKey(kKeyTab, {}));
    EXPECT_TRUE(m_host->PressKey(kKeyDown, {}));
}

// A window whose own text can be chosen.
class NamedGrid : public HeadlessGrid {
  public:
    NamedGrid(CGridCtrl& grid, std::string name) : HeadlessGrid(grid, {250, 200}), m_name(std::move(name)) {}
    std::string WindowText() const override { return m_name; }

  private:
    std::string m_name;
};

CCellID AfterTab(const std::string& windowText, int fromColumn, KeyState keys) {
    CGridCtrl grid;
    grid.SetHost(std::make_unique<NamedGrid>(grid, windowText));
    grid.SetRowCount(2);
    grid.SetColumnCount(10);
    grid.MoveFocusCell(0, fromColumn);
    grid.OnKeyDown(kKeyTab, keys);
    return grid.FocusCell();
}

TEST(GridTab, InTheLoadTableTabNeverRestsOnColumnEight) {
    EXPECT_EQ(AfterTab("Load Table", 7, {}), (CCellID{0, 7}));
    EXPECT_EQ(AfterTab("Load Table", 9, kShift), (CCellID{0, 7}));
    EXPECT_EQ(AfterTab("Load Table", 6, {}), (CCellID{0, 7}));
    EXPECT_EQ(AfterTab("Load Table", 8, {}), (CCellID{0, 9}));
}

TEST(GridTab, OtherTablesRestOnColumnEight) {
    EXPECT_EQ(AfterTab("", 7, {}), (CCellID{0, 8}));
    EXPECT_EQ(AfterTab("AASHTO Load Table", 7, {}), (CCellID{0, 8}));
}

TEST_F(GridFocus, PageKeysMoveByTheRowsThatTheWindowShows) {
    Build(50, 2, {250, 205});  // ten whole rows of 20
    FocusOn(0, 1);
    Press(kKeyPageDown);
    EXPECT_EQ(Focus(), (CCellID{10, 1}));
    Press(kKeyPageDown);
    EXPECT_EQ(Focus(), (CCellID{20, 1}));
    Press(kKeyPageUp);
    EXPECT_EQ(Focus(), (CCellID{10, 1}));
    FocusOn(45, 1);
    Press(kKeyPageDown);
    EXPECT_EQ(Focus(), (CCellID{49, 1}));
}

TEST_F(GridFocus, AKeyThatMovesIsNotTheDialogsToo) {
    Build(2, 2);
    FocusOn(0, 0);
    EXPECT_TRUE(m_grid.OnKeyDown(kKeyTab, {}));
    EXPECT_TRUE(m_grid.OnKeyDown(kKeyTab, kShift));
    m_grid.SetTabMoves(false);
    EXPECT_FALSE(m_grid.OnKeyDown(kKeyTab, {}));
}

TEST_F(GridFocus, PageUpNearTheTopGoesToTheFirstRow) {
    Build(50, 2, {250, 205});
    FocusOn(4, 1);
    Press(kKeyPageUp);
    EXPECT_EQ(Focus(), (CCellID{0, 1}));
}

TEST_F(GridFocus, RowsThatFillTheWindowExactlyAreAPage) {
    Build(50, 2, {250, 200});  // the fixed row and nine others of 20
    m_grid.SetFixedRowCount(1);
    m_grid.UpdateScrollBars();
    FocusOn(1, 1);
    Press(kKeyPageDown);
    EXPECT_EQ(Focus(), (CCellID{10, 1}));
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 2);  // rows 2 to 10
    m_grid.OnScroll(true, 1000);
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 41);  // rows 41 to 49
}

TEST_F(GridFocus, HomeAndEndGoToTheFirstAndLastRow) {
    Build(50, 3);
    m_grid.SetFixedRowCount(1);
    FocusOn(20, 1);
    Press(kKeyEnd);
    EXPECT_EQ(Focus(), (CCellID{49, 1}));
    Press(kKeyHome);
    EXPECT_EQ(Focus(), (CCellID{1, 1}));
    Press(kKeyEnd, kCtrl);
    EXPECT_EQ(Focus(), (CCellID{49, 2}));
    Press(kKeyHome, kCtrl);
    EXPECT_EQ(Focus(), (CCellID{1, 0}));
}

TEST_F(GridFocus, TheMovedFocusIsScrolledIntoView) {
    Build(50, 2, {250, 200});
    FocusOn(0, 0);
    Press(kKeyEnd);
    GridRect rect;
    ASSERT_TRUE(m_grid.CellRect(49, 0, rect));
    EXPECT_LE(rect.bottom, 200);
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 40);
    Press(kKeyHome);
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 0);
}

TEST_F(GridFocus, ScrollingIntoViewMovesNoFurtherThanNeeded) {
    Build(50, 10, {250, 200});
    m_grid.ScrollCellIntoView(12, 6);  // rows 3 to 12 and columns 2 to 6 fill the window
    EXPECT_EQ(m_grid.FirstVisibleCell(),
              (CCellID{4, 3}));  // both bars take 17 pixels: nine rows, four columns
    m_grid.ScrollCellIntoView(5, 4);
    EXPECT_EQ(m_grid.FirstVisibleCell(), (CCellID{4, 3}));
    m_grid.ScrollCellIntoView(2, 1);
    EXPECT_EQ(m_grid.FirstVisibleCell(), (CCellID{2, 1}));
}

TEST_F(GridFocus, TheRowsInViewStayWhenRowsBelowThemGo) {
    Build(50, 2, {250, 200});  // ten rows a page
    m_grid.OnScroll(true, 20);
    ASSERT_EQ(m_grid.FirstVisibleCell().row, 20);
    m_grid.SetRowCount(40);
    m_grid.UpdateScrollBars();
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 20);
    m_grid.SetRowCount(25);
    m_grid.UpdateScrollBars();
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 15);  // the last page is full
}

TEST_F(GridFocus, CellsFollowTheFixedOnes) {
    Build(50, 3, {250, 200});
    m_grid.SetFixedRowCount(1);
    m_grid.ScrollCellIntoView(30, 0);
    GridRect rect;
    ASSERT_TRUE(m_grid.CellRect(0, 1, rect));
    EXPECT_EQ(rect, (GridRect{50, 0, 100, 20}));
    const int top = m_grid.FirstVisibleCell().row;
    ASSERT_TRUE(m_grid.CellRect(top, 1, rect));
    EXPECT_EQ(rect, (GridRect{50, 20, 100, 40}));
    EXPECT_FALSE(m_grid.CellRect(top - 1, 1, rect));
    EXPECT_EQ(m_grid.CellAt({55, 25}), (CCellID{top, 1}));
    EXPECT_EQ(m_grid.CellAt({55, 5}), (CCellID{0, 1}));
    EXPECT_EQ(m_grid.CellAt({155, 5}), (CCellID{-1, -1}));
    EXPECT_EQ(m_grid.CellAt({-1, 5}), (CCellID{-1, -1}));
}

TEST_F(GridFocus, GettingTheFocusGivesTheKeysACell) {
    Build(2, 2);
    m_grid.OnGotFocus();
    EXPECT_EQ(Focus(), (CCellID{0, 0}));
    FocusOn(1, 1);
    m_grid.OnGotFocus();
    EXPECT_EQ(Focus(), (CCellID{1, 1}));
}

TEST_F(GridFocus, AnEmptyGridTakesEveryKey) {
    Build(0, 0);
    for (unsigned key = 1; key < 128; ++key) {
        Press(key);
        Press(key, kShift);
        Press(key, kCtrl);
    }
    EXPECT_EQ(Focus(), (CCellID{-1, -1}));
}

}  // namespace

}  // namespace lumerin
