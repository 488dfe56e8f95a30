// SPDX-License-Identifier: MIT
// How output files are named, how viewers start and how a failed start is worded.
#include "session/OutputFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <numeric>
#include <vector>

#include "framework/headless/Headless.h"
#include "session/Constants.h"
#include "session/Session.h"
#include "session/TableRun.h"
#include "support/Forces.h"
#include "support/ScratchFolder.h"
#include "writers/PdfExport.h"

namespace lumerin {

namespace {

class OutputFiles : public testing::Test {
  protected:
    void SetUp() override {
        headless::ResetState();
        headless::SetSink(&m_sink);
        g_ProjectBasePath = "C:\\jobs\\pier";
        g_OutputFilePath = "earlier path";
    }
    void TearDown() override {
        headless::ResetState();
        g_ProjectBasePath.clear();
        g_OutputFilePath.clear();
    }
    static std::string Built(unsigned table, unsigned kind) {
        BuildOutputFilePath(table, kind);
        return g_OutputFilePath;
    }
    std::vector<std::string> Messages() const {
        std::vector<std::string> texts;
        for (const headless::Message& message : m_sink.messages) texts.push_back(message.text);
        return texts;
    }

    headless::RecordingSink m_sink;
};

using Texts = std::vector<std::string>;

TEST_F(OutputFiles, AreNamedByTableAndFormat) {
    const char* names[] = {"Max_Axial_Forces_Pile_Heads",
                           "Max_DC_For_Pile_Sections",
                           "Max_DC_For_Column_Sections",
                           "Max_PierCap_Shear_Design",
                           "Max_PierCap_Moment_Design",
                           "Max_Forces_For_All_Pile_Sects",
                           "Max_Forces_For_All_Column_Sects",
                           "Max_Extra_Member_Forces",
                           "Axial_Pile_Heads_EachLoadCase",
                           "Full_Report",
                           "Title Page"};
    for (unsigned table = 0; table < 11; ++table) {
        const std::string stem = std::string("C:\\jobs\\pier_") + names[table];
        EXPECT_EQ(Built(table, 0), stem + ".xml");
        EXPECT_EQ(Built(table, 1), stem + ".pdf");
        EXPECT_EQ(Built(table, 2), stem + ".txt");
    }
    EXPECT_EQ(Messages(), Texts{});
}

TEST_F(OutputFiles, OfTheTitlePageHaveABlankInTheirName) {
    EXPECT_EQ(Built(10, 1), "C:\\jobs\\pier_Title Page.pdf");
}

TEST_F(OutputFiles, OfTheEnvelopesIgnoreTheTable) {
    EXPECT_EQ(Built(3, 3), "C:\\jobs\\pier_Envelopes.txt");
    EXPECT_EQ(Built(10, 3), "C:\\jobs\\pier_Envelopes.txt");
}

TEST_F(OutputFiles, OfAnUnknownTableKeepTheEarlierPath) {
    EXPECT_EQ(Built(11, 0), "earlier path");
    EXPECT_EQ(Messages(), Texts{"Invalid table type.  Table cannot be generated."});
}

TEST_F(OutputFiles, OfAnUnknownFormatKeepTheEarlierPath) {
    EXPECT_EQ(Built(0, 4), "earlier path");
    EXPECT_EQ(Built(0, static_cast<unsigned>(-1)), "earlier path");
    const std::string text = "Invalid file type selected.  Table cannot be generated.";
    EXPECT_EQ(Messages(), (Texts{text, text}));
}

TEST_F(OutputFiles, TheTableIsTestedBeforeTheFormat) {
    Built(static_cast<unsigned>(-1), 9);
    EXPECT_EQ(Messages(), Texts{"Invalid table type.  Table cannot be generated."});
}

TEST_F(OutputFiles, SpreadsheetsOpenInTheSpreadsheetProgram) {
    g_OutputFilePath = "C:\\my jobs\\pier_Full_Report.xml";
    ShowOutputFile(kFormatSpreadsheet);
    ASSERT_EQ(m_sink.starts.size(), 1U);
    EXPECT_EQ(m_sink.starts[0].verb, "open");
    EXPECT_EQ(m_sink.starts[0].file, "Excel");
    EXPECT_EQ(m_sink.starts[0].parameters, "\"C:\\my jobs\\pier_Full_Report.xml\"");
    EXPECT_EQ(Messages(), Texts{});
}

TEST_F(OutputFiles, OthersOpenInTheProgramOfTheirType) {
    g_OutputFilePath = "C:\\my jobs\\pier_Title Page.pdf";
    for (const int format : {kFormatPdf, kFormatText}) ShowOutputFile(format);
    ASSERT_EQ(m_sink.starts.size(), 2U);
    for (const auto& start : m_sink.starts) {
        EXPECT_EQ(start.verb, "");
        EXPECT_EQ(start.file, "\"C:\\my jobs\\pier_Title Page.pdf\"");
        EXPECT_EQ(start.parameters, "");
    }
}

TEST_F(OutputFiles, WorkbooksOfGridsOpenInTheSpreadsheetProgram) {
    OpenInSpreadsheet("C:\\my jobs\\pier_Name.xml");
    ASSERT_EQ(m_sink.starts.size(), 1U);
    EXPECT_EQ(m_sink.starts[0].verb, "open");
    EXPECT_EQ(m_sink.starts[0].file, "Excel");
    EXPECT_EQ(m_sink.starts[0].parameters, "\"C:\\my jobs\\pier_Name.xml\"");
    EXPECT_EQ(Messages(), Texts{});
}

TEST_F(OutputFiles, AWorkbookThatDoesNotOpenIsReportedInTheWordsOfTheStart) {
    headless::State().shellCode = 2;
    OpenInSpreadsheet("C:\\jobs\\pier_Name.xml");
    EXPECT_EQ(Messages(), Texts{"The application specified to open the file was not found on this machine."});
}

// A grid of one cell and the description that goes to the table image builder.
class TableBuilder : public OutputFiles {
  protected:
    void SetUp() override {
        OutputFiles::SetUp();
        headless::State().programPath = "/opt/host/Tarnsway.exe";
        m_grid.SetRowCount(1);
        m_grid.SetColumnCount(1);
    }
    void Start() {
        CPdfExport table(m_grid, m_scratch.PathOf("PdfTemp.txt"), "C:\\p\\MPTE.pdf");
        StartTableBuilder(table);
    }

