// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <sstream>
#include <utility>

#include "cli/ReportDriver.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

class ReportTest : public testing::Test {
  protected:
    ReportTest() {
        headless::ResetState();
        options.common.version = "5.2.1";
        options.common.clock = "2026-11-14T08:30:05";
        options.formats = {2};
    }
    ~ReportTest() override { headless::ResetState(); }

    ExitStatus Report(std::vector<std::string> projects, std::vector<std::string> tables) {
        options.projects = std::move(projects);
        options.tables = std::move(tables);
        ApplyOptions(options.common);
        out.str("");
        err.str("");
        return RunReports(options, out, err);
    }
    // The messages without the finding that the sample pier has: trials of its study that are not complete.
    std::string Messages() const {
        std::istringstream lines(err.str());
        std::string kept;
        for (std::string line; std::getline(lines, line);) {
            if (line.find(": warning: incomplete-trials: ") == std::string::npos) kept += line + '\n';
        }
        return kept;
    }
    static std::string Content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    SampleFolder folder;
    ReportRequest options;
    std::ostringstream out, err;
};

TEST_F(ReportTest, PrintsEachWrittenPath) {
    const std::string base = folder.Write("pier");
    EXPECT_EQ(Report({base + ".in"}, {"axial", "title"}), kExitDone);
    EXPECT_EQ(out.str(), base + "_Max_Axial_Forces_Pile_Heads.txt\n" + base + "_Title Page.txt\n");
    EXPECT_EQ(Messages(), "");
    EXPECT_GT(fs::file_size(base + "_Max_Axial_Forces_Pile_Heads.txt"), 0U);
}

TEST_F(ReportTest, EachFormatIsACallOfItsOwn) {
    const std::string base = folder.Write("pier");
    options.formats = {2, 1, 0};
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitDone);
    const std::string stem = base + "_Max_Axial_Forces_Pile_Heads";
    EXPECT_EQ(out.str(), stem + ".txt\n" + stem + ".pdf\n" + stem + ".xml\n");
    // The text format leaves the footer of the PDF as it was.
    EXPECT_THAT(Content(stem + ".pdf"), HasSubstr("v5.2.1"));
}

TEST_F(ReportTest, TheFooterShowsTheChosenParts) {
    const std::string base = folder.Write("pier");
    const std::string path = base + "_Max_Axial_Forces_Pile_Heads.pdf";
    options.formats = {1};
    options.footer = ReadFooter("date,version");
    Report({base + ".in"}, {"axial"});
    EXPECT_THAT(Content(path), HasSubstr("(Saturday, November 14, 2026, v5.2.1) Tj"));
    options.footer = ReadFooter("none");
    Report({base + ".in"}, {"axial"});
    EXPECT_EQ(Content(path).find("2026"), std::string::npos);
}

// "Gr\xC3\xB6\xC3\x9F" "e" in UTF-8 is "Gr\xF6\xDF" "e" in the code page.
TEST_F(ReportTest, ANameInUtf8StaysThatOfItsFilesAndIsShownInTheCodePage) {
    samples::SampleOptions sample;
    sample.name =
        "Gr\xC3\xB6\xC3\x9F"
        "e";
    const std::string base = folder.Write(sample);
    options.formats = {1, 0};
    options.footer = ReadFooter("filename");
    EXPECT_EQ(Report({base + ".in"}, {"axial", "column-dc"}), kExitDone);
    const std::string axial = base + "_Max_Axial_Forces_Pile_Heads",
                      ratios = base + "_Max_DC_For_Column_Sections";
    EXPECT_EQ(out.str(), axial + ".pdf\n" + ratios + ".pdf\n" + axial + ".xml\n" + ratios + ".xml\n");
    const std::string shown = folder.Path().string() +
                              "/Gr\xF6\xDF"
                              "e.in";
    EXPECT_THAT(Content(axial + ".pdf"), HasSubstr("(" + shown + ") Tj"));
    EXPECT_THAT(Content(axial + ".xml"), HasSubstr(shown));
    EXPECT_EQ(Content(axial + ".xml").find("\xC3"), std::string::npos);
}

