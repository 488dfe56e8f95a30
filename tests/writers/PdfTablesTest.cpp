// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/ReportFixture.h"
#include "writers/PdfFile.h"
#include "writers/PdfSink.h"
#include "writers/TablePdf.h"

namespace lumerin {

class PdfTables : public ReportTest {
  protected:
    PdfFile Write(TableId table, bool landscape = true) {
        StoredStream out(Path());
        CPdfWriter pdf(landscape);
        pdf.WriteHeader(out);
        m_lines = WriteTablePdf(MakeReport(), table, out, pdf);
        pdf.Finish(out);
        out.Close();
        return PdfFile(StoredBytes());
    }
    // A table of pile ratios with as many rows as it has properties, none of which has a result.
    void MakePileRatios(std::size_t piers, int properties) {
        AddPiers(piers);
        for (std::size_t i = 0; i < piers; ++i) {
            Fill(Pier(i), 1, 0, 0, 1);
            Pier(i).m_nPileSections = properties;
            Results(i).pileDc.Allocate(properties, 1, 1);
            for (int p = 0; p < properties; ++p) Results(i).pileDc.At(p, 0) = kNotFoundRecord;
        }
    }
    static std::vector<std::string> SplitText(const std::string& text) {
        std::vector<std::string> lines;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = text.find('\n', at);
            lines.push_back(text.substr(at, end - at));
            at = end + 1;
        }
        return lines;
    }
    // The words of a line with one blank between them.
    static std::string Words(const std::string& line) {
        std::istringstream in(line);
        std::string words;
        for (std::string word; in >> word;) words += (words.empty() ? "" : " ") + word;
        return words;
    }
    // Every line of every page equals the text form's, but for the margin of titles and table 0's gaps.
    void ExpectTextLines(TableId table, std::size_t titleLines, bool keyed) {
        const PdfFile file = Write(table);
        std::vector<std::string> text = SplitText(Text(table));
        if (keyed) text.emplace_back();  // the key is not cut at its end
        ASSERT_EQ(file.pages.size(), 1U);
        const std::vector<std::string>& lines = file.pages[0].lines;
        ASSERT_EQ(lines.size(), text.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const std::string shown = lines[i] == "\r\n" || lines[i] == " " ? "" : lines[i];
            if (i < titleLines) {
                EXPECT_EQ(Trim(shown), Trim(text[i]));
            } else {
                EXPECT_EQ(shown, text[i]) << i;
            }
        }
    }
};

TEST_F(PdfTables, OnePageShowsTheLinesOfTheText) {
    MakePileRatios(2, 3);
    for (std::size_t i = 0; i < 2; ++i) {
        Results(i).maxTension = {{0}};
        Results(i).maxCompression = {{-1}};
        Pier(i).m_nColumnSections = 1;
        Results(i).columnDc.Allocate(1, 1, 1);
    }
    ExpectTextLines(kTableMaxAxial, 3, false);
    ExpectTextLines(kTablePileDc, 1, false);
    ExpectTextLines(kTableColumnDc, 1, false);
    Pier(1).m_nStructureType = kTypePileBent;
    ExpectTextLines(kTableColumnDc, 1, false);
}

TEST_F(PdfTables, TheKeyOfACapTableEndsInAnEmptyLine) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    ExpectTextLines(kTableCapShear, 1, true);
    ExpectTextLines(kTableCapMoment, 1, true);
    const std::vector<std::string> lines = Write(kTableCapMoment).pages.at(0).lines;
    EXPECT_NE(std::find(lines.begin(), lines.end(), "(+M33 = Tension at Bottom)"), lines.end());
}

TEST_F(PdfTables, TitlesHaveTheMarginsOfTheNarrowerFont) {
    struct Case {
        TableId table;
        const char* margin;
        std::size_t blanks, blanksOfCombinations;
    };
    const Case cases[] = {
        {kTableMaxAxial, "\t", 19, 38},     {kTablePileDc, "\t", 21, 36},
        {kTableColumnDc, "\t", 34, 36},     {kTableCapShear, "\t", 50, 53},
        {kTableCapMoment, "", 38, 45},      {kTablePileForces, "\t", 33, 46},
        {kTableColumnForces, "\t", 33, 46}, {kTableExtraMembers, "\t", 40, 53},
    };
    for (const Case& c : cases) {
        AddPiers(1);
        Fill(Pier(), 1, 0, 0, 1);
        const std::string plain = Write(c.table).pages.at(0).lines.at(0);
        EXPECT_EQ(plain.substr(0, plain.find_first_not_of(" \t")), c.margin + Blanks(c.blanks));
        MakeCombinations(Pier(), kFamilyLfd, {});
        const std::string wide = Write(c.table).pages.at(0).lines.at(0);
        EXPECT_EQ(wide.substr(0, wide.find_first_not_of(" \t")), Blanks(c.blanksOfCombinations));
    }
}

