// SPDX-License-Identifier: MIT
#include "cli/PlotCommand.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "cli/EmbedmentCommand.h"
#include "support/ProgramRun.h"
#include "support/RecordsProject.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

ProgramRun Plot(const PlotRequest& request) {
    return RunCommand([&](std::ostream& out, std::ostream& err) { return RunPlot(request, out, err); });
}

PlotRequest RequestOf(const std::string& project, const std::string& figure) {
    PlotRequest request;
    request.project = project;
    request.figure = figure;
    return request;
}

}  // namespace

TEST(Plot, APictureGoesToStandardOutputAlone) {
    const SampleFolder folder;
    const ProgramRun outcome = Plot(RequestOf(folder.Write("bent"), "cap-moment"));
    EXPECT_EQ(outcome.status, kExitDone);
    EXPECT_THAT(outcome.out, StartsWith("<svg "));
    EXPECT_THAT(outcome.out, HasSubstr("bent.in, substructure 1 (pile bent), all 18 cases"));
    EXPECT_THAT(outcome.err, IsEmpty());
}

TEST(Plot, AFileIsWrittenWholeAndNamed) {
    const SampleFolder folder;
    PlotRequest request = RequestOf(folder.Write("bent"), "dc");
    request.output = (folder.Path() / "dc.svg").string();
    const ProgramRun outcome = Plot(request);
    EXPECT_EQ(outcome.out, request.output + "\n");
    EXPECT_GT(std::filesystem::file_size(request.output), 1000U);
    request.output = (folder.Path() / "none" / "dc.svg").string();
    EXPECT_EQ(Plot(request).status, kExitIncomplete);
}

TEST(Plot, OfSeveralSubstructuresOneMustBeNamed) {
    const SampleFolder folder;
    PlotRequest request = RequestOf(folder.Write("bridge"), "pile-heads");
    EXPECT_THROW(Plot(request), std::invalid_argument);
    request.drawing.substructure = 4;
    EXPECT_THROW(Plot(request), std::invalid_argument);
    request.drawing.substructure = 3;
    EXPECT_THAT(Plot(request).out, HasSubstr("substructure 3 of 3 (pile group)"));
}

TEST(Plot, AnUnknownFigureIsWrongUsageAndAMissingProjectStatusThree) {
    EXPECT_THROW(Plot(RequestOf("none", "cap-torsion")), std::invalid_argument);
    const ProgramRun outcome = Plot(RequestOf("none", "dc"));
    EXPECT_EQ(outcome.status, kExitNotLoaded);
    EXPECT_EQ(outcome.err, "none.in: no project none.in\n");
}

// The limit and the choice of cases are those of `check`.
TEST(Plot, LimitAndCasesAreNamed) {
    const SampleFolder folder;
    PlotRequest request = RequestOf(folder.Write("bent"), "dc");
    request.limits.ratio = 0.9;
    ReadCases("1-6", request.cases);
    const ProgramRun outcome = Plot(request);
    EXPECT_THAT(outcome.out, HasSubstr("limit 0.9"));
    EXPECT_THAT(outcome.out, HasSubstr("6 of 18 cases"));
    EXPECT_THAT(outcome.out, HasSubstr("1.022 over the limit, pile 2 head, case 6 LFD-GROUP-V"));
}

TEST(Plot, DataAreTheRowsOfTheSubstructure) {
    const SampleFolder folder;
    // All three substructures have piles.
    PlotRequest request = RequestOf(folder.Write("bridge"), "pile-heads");
    request.drawing.substructure = 2;
    request.data = true;
    const ProgramRun outcome = Plot(request);
    std::istringstream lines(outcome.out);
    std::string line;
    std::getline(lines, line);
    EXPECT_THAT(line, StartsWith("project,substructure,pile,element,case,"));
    int rows = 0;
    while (std::getline(lines, line)) {
        EXPECT_THAT(line, HasSubstr("bridge,2,"));
        ++rows;
    }
    EXPECT_GT(rows, 20);
}

// The rows of the element's end alone, a row a case.
TEST(Plot, DataOfACaseScanAreTheRowsOfOneEnd) {
    const SampleFolder folder;
    PlotRequest request = RequestOf(folder.Write("bent"), "case-scan");
    request.data = true;
    request.drawing.element = 4;
    request.drawing.end = kEndJ;
    const ProgramRun outcome = Plot(request);
    std::istringstream lines(outcome.out);
    std::string line;
    std::getline(lines, line);
    int rows = 0;
    while (std::getline(lines, line)) {
        EXPECT_THAT(line, testing::ContainsRegex("bent,1,[0-9]+,4,[a-z_]+,[0-9]+,J,"));
        ++rows;
    }
    EXPECT_EQ(rows, 18);
}

TEST(Plot, TheCurveOfTheStudyIsThatOfTheEmbedmentCommand) {
    const SampleFolder folder;
    const std::string base = folder.Write("pier");
    PlotRequest request = RequestOf(base, "embedment");
    request.drawing.study = {.quantity = kMaxAxial, .loadCase = 3, .envelope = 1, .hasCase = true};
    EmbedmentOptions options;
    options.project = base + ".in";
    options.view = request.drawing.study;
    options.picture = (folder.Path() / "curve.svg").string();
    std::ostringstream out, err;
    EXPECT_EQ(RunEmbedment(options, out, err), kExitDone);
    std::ifstream file(options.picture);
    const std::string expected{std::istreambuf_iterator<char>(file), {}};
    EXPECT_THAT(expected, HasSubstr("Min Envelope, Load Comb 3 - Embedment vs Max Axial Force"));
    EXPECT_EQ(Plot(request).out, expected);
    request.drawing.study.loadCase = 27;
    EXPECT_THROW(Plot(request), std::invalid_argument);
    EXPECT_THAT(Plot(RequestOf(folder.Write("bent"), "embedment")).out,
                HasSubstr("The project has no embedment study."));
}

// Both envelopes of one chosen case are the curve of that case; case 1 is greater or less than it.
TEST(Plot, TheCurveOfTheStudyFollowsTheChosenCases) {
    const SampleFolder folder;
    PlotRequest request = RequestOf(folder.Write("pier"), "embedment");
    const auto curve = [&request] {
        const std::string svg = Plot(request).out;
        return svg.substr(svg.find("<polyline"));
    };
    request.drawing.study = {.loadCase = 2};
    const std::string single = curve();
    for (const int envelope : {0, 1}) {
        request.drawing.study = {.envelope = envelope};
        request.cases = {};
        EXPECT_NE(curve(), single);
        ReadCases("2", request.cases);
        EXPECT_EQ(curve(), single);
    }
}

TEST(Plot, UnsoundDataAreStatusFourAndTheFigureIsThere) {
    RecordsProject project;
    project.cases = 3;
    project.Set(0, 1, kRatioJ, 0.5F);
    project.WriteAll();
    std::filesystem::resize_file(project.Path(".vmd"), 7 * 68);
    const ProgramRun outcome = Plot(RequestOf(project.Base(), "pile-heads"));
    EXPECT_EQ(outcome.status, kExitUnsound);
    EXPECT_THAT(outcome.out, StartsWith("<svg "));
    EXPECT_THAT(outcome.err, HasSubstr("error: missing-records"));
}

}  // namespace lumerin
