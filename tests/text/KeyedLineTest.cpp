// SPDX-License-Identifier: MIT
// Keyed lines: the line reader and the two key parsers.
#include "text/KeyedLine.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "support/ScratchFolder.h"

namespace lumerin {

namespace {

constexpr int kLimit = 128;

class KeyedFile : public testing::Test {
  protected:
    std::string FileOf(const std::string& text) const {
        m_scratch.Write("bridge.MIS", text);
        return m_scratch.PathOf("bridge.MIS");
    }
    // All lines until one cannot be read.
    std::vector<std::string> LinesOf(const std::string& text, int maxLength = kLimit) const {
        ifstreamex in(FileOf(text));
        std::vector<std::string> lines;
        for (std::string line; in.GetLineEx(line, maxLength);) {
            lines.push_back(line);
            if (lines.size() > 100) break;
        }
        return lines;
    }

    const ScratchFolder m_scratch;
};

using Lines = std::vector<std::string>;

TEST_F(KeyedFile, ABackslashContinuesTheLine) {
    EXPECT_EQ(LinesOf("S= 3 D= 48.0 \\\n W= 24.0\nnext\n"), (Lines{"S= 3 D= 48.0  W= 24.0", "next"}));
}

TEST_F(KeyedFile, WhatFollowsTheBackslashIsDropped) {
    EXPECT_EQ(LinesOf("S= 3 \\ W= 1 \\ Z= 2\nD= 5\n"), (Lines{"S= 3 D= 5"}));
}

TEST_F(KeyedFile, ContinuationsMayBeContinued) {
    EXPECT_EQ(LinesOf("a\\\nb\\\n\\\nc\nd\n"), (Lines{"abc", "d"}));
}

TEST_F(KeyedFile, LeadingWhiteSpaceGoesAndTrailingStays) {
    EXPECT_EQ(LinesOf(" \t PIERDATA  \n\n   \nX\n"), (Lines{"PIERDATA  ", "", "", "X"}));
}

TEST_F(KeyedFile, LinesMayEndInCarriageReturnAndLineFeed) {
    EXPECT_EQ(LinesOf("a \r\n\r\nb\\\r\nc\r\nd"), (Lines{"a ", "", "bc", "d"}));
}

TEST_F(KeyedFile, TheLastLineNeedsNoEnd) {
    EXPECT_EQ(LinesOf("a\nb"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf(""), Lines{});
    EXPECT_EQ(LinesOf("\n"), Lines{""});
}

TEST_F(KeyedFile, AContinuationAtTheEndOfTheFileEnds) {
    EXPECT_EQ(LinesOf("a\\"), Lines{"a"});
    EXPECT_EQ(LinesOf("a\\\n"), Lines{"a"});
}

// A physical line may have one character less than the limit.
TEST_F(KeyedFile, LinesBelowTheLimitAreWhole) {
    const std::string longest(kLimit - 1, 'x');
    EXPECT_EQ(LinesOf(longest + "\nb\n"), (Lines{longest, "b"}));
    EXPECT_EQ(LinesOf(longest + "\r\nb\n"), (Lines{longest, "b"}));
    EXPECT_EQ(LinesOf(longest), Lines{longest});
    const std::string continued(kLimit - 2, 'x');
    EXPECT_EQ(LinesOf(continued + "\\\n" + continued + "\n"), Lines{continued + continued});
}

TEST_F(KeyedFile, ALineAtTheLimitEndsTheReadingWithoutHanging) {
    ifstreamex in(FileOf(std::string(kLimit, 'x') + "\nPIERDATA\n"));
    std::string line;
    in.GetLineEx(line, kLimit);
    EXPECT_EQ(line, std::string(kLimit - 1, 'x'));
    EXPECT_TRUE(in.fail());
    EXPECT_FALSE(in.bad());
    EXPECT_FALSE(in.eof());
    EXPECT_FALSE(in.GetLineEx(line, kLimit));
    EXPECT_EQ(line, "");
}

TEST_F(KeyedFile, ALongerLimitTakesLongerLines) {
    const std::string title(300, 'T');
    EXPECT_EQ(LinesOf(title + "\nnext\n", 512), (Lines{title, "next"}));
}

TEST_F(KeyedFile, AMissingFileIsAFailedStream) {
    ifstreamex in(m_scratch.PathOf("missing.MIS"));
    EXPECT_TRUE(in.fail());
    std::string line = "old";
    EXPECT_FALSE(in.GetLineEx(line, kLimit));
    EXPECT_EQ(line, "");
}

TEST_F(KeyedFile, AFolderInItsPlaceIsAFailedStream) {
    std::filesystem::create_directory(m_scratch.Path() / "bridge.MIS");
    ifstreamex in(m_scratch.PathOf("bridge.MIS"));
    EXPECT_TRUE(in.fail());
    EXPECT_FALSE(in.is_open());
    std::string line = "old";
    EXPECT_FALSE(in.GetLineEx(line, kLimit));
    EXPECT_EQ(line, "");
}

// /proc/self/mem opens as a file whose first bytes cannot be read.
TEST_F(KeyedFile, AReadErrorIsABadStream) {
    std::filesystem::create_symlink("/proc/self/mem", m_scratch.Path() / "bridge.MIS");
    ifstreamex in(m_scratch.PathOf("bridge.MIS"));
    ASSERT_TRUE(in.is_open());
    std::string line = "old";
    EXPECT_FALSE(in.GetLineEx(line, kLimit));
    EXPECT_EQ(line, "");
    EXPECT_TRUE(in.bad());
    EXPECT_FALSE(in.GetLineEx(line, kLimit));
}

TEST_F(KeyedFile, TheFileIsFoundWhateverTheCaseOfItsName) {
    FileOf("here\n");
    ifstreamex in(m_scratch.PathOf("BRIDGE.mis"));
    std::string line;
    EXPECT_TRUE(in.GetLineEx(line, kLimit));
    EXPECT_EQ(line, "here");
}

std::vector<int> Ints(std::string_view text, std::string_view key, int count) {
    std::vector<int> out(static_cast<std::size_t>(count), -99);
    out.push_back(ReadKeyedInts(text, key, std::span(out).first(static_cast<std::size_t>(count))));
    return out;  // the values, then how many were read
}

std::vector<double> Doubles(std::string_view text, std::string_view key, int count) {
    std::vector<double> out(static_cast<std::size_t>(count), -99.0);
    out.push_back(ReadKeyedDoubles(text, key, std::span(out).first(static_cast<std::size_t>(count))));
    return out;
}

using I = std::vector<int>;
using D = std::vector<double>;

TEST(Keys, AreFoundInAnyLetterCase) {
    EXPECT_EQ(Ints("n= 7", "N=", 1), (I{7, 1}));
    EXPECT_EQ(Ints("Load Count= 7", "LOAD COUNT=", 1), (I{7, 1}));
    EXPECT_EQ(Doubles("w= 24.5", "W", 1), (D{24.5, 1}));
}

TEST(Keys, OfOneCharacterGetTheEqualsSign) {
    EXPECT_EQ(Ints("N 3 N= 4", "N", 1), (I{4, 1}));
    EXPECT_EQ(Ints("NO 3", "NO", 1), (I{3, 1}));  // a longer key is used as it is
}

TEST(Keys, MayMatchInsideALongerWord) {
    EXPECT_EQ(Ints("PIN= 5 N= 6", "N=", 1), (I{5, 1}));
}

TEST(Keys, ThatAreEmptyStartAtTheFirstCharacter) {
    EXPECT_EQ(Ints(" 1 2 3", "", 3), (I{1, 2, 3, 3}));
    EXPECT_EQ(Ints("", "", 2), (I{0, 0, 0}));
}

TEST(Keys, ThatAreAbsentClearTheValues) {
    EXPECT_EQ(Ints("S= 3", "D=", 2), (I{0, 0, 0}));
    EXPECT_EQ(Doubles("", "D=", 1), (D{0.0, 0}));
}

TEST(KeyedValues, ArePartedByWhiteSpaceAndOneComma) {
    EXPECT_EQ(Ints("N= 1 2,3 , 4\t5", "N", 5), (I{1, 2, 3, 4, 5, 5}));
    EXPECT_EQ(Ints("N=\t\x01 8", "N", 1), (I{8, 1}));
    EXPECT_EQ(Ints("N=8", "N", 1), (I{8, 1}));
    EXPECT_EQ(Ints("N= 1,,2", "N", 3), (I{1, 0, 0, 1}));  // only one comma is passed over
}

TEST(KeyedValues, StopAtTheEndOfTheLine) {
    EXPECT_EQ(Ints("N= 1 2", "N", 4), (I{1, 2, 0, 0, 2}));
    EXPECT_EQ(Ints("N=", "N", 1), (I{0, 0}));
    EXPECT_EQ(Ints("N= 5 ,", "N", 2), (I{5, 0, 1}));
}

TEST(KeyedValues, StopAtWhatIsNoNumber) {
    EXPECT_EQ(Ints("N= 1 x 2", "N", 3), (I{1, 0, 0, 1}));
    EXPECT_EQ(Ints("N= x", "N", 1), (I{0, 0}));
    EXPECT_EQ(Ints("N= 12.5", "N", 2), (I{12, 0, 1}));  // the integer ends at the point
    EXPECT_EQ(Ints("N= 99999999999", "N", 1), (I{0, 0}));
    EXPECT_EQ(Doubles("X= nan", "X", 1), (D{0.0, 0}));
    EXPECT_EQ(Doubles("X= 1e999", "X", 1), (D{0.0, 0}));
}

TEST(KeyedValues, MayHaveSignsAndExponents) {
    EXPECT_EQ(Ints("N= -3 +4", "N", 2), (I{-3, 4, 2}));
    EXPECT_EQ(Ints("N= +-4", "N", 1), (I{0, 0}));
    EXPECT_EQ(Doubles("X= -1.5e2, +.25 3. -.5", "X", 4), (D{-150.0, 0.25, 3.0, -0.5, 4}));
}

TEST(KeyedValues, ThatAreNoNumberLeaveTheFieldAsItWas) {
    int number = 17;
    EXPECT_FALSE(ReadKeyedInt("S= three", "S", number));
    EXPECT_EQ(number, 17);
    EXPECT_FALSE(ReadKeyedInt("D= 4", "S", number));
    EXPECT_EQ(number, 17);
    EXPECT_TRUE(ReadKeyedInt("S= 3", "S", number));
    EXPECT_EQ(number, 3);
    double width = 1.5;
    EXPECT_FALSE(ReadKeyedDouble("W= wide", "W", width));
    EXPECT_EQ(width, 1.5);
    EXPECT_TRUE(ReadKeyedDouble("W= 0", "W", width));
    EXPECT_EQ(width, 0.0);
}

}  // namespace

}  // namespace lumerin
