// SPDX-License-Identifier: MIT
#include "GridFixture.h"

namespace lumerin {

namespace {

class GridSelection : public GridFixture {
  protected:
    std::vector<CCellID> Cells() const { return m_grid.SelectedCells(); }
};

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(GridSelection, ARangeReplacesTheSelection) {
    Build(4, 4);
    m_grid.SelectRange(0, 0, 0, 1, false, true);
    m_grid.SelectRange(2, 2, 1, 1, false, true);
    EXPECT_THAT(Cells(), ElementsAre(CCellID{1, 1}, CCellID{1, 2}, CCellID{2, 1}, CCellID{2, 2}));
    EXPECT_FALSE(m_grid.GetCell(0, 0)->IsSelected());
    EXPECT_TRUE(m_grid.GetCell(2, 1)->IsSelected());
}

TEST_F(GridSelection, SelectingNothingEmptiesIt) {
    Build(4, 4);
    m_grid.OnSelectAll();
    EXPECT_EQ(Cells().size(), 16u);
    m_grid.SelectRange(0, 0, 3, 3, true, false);
    EXPECT_THAT(Cells(), IsEmpty());
}

TEST_F(GridSelection, ARangeEndsAtTheStore) {
    Build(2, 2);
    m_grid.SelectRange(-5, -5, 500, 500, false, true);
    EXPECT_EQ(Cells().size(), 4u);
}

TEST_F(GridSelection, AllMeansTheNormalCells) {
    Build(3, 3);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    Press('A', kCtrl);
    EXPECT_THAT(Cells(), ElementsAre(CCellID{1, 1}, CCellID{1, 2}, CCellID{2, 1}, CCellID{2, 2}));
}

TEST_F(GridSelection, AMovedFocusSelectsItsCellAlone) {
    Build(3, 3);
    m_grid.OnSelectAll();
    FocusOn(0, 0);
    Press(kKeyDown);
    EXPECT_THAT(Cells(), ElementsAre(CCellID{1, 0}));
}

TEST_F(GridSelection, ShiftAndArrowsExtend) {
    Build(3, 3);
    FocusOn(1, 1);
    Press(kKeyDown, kShift);
    Press(kKeyRight, kShift);
    EXPECT_THAT(Cells(), ElementsAre(CCellID{1, 1}, CCellID{1, 2}, CCellID{2, 1}, CCellID{2, 2}));
    Press(kKeyUp, kShift);
    EXPECT_THAT(Cells(), ElementsAre(CCellID{1, 1}, CCellID{1, 2}));
}

TEST_F(GridSelection, MovingTheFocusAloneLeavesTheSelection) {
    Build(3, 3);
    m_grid.SelectRange(0, 0, 0, 1, false, true);
    m_grid.MoveFocusCell(2, 2);
    EXPECT_THAT(Cells(), ElementsAre(CCellID{0, 0}, CCellID{0, 1}));
}

TEST_F(GridSelection, AClickSelectsAndADragExtends) {
    Build(5, 4);
    m_grid.OnLeftDown({75, 25}, {});
    EXPECT_EQ(Focus(), (CCellID{1, 1}));
    m_grid.OnMouseMove({125, 45}, true);
    EXPECT_THAT(Cells(), ElementsAre(CCellID{1, 1}, CCellID{1, 2}, CCellID{2, 1}, CCellID{2, 2}));
    m_grid.OnLeftUp({125, 45});
    m_grid.OnMouseMove({10, 10}, false);
    EXPECT_EQ(Cells().size(), 4u);
    EXPECT_EQ(Focus(), (CCellID{1, 1}));
}

TEST_F(GridSelection, ADragOverAHeadingLeavesTheSelection) {
    Build(5, 4);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    const auto four = ElementsAre(CCellID{2, 1}, CCellID{2, 2}, CCellID{3, 1}, CCellID{3, 2});
    m_grid.OnLeftDown({75, 45}, {});
    m_grid.OnMouseMove({125, 65}, true);
    EXPECT_THAT(Cells(), four);
    m_grid.OnMouseMove({125, 5}, true);  // the heading of column 2
    EXPECT_THAT(Cells(), four);
    m_grid.OnMouseMove({10, 65}, true);  // the heading of row 3
    EXPECT_THAT(Cells(), four);
    m_grid.OnMouseMove({75, 25}, true);  // the first row and column below the headings
    EXPECT_THAT(Cells(), ElementsAre(CCellID{1, 1}, CCellID{2, 1}));
}

TEST_F(GridSelection, ControlAndAClickAdd) {
    Build(5, 4);
    m_grid.OnLeftDown({10, 10}, {});
    m_grid.OnLeftUp({10, 10});
    m_grid.OnLeftDown({75, 25}, kCtrl);
    m_grid.OnLeftUp({75, 25});
    EXPECT_THAT(Cells(), ElementsAre(CCellID{0, 0}, CCellID{1, 1}));
}

TEST_F(GridSelection, ADragBelowTheWindowScrollsWithTheTimer) {
    Build(50, 2, {250, 200});
    m_grid.OnLeftDown({10, 10}, {});
    m_grid.OnMouseMove({10, 300}, true);
    m_grid.OnDragTimer();
    m_grid.OnDragTimer();
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 2);
    EXPECT_TRUE(m_grid.IsCellSelected(11, 0));
    m_grid.OnLeftUp({10, 300});
    m_grid.OnDragTimer();
    EXPECT_EQ(m_grid.FirstVisibleCell().row, 2);
}

TEST_F(GridSelection, AClickOnAHeadingSelectsItsColumnWhenTheFlagIsOn) {
    Build(3, 3);
    m_grid.SetFixedRowCount(1);
    m_grid.SetColumnsResizable(false);
    m_grid.OnLeftDown({75, 5}, {});
    m_grid.OnLeftUp({75, 5});
    EXPECT_THAT(Cells(), ElementsAre(CCellID{1, 1}, CCellID{2, 1}));
    m_grid.SelectRange(0, 0, 0, 0, false, false);
    m_grid.SetFixedRowClickSelects(false);
    m_grid.OnLeftDown({75, 5}, {});
    EXPECT_THAT(Cells(), IsEmpty());
}

TEST_F(GridSelection, ABorderIsDraggedOnlyWithTheResizeFlag) {
    Build(3, 3);
    m_grid.SetFixedRowCount(1);
    m_grid.OnLeftDown({99, 5}, {});  // the right border of column 1
    m_grid.OnMouseMove({130, 5}, true);
    m_grid.OnLeftUp({130, 5});
    EXPECT_EQ(m_grid.GetColumnWidth(1), 80);
    m_grid.SetColumnsResizable(false);
    m_grid.OnLeftDown({129, 5}, {});
    m_grid.OnMouseMove({160, 5}, true);
    m_grid.OnLeftUp({160, 5});
    EXPECT_EQ(m_grid.GetColumnWidth(1), 80);
}

TEST_F(GridSelection, KeysPackColumnAndRowApart) {
    m_grid.SetRowCount(70000);
    m_grid.SetColumnCount(2);
    m_grid.SelectRange(69999, 1, 69999, 1, false, true);
    EXPECT_THAT(Cells(), ElementsAre(CCellID{69999, 1}));
    EXPECT_FALSE(m_grid.IsCellSelected(69999 - 65536, 1));
}

}  // namespace

}  // namespace lumerin