TEST_F(PdfTables, GapsOfTheAxialTableHoldLineFeedsAndBlanks) {
    AddPiers(1);
    Fill(Pier(), 1, 0, 0, 1);
    MakeCombinations(Pier(), kFamilyArema, {0, 1});
    Results().maxTension = Results().maxCompression = {{-1}, {-1}};
    const PdfFile file = Write(kTableMaxAxial, false);
    const std::vector<std::string>& lines = file.pages.at(0).lines;
    EXPECT_EQ(lines.at(0), Blanks(38) + "Maximum Axial Forces at All Pile Heads");
    EXPECT_EQ(lines.at(1), Blanks(37) + "(USE TO COMPARE TO PILE DRIVE CAPACITY)");
    EXPECT_EQ(lines.at(2), Blanks(32) + "MAXIMUM COMPRESSION AND MAXIMUM TENSION FORCES");
    EXPECT_EQ(lines.at(5), " MAXIMUM LOAD FACTOR DESIGN DATA");
    // Title 5, heading 2, head 4, one row: the gap is at 12.
    EXPECT_EQ(lines.at(12), "\r\n");
    EXPECT_EQ(lines.at(13), "\r\n");
    EXPECT_EQ(lines.at(14), " MAXIMUM SERVICE LOAD DESIGN DATA");
    EXPECT_EQ(lines.at(21), " ");
    EXPECT_EQ(lines.at(22), " ");
    EXPECT_EQ(lines.size(), 23U);
    EXPECT_EQ(m_lines, 23);
}

TEST_F(PdfTables, ATableOfOnePageHasNoContinuation) {
    // Title 3, heading 2, head 3: 43 rows bring the page to line 51, and no further row is needed.
    MakePileRatios(1, 43);
    const PdfFile file = Write(kTablePileDc);
    EXPECT_EQ(file.pages.size(), 1U);
    EXPECT_EQ(file.Bytes().find("cont..."), std::string::npos);
    EXPECT_EQ(m_lines, 51 + 2 + 2);
}

TEST_F(PdfTables, ARowAtLine51IsOnTheNextPageAfterTheHead) {
    MakePileRatios(1, 44);
    const PdfFile file = Write(kTablePileDc);
    ASSERT_EQ(file.pages.size(), 2U);
    const std::vector<std::string>& first = file.pages[0].lines;
    ASSERT_EQ(first.size(), 53U);
    EXPECT_EQ(first[50], "   43          -1    -1      No valid load case");
    EXPECT_EQ(first[51], "");
    EXPECT_EQ(first[52], Blanks(71 + 66) + "cont...");
    const std::vector<std::string>& second = file.pages[1].lines;
    ASSERT_GE(second.size(), 6U);
    EXPECT_EQ(second[0], "cont...");
    EXPECT_EQ(second[1], "");
    EXPECT_EQ(second[2].substr(0, 14), " PROP  PILE  E");
    EXPECT_EQ(second[3].substr(0, 14), "  NO.   NO.   ");
    EXPECT_EQ(second[4], "");
    EXPECT_EQ(second[5], "   44          -1    -1      No valid load case");
    // After the break the count begins at 5.
    EXPECT_EQ(m_lines, 5 + 1 + 2 + 2);
}

TEST_F(PdfTables, FurtherPagesHoldFortySixRows) {
    MakePileRatios(1, 43 + 46 + 46);
    EXPECT_EQ(Write(kTablePileDc).pages.size(), 3U);
    MakePileRatios(1, 43 + 46 + 46 + 1);
    EXPECT_EQ(Write(kTablePileDc).pages.size(), 4U);
}

TEST_F(PdfTables, TheAxialTableContinuesFurtherLeftAndUpright) {
    AddPiers(1);
    Fill(Pier(), 61, 0, 0, 1);  // title 5, head 4: 60 rows bring the upright page to line 69 of 71
    Results().maxTension = Results().maxCompression = {std::vector<int>(61, -1)};
    const PdfFile file = Write(kTableMaxAxial, false);
    ASSERT_EQ(file.pages.size(), 2U);
    EXPECT_EQ(file.pages[0].lines.size(), 71U);
    EXPECT_EQ(file.pages[0].lines.back(), Blanks(57 + 52) + "cont...");
    // The head has its two lines alone, although five are counted.
    const std::vector<std::string>& second = file.pages[1].lines;
    EXPECT_EQ(second.at(2).substr(0, 15), "   SUBSTRUCTURE");
    EXPECT_EQ(second.at(4).substr(0, 22), "              1     61");
    EXPECT_EQ(m_lines, 5 + 1 + 2);
}

