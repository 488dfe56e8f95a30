// SPDX-License-Identifier: MIT
#include "grid/EditText.h"

#include <gtest/gtest.h>

#include "framework/headless/EditKeys.h"

namespace lumerin {

namespace {

// The text after typing `keys` into `text` with that selection, by the rules of a number mode.
std::string Typed(int mode, const std::string& text, int start, int end, const std::string& keys) {
    EditText edit{text, start, end};
    for (const char key : keys) {
        const auto c = static_cast<unsigned char>(key);
        if (FilterNumber(edit, mode, c) == FilterResult::passed)
            headless::TypeEditCharacter({edit.text, edit.start, edit.end}, c);
    }
    return edit.text;
}

std::string TypedAtEnd(int mode, const std::string& text, const std::string& keys) {
    const int end = static_cast<int>(text.size());
    return Typed(mode, text, end, end, keys);
}

TEST(NumberFilter, EachModeTakesItsCharacters) {
    const std::string keys = "a1-.2 e+";
    EXPECT_EQ(TypedAtEnd(kDigits, "", keys), "12");
    EXPECT_EQ(TypedAtEnd(kSignedDigits, "", keys), "-12");
    EXPECT_EQ(TypedAtEnd(kReal, "", keys), "-1.2");
    EXPECT_EQ(TypedAtEnd(kPositiveReal, "", keys), "1.2");
}

TEST(NumberFilter, InModeFourADigitReplacesTheWholeText) {
    EXPECT_EQ(TypedAtEnd(kZeroOrOne, "1", "0"), "0");
    EXPECT_EQ(TypedAtEnd(kZeroOrOne, "1", "01"), "1");
    EXPECT_EQ(Typed(kZeroOrOne, "words", 2, 3, "1"), "1");
}

TEST(NumberFilter, InModeFourNothingElsePasses) {
    EXPECT_EQ(TypedAtEnd(kZeroOrOne, "1", "5-.a2\b"), "1");
}

TEST(NumberFilter, TheCaretIsAfterADigitOfModeFour) {
    EditText edit{"0", 0, 1};
    EXPECT_EQ(FilterNumber(edit, kZeroOrOne, '1'), FilterResult::replaced);
    EXPECT_EQ(edit.start, 1);
    EXPECT_EQ(edit.end, 1);
}

TEST(NumberFilter, NothingComesInFrontOfASign) {
    EXPECT_EQ(Typed(kReal, "-5", 0, 0, "1"), "-5");
    EXPECT_EQ(Typed(kReal, "-5", 0, 0, "."), "-5");
    EXPECT_EQ(Typed(kReal, "-5", 0, 0, "-"), "5");
    EXPECT_EQ(Typed(kReal, "-5", 1, 1, "1"), "-15");
    EXPECT_EQ(Typed(kReal, "5", 0, 0, "1"), "15");
    // A selection from the start is replaced, including the sign.
    EXPECT_EQ(Typed(kReal, "-5", 0, 2, "1"), "1");
    EXPECT_EQ(Typed(kZeroOrOne, "-5", 0, 0, "1"), "-5");
}

TEST(NumberFilter, ASignTogglesWhereverTheCaretIs) {
    EXPECT_EQ(TypedAtEnd(kReal, "12", "-"), "-12");
    EXPECT_EQ(Typed(kReal, "12", 1, 1, "-"), "-12");
    EXPECT_EQ(TypedAtEnd(kReal, "12", "--"), "12");
    EXPECT_EQ(TypedAtEnd(kSignedDigits, "", "-"), "-");
    EXPECT_EQ(TypedAtEnd(kDigits, "12", "-"), "12");
    EXPECT_EQ(TypedAtEnd(kPositiveReal, "12", "-"), "12");
}

TEST(NumberFilter, ATextThatHoldsASignAnywhereLosesItsFirstCharacter) {
    EXPECT_EQ(TypedAtEnd(kReal, "1-2", "-"), "-2");
}

TEST(NumberFilter, TheCaretMovesWithTheTextAtASign) {
    EditText edit{"125", 1, 1};
    FilterNumber(edit, kReal, '-');
    EXPECT_EQ(edit.start, 2);
    FilterNumber(edit, kReal, '-');
    EXPECT_EQ(edit.start, 1);
    EXPECT_EQ(edit.text, "125");
}

TEST(NumberFilter, ASecondPointIsRefusedUnlessTheFirstIsSelected) {
    EXPECT_EQ(TypedAtEnd(kReal, "1.5", "."), "1.5");
    EXPECT_EQ(Typed(kReal, "1.5", 1, 2, "."), "1.5");
    EXPECT_EQ(Typed(kReal, "1.53", 1, 3, "."), "1.3");
    EXPECT_EQ(Typed(kReal, "1.53", 2, 4, "."), "1.53");
    EXPECT_EQ(Typed(kReal, "1.5", 0, 1, "."), "1.5");
    EXPECT_EQ(TypedAtEnd(kSignedDigits, "1", "."), "1");
}

TEST(NumberFilter, BackspaceDeletesInTheModesZeroToThree) {
    for (const int mode : {kDigits, kSignedDigits, kReal, kPositiveReal}) {
        EXPECT_EQ(TypedAtEnd(mode, "12", "\b"), "1") << mode;
    }
    EXPECT_EQ(TypedAtEnd(kZeroOrOne, "1", "\b"), "1");
}

TEST(NumberFilter, ControlCharactersAreRefused) {
    EditText edit{"1", 1, 1};
    EXPECT_EQ(FilterNumber(edit, kReal, 22), FilterResult::refused);
    EXPECT_EQ(FilterNumber(edit, kReal, 3), FilterResult::refused);
    EXPECT_EQ(FilterNumber(edit, kReal, 0xbd), FilterResult::refused);
}

}  // namespace

}  // namespace lumerin
