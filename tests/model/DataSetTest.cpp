// SPDX-License-Identifier: MIT
// What the data set returns for the project: words, sections and the tables that apply.
#include "model/DataSet.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "model/Applicability.h"
#include "support/Model.h"

namespace lumerin {

namespace {

class DataSet : public testing::Test {
  protected:
    CPier& AddPier(int type = kTypePier) {
        CPier& pier = data.m_Piers.emplace_back();
        pier.m_nStructureType = StructureType{type};
        data.m_nStructureType = StructureType{type};  // the last read one's
        data.m_nPiers = static_cast<int>(data.m_Piers.size());
        return pier;
    }
    void SetClasses(const std::vector<int>& classes, int family = kFamilyLrfd) {
        CPier& pier = data.FirstPier();
        pier.m_nCodeFamily = CodeFamily{family};
        pier.m_bCombinations = true;
        selection = SelectionWithClasses(classes);
    }
    bool HasLaterSection(int limitClass, bool includeFatigue) const {
        return data.HasLaterSection(selection, LimitClass{limitClass}, includeFatigue);
    }
    std::set<int> Enabled() const {
        const TableFlags enabled = ApplicableTables(data, selection);
        std::set<int> tables;
        for (int k = 0; k < kTableCount; ++k) {
            if (enabled[TableId{k}]) tables.insert(k);
        }
        return tables;
    }

