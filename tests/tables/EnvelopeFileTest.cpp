// SPDX-License-Identifier: MIT
#include "tables/EnvelopeFile.h"

#include <gmock/gmock.h>

#include "support/ReportFixture.h"
#include "support/Searches.h"

namespace lumerin {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class EnvelopeFile : public ReportTest {
  protected:
    // Searches the model's cap tables and takes the substructure over with them.
    void Add(SearchedCap& model) {
        model.ComputeShear();
        model.ComputeMoment();
        data.m_Piers.push_back(std::move(model.pier));
        data.m_nPiers = static_cast<int>(data.m_Piers.size());
        results.piers.push_back(std::move(model.results));
        selection = CaseSelection(data);
    }
    std::string Write() {
        StoredStream out(Path());
        WriteEnvelopeFile(MakeReport(), out);
        out.Close();
        return StoredBytes();
    }
    std::vector<std::string> Lines() {
        const std::string text = Write();
        std::vector<std::string> lines;
        std::size_t begin = 0;
        for (std::size_t end = 0; (end = text.find("\r\n", begin)) != std::string::npos; begin = end + 2) {
            lines.push_back(text.substr(begin, end - begin));
        }
        EXPECT_EQ(begin, text.size()) << "the file ends with a line end";
        return lines;
    }
    // The lines of the block of that name, without its name and its end.
    std::vector<std::string> Block(const std::string& name) {
        const std::vector<std::string> lines = Lines();
        std::vector<std::string> block;
        bool inside = false;
        for (const std::string& line : lines) {
            if (inside && line == ":") break;
            if (inside) block.push_back(line);
            inside = inside || line == name;
        }
        return block;
    }
    std::vector<std::string> BlockNames() {
        std::vector<std::string> names;
        for (const std::string& line : Lines()) {
            if (line.find("_PIER") != std::string::npos) names.push_back(line);
        }
        return names;
    }
};

// Columns at 10 and 30, substructure at 4, a bearing over the first column. Element 21 runs from 10 to 20, 22
// on to 30. The second case has no forces.
class TwoCaseModel : public SearchedCap {
  public:
    TwoCaseModel() : SearchedCap(Shape()) {
        Set(0, 0, kF22, 100, 50);
        Set(0, 1, kF22, -20, -30);
        Set(0, 0, kM33, 7, 0);
        pier.m_dLocationX = 4;
    }

