// SPDX-License-Identifier: MIT
#include "support/ReportFixture.h"
#include "tables/Catalogue.h"
#include "text/Paths.h"

namespace lumerin {

class Footer : public ReportTest {
  protected:
    Footer() { options.footer.on = true; }

    // The file name alone, on a line of 81 characters.
    void NameAlone(const std::string& folder, const std::string& base) {
        options.viewerFontSize = 14;
        options.footer.fileName = true;
        options.projectFolder = PathAsText(folder);
        options.projectFileName = PathAsText(base) + ".in";
        options.projectBasePath = PathAsText(folder + base);
    }
};

TEST_F(Footer, IsEmptyWhenItIsOff) {
    options.footer.date = options.footer.time = options.footer.version = options.footer.fileName = true;
    options.footer.on = false;
    EXPECT_EQ(FooterText(options), "");
}

TEST_F(Footer, PartsAreInAFixedOrderWithTheirSeparators) {
    options.footer.date = options.footer.time = options.footer.version = options.footer.fileName = true;
    options.projectBasePath = "C:\\b\\p";
    EXPECT_EQ(FooterText(options), "Saturday, November 14, 2026 8:30:05 AM, v5.2.1, C:\\b\\p.in");
    options.footer.date = false;
    EXPECT_EQ(FooterText(options), "8:30:05 AM, v5.2.1, C:\\b\\p.in");
    options.footer.time = false;
    EXPECT_EQ(FooterText(options), "v5.2.1, C:\\b\\p.in");
}

TEST_F(Footer, APathThatFillsTheLineIsShownWhole) {
    NameAlone("C:\\" + std::string(70, 'f') + "\\", "p123");  // 74 + 4 + 3
    EXPECT_EQ(FooterText(options).size(), 81U);
    EXPECT_EQ(FooterText(options), options.projectBasePath + ".in");
}

TEST_F(Footer, ALongPathLosesTheEndOfItsFolderAndOverrunsByFour) {
    NameAlone("C:\\" + std::string(71, 'f') + "\\", "p123");  // one character too long; the name has 7
    // 81 - 7 characters of the folder, then the four of the dots and the backslash.
    EXPECT_EQ(FooterText(options), "C:\\" + std::string(71, 'f') + "...\\p123.in");
    EXPECT_EQ(FooterText(options).size(), 85U);
}

TEST_F(Footer, ALongFileNameIsCutAndEndsInTxt) {
    NameAlone("C:\\", std::string(79, 'n'));  // 82 characters with its ending
    EXPECT_EQ(FooterText(options), std::string(74, 'n') + "....txt");
}

TEST_F(Footer, AFileNameOfExactlyTheWidthIsNotShown) {
    NameAlone("C:\\", std::string(78, 'n'));  // 81 characters with its ending
    EXPECT_EQ(FooterText(options), "");
}

// Paths are UTF-8 here: three bytes of these names are one character, and "\xC3\xB6" is the code page's
// "\xF6".
TEST_F(Footer, APathIsShownInTheCodePage) {
    NameAlone(
        "/home/Br\xC3\xBC"
        "cke/",
        "Gr\xC3\xB6\xC3\x9F"
        "e");
    EXPECT_EQ(FooterText(options),
              "/home/Br\xFC"
              "cke/Gr\xF6\xDF"
              "e.in");
    NameAlone("/p/", "\xE6\xA9\x8B 1");
    EXPECT_EQ(FooterText(options), "/p/? 1.in");
    NameAlone("/p/",
              "Gr\xF6\xDF"
              "e");  // not UTF-8
    EXPECT_EQ(FooterText(options),
              "/p/Gr\xF6\xDF"
              "e.in");
}

TEST_F(Footer, ThePathsWidthCountsCharacters) {
    std::string umlauts, western;
    for (int i = 0; i < 70; ++i) umlauts += "\xC3\xA4", western += '\xE4';
    NameAlone("C:\\" + umlauts + "\\", "p123");  // 74 + 4 + 3 characters
    EXPECT_EQ(FooterText(options), "C:\\" + western + "\\p123.in");
    NameAlone("C:\\" + umlauts + "f\\", "p123");  // one too many: the folder is cut after 74
    EXPECT_EQ(FooterText(options), "C:\\" + western + "f...\\p123.in");
    NameAlone("C:\\", umlauts + "123456789");  // a name of 82 with its ending: 74, dots and ".txt"
    EXPECT_EQ(FooterText(options), western + "1234....txt");
    NameAlone("C:\\", umlauts + "12345678");  // 81 fill the line alone
    EXPECT_EQ(FooterText(options), "");
}

TEST_F(Footer, TheWidthIsWhatTheTextBeforeAndItsSeparatorLeave) {
    NameAlone("C:\\b\\", std::string(70, 'n'));
    options.footer.version = true;
    // "v5.2.1, " takes 8 of 81: 73 are left, as many as the bare name has.
    EXPECT_EQ(FooterText(options), "v5.2.1, ");
}

}  // namespace lumerin
