// SPDX-License-Identifier: MIT
// UTF-8 and the Western code page. Each expected byte is that of the code page's table.
#include "text/Utf8.h"

#include <gtest/gtest.h>

namespace lumerin {

namespace {

TEST(ToUtf8, TurnsTheBytesOfTheCodePage) {
    EXPECT_EQ(ToUtf8("plain"), "plain");
    EXPECT_EQ(ToUtf8("non-Win32\xAE"), "non-Win32\xC2\xAE");
    EXPECT_EQ(ToUtf8("Gr\xF6\xDF"
                     "e"),
              "Gr\xC3\xB6\xC3\x9F"
              "e");
    EXPECT_EQ(ToUtf8("\x80 \x99"), "\xE2\x82\xAC \xE2\x84\xA2");  // the euro and the trade mark
}

TEST(ToUtf8, LeavesWhatIsUtf8) {
    EXPECT_EQ(ToUtf8("gr\xC3\xBCn"), "gr\xC3\xBCn");
    EXPECT_EQ(ToUtf8("\xE6\xA9\x8B \xF0\x9F\x8C\x89"), "\xE6\xA9\x8B \xF0\x9F\x8C\x89");  // two bridges
    // A path in a text of the code page.
    EXPECT_EQ(ToUtf8("gr\xC3\xBCn: 5\xB0"), "gr\xC3\xBCn: 5\xC2\xB0");
}

TEST(ToUtf8, LeavesTheFirstAndTheLastCharacterOfEachLength) {
    for (const char* text : {"\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                             "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(ToUtf8(text), text);
    }
}

TEST(ToUtf8, TakesBytesThatAreNoSequenceForTheCodePages) {
    EXPECT_EQ(ToUtf8("\xC3"), "\xC3\x83");                              // cut short
    EXPECT_EQ(ToUtf8("\xC0\xAF"), "\xC3\x80\xC2\xAF");                  // a longer form of "/" than it has
    EXPECT_EQ(ToUtf8("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC");  // a surrogate is no text
    EXPECT_EQ(ToUtf8("\xF4\x90\x80\x80"), "\xC3\xB4\xC2\x90\xE2\x82\xAC\xE2\x82\xAC");  // beyond the last
}

TEST(ToWestern, GivesACharacterItsOneByte) {
    EXPECT_EQ(ToWestern("plain"), "plain");
    EXPECT_EQ(ToWestern("Gr\xC3\xB6\xC3\x9F"
                        "e.in"),
              "Gr\xF6\xDF"
              "e.in");
    EXPECT_EQ(ToWestern("\xC2\xA0\xC3\xBF"), "\xA0\xFF");  // the first and the last of the upper half
    EXPECT_EQ(ToWestern("\xE2\x82\xAC \xE2\x80\x93 \xC5\xBE"), "\x80 \x96 \x9E");  // euro, dash, z with caron
}

TEST(ToWestern, MarksEachCharacterThatItDoesNotHave) {
    EXPECT_EQ(ToWestern("\xE6\xA9\x8B.in"), "?.in");
    EXPECT_EQ(ToWestern("a\xF0\x9F\x8C\x89z"), "a?z");
    EXPECT_EQ(ToWestern("\xC4\x80\xCE\xB1"), "??");  // a with macron, alpha
    EXPECT_EQ(ToWestern("\xC2\x80"), "?");           // a control character; byte 0x80 is the euro
}

TEST(ToWestern, LeavesBytesThatAreNoUtf8) {
    EXPECT_EQ(ToWestern("Gr\xF6\xDF"
                        "e"),
              "Gr\xF6\xDF"
              "e");
    EXPECT_EQ(ToWestern("\xC3"), "\xC3");
    EXPECT_EQ(ToWestern("\xE2\x82"), "\xE2\x82");
}

TEST(ToWestern, BringsEachByteOfTheCodePageBack) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string western(1, static_cast<char>(byte));
        EXPECT_EQ(ToWestern(ToUtf8(western)), western) << byte;
    }
}

TEST(WholeCharacters, LeavesOutACharacterThatHasOnlyBegun) {
    const std::string bridge = "a\xF0\x9F\x8C\x89", stroke = "a\xE2\x80\x93", umlaut = "a\xC3\xBC";
    for (const std::string& text : {bridge, stroke, umlaut}) {
        for (std::size_t bytes = 2; bytes < text.size(); ++bytes) {
            EXPECT_EQ(WholeCharacters(text.substr(0, bytes)), 1U) << bytes << " of " << text;
        }
        EXPECT_EQ(WholeCharacters(text), text.size());
    }
    EXPECT_EQ(WholeCharacters(""), 0U);
    EXPECT_EQ(WholeCharacters("\xC3"), 0U);
    EXPECT_EQ(WholeCharacters("plain"), 5U);
    // What is no UTF-8 does not wait for more.
    EXPECT_EQ(WholeCharacters("\x80\x80\x80\x80"), 4U);
}

TEST(WithoutControls, LeavesATerminalNothingToObey) {
    EXPECT_EQ(WithoutControls("plain\ttext\n"), "plain\ttext\n");
    EXPECT_EQ(WithoutControls("\x1B[31mred\x07\r\x7F"), "?[31mred???");
    // U+009B begins a sequence, too; U+00A0 and the letters after it do not.
    EXPECT_EQ(WithoutControls("\xC2\x9B"
                              "2J \xC2\xA0 \xC3\xB6 \xE2\x82\xAC"),
              "?2J \xC2\xA0 \xC3\xB6 \xE2\x82\xAC");
    EXPECT_EQ(WithoutControls(std::string_view("a\0b\xC2", 4)), "a?b\xC2");
}

}  // namespace

}  // namespace lumerin
