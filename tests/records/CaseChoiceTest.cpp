// SPDX-License-Identifier: MIT
#include "records/CaseChoice.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "support/Model.h"

namespace lumerin {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Five LRFD combinations: two of strength, a service, an extreme and a fatigue one.
class CaseChoiceTest : public testing::Test {
  protected:
    CaseChoiceTest() {
        PierShape shape;
        shape.cases = 5;
        shape.family = kFamilyLrfd;
        BuildPier(project.pier, shape);
        const char* states[] = {"STRENGTH-I", "STRENGTH-II", "SERVICE-I", "EXTREME-I", "FATIGUE-I"};
        const char* titles[] = {"live load left", "live load right", "wind", "ice", "truck"};
        const int classes[] = {kStrength, kStrength, kService, kExtreme, kFatigue};
        for (std::size_t c = 0; c < 5; ++c) {
            project.pier.m_LoadCases[c].m_sLimitState = states[c];
            project.pier.m_LoadCases[c].m_sName = titles[c];
            SetClass(project.pier, static_cast<int>(c), classes[c]);
        }
    }
    // Numbers of the chosen cases, from 1.
    std::vector<int> Chosen(const CaseChoice& choice) {
        const CaseSelection selection = Select(project.data, choice);
        std::vector<int> numbers;
        for (int c = 0; c < selection.CaseCount(); ++c) {
            if (selection.IsCaseSelected(c)) numbers.push_back(c + 1);
        }
        return numbers;
    }
    std::vector<int> Chosen(const std::string& cases, const std::string& classes = "") {
        CaseChoice choice;
        if (!cases.empty()) ReadCases(cases, choice);
        if (!classes.empty()) ReadClasses(classes, choice);
        return Chosen(choice);
    }
    OnePier project;
};

std::string FaultOf(const std::string& text) {
    try {
        CaseChoice choice;
        ReadCases(text, choice);
    } catch (const std::invalid_argument& fault) {
        return fault.what();
    }
    return {};
}

TEST_F(CaseChoiceTest, NothingGivenChoosesEveryCase) {
    EXPECT_THAT(Chosen(CaseChoice()), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(CaseChoiceTest, NumbersRangesAndPatternsAreAddedUp) {
    EXPECT_THAT(Chosen("1,3-4"), ElementsAre(1, 3, 4));
    EXPECT_THAT(Chosen("STRENGTH-*"), ElementsAre(1, 2));
    EXPECT_THAT(Chosen("strength-i"), ElementsAre(1));
    EXPECT_THAT(Chosen("5,*-I"), ElementsAre(1, 3, 4, 5));
    EXPECT_THAT(Chosen("?IND"), ElementsAre(3));
    EXPECT_THAT(Chosen("live*RIGHT"), ElementsAre(2));
}

TEST_F(CaseChoiceTest, AClassNarrowsWhatIsChosen) {
    EXPECT_THAT(Chosen("", "Strength,fatigue"), ElementsAre(1, 2, 5));
    EXPECT_THAT(Chosen("2-4", "strength,extreme"), ElementsAre(2, 4));
}

TEST_F(CaseChoiceTest, TheFirstCaseOfAClassIsThatOfTheChoice) {
    CaseChoice choice;
    ReadCases("2-3", choice);
    const CaseSelection selection = Select(project.data, choice);
    EXPECT_EQ(selection.FirstOfClass(kStrength), 1);
    EXPECT_FALSE(selection.IsClassPresent(kFatigue));
}

TEST_F(CaseChoiceTest, ANumberBeyondTheLastCaseAndAnEmptyChoiceAreFaults) {
    EXPECT_THROW(Chosen("6"), std::invalid_argument);
    EXPECT_THROW(Chosen("4-6"), std::invalid_argument);
    EXPECT_THROW(Chosen("GROUP-*"), std::invalid_argument);
    EXPECT_THROW(Chosen("1", "service"), std::invalid_argument);
}

TEST_F(CaseChoiceTest, TextsThatAreNoListAreFaultsThatNameThePart) {
    EXPECT_EQ(FaultOf(""), "the list of cases is empty");
    EXPECT_EQ(FaultOf("1,,2"), "\"1,,2\" has an empty part");
    EXPECT_EQ(FaultOf("0"), "\"0\" is not the number of a case");
    EXPECT_EQ(FaultOf("-3"), "\"-3\" is not the number of a case");
    EXPECT_EQ(FaultOf("1-2-3"), "\"1-2-3\" is not the number of a case");
    EXPECT_EQ(FaultOf("9-5"), "the range 9-5 runs backwards");
    EXPECT_EQ(FaultOf("99999999999"), "\"99999999999\" is not the number of a case");
    CaseChoice choice;
    EXPECT_THROW(ReadClasses("strong", choice), std::invalid_argument);
}

TEST_F(CaseChoiceTest, TheClassesOfTheCodesHaveTheirOwnNames) {
    EXPECT_EQ(ClassName(kFamilyLrfd, kExtreme), "extreme");
    EXPECT_EQ(ClassName(kFamilyArema, kStrength), "load factor design");
    EXPECT_EQ(ClassName(kFamilyArema, kService), "service load design");
    EXPECT_THAT(ClassName(kFamilyArema, kFatigue), IsEmpty());
    EXPECT_THAT(ClassName(kFamilyLfd, kStrength), IsEmpty());
    EXPECT_EQ(ClassNameOf(project.data, 4), "fatigue");
    project.pier.m_bCombinations = false;
    EXPECT_THAT(ClassNameOf(project.data, 4), IsEmpty());
}

// A pattern of many stars ends in a time that its length bounds.
TEST_F(CaseChoiceTest, APatternOfManyStarsIsHeldAgainstALongTitleAtOnce) {
    project.pier.m_LoadCases[0].m_sName = std::string(400, 'a');
    std::string pattern;
    for (int i = 0; i < 30; ++i) pattern += "a*";
    EXPECT_THROW(Chosen(pattern + "b"), std::invalid_argument);
    EXPECT_THAT(Chosen(pattern), ElementsAre(1));
}

}  // namespace

}  // namespace lumerin
