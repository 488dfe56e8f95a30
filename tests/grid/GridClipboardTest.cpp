// SPDX-License-Identifier: MIT
#include "GridFixture.h"

namespace lumerin {

namespace {

class GridClipboard : public GridFixture {};

TEST_F(GridClipboard, ASelectionGoesOutRowByRowWithTabs) {
    Build(3, 3);
    m_grid.SelectRange(0, 0, 1, 1, false, true);
    Press('C', kCtrl);
    EXPECT_EQ(m_host->Clipboard(), "r0c0\tr0c1\r\nr1c0\tr1c1");
}

TEST_F(GridClipboard, CellsBetweenSelectedOnesStayEmpty) {
    Build(2, 3);
    m_grid.OnLeftDown({10, 10}, {});  // (0, 0)
    m_grid.OnLeftUp({10, 10});
    m_grid.OnLeftDown({110, 30}, kCtrl);  // (1, 2)
    m_grid.OnLeftUp({110, 30});
    EXPECT_EQ(m_grid.SelectionToClipboardData(), "r0c0\t\t\r\n\t\tr1c2");
}

TEST_F(GridClipboard, PastedCellsEndAtTabOrComma) {
    Build(3, 4);
    ASSERT_TRUE(m_grid.PasteAt(0, 1, "a\tb,c"));
    EXPECT_EQ(m_grid.GetCellText(0, 0), "r0c0");
    EXPECT_EQ(m_grid.GetCellText(0, 1), "a");
    EXPECT_EQ(m_grid.GetCellText(0, 2), "b");
    EXPECT_EQ(m_grid.GetCellText(0, 3), "c");
}

TEST_F(GridClipboard, PastedRowsEndAtANewline) {
    Build(4, 2);
    ASSERT_TRUE(m_grid.PasteAt(1, 0, "1\t2\r\n3\n,4\n"));
    EXPECT_EQ(m_grid.GetCellText(1, 0), "1");
    EXPECT_EQ(m_grid.GetCellText(1, 1), "2");
    EXPECT_EQ(m_grid.GetCellText(2, 0), "3");
    EXPECT_EQ(m_grid.GetCellText(2, 1), "r2c1");
    EXPECT_EQ(m_grid.GetCellText(3, 0), "");
    EXPECT_EQ(m_grid.GetCellText(3, 1), "4");
}

TEST_F(GridClipboard, PastingBeyondTheStoreIsCutOff) {
    Build(2, 2);
    ASSERT_TRUE(m_grid.PasteAt(1, 1, "a\tb\tc\nd\ne\n"));
    EXPECT_EQ(m_grid.GetCellText(1, 1), "a");
    EXPECT_EQ(m_grid.GetRowCount(), 2);
    EXPECT_FALSE(m_grid.PasteAt(2, 0, "x"));
    EXPECT_FALSE(m_grid.PasteAt(-1, 0, "x"));
}

TEST_F(GridClipboard, PastingOnAReadOnlyHeadingChangesNothing) {
    Build(2, 2);
    m_grid.SetCellState(0, 0, kCellReadOnly);
    EXPECT_FALSE(m_grid.PasteAt(0, 0, "a\tb\nc\td"));
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) EXPECT_EQ(m_grid.GetCellText(row, column)[0], 'r');
    }
}

TEST_F(GridClipboard, PastingSkipsReadOnlyCellsAfterTheStart) {
    Build(1, 3);
    m_grid.SetCellState(0, 1, kCellReadOnly);
    EXPECT_TRUE(m_grid.PasteAt(0, 0, "a\tb\tc"));
    EXPECT_EQ(m_grid.GetCellText(0, 1), "r0c1");
    EXPECT_EQ(m_grid.GetCellText(0, 2), "c");
}

TEST_F(GridClipboard, AGridThatIsNotEditableTakesNoPaste) {
    Build(1, 1);
    m_grid.SetEditable(false);
    EXPECT_FALSE(m_grid.PasteAt(0, 0, "a"));
    EXPECT_EQ(m_grid.GetCellText(0, 0), "r0c0");
}

TEST_F(GridClipboard, BothPairsOfKeysCopyAndPaste) {
    Build(2, 2);
    FocusOn(0, 0);
    Press(kKeyInsert, kCtrl);
    FocusOn(1, 1);
    Press(kKeyInsert, kShift);
    EXPECT_EQ(m_grid.GetCellText(1, 1), "r0c0");
    FocusOn(0, 1);
    Press('C', kCtrl);
    FocusOn(1, 0);
    Press('V', kCtrl);
    EXPECT_EQ(m_grid.GetCellText(1, 0), "r0c1");
}

TEST_F(GridClipboard, CuttingClearsTheWholeSelectionButReadOnlyCells) {
    Build(1, 3);
    m_grid.SetCellState(0, 1, kCellReadOnly);
    m_grid.OnSelectAll();
    Press('X', kCtrl);
    EXPECT_EQ(m_host->Clipboard(), "r0c0\tr0c1\tr0c2");
    EXPECT_EQ(m_grid.GetCellText(0, 0), "");
    EXPECT_EQ(m_grid.GetCellText(0, 1), "r0c1");
    EXPECT_EQ(m_grid.GetCellText(0, 2), "");
}

TEST_F(GridClipboard, AGridThatIsNotEditableIsNotCut) {
    Build(1, 1);
    m_grid.SetEditable(false);
    m_host->SetClipboard("before");
    m_grid.OnSelectAll();
    Press('X', kCtrl);
    EXPECT_EQ(m_grid.GetCellText(0, 0), "r0c0");
    EXPECT_EQ(m_host->Clipboard(), "before");
}

TEST_F(GridClipboard, DeleteClearsTheFocusCellAlone) {
    Build(2, 2);
    m_grid.OnSelectAll();
    m_grid.MoveFocusCell(0, 1);
    Press(kKeyDelete);
    EXPECT_EQ(m_grid.GetCellText(0, 1), "");
    EXPECT_EQ(m_grid.GetCellText(0, 0), "r0c0");
}

TEST_F(GridClipboard, DeleteLeavesReadOnlyCells) {
    Build(1, 1);
    m_grid.SetCellState(0, 0, kCellReadOnly);
    FocusOn(0, 0);
    Press(kKeyDelete);
    EXPECT_EQ(m_grid.GetCellText(0, 0), "r0c0");
}

TEST_F(GridClipboard, DeleteDoesNothingInAGridThatIsNotEditable) {
    Build(1, 1);
    m_grid.SetEditable(false);
    FocusOn(0, 0);
    Press(kKeyDelete);
    EXPECT_EQ(m_grid.GetCellText(0, 0), "r0c0");
}

}  // namespace

}  // namespace lumerin
