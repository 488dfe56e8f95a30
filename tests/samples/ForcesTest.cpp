// SPDX-License-Identifier: MIT
// Forces in the samples: statics by hand, continuity along members, and sizes an engineer would accept.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "ProjectReader.h"
#include "samples/CapForces.h"
#include "samples/Geometry.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

// A cap of metres with supports at 2 and 12, cantilevers of two metres and nodes at 0, 2, 7, 12 and 14.
samples::Substructure HandCap() {
    samples::SubstructurePlan plan;
    plan.type = samples::StructureType::Pier;
    plan.units = samples::Units::Si;
    plan.pileRows = plan.pileColumns = 2;
    plan.pileSpacing = 3.0;
    plan.supportX = {2.0, 12.0};
    plan.height = 8.0;
    plan.columnNodes = 1;
    plan.leftCantilever = {0.0};
    plan.spanNodes = {{7.0}};
    plan.rightCantilever = {14.0};
    return samples::BuildSubstructure(plan);
}

samples::CapLoads NoLoads(std::size_t points) {
    samples::CapLoads loads;
    loads.down.assign(points, 0.0);
    loads.along.assign(points, 0.0);
    loads.across.assign(points, 0.0);
    return loads;
}

// 10 at the left tip: shear -10 and moment -20 at the support.
TEST(CapStatics, CantileverUnderATipLoad) {
    samples::CapModel cap(HandCap());
    auto loads = NoLoads(5);
    loads.down[0] = 10.0;
    cap.Solve(loads);
    EXPECT_DOUBLE_EQ(cap.AtI(0).f22, -10.0);
    EXPECT_DOUBLE_EQ(cap.AtJ(0).f22, -10.0);
    EXPECT_DOUBLE_EQ(cap.AtI(0).m33, 0.0);
    EXPECT_DOUBLE_EQ(cap.AtJ(0).m33, -20.0);
}

// 3 a metre on two metres: shear -6 and moment -3 * 2 * 2 / 2 = -6 on the left, shear 6 on the right.
TEST(CapStatics, CantileversUnderTheirOwnWeight) {
    samples::CapModel cap(HandCap());
    auto loads = NoLoads(5);
    loads.weight = 3.0;
    cap.Solve(loads);
    EXPECT_DOUBLE_EQ(cap.AtJ(0).f22, -6.0);
    EXPECT_DOUBLE_EQ(cap.AtJ(0).m33, -6.0);
    EXPECT_DOUBLE_EQ(cap.AtI(3).f22, 6.0);
    EXPECT_DOUBLE_EQ(cap.AtI(3).m33, -6.0);
    EXPECT_DOUBLE_EQ(cap.AtJ(3).m33, 0.0);
}

// 40 in the middle of ten metres: held with 0.4 of 40 * 10 / 10 at both ends, so 100 - 16 in the middle.
TEST(CapStatics, SpanUnderAMiddleLoad) {
    samples::CapModel cap(HandCap());
    auto loads = NoLoads(5);
    loads.down[2] = 40.0;
    cap.Solve(loads);
    EXPECT_DOUBLE_EQ(cap.AtI(1).f22, 20.0);
    EXPECT_DOUBLE_EQ(cap.AtJ(2).f22, -20.0);
    EXPECT_DOUBLE_EQ(cap.AtI(1).m33, -16.0);
    EXPECT_DOUBLE_EQ(cap.AtJ(1).m33, 84.0);
    EXPECT_DOUBLE_EQ(cap.AtI(2).m33, 84.0);
    EXPECT_DOUBLE_EQ(cap.AtJ(2).m33, -16.0);
}

// The supports carry all loads of the cap: 10 + 20 + 40 + 5 and 3 a metre on 14 metres.
TEST(CapStatics, SupportsTakeAllLoads) {
    samples::CapModel cap(HandCap());
    auto loads = NoLoads(5);
    loads.down = {10.0, 20.0, 40.0, 0.0, 5.0};
    loads.along = {1.0, 0.0, 2.0, 0.0, 3.0};
    loads.across = {4.0, 0.0, -1.0, 2.0, 0.0};
    loads.weight = 3.0;
    cap.Solve(loads);
    const auto& supports = cap.Supports();
    ASSERT_EQ(supports.size(), 2U);
    EXPECT_NEAR(supports[0].down + supports[1].down, 75.0 + 42.0, 1e-9);
    EXPECT_NEAR(supports[0].along + supports[1].along, 6.0, 1e-12);
    EXPECT_NEAR(supports[0].across + supports[1].across, 5.0, 1e-12);
}

