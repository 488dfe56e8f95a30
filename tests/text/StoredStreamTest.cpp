// SPDX-License-Identifier: MIT
// The text stream that stores its line feeds expanded, on every platform.
#include "text/StoredStream.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <stdexcept>

#include "framework/ChildProcess.h"

#include "support/ScratchFolder.h"

namespace lumerin {

namespace {

class StoredText : public testing::Test {
  protected:
    std::string Path() const { return m_scratch.PathOf("table.txt"); }
    std::string Stored() const { return m_scratch.Read("table.txt"); }
    static std::string Expanded(const std::string& text) {
        std::string out;
        for (const char c : text) {
            if (c == '\n') out += '\r';
            out += c;
        }
        return out;
    }

    const ScratchFolder m_scratch;
};

TEST_F(StoredText, ALineFeedTakesTwoBytes) {
    StoredStream out(Path());
    out << "a\n"
        << "\n"
        << "b";
    out.Close();
    EXPECT_EQ(Stored(), "a\r\n\r\nb");
}

TEST_F(StoredText, ACarriageReturnOfTheTextIsKeptBesideTheExpansion) {
    StoredStream out(Path());
    out << "a\r\nb";
    out.Close();
    EXPECT_EQ(Stored(), "a\r\r\nb");
}

TEST_F(StoredText, PositionsCountStoredBytes) {
    StoredStream out(Path());
    EXPECT_EQ(out.Position(), 0);
    out << "obj\n";
    EXPECT_EQ(out.Position(), 5);
    out << "\n\n";
    EXPECT_EQ(out.Position(), 9);
    out << "";
    EXPECT_EQ(out.Position(), 9);
    out << std::string_view("a\0b", 3);
    EXPECT_EQ(out.Position(), 12);
    out.Close();
    EXPECT_EQ(Stored(), std::string("obj\r\n\r\n\r\na\0b", 12));
}

// Line feeds in every place around the end of the buffer, where the two bytes must stay together.
TEST_F(StoredText, LineFeedsSurviveTheEndOfTheBuffer) {
    constexpr std::size_t kBuffer = std::size_t{1} << 18;
    for (std::size_t before = kBuffer - 4; before <= kBuffer + 2; ++before) {
        const std::string text = std::string(before, 'x') + "\n\ny\n";
        StoredStream out(Path());
        out << text;
        EXPECT_EQ(out.Position(), static_cast<std::int64_t>(before) + 7);
        out.Close();
        EXPECT_FALSE(out.Failed());
        ASSERT_TRUE(Stored() == Expanded(text)) << before;
    }
}

TEST_F(StoredText, PiecesOfAnySizeAddUp) {
    std::mt19937 random(3);
    StoredStream out(Path());
    std::string all, expanded;
    for (int i = 0; i < 400; ++i) {
        std::string piece(random() % 5000, 'a');
        for (char& c : piece) c = random() % 8 == 0 ? '\n' : static_cast<char>('a' + random() % 26);
        out << piece;
        all += piece;
        expanded += Expanded(piece);
        ASSERT_EQ(out.Position(), static_cast<std::int64_t>(expanded.size()));
    }
    out.Close();
    EXPECT_TRUE(Stored() == expanded);
    EXPECT_TRUE(expanded == Expanded(all));
}

TEST_F(StoredText, AFileOfNothingButLineFeedsDoubles) {
    StoredStream out(Path());
    out << std::string(400'000, '\n');
    out.Close();
    EXPECT_TRUE(Stored() == Expanded(std::string(400'000, '\n')));
}

TEST_F(StoredText, OpeningOnceMoreBeginsAtZero) {
    StoredStream out(Path());
    out << "an earlier and longer table\n";
    out.Open(Path());
    EXPECT_EQ(out.Position(), 0);
    out << "new";
    out.Close();
    EXPECT_EQ(Stored(), "new");
}

TEST_F(StoredText, AStreamThatIsGivenUpLeavesTheEarlierFile) {
    StoredStream first(Path());
    first << "earlier\n";
    first.Close();
    { StoredStream(Path()) << std::string(1'000'000, 'x'); }
    EXPECT_EQ(Stored(), "earlier\r\n");
}

// What an exception in a writer does.
TEST_F(StoredText, AnExceptionLeavesNoFile) {
    try {
        StoredStream out(Path());
        out << "half of";
        throw std::runtime_error("the writer's");
    } catch (const std::runtime_error&) {
    }
    EXPECT_TRUE(std::filesystem::is_empty(m_scratch.Path()));
}

TEST_F(StoredText, AStreamThatOnlyWasOpenIsAnEmptyFile) {
    StoredStream first(Path());
    first << "earlier\n";
    first.Close();
    StoredStream out(Path());
    out.Close();
    EXPECT_FALSE(out.Failed());
    EXPECT_EQ(Stored(), "");
    EXPECT_TRUE(std::filesystem::exists(Path()));
}

TEST_F(StoredText, AStreamThatCannotOpenSwallowsTheText) {
    const std::filesystem::path missing = m_scratch.Path() / "missing" / "table.txt";
    StoredStream out(missing.string());
    EXPECT_TRUE(out.Failed());
    EXPECT_FALSE(out.IsOpen());
    out << "into nothing\n";
    EXPECT_EQ(out.Position(), 0);
    out.Close();
    EXPECT_TRUE(out.Failed());
    EXPECT_FALSE(std::filesystem::exists(missing));
}

TEST_F(StoredText, AStreamThatWasNeverOpenedSwallowsTheText) {
    StoredStream out;
    out << "into nothing\n";
    out.Close();
    EXPECT_EQ(out.Position(), 0);
    EXPECT_FALSE(out.IsOpen());
}

TEST_F(StoredText, AFullDiskFailsAtTheCloseAndTheStateCanBeCleared) {
    InChild([&] {
        StoredStream out(Path());
        ASSERT_TRUE(out.IsOpen());
        out << "a table\n";
        EXPECT_FALSE(out.Failed());  // still in the buffer
        LimitFileSize(4);
        out.Close();
        EXPECT_TRUE(out.Failed());
        out.ClearState();
        EXPECT_FALSE(out.Failed());
    });
    EXPECT_TRUE(std::filesystem::is_empty(m_scratch.Path()));
}

TEST_F(StoredText, AFullDiskFailsWhenTheBufferIsFullToo) {
    InChild([&] {
        LimitFileSize(4);
        StoredStream out(Path());
        out << std::string(1'000'000, 'x');
        EXPECT_TRUE(out.Failed());
        out << "swallowed";
        out.Close();
        EXPECT_TRUE(out.Failed());
    });
    EXPECT_TRUE(std::filesystem::is_empty(m_scratch.Path()));
}

// Cleared or not, a document with a gap is not complete.
TEST_F(StoredText, AClearedStateHealsNoDocument) {
    InChild([&] {
        StoredStream out(Path());
        LimitFileSize(4);
        out << std::string(1'000'000, 'x');
        LimitFileSize(RLIM_INFINITY);
        out.ClearState();
        out << "the rest";
        out.Close();
        EXPECT_TRUE(out.Failed());
    });
    EXPECT_TRUE(std::filesystem::is_empty(m_scratch.Path()));
}

}  // namespace

}  // namespace lumerin
