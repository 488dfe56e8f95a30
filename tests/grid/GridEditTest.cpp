// SPDX-License-Identifier: MIT
#include "GridFixture.h"

namespace lumerin {

namespace {

class GridEdit : public GridFixture {
  protected:
    void BuildOne(const CRuntimeClass& cellClass, const std::string& text) {
        Build(2, 2);
        m_grid.SetCellClass(0, 0, cellClass);
        m_grid.SetCellText(0, 0, text);
        FocusOn(0, 0);
    }
    std::string Text() const { return m_grid.GetCellText(0, 0); }
    const HeadlessEditor& Editor() const { return *m_host->Editor(); }
};

TEST_F(GridEdit, TypingOpensTheEditorAndReplacesTheText) {
    BuildOne(CGridCell::classCGridCell, "old");
    Type("ne");
    ASSERT_NE(m_host->Editor(), nullptr);
    EXPECT_TRUE(m_grid.GetCell(0, 0)->IsEditing());
    EXPECT_EQ(Text(), "old");
    Type("w");
    Press(kKeyReturn);
    EXPECT_EQ(m_host->Editor(), nullptr);
    EXPECT_FALSE(m_grid.GetCell(0, 0)->IsEditing());
    EXPECT_EQ(Text(), "new");
    EXPECT_EQ(Focus(), (CCellID{0, 0}));
}

TEST_F(GridEdit, TheCellThatIsEditedIsScrolledIntoView) {
    Build(50, 9, {250, 200});
    FocusOn(30, 6);
    m_grid.ScrollCellIntoView(0, 0);
    Type("1");
    ASSERT_NE(m_host->Editor(), nullptr);
    // Both bars leave nine whole rows and four whole columns.
    EXPECT_EQ(m_grid.FirstVisibleCell(), (CCellID{22, 3}));
    Press(kKeyReturn);
    EXPECT_EQ(m_grid.GetCellText(30, 6), "1");
}

TEST_F(GridEdit, ABoolCellTakesZeroAndRefusesFiveAndTheSign) {
    BuildOne(CGridCellBOOL::classCGridCellBOOL, "1");
    Type("0");
    Press(kKeyReturn);
    EXPECT_EQ(Text(), "0");
    m_grid.SetCellText(0, 0, "1");
    Type("5");
    Press(kKeyReturn);
    EXPECT_EQ(Text(), "1");
    Type("-");
    Press(kKeyReturn);
    EXPECT_EQ(Text(), "1");
}

TEST_F(GridEdit, AFloatCellTogglesTheSignAndRefusesASecondPoint) {
    BuildOne(CGridCellFloat::classCGridCellFloat, "2.5");
    Type("--");
    Press(kKeyReturn);
    EXPECT_EQ(Text(), "2.5");
    Type("-");
    Press(kKeyReturn);
    EXPECT_EQ(Text(), "-2.5");
    m_grid.SetCellText(0, 0, "2.5");
    Press(kKeyReturn);  // opens with the caret at the end
    Type(".");
    Press(kKeyReturn);
    EXPECT_EQ(Text(), "2.5");
    Type(".");  // the whole text is selected, its point with it
    Press(kKeyReturn);
    EXPECT_EQ(Text(), ".");
}

TEST_F(GridEdit, EscapePutsTheTextBack) {
    BuildOne(CGridCell::classCGridCell, "old");
    Type("new");
    Press(kKeyEscape);
    EXPECT_EQ(m_host->Editor(), nullptr);
    EXPECT_EQ(Text(), "old");
    EXPECT_FALSE(m_grid.GetCell(0, 0)->IsChanged());
}

TEST_F(GridEdit, EscapeOnTheGridOpensNothing) {
    BuildOne(CGridCell::classCGridCell, "old");
    EXPECT_FALSE(m_grid.OnChar(kKeyEscape, {}));
    EXPECT_EQ(m_host->Editor(), nullptr);
}

// The platform can refuse an edit window; the key then counts as one that the grid has no use for.
class RefusingGrid : public HeadlessGrid {
  public:
    explicit RefusingGrid(CGridCtrl& grid) : HeadlessGrid(grid, {250, 200}) {}
    bool OpenEditor(std::unique_ptr<CInPlaceEdit>, const GridRect&) override { return false; }
};

TEST_F(GridEdit, ACharacterIsNotUsedWhereNoEditorOpens) {
    BuildOne(CGridCell::classCGridCell, "old");
    EXPECT_TRUE(m_grid.OnChar('x', {}));
    Press(kKeyEscape);
    m_grid.SetCellState(0, 0, kCellReadOnly);
    EXPECT_FALSE(m_grid.OnChar('x', {}));
    m_grid.SetCellState(0, 0, 0);
    m_grid.SetHost(std::make_unique<RefusingGrid>(m_grid));
    EXPECT_FALSE(m_grid.OnChar('x', {}));
    EXPECT_FALSE(m_grid.GetCell(0, 0)->IsEditing());
    EXPECT_EQ(m_grid.OpenEditor(), nullptr);
    EXPECT_EQ(Text(), "old");
}

TEST_F(GridEdit, CharactersWithControlOpenNothing) {
    BuildOne(CGridCell::classCGridCell, "old");
    EXPECT_FALSE(m_grid.OnChar('x', kCtrl));
    EXPECT_EQ(m_host->Editor(), nullptr);
}

TEST_F(GridEdit, CharactersDuringADragOpenNothing) {
    BuildOne(CGridCell::classCGridCell, "old");
    m_grid.OnLeftDown({10, 10}, {});
    EXPECT_FALSE(m_grid.OnChar('x', {}));
    m_grid.OnLeftUp({10, 10});
    EXPECT_TRUE(m_grid.OnChar('x', {}));
}

TEST_F(GridEdit, ReturnAndTheMouseStartWithTheCaretAtTheEnd) {
    BuildOne(CGridCell::classCGridCell, "old");
    Press(kKeyReturn);
    EXPECT_EQ(Editor().Read().start, 3);
    EXPECT_EQ(Editor().Read().end, 3);
    Press(kKeyEscape);
    m_grid.OnDoubleClick({10, 10});
    EXPECT_EQ(Editor().Read().start, 3);
    EXPECT_EQ(Editor().Read().end, 3);
}

// The platform types Return, Backspace and Esc as the control characters of these keys.
TEST_F(GridEdit, ControlCharactersCountAsTheirKeys) {
    BuildOne(CGridCell::classCGridCell, "old");
    m_host->TypeChar('\r');
    ASSERT_NE(m_host->Editor(), nullptr);
    EXPECT_EQ(Editor().Read().text, "old");
    EXPECT_EQ(Editor().Read().start, 3);
    Press(kKeyEscape);
    m_host->TypeChar('\b');
    EXPECT_EQ(Editor().Read().text, "ol");
    Press(kKeyEscape);
    EXPECT_FALSE(m_grid.OnChar('\x1b', {}));
    EXPECT_FALSE(m_grid.OnChar('\t', {}));
}

TEST_F(GridEdit, BackspaceStartsAtTheEndAndDeletes) {
    BuildOne(CGridCell::classCGridCell, "old");
    Press(kKeyBackspace);
    EXPECT_EQ(Editor().Read().text, "ol");
}

TEST_F(GridEdit, BackspaceDeletesInAFloatCellAndNotInABoolCell) {
    BuildOne(CGridCellFloat::classCGridCellFloat, "12");
    Press(kKeyBackspace);
    Press(kKeyReturn);
    EXPECT_EQ(Text(), "1");
    m_grid.SetCellClass(0, 0, CGridCellBOOL::classCGridCellBOOL);
    Press(kKeyBackspace);
    Press(kKeyReturn);
    EXPECT_EQ(Text(), "1");
}

TEST_F(GridEdit, BlankAndTheCodesUpToFortySelectAllWithoutTyping) {
    for (const unsigned key : {32u, 33u, 40u}) {
        BuildOne(CGridCell::classCGridCell, "old");
        m_host->TypeChar(key);
        ASSERT_NE(m_host->Editor(), nullptr) << key;
        EXPECT_EQ(Editor().Read().text, "old") << key;
        EXPECT_EQ(Editor().Read().start, 0) << key;
        EXPECT_EQ(Editor().Read().end, 3) << key;
        Press(kKeyEscape);
    }
    m_host->TypeChar(41);
    EXPECT_EQ(Editor().Read().text, ")");
}

TEST_F(GridEdit, TabWithoutTheTabFlagOpensWithAllSelected) {
    BuildOne(CGridCell::classCGridCell, "old");
    m_grid.SetTabMoves(false);
    m_host->TypeChar(kKeyTab);
    ASSERT_NE(m_host->Editor(), nullptr);
    EXPECT_EQ(Editor().Read().end, 3);
    EXPECT_TRUE(Editor().Read().HasSelection());
}

TEST_F(GridEdit, WithTheTabFlagATabCharacterOpensNothing) {
    BuildOne(CGridCell::classCGridCell, "old");
    m_host->TypeChar(kKeyTab);
    EXPECT_EQ(m_host->Editor(), nullptr);
}

TEST_F(GridEdit, ACodeFrom128OnIsSentAsAKey) {
    BuildOne(CGridCell::classCGridCell, "old");
    m_host->TypeChar(0xe4);
    ASSERT_NE(m_host->Editor(), nullptr);
    EXPECT_EQ(Editor().Read().text, "old");
}

TEST_F(GridEdit, TabEndsTheEditAndMovesOn) {
    BuildOne(CGridCell::classCGridCell, "old");
    Type("new");
    Press(kKeyTab);
    EXPECT_EQ(Text(), "new");
    EXPECT_EQ(Focus(), (CCellID{0, 1}));
    Type("x");
    Press(kKeyTab, kShift);
    EXPECT_EQ(m_grid.GetCellText(0, 1), "x");
    EXPECT_EQ(Focus(), (CCellID{0, 0}));
}

TEST_F(GridEdit, TabInTheLastCellsEditorGoesOnToTheDialog) {
    Build(1, 1);
    FocusOn(0, 0);
    Type("x");
    Press(kKeyTab);
    EXPECT_EQ(Text(), "x");
    EXPECT_EQ(m_host->LeftForwards(), 1);
}

TEST_F(GridEdit, AnArrowEndsAnEditThatAKeyStarted) {
    BuildOne(CGridCell::classCGridCell, "old");
    Type("new");
    Press(kKeyDown);
    EXPECT_EQ(Text(), "new");
    EXPECT_EQ(Focus(), (CCellID{1, 0}));
}

TEST_F(GridEdit, AnArrowMovesTheCaretInAnEditThatTheMouseStarted) {
    BuildOne(CGridCell::classCGridCell, "old");
    m_grid.OnDoubleClick({10, 10});
    Press(kKeyLeft);
    ASSERT_NE(m_host->Editor(), nullptr);
    EXPECT_EQ(Editor().Read().start, 2);
    Type("u");
    Press(kKeyDown, kCtrl);
    EXPECT_EQ(m_host->Editor(), nullptr);
    EXPECT_EQ(Text(), "olud");
    EXPECT_EQ(Focus(), (CCellID{1, 0}));
}

TEST_F(GridEdit, HomeAndEndStayInTheEditor) {
    BuildOne(CGridCell::classCGridCell, "old");
    Press(kKeyReturn);
    Press(kKeyHome);
    ASSERT_NE(m_host->Editor(), nullptr);
    Type("x");
    EXPECT_EQ(Editor().Read().text, "xold");
}

TEST_F(GridEdit, LossOfFocusEndsTheEditOnce) {
    BuildOne(CGridCell::classCGridCell, "old");
    Type("new");
    m_host->LoseFocus();
    EXPECT_EQ(Text(), "new");
    EXPECT_EQ(m_host->Editor(), nullptr);
    m_grid.SetCellText(0, 0, "later");
    m_host->LoseFocus();
    EXPECT_EQ(Text(), "later");
    EXPECT_EQ(Focus(), (CCellID{0, 0}));
}

// Counts the ends of edits.
class EditCountingGrid : public CGridCtrl {
  public:
    void FinishCellEdit(int row, int column, const std::string& text) override {
        ++finished;
        CGridCtrl::FinishCellEdit(row, column, text);
    }
    bool AcceptEdit(int row, int column, const std::string& text) const override {
        return text != "refused" && CGridCtrl::AcceptEdit(row, column, text);
    }
    int finished = 0;
};

// A window that takes the focus away from the editor while it closes, as a real one does.
class ClosingHost : public HeadlessGrid {
  public:
    ClosingHost(CGridCtrl& grid) : HeadlessGrid(grid, {250, 200}), m_ctrl(grid) {}
    void TakeFocus() override { m_ctrl.EndOpenEdit(); }

