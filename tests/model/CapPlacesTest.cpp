// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <climits>

#include "model/CapChain.h"
#include "support/CapModel.h"
#include "support/Messages.h"

namespace lumerin {

using testing::ElementsAre;

namespace {

constexpr int kShear = 1, kMoment = 4;

struct Found {
    int kind, index, element;
    double t;
    bool operator==(const Found&) const = default;
};

Found Of(const CCapPlace& place) {
    return {place.m_nKind, place.m_nIndex, place.m_nElement, place.m_dT};
}

Found Locate(const CPier& pier, int support, int kind, double x, int mode) {
    CCapPlace place;
    return pier.LocateOnCap(support, kind, x, mode, place) ? Of(place) : Found{-9, -9, -9, 0.0};
}
constexpr Found kNotFound{-9, -9, -9, 0.0};

Found Step(const CPier& pier, int direction, CCapPlace place) {
    pier.StepAlongCap(direction, place);
    return Of(place);
}

}  // namespace

TEST(CapPlaces, FacesAreInTheMemberOfTheirSide) {
    const CapModel model(TwoColumns());
    EXPECT_EQ(Locate(model.pier, 1, 0, 8, kShear), (Found{0, 0, 1, 0.6}));    // (8 - 5) / 5
    EXPECT_EQ(Locate(model.pier, 1, 3, 12, kShear), (Found{1, 0, 0, 0.2}));   // (12 - 10) / 10
    EXPECT_EQ(Locate(model.pier, 2, 0, 28, kShear), (Found{1, 0, 1, 0.8}));   // (28 - 20) / 10
    EXPECT_EQ(Locate(model.pier, 2, 3, 32, kShear), (Found{0, 1, 0, 0.4}));   // (32 - 30) / 5
    EXPECT_EQ(Locate(model.pier, 2, 2, 32, kMoment), (Found{0, 1, 0, 0.4}));  // the moment list counts to 2
}

TEST(CapPlaces, PointOnANodeIsTheStartOfItsElement) {
    const CapModel model(TwoColumns());
    EXPECT_EQ(Locate(model.pier, 1, 0, 5, kShear), (Found{0, 0, 1, 0.0}));
    EXPECT_EQ(Locate(model.pier, 2, 0, 20, kShear), (Found{1, 0, 1, 0.0}));
}

TEST(CapPlaces, OutsideTheStretchIsNotFound) {
    const CapModel model(TwoColumns());
    EXPECT_EQ(Locate(model.pier, 1, 0, -1, kShear), kNotFound);
    EXPECT_EQ(Locate(model.pier, 1, 0, 11, kShear), kNotFound);  // the left cantilever ends at 10
    EXPECT_EQ(Locate(model.pier, 1, 3, 31, kShear), kNotFound);  // the span ends at 30
    EXPECT_EQ(Locate(model.pier, 2, 3, 41, kShear), kNotFound);
    EXPECT_EQ(Locate(model.pier, 2, 0, 9, kShear), kNotFound);
    EXPECT_EQ(Locate(model.pier, INT_MAX, 0, 9, kShear), kNotFound);
    EXPECT_EQ(Locate(model.pier, INT_MIN, 3, 9, kShear), kNotFound);
    EXPECT_EQ(Locate(model.pier, 1, 1, 10, kShear), kNotFound);
}

TEST(CapPlaces, MiddleSupportFacesGoByTheirSpans) {
    CapShape shape = TwoColumnsWithoutCantilevers();
    shape.supports = 3;
    shape.x = {10, 20, 30, 40, 50};
    const CapModel without(shape);
    EXPECT_EQ(Locate(without.pier, 2, 0, 28, kShear), (Found{1, 0, 1, 0.8}));
    EXPECT_EQ(Locate(without.pier, 2, 3, 32, kShear), (Found{1, 1, 0, 0.2}));
    EXPECT_EQ(Locate(without.pier, 3, 0, 48, kShear), (Found{1, 1, 1, 0.8}));
    shape.cantilevers = true;
    shape.x = {0, 5, 10, 20, 30, 40, 50, 55, 60};
    const CapModel with(shape);
    EXPECT_EQ(Locate(with.pier, 2, 0, 28, kShear), (Found{1, 0, 1, 0.8}));
    EXPECT_EQ(Locate(with.pier, 2, 3, 32, kShear), (Found{1, 1, 0, 0.2}));
    EXPECT_EQ(Locate(with.pier, 3, 3, 52, kShear), (Found{0, 1, 0, 0.4}));
}

TEST(CapPlaces, OuterFacesWithoutCantileversAreTakenAsTheCapsEnds) {
    const CapModel model(TwoColumnsWithoutCantilevers());
    EXPECT_EQ(Locate(model.pier, 1, 0, 123, kShear), (Found{1, 0, 0, 0.0}));
    EXPECT_EQ(Locate(model.pier, 2, 3, 123, kShear), (Found{1, 1, 1, 1.0}));
    EXPECT_EQ(Locate(model.pier, 2, 2, 123, kMoment), (Found{1, 1, 1, 1.0}));
}

TEST(CapPlaces, ElementsAreFoundByNodeAndEnd) {
    const CapModel model(TwoColumns());
    CCapPlace place;
    ASSERT_TRUE(model.pier.FindElementAtNode(5, place, 1));
    EXPECT_EQ(Of(place), (Found{0, 0, 1, 1.0}));
    ASSERT_TRUE(model.pier.FindElementAtNode(5, place, 0));
    EXPECT_EQ(Of(place), (Found{1, 0, 0, 0.0}));
    ASSERT_TRUE(model.pier.FindElementAtNode(13, place, 1));
    EXPECT_EQ(Of(place), (Found{0, 1, 1, 1.0}));
    EXPECT_FALSE(model.pier.FindElementAtNode(13, place, 0));
    RecordedMessages messages;
    EXPECT_EQ(model.pier.GetElementFromNode(5, 0, messages), model.Element(2));
    EXPECT_TRUE(model.pier.IsCapElementEnd(6, 0));
    EXPECT_FALSE(model.pier.IsCapElementEnd(6, 1));
}

TEST(CapPlaces, CantileversAreSearchedBeforeSpans) {
    CapModel model(TwoColumns());
    // A span element that claims the right cantilever's node: the cantilever's element is still the first.
    model.pier.Element(model.Element(2)).m_nNodeI = 12;
    CCapPlace place;
    ASSERT_TRUE(model.pier.FindElementAtNode(12, place, 0));
    EXPECT_EQ(Of(place), (Found{0, 1, 1, 0.0}));
}

TEST(CapPlaces, MissingElementsAreReported) {
    const CapModel model(TwoColumns());
    RecordedMessages messages;
    EXPECT_EQ(model.pier.GetElementFromNode(99, 0, messages), -1);
    EXPECT_EQ(model.pier.GetElement(2, 0, 0, messages), -1);
    EXPECT_EQ(model.pier.GetElement(-1, 0, 0, messages), -1);
    EXPECT_THAT(messages.texts,
                ElementsAre("Error in CPier::GetElementFromNode(...).  Element could not be found.",
                            "Error in CElement* CPier::GetElement(...).  Element not found.",
                            "Error in CElement* CPier::GetElement(...).  Element not found."));
}

TEST(CapPlaces, PlacesBeyondTheMembersAreNoElements) {
    const CapModel model(TwoColumns());
    RecordedMessages messages;
    EXPECT_EQ(model.pier.GetElement(1, 0, 1, messages), model.Element(3));
    EXPECT_EQ(model.pier.GetElement(1, 1, 0, messages), -1);
    EXPECT_EQ(model.pier.GetElement(0, 2, 0, messages), -1);
    EXPECT_EQ(model.pier.GetElement(0, 1, 2, messages), -1);
    EXPECT_EQ(model.pier.GetElement(0, -1, 0, messages), -1);
    EXPECT_EQ(model.pier.GetElement(1, INT_MAX, INT_MAX, messages), -1);
    EXPECT_TRUE(messages.texts.empty());
}

TEST(CapPlaces, StepsGoFromMemberToMember) {
    CapShape shape = TwoColumns();
    shape.supports = 3;
    shape.x = {0, 5, 10, 20, 30, 40, 50, 55, 60};
    const CapModel model(shape);
    EXPECT_EQ(Step(model.pier, 1, {1, 0, 1, 0.0}), (Found{1, 0, 0, 1.0}));
    EXPECT_EQ(Step(model.pier, 1, {1, 1, 0, 0.0}), (Found{1, 0, 1, 1.0}));
    EXPECT_EQ(Step(model.pier, 1, {1, 0, 0, 0.0}), (Found{0, 0, 1, 1.0}));
    EXPECT_EQ(Step(model.pier, 1, {0, 1, 0, 0.0}), (Found{1, 1, 1, 1.0}));
    EXPECT_EQ(Step(model.pier, 0, {0, 0, 0, 1.0}), (Found{0, 0, 1, 0.0}));
    EXPECT_EQ(Step(model.pier, 0, {0, 0, 1, 1.0}), (Found{1, 0, 0, 0.0}));
    EXPECT_EQ(Step(model.pier, 0, {1, 0, 1, 1.0}), (Found{1, 1, 0, 0.0}));
    EXPECT_EQ(Step(model.pier, 0, {1, 1, 1, 1.0}), (Found{0, 1, 0, 0.0}));
    EXPECT_EQ(Step(model.pier, 0, {0, 1, 1, 1.0}), (Found{0, 1, 2, 0.0}));  // no end test in a cantilever
}

TEST(CapPlaces, StepsOverASingleSupportGoFromCantileverToCantilever) {
    CapShape shape;
    shape.supports = 1;
    shape.x = {0, 5, 10, 15, 20};
    const CapModel model(shape);
    EXPECT_EQ(Step(model.pier, 1, {0, 1, 0, 0.0}), (Found{0, 0, 1, 1.0}));
    EXPECT_EQ(Step(model.pier, 0, {0, 0, 1, 1.0}), (Found{0, 1, 0, 0.0}));
}

TEST(CapPlaces, StepAfterTheLastSpanStaysWithoutCantilevers) {
    const CapModel model(TwoColumnsWithoutCantilevers());
    EXPECT_EQ(Step(model.pier, 0, {1, 0, 1, 1.0}), (Found{1, 0, 1, 0.0}));
}

TEST(CapPlaces, NodesByXAreExact) {
    const CapModel model(TwoColumns());
    EXPECT_EQ(FindCapPoint(model.pier, 35), 5);
    EXPECT_EQ(model.pier.m_CapPointNode[5], 12);
    EXPECT_EQ(FindCapPoint(model.pier, 35.0000000001), -1);
}

TEST(CapPlaces, NodesOutsideTheListHaveCoordinateZero) {
    const CapModel model(TwoColumns());
    EXPECT_DOUBLE_EQ(model.pier.NodeCoordinate(13, 0), 40);
    EXPECT_DOUBLE_EQ(model.pier.NodeCoordinate(14, 0), 0.0);
    EXPECT_DOUBLE_EQ(model.pier.NodeCoordinate(2, 0), 0.0);  // a foundation node
    EXPECT_DOUBLE_EQ(model.pier.NodeCoordinate(13, 3), 0.0);
    EXPECT_DOUBLE_EQ(model.pier.NodeCoordinate(INT_MIN, 0), 0.0);
}

}  // namespace lumerin
