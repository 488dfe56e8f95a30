// SPDX-License-Identifier: MIT
#include "support/Golden.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "cli/ReportDriver.h"
#include "framework/headless/Headless.h"
#include "support/ScratchFolder.h"

// The full report of one small project in each format; README.md describes the origin of its documents.

namespace lumerin {

namespace {

namespace fs = std::filesystem;

std::string Bytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class Golden : public testing::TestWithParam<const char*> {
  protected:
    Golden() { headless::ResetState(); }
    ~Golden() override { headless::ResetState(); }
};

TEST_P(Golden, TheFullReportHasTheExpectedBytes) {
    const fs::path source = fs::path(LUMERIN_SOURCE_DIR) / "tests" / "golden";
    const ScratchFolder folder;
    fs::copy(source / "project", folder.Path());
    ReportRequest options;
    options.projects = {folder.PathOf("p.in")};
    options.tables = {"full"};
    options.formats = {ReadFormat(GetParam())};
    options.footer = {true, true, true, false};
    options.common.version = "5.2.1";
    options.common.clock = "2026-11-14T08:30:05";
    ApplyOptions(options.common);
    std::ostringstream out, err;
    ASSERT_EQ(RunReports(options, out, err), kExitDone) << err.str();
    std::string written = out.str();
    written.erase(written.find_last_not_of("\r\n") + 1);
    const std::string name = fs::path(written).filename().string();
    const std::string expected = Bytes(source / name);
    ASSERT_FALSE(expected.empty()) << name;
    EXPECT_TRUE(MatchesGolden(name, expected, Bytes(written)));
}

INSTANTIATE_TEST_SUITE_P(Formats, Golden, testing::Values("text", "pdf", "excel"),
                         [](const auto& format) { return std::string(format.param); });

}  // namespace

TEST(GoldenComparer, EqualDocumentsMatch) {
    EXPECT_TRUE(MatchesGolden("a.txt", "one\r\ntwo\r\n", "one\r\ntwo\r\n"));
    EXPECT_TRUE(MatchesGolden("a.txt", "", ""));
}

TEST(GoldenComparer, TheFirstDifferenceIsShownInItsPlace) {
    EXPECT_STREQ(
        MatchesGolden("a.txt", "one\ntwo 2.50\r\nend", "one\ntwo 2.60\r\nend").message(),
        "a.txt, line 2, column 7:\n  before:   one\n  expected: two 2.50\\x0D\n  got:      two 2.60\\x0D");
    EXPECT_STREQ(MatchesGolden("a.txt", "same\n", "same").message(),
                 "a.txt, line 1, column 5:\n  expected: same\n  got:      the end of the file");
    EXPECT_STREQ(
        MatchesGolden("a.txt", "one\n", "one\n\x01").message(),
        "a.txt, line 2, column 1:\n  before:   one\n  expected: the end of the file\n  got:      \\x01");
}

TEST(GoldenComparer, OfALongLineThePartAroundTheDifferenceIsShown) {
    const std::string head(200, 'a');
    const std::string message = MatchesGolden("a.xml", head + "x", head + "y").message();
    EXPECT_EQ(message, "a.xml, line 1, column 201:\n  expected: ..." + std::string(60, 'a') +
                           "x\n  got:      ..." + std::string(60, 'a') + "y");
}

}  // namespace lumerin