  private:
    CGridCtrl& m_ctrl;
};

TEST(GridEditEnd, AnEditThatEndsByAKeyEndsOnceThoughItLosesTheFocusToo) {
    EditCountingGrid grid;
    auto made = std::make_unique<ClosingHost>(grid);
    ClosingHost& host = *made;
    grid.SetHost(std::move(made));
    grid.SetRowCount(1);
    grid.SetColumnCount(1);
    grid.SetEditable(true);
    host.TypeCell(0, 0, "x");
    EXPECT_EQ(grid.finished, 1);
    EXPECT_EQ(grid.GetCellText(0, 0), "x");
}

TEST(GridEditEnd, ATextThatIsNotAcceptedKeepsTheOldOne) {
    EditCountingGrid grid;
    auto made = std::make_unique<ClosingHost>(grid);
    ClosingHost& host = *made;
    grid.SetHost(std::move(made));
    grid.SetRowCount(1);
    grid.SetColumnCount(1);
    grid.SetEditable(true);
    host.TypeCell(0, 0, "good");
    host.TypeCell(0, 0, "refused");
    EXPECT_EQ(grid.GetCellText(0, 0), "good");
}

TEST_F(GridEdit, OnlyTheEditorsOwnNotificationIsHeard) {
    BuildOne(CGridCell::classCGridCell, "old");
    m_grid.OnNotify({7, -106, 0, 0, "x", 0, {}});
    m_grid.OnNotify({8, -105, 0, 0, "x", 0, {}});
    EXPECT_EQ(Text(), "old");
    m_grid.OnNotify({8, -106, 0, 0, "x", 0, {}});
    EXPECT_EQ(Text(), "x");
    m_grid.OnNotify({8, -106, 9, 9, "x", 0, {}});
}

TEST_F(GridEdit, ReadOnlyCellsAndGridsOpenNoEditor) {
    BuildOne(CGridCell::classCGridCell, "old");
    m_grid.SetCellState(0, 0, m_grid.GetCellState(0, 0) | kCellReadOnly);
    Type("x");
    m_grid.OnDoubleClick({10, 10});
    EXPECT_EQ(m_host->Editor(), nullptr);
    m_grid.SetCellState(0, 0, 0);
    m_grid.SetEditable(false);
    Type("x");
    m_grid.OnDoubleClick({10, 10});
    EXPECT_EQ(m_host->Editor(), nullptr);
    EXPECT_EQ(Text(), "old");
}

TEST_F(GridEdit, ALongTextGrowsTheEditorUpToTheEdgeAndNoFurther) {
    Build(2, 2, {250, 200});
    FocusOn(0, 0);
    Type("abc");  // 3 characters and 2 blanks take 30 of the cell's 50 pixels
    EXPECT_EQ(Editor().Place().right, 50);
    Type("defghij");  // 12 characters take 72
    EXPECT_EQ(Editor().Place().right, 72);
    Type(std::string(60, 'x'));
    EXPECT_EQ(Editor().Place().right, 250);
    EXPECT_EQ(Editor().Place().left, 0);
}

TEST_F(GridEdit, AnEditorOpensWhereItsCellWasScrolledTo) {
    Build(50, 2, {250, 200});
    EXPECT_TRUE(m_host->TypeCell(40, 1, "far"));
    EXPECT_EQ(m_grid.GetCellText(40, 1), "far");
    GridRect rect;
    EXPECT_TRUE(m_grid.CellRect(40, 1, rect));
    EXPECT_FALSE(m_host->TypeCell(50, 0, "x"));
}

TEST_F(GridEdit, AClickElsewhereEndsTheEdit) {
    BuildOne(CGridCell::classCGridCell, "old");
    Type("new");
    m_grid.OnLeftDown({75, 25}, {});
    EXPECT_EQ(Text(), "new");
    EXPECT_EQ(Focus(), (CCellID{1, 1}));
}

TEST_F(GridEdit, ACellIsNotThereAcceptsAnyText) {
    Build(1, 1);
    EXPECT_TRUE(m_grid.AcceptEdit(5, 5, "anything"));
}

}  // namespace

}  // namespace lumerin