// 1 at the left tip and 3 at the right one, 2 for each support: -1, then 1, and 3 in the right cantilever.
TEST(CapStatics, AxialForceStepsAtLoadsAndSupports) {
    samples::CapModel cap(HandCap());
    auto loads = NoLoads(5);
    loads.along = {1.0, 0.0, 0.0, 0.0, 3.0};
    cap.Solve(loads);
    EXPECT_DOUBLE_EQ(cap.AtI(0).axial, -1.0);
    EXPECT_DOUBLE_EQ(cap.AtI(1).axial, 1.0);
    EXPECT_DOUBLE_EQ(cap.AtJ(2).axial, 1.0);
    EXPECT_DOUBLE_EQ(cap.AtI(3).axial, 3.0);
}

// A push of 6 to the right gives each column 3 at half of 8 metres: 12 at its top; the right one is pressed
// harder by (12 + 12) / 10.
TEST(CapStatics, PushAlongTheCapSwaysTheFrame) {
    samples::CapModel cap(HandCap());
    auto loads = NoLoads(5);
    loads.along[2] = 6.0;
    cap.Solve(loads);
    EXPECT_DOUBLE_EQ(cap.Supports()[0].moment, 12.0);
    EXPECT_DOUBLE_EQ(cap.Supports()[1].moment, 12.0);
    EXPECT_DOUBLE_EQ(cap.Supports()[0].down, -2.4);
    EXPECT_DOUBLE_EQ(cap.Supports()[1].down, 2.4);
}

// What the readers make of a record: forces at the ends in the sense of section forces.
struct Ends {
    double i[6];
    double j[6];
    double ratioI, ratioJ;
};

Ends ReadEnds(const reader::Forces& forces, int loadCase, std::size_t record, bool pile) {
    const auto w = [&](std::size_t word) { return static_cast<double>(forces.Word(loadCase, record, word)); };
    return {{w(13), -w(1), -w(2), w(6), w(5), pile ? -w(15) : w(15)},
            {w(14), w(3), w(4), -w(8), -w(7), -w(16)},
            w(11),
            w(12)};
}

class Samples : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        m_base = m_folder.Write(GetParam());
        const auto counts = reader::Records(reader::ReadAll(m_base + ".TWR"));
        for (int k = 0; k < reader::Int(counts.at(0), 0); ++k) {
            m_models.push_back(reader::ReadModel(m_base, k));
            m_forces.emplace_back(m_base, k, m_models.back());
        }
        m_cases = reader::Int(reader::Records(reader::ReadAll(m_base + ".ncv")).at(0), 0);
    }

    SampleFolder m_folder;
    std::string m_base;
    std::vector<reader::Model> m_models;
    std::vector<reader::Forces> m_forces;
    int m_cases = 0;
};

TEST_P(Samples, PileForcesRunThroughFromElementToElement) {
    for (std::size_t k = 0; k < m_models.size(); ++k) {
        const auto elements = static_cast<std::size_t>(m_models[k].pileNodes - 1);
        for (int c = 0; c < m_cases; ++c) {
            for (std::size_t r = 0; r + 1 < elements * static_cast<std::size_t>(m_models[k].piles); ++r) {
                if (r % elements == elements - 1) continue;  // the next record begins another pile
                const Ends upper = ReadEnds(m_forces[k], c, r, true);
                const Ends lower = ReadEnds(m_forces[k], c, r + 1, true);
                for (std::size_t f = 0; f < 6; ++f) ASSERT_EQ(upper.i[f], lower.j[f]) << "record " << r;
                ASSERT_EQ(upper.ratioI, lower.ratioJ);
            }
        }
    }
}

// Under the head, an element's axial force shrinks and its moment varies.
TEST_P(Samples, PileForcesVaryAlongThePile) {
    for (std::size_t k = 0; k < m_models.size(); ++k) {
        const Ends head = ReadEnds(m_forces[k], 1, 0, true);
        EXPECT_LT(std::abs(head.i[0]), std::abs(head.j[0]));
        EXPECT_NE(head.i[4], head.j[4]);
    }
}