    CDataSet data;
    CaseSelection selection;
};

using Tables = std::set<int>;

// Every count of a data set.
std::vector<int*> CountsOf(CDataSet& data) {
    return {
        &data.m_nAnalysisMode, &data.m_nNcvInteger,      &data.m_nUnits,          &data.m_nPilesFromNodes,
        &data.m_nExtraMembers, &data.m_nXMemberSections, &data.m_nSpanNodes,      &data.m_nCantileverNodes,
        &data.m_nColumnNodes,  &data.m_nColumnSections,  &data.m_nColumns,        &data.m_nCantilevers,
        &data.m_nElementGaps,  &data.m_nPlfExtraCount,   &data.m_nPileNodesTotal, &data.m_nPileElements,
        &data.m_nElements,     &data.m_nPilTableSize,    &data.m_nSectionRecords, &data.m_nSectionBlocks,
        &data.m_nPiers,        &data.m_nPiles,           &data.m_nPileNodes,      &data.m_nLoadCases};
}

TEST_F(DataSet, ANewOneIsEmpty) {
    CDataSet fresh;
    EXPECT_TRUE(fresh.IsPierless());
    EXPECT_EQ(fresh.m_dNcvReal, 0.0);
    for (const int* count : CountsOf(fresh)) EXPECT_EQ(*count, 0);
}

TEST_F(DataSet, ResetReturnsToTheFirstState) {
    AddPier();
    for (int* count : CountsOf(data)) *count = 9;
    data.m_nStructureType = kTypePileBent;
    data.m_dNcvReal = 1.5;
    std::string* const texts[] = {&data.m_sForceUnit, &data.m_sMomentUnit, &data.m_sProjectN,
                                  &data.m_sProjectT,  &data.m_sProjectC,   &data.m_sProjectD};
    for (std::string* text : texts) *text = "kN";
    data.Reset();
    EXPECT_TRUE(data.IsPierless());
    for (const int* count : CountsOf(data)) EXPECT_EQ(*count, 0);
    EXPECT_EQ(data.m_nStructureType, kTypePier);
    EXPECT_EQ(data.m_dNcvReal, 0.0);
    for (const std::string* text : texts) EXPECT_EQ(*text, "");
}

TEST_F(DataSet, IsAKindOfObject) {
    EXPECT_TRUE(data.IsKindOf(CObject::classCObject));
    EXPECT_STREQ(data.GetRuntimeClass().m_pszName, "CDataSet");
}

TEST_F(DataSet, RowsOfPlainCasesAreLoadCases) {
    EXPECT_EQ(data.GetLoadLabel(false, false), "Load Case");  // without any pier, too
    AddPier();
    EXPECT_EQ(data.GetLoadLabel(false, false), "Load Case");
    EXPECT_EQ(data.GetLoadLabel(true, true), "Load Cases");
}

TEST_F(DataSet, RowsOfCombinationsHaveAShortForm) {
    AddPier().m_bCombinations = true;
    EXPECT_EQ(data.GetLoadLabel(false, false), "Load Combination");
    EXPECT_EQ(data.GetLoadLabel(false, true), "Load Combinations");
    EXPECT_EQ(data.GetLoadLabel(true, false), "Load Comb");
    EXPECT_EQ(data.GetLoadLabel(true, true), "Load Combs");
}

TEST_F(DataSet, OnlyTheFirstPierDecidesOnCombinations) {
    AddPier();
    AddPier().m_bCombinations = true;
    EXPECT_EQ(data.GetLoadLabel(false, false), "Load Case");
}

TEST_F(DataSet, RowsOfAHistoryAreTimeStepsWhateverElse) {
    AddPier().m_bCombinations = true;
    data.m_nAnalysisMode = 1;
    EXPECT_EQ(data.GetLoadLabel(false, false), "Time Step");
    EXPECT_EQ(data.GetLoadLabel(true, true), "Time Steps");
    data.m_nAnalysisMode = 2;
    EXPECT_EQ(data.GetLoadLabel(true, false), "Load Case");
}

TEST_F(DataSet, CountsTheTablesThatAreEnabled) {
    TableFlags enabled;
    EXPECT_EQ(CountTables(enabled), 0U);
    enabled[kTableMaxAxial] = enabled[kTablePileHeads] = true;
    EXPECT_EQ(CountTables(enabled), 2U);
}

TEST_F(DataSet, FindsExtraMembersAndTypesInAnyPier) {
    AddPier(0);
    AddPier(7);
    EXPECT_FALSE(data.HasExtraMembers());
    data.m_Piers[1].m_nExtraMembers = 1;
    EXPECT_TRUE(data.HasExtraMembers());
    EXPECT_TRUE(data.HasStructureType(kTypePileBent));
    EXPECT_TRUE(data.HasStructureType(kTypePier));
    EXPECT_FALSE(data.HasStructureType(kTypeMast));
}

TEST_F(DataSet, KnowsTheSectionsOfExtraMembers) {
    CMemberCounts counts;
    counts.extraMembers = 2;
    AddPier().AllocateMembers(counts, 1);
    AddPier().AllocateMembers({}, 1);
    data.m_Piers[0].Element(0).m_nSection = 7;
    data.m_Piers[0].Element(1).m_nSection = 9;
    EXPECT_TRUE(data.IsExtraMemberSection(0, 7));
    EXPECT_TRUE(data.IsExtraMemberSection(0, 9));
    EXPECT_FALSE(data.IsExtraMemberSection(0, 8));
    EXPECT_FALSE(data.IsExtraMemberSection(1, 7));
    EXPECT_FALSE(data.IsExtraMemberSection(2, 7));
}

TEST_F(DataSet, ALaterSectionFollowsAClassOfTheResistanceFactorFamily) {
    EXPECT_FALSE(HasLaterSection(0, true));
    AddPier();
    SetClasses({0, 2});
    EXPECT_TRUE(HasLaterSection(0, false));
    EXPECT_TRUE(HasLaterSection(1, false));
    EXPECT_FALSE(HasLaterSection(2, false));
    EXPECT_FALSE(HasLaterSection(2, true));
    SetClasses({0, 1});
    EXPECT_TRUE(HasLaterSection(0, false));
    EXPECT_FALSE(HasLaterSection(1, false));
    SetClasses({0, 3});
    for (int limitClass = 0; limitClass < 3; ++limitClass) {
        EXPECT_FALSE(HasLaterSection(limitClass, false)) << limitClass;
        EXPECT_TRUE(HasLaterSection(limitClass, true)) << limitClass;
    }
    EXPECT_FALSE(HasLaterSection(3, true));
    EXPECT_FALSE(HasLaterSection(-1, true));
}

TEST_F(DataSet, ALaterSectionFollowsTheFirstClassOfTheTwoClassFamily) {
    AddPier();
    SetClasses({0, 1}, 2);
    EXPECT_TRUE(HasLaterSection(0, false));
    EXPECT_FALSE(HasLaterSection(1, false));
    SetClasses({0}, 2);
    EXPECT_FALSE(HasLaterSection(0, true));
    for (const int family : {-1, 1}) {
        SetClasses({0, 1, 2, 3}, family);
        EXPECT_FALSE(HasLaterSection(0, true)) << family;
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
        data.Reset();
        AddPier(type);
        EXPECT_EQ(Enabled(), tables) << "type " << type;
    }
}

TEST_F(DataSet, OnePierWithNothingButFatigueKeepsItsMomentTable) {
    for (const auto& [type, tables] :
         std::vector<std::pair<int, Tables>>{{0, {4}}, {1, {}}, {3, {4}}, {4, {}}, {7, {4}}, {8, {}}}) {
        data.Reset();
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
    EXPECT_EQ(CountTables(ApplicableTables(data, selection)), 9U);
}

}  // namespace

}  // namespace lumerin