  private:
    static CapShape Shape() {
        CapShape shape = TwoColumnsWithoutCantilevers();
        shape.cases = 2;
        shape.bearingNodes = {{5}};
        return shape;
    }
};

TEST_F(EnvelopeFile, PlainCasesInUsUnits) {
    TwoCaseModel model;
    Add(model);
    data.m_sProjectN = "Bridge & <1>";
    data.m_sProjectD = "Department";
    data.m_sProjectC = "Checker";
    // (10 - 4) / 12 = 0.5, (12 - 4) / 12 = 0.667, (28 - 4) / 12 = 2, (30 - 4) / 12 = 2.167. Shear at 12 is
    // 100 - 50 / 5 = 90, at 28 it is -20 - 10 * 4 / 5 = -28; the moment at 12 is 7 - 7 / 5 = 5.6. No element
    // ends at the first column, so the centreline's left side is missing; the bearing there passes the left
    // side's test by the element that starts and fails the right side's, as no element ends.
    std::string expected =
        "GENERAL\nU= 0\nP= 1\nA= 0\nT= 0\n:\n\n"
        "PROJECTDATA\nBridge & <1>\nDepartment\n\nChecker\n:\n\n"
        "STRUCTURETYPE\nS= 0 N= 6 M= 5 B= 1\n:\n\n"
        "SHEAR_MAX_PIER0\n"
        "L=  1 LCL      C=             0.50 E= 0            F=             0.00\n"
        "L=  1 RCL      C=             0.50 E= 0            F=           100.00\n"
        "L= Brg 1 L     C=             0.50 E= 0            F=             0.00\n"
        "L= Brg 1 R     C=             0.50none\n"
        "L=  1 RF       C=             0.67 E= 0            F=            90.00\n"
        "L=  2 LF       C=             2.00 E= 1            F=             0.00\n"
        ":\n\n"
        "SHEAR_MIN_PIER0\n"
        "L=  1 LCL      C=             0.50 E= 0            F=             0.00\n"
        "L=  1 RCL      C=             0.50 E= 1            F=             0.00\n"
        "L= Brg 1 L     C=             0.50 E= 0            F=             0.00\n"
        "L= Brg 1 R     C=             0.50none\n"
        "L=  1 RF       C=             0.67 E= 1            F=             0.00\n"
        "L=  2 LF       C=             2.00 E= 0            F=           -28.00\n"
        ":\n\n"
        "MOMENT_MAX_PIER0\n"
        "L=  1 CL       C=             0.50 E= 0            F=             7.00\n"
        "L= Brg 1       C=             0.50 E= 0            F=             7.00\n"
        "L=  1 RF       C=             0.67 E= 0            F=             5.60\n"
        "L=  2 LF       C=             2.00 E= 0            F=             0.00\n"
        "L=  2 CL       C=             2.17 E= 0            F=             0.00\n"
        ":\n\n"
        "MOMENT_MIN_PIER0\n"
        "L=  1 CL       C=             0.50 E= 1            F=             0.00\n"
        "L= Brg 1       C=             0.50 E= 1            F=             0.00\n"
        "L=  1 RF       C=             0.67 E= 1            F=             0.00\n"
        "L=  2 LF       C=             2.00 E= 0            F=             0.00\n"
        "L=  2 CL       C=             2.17 E= 0            F=             0.00\n"
        ":\n\n";
    for (std::size_t at = 0; (at = expected.find('\n', at)) != std::string::npos; at += 2)
        expected.insert(at, "\r");
    EXPECT_EQ(Write(), expected);
}

TEST_F(EnvelopeFile, MetricPositionsAreThePlainX) {
    TwoCaseModel model;
    Add(model);
    data.m_nUnits = 1;
    EXPECT_THAT(Lines(), Contains("U= 1"));
    EXPECT_EQ(Block("SHEAR_MAX_PIER0").front(),
              "L=  1 LCL      C=            10.00 E= 0            F=             0.00");
}

TEST_F(EnvelopeFile, LfdNamesItsBlocksLikePlainCases) {
    CapShape shape = TwoColumns();
    shape.family = kFamilyLfd;
    shape.limitClasses = {kStrength};
    SearchedCap model(shape);
    Add(model);
    const std::string text = Write();
    EXPECT_THAT(text, HasSubstr("A= 1\r\n"));
    EXPECT_THAT(text, HasSubstr("\r\n\r\nAASHTO_LIMITSTATE_STATUS\r\nD= 1\r\n:\r\n\r\nSHEAR_MAX_PIER0\r\n"));
    EXPECT_THAT(BlockNames(),
                ElementsAre("SHEAR_MAX_PIER0", "SHEAR_MIN_PIER0", "MOMENT_MAX_PIER0", "MOMENT_MIN_PIER0"));
}

TEST_F(EnvelopeFile, LrfdHasTheBlocksOfItsPresentClasses) {
    CapShape shape = TwoColumns();
    shape.family = kFamilyLrfd;
    shape.cases = 3;
    shape.limitClasses = {kStrength, kExtreme, kFatigue};
    SearchedCap model(shape);
    Add(model);
    EXPECT_THAT(Write(), HasSubstr("AASHTO_LIMITSTATE_STATUS\r\nD= 0\r\nSHSTR= 1\r\nSHEXT= 1\r\nSHSER= 0\r\n"
                                   "MOSTR= 1\r\nMOEXT= 1\r\nMOSER= 0\r\nMOFAT= 1\r\n:\r\n\r\n"));
    EXPECT_THAT(BlockNames(), ElementsAre("SHEAR_STRENGTH_MAX_PIER0", "SHEAR_EXTREME_MAX_PIER0",
                                          "SHEAR_STRENGTH_MIN_PIER0", "SHEAR_EXTREME_MIN_PIER0",
                                          "MOMENT_STRENGTH_MAX_PIER0", "MOMENT_EXTREME_MAX_PIER0",
                                          "MOMENT_FATIGUE_MAX_PIER0", "MOMENT_STRENGTH_MIN_PIER0",
                                          "MOMENT_EXTREME_MIN_PIER0", "MOMENT_FATIGUE_MIN_PIER0"));
}

TEST_F(EnvelopeFile, AremaNamesBothItsDesigns) {
    CapShape shape = TwoColumns();
    shape.family = kFamilyArema;
    shape.cases = 2;
    shape.limitClasses = {kService, kStrength};
    SearchedCap model(shape);
    Add(model);
    EXPECT_THAT(Write(),
                HasSubstr("STATUS\r\nD= 2\r\nSHLFD= 1\r\nSHSLD= 1\r\nMOLFD= 1\r\nMOSLD= 1\r\n:\r\n\r\n"));
    EXPECT_THAT(BlockNames(),
                ElementsAre("SHEAR_LOAD_FACTOR_DESIGN_MAX_PIER0", "SHEAR_SERVICE_LOAD_DESIGN_MAX_PIER0",
                            "SHEAR_LOAD_FACTOR_DESIGN_MIN_PIER0", "SHEAR_SERVICE_LOAD_DESIGN_MIN_PIER0",
                            "MOMENT_LOAD_FACTOR_DESIGN_MAX_PIER0", "MOMENT_SERVICE_LOAD_DESIGN_MAX_PIER0",
                            "MOMENT_LOAD_FACTOR_DESIGN_MIN_PIER0", "MOMENT_SERVICE_LOAD_DESIGN_MIN_PIER0"));
    EXPECT_THAT(Block("SHEAR_LOAD_FACTOR_DESIGN_MAX_PIER0").front(), HasSubstr(" E= 1            F="));
}

TEST_F(EnvelopeFile, TwoRowsOfBearings) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{7, 8}, {8, 12}};  // 5 and 20, 20 and 35
    SearchedCap model(shape);
    Add(model);
    std::vector<std::string> labels;
    for (const std::string& line : Block("SHEAR_MAX_PIER0")) {
        if (line.find("Brg") != std::string::npos) labels.push_back(line.substr(0, 17));
    }
    EXPECT_THAT(labels, ElementsAre("L= Brg 1 LR    C=", "L= Brg 1 LR    C=", "L= Brg 2 L     C=",
                                    "L= Brg 2 R     C=", "L= Brg 2 RR    C=", "L= Brg 2 RR    C="));
    labels.clear();
    for (const std::string& line : Block("MOMENT_MIN_PIER0")) {
        if (line.find("Brg") != std::string::npos) labels.push_back(line.substr(0, 17));
    }
    EXPECT_THAT(labels, ElementsAre("L= Brg 1 LR    C=", "L= Brg 2       C=", "L= Brg 2 RR    C="));
}

