// SPDX-License-Identifier: MIT
#include "envelopes/ElementSearch.h"

#include <gmock/gmock.h>

#include <limits>

#include "support/Forces.h"
#include "support/Messages.h"
#include "support/Model.h"

namespace lumerin {

namespace {

// A pile of one element, a left cantilever of one element and three cases.
class ElementSearchTest : public testing::Test {
  protected:
    ElementSearchTest() {
        PierShape shape;
        shape.piles = 1;
        shape.cantileverElements = 1;
        shape.cases = 3;
        BuildPier(project.pier, shape);
    }
    int Cap() const { return project.pier.m_Frame.m_Cantilevers[0].m_nFirstElement; }
    void Set(int loadCase, int element, int end, int component, float value) {
        forces.Set(project.pier, loadCase, element, end, component, value);
    }
    ElementResults Search() {
        const CaseSelection selection(project.data);
        return Search(selection);
    }
    ElementResults Search(const CaseSelection& selection) {
        ElementSearch search({project.pier, selection, messages}, 0);
        forces.Of(project.pier).ReadCases([&](int c, CaseForces values) { search.Take(c, values); });
        return search.TakeResults();
    }

    OnePier project;
    ModelForces forces{project.data};
    RecordedMessages messages;
};

TEST_F(ElementSearchTest, OfEqualValuesTheEarliestCaseIsKept) {
    for (const int c : {1, 2}) {
        Set(c, Cap(), kEndJ, kF22, 5.0F);
        Set(c, Cap(), kEndJ, kM33, -7.0F);
        Set(c, 0, kEndJ, kAxial, 3.0F);
        Set(c, 0, kEndI, kDemandCapacity, 0.5F);
    }
    const ElementResults results = Search();
    EXPECT_EQ(results.Cap(0, 0, kEndJ).greatestShear.loadCase, 1);
    EXPECT_EQ(results.Cap(0, 0, kEndJ).leastShear.loadCase, 0);
    EXPECT_EQ(results.Cap(0, 0, kEndJ).greatestMoment.loadCase, 0);
    EXPECT_EQ(results.Cap(0, 0, kEndJ).leastMoment.loadCase, 1);
    EXPECT_EQ(results.Cap(0, 0, kEndJ).leastMoment.value, -7.0F);
    EXPECT_EQ(results.Cap(0, 0, kEndI).greatestShear.loadCase, 0);
    EXPECT_EQ(results.greatestAxial[0].loadCase, 1);
    EXPECT_EQ(results.leastAxial[0].loadCase, 0);
    EXPECT_EQ(results.Ratio(0, 0, kEndI).loadCase, 1);
    EXPECT_EQ(results.Ratio(0, 0, kEndJ).loadCase, 0);
}

TEST_F(ElementSearchTest, ValuesBelowZeroAreExtremesToo) {
    for (int c = 0; c < 3; ++c) {
        Set(c, Cap(), kEndI, kF22, -10.0F - static_cast<float>(c));
        Set(c, 0, kEndI, kDemandCapacity, -1.0F + 0.25F * static_cast<float>(c));
    }
    const ElementResults results = Search();
    EXPECT_EQ(results.Cap(0, 0, kEndI).greatestShear.value, -10.0F);
    EXPECT_EQ(results.Cap(0, 0, kEndI).leastShear.value, -12.0F);
    EXPECT_EQ(results.Ratio(0, 0, kEndI).value, -0.5F);
    EXPECT_EQ(results.Ratio(0, 0, kEndI).loadCase, 2);
}

TEST_F(ElementSearchTest, ValuesThatAreNoNumbersArePassedOver) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    Set(0, 0, kEndI, kDemandCapacity, nan);
    Set(1, 0, kEndI, kDemandCapacity, 0.25F);
    Set(2, 0, kEndI, kDemandCapacity, nan);
    for (int c = 0; c < 3; ++c) Set(c, Cap(), kEndI, kM33, nan);
    const ElementResults results = Search();
    EXPECT_EQ(results.Ratio(0, 0, kEndI).loadCase, 1);
    EXPECT_EQ(results.Cap(0, 0, kEndI).greatestMoment.loadCase, -1);
    EXPECT_EQ(results.Cap(0, 0, kEndI).leastMoment.loadCase, -1);
}

TEST_F(ElementSearchTest, ClassesAndTheChoiceOfCasesKeepTheirValuesApart) {
    project.pier.m_bCombinations = true;
    project.pier.m_nCodeFamily = kFamilyLrfd;
    SetClass(project.pier, 1, kService);
    for (int c = 0; c < 3; ++c) Set(c, 0, kEndI, kDemandCapacity, 0.1F * static_cast<float>(c + 1));
    CaseSelection selection(project.data);
    selection.SetCaseSelected(2, false);
    selection.FindFirstCases(project.data);
    const ElementResults results = Search(selection);
    EXPECT_EQ(results.classes, 4);
    EXPECT_EQ(results.Ratio(kStrength, 0, kEndI).value, 0.1F);
    EXPECT_EQ(results.Ratio(kService, 0, kEndI).value, 0.2F);
    EXPECT_EQ(results.Ratio(kExtreme, 0, kEndI).loadCase, -1);
}

}  // namespace

}  // namespace lumerin
