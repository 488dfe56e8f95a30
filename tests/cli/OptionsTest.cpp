// SPDX-License-Identifier: MIT
#include "cli/Options.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "framework/headless/Headless.h"
#include "session/OutputFiles.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

TEST(Options, FooterPartsAreAListOrNone) {
    const FooterChoice some = ReadFooter("time,filename");
    EXPECT_FALSE(some.date);
    EXPECT_TRUE(some.time);
    EXPECT_FALSE(some.version);
    EXPECT_TRUE(some.fileName);
    const FooterChoice none = ReadFooter("none");
    EXPECT_FALSE(none.date || none.time || none.version || none.fileName);
    EXPECT_THROW(ReadFooter("date,page"), std::invalid_argument);
    EXPECT_THROW(ReadFooter("none,date"), std::invalid_argument);
}

TEST(Options, FormatsAndTablesGoByTheirNames) {
    EXPECT_EQ(ReadFormat("excel"), 0);
    EXPECT_EQ(ReadFormat("pdf"), 1);
    EXPECT_EQ(ReadFormat("text"), 2);
    EXPECT_THROW(ReadFormat("xml"), std::invalid_argument);
    EXPECT_EQ(TableButton("axial"), IDC_MAX_AXIAL);
    EXPECT_EQ(TableButton("envelopes"), IDC_CAP_ENVELOPES);
    EXPECT_EQ(TableButton("extra-members"), IDC_EXTRA_MEMBERS);
    EXPECT_EQ(TableButton("pile-heads"), IDC_PILE_HEADS);
    EXPECT_EQ(TableButton("full"), IDC_FULL_REPORT);
    EXPECT_EQ(TableButton("title"), IDC_TITLE_PAGE);
    EXPECT_EQ(TableButton("heads"), 0);
}

TEST(Options, FontSizeAndClockReachTheServices) {
    headless::ResetState();
    CommonOptions options;
    ApplyOptions(options);
    int tenths = 0;
    EXPECT_FALSE(services::ReadUserNumber(kTextViewerKey, "iPointSize", tenths));
    options.fontSize = 12;
    options.clock = "2026-11-14T08:30:05";
    ApplyOptions(options);
    EXPECT_TRUE(services::ReadUserNumber(kTextViewerKey, "iPointSize", tenths));
    EXPECT_EQ(tenths, 120);
    EXPECT_EQ(services::Now().minute, 30);
    options.clock = "yesterday";
    EXPECT_THROW(ApplyOptions(options), std::invalid_argument);
    headless::ResetState();
}

// A host may pass any number; the dialog then selects no format.
TEST(Options, AStartFormatMayBeAnyNumber) {
    EXPECT_EQ(ReadStartFormat("pdf"), 1);
    EXPECT_EQ(ReadStartFormat("7"), 7);
    EXPECT_EQ(ReadStartFormat("-1"), -1);
    EXPECT_THROW(ReadStartFormat("7x"), std::invalid_argument);
}

}  // namespace

}  // namespace lumerin
