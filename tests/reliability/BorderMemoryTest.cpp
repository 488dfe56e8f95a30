// SPDX-License-Identifier: MIT
#include "framework/TestDialog.h"
#include "grid/GridFixture.h"
#include "reliability/FaultyCalls.h"

namespace lumerin {

// What the borders and the grid do where memory runs out inside of them.

namespace {

// Runs the step with its first allocation failing, then its second and so on, until it passes clean. Returns
// how many failed.
template <class Step, class Check>
int FailEach(Step step, Check check) {
    int failed = 0;
    for (bool clean = false; !clean; ++failed) {
        faulty::g_allocationsLeft = failed;
        try {
            step();
        } catch (const std::bad_alloc&) {
            // The border of the window reports it.
        }
        clean = faulty::g_allocationsLeft >= 0;
        faulty::g_allocationsLeft = -1;
        check();
    }
    return failed - 1;
}

TEST(Border, OfADialogTakesNoMemory) {
    TestDialog dialog;
    const std::array<long, 16> much{1, 2, 3};
    bool ran = false;
    faulty::g_allocationsLeft = 0;
    const bool passed = RunGuarded(dialog, [much, &ran] { ran = much[2] == 3; });
    const long left = faulty::g_allocationsLeft;
    faulty::g_allocationsLeft = -1;
    EXPECT_TRUE(passed);
    EXPECT_TRUE(ran);
    EXPECT_EQ(left, 0);
}

class BorderDialog : public CDialog {
  public:
    BorderDialog() : CDialog(kTestSpec) {}
    void OnFileException(const std::string& text) override { words = &text; }
    const std::string* words = nullptr;
};

TEST(Border, ReportsThatMemoryIsOutWithoutTakingAny) {
    BorderDialog dialog;
    std::size_t length = 0;
    RunGuarded(dialog, [] { throw 1; });
    EXPECT_NE(dialog.words, nullptr) << "what is no exception of the library stops here too";
    dialog.words = nullptr;
    RunGuarded(dialog, [&length] {
        faulty::g_allocationsLeft = 0;
        const std::string text(100, 'x');
        length = text.size();
    });
    EXPECT_EQ(faulty::g_allocationsLeft, -1) << "one failed, and the words asked for none";
    EXPECT_EQ(length, 0u);
    ASSERT_NE(dialog.words, nullptr);
    EXPECT_EQ(*dialog.words, "There is not enough memory for this operation.");
}

using GridMemory = GridFixture;

TEST_F(GridMemory, AGridHasAllItsCellsWhateverFails) {
    Build(3, 2);
    int rows = 3, columns = 2;
    const auto whole = [&] {
        // Either all of the change or nothing of it.
        const int hasRows = m_grid.GetRowCount(), hasColumns = m_grid.GetColumnCount();
        EXPECT_THAT(hasRows, testing::AnyOf(3, rows));
        EXPECT_THAT(hasColumns, testing::AnyOf(2, columns));
        for (int row = 0; row < hasRows; ++row) {
            EXPECT_GE(m_grid.GetRowHeight(row), 0);
            for (int column = 0; column < hasColumns; ++column) {
                EXPECT_GE(m_grid.GetColumnWidth(column), 0);
                EXPECT_NE(m_grid.GetCell(row, column), nullptr) << row << ", " << column;
            }
        }
        EXPECT_EQ(m_grid.GetCellText(2, 1), "r2c1");
    };
    EXPECT_GT(FailEach([&] { m_grid.SetRowCount(rows = 6); }, whole), 4);
    m_grid.SetRowCount(3);
    rows = 3;
    EXPECT_GT(FailEach([&] { m_grid.SetColumnCount(columns = 5); }, whole), 4);
    EXPECT_EQ(m_grid.GetColumnCount(), 5);
}

TEST_F(GridMemory, AnEditThatCanNotStartLeavesNoEditorOpen) {
    Build(3, 2);
    const std::string text(60, 'x');  // long enough to need memory
    m_grid.SetCellText(1, 1, text);
    FocusOn(1, 1);
    const auto idle = [&] {
        m_grid.EndOpenEdit();
        EXPECT_EQ(m_grid.OpenEditor(), nullptr);
        EXPECT_FALSE(m_grid.GetCell(1, 1)->IsEditing());
        EXPECT_EQ(m_grid.GetCellText(1, 1), text);
    };
    EXPECT_GT(FailEach([&] { m_grid.BeginCellEdit(1, 1, {}, kKeyReturn); }, idle), 2);
}

TEST_F(GridMemory, AnEditThatCanNotEndIsOverAndTheCellKeepsItsText) {
    Build(3, 2);
    const std::string before(60, 'x'), typed(70, 'y');
    int kept = 0, taken = 0;
    m_grid.SetCellText(1, 1, before);
    FocusOn(1, 1);
    const auto end = [&] {
        const long left = faulty::g_allocationsLeft.exchange(-1);
        ASSERT_TRUE(m_grid.BeginCellEdit(1, 1, {}, kKeyReturn));
        EditText edit;
        edit.Set(typed);
        auto* window = const_cast<EditorWindow*>(m_grid.OpenEditor()->Window());
        window->Write(edit);
        faulty::g_allocationsLeft = left;
        m_grid.OpenEditor()->OnKeyDown(kKeyReturn, {});
    };
    const auto over = [&] {
        EXPECT_EQ(m_grid.OpenEditor(), nullptr);
        EXPECT_FALSE(m_grid.GetCell(1, 1)->IsEditing());
        const std::string text = m_grid.GetCellText(1, 1);
        EXPECT_THAT(text, testing::AnyOf(before, typed));
        ++(text == before ? kept : taken);
        m_grid.SetCellText(1, 1, before);
    };
    EXPECT_GT(FailEach(end, over), 0);
    EXPECT_GT(kept, 0);
    EXPECT_GT(taken, 0) << "the last one passes clean";
}

}  // namespace

}  // namespace lumerin