TEST_F(PdfTables, CapHeadsAreContinuedWithOneEmptyLine) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    CPier& pier = Pier();
    const int rows = 60;
    Results().shearSupports.Allocate(rows, 1, 4);
    for (int i = 0; i < rows; ++i) {
        Results().shearSupportX.push_back(i);
        Results().shearSupportList.push_back({i, 0});
    }
    pier.m_nCapShearSupports = pier.m_nCapShearPoints = rows;
    const PdfFile file = Write(kTableCapShear);
    ASSERT_GE(file.pages.size(), 3U);
    // Title 3, heading 4, head 3: 41 rows up to line 51.
    EXPECT_EQ(file.pages[0].lines.at(9), "");
    EXPECT_EQ(file.pages[0].lines.at(50).substr(0, 13), "   Col 41 LF ");
    EXPECT_EQ(file.pages[0].lines.back(), Blanks(71 + 66) + "cont...");
    const std::vector<std::string>& second = file.pages[1].lines;
    EXPECT_EQ(second.at(0), "cont...");
    EXPECT_EQ(second.at(2).substr(0, 12), "    LOCATION");
    EXPECT_EQ(second.at(4), "");
    EXPECT_EQ(second.at(5).substr(0, 13), "   Col 42 LF ");
    // 19 rows and the three empty lines: 27. The minimum's heading, 15 lines before the end, still fits.
    EXPECT_EQ(second.at(27), "Pier Cap Shear F22 Design, Substructure  1:");
}

TEST_F(PdfTables, AHeadingNeedsFifteenLinesAndABlockSix) {
    struct Case {
        BreakPoint point;
        int lines;
        std::size_t pages;
    };
    const Case cases[] = {
        {BreakPoint::pierHeading, 37, 1}, {BreakPoint::pierHeading, 38, 2}, {BreakPoint::columnHead, 46, 1},
        {BreakPoint::columnHead, 47, 2},  {BreakPoint::columnHead, 48, 2},  {BreakPoint::key, 46, 1},
        {BreakPoint::key, 47, 2},
    };
    for (const Case& c : cases) {
        StoredStream out(Path());
        CPdfWriter pdf(true);
        pdf.WriteHeader(out);
        CPdfSink sink(out, pdf, "", false);
        for (int i = 0; i < c.lines; ++i) sink.Line("line");
        sink.MayBreak(c.point);
        sink.Line("next");
        EXPECT_EQ(sink.Lines(), c.pages == 1 ? c.lines + 1 : 1);
        sink.EndTable();
        pdf.Finish(out);
        out.Close();
        const PdfFile file(StoredBytes());
        ASSERT_EQ(file.pages.size(), c.pages) << c.lines;
        // A break before a heading, a head or the key writes no words of continuation.
        EXPECT_EQ(file.Bytes().find("cont..."), std::string::npos);
        EXPECT_EQ(file.pages.back().lines.back(), "next");
    }
}

TEST_F(PdfTables, AnEmptyHeadShowsNothingOnEitherPage) {
    MakePileRatios(1, 44);
    data.m_nAnalysisMode = 3;
    const PdfFile file = Write(kTablePileDc);
    ASSERT_EQ(file.pages.size(), 2U);
    // Three lines are still counted for it, so the page has three lines fewer.
    EXPECT_EQ(file.pages[0].lines.size(), 50U);
    EXPECT_EQ(file.pages[0].lines.at(5).substr(0, 5), "    1");
    EXPECT_EQ(file.pages[1].lines.at(2).substr(0, 5), "   44");
}

TEST_F(PdfTables, FootersShowTheirBackslashes) {
    MakePileRatios(1, 50);
    options.footer.on = options.footer.fileName = true;
    options.projectBasePath = "\\\\server\\jobs\\p";
    const PdfFile file = Write(kTablePileDc);
    ASSERT_EQ(file.pages.size(), 2U);
    for (const PdfPage& page : file.pages) EXPECT_EQ(page.footer, "\\\\\\\\server\\\\jobs\\\\p.in");
}

TEST_F(PdfTables, FatigueAloneGivesOneMomentBlockAnExtreme) {
    AddPiers(1);
    Fill(Pier(), 0, 1, 0, 1);
    MakeCombinations(Pier(), kFamilyLrfd, {3});
    const std::vector<std::string> lines = Write(kTableCapMoment).pages.at(0).lines;
    EXPECT_EQ(std::count(lines.begin(), lines.end(), " FATIGUE CASE DATA"), 2);
    const auto heads = std::count_if(
        lines.begin(), lines.end(), [](const std::string& line) { return line.starts_with("    LOCATION"); });
    EXPECT_EQ(heads, 2);
}

