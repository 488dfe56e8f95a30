// SPDX-License-Identifier: MIT
// The result tables as a caller of the searches makes them.
#include "envelopes/ResultTables.h"

#include <gtest/gtest.h>

#include "support/CapModel.h"
#include "support/Model.h"

namespace lumerin {

namespace {

TEST(ResultTables, OfAProjectWithoutSubstructuresAreNone) {
    const ResultTables tables{CDataSet()};
    EXPECT_TRUE(tables.piers.empty());
    EXPECT_EQ(tables.valid, kAllTables);
    EXPECT_TRUE(PierResults().maxTension.empty());
}

TEST(ResultTables, OfASubstructureWithoutCasesHaveNoEntries) {
    OnePier project({.cases = 0});
    project.pier.BuildCapGeometry();
    EXPECT_EQ(ResultTables(project.data).piers[0].pileForces.Sections(), 0);
}

TEST(ResultTables, AreSizedBySectionsSlotsAndExtremesAndHoldZeros) {
    OnePier project(
        {.type = kTypeWallA, .piles = 2, .columns = 2, .extraMembers = 2, .family = kFamilyArema});
    project.pier.m_nPileSections = 3;
    project.pier.m_nColumnSections = 1;
    project.pier.m_nXMemberSections = 2;
    const ResultTables tables(project.data);
    ASSERT_EQ(tables.piers.size(), 1U);
    const PierResults& pier = tables.piers[0];
    EXPECT_EQ(pier.maxTension, (std::vector<std::vector<int>>{{0, 0}, {0, 0}}));
    EXPECT_EQ(pier.maxCompression, pier.maxTension);
    EXPECT_EQ(pier.pileDc.Sections(), 3);
    EXPECT_EQ(pier.pileDc.Slots(), 2);
    EXPECT_EQ(pier.pileDc.Extremes(), 1);
    EXPECT_EQ(pier.columnDc.Sections(), 1);
    EXPECT_EQ(pier.pileForces.Extremes(), 13);
    EXPECT_EQ(pier.columnForces.Sections(), 1);
    EXPECT_EQ(pier.extraMemberForces.Sections(), 2);
    EXPECT_EQ(pier.extraMemberForces.At(1, 1, 12), CMaxRecord{});
    EXPECT_EQ(pier.shearSupports.Positions(), 0);  // no cap
}

// [support][slot][kind], and by bearing for each of its rows.
TEST(ResultTables, HaveEntriesForTheSectionsOfACap) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{7, 8}, {8}};
    shape.family = kFamilyArema;
    const CapModel model(shape);
    const ResultTables tables(model.data);
    const PierResults& pier = tables.piers[0];
    EXPECT_EQ(pier.shearSupports.Positions(), 2);
    EXPECT_EQ(pier.shearSupports.Slots(), 2);
    EXPECT_EQ(pier.shearSupports.Kinds(), 4);
    EXPECT_EQ(pier.momentSupports.Kinds(), 3);
    EXPECT_EQ(pier.shearBearings.Positions(), 2);
    EXPECT_EQ(pier.shearBearings.Kinds(), 4);
    EXPECT_EQ(pier.momentBearings.Kinds(), 2);
    EXPECT_EQ(pier.shearSupportX.size(), 8U);
    EXPECT_EQ(pier.momentSupportList.size(), 6U);
    EXPECT_EQ(pier.shearPointX.size(), 12U);  // 8 and both sides of two places
    EXPECT_EQ(pier.momentPointX.size(), 8U);
}

TEST(ResultTables, AreValidButTheShearTableWhereTheFirstSubstructureHasNoCap) {
    for (int type = 0; type < kStructureTypes; ++type) {
        OnePier project({.type = StructureType{type}});
        BuildPier(project.data.m_Piers.emplace_back(), {.type = kTypePier});
        TableFlags valid = kAllTables;
        valid[kTableCapShear] = type == kTypePier || type == kTypePileBent;
        EXPECT_EQ(ResultTables(project.data).valid, valid) << type;
    }
}

TEST(ResultTables, KeepTheirEntriesApartAndTheirBounds) {
    CRecordTable table;
    table.Allocate(2, 3, 13);
    int next = 0;
    for (int section = 0; section < 2; ++section) {
        for (int slot = 0; slot < 3; ++slot) {
            for (int extreme = 0; extreme < 13; ++extreme) table.At(section, slot, extreme).m_nNode = ++next;
        }
    }
    EXPECT_EQ(table.At(0, 0, 0).m_nNode, 1);
    EXPECT_EQ(table.At(0, 2, 12).m_nNode, 39);
    EXPECT_EQ(table.At(1, 2, 12).m_nNode, 78);
    EXPECT_ANY_THROW(table.At(2, 0, 0));
    EXPECT_ANY_THROW(table.At(-1, 0, 0));
    table.Allocate(1, 1, 1);
    EXPECT_EQ(table.At(0, 0).m_nNode, 0);
}

}  // namespace

}  // namespace lumerin
