// SPDX-License-Identifier: MIT
#include "embedment/GraphRecord.h"

#include <gtest/gtest.h>

namespace lumerin {

namespace {

bool Same(const GraphCall& a, const GraphCall& b) {
    return a.isMethod == b.isMethod && a.dispatchId == b.dispatchId && a.values == b.values;
}

}  // namespace

TEST(GraphRecord, CallsComeBackAsTheyWere) {
    const std::vector<GraphCall> calls = {
        {false, -518, {std::string("Load Case 1 - Embedment vs Min Axial Force")}},
        {false, 7, {true}},
        {true, 59, {}},
        {false, 31, {-1}},
        {true, 53, {0.1, -1.0 / 3.0, 1e300, 5e-324}},
        {true, 60, {10.0, 0.5, 1}},
        {false, 8, {std::string()}},
    };
    std::vector<GraphCall> back;
    ASSERT_TRUE(ReadGraphCalls(WriteGraphCalls(calls), back));
    ASSERT_EQ(back.size(), calls.size());
    for (std::size_t i = 0; i < calls.size(); ++i) EXPECT_TRUE(Same(calls[i], back[i])) << i;
}

TEST(GraphRecord, LinesThatAreNoCallsAreRefused) {
    std::vector<GraphCall> calls;
    for (const char* text : {"get\x1f"
                             "1\n",
                             "set\n", "set\x1fx\n",
                             "set\x1f"
                             "1\x1fq1\n",
                             "set\x1f"
                             "1\x1fi1.5\n",
                             "set\x1f"
                             "1\x1f"
                             "b2\n",
                             "set\x1f"
                             "1\x1f\x1f\n",
                             "\n"}) {
        EXPECT_FALSE(ReadGraphCalls(text, calls)) << text;
    }
    EXPECT_TRUE(calls.empty());
    EXPECT_TRUE(ReadGraphCalls("", calls));
}

}  // namespace lumerin
