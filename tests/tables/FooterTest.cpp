#include "tables/Catalogue.h"
#include "tables/ReportModel.h"

class Footer : public ReportTest {
  protected:
    void SetUp() override {
        ReportTest::SetUp();
        g_FooterOn = 1;
    }
    // The file name alone, on a line of 81 characters.
    static void NameAlone(const std::string& folder, const std::string& base) {
        headless::State().viewerNumbers["iPointSize"] = 140;
        g_FooterFileName = 1;
        g_ProjectFolder = folder;
        g_ProjectFileName = base + ".in";
        g_ProjectBasePath = folder + base;
    }
};

TEST_F(Footer, IsEmptyWhenItIsOff) {
    g_FooterDate = g_FooterTime = g_FooterVersion = g_FooterFileName = 1;
    g_FooterOn = 0;
    EXPECT_EQ(FooterText(), "");
}

TEST_F(Footer, PartsStandInAFixedOrderWithTheirSeparators) {
    g_FooterDate = g_FooterTime = g_FooterVersion = g_FooterFileName = 1;
    g_ProjectBasePath = "C:\\b\\p";
    EXPECT_EQ(FooterText(), "Saturday, November 14, 2026 8:30:05 AM, v5.2.1, C:\\b\\p.in");
    g_FooterDate = 0;
    EXPECT_EQ(FooterText(), "8:30:05 AM, v5.2.1, C:\\b\\p.in");
    g_FooterTime = 0;
    EXPECT_EQ(FooterText(), "v5.2.1, C:\\b\\p.in");
}

TEST_F(Footer, APathThatFillsTheLineIsShownWhole) {
    NameAlone("C:\\" + std::string(70, 'f') + "\\", "p123");  // 74 + 4 + 3
    EXPECT_EQ(FooterText().size(), 81U);
    EXPECT_EQ(FooterText(), g_ProjectBasePath + ".in");
}

TEST_F(Footer, ALongPathLosesTheEndOfItsFolderAndOverrunsByFour) {
    NameAlone("C:\\" + std::string(71, 'f') + "\\", "p123");  // one character too long; the name has 7
    // 81 - 7 characters of the folder, then the four of the dots and the backslash.
    EXPECT_EQ(FooterText(), "C:\\" + std::string(71, 'f') + "...\\p123.in");
    EXPECT_EQ(FooterText().size(), 85U);
}

TEST_F(Footer, ALongFileNameIsCutAndEndsInTxt) {
    NameAlone("C:\\", std::string(79, 'n'));  // 82 characters with its ending
    EXPECT_EQ(FooterText(), std::string(74, 'n') + "....txt");
}

TEST_F(Footer, AFileNameOfExactlyTheRoomIsNotShown) {
    NameAlone("C:\\", std::string(78, 'n'));  // 81 characters with its ending
    EXPECT_EQ(FooterText(), "");
}

TEST_F(Footer, TheRoomIsWhatTheTextBeforeAndItsSeparatorLeave) {
    NameAlone("C:\\b\\", std::string(70, 'n'));
    g_FooterVersion = 1;
    // "v5.2.1, " takes 8 of 81: 73 are left, as many as the bare name has.
    EXPECT_EQ(FooterText(), "v5.2.1, ");
}
