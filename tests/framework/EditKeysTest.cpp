// SPDX-License-Identifier: MIT
#include "framework/headless/EditKeys.h"

#include <gtest/gtest.h>

#include "framework/headless/Headless.h"

namespace lumerin {

namespace {

constexpr KeyState kShift{true, false}, kControl{false, true};
constexpr unsigned kCtrlA = 1, kCtrlC = 3, kCtrlV = 22, kCtrlX = 24;

class EditKeys : public testing::Test {
  protected:
    EditKeys() { headless::ResetState(); }
    ~EditKeys() override { headless::ResetState(); }

    void Set(const std::string& newText, int newAnchor, int newCaret) {
        text = newText;
        anchor = newAnchor;
        caret = newCaret;
    }
    void Press(unsigned key, KeyState keys = {}) {
        headless::PressEditKey({text, anchor, caret, digitsOnly}, key, keys);
    }
    void Type(unsigned character) {
        headless::TypeEditCharacter({text, anchor, caret, digitsOnly}, character);
    }
    // The text with its selection between brackets.
    std::string Shown() {
        int start = anchor, end = caret;
        headless::OrderSelection(start, end);
        std::string shown = text;
        shown.insert(static_cast<std::size_t>(end), "]");
        shown.insert(static_cast<std::size_t>(start), "[");
        return shown;
    }

    std::string text;
    int anchor = 0, caret = 0;
    bool digitsOnly = false;
};

TEST_F(EditKeys, TypingTakesThePlaceOfTheSelection) {
    Set("abcd", 3, 1);
    Type('x');
    EXPECT_EQ(Shown(), "ax[]d");
}

TEST_F(EditKeys, BackspaceTakesTheCharacterBeforeOrTheSelection) {
    Set("ab", 0, 0);
    Type(kKeyBackspace);
    EXPECT_EQ(Shown(), "[]ab");
    Set("abc", 2, 2);
    Type(kKeyBackspace);
    EXPECT_EQ(Shown(), "a[]c");
    Set("abc", 2, 0);
    Type(kKeyBackspace);
    EXPECT_EQ(Shown(), "[]c");
}

TEST_F(EditKeys, DeleteTakesTheNextCharacterOrTheSelection) {
    Set("abc", 1, 1);
    Press(kKeyDelete);
    EXPECT_EQ(Shown(), "a[]c");
    Press(kKeyEnd);
    Press(kKeyDelete);
    EXPECT_EQ(Shown(), "ac[]");
    Set("abc", 1, 3);
    Press(kKeyDelete);
    EXPECT_EQ(Shown(), "a[]");
}

TEST_F(EditKeys, TheCaretStaysInsideAndShiftMovesItAlone) {
    Set("abc", 2, 2);
    Press(kKeyRight);
    Press(kKeyRight);
    EXPECT_EQ(Shown(), "abc[]");
    Press(kKeyLeft, kShift);
    Press(kKeyLeft, kShift);
    EXPECT_EQ(Shown(), "a[bc]");
    Press(kKeyHome, kShift);
    EXPECT_EQ(Shown(), "[abc]");
    Press(kKeyEnd);
    Press(kKeyHome);
    Press(kKeyLeft);
    EXPECT_EQ(Shown(), "[]abc");
}

TEST_F(EditKeys, TheClipboardHasItsCharactersAndItsKeys) {
    Set("abcd", 1, 3);
    Type(kCtrlC);
    EXPECT_EQ(headless::State().clipboard, "bc");
    Press(kKeyEnd);
    Type(kCtrlV);
    EXPECT_EQ(Shown(), "abcdbc[]");
    Type(kCtrlA);
    EXPECT_EQ(Shown(), "abcdbc[]");
    Press(kKeyHome, kShift);
    Type(kCtrlX);
    EXPECT_EQ(Shown(), "[]");
    EXPECT_EQ(headless::State().clipboard, "abcdbc");
    Press(kKeyInsert, kShift);
    Press(kKeyHome, kShift);
    Press(kKeyInsert, kControl);
    Press(kKeyDelete, kShift);
    EXPECT_EQ(Shown(), "[]");
    EXPECT_EQ(headless::State().clipboard, "abcdbc");
}

TEST_F(EditKeys, CopyingNothingLeavesTheClipboard) {
    headless::State().clipboard = "kept";
    Set("abc", 1, 1);
    Type(kCtrlC);
    Type(kCtrlX);
    EXPECT_EQ(headless::State().clipboard, "kept");
    EXPECT_EQ(Shown(), "a[]bc");
}

TEST_F(EditKeys, OneLineIsPasted) {
    headless::State().clipboard = "one\r\ntwo";
    Type(kCtrlV);
    EXPECT_EQ(Shown(), "one[]");
}

TEST_F(EditKeys, AnEditOfDigitsTakesDigitsAlone) {
    digitsOnly = true;
    for (const char c : {'1', '-', 'a', '2'}) Type(static_cast<unsigned char>(c));
    EXPECT_EQ(Shown(), "12[]");
    headless::State().clipboard = "3x";
    Type(kCtrlV);
    EXPECT_EQ(Shown(), "12[]");
    headless::State().clipboard = "34";
    Type(kCtrlV);
    EXPECT_EQ(Shown(), "1234[]");
}

}  // namespace

}  // namespace lumerin
