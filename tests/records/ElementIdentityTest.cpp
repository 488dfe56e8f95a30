// SPDX-License-Identifier: MIT
#include "records/ElementIdentity.h"

#include <gmock/gmock.h>

#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

// The pier of MakePier: columns of two elements (rows 9, 10 and 15, 16), cantilevers of two (11, 12 and 17,
// 18), a span of two (13, 14), eight rows of the foundation; two piles of two elements.
class IdentityTest : public testing::Test {
  protected:
    IdentityTest() {
        project.substructures[0] = MakePier();
        project.WriteAll();
    }
    const ElementIdentity& Find(MemberKind kind, int member, int index) {
        const Evaluation& evaluation = project.Evaluate(TableNeeds{});
        for (const ElementIdentity& identity : evaluation.Identities(0)) {
            if (identity.kind == kind && identity.member == member && identity.index == index)
                return identity;
        }
        ADD_FAILURE() << "no such element";
        return evaluation.Identities(0).front();
    }
    std::string Place(MemberKind kind, int member, int index, int end) {
        const ElementIdentity identity = Find(kind, member, index);
        return PlaceOf(project.Evaluate(TableNeeds{}).Data().FirstPier(), identity, end);
    }
    RecordsProject project;
};

TEST_F(IdentityTest, ElementsAreInTheOrderOfTheirRecords) {
    const Evaluation& evaluation = project.Evaluate(TableNeeds{});
    std::vector<long long> records;
    for (const ElementIdentity& identity : evaluation.Identities(0)) records.push_back(identity.record);
    ASSERT_EQ(records.size(), 22U);  // four of the piles, eighteen rows
    for (std::size_t i = 0; i < records.size(); ++i) EXPECT_EQ(records[i], static_cast<long long>(i) + 1);
}

TEST_F(IdentityTest, MembersAndTheirElementsAreCountedFromOne) {
    EXPECT_EQ(Find(MemberKind::pile, 1, 1).record, 1);
    EXPECT_EQ(Find(MemberKind::pile, 2, 2).record, 4);
    EXPECT_EQ(Find(MemberKind::column, 1, 1).number, 9);
    EXPECT_EQ(Find(MemberKind::column, 2, 2).number, 16);
    EXPECT_EQ(Find(MemberKind::leftCantilever, 1, 2).number, 12);
    EXPECT_EQ(Find(MemberKind::span, 1, 1).number, 13);
    EXPECT_EQ(Find(MemberKind::rightCantilever, 1, 1).number, 17);
    EXPECT_EQ(Find(MemberKind::other, 0, 0).number, 1);
    EXPECT_EQ(Find(MemberKind::span, 1, 1).section, 4);
    EXPECT_EQ(Find(MemberKind::column, 1, 1).section, 2);
}

// The frame of three columns has four elements in each of its two spans.
TEST(ElementIdentity, TheElementsOfEachSpanAreCountedFromOne) {
    const SampleFolder folder;
    const auto opened = LoadByName(ProjectName(folder.Write("history")));
    const Evaluation evaluation(*opened, {}, {}, {});
    std::vector<std::pair<int, int>> places;
    for (const ElementIdentity& identity : evaluation.Identities(0)) {
        if (identity.kind == MemberKind::span) places.emplace_back(identity.member, identity.index);
    }
    EXPECT_THAT(places,
                testing::ElementsAre(std::pair(1, 1), std::pair(1, 2), std::pair(1, 3), std::pair(1, 4),
                                     std::pair(2, 1), std::pair(2, 2), std::pair(2, 3), std::pair(2, 4)));
}

TEST_F(IdentityTest, PlacesAreNamedAsAnEngineerDoes) {
    EXPECT_EQ(Place(MemberKind::pile, 2, 1, kEndJ), "pile 2 head");
    EXPECT_EQ(Place(MemberKind::pile, 2, 2, kEndI), "pile 2 tip");
    EXPECT_EQ(Place(MemberKind::pile, 1, 1, kEndI), "pile 1 element 19 end I");
    EXPECT_EQ(Place(MemberKind::column, 1, 1, kEndI), "Col 1 foot");
    EXPECT_EQ(Place(MemberKind::column, 1, 1, kEndJ), "Col 1 element 9 end J");
    EXPECT_EQ(Place(MemberKind::column, 2, 2, kEndJ), "Col 2 top");
    // The left cantilever ends at the first column, the right one begins at the second.
    EXPECT_EQ(Place(MemberKind::leftCantilever, 1, 2, kEndJ), "Col 1 CL");
    EXPECT_EQ(Place(MemberKind::rightCantilever, 1, 1, kEndI), "Col 2 CL");
    EXPECT_EQ(Place(MemberKind::span, 1, 1, kEndJ), "element 13 end J");
    EXPECT_EQ(Place(MemberKind::other, 0, 0, kEndJ), "element 1 end J");
}

// US: inches from the substructure's own position, in feet; metric as they are.
TEST_F(IdentityTest, LocationsAlongTheCapAreThoseOfThePrintedTables) {
    CPier pier;
    pier.m_dLocationX = 24.0;
    EXPECT_DOUBLE_EQ(CapLocation(pier, 60.0), 3.0);
    pier.m_nUnits = 1;
    EXPECT_DOUBLE_EQ(CapLocation(pier, 60.0), 60.0);
}

}  // namespace

}  // namespace lumerin
