// SPDX-License-Identifier: MIT
#include "web/WebReport.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "model/Applicability.h"
#include "support/SampleFolder.h"
#include "tables/TableText.h"
#include "text/Format.h"
#include "web/PrintedColumns.h"
#include "web/PrintedTables.h"

namespace lumerin {

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* kPresets[] = {"pier", "bent", "group", "walls", "bridge", "history"};

// A table of a page: for each row its cells, without markup and without the word of a mark.
using Rows = std::vector<std::vector<std::string>>;

std::string WithoutMarkup(const std::string& markup) {
    const std::string marked = ReplaceAll(markup, " <em>over</em>", "");
    std::string text;
    for (std::size_t at = 0; at < marked.size();) {
        const std::size_t tag = std::min(marked.find('<', at), marked.size());
        text.append(marked, at, tag - at);
        at = std::min(marked.find('>', tag), marked.size() - 1) + 1;
    }
    text = ReplaceAll(ReplaceAll(text, "&lt;", "<"), "&gt;", ">");
    return ReplaceAll(ReplaceAll(text, "&quot;", "\""), "&amp;", "&");
}

std::string Part(const std::string& text, const std::string& before, const std::string& after) {
    const std::size_t from = text.find(before);
    if (from == std::string::npos) return {};
    const std::size_t start = from + before.size();
    return text.substr(start, text.find(after, start) - start);
}

std::vector<std::string> Cells(const std::string& row, const std::string& end) {
    std::vector<std::string> cells;
    for (std::size_t at = 0, next = 0; (next = row.find(end, at)) != std::string::npos;
         at = next + end.size()) {
        cells.push_back(WithoutMarkup(row.substr(at, next - at)));
    }
    return cells;
}

Rows RowsOfTable(const std::string& page, const std::string& id) {
    const std::string body =
        Part(Part(page, "<table id=\"" + id + "\"", "</table>"), "<tbody>\n", "</tbody>");
    Rows rows;
    for (std::size_t at = 0, next = 0; (next = body.find("</tr>\n", at)) != std::string::npos;
         at = next + 6) {
        rows.push_back(Cells(body.substr(at, next - at), "</td>"));
    }
    return rows;
}

std::string Joined(const std::vector<std::string>& cells, std::size_t from) {
    std::string text;
    for (std::size_t i = from; i < cells.size(); ++i) text += RemoveBlanks(cells[i]);
    return text;
}

class WebReport : public testing::Test {
  protected:
    void Open(const std::string& base, const CaseChoice& cases = {}, const Limits& limits = {}) {
        m_evaluation.reset();
        m_opened = LoadByName(ProjectName(base));
        m_evaluation = std::make_unique<Evaluation>(*m_opened, cases, limits, WebReportNeeds());
    }
    void OpenSample(const std::string& preset) { Open(m_folder.Write(preset)); }

    std::string Page(const std::string& hostVersion = "4.17") const {
        std::string page;
        WriteWebReport(*m_evaluation, {{2026, 11, 16, 1, 9, 30, 0}, hostVersion},
                       [&page](std::string_view bytes) { page.append(bytes); });
        return page;
    }

    const CDataSet& Data() const { return m_evaluation->Data(); }

    // The lines of a table's text form without their blanks; empty where it does not apply.
    std::vector<std::string> TextLines(TableId table) const {
        const TableFlags enabled = ApplicableTables(Data(), m_evaluation->Selection());
        ReportOptions options;
        options.format = kFormatText;
        const std::string path = m_folder.Base("table.txt");
        StoredStream out(path);
        WriteTableText({Data(), m_evaluation->Selection(), m_evaluation->Results(), enabled, options,
                        m_evaluation->Rows()},
                       table, out);
        out.Close();
        std::ifstream file(path, std::ios::binary);
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);)
            lines.push_back(RemoveBlanks(ReplaceAll(line, "\r", "")));
        return lines;
    }

    SampleFolder m_folder;
    std::unique_ptr<OpenProject> m_opened;
    std::unique_ptr<Evaluation> m_evaluation;
};

