// SPDX-License-Identifier: MIT
// Which cases take part in the tables, and the limit classes that have one.
#include "model/CaseSelection.h"

#include <gtest/gtest.h>

#include "support/Model.h"

namespace lumerin {

namespace {

// A project of one substructure of a design family, with cases of the classes given.
class Classes : public OnePier {
  public:
    Classes(CodeFamily family, const std::vector<int>& classes) {
        BuildPier(pier, {.cases = static_cast<int>(classes.size()), .family = family});
        for (std::size_t c = 0; c < classes.size(); ++c) SetClass(pier, static_cast<int>(c), classes[c]);
    }
};

TEST(CaseSelection, CanBeSetCaseByCase) {
    const OnePier project({.cases = 3});
    EXPECT_FALSE(CaseSelection().IsCaseSelected(0));
    CaseSelection selection(project.data);
    selection.SetCaseSelected(1, false);
    EXPECT_TRUE(selection.IsCaseSelected(0));
    EXPECT_FALSE(selection.IsCaseSelected(1));
    EXPECT_TRUE(selection.IsCaseSelected(2));
}

TEST(CaseSelection, OutsideTheCasesIsNothing) {
    const OnePier project({.cases = 2});
    CaseSelection selection(project.data);
    selection.SetCaseSelected(2, true);
    selection.SetCaseSelected(-1, true);
    EXPECT_FALSE(selection.IsCaseSelected(2));
    EXPECT_FALSE(selection.IsCaseSelected(-1));
    selection = CaseSelection(OnePier({.cases = -4}).data);
    EXPECT_FALSE(selection.IsCaseSelected(0));
}

TEST(CaseSelection, HoldsAsManyCasesAsAnySubstructureHas) {
    OnePier project({.cases = 2});
    BuildPier(project.data.m_Piers.emplace_back(), {.cases = 3});
    const CaseSelection selection(project.data);
    EXPECT_EQ(selection.CaseCount(), 3);
    EXPECT_TRUE(selection.IsCaseSelected(2));
    // The dialogs list the cases of the first substructure alone.
    EXPECT_TRUE(selection.IsFirstPierCaseSelected(project.data, 1));
    EXPECT_FALSE(selection.IsFirstPierCaseSelected(project.data, 2));
    EXPECT_FALSE(selection.IsFirstPierCaseSelected(project.data, -1));
    EXPECT_FALSE(selection.IsFirstPierCaseSelected(CDataSet(), 0));
}

TEST(CaseSelection, FindsTheFirstSelectedCaseOfEachClass) {
    const Classes project(kFamilyLrfd, {kExtreme, kStrength, kExtreme, kStrength, 4, -1});
    CaseSelection selection(project.data);
    EXPECT_EQ(selection.FirstOfClass(kStrength), 1);
    EXPECT_EQ(selection.FirstOfClass(kService), -1);
    EXPECT_EQ(selection.FirstOfClass(kExtreme), 0);
    EXPECT_EQ(selection.FirstOfClass(kFatigue), -1);
    selection.SetCaseSelected(0, false);
    EXPECT_EQ(selection.FirstOfClass(kExtreme), 0);  // found only by the explicit call
    selection.FindFirstCases(project.data);
    EXPECT_EQ(selection.FirstOfClass(kExtreme), 2);
    selection.SetCaseSelected(2, false);
    selection.FindFirstCases(project.data);
    EXPECT_EQ(selection.FirstOfClass(kExtreme), -1);
    EXPECT_EQ(selection.FirstOfClass(kStrength), 1);
}

TEST(CaseSelection, HasTheClassesOfTheFirstSubstructuresFamily) {
    EXPECT_EQ(CaseSelection(Classes(kFamilyArema, {kExtreme, kService}).data).FirstOfClass(kService), 1);
    EXPECT_EQ(CaseSelection(Classes(kFamilyArema, {kExtreme, kService}).data).FirstOfClass(kExtreme), -1);
    for (const CodeFamily family : {kFamilyNone, kFamilyLfd, CodeFamily{3}}) {
        EXPECT_EQ(CaseSelection(Classes(family, {kStrength}).data).FirstOfClass(kStrength), -1) << family;
    }
    EXPECT_EQ(CaseSelection(CDataSet()).FirstOfClass(kStrength), -1);
    Classes first(kFamilyLrfd, {kStrength});
    SetClass(first.pier, 0, kService);
    BuildPier(first.data.m_Piers.emplace_back(), {.cases = 1, .family = kFamilyLrfd});
    EXPECT_EQ(CaseSelection(first.data).FirstOfClass(kStrength), -1);
}

TEST(LimitClasses, ArePresentWithAFirstCase) {
    const CaseSelection selection = SelectionWithClasses({1});
    EXPECT_TRUE(selection.IsClassPresent(LimitClass{1}));
    EXPECT_FALSE(selection.IsClassPresent(LimitClass{0}));
    EXPECT_FALSE(selection.IsClassPresent(LimitClass{-1}));
    EXPECT_FALSE(selection.IsClassPresent(LimitClass{4}));
}

TEST(CaseSelection, CountsTheSelectedCasesAmongTheFirst) {
    OnePier project({.cases = 4});
    CaseSelection selection(project.data);
    EXPECT_EQ(selection.SelectedCount(4), 4);
    selection.SetCaseSelected(1, false);
    EXPECT_EQ(selection.SelectedCount(1), 1);
    EXPECT_EQ(selection.SelectedCount(2), 1);
    // More than there are, and none.
    EXPECT_EQ(selection.SelectedCount(9), 3);
    EXPECT_EQ(selection.SelectedCount(-1), 0);
}

TEST(LimitClasses, ACaseIsSearchedInItsClassOrWithoutCombinationsInTheFirstSlot) {
    OnePier project({.cases = 2});
    SetClass(project.pier, 0, kExtreme);
    EXPECT_EQ(project.pier.SlotOf(0), 0);
    EXPECT_EQ(project.pier.SlotOf(1), 0);
    project.pier.m_bCombinations = true;
    EXPECT_EQ(project.pier.SlotOf(0), kExtreme);
    EXPECT_EQ(project.pier.SlotOf(1), kStrength);
}

}  // namespace

}  // namespace lumerin
