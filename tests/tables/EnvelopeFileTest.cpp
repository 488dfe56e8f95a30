#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

#include "envelopes/CapModel.h"
#include "model/DataSet.h"
#include "session/Session.h"
#include "tables/WriteData.h"

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class EnvelopeFile : public testing::Test {
  protected:
    void SetUp() override {
        g_DataSet.Reset();
        g_DataSet.FreePiers();
        g_OutputFilePath = testing::TempDir() + "envelope_file_test.txt";
        g_DataSet.m_bTableEnabled[3] = g_DataSet.m_bTableEnabled[4] = true;
    }
    void TearDown() override {
        g_DataSet.FreePiers();
        g_DataSet.Reset();
    }

    static void Add(CapModel& model) {
        model.ComputeShear();
        model.ComputeMoment();
        g_DataSet.m_Piers.push_back(std::move(model.pier));
        g_DataSet.m_nPiers = static_cast<int>(g_DataSet.m_Piers.size());
        // The first selected case of each class, as the loader finds it.
        CPier& first = g_DataSet.FirstPier();
        for (int c = first.m_nLoadCases - 1; c >= 0 && first.m_bCombinations && first.m_nCodeFamily != 1;
             --c) {
            const int limitClass = first.m_LoadCases[static_cast<std::size_t>(c)].m_nLimitClass;
            first.m_nFirstOfClass[static_cast<std::size_t>(limitClass)] = c;
        }
    }
    static std::string Write() {
        CWriteData().WriteEnvelopeFile();
        std::ifstream in(g_OutputFilePath, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    static std::vector<std::string> Lines() {
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
    static std::vector<std::string> Block(const std::string& name) {
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
    static std::vector<std::string> BlockNames() {
        std::vector<std::string> names;
        for (const std::string& line : Lines()) {
            if (line.find("_PIER") != std::string::npos) names.push_back(line);
        }
        return names;
    }
};

// Columns at 10 and 30, substructure at 4, a bearing over the first column. Element 21 runs from 10 to 20, 22
// on to 30. The second case has no forces.
CapModel TwoCaseModel() {
    CapShape shape = TwoColumnsWithoutCantilevers();
    shape.cases = 2;
    shape.bearingNodes = {{5}};
    CapModel model(shape);
    model.Set(0, 0, kF22, 100, 50);
    model.Set(0, 1, kF22, -20, -30);
    model.Set(0, 0, kM33, 7, 0);
    model.pier.m_dLocationX = 4;
    return model;
}

}  // namespace

TEST_F(EnvelopeFile, PlainCasesInUsUnits) {
    CapModel model = TwoCaseModel();
    Add(model);
    g_DataSet.m_sProjectN = "Bridge & <1>";
    g_DataSet.m_sProjectD = "Department";
    g_DataSet.m_sProjectC = "Checker";
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
    CapModel model = TwoCaseModel();
    Add(model);
    g_DataSet.m_nUnits = 1;
    EXPECT_THAT(Lines(), Contains("U= 1"));
    EXPECT_EQ(Block("SHEAR_MAX_PIER0").front(),
              "L=  1 LCL      C=            10.00 E= 0            F=             0.00");
}

TEST_F(EnvelopeFile, LfdNamesItsBlocksLikePlainCases) {
    CapShape shape = TwoColumns();
    shape.family = 1;
    shape.limitClasses = {0};
    CapModel model(shape);
    Add(model);
    const std::string text = Write();
    EXPECT_THAT(text, HasSubstr("A= 1\r\n"));
    EXPECT_THAT(text, HasSubstr("\r\n\r\nAASHTO_LIMITSTATE_STATUS\r\nD= 1\r\n:\r\n\r\nSHEAR_MAX_PIER0\r\n"));
    EXPECT_THAT(BlockNames(),
                ElementsAre("SHEAR_MAX_PIER0", "SHEAR_MIN_PIER0", "MOMENT_MAX_PIER0", "MOMENT_MIN_PIER0"));
}

TEST_F(EnvelopeFile, LrfdHasTheBlocksOfItsPresentClasses) {
    CapShape shape = TwoColumns();
    shape.family = 0;
    shape.cases = 3;
    shape.limitClasses = {0, 2, 3};
    CapModel model(shape);
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
    shape.family = 2;
    shape.cases = 2;
    shape.limitClasses = {1, 0};
    CapModel model(shape);
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
    CapModel model(shape);
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
    CapModel model(shape);
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
    CapModel model(shape);
    Add(model);
    EXPECT_EQ(Block("SHEAR_MAX_PIER0")[0],
              "L= Brg 1 L     C=             0.00 E= 0            F=             0.00");
    EXPECT_EQ(Block("SHEAR_MAX_PIER0")[1],
              "L= Brg 1 R     C=             0.00 E= 0            F=             0.00");
    EXPECT_EQ(Block("MOMENT_MAX_PIER0")[0],
              "L= Brg 1       C=             0.00 E= 0            F=             0.00");
}

TEST_F(EnvelopeFile, NoSelectedCaseReadsNone) {
    CapModel model(TwoColumns());
    model.pier.SetCaseSelected(0, false);
    Add(model);
    EXPECT_EQ(Block("SHEAR_MAX_PIER0")[0], "L=  1 LF       C=             0.67none");
    EXPECT_EQ(Block("MOMENT_MIN_PIER0")[0], "L=  1 LF       C=             0.67none");
}

TEST_F(EnvelopeFile, UnusedListEntriesReadAsTheFirstLeftFace) {
    CapShape shape = TwoColumns();
    shape.width = 22;  // neither outer face lies on the cap
    CapModel model(shape);
    Add(model);
    // The entry is support 1, left face, at 0; its record was never written: case 0 and no force.
    EXPECT_EQ(Block("MOMENT_MAX_PIER0").back(),
              "L=  1 LF       C=             0.00 E= 0            F=             0.00");
}

TEST_F(EnvelopeFile, SubstructuresCountFromZeroAndOneWithoutCapHasEmptyBlocks) {
    CapModel model(TwoColumns());
    Add(model);
    CapShape group = TwoColumns();
    group.type = 1;
    CapModel second(group);
    Add(second);
    EXPECT_THAT(Write(), HasSubstr("P= 2\r\n"));
    EXPECT_THAT(Write(), HasSubstr("S= 0 N= 8 M= 6 B= 0\r\nS= 1 N= 0 M= 0 B= 0\r\n:\r\n"));
    EXPECT_THAT(Write(), HasSubstr(":\r\n\r\nSHEAR_MAX_PIER1\r\n:\r\n\r\nSHEAR_MIN_PIER1\r\n:\r\n\r\n"));
}

TEST_F(EnvelopeFile, InvalidOrDisabledTablesHaveNoBlocks) {
    CapShape shape = TwoColumns();
    shape.family = 1;
    shape.limitClasses = {0};
    CapModel model(shape);
    Add(model);
    g_DataSet.m_bTableValid[3] = false;
    g_DataSet.m_bTableEnabled[4] = false;
    const std::string text = Write();
    const std::string end = "AASHTO_LIMITSTATE_STATUS\r\nD= 1\r\n:\r\n\r\n";
    ASSERT_GT(text.size(), end.size());
    EXPECT_EQ(text.substr(text.size() - end.size()), end);
}

TEST_F(EnvelopeFile, TimeStepsAndPlainCasesHaveNoStatus) {
    CapModel model(TwoColumns());
    Add(model);
    g_DataSet.m_nAnalysisMode = 1;
    EXPECT_THAT(Write(), AllOf(HasSubstr("A= 0\r\nT= 1\r\n"), Not(HasSubstr("STATUS"))));
}

TEST_F(EnvelopeFile, PathThatCannotBeOpenedIsSilent) {
    CapModel model(TwoColumns());
    Add(model);
    const CapMessages messages;
    g_OutputFilePath = testing::TempDir() + "no such folder/envelopes.txt";
    EXPECT_EQ(Write(), "");
    EXPECT_TRUE(messages.Texts().empty());
}
