// SPDX-License-Identifier: MIT
// The keyboard of a dialog without a screen.
#include "framework/Keys.h"
#include "framework/TestDialog.h"

namespace lumerin {

namespace {

using headless::HeadlessDialog;

constexpr KeyState kShift{true, false};

class KeyboardTest : public HeadlessTest {};

// Keys with a character have its code; the others have the numbers that the platform gives them, so that a
// script means the same keys on both faces.
TEST(KeyCodes, AreThePlatforms) {
    EXPECT_EQ(kKeyBackspace, static_cast<unsigned>('\b'));
    EXPECT_EQ(kKeyTab, static_cast<unsigned>('\t'));
    EXPECT_EQ(kKeyReturn, static_cast<unsigned>('\r'));
    EXPECT_EQ(kKeyEscape, 0x1bu);
    EXPECT_EQ(kKeyBlank, static_cast<unsigned>(' '));
    EXPECT_EQ(kKeyPageUp, 0x21u);
    EXPECT_EQ(kKeyPageDown, 0x22u);
    EXPECT_EQ(kKeyEnd, 0x23u);
    EXPECT_EQ(kKeyHome, 0x24u);
    EXPECT_EQ(kKeyLeft, 0x25u);
    EXPECT_EQ(kKeyUp, 0x26u);
    EXPECT_EQ(kKeyRight, 0x27u);
    EXPECT_EQ(kKeyDown, 0x28u);
    EXPECT_EQ(kKeyInsert, 0x2du);
    EXPECT_EQ(kKeyDelete, 0x2eu);
    EXPECT_EQ(kKeyMouse, 1u);  // a button, which no key can be
}

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

}  // namespace lumerin