TEST_F(ReportTest, MessagesAreUtf8WhateverThePathIs) {
    samples::SampleOptions sample;
    sample.name =
        "Gr\xC3\xB6\xC3\x9F"
        "e";
    std::string base = folder.Write(sample);
    fs::remove(base + ".PLF");
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitNotLoaded);
    EXPECT_EQ(err.str(), base + ".in: " + base + ".PLF: the file was not found\n");
    // A name that is not UTF-8 is read in the code page.
    const std::string utf8 = base;
    sample.name =
        "Gr\xF6\xDF"
        "e";
    base = folder.Write(sample);
    fs::remove(base + ".PLF");
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitNotLoaded);
    EXPECT_EQ(err.str(), utf8 + ".in: " + utf8 + ".PLF: the file was not found\n");
    // Both in one path.
    EXPECT_EQ(Report({"/nowhere/\xE9t\xE9/\xC3\xB6.in"}, {"axial"}), kExitNotLoaded);
    EXPECT_THAT(err.str(), testing::Eq("lumerin: no project /nowhere/\xC3\xA9t\xC3\xA9/\xC3\xB6.in\n"));
}

TEST_F(ReportTest, ATableThatDoesNotApplyIsNamedAndNotWritten) {
    const std::string base = folder.Write("bent");
    EXPECT_EQ(Report({base + ".in"}, {"column-dc", "axial"}), kExitIncomplete);
    EXPECT_EQ(err.str(), base + ".in: the table column-dc does not apply to this project\n");
    EXPECT_EQ(out.str(), base + "_Max_Axial_Forces_Pile_Heads.txt\n");
    EXPECT_FALSE(fs::exists(base + "_Max_DC_For_Column_Sections.txt"));
}

TEST_F(ReportTest, TheTitlePageAsASpreadsheetIsRefusedAloud) {
    const std::string base = folder.Write("pier");
    options.formats = {0};
    EXPECT_EQ(Report({base + ".in"}, {"title"}), kExitIncomplete);
    EXPECT_THAT(err.str(), HasSubstr("The Title Page can only be created in the Text and PDF formats."));
    EXPECT_EQ(out.str(), "");
}

TEST_F(ReportTest, ThePileHeadsUseTheSpreadsheetAndTheTablesAfterThemDoNot) {
    const std::string base = folder.Write("pier");
    EXPECT_EQ(Report({base + ".in"}, {"pile-heads", "axial"}), kExitDone);
    EXPECT_EQ(out.str(),
              base + "_Axial_Pile_Heads_EachLoadCase.xml\n" + base + "_Max_Axial_Forces_Pile_Heads.txt\n");
    EXPECT_EQ(Messages(), "");
}

TEST_F(ReportTest, EnvelopesWriteTheirFileAndStartNothing) {
    const std::string base = folder.Write("pier");
    EXPECT_EQ(Report({base + ".in"}, {"envelopes"}), kExitDone);
    EXPECT_EQ(out.str(), base + "_Envelopes.txt\n");
    EXPECT_TRUE(fs::exists(base + "_Envelopes.txt"));
}

TEST_F(ReportTest, TenProjectsOfWhichTwoAreBrokenGiveEight) {
    std::vector<std::string> projects;
    std::string written;
    for (int i = 0; i < 10; ++i) {
        samples::SampleOptions sample;
        sample.preset = i % 2 == 0 ? "pier" : "bent";
        sample.name = "p" + std::to_string(i);
        const std::string base = folder.Write(sample);
        if (i == 2) fs::remove(base + ".TWR");
        if (i == 7) fs::resize_file(base + ".PIL", 6);
        if (i != 2 && i != 7) written += base + "_Max_Axial_Forces_Pile_Heads.txt\n";
        projects.push_back(base + ".in");
    }
    EXPECT_EQ(Report(projects, {"axial"}), kExitNotLoaded);
    EXPECT_EQ(out.str(), written);
    EXPECT_THAT(err.str(), HasSubstr("lumerin: no project " + folder.Base("p2.in") + "\n"));
    EXPECT_THAT(err.str(), HasSubstr("p7.PIL: "));
    EXPECT_THAT(err.str(), testing::EndsWith("\n10 projects: 8 done, 2 not loaded\n"));
}

