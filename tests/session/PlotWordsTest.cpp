// SPDX-License-Identifier: MIT
#include "session/PlotWords.h"

#include <gtest/gtest.h>

namespace lumerin {

namespace {

void Check(CodeFamily family, std::initializer_list<LimitClass> classes, const char* plot,
           const char* limitFamily) {
    CDataSet data;
    data.m_Piers.resize(1);
    data.FirstPier().m_nCodeFamily = family;
    data.FirstPier().m_bCombinations = true;
    for (const LimitClass limitClass : classes) {
        data.FirstPier().m_LoadCases.emplace_back().m_nLimitClass = limitClass;
    }
    const CaseSelection selection(data);
    EXPECT_EQ(FirstPlotWord(data, selection), plot) << family;
    EXPECT_EQ(LimitFamilyWord(data, selection), limitFamily) << family;
}

TEST(PlotWords, FollowTheFirstClassThatHasACase) {
    Check(kFamilyLrfd, {kStrength, kService, kExtreme, kFatigue}, "Shear", "STRENGTH");
    Check(kFamilyLrfd, {kService, kFatigue}, "Shear", "SERVICE");
    Check(kFamilyLrfd, {kExtreme}, "Shear", "EXTREME");
    Check(kFamilyArema, {kStrength, kService}, "Shear", "LFD-GROUP");
    Check(kFamilyArema, {kService}, "Shear", "SLD-GROUP");
}

TEST(PlotWords, FatigueAloneOpensOnMoments) {
    Check(kFamilyLrfd, {kFatigue}, "Moment", "FATIGUE");
}

TEST(PlotWords, WithoutAClassTheFamilyDecides) {
    Check(kFamilyLrfd, {}, "", "");
    Check(kFamilyArema, {}, "Shear", "");
    Check(kFamilyLfd, {}, "Shear", "GROUP");
    Check(kFamilyNone, {}, "Shear", "NonAASTHO");
    Check(static_cast<CodeFamily>(5), {kStrength}, "", "");
}

TEST(PlotWords, AnEmptyModelHasNone) {
    const CDataSet data;
    EXPECT_EQ(FirstPlotWord(data, CaseSelection(data)), "");
    EXPECT_EQ(LimitFamilyWord(data, CaseSelection(data)), "");
}

}  // namespace

}  // namespace lumerin