// Whether a line without blanks has a number with two decimals, or a word in place of a result.
bool HasResult(const std::string& line) {
    if (line.find("***") != std::string::npos || line.find("Novalidloadcase") != std::string::npos)
        return true;
    const auto isDigit = [&line](std::size_t at) {
        return at < line.size() && line[at] >= '0' && line[at] <= '9';
    };
    for (std::size_t at = line.find('.'); at != std::string::npos; at = line.find('.', at + 1)) {
        if (at > 0 && isDigit(at - 1) && isDigit(at + 1) && isDigit(at + 2)) return true;
    }
    return false;
}

// The values of an attribute that begins so, in the order of the page.
std::vector<std::string> ValuesOf(const std::string& page, const std::string& attribute) {
    std::vector<std::string> values;
    for (std::size_t at = page.find(attribute); at != std::string::npos; at = page.find(attribute, at)) {
        at += attribute.size();
        values.push_back(page.substr(at, page.find('"', at) - at));
    }
    return values;
}

// Columns that the page has besides those of the text form: substructure, class and sign of a row's block.
std::size_t BlockColumns(const std::string& page, TableId table) {
    const std::string head =
        Part(Part(page, "<table id=\"" + PrintedTableId(table) + "\"", "</table>"), "<thead>", "</thead>");
    const std::string first = table == kTableMaxAxial                               ? "SUBSTRUCTURE"
                              : table == kTableCapShear || table == kTableCapMoment ? "LOCATION"
                                                                                    : "PROP";
    const std::string before = head.substr(0, head.find("data-name=\"" + first + "\""));
    return static_cast<std::size_t>(std::count(before.begin(), before.end(), '<') / 5);
}

TEST_F(WebReport, TheRowsOfTheTablesAreTheLinesOfTheTextReport) {
    int compared = 0;
    for (const char* preset : kPresets) {
        OpenSample(preset);
        const std::string page = Page();
        for (const TableId table : kPrintedTables) {
            SCOPED_TRACE(std::string(preset) + " " + PrintedTableId(table));
            std::vector<std::string> printed = TextLines(table);
            // Head lines and headings have no number with two decimals, and rows have one or three stars.
            std::erase_if(printed, [](const std::string& line) { return !HasResult(line); });
            const std::size_t skipped = BlockColumns(page, table);
            std::vector<std::string> shown;
            for (const auto& row : RowsOfTable(page, PrintedTableId(table))) {
                shown.push_back(Joined(row, skipped));
            }
            if (std::string(preset) == "walls") printed.clear();  // the dialog offers a wall no table
            EXPECT_EQ(shown, printed);
            compared += static_cast<int>(shown.size());
        }
    }
    EXPECT_GT(compared, 1000);
}

