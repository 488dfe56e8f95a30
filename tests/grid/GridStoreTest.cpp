// SPDX-License-Identifier: MIT
#include <chrono>
#include <stdexcept>

#include "GridFixture.h"

namespace lumerin {

namespace {

class GridStore : public GridFixture {};

class NotACell : public CObject {
  public:
    static std::unique_ptr<CObject> Create() { return std::make_unique<NotACell>(); }
};
const CRuntimeClass kNotACell{"NotACell", &CObject::classCObject, &NotACell::Create};

TEST_F(GridStore, ANewGridIsEmptyWithoutFocus) {
    EXPECT_EQ(m_grid.GetRowCount(), 0);
    EXPECT_EQ(m_grid.GetColumnCount(), 0);
    EXPECT_EQ(m_grid.FocusCell(), (CCellID{-1, -1}));
    EXPECT_FALSE(m_grid.IsEditable());
}

TEST_F(GridStore, ANewGridTakesTheShadowColourBesideItsCells) {
    EXPECT_EQ(m_grid.Background(), gridplatform::SystemColour(16));
}

// A character of the default font is 6 by 15 here; the default width is that of 12 letters in two blanks, the
// height has a margin of 3 above and below.
TEST_F(GridStore, NewRowsAndColumnsHaveTheSizeOfTheDefaultCell) {
    m_grid.SetRowCount(1);
    m_grid.SetColumnCount(1);
    EXPECT_EQ(m_grid.GetRowHeight(0), 21);
    EXPECT_EQ(m_grid.GetColumnWidth(0), 84);
}

TEST_F(GridStore, ACellThatHoldsNothingOfItsOwnLeavesItAllToTheDefaults) {
    const CGridCellBase plain;
    EXPECT_EQ(plain.GetText(), "");
    EXPECT_EQ(plain.GetTipText(), "");
    EXPECT_EQ(plain.GetImage(), -1);
    EXPECT_EQ(plain.GetUserValue(), 0);
    EXPECT_EQ(plain.GetState(), 0u);
    EXPECT_EQ(plain.GetFormat(), 0u);
    EXPECT_EQ(plain.GetTextColour(), kDefaultColour);
    EXPECT_EQ(plain.GetBackground(), kDefaultColour);
    EXPECT_EQ(plain.GetFont(), FontRecord{});
    EXPECT_TRUE(plain.IsDefaultFont());
    EXPECT_EQ(plain.GetGrid(), nullptr);
    EXPECT_EQ(plain.GetEditor(), nullptr);
    EXPECT_EQ(plain.GetMargin(), 0);
    EXPECT_FALSE(plain.IsEditing());
    CGridCell cell;
    cell.SetText("x");
    cell.SetImage(4);
    cell.SetUserValue(5);
    cell.SetMargin(6);
    cell.SetState(kCellSelected);
    cell.CopyFrom(plain);
    EXPECT_EQ(cell.GetText(), "");
    EXPECT_EQ(cell.GetImage(), -1);
    EXPECT_EQ(cell.GetUserValue(), 0);
    EXPECT_EQ(cell.GetMargin(), 0);
    EXPECT_EQ(cell.GetState(), 0u);
}

TEST_F(GridStore, TextOutOfRangeIsEmpty) {
    Build(2, 2);
    EXPECT_EQ(m_grid.GetCellText(-1, 0), "");
    EXPECT_EQ(m_grid.GetCellText(0, -1), "");
    EXPECT_EQ(m_grid.GetCellText(2, 0), "");
    EXPECT_EQ(m_grid.GetCellText(0, 2), "");
    EXPECT_EQ(m_grid.GetCellText(1, 1), "r1c1");
}

TEST_F(GridStore, SettersRefuseCellsOutOfRange) {
    Build(2, 2);
    EXPECT_FALSE(m_grid.SetCellText(2, 0, "x"));
    EXPECT_FALSE(m_grid.SetCellBackground(0, 2, 0));
    EXPECT_FALSE(m_grid.SetCellState(-1, 0, 8));
    EXPECT_FALSE(m_grid.SetCellFormat(0, -1, 1));
    EXPECT_FALSE(m_grid.SetCellClass(2, 2, CGridCell::classCGridCell));
    EXPECT_FALSE(m_grid.SetRowHeight(2, 10));
    EXPECT_FALSE(m_grid.SetColumnWidth(2, 10));
    EXPECT_FALSE(m_grid.MoveFocusCell(2, 0));
    EXPECT_FALSE(m_grid.ScrollCellIntoView(0, 2));
    EXPECT_FALSE(m_grid.SetRowCount(-1));
    EXPECT_FALSE(m_grid.SetFixedRowCount(3));
}

TEST_F(GridStore, SizesOutOfRangeThrow) {
    Build(2, 2);
    EXPECT_THROW(m_grid.GetRowHeight(2), std::invalid_argument);
    EXPECT_THROW(m_grid.GetColumnWidth(-1), std::invalid_argument);
    EXPECT_EQ(m_grid.GetRowHeight(1), 20);
}

TEST_F(GridStore, ACellClassThatIsNoCellIsRefused) {
    Build(1, 1);
    const CGridCellBase* before = m_grid.GetCell(0, 0);
    EXPECT_FALSE(m_grid.SetCellClass(0, 0, kNotACell));
    EXPECT_EQ(m_grid.GetCell(0, 0), before);
    EXPECT_EQ(m_grid.GetCellText(0, 0), "r0c0");
}

TEST_F(GridStore, AClassThatMakesNoObjectsIsRefused) {
    Build(1, 1);
    EXPECT_FALSE(m_grid.SetCellClass(0, 0, CGridCellBase::classCGridCellBase));
}

TEST_F(GridStore, AnotherCellClassTakesTheContentOver) {
    Build(1, 1);
    m_grid.SetCellBackground(0, 0, 0x123456);
    m_grid.SetCellFormat(0, 0, 2);
    m_grid.SetCellState(0, 0, kCellReadOnly);
    m_grid.GetCell(0, 0)->SetUserValue(77);
    ASSERT_TRUE(m_grid.SetCellClass(0, 0, CGridCellBOOL::classCGridCellBOOL));
    const CGridCellBase& cell = *m_grid.GetCell(0, 0);
    EXPECT_TRUE(cell.IsKindOf(CGridCellBOOL::classCGridCellBOOL));
    EXPECT_TRUE(cell.IsKindOf(CGridCell::classCGridCell));
    EXPECT_FALSE(cell.IsKindOf(CGridCellFloat::classCGridCellFloat));
    EXPECT_EQ(cell.GetText(), "r0c0");
    EXPECT_EQ(cell.GetBackground(), 0x123456u);
    EXPECT_EQ(cell.GetFormat(), 2u);
    EXPECT_EQ(cell.GetUserValue(), 77);
    EXPECT_TRUE(cell.IsReadOnly());
}

TEST_F(GridStore, ACellWithoutItsOwnColourFollowsTheDefaultEvenAfterAChangeOfClass) {
    Build(1, 1);
    m_grid.SetCellClass(0, 0, CGridCellFloat::classCGridCellFloat);
    m_grid.DefaultCell(false, false).SetBackground(0x00ff00);
    EXPECT_EQ(m_grid.GetCell(0, 0)->GetBackground(), 0x00ff00u);
}

TEST_F(GridStore, FixedCellsAskTheirOwnDefaults) {
    Build(2, 2);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    m_grid.DefaultCell(true, false).SetBackground(0x111111);
    m_grid.DefaultCell(false, true).SetBackground(0x222222);
    m_grid.DefaultCell(true, true).SetBackground(0x333333);
    m_grid.DefaultCell(false, false).SetBackground(0x444444);
    EXPECT_EQ(m_grid.GetCell(0, 1)->GetBackground(), 0x111111u);
    EXPECT_EQ(m_grid.GetCell(1, 0)->GetBackground(), 0x222222u);
    EXPECT_EQ(m_grid.GetCell(0, 0)->GetBackground(), 0x333333u);
    EXPECT_EQ(m_grid.GetCell(1, 1)->GetBackground(), 0x444444u);
}

TEST_F(GridStore, TheDefaultWidthIsThatOfFourteenCharacters) {
    CGridDefaultCell cell;
    EXPECT_EQ(cell.Width(), 14 * 6);  // " XXXXXXXXXXXX "
    m_grid.SetRowCount(1);
    m_grid.SetColumnCount(1);
    EXPECT_EQ(m_grid.GetColumnWidth(0), 14 * 6);
    EXPECT_EQ(m_grid.GetRowHeight(0), cell.Height());
}

TEST_F(GridStore, ACellStartsWithoutValuesOfItsOwn) {
    const CGridCell cell;
    EXPECT_EQ(cell.GetText(), "");
    EXPECT_EQ(cell.GetUserValue(), 0);
    EXPECT_EQ(cell.GetImage(), -1);
    EXPECT_EQ(cell.GetFormat(), 0xffffffffu);
    EXPECT_EQ(cell.GetTextColour(), 0xff000000u);
    EXPECT_TRUE(cell.IsDefaultFont());
    EXPECT_EQ(cell.GetState(), 0u);
}

TEST_F(GridStore, EachStateBitHasItsTest) {
    CGridCell cell;
    cell.SetState(1 | 8 | 64);
    EXPECT_TRUE(cell.IsFocused());
    EXPECT_TRUE(cell.IsReadOnly());
    EXPECT_TRUE(cell.IsFixedColumn());
    EXPECT_FALSE(cell.IsSelected());
    EXPECT_FALSE(cell.IsFixed());
    EXPECT_FALSE(cell.IsFixedRow());
    EXPECT_FALSE(cell.IsChanged());
    EXPECT_FALSE(cell.IsHighlighted());
}

TEST_F(GridStore, WithoutAStoreEverySetterReturnsAtOnce) {
    Build(1, 1);
    m_grid.SetNoStore(true);
    EXPECT_FALSE(m_grid.SetCellText(0, 0, "x"));
    EXPECT_FALSE(m_grid.SetRowCount(5));
    EXPECT_FALSE(m_grid.SetColumnWidth(0, 5));
    m_grid.SetNoStore(false);
    EXPECT_EQ(m_grid.GetRowCount(), 1);
    EXPECT_EQ(m_grid.GetCellText(0, 0), "r0c0");
}

TEST_F(GridStore, WithoutAStoreClearingReturnsAtOnce) {
    Build(3, 3);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(2);
    m_grid.SetNoStore(true);
    m_grid.ClearGrid();
    EXPECT_EQ(m_grid.GetFixedRowCount(), 1);
    EXPECT_EQ(m_grid.GetFixedColumnCount(), 2);
    EXPECT_EQ(m_grid.GetRowCount(), 3);
    m_grid.SetNoStore(false);
    m_grid.ClearGrid();
    EXPECT_EQ(m_grid.GetFixedRowCount(), 0);
    EXPECT_EQ(m_grid.GetRowCount(), 0);
}

TEST_F(GridStore, ClearingForgetsFocusAndSelection) {
    Build(3, 3);
    FocusOn(1, 1);
    m_grid.ClearGrid();
    EXPECT_EQ(m_grid.GetRowCount(), 0);
    EXPECT_EQ(m_grid.GetColumnCount(), 0);
    EXPECT_EQ(Focus(), (CCellID{-1, -1}));
    EXPECT_TRUE(m_grid.SelectedCells().empty());
}

TEST_F(GridStore, ShrinkingUnderAnOpenEditorIsSafe) {
    Build(3, 3);
    FocusOn(2, 2);
    Type("long");
    ASSERT_NE(m_host->Editor(), nullptr);
    m_grid.SetRowCount(1);
    Type("er");
    Press(kKeyReturn);
    EXPECT_EQ(m_grid.GetCellText(2, 2), "");
    EXPECT_EQ(m_grid.GetRowCount(), 1);
}

// Measures the cost of a grid of that many rows, from counts and texts to typing in its last row.
double SecondsFor(int rows) {
    const auto start = std::chrono::steady_clock::now();
    CGridCtrl grid;
    auto made = std::make_unique<HeadlessGrid>(grid, GridSize{284, 259});
    HeadlessGrid& host = *made;
    grid.SetHost(std::move(made));
    grid.SetRowCount(rows);
    grid.SetColumnCount(2);
    grid.SetEditable(true);
    for (int row = 0; row < rows; ++row) grid.SetRowHeight(row, 30);
    for (int row = 0; row < rows; ++row) {
        grid.SetCellClass(row, 1, CGridCellBOOL::classCGridCellBOOL);
        grid.SetCellText(row, 0, std::to_string(row));
        grid.SetCellText(row, 1, "1");
    }
    grid.UpdateScrollBars();
    for (int row = 0; row < rows; ++row) host.TypeCell(row, 1, "0");
    EXPECT_EQ(grid.GetCellText(rows - 1, 1), "0");
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST_F(GridStore, TheCostOfRowsIsLinear) {
    SecondsFor(2000);  // warm
    const double few = SecondsFor(10000), many = SecondsFor(80000);
    // Eight times the rows: a cost that grew with their square would be sixty-four times as high.
    EXPECT_LT(many, few * 30 + 0.5);
    EXPECT_LT(few, 2.0);
}

TEST_F(GridStore, ACellIsSmall) {
    EXPECT_LE(sizeof(CGridCell), 112u);
}

}  // namespace

}  // namespace lumerin