    const ScratchFolder m_scratch;
    CGridCtrl m_grid;
};

TEST_F(TableBuilder, BesideTheHostIsStartedWithTheQuotedDescription) {
    Start();
    ASSERT_EQ(m_sink.starts.size(), 1U);
    EXPECT_EQ(m_sink.starts[0].verb, "");
    EXPECT_EQ(m_sink.starts[0].file, "/opt/host/Jarlimex.exe");
    EXPECT_EQ(m_sink.starts[0].parameters, '"' + m_scratch.PathOf("PdfTemp.txt") + '"');
    EXPECT_TRUE(m_scratch.Has("PdfTemp.txt"));
}

TEST_F(TableBuilder, ThatIsMissingIsNotNoticed) {
    headless::State().shellCode = 2;
    Start();
    EXPECT_EQ(Messages(), Texts{});
}

TEST_F(TableBuilder, IsNotStartedForAnEmptyGrid) {
    m_grid.SetColumnCount(0);
    Start();
    EXPECT_EQ(Messages(), Texts{"Error: Empty Grid - Either the number of rows or columns is 0."});
    EXPECT_TRUE(m_sink.starts.empty());
}

TEST_F(OutputFiles, AnEnvelopeFileThatCannotBeOpenedIsSilent) {
    const ScratchFolder scratch;
    g_ProjectBasePath = scratch.PathOf("no such folder/pier");
    g_DataSet.m_Piers.emplace_back();
    ReportState state;
    state.selection = CaseSelection(g_DataSet);
    state.forces.push_back(std::make_unique<MemoryForces>(g_DataSet.FirstPier()));
    state.results = ResultTables(g_DataSet);
    state.enabled = kAllTables;
    RunEnvelopeFile(state);
    g_DataSet.Reset();
    EXPECT_EQ(g_OutputFilePath, scratch.PathOf("no such folder/pier_Envelopes.txt"));
    EXPECT_EQ(Messages(), Texts{});
    EXPECT_FALSE(scratch.Has("no such folder"));
}

TEST_F(OutputFiles, StayWhenTheSpreadsheetProgramIsMissing) {
    const ScratchFolder scratch;
    scratch.Write("table.xml", "a table");
    g_OutputFilePath = scratch.PathOf("table.xml");
    headless::State().shellCode = 2;
    ShowOutputFile(kFormatSpreadsheet);
    EXPECT_EQ(Messages(), Texts{"The application specified to open the file was not found on this machine."});
    EXPECT_TRUE(scratch.Has("table.xml"));
}

TEST_F(OutputFiles, FailedStartsAreReportedInTheirWords) {
    const std::vector<std::pair<int, std::string>> failures{
        {2, "The application specified to open the file was not found on this machine."},
        {3, "The specified path was not found."},
        {5, "The operating system denied access to the specified file."},
        {8, "There was not enough memory to complete the operation."},
        {11, "The .exe file is invalid (non-Win32\xAE .exe or error in .exe image)."},
        {26, "A sharing violation occurred."},
        {27, "The file name association is incomplete or invalid."},
        {28, "The DDE transaction could not be completed because the request timed out."},
        {29, "The DDE transaction failed."},
        {30,
         "The DDE transaction could not be completed because other DDE transactions were being processed."},
        {31, "There is no application associated with the given file name extension."},
        {32, "The specified dynamic-link library was not found."}};
    for (const auto& [code, text] : failures) {
        m_sink.messages.clear();
        ReportViewerResult(code);
        EXPECT_EQ(Messages(), Texts{text}) << code;
    }
}

TEST_F(OutputFiles, OtherCodesUpToTheLastGiveAnEmptyBox) {
    for (const int code : {0, 1, 4, 6, 10, 12, 25, -1}) {
        m_sink.messages.clear();
        ReportViewerResult(code);
        EXPECT_EQ(Messages(), Texts{""}) << code;
    }
}

TEST_F(OutputFiles, CodesAboveTheLastAreSuccess) {
    for (const int code : {33, 42, 100000}) ReportViewerResult(code);
    EXPECT_EQ(Messages(), Texts{});
}

TEST_F(OutputFiles, ViewerSettingsThatAreThereArrive) {
    headless::State().userNumbers[kTextViewerKey] = {{"iMarginLeft", 750},
                                                     {"iMarginRight", 751},
                                                     {"iMarginTop", 1000},
                                                     {"iMarginBottom", 1001},
                                                     {"iPointSize", 110}};
    headless::State().userTexts[kTextViewerKey] = {{"szHeader", "&f"}, {"szTrailer", "&p"}};
    ViewerSettings settings;
    ReadViewerSettings(settings);
    EXPECT_EQ(settings.m_nMarginLeft, 750);
    EXPECT_EQ(settings.m_nMarginRight, 751);
    EXPECT_EQ(settings.m_nMarginTop, 1000);
    EXPECT_EQ(settings.m_nMarginBottom, 1001);
    EXPECT_EQ(settings.m_nPointSize, 110);
    EXPECT_EQ(settings.m_sHeader, "&f");
    EXPECT_EQ(settings.m_sTrailer, "&p");
}

TEST_F(OutputFiles, ViewerSettingsThatAreMissingStayAsTheyWere) {
    headless::State().userNumbers[kTextViewerKey] = {{"iMarginTop", 5}};
    ViewerSettings settings{1, 2, 3, 4, 90, "trailer", "header"};
    ReadViewerSettings(settings);
    EXPECT_EQ(settings.m_nMarginLeft, 1);
    EXPECT_EQ(settings.m_nMarginRight, 2);
    EXPECT_EQ(settings.m_nMarginTop, 5);
    EXPECT_EQ(settings.m_nMarginBottom, 4);
    EXPECT_EQ(settings.m_nPointSize, 90);
}

// A text gets four bytes, the size that the number before it has left.
TEST_F(OutputFiles, ViewerTextsOfMoreThanThreeCharactersDoNotArrive) {
    headless::State().userTexts[kTextViewerKey] = {{"szHeader", "Page &p"}, {"szTrailer", "abc"}};
    ViewerSettings settings;
    ReadViewerSettings(settings);
    EXPECT_EQ(settings.m_sHeader, "");
    EXPECT_EQ(settings.m_sTrailer, "abc");
}

TEST_F(OutputFiles, AViewerValueIsDecimalText) {
    headless::State().userNumbers[kTextViewerKey] = {{"iPointSize", 100}};
    EXPECT_EQ(ReadViewerValue("iPointSize"), "100");
    headless::State().userNumbers[kTextViewerKey]["iPointSize"] = -3;
    EXPECT_EQ(ReadViewerValue("iPointSize"), "-3");  // read again
    headless::State().userNumbers[kTextViewerKey].clear();
    EXPECT_EQ(ReadViewerValue("iPointSize"), "");
}

// The setting is in tenths of a point.
TEST_F(OutputFiles, TheViewersFontSizeIsInWholePoints) {
    EXPECT_EQ(ViewerFontSize(), 0);
    headless::State().userNumbers[kTextViewerKey]["iPointSize"] = 109;
    EXPECT_EQ(ViewerFontSize(), 10);
    headless::State().userNumbers[kTextViewerKey]["iPointSize"] = 140;
    EXPECT_EQ(ViewerFontSize(), 14);
}

TEST_F(OutputFiles, OnlyTwoModesTurnThePrinter) {
    for (const int mode : {0, 1, 2, -1}) SetDefaultPrinterOrientation(mode);
    EXPECT_EQ(m_sink.orientations, (std::vector{false, true}));
}

}  // namespace

}  // namespace lumerin
