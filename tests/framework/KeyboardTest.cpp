// The keyboard of a dialog without a screen.
#include "framework/Keys.h"
#include "framework/TestDialog.h"

namespace {

using headless::HeadlessDialog;

constexpr KeyState kShift{true, false};

class KeyboardTest : public HeadlessTest {};

TEST_F(KeyboardTest, TabStopsAtTheCheckedRadioButtonAndPassesWhatCannotBeUsed) {
    TestDialog dialog;
    Run(dialog, [](HeadlessDialog& front) {
        front.Focus(11);
        std::vector<int> stops;
        for (int i = 0; i < 7; ++i) {
            EXPECT_TRUE(front.PressKey(kKeyTab, {}));
            stops.push_back(front.Focused()->spec->id);
        }
        // The group of button 13 has no checked one; 16 is disabled, 17 hidden.
        EXPECT_EQ(stops, (std::vector<int>{14, 15, 18, 20, 1, 2, 11}));
        EXPECT_TRUE(front.PressKey(kKeyTab, kShift));
        EXPECT_EQ(front.Focused()->spec->id, 2);
    });
}

TEST_F(KeyboardTest, TabSelectsTheTextOfAnEdit) {
    TestDialog dialog;
    Run(dialog, [&dialog](HeadlessDialog& front) {
        front.Focus(15);
        front.PressKey(kKeyTab, {});
        dialog.notices.clear();
        EXPECT_TRUE(front.TypeChar('4'));
        EXPECT_TRUE(front.TypeChar('x'));  // digits alone
        EXPECT_TRUE(front.TypeChar('2'));
        EXPECT_EQ(dialog.ItemText(18), "42");
        const std::vector<std::pair<int, Notice>> twice(2, {18, Notice::textChanged});
        EXPECT_EQ(dialog.notices, twice);
    });
}

TEST_F(KeyboardTest, TheArrowsOfAnEditTurnItsSpinButton) {
    TestDialog dialog;
    Run(dialog, [&dialog](HeadlessDialog& front) {
        dialog.spin.SetRange(1, 8);
        dialog.spin.SetPos(7);
        front.Focus(18);
        front.PressKey(kKeyUp, {});
        front.PressKey(kKeyUp, {});
        EXPECT_EQ(dialog.ItemText(18), "8");
        front.PressKey(kKeyDown, {});
        EXPECT_EQ(dialog.ItemText(18), "7");
    });
}

TEST_F(KeyboardTest, AListMovesByTheArrowsAndStaysAtItsEnds) {
    TestDialog dialog;
    Run(dialog, [&dialog](HeadlessDialog& front) {
        for (const char* entry : {"a", "b", "c"}) dialog.combo.AddString(entry);
        dialog.combo.SetCurSel(0);
        front.Focus(20);
        front.PressKey(kKeyDown, {});
        EXPECT_EQ(dialog.combo.GetCurSel(), 1);
        front.PressKey(kKeyEnd, {});
        dialog.notices.clear();
        front.PressKey(kKeyDown, {});
        EXPECT_EQ(dialog.combo.GetCurSel(), 2);
        EXPECT_TRUE(dialog.notices.empty());
        front.PressKey(kKeyHome, {});
        EXPECT_EQ(dialog.combo.GetCurSel(), 0);
        EXPECT_EQ(dialog.notices.size(), 1U);
    });
}

TEST_F(KeyboardTest, AButtonHasNoUseForTextsAndArrows) {
    TestDialog dialog;
    Run(dialog, [](HeadlessDialog& front) {
        front.Focus(15);
        EXPECT_FALSE(front.TypeChar('a'));
        EXPECT_FALSE(front.PressKey(kKeyDown, {}));
    });
}

}  // namespace