TEST_P(Samples, PilesAreMostlyInCompression) {
    for (std::size_t k = 0; k < m_models.size(); ++k) {
        const auto elements = static_cast<std::size_t>(m_models[k].pileNodes - 1);
        int tension = 0;
        for (int c = 0; c < m_cases; ++c) {
            for (int p = 0; p < m_models[k].piles; ++p) {
                const auto record = static_cast<std::size_t>(p) * elements;
                if (m_forces[k].Word(c, record, 14) > 0.0F) ++tension;
            }
        }
        EXPECT_LT(tension, m_cases * m_models[k].piles / 4);
    }
}

TEST_P(Samples, RatiosAreBetweenZeroAndALittleOverOne) {
    for (std::size_t k = 0; k < m_models.size(); ++k) {
        double most = 0.0;
        for (int c = 0; c < m_cases; ++c) {
            for (std::size_t r = 0; r < m_models[k].RecordsPerCase(); ++r) {
                const Ends ends = ReadEnds(m_forces[k], c, r, false);
                ASSERT_GE(std::min(ends.ratioI, ends.ratioJ), 0.0);
                most = std::max({most, ends.ratioI, ends.ratioJ});
            }
        }
        EXPECT_LE(most, 1.25);
        EXPECT_GE(most, 0.6);
    }
}

// Section moment and shear of columns and cap keep dM/dx = V on average over an element, own weight included.
TEST_P(Samples, MomentsOfColumnsAndCapFollowTheirShears) {
    for (std::size_t k = 0; k < m_models.size(); ++k) {
        const auto& model = m_models[k];
        const double feet = model.units == 1 ? 1.0 : 12.0;
        const auto first = static_cast<std::size_t>(model.PileElements());
        for (std::size_t r = 0; r + static_cast<std::size_t>(model.extraMembers) < model.rows.size(); ++r) {
            const auto& row = model.rows[r];
            if (row.section == 1) continue;
            const auto& i = model.nodes.at(static_cast<std::size_t>(row.nodeI - 1));
            const auto& j = model.nodes.at(static_cast<std::size_t>(row.nodeJ - 1));
            const double length = (std::abs(j[0] - i[0]) + std::abs(j[2] - i[2])) / feet;
            for (int c = 0; c < m_cases; ++c) {
                const Ends ends = ReadEnds(m_forces[k], c, first + r, false);
                const double slope = (ends.i[1] + ends.j[1]) / 2.0 * length;
                const double size = std::abs(ends.i[4]) + std::abs(ends.j[4]) + std::abs(slope);
                ASSERT_NEAR(ends.j[4] - ends.i[4], slope, 1e-5 * size) << "element " << row.number;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Presets, Samples,
                         testing::Values("pier", "bent", "group", "walls", "bridge", "history"),
                         [](const auto& preset) { return std::string(preset.param); });

// Some shaking lifts a corner of the footing.
TEST(PierForces, SomePileHeadsAreInTension) {
    const SampleFolder folder;
    const std::string base = folder.Write("pier");
    const auto model = reader::ReadModel(base, 0);
    const reader::Forces forces(base, 0, model);
    int tension = 0;
    for (int c = 0; c < 26; ++c) {
        for (std::size_t p = 0; p < 8; ++p) tension += forces.Word(c, p * 12, 14) > 0.0F ? 1 : 0;
    }
    EXPECT_GT(tension, 0);
}

// Columns press the four piles around them: the connectors carry the foot's axial force in equal parts.
TEST(PierForces, ConnectorsShareTheColumnsFoot) {
    const SampleFolder folder;
    const std::string base = folder.Write("pier");
    const auto model = reader::ReadModel(base, 0);
    const reader::Forces forces(base, 0, model);
    const std::size_t first = static_cast<std::size_t>(model.PileElements());
    double sum = 0.0;
    for (std::size_t r = 0; r < 4; ++r) sum += static_cast<double>(forces.Word(3, first + r, 13));
    const double foot = static_cast<double>(forces.Word(3, first + 8, 13));
    EXPECT_LT(foot, 0.0);
    EXPECT_NEAR(sum, foot, 1e-5 * std::abs(foot));
}

}  // namespace

}  // namespace lumerin
