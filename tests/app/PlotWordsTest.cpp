#include "app/PlotWords.h"

#include <gtest/gtest.h>

namespace {

void Check(int family, std::initializer_list<int> classes, const char* plot, const char* limitFamily) {
    CDataSet data;
    data.m_Piers.resize(1);
    data.FirstPier().m_nCodeFamily = family;
    for (const int limitClass : classes) {
        data.FirstPier().m_nFirstOfClass[static_cast<std::size_t>(limitClass)] = 4;
    }
    EXPECT_EQ(FirstPlotWord(data), plot) << family;
    EXPECT_EQ(LimitFamilyWord(data), limitFamily) << family;
}

TEST(PlotWords, FollowTheFirstClassThatHasACase) {
    Check(kFamilyLrfd, {0, 1, 2, 3}, "Shear", "STRENGTH");
    Check(kFamilyLrfd, {1, 3}, "Shear", "SERVICE");
    Check(kFamilyLrfd, {2}, "Shear", "EXTREME");
    Check(kFamilyArema, {0, 1}, "Shear", "LFD-GROUP");
    Check(kFamilyArema, {1}, "Shear", "SLD-GROUP");
}

TEST(PlotWords, FatigueAloneOpensOnMoments) {
    Check(kFamilyLrfd, {3}, "Moment", "FATIGUE");
}

TEST(PlotWords, WithoutAClassTheFamilyDecides) {
    Check(kFamilyLrfd, {}, "", "");
    Check(kFamilyArema, {}, "Shear", "");
    Check(kFamilyLfd, {}, "Shear", "GROUP");
    Check(kFamilyNone, {}, "Shear", "NonAASTHO");
    Check(5, {0}, "", "");
}

TEST(PlotWords, AnEmptyModelHasNone) {
    const CDataSet data;
    EXPECT_EQ(FirstPlotWord(data), "");
    EXPECT_EQ(LimitFamilyWord(data), "");
}

}  // namespace
