// SPDX-License-Identifier: MIT
#include "figures/ElevationData.h"

#include <gmock/gmock.h>

#include <limits>
#include <sstream>

#include "figures/Figure.h"
#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using testing::HasSubstr;
using testing::Not;

const FigureKind& ElevationKind() {
    return *FindFigure("elevation");
}

// Two pile heads 10 ft apart, and one bar from (0, 0) to (2 ft, 10 ft); lengths of the files are inches.
class FramedProject : public RecordsProject {
  public:
    FramedProject() {
        substructures[0].nodes = {{0, 0, 0}, {120, 0, 0}, {0, 0, 0},   {0, 0, 0},
                                  {0, 0, 0}, {0, 48, 0},  {24, 0, 120}};
    }
};

// The lines of a document that draw bars.
std::vector<std::string> Bars(const std::string& svg) {
    std::vector<std::string> bars;
    std::istringstream lines(svg);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("<polyline")) bars.push_back(line);
    }
    return bars;
}

}  // namespace

// Pile 2 has 0.75 at its head and 1.25 at the lower end of its first element; the bar 0.5 at end J.
TEST(Elevation, BarsAndPilesHaveTheirPlaceAndTheirGreatestRatio) {
    FramedProject project;
    project.Set(1, 3, kRatioJ, 0.75F);
    project.Set(0, 3, kRatioI, 1.25F);
    project.Set(1, 5, kRatioJ, 0.5F);
    project.WriteAll();
    const Evaluation& evaluation = project.Evaluate(ElevationKind().needs);
    const ElevationPicture picture = DescribeElevation(evaluation, 0);
    ASSERT_EQ(picture.frame.size(), 1U);
    const ElevationBar& bar = picture.frame[0];
    EXPECT_DOUBLE_EQ(bar.from.x, 0.0);
    EXPECT_DOUBLE_EQ(bar.from.y, 0.0);
    EXPECT_DOUBLE_EQ(bar.to.x, 2.0);
    EXPECT_DOUBLE_EQ(bar.to.y, 10.0);
    EXPECT_EQ(bar.ratio.value, 0.5F);
    EXPECT_EQ(bar.ratio.loadCase, 1);
    ASSERT_EQ(picture.piles.size(), 2U);
    EXPECT_DOUBLE_EQ(picture.piles[1].from.x, 10.0);
    EXPECT_EQ(picture.piles[1].ratio.value, 1.25F);
    EXPECT_EQ(picture.piles[1].place, "pile 2 element 4 end I");
    EXPECT_EQ(picture.Worst(), &picture.piles[1]);
    EXPECT_EQ(picture.nodes.size(), 7U);
    EXPECT_THAT(ElevationKind().draw(evaluation, {}),
                HasSubstr("Greatest D/C 1.250 over the limit, pile 2 element 4 end I, case 1<"));
}

// The pier of the samples, and the same pier in a model whose z points down: the same picture.
TEST(Elevation, TheCapIsAboveTheColumnsWhicheverWayZPoints) {
    const SampleFolder folder;
    const auto opened = LoadByName(ProjectName(folder.Write("pier")));
    std::string upright;
    {
        const Evaluation evaluation(*opened, {}, {}, ElevationKind().needs);
        EXPECT_FALSE(DescribeElevation(evaluation, 0).zFalls);
        upright = ElevationKind().draw(evaluation, {});
    }
    EXPECT_THAT(upright, HasSubstr("up is +z, from the foot of a column to its top"));
    for (auto& node : opened->project.data.m_Piers[0].m_Lists.m_Nodes) node[2] = -node[2];
    const Evaluation evaluation(*opened, {}, {}, ElevationKind().needs);
    EXPECT_TRUE(DescribeElevation(evaluation, 0).zFalls);
    const std::string reversed = ElevationKind().draw(evaluation, {});
    EXPECT_THAT(reversed, HasSubstr("up is -z, from the foot of a column to its top"));
    EXPECT_GT(Bars(upright).size(), 20U);
    EXPECT_EQ(Bars(upright), Bars(reversed));
}

// An element at a node that the model does not list, and one far outside of any bridge.
TEST(Elevation, ElementsWithoutAPlaceAreCountedAndLeftOut) {
    FramedProject project;
    project.substructures[0].rows.push_back({2, 6, 8, 1});
    project.WriteAll();
    EXPECT_EQ(DescribeElevation(project.Evaluate(ElevationKind().needs), 0).withoutPlace, 1);
    for (const double broken : {1e30, std::numeric_limits<double>::quiet_NaN()}) {
        project.substructures[0].nodes[6][2] = broken;
        project.WriteAll();
        const Evaluation& evaluation = project.Evaluate(ElevationKind().needs);
        EXPECT_EQ(DescribeElevation(evaluation, 0).withoutPlace, 2);
        const std::string svg = ElevationKind().draw(evaluation, {});
        EXPECT_THAT(svg, HasSubstr("2 elements are left out"));
        EXPECT_THAT(svg, Not(HasSubstr("nan")));
    }
}

TEST(Elevation, AModelWithoutNodesIsASentence) {
    RecordsProject project;
    project.WriteAll();
    EXPECT_THAT(ElevationKind().draw(project.Evaluate(ElevationKind().needs), {}),
                HasSubstr("The model of this substructure lists no nodes for its elements."));
}

// 1,200 elements in a line of which one is over the limit: a line before it, the element, a line after it.
TEST(Elevation, ManyElementsAreDrawnInRunsOfOneColour) {
    FramedProject project;
    ResultSubstructure& sub = project.substructures[0];
    sub.rows.clear();
    sub.nodes.resize(2);
    for (int i = 0; i <= 1200; ++i) sub.nodes.push_back({12.0 * i, 0, 12});
    for (int i = 1; i <= 1200; ++i) {
        sub.rows.push_back({i, i + 2, i + 3, 1});
        project.Set(0, 4 + i, kRatioJ, i == 600 ? 1.5F : 0.25F);
    }
    project.WriteAll();
    const std::string svg = ElevationKind().draw(project.Evaluate(ElevationKind().needs), {});
    const std::vector<std::string> bars = Bars(svg);
    // Edge and colour of each line, and the mark of the one over the limit.
    EXPECT_EQ(bars.size(), 7U);
    EXPECT_THAT(svg, HasSubstr("element 600 (other): greatest D/C 1.5, element 600 end J, case 1<"));
    EXPECT_LT(svg.size(), 80000U);
}

}  // namespace lumerin