TEST_F(EnvelopeFile, BothRowsOfABearingShowItsPlace) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{7, 8}, {8, 12}};  // 5 and 20, 20 and 35; the faces around 20 are at 12 and 28
    SearchedCap model(shape);
    Add(model);
    std::vector<std::string> places;
    for (const std::string& line : Block("SHEAR_MAX_PIER0")) {
        if (line.find("Brg") != std::string::npos) places.push_back(line.substr(0, 34));
    }
    // 5 / 12 = 0.417, 20 / 12 = 1.667, 35 / 12 = 2.917.
    EXPECT_THAT(places,
                ElementsAre("L= Brg 1 LR    C=             0.42", "L= Brg 1 LR    C=             0.42",
                            "L= Brg 2 L     C=             1.67", "L= Brg 2 R     C=             1.67",
                            "L= Brg 2 RR    C=             2.92", "L= Brg 2 RR    C=             2.92"));
}

TEST_F(EnvelopeFile, BearingOffTheCapIsMissingBeforeItsFlagsAreAsked) {
    CapShape shape = TwoColumns();
    shape.bearingNodes = {{99}};
    SearchedCap model(shape);
    Add(model);
    EXPECT_EQ(Block("SHEAR_MAX_PIER0")[0],
              "L= Brg 1 L     C=             0.00 E= 0            F=             0.00");
    EXPECT_EQ(Block("SHEAR_MAX_PIER0")[1],
              "L= Brg 1 R     C=             0.00 E= 0            F=             0.00");
    EXPECT_EQ(Block("MOMENT_MAX_PIER0")[0],
              "L= Brg 1       C=             0.00 E= 0            F=             0.00");
}

