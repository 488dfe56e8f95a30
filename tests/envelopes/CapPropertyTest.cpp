// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "CapLiteral.h"
#include "support/Searches.h"

namespace lumerin {

namespace {

using Random = std::mt19937;

int Pick(Random& random, int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
}

// Few distinct values, so that most searches meet ties.
float RandomForce(Random& random) {
    const int pick = Pick(random, 0, 19);
    if (pick == 19) return kNaN;
    return static_cast<float>(pick % 5 - 2);
}

CapShape RandomShape(Random& random) {
    CapShape shape;
    shape.type = Pick(random, 0, 1) == 0 ? kTypePier : kTypePileBent;
    shape.foundationNodes = shape.type == kTypePier ? Pick(random, 0, 2) : 0;
    shape.supports = Pick(random, 1, 4);
    shape.columnNodes = Pick(random, 1, 2);
    shape.spanNodes = Pick(random, 0, 2);
    shape.cantilevers = Pick(random, 0, 2) != 0;
    shape.cantileverNodes = Pick(random, 0, 2);
    shape.width = Pick(random, 0, 12);  // faces on nodes, between them, past the tips
    shape.cases = Pick(random, 1, 9);
    const int cantilever = shape.cantilevers ? shape.cantileverNodes + 1 : 0;
    const int nodes = 2 * cantilever + (shape.supports - 1) * (shape.spanNodes + 1) + 1;
    // A far left tip makes a face's fraction round to the end of its element.
    double x = Pick(random, 0, 5) == 0 ? -1e17 : 0.0;
    for (int i = 0; i < nodes; ++i) {
        shape.x.push_back(x);
        x = std::max(x, 0.0) + Pick(random, 1, 4);
    }
    const int rows = Pick(random, 0, 2);
    for (int row = 0; row < rows; ++row) {
        std::vector<int> bearings;
        for (int i = Pick(random, 0, 4); i > 0; --i) bearings.push_back(Pick(random, 0, 25));
        shape.bearingNodes.push_back(bearings);
    }
    const CodeFamily families[] = {kFamilyNone, kFamilyLrfd, kFamilyLfd, kFamilyArema};
    shape.family = families[Pick(random, 0, 3)];
    if (shape.family != kFamilyNone) {
        const int classes = shape.family == kFamilyLrfd ? 3 : (shape.family == kFamilyArema ? 1 : 0);
        for (int c = 0; c < shape.cases; ++c)
            shape.limitClasses.push_back(LimitClass{Pick(random, 0, classes)});
    }
    return shape;
}

void Fill(SearchedCap& model, Random& random) {
    for (int c = 0; c < model.pier.m_nLoadCases; ++c) {
        for (int e = 0; e < model.Elements(); ++e) {
            for (int component = 0; component < kComponents; ++component) {
                model.Set(c, e, component, RandomForce(random), RandomForce(random));
            }
        }
    }
    for (int e = 0; e < model.Elements(); ++e) {
        if (Pick(random, 0, 5) == 0) model.Mask(e);
    }
}

void ExpectEqual(const CCapTable& actual, const CCapTable& expected, const char* name) {
    ASSERT_EQ(actual.Entries().size(), expected.Entries().size());
    for (std::size_t i = 0; i < actual.Entries().size(); ++i) {
        const CCapEntry &a = actual.Entries()[i], &b = expected.Entries()[i];
        ASSERT_EQ(a.record, b.record) << name << " entry " << i;
        for (std::size_t v = 0; v < a.values.size(); ++v) {
            ASSERT_TRUE(a.values[v] == b.values[v] || (std::isnan(a.values[v]) && std::isnan(b.values[v])))
                << name << " entry " << i << " value " << v;
        }
    }
}

}  // namespace

// Each run is another random cap of the same kind; the sanitizers see the same code in a quarter of them.
#ifdef LUMERIN_SANITIZED
constexpr int kRuns = 1000;
#else
constexpr int kRuns = 4000;
#endif

TEST(CapProperty, OneWalkAgreesWithTheSearchForEachClassAndSense) {
    Random random(20260817);
    for (int run = 0; run < kRuns; ++run) {
        SCOPED_TRACE(run);
        SearchedCap model(RandomShape(random));
        Fill(model, random);
        LiteralCap literal(model);
        // The second round works on another selection and on what the first one left in the tables.
        for (int round = 0; round < 2; ++round) {
            for (int c = 0; c < model.pier.m_nLoadCases; ++c) {
                model.selection.SetCaseSelected(c, Pick(random, 0, 3) != 0);
            }
            model.ComputeShear();
            model.ComputeMoment();
            literal.ShearAtSupports();
            literal.ShearAtBearings();
            literal.MomentAtSupports();
            literal.MomentAtBearings();
            ExpectEqual(model.results.shearSupports, literal.shearSupports, "shear at supports");
            ExpectEqual(model.results.shearBearings, literal.shearBearings, "shear at bearings");
            ExpectEqual(model.results.momentSupports, literal.momentSupports, "moment at supports");
            ExpectEqual(model.results.momentBearings, literal.momentBearings, "moment at bearings");
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

}  // namespace lumerin
