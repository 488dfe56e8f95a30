// SPDX-License-Identifier: MIT
#include <algorithm>
#include <fstream>
#include <iterator>
#include <vector>

#include "session/ReportControls.h"
#include "support/ReportDialogFixture.h"

namespace lumerin {

using headless::HeadlessDialog;

// The whole envelope data file of two sample projects. What is expected was worked out from the result files
// by tests/documents/cap_envelopes.py, which shares nothing with the program, and checked by reading.

namespace {

class EnvelopeSamples : public ReportDialogTest {
  protected:
    static std::vector<std::string> Lines(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        EXPECT_TRUE(in) << path;
        const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        std::vector<std::string> lines;
        std::size_t begin = 0;
        for (std::size_t end = 0; (end = text.find('\n', begin)) != std::string::npos; begin = end + 1) {
            lines.push_back(text.substr(begin, end - begin));
        }
        EXPECT_EQ(begin, text.size()) << path << " ends inside a line";
        return lines;
    }
    void ExpectWorkedOut(const std::string& preset) {
        const std::string base = folder.Write(preset);
        Launch(base + ".in", 2, [](HeadlessDialog& dialog) { dialog.Click(IDC_CAP_ENVELOPES); });
        const std::vector<std::string> written = Lines(base + "_Envelopes.txt");
        const std::vector<std::string> expected =
            Lines(std::string(LUMERIN_SOURCE_DIR "/tests/session/goldens/") + preset + "-envelopes.txt");
        ASSERT_GT(expected.size(), 200U);
        EXPECT_EQ(written.size(), expected.size());
        int different = 0;
        for (std::size_t i = 0; i < std::min(written.size(), expected.size()) && different < 5; ++i) {
            if (written[i] == expected[i] + "\r") continue;
            ++different;
            EXPECT_EQ(written[i], expected[i] + "\r") << "line " << i + 1;
        }
    }

    SampleFolder folder;
};

TEST_F(EnvelopeSamples, APiersEnvelopesAreThoseOfItsForces) {
    ExpectWorkedOut("pier");
}

TEST_F(EnvelopeSamples, EveryCapOfABridgeHasItsEnvelopes) {
    ExpectWorkedOut("bridge");
}

}  // namespace

}  // namespace lumerin
