// SPDX-License-Identifier: MIT
#include "figures/CaseScan.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <stdexcept>

#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using testing::HasSubstr;
using testing::Not;

const FigureKind& Kind() {
    return *FindFigure("case-scan");
}

FigureRequest OfElement(int element, int end = -1) {
    FigureRequest request;
    request.element = element;
    request.end = end;
    return request;
}

std::size_t CountOf(const std::string& text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

}  // namespace

// Records 1 to 4 are the elements 2 to 5 of the piles; element 4 is the first of pile 2.
TEST(CaseScan, TheWorstElementAndItsWorseEndAreTheDefault) {
    RecordsProject project;
    project.Set(1, 3, kRatioI, 1.25F);
    project.Set(0, 3, kRatioJ, 0.5F);
    project.Set(0, 1, kRatioJ, 1.0F);
    project.WriteAll();
    const Evaluation& evaluation = project.Evaluate(Kind().needs);
    EXPECT_EQ(EndOf(evaluation, {}).identity->number, 4);
    EXPECT_EQ(EndOf(evaluation, {}).end, kEndI);
    EXPECT_EQ(EndOf(evaluation, OfElement(2)).end, kEndJ);
    EXPECT_EQ(EndOf(evaluation, OfElement(2, kEndI)).end, kEndI);
    const CaseScan scan = ScanCases(evaluation, 0, EndOf(evaluation, {}));
    ASSERT_EQ(scan.classes.size(), 1U);
    ASSERT_EQ(scan.classes[0].cases.size(), 2U);
    EXPECT_EQ(scan.classes[0].cases[0].values[kDemandCapacity], 0.0F);
    EXPECT_EQ(scan.classes[0].cases[1].values[kDemandCapacity], 1.25F);
    EXPECT_THAT(Kind().draw(evaluation, {}), HasSubstr("Element 4 end I (pile 2 element 4 end I)"));
    EXPECT_THAT(Kind().draw(evaluation, {}), HasSubstr("1.250 over the limit, case 2<"));
}

TEST(CaseScan, AnElementThatIsNotThereIsWrongUsage) {
    RecordsProject project;
    project.WriteAll();
    const Evaluation& evaluation = project.Evaluate(Kind().needs);
    EXPECT_THROW(EndOf(evaluation, OfElement(99)), std::invalid_argument);
    // The masked element of the bridge's first cap.
    const SampleFolder folder;
    const auto opened = LoadByName(ProjectName(folder.Write("bridge")));
    const Evaluation bridge(*opened, {}, {}, Kind().needs);
    try {
        EndOf(bridge, OfElement(26));
        ADD_FAILURE();
    } catch (const std::invalid_argument& fault) {
        EXPECT_STREQ(fault.what(), "element 26 in substructure 1 is masked and has no forces");
    }
}

// The pier's cases in the order of the file: 1 to 10 strength, 11 to 14 extreme, 15 to 22 service, 23 to 26
// fatigue.
TEST(CaseScan, ClassesAreApartAndTheirCasesInOrder) {
    const SampleFolder folder;
    const auto opened = LoadByName(ProjectName(folder.Write("pier")));
    CaseChoice choice;
    ReadCases("2-12,20", choice);
    const Evaluation evaluation(*opened, choice, {}, Kind().needs);
    const CaseScan scan = ScanCases(evaluation, 0, EndOf(evaluation, {}));
    std::string text;
    for (const ScannedClass& here : scan.classes) {
        text += here.name + ":";
        for (const ScannedCase& scanned : here.cases) text += " " + std::to_string(scanned.loadCase + 1);
        text += "; ";
    }
    EXPECT_EQ(text, "strength: 2 3 4 5 6 7 8 9 10; service: 20; extreme: 11 12; ");
}

// The file ends inside case 2: its records are no zeros.
TEST(CaseScan, ACaseWithoutARecordHasNoValue) {
    RecordsProject project;
    project.Set(0, 3, kRatioJ, 0.5F);
    project.WriteAll();
    std::filesystem::resize_file(project.Path(".vmd"), 6 * 68);
    const Evaluation& evaluation = project.Evaluate(Kind().needs);
    const std::string svg = Kind().draw(evaluation, {});
    EXPECT_THAT(svg, HasSubstr("1 cases have no record"));
    EXPECT_THAT(svg, Not(HasSubstr("case 2: ")));
}

// 2,001 cases on 852 pixels: each panel has one box a column of pixels, and the peak is among them.
TEST(CaseScan, ManyCasesAreDrawnAsLeastAndGreatestAPixel) {
    RecordsProject project;
    project.cases = 2001;
    for (int c = 0; c < 2001; ++c) project.Set(c, 3, kRatioJ, c == 1234 ? 0.9F : 0.1F);
    project.WriteAll();
    const Evaluation& evaluation = project.Evaluate(Kind().needs);
    const std::string svg = Kind().draw(evaluation, {});
    EXPECT_THAT(svg, HasSubstr(">0.900, case 1235<"));
    EXPECT_EQ(CountOf(svg, "width=\"1\" height="), 7U * 852U);
    EXPECT_EQ(CountOf(svg, "<polyline"), 0U);
}

}  // namespace lumerin
