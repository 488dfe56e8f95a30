// SPDX-License-Identifier: MIT
#include "embedment/dialog/CaptureEx.h"

#include <gmock/gmock.h>

#include <array>

#include "support/StudyDialogFixture.h"

namespace lumerin {

namespace {

// A screen of one grey, a little lighter at each reading; 0: there is no screen.
std::uint8_t screenGrey = 0;
std::vector<std::array<int, 4>> screenReads;

class CaptureExTest : public StudyTest {
  protected:
    CaptureExTest() { SetScreen(0); }
    ~CaptureExTest() override { SetScreen(0); }
    static void SetScreen(std::uint8_t grey) {
        screenGrey = grey;
        screenReads.clear();
    }
};

std::uint32_t Number(const std::string& bytes, std::size_t at, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = count; i-- > 0;) {
        value = value << 8 | static_cast<unsigned char>(bytes.at(at + i));
    }
    return value;
}

}  // namespace

// Replaces the platform's own.
bool graphplatform::ReadScreen(const ScreenRect& rect, std::vector<std::uint8_t>& data) {
    if (screenGrey == 0) return false;
    screenReads.push_back({rect.left, rect.top, rect.right, rect.bottom});
    const int bytes = (rect.right - rect.left) * (rect.bottom - rect.top) * 3;
    data.assign(static_cast<std::size_t>(bytes), screenGrey++);
    return true;
}

TEST_F(CaptureExTest, TakesTheScaledPartOfTheScreenInAWidthOfFours) {
    SetScreen(100);
    CaptureEx capture;
    EXPECT_TRUE(capture.Capture(1.5, (folder / "a.bmp").string(), false, 10, 20, 35, 40));
    // 15, 30, 52.5 and 60; 37 wide, which 36 is the next multiple of four below.
    EXPECT_THAT(screenReads, testing::ElementsAre(std::array{15, 30, 51, 60}));
    EXPECT_EQ(capture.Width(), 36);
    EXPECT_EQ(capture.Height(), 30);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.bmp"));
    EXPECT_TRUE(capture.Capture(1.0, (folder / "a.bmp").string(), true, 0, 0, 4, 1));
    EXPECT_EQ(Read("a.bmp").substr(54), std::string(12, 101));
    EXPECT_FALSE(capture.Capture(1.0, (folder / "none" / "a.bmp").string(), true, 0, 0, 4, 1));
}

TEST_F(CaptureExTest, WhereNothingCanBeTakenTheEarlierPictureStays) {
    SetScreen(100);
    CaptureEx capture;
    ASSERT_TRUE(capture.Capture(1.0, "", false, 0, 0, 8, 2));
    EXPECT_FALSE(capture.Capture(1.0, "", false, 0, 0, 3, 2));
    EXPECT_FALSE(capture.Capture(1.0, "", false, 0, 0, 4, 0));
    EXPECT_FALSE(capture.Capture(1e300, "", false, 0, 0, 8, 2));
    EXPECT_EQ(screenReads.size(), 1u);
    screenGrey = 0;
    EXPECT_FALSE(capture.Capture(1.0, "", false, 0, 0, 8, 2));
    EXPECT_EQ(capture.Width(), 8);
    EXPECT_EQ(capture.Height(), 2);
}

TEST_F(CaptureExTest, TheFileHasItsTwoHeadersAndThePixelsTopFirst) {
    std::vector<std::uint8_t> pixels(4 * 2 * 3);
    for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<std::uint8_t>(i);
    CaptureEx capture;
    capture.SetImage(4, 2, pixels);
    ASSERT_TRUE(capture.SaveBitmap((folder / "a.bmp").string()));
    const std::string bytes = Read("a.bmp");
    ASSERT_EQ(bytes.size(), 54u + 24u);
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(Number(bytes, 2, 4), 78u);  // the data and 54
    EXPECT_EQ(Number(bytes, 6, 4), 0u);
    EXPECT_EQ(Number(bytes, 10, 4), 54u);  // where the pixels begin
    EXPECT_EQ(Number(bytes, 14, 4), 40u);  // the second header's length
    EXPECT_EQ(Number(bytes, 18, 4), 4u);
    EXPECT_EQ(Number(bytes, 22, 4), 0xfffffffeu);  // -2: the top row first
    EXPECT_EQ(Number(bytes, 26, 2), 1u);
    EXPECT_EQ(Number(bytes, 28, 2), 24u);
    EXPECT_EQ(Number(bytes, 30, 4), 0u);
    EXPECT_EQ(Number(bytes, 34, 4), 24u);
    for (std::size_t i = 38; i < 54; ++i) EXPECT_EQ(bytes[i], 0);
    for (std::size_t i = 0; i < 24; ++i) EXPECT_EQ(static_cast<unsigned char>(bytes[54 + i]), i);
}

TEST_F(CaptureExTest, WithoutAPictureNothingIsWritten) {
    CaptureEx capture;
    EXPECT_FALSE(capture.SaveBitmap((folder / "a.bmp").string()));
    capture.SetImage(4, 2, std::vector<std::uint8_t>(23));  // a byte short
    EXPECT_FALSE(capture.SaveBitmap((folder / "a.bmp").string()));
    EXPECT_FALSE(std::filesystem::exists(folder / "a.bmp"));
}

TEST_F(CaptureExTest, AFolderThatIsNotThereIsNoFile) {
    CaptureEx capture;
    capture.SetImage(4, 1, std::vector<std::uint8_t>(12));
    EXPECT_FALSE(capture.SaveBitmap((folder / "none" / "a.bmp").string()));
}

TEST_F(CaptureExTest, WithoutAScreenNothingIsTaken) {
    CaptureEx capture;
    EXPECT_FALSE(capture.Capture(1.0, (folder / "a.bmp").string(), true, 0, 0, 40, 20));
    EXPECT_FALSE(capture.Capture(1.0, "", false, 0, 0, 3, 20));
    EXPECT_FALSE(capture.Capture(1e300, "", false, 0, 0, 40, 20));
    EXPECT_EQ(capture.Width(), 0);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.bmp"));
}

}  // namespace lumerin
