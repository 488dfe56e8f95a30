// SPDX-License-Identifier: MIT
#include "WellFormed.h"

#include <gtest/gtest.h>

// The check of the workbooks finds what a spreadsheet program would refuse.

namespace lumerin {

TEST(WellFormed, AWorkbooksWaysPass) {
    EXPECT_EQ(
        xml::Fault(
            "<?xml version=\"1.0\"?>\r\n<?mso-application progid=\"Excel.Sheet\"?>\r\n"
            "<Workbook xmlns:ss=\"urn:x\"><Cell ss:Index=\"2\">a &amp; b &lt; c</Cell><Row/></Workbook>\r\n"),
        "");
}

TEST(WellFormed, EachFaultIsNamedWithItsLine) {
    for (const char* text :
         {"", "<a>", "<a></b>", "<a>\n<b></a></b>", "<a>x & y</a>", "<a>&nbsp;</a>", "<a b=\"1\" b=\"2\"/>",
          "<a b=1/>", "<a b=\"<\"/>", "<a/><b/>", "<a/>text", "<a b=\"1\"c=\"2\"/>", "<1/>", "<a"}) {
        EXPECT_NE(xml::Fault(text), "") << text;
    }
    EXPECT_EQ(xml::Fault("<a>\n</b>").substr(0, 7), "line 2:");
}

}  // namespace lumerin