TEST_F(EnvelopeFile, NoSelectedCaseReadsNone) {
    SearchedCap model(TwoColumns());
    model.selection.SetCaseSelected(0, false);
    Add(model);
    EXPECT_EQ(Block("SHEAR_MAX_PIER0")[0], "L=  1 LF       C=             0.67none");
    EXPECT_EQ(Block("MOMENT_MIN_PIER0")[0], "L=  1 LF       C=             0.67none");
}

TEST_F(EnvelopeFile, UnusedListEntriesReadAsTheFirstLeftFace) {
    CapShape shape = TwoColumns();
    shape.width = 22;  // neither outer face is on the cap
    SearchedCap model(shape);
    Add(model);
    // The entry is support 1, left face, at 0; its record was never written: case 0 and no force.
    EXPECT_EQ(Block("MOMENT_MAX_PIER0").back(),
              "L=  1 LF       C=             0.00 E= 0            F=             0.00");
}

TEST_F(EnvelopeFile, SubstructuresCountFromZeroAndOneWithoutCapHasEmptyBlocks) {
    SearchedCap model(TwoColumns());
    Add(model);
    CapShape group = TwoColumns();
    group.type = kTypePileGroup;
    SearchedCap second(group);
    Add(second);
    EXPECT_THAT(Write(), HasSubstr("P= 2\r\n"));
    EXPECT_THAT(Write(), HasSubstr("S= 0 N= 8 M= 6 B= 0\r\nS= 1 N= 0 M= 0 B= 0\r\n:\r\n"));
    EXPECT_THAT(Write(), HasSubstr(":\r\n\r\nSHEAR_MAX_PIER1\r\n:\r\n\r\nSHEAR_MIN_PIER1\r\n:\r\n\r\n"));
}

TEST_F(EnvelopeFile, InvalidOrDisabledTablesHaveNoBlocks) {
    CapShape shape = TwoColumns();
    shape.family = kFamilyLfd;
    shape.limitClasses = {kStrength};
    SearchedCap model(shape);
    Add(model);
    results.valid[kTableCapShear] = false;
    enabled[kTableCapMoment] = false;
    const std::string text = Write();
    const std::string end = "AASHTO_LIMITSTATE_STATUS\r\nD= 1\r\n:\r\n\r\n";
    ASSERT_GT(text.size(), end.size());
    EXPECT_EQ(text.substr(text.size() - end.size()), end);
}

TEST_F(EnvelopeFile, TimeStepsAndPlainCasesHaveNoStatus) {
    SearchedCap model(TwoColumns());
    Add(model);
    data.m_nAnalysisMode = 1;
    EXPECT_THAT(Write(), AllOf(HasSubstr("A= 0\r\nT= 1\r\n"), Not(HasSubstr("STATUS"))));
}

TEST_F(EnvelopeFile, StreamThatCannotBeOpenedTakesNothing) {
    SearchedCap model(TwoColumns());
    Add(model);
    StoredStream out(scratch.PathOf("no such folder/envelopes.txt"));
    WriteEnvelopeFile(MakeReport(), out);
    EXPECT_FALSE(out.IsOpen());
    EXPECT_FALSE(scratch.Has("no such folder"));
}

}  // namespace

}  // namespace lumerin