TEST_F(WebReport, TheHeadsOfTheTablesAreThoseOfTheTextReport) {
    const auto lower = [](std::string text) {
        std::ranges::transform(text, text.begin(),
                               [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
        return text;
    };
    for (const char* preset : kPresets) {
        OpenSample(preset);
        for (const TableId table : kPrintedTables) {
            SCOPED_TRACE(std::string(preset) + " " + PrintedTableId(table));
            const ColumnHead head = BuildColumnHead(Data(), LayoutOf(table));
            std::string words, units;
            for (const HtmlColumn& column : PrintedColumns(Data(), LayoutOf(table))) {
                words += column.words;
                units += column.lower;
            }
            EXPECT_EQ(RemoveBlanks(words), RemoveBlanks(head.lines.at(0)));
            EXPECT_EQ(lower(RemoveBlanks(units)), lower(RemoveBlanks(head.lines.at(1))));
        }
    }
}

TEST_F(WebReport, EachRowHasACellForEachColumn) {
    for (const char* preset : kPresets) {
        OpenSample(preset);
        const std::string page = Page();
        for (const TableId table : kPrintedTables) {
            const std::string markup = Part(page, "<table id=\"" + PrintedTableId(table) + "\"", "</table>");
            const std::size_t columns = Cells(Part(markup, "<thead>", "</thead>"), "</th>").size();
            for (const auto& row : RowsOfTable(page, PrintedTableId(table))) {
                if (markup.find("colspan") != std::string::npos) continue;
                EXPECT_EQ(row.size(), columns) << preset << " " << markup.substr(0, 200);
            }
        }
    }
}

TEST_F(WebReport, EveryLinkLeadsToAPlaceOfThePageAndNoPlaceIsThereTwice) {
    for (const char* preset : kPresets) {
        OpenSample(preset);
        const std::string page = Page();
        std::set<std::string> ids;
        for (const std::string& id : ValuesOf(page, " id=\"")) {
            EXPECT_TRUE(ids.insert(id).second) << preset << ": twice " << id;
        }
        const std::vector<std::string> links = ValuesOf(page, " href=\"#");
        for (const std::string& link : links) {
            EXPECT_TRUE(ids.contains(link)) << preset << ": no place " << link;
        }
        EXPECT_GT(links.size(), 10U) << preset;
        EXPECT_THAT(page, Not(HasSubstr("href=\"http")));
    }
}

TEST_F(WebReport, AMarkLeadsToItsRowAndTheRowBack) {
    OpenSample("pier");
    const std::string page = Page();
    // Pile 7 of the sample: its first row of table 0, and its bar in the figure of the pile heads.
    EXPECT_THAT(page, HasSubstr("<a href=\"#f-pile-heads-1-pile-7\">7</a>"));
    const std::string row = Part(page, "<a href=\"#f-pile-heads-1-pile-7\">", "</tr>");
    const std::string target = Part(page, "<g id=\"f-pile-heads-1-pile-7\">", "</g>");
    EXPECT_THAT(target, HasSubstr("<title>pile 7: "));
    EXPECT_THAT(page, HasSubstr("<tr id=\"t0-7\"><td>strength</td><td>1</td>"));
    EXPECT_TRUE(std::regex_search(
        page,
        std::regex("<a href=\"#t0-7\" aria-label=\"pile 7: [^>]*>\\s*<g id=\"f-pile-heads-1-pile-7\">")));
    // A design place of the cap.
    EXPECT_THAT(page, HasSubstr("<a href=\"#f-cap-moment-1-strength-max-col-1-lf\">Col 1 LF</a>"));
    EXPECT_THAT(page, HasSubstr("<g id=\"f-cap-moment-1-strength-max-col-1-lf\">"));
}

TEST_F(WebReport, ARatioOverTheLimitHasAWordBesideItsColour) {
    OpenSample("bridge");
    const std::string page = Page();
    EXPECT_THAT(page, HasSubstr("FAILS: greatest D/C 1.050"));
    const std::string table = Part(page, "<table id=\"t1\"", "</table>");
    EXPECT_THAT(table, HasSubstr("<td class=\"over\">1.01 <em>over</em></td>"));
    EXPECT_THAT(table, Not(HasSubstr("<td>1.01</td>")));
    EXPECT_THAT(table, HasSubstr("<td>0.93</td>"));
    Limits limits;
    limits.ratio = 1.0051;
    Open(m_folder.Base("bridge"), {}, limits);
    EXPECT_THAT(Page(), HasSubstr("<td class=\"over\">1.01 <em>over</em></td>"));
    limits.ratio = 2.0;
    Open(m_folder.Base("bridge"), {}, limits);
    EXPECT_THAT(Page(), Not(HasSubstr("<em>over</em>")));
    EXPECT_THAT(Page(), HasSubstr("PASSES: greatest D/C 1.050"));
}

TEST_F(WebReport, AProjectWithoutTablesGetsThePageWithTheReason) {
    OpenSample("walls");
    const std::string page = Page();
    EXPECT_THAT(page, HasSubstr("This table does not apply: a wall alone has no tables."));
    EXPECT_THAT(page, Not(HasSubstr("<table id=\"t0\"")));
    EXPECT_THAT(page, HasSubstr("id=\"figure-dc-1\""));
    OpenSample("group");
    EXPECT_THAT(Page(), HasSubstr("This table does not apply: no cap."));
}

TEST_F(WebReport, TextsOfTheProjectAreTextsOfThePage) {
    samples::SampleOptions options;
    options.preset = "group";
    auto project = samples::MakeProject(options);
    project.title = "<script>alert(1)</script> & \"Co\" \xFF\xC3\x28";
    samples::WriteProject(m_folder.Path(), project);
    Open(m_folder.Base("group"));
    const std::string page = Page("<b>4</b>");
    EXPECT_THAT(
        page,
        HasSubstr("<h1>&lt;script&gt;alert(1)&lt;/script&gt; &amp; &quot;Co&quot; \xC3\xBF\xC3\x83(</h1>"));
    EXPECT_THAT(page, Not(HasSubstr("<script>alert")));
    EXPECT_THAT(page, HasSubstr("<dd>&lt;b&gt;4&lt;/b&gt;</dd>"));
    EXPECT_THAT(page, HasSubstr("<dd>November 16, 2026, 9:30:00 AM</dd>"));
}

TEST_F(WebReport, NoFolderIsShown) {
    for (const char* preset : kPresets) {
        OpenSample(preset);
        EXPECT_THAT(Page(), Not(HasSubstr(m_folder.Path().string()))) << preset;
    }
}

TEST_F(WebReport, LongListsOfCasesEndWithTheCommandForTheRest) {
    samples::SampleOptions options;
    options.preset = "group";
    options.cases = 2003;
    Open(m_folder.Write(options));
    const std::string page = Page();
    EXPECT_EQ(RowsOfTable(page, "case-list").size(), 2000U);
    EXPECT_THAT(page,
                HasSubstr("The first 2000 of 2003 are listed. All of them: <code>lumerin export group.in "
                          "--table cases</code>"));
    options.cases = 2000;
    Open(m_folder.Write(options));
    EXPECT_EQ(RowsOfTable(Page(), "case-list").size(), 2000U);
    EXPECT_THAT(Page(), Not(HasSubstr("are listed. All of them")));
}

TEST_F(WebReport, TheCasesUsedAreThoseThatWereChosen) {
    CaseChoice choice;
    ReadCases("1-14", choice);
    Open(m_folder.Write("pier"), choice);
    const std::string page = Page();
    EXPECT_THAT(page, HasSubstr("<dd>14 of 26 load combinations</dd>"));
    const Rows rows = RowsOfTable(page, "case-list");
    ASSERT_EQ(rows.size(), 14U);
    EXPECT_EQ(rows.back().front(), "14");
    EXPECT_EQ(rows.back().at(2), "extreme");
}

TEST_F(WebReport, TheRangeOfAPileHeadIsThatOfItsFigure) {
    OpenSample("pier");
    const std::string page = Page();
    const Rows rows = RowsOfTable(page, "t8");
    ASSERT_EQ(rows.size(), 8U);
    // The extremes of table 0 over the classes: the least of the compressions.
    double least = 0.0;
    for (const auto& row : RowsOfTable(page, "t0")) {
        if (row.at(2) == "5") least = std::min(least, std::stod(row.at(9)));
    }
    EXPECT_EQ(rows.at(4).at(1), "5");
    EXPECT_EQ(std::stod(rows.at(4).at(2)), least);
}

TEST_F(WebReport, AFileOfAFigureThatCannotBeReadLeavesTheReport) {
    const std::string base = m_folder.Write("pier");
    std::ofstream(base + ".PEL", std::ios::binary) << " 1  2000000000  0  26  60.00\n";
    Open(base);
    const std::string page = Page();
    EXPECT_THAT(page, HasSubstr("The files of this figure cannot be read."));
    EXPECT_THAT(page, HasSubstr("embedment trial count 2000000000 is out of range"));
    EXPECT_THAT(page, HasSubstr("<table id=\"t0\""));
}

}  // namespace

}  // namespace lumerin
