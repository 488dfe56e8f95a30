// SPDX-License-Identifier: MIT
// Places along the cap: what the faces of supports and the bearings meet in the presets.
#include <gtest/gtest.h>

#include <algorithm>

#include "ProjectReader.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

// x of the cap's nodes, from the tip on the left to the tip on the right. A pier's node list has its columns
// with the left cantilever after the first and the spans between them; a bent's begins with the heads.
std::vector<double> CapX(const reader::Model& m) {
    const int side = m.cantilevers > 0 ? m.cantileverNodes + 1 : 0;
    std::vector<double> left, spans, tops, right;
    std::size_t at = 0;
    if (m.type == 0) {
        const int own = (m.columns - 1) * m.spanNodes + (m.columnNodes + 2) * m.columns + 2 * side;
        at = static_cast<std::size_t>(m.nodeCount - own);
    }
    const auto take = [&](std::vector<double>& list, int count) {
        for (int i = 0; i < count; ++i) list.push_back(m.nodes.at(at++)[0]);
    };
    if (m.type == 7) take(tops, m.columns);
    for (int c = 0; c < m.columns; ++c) {
        if (m.type == 0) {
            at += static_cast<std::size_t>(m.columnNodes) + 1;
            take(tops, 1);
        }
        if (c == 0) take(left, side);
        if (c + 1 < m.columns) take(spans, m.spanNodes);
    }
    take(right, side);
    EXPECT_EQ(at, m.nodes.size());
    std::vector<double> all = left;
    for (int c = 0; c < m.columns; ++c) {
        all.push_back(tops[static_cast<std::size_t>(c)]);
        if (c + 1 == m.columns) break;
        const auto first = spans.begin() + c * m.spanNodes;
        all.insert(all.end(), first, first + m.spanNodes);
    }
    all.insert(all.end(), right.begin(), right.end());
    return all;
}

bool Has(const std::vector<double>& points, double x) {
    return std::find(points.begin(), points.end(), x) != points.end();
}

bool Inside(const std::vector<double>& points, double x) {
    return x > points.front() && x < points.back() && !Has(points, x);
}

TEST(CapPoints, GoFromLeftToRightInEveryPreset) {
    const SampleFolder folder;
    const std::pair<const char*, int> caps[] = {
        {"pier", 0}, {"bent", 0}, {"bridge", 0}, {"bridge", 1}, {"history", 0}};
    for (const auto& [preset, substructure] : caps) {
        const auto model = reader::ReadModel(folder.Write(preset), substructure);
        const auto x = CapX(model);
        EXPECT_GT(x.size(), 4U);
        EXPECT_TRUE(std::is_sorted(x.begin(), x.end(), std::less_equal<>())) << preset;
    }
}

// Columns of 48 at 120 and 360: the faces are 96, 144, 336 and 384.
TEST(CapPoints, PierFacesMeetNodesAtTheFirstColumnAndElementsAtTheSecond) {
    const SampleFolder folder;
    const auto x = CapX(reader::ReadModel(folder.Write("pier"), 0));
    EXPECT_TRUE(Has(x, 96.0));
    EXPECT_TRUE(Has(x, 144.0));
    EXPECT_TRUE(Inside(x, 336.0));
    EXPECT_TRUE(Inside(x, 384.0));
}

// The column lines step by two inches an element, from middle to middle; half a step on it is 48 wide.
TEST(CapPoints, PierColumnWidensToFortyEight) {
    const SampleFolder folder;
    const auto lines = reader::ReadLines(folder.Write("pier") + ".MIS");
    const auto keys = std::find(lines.begin(), lines.end(), "C= 3 B= 0 R= 1");
    ASSERT_NE(keys, lines.end());
    EXPECT_NE((keys + 2)->find("W= 45 "), std::string::npos);
    EXPECT_NE((keys + 3)->find("W= 47 "), std::string::npos);
}

// A pile of 24 at 60: the left tip at 50 is right of the face at 48.
TEST(CapPoints, BentStopsInsideItsFirstPile) {
    const SampleFolder folder;
    const auto model = reader::ReadModel(folder.Write("bent"), 0);
    const auto x = CapX(model);
    EXPECT_EQ(reader::Int(model.sections.at(0), 0), 1);
    EXPECT_EQ(reader::Real(model.sections.at(0), 4), 24.0);
    EXPECT_EQ(x.front(), 50.0);
    EXPECT_TRUE(Has(x, 72.0));      // right face of the first pile
    EXPECT_TRUE(Inside(x, 156.0));  // left face of the second
    EXPECT_TRUE(Has(x, 396.0));     // right face of the last, 384 + 12
}

TEST(CapPoints, CapWithoutCantileversHasMinusOneNode) {
    const SampleFolder folder;
    const auto model = reader::ReadModel(folder.Write("history"), 0);
    EXPECT_EQ(model.cantilevers, 0);
    EXPECT_EQ(model.cantileverNodes, -1);
    const auto x = CapX(model);
    EXPECT_EQ(x.front(), 2.0);
    EXPECT_EQ(x.back(), 14.0);
    EXPECT_TRUE(Has(x, 2.75));     // right face of the first column
    EXPECT_TRUE(Inside(x, 7.25));  // left face of the second
}

// Nodes: 13 to 15 the left cantilever, 12 and 24 the tops, 16 to 20 the span, 22 inside the second column.
TEST(Bearings, PierHasTwoRowsWithOneSharedPlaceAndOneOffTheCap) {
    const SampleFolder folder;
    const std::string base = folder.Write("pier");
    const auto rows = reader::ReadBearings(base, 0);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], (std::vector<int>{14, 17, 19, 26}));
    EXPECT_EQ(rows[1], (std::vector<int>{14, 12, 18, 22}));
    const auto model = reader::ReadModel(base, 0);
    for (const auto& row : rows) {
        for (std::size_t i = 1; i < row.size(); ++i) {
            EXPECT_LT(model.nodes.at(static_cast<std::size_t>(row[i - 1] - 1))[0],
                      model.nodes.at(static_cast<std::size_t>(row[i] - 1))[0]);
        }
    }
}

TEST(Bearings, BridgePierHasRowsOfDifferentLength) {
    const SampleFolder folder;
    const auto rows = reader::ReadBearings(folder.Write("bridge"), 0);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].size(), 4U);
    EXPECT_EQ(rows[1].size(), 3U);
}

TEST(Bearings, OtherPresetsHaveOneRowOrNone) {
    const SampleFolder folder;
    EXPECT_EQ(reader::ReadBearings(folder.Write("bent"), 0).size(), 1U);
    EXPECT_EQ(reader::ReadBearings(folder.Write("history"), 0).size(), 1U);
    for (const char* preset : {"group", "walls"}) {
        const auto rows = reader::ReadBearings(folder.Write(preset), 0);
        ASSERT_EQ(rows.size(), 1U);
        EXPECT_TRUE(rows[0].empty());
    }
}

}  // namespace

}  // namespace lumerin