TEST_F(PdfTables, TablesThatAreNotEnabledLeaveTheDocumentAlone) {
    EXPECT_TRUE(Write(kTableCapShear).pages.empty());
    EXPECT_EQ(m_lines, 0);
    AddPiers(1);
    enabled = {};
    EXPECT_TRUE(Write(kTablePileForces).pages.empty());
    EXPECT_EQ(m_lines, 0);
}

TEST_F(PdfTables, EachTableOfAReportHasItsOwnPages) {
    MakePileRatios(1, 2);
    Results().maxTension = Results().maxCompression = {{-1}};
    StoredStream out(Path());
    CPdfWriter pdf(true);
    pdf.WriteHeader(out);
    EXPECT_GT(WriteTablePdf(MakeReport(), kTableMaxAxial, out, pdf), 0);
    EXPECT_GT(WriteTablePdf(MakeReport(), kTablePileDc, out, pdf), 0);
    pdf.Finish(out);
    out.Close();
    const PdfFile file(StoredBytes());
    ASSERT_EQ(file.pages.size(), 2U);
    for (const PdfPage& page : file.pages) {
        EXPECT_EQ(static_cast<std::size_t>(page.declaredLength), page.content.size());
    }
    EXPECT_NE(file.Bytes().find("/MediaBox [ 0 0 792 612 ]"), std::string::npos);
}

TEST_F(PdfTables, AViewerShowsTheWordsOfTheTextLineByLine) {
    if (std::system("pdftotext -v >/dev/null 2>&1") != 0) GTEST_SKIP() << "pdftotext is not installed";
    MakePileRatios(1, 60);
    options.footer.on = options.footer.version = true;
    const std::size_t pages = Write(kTablePileDc).pages.size();
    ASSERT_EQ(pages, 2U);
    const std::string shownPath = Path() + ".shown";
    const std::string command = "pdftotext -layout '" + Path() + "' '" + shownPath + "' 2>/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0);
    std::ifstream shown(shownPath);
    std::vector<std::string> lines;
    for (std::string line; std::getline(shown, line);) {
        const std::string words = Words(line);
        const bool frame =
            words.starts_with("v5.2.1") || words.starts_with("(Page") || words.starts_with("Page ");
        if (!words.empty() && words != "cont..." && !frame) lines.push_back(words);
    }
    shown.close();
    std::remove(shownPath.c_str());
    std::vector<std::string> expected;
    for (const std::string& line : SplitText(Text(kTablePileDc))) {
        if (!Words(line).empty()) expected.push_back(Words(line));
    }
    // The second page repeats the head: title, heading, two lines of head and 43 rows come before it.
    const std::vector<std::string> head(expected.begin() + 2, expected.begin() + 4);
    expected.insert(expected.begin() + 4 + 43, head.begin(), head.end());
    EXPECT_EQ(lines, expected);
}

TEST_F(PdfTables, TheTitlePageIsADocumentOfItsOwn) {
    options.viewerFontSize = 14;  // 34 lines a page: 18 less 2
    options.footer.on = options.footer.date = true;
    StoredStream out(Path());
    WriteTitlePagePdf(options, out);
    out.Close();
    const PdfFile file(StoredBytes());
    ASSERT_EQ(file.pages.size(), 1U);
    const std::vector<std::string>& lines = file.pages[0].lines;
    ASSERT_EQ(lines.size(), 16U + 5U);
    for (std::size_t i = 0; i < 16; ++i) EXPECT_EQ(lines[i], "");
    // Centred on 114 characters, the width of a 10 point font, whatever the viewer's is.
    EXPECT_EQ(lines[16], Blanks(53) + "Lumerin");
    EXPECT_EQ(lines[17], Blanks(57));
    EXPECT_EQ(lines[18], Blanks(47) + "Results generated by");
    EXPECT_EQ(lines[19], Blanks(46) + "Tarnsway Version 5.2.1");
    EXPECT_EQ(lines[20], Blanks(42) + "on Saturday, November 14, 2026");
    EXPECT_EQ(file.pages[0].footer, "");
    EXPECT_NE(file.Bytes().find("/MediaBox [ 0 0 612 792 ]"), std::string::npos);
    EXPECT_EQ(static_cast<std::size_t>(file.pages[0].declaredLength), file.pages[0].content.size());
}

}  // namespace lumerin