TEST_F(ReportTest, ABrokenProjectIsReportedOnceForAllFormats) {
    const std::string base = folder.Write("pier");
    fs::remove(base + ".PLF");
    options.formats = {2, 1, 0};
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitNotLoaded);
    EXPECT_EQ(err.str(), base + ".in: " + base + ".PLF: the file was not found\n");
}

TEST_F(ReportTest, AForceFileThatIsTooShortIsReportedAndTheTablesAreWritten) {
    const std::string base = folder.Write("pier");
    const std::string forces = base + ".vmd";
    fs::resize_file(forces, fs::file_size(forces) - 3 * 68);
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitUnsound);
    EXPECT_THAT(err.str(), HasSubstr("pier.vmd: 3 "));
    EXPECT_THAT(err.str(), HasSubstr(": error: missing-records: "));
    EXPECT_EQ(out.str(), base + "_Max_Axial_Forces_Pile_Heads.txt\n");
}

// A stream that does something once, after the first whole line.
class WithAnEvent : public std::stringbuf {
  public:
    explicit WithAnEvent(std::function<void()> event) : m_event(std::move(event)) {}

  protected:
    int sync() override {
        if (m_event && str().ends_with('\n')) std::exchange(m_event, nullptr)();
        return 0;
    }

  private:
    std::function<void()> m_event;
};

// Puts not-a-numbers over the whole force file without changing its length and time.
void SpoilForces(const std::string& path) {
    const auto time = fs::last_write_time(path);
    const std::vector<float> words(fs::file_size(path) / sizeof(float),
                                   std::numeric_limits<float>::quiet_NaN());
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.write(reinterpret_cast<const char*>(words.data()),
               static_cast<std::streamsize>(words.size() * sizeof(float)));
    file.close();
    fs::last_write_time(path, time);
}

TEST_F(ReportTest, AllFormatsOfAProjectShareOneLoad) {
    const std::string base = folder.Write("pier");
    const std::string stem = base + "_Max_Axial_Forces_Pile_Heads";
    options.formats = {2, 1, 0};
    options.projects = {base + ".in"};
    options.tables = {"axial"};
    ApplyOptions(options.common);
    WithAnEvent buffer([&] { EXPECT_TRUE(fs::remove(base + ".TWR")); });
    std::ostream lines(&buffer);
    EXPECT_EQ(RunReports(options, lines, err), kExitDone);
    EXPECT_EQ(buffer.str(), stem + ".txt\n" + stem + ".pdf\n" + stem + ".xml\n");
    EXPECT_EQ(Messages(), "");
    // The next run loads again.
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitNotLoaded);
}

TEST_F(ReportTest, AllTablesAndFormatsOfAProjectShareOnePassOverTheForces) {
    const std::string base = folder.Write("pier");
    options.formats = {2, 0};
    options.projects = {base + ".in"};
    options.tables = {"axial", "pile-dc"};
    ApplyOptions(options.common);
    WithAnEvent buffer([&] { SpoilForces(base + ".vmd"); });
    std::ostream lines(&buffer);
    // A second search would find that no number is finite, and no table would be valid.
    EXPECT_EQ(RunReports(options, lines, err), kExitDone);
    EXPECT_EQ(Messages(), "");
    EXPECT_THAT(buffer.str(), HasSubstr(".xml\n"));
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitUnsound);
    EXPECT_THAT(err.str(), HasSubstr("Invalid data."));
    EXPECT_THAT(err.str(), HasSubstr(": error: not-finite: "));
}

TEST_F(ReportTest, WhatALoadHasToSayIsSaidOnceForAllFormats) {
    const std::string base = folder.Write("pier");
    fs::resize_file(base + ".vmd", fs::file_size(base + ".vmd") - 3 * 68);
    options.formats = {2, 1, 0};
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitUnsound);
    // The message of the load and the finding.
    EXPECT_EQ(std::ranges::count(Messages(), '\n'), 2) << err.str();
}

