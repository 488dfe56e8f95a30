// What the data set answers of the project: words, table flags, sections.
#include "model/DataSet.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "session/Session.h"

namespace {

class DataSet : public testing::Test {
  protected:
    void SetUp() override { g_DataSet.Reset(); }
    void TearDown() override { g_DataSet.Reset(); }

    static CPier& AddPier(int type = 0) {
        CPier& pier = g_DataSet.m_Piers.emplace_back();
        pier.m_nStructureType = type;
        g_DataSet.m_nStructureType = type;  // the last read one's
        g_DataSet.m_nPiers = static_cast<int>(g_DataSet.m_Piers.size());
        return pier;
    }
    static void SetClasses(std::initializer_list<int> classes, int family = 0) {
        CPier& pier = g_DataSet.FirstPier();
        pier.m_nCodeFamily = family;
        pier.m_bCombinations = true;
        pier.m_nFirstOfClass.fill(-1);
        for (const int limitClass : classes) pier.m_nFirstOfClass[static_cast<std::size_t>(limitClass)] = 0;
    }
    static std::set<int> Enabled() {
        g_DataSet.SetTableApplicability();
        std::set<int> tables;
        for (int k = 0; k < kTableCount; ++k) {
            if (g_DataSet.m_bTableEnabled[static_cast<std::size_t>(k)]) tables.insert(k);
        }
        return tables;
    }
};

using Tables = std::set<int>;

// Every count of a data set.
std::vector<int*> CountsOf(CDataSet& data) {
    return {
        &data.m_nAnalysisMode,  &data.m_nNcvInteger,      &data.m_nUnits,         &data.m_nPilesFromNodes,
        &data.m_nExtraMembers,  &data.m_nXMemberSections, &data.m_nSpanNodes,     &data.m_nCantileverNodes,
        &data.m_nColumnNodes,   &data.m_nColumnSections,  &data.m_nStructureType, &data.m_nColumns,
        &data.m_nCantilevers,   &data.m_nElementGaps,     &data.m_nPlfExtraCount, &data.m_nPileNodesTotal,
        &data.m_nPileElements,  &data.m_nElements,        &data.m_nPilTableSize,  &data.m_nSectionRecords,
        &data.m_nSectionBlocks, &data.m_nPiers,           &data.m_nPiles,         &data.m_nPileNodes,
        &data.m_nLoadCases};
}

TEST_F(DataSet, ANewOneIsEmpty) {
    CDataSet fresh;
    EXPECT_TRUE(fresh.IsPierless());
    EXPECT_EQ(fresh.m_dNcvReal, 0.0);
    for (const int* count : CountsOf(fresh)) EXPECT_EQ(*count, 0);
}

TEST_F(DataSet, ResetReturnsToTheFirstState) {
    AddPier();
    for (int* count : CountsOf(g_DataSet)) *count = 9;
    g_DataSet.m_dNcvReal = 1.5;
    std::string* const texts[] = {&g_DataSet.m_sForceUnit, &g_DataSet.m_sMomentUnit, &g_DataSet.m_sProjectN,
                                  &g_DataSet.m_sProjectT,  &g_DataSet.m_sProjectC,   &g_DataSet.m_sProjectD};
    for (std::string* text : texts) *text = "kN";
    g_DataSet.m_bTableValid[3] = false;
    g_DataSet.m_bTableEnabled[0] = true;
    g_FooterOn = g_FooterDate = g_FooterTime = g_FooterVersion = g_FooterFileName = 1;
    g_ReportFormat = 2;
    g_AllLoadCases = false;
    g_DataLoaded = false;
    g_DataSet.Reset();
    EXPECT_TRUE(g_DataSet.IsPierless());
    for (const int* count : CountsOf(g_DataSet)) EXPECT_EQ(*count, 0);
    EXPECT_EQ(g_DataSet.m_dNcvReal, 0.0);
    for (const std::string* text : texts) EXPECT_EQ(*text, "");
    for (const bool valid : g_DataSet.m_bTableValid) EXPECT_TRUE(valid);
    for (const bool enabled : g_DataSet.m_bTableEnabled) EXPECT_FALSE(enabled);
    EXPECT_EQ(g_FooterOn + g_FooterDate + g_FooterTime + g_FooterVersion + g_FooterFileName, 0);
    EXPECT_EQ(g_ReportFormat, 0);
    EXPECT_TRUE(g_AllLoadCases);
    EXPECT_TRUE(g_DataLoaded);  // a second show of the dialog skips the load
}

TEST_F(DataSet, IsAKindOfObject) {
    EXPECT_TRUE(g_DataSet.IsKindOf(CObject::classCObject));
    EXPECT_STREQ(g_DataSet.GetRuntimeClass().m_pszName, "CDataSet");
}

TEST_F(DataSet, RowsOfPlainCasesAreLoadCases) {
    EXPECT_EQ(g_DataSet.GetLoadLabel(false, false), "Load Case");  // without any pier, too
    AddPier();
    EXPECT_EQ(g_DataSet.GetLoadLabel(false, false), "Load Case");
    EXPECT_EQ(g_DataSet.GetLoadLabel(true, true), "Load Cases");
}

TEST_F(DataSet, RowsOfCombinationsHaveAShortForm) {
    AddPier().m_bCombinations = true;
    EXPECT_EQ(g_DataSet.GetLoadLabel(false, false), "Load Combination");
    EXPECT_EQ(g_DataSet.GetLoadLabel(false, true), "Load Combinations");
    EXPECT_EQ(g_DataSet.GetLoadLabel(true, false), "Load Comb");
    EXPECT_EQ(g_DataSet.GetLoadLabel(true, true), "Load Combs");
}

TEST_F(DataSet, OnlyTheFirstPierTellsOfCombinations) {
    AddPier();
    AddPier().m_bCombinations = true;
    EXPECT_EQ(g_DataSet.GetLoadLabel(false, false), "Load Case");
}

TEST_F(DataSet, RowsOfAHistoryAreTimeStepsWhateverElse) {
    AddPier().m_bCombinations = true;
    g_DataSet.m_nAnalysisMode = 1;
    EXPECT_EQ(g_DataSet.GetLoadLabel(false, false), "Time Step");
    EXPECT_EQ(g_DataSet.GetLoadLabel(true, true), "Time Steps");
    g_DataSet.m_nAnalysisMode = 2;
    EXPECT_EQ(g_DataSet.GetLoadLabel(true, false), "Load Case");
}

TEST_F(DataSet, CountsTheTablesThatAreEnabled) {
    EXPECT_EQ(g_DataSet.ChosenTableCount(), 0U);
    g_DataSet.m_bTableEnabled[0] = g_DataSet.m_bTableEnabled[8] = true;
    EXPECT_EQ(g_DataSet.ChosenTableCount(), 2U);
}

TEST_F(DataSet, FindsExtraMembersAndTypesInAnyPier) {
    AddPier(0);
    AddPier(7);
    EXPECT_FALSE(g_DataSet.HasExtraMembers());
    g_DataSet.m_Piers[1].m_nExtraMembers = 1;
    EXPECT_TRUE(g_DataSet.HasExtraMembers());
    EXPECT_TRUE(g_DataSet.HasStructureType(7));
    EXPECT_TRUE(g_DataSet.HasStructureType(0));
    EXPECT_FALSE(g_DataSet.HasStructureType(3));
}

TEST_F(DataSet, KnowsTheSectionsOfExtraMembers) {
    CMemberCounts counts;
    counts.extraMembers = 2;
    AddPier().AllocateMembers(counts, 1);
    AddPier().AllocateMembers({}, 1);
    g_DataSet.m_Piers[0].Element(0).m_nSection = 7;
    g_DataSet.m_Piers[0].Element(1).m_nSection = 9;
    EXPECT_TRUE(g_DataSet.IsExtraMemberSection(0, 7));
    EXPECT_TRUE(g_DataSet.IsExtraMemberSection(0, 9));
    EXPECT_FALSE(g_DataSet.IsExtraMemberSection(0, 8));
    EXPECT_FALSE(g_DataSet.IsExtraMemberSection(1, 7));
    EXPECT_FALSE(g_DataSet.IsExtraMemberSection(2, 7));
}

TEST_F(DataSet, ALaterSectionFollowsAClassOfTheResistanceFactorFamily) {
    EXPECT_FALSE(g_DataSet.HasLaterSection(0, true));
    AddPier();
    SetClasses({0, 2});
    EXPECT_TRUE(g_DataSet.HasLaterSection(0, false));
    EXPECT_TRUE(g_DataSet.HasLaterSection(1, false));
    EXPECT_FALSE(g_DataSet.HasLaterSection(2, false));
    EXPECT_FALSE(g_DataSet.HasLaterSection(2, true));
    SetClasses({0, 1});
    EXPECT_TRUE(g_DataSet.HasLaterSection(0, false));
    EXPECT_FALSE(g_DataSet.HasLaterSection(1, false));
    SetClasses({0, 3});
    for (int limitClass = 0; limitClass < 3; ++limitClass) {
        EXPECT_FALSE(g_DataSet.HasLaterSection(limitClass, false)) << limitClass;
        EXPECT_TRUE(g_DataSet.HasLaterSection(limitClass, true)) << limitClass;
    }
    EXPECT_FALSE(g_DataSet.HasLaterSection(3, true));
    EXPECT_FALSE(g_DataSet.HasLaterSection(-1, true));
}

TEST_F(DataSet, ALaterSectionFollowsTheFirstClassOfTheTwoClassFamily) {
    AddPier();
    SetClasses({0, 1}, 2);
    EXPECT_TRUE(g_DataSet.HasLaterSection(0, false));
    EXPECT_FALSE(g_DataSet.HasLaterSection(1, false));
    SetClasses({0}, 2);
    EXPECT_FALSE(g_DataSet.HasLaterSection(0, true));
    for (const int family : {-1, 1}) {
        SetClasses({0, 1, 2, 3}, family);
        EXPECT_FALSE(g_DataSet.HasLaterSection(0, true)) << family;
    }
}

TEST_F(DataSet, OnePierHasTheTablesOfItsType) {
    const std::vector<std::pair<int, Tables>> expected{{0, {0, 1, 2, 3, 4, 5, 6, 8}},
                                                       {1, {0, 1, 5, 8}},
                                                       {2, {0, 1, 5, 8}},
                                                       {3, {0, 1, 2, 3, 4, 5, 6, 8}},
                                                       {4, {0, 1, 2, 5, 6, 8}},
                                                       {5, {0, 1, 2, 5, 6, 8}},
                                                       {6, {0, 1, 5, 8}},
                                                       {7, {0, 1, 3, 4, 5, 8}},
                                                       {8, {2, 6}}};
    for (const auto& [type, tables] : expected) {
        g_DataSet.Reset();
        AddPier(type);
        EXPECT_EQ(Enabled(), tables) << "type " << type;
    }
}

TEST_F(DataSet, OnePierWithNothingButFatigueKeepsItsMomentTable) {
    for (const auto& [type, tables] :
         std::vector<std::pair<int, Tables>>{{0, {4}}, {1, {}}, {3, {4}}, {4, {}}, {7, {4}}, {8, {}}}) {
        g_DataSet.Reset();
        AddPier(type).m_nExtraMembers = 1;
        SetClasses({3});
        EXPECT_EQ(Enabled(), tables) << "type " << type;
    }
}

TEST_F(DataSet, ExtraMembersBringTheirTable) {
    AddPier(1).m_nExtraMembers = 1;
    EXPECT_EQ(Enabled(), (Tables{0, 1, 5, 7, 8}));
}

TEST_F(DataSet, SeveralPiersHaveCapTablesWhateverTheirTypes) {
    AddPier(1);
    AddPier(8);
    EXPECT_EQ(Enabled(), (Tables{0, 1, 3, 4, 5, 8}));
    AddPier(0);
    EXPECT_EQ(Enabled(), (Tables{0, 1, 2, 3, 4, 5, 6, 8}));
    SetClasses({3});
    EXPECT_EQ(Enabled(), Tables{4});
}

TEST_F(DataSet, SeveralBentsKeepTheCapTablesAndLoseTheColumns) {
    AddPier(7);
    AddPier(7);
    EXPECT_EQ(Enabled(), (Tables{0, 1, 3, 4, 5, 8}));
}

TEST_F(DataSet, TheReportAndTheTitlePageAreNeverCounted) {
    AddPier(0).m_nExtraMembers = 1;
    EXPECT_EQ(Enabled(), (Tables{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(g_DataSet.ChosenTableCount(), 9U);
}

}  // namespace
