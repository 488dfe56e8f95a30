// SPDX-License-Identifier: MIT
#include "tables/Catalogue.h"

#include <algorithm>
#include <array>

#include "framework/Index.h"
#include "tables/Words.h"
#include "text/Format.h"

namespace lumerin {

namespace {

// Whether a slot has a block.
struct SlotRule {
    CodeFamily family;
    LimitClass slot;
    bool needsClass;     // the block appears only when a selected case has that class
    bool capMomentOnly;  // fatigue has a block in the cap moment table alone
};
constexpr std::array<SlotRule, 7> kSlotRules{{
    {kFamilyLrfd, kStrength, true, false},
    {kFamilyLrfd, kService, true, false},
    {kFamilyLrfd, kExtreme, true, false},
    {kFamilyLrfd, kFatigue, true, true},
    {kFamilyLfd, kStrength, false, false},
    {kFamilyArema, kStrength, true, false},
    {kFamilyArema, kService, true, false},
}};

// How much of a report the text viewer shows on one printed page.
struct ViewerPage {
    int fontSize;
    int charsPerLine;
    int linesPerPage;
};
constexpr ViewerPage kDefaultPage{0, 142, 61};
constexpr std::array<ViewerPage, 6> kViewerPages{{
    {8, 142, 61},
    {9, 126, 54},
    {10, 114, 48},
    {11, 103, 44},
    {12, 95, 40},
    {14, 81, 34},
}};

const ViewerPage& PageOf(int fontSize) {
    for (const ViewerPage& page : kViewerPages) {
        if (page.fontSize == fontSize) return page;
    }
    return kDefaultPage;
}

int LinesLeft(int pageLines, int usedLines) {
    if (usedLines <= pageLines || pageLines <= 0) return pageLines - usedLines;
    return pageLines - usedLines % pageLines;
}

constexpr std::size_t kNameWidth = 15;

}  // namespace

std::string TableHeadTitle(TableId table, const CDataSet& data) {
    if (data.IsPierless()) return {};
    const bool severalPiers = data.m_Piers.size() > 1;
    const bool columnTable = table == kTableColumnDc || table == kTableColumnForces;
    // Substructures of several types share the column tables, so their title is the pier's.
    const StructureType type = columnTable && severalPiers ? kTypePier : data.FirstPier().m_nStructureType;
    return TableTitle(table, type);
}

bool SectionHeading(const Report& report, TableId table, LimitClass slot, std::string& heading) {
    const CDataSet& data = report.data;
    heading.clear();
    if (data.IsPierless()) return false;
    const CPier& first = data.FirstPier();
    const CodeFamily family = first.m_nCodeFamily;
    if (!first.m_bCombinations) return true;
    if (family < kFamilyLrfd || family > kFamilyArema) return true;
    for (const SlotRule& rule : kSlotRules) {
        if (rule.family != family || rule.slot != slot) continue;
        if (rule.capMomentOnly && table != kTableCapMoment) return false;
        if (rule.needsClass && !report.selection.IsClassPresent(slot)) return false;
        // The section tables 0, 1 and 2 carry the word MAXIMUM, the cap tables and the force tables do not.
        heading = " ";
        if (table <= kTableColumnDc) heading += g_MaximumWord;
        heading += ClassHeading(family, slot);
        return true;
    }
    return false;
}

std::string FormatCellText(std::string_view text, std::size_t width, ReportFormat format) {
    std::string cell(text == "0.00" || text == "-0.00" ? std::string_view("0") : text);
    if (format != kFormatSpreadsheet) return PadLeft(cell, width);
    if (cell.find('\n') == std::string::npos) cell += '\t';
    return cell;
}

std::string MissingForceColumns(int extreme) {
    if (extreme < 0 || extreme > 11) return {};
    std::string columns;
    for (int column = 0; column < 6; ++column) {
        columns += column == extreme / 2 ? "       none" : "        ***";
    }
    return columns + "       ***";
}

std::string PadName15(std::string_view name) {
    return PadLeft(name, kNameWidth);
}

std::string CenterText(int fontSize, std::string_view text) {
    const int length = static_cast<int>(text.size());
    const int blanks = std::max(0, (CharsPerLine(fontSize) - length) / 2);
    return Blanks(Index(blanks)).append(text);
}

int CharsPerLine(int fontSize) {
    return PageOf(fontSize).charsPerLine;
}

int LinesPerPage(int fontSize) {
    return PageOf(fontSize).linesPerPage;
}

void PadToPageEnd(int pageLines, int usedLines, StoredStream& out) {
    const int left = LinesLeft(pageLines, usedLines);
    if (left > 0) out.Write(std::string(Index(left), '\n'));
}

int TitlePageBlankLines(const ReportOptions& options) {
    return static_cast<int>(LinesPerPage(options.viewerFontSize) * 0.5 + 1.0) - 2;
}

std::array<std::string, 5> TitlePageLines(const ReportOptions& options) {
    std::array<std::string, 5> lines;
    for (std::size_t i = 0; i < lines.size(); ++i) lines[i] = g_TitleLines[i];
    lines[3] += options.versionText;
    lines[4] += DateText(1, options.now());
    return lines;
}

}  // namespace lumerin