TEST_F(ReportTest, AForceFileThatChangesDuringTheRunEndsItWithThreeAndLeavesTheEarlierDocuments) {
    const std::string base = folder.Write("pier"), other = folder.Write("bent");
    const std::string stem = base + "_Max_Axial_Forces_Pile_Heads";
    std::ofstream(stem + ".pdf") << "earlier";
    options.formats = {2, 1, 0};
    options.projects = {base + ".in", other + ".in"};
    options.tables = {"axial"};
    ApplyOptions(options.common);
    WithAnEvent buffer([&] { fs::resize_file(base + ".vmd", fs::file_size(base + ".vmd") + 68); });
    std::ostream lines(&buffer);
    EXPECT_EQ(RunReports(options, lines, err), kExitNotLoaded);
    EXPECT_EQ(Content(stem + ".pdf"), "earlier");
    EXPECT_FALSE(fs::exists(stem + ".xml"));
    EXPECT_EQ(Messages(),
              base + ".in: " + base +
                  ".vmd: the file has changed since the project was opened. Open the project again.\n"
                  "2 projects: 1 done, 1 not loaded\n");
    // The other projects are still done.
    EXPECT_THAT(buffer.str(), HasSubstr(other + "_Max_Axial_Forces_Pile_Heads.xml\n"));
}

TEST_F(ReportTest, CasesAreChosenInTheDialog) {
    const std::string base = folder.Write("history");
    const std::string path = base + "_Max_Axial_Forces_Pile_Heads.txt";
    Report({base + ".in"}, {"axial"});
    const std::string all = Content(path);
    ReadCases("1-2", options.cases);
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitDone);
    EXPECT_NE(Content(path), all);
}

TEST_F(ReportTest, ACaseThatTheProjectDoesNotHaveIsWrongUsage) {
    const std::string base = folder.Write("pier");
    ReadCases("1,5000", options.cases);
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitUsage);
    EXPECT_THAT(Messages(), testing::MatchesRegex(".*: there is no case 5000, the project has [0-9]+\n"));
    EXPECT_EQ(std::ranges::count(Messages(), '\n'), 1);
    EXPECT_EQ(out.str(), "");
}

TEST_F(ReportTest, AFileThatCannotBeWrittenIsNotReportedAsWritten) {
    const std::string base = folder.Write("pier");
    fs::create_directory(base + "_Max_Axial_Forces_Pile_Heads.txt");  // a folder has its name
    EXPECT_EQ(Report({base + ".in"}, {"axial"}), kExitIncomplete);
    EXPECT_EQ(out.str(), "");
    EXPECT_THAT(err.str(), HasSubstr("the table axial could not be written whole"));
}

TEST_F(ReportTest, DocumentsOfAllTablesAreBesideTheProject) {
    const std::string base = folder.Write("bent");
    options.formats = {};
    options.documents = {FindOwnDocument("xlsx"), FindOwnDocument("html")};
    EXPECT_EQ(Report({base + ".in"}, {"full"}), kExitDone);
    EXPECT_EQ(out.str(), base + "_Report.xlsx\n" + base + "_Report.html\n");
    EXPECT_EQ(Content(base + "_Report.xlsx").substr(0, 2), "PK");
    EXPECT_EQ(Content(base + "_Report.html").substr(0, 15), "<!DOCTYPE html>");
}

TEST_F(ReportTest, AStrictReportWritesNoDocumentOfUnsoundData) {
    const std::string base = folder.Write("pier");
    fs::resize_file(base + ".vmd", fs::file_size(base + ".vmd") / 2);
    options.formats = {};
    options.documents = {FindOwnDocument("xlsx"), FindOwnDocument("html")};
    options.strict = true;
    EXPECT_EQ(Report({base + ".in"}, {"full"}), kExitUnsound);
    EXPECT_FALSE(fs::exists(base + "_Report.xlsx"));
    EXPECT_FALSE(fs::exists(base + "_Report.html"));
    EXPECT_THAT(err.str(), HasSubstr(": error: missing-records: "));
}

}  // namespace

}  // namespace lumerin
