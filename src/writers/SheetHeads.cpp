// SPDX-License-Identifier: MIT
#include "writers/SheetHeads.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "framework/Index.h"
#include "tables/Catalogue.h"
#include "tables/Words.h"
#include "text/Format.h"

namespace lumerin {

namespace {

// ---- worksheet heads

using Widths = std::array<int, 15>;  // from column 2; 0 after the last

struct SheetForm {
    int columns[2];     // announced, without and with combinations
    int merged[2];      // columns that the title spans, likewise
    Widths widths;      // with combinations
    const char* title;  // null: by the first substructure's type
};
constexpr std::array<SheetForm, 9> kSheetForms = {{
    {{11, 13},
     {8, 10},
     {70, 35, 35, 60, 58, 55, 45, 35, 60, 58, 55},
     "Maximum Axial Forces at All Pile Heads"},
    {{16, 16},
     {12, 13},
     {35, 35, 35, 35, 35, 60, 20, 58, 58, 58, 58, 58, 58, 55},
     "Maximum Demand/Capacity Ratio For All Pile Properties (Cross Sections)"},
    {{16, 16},
     {12, 13},
     {35, 45, 35, 35, 35, 60, 20, 58, 58, 58, 58, 58, 58, 55},
     "Maximum Demand/Capacity Ratio for All Column Properties (Cross Sections)"},
    {{16, 16}, {12, 13}, {50, 50, 35, 50, 35, 60, 20, 58, 58, 58, 58, 58, 58, 55}, nullptr},
    {{16, 16}, {9, 10}, {50, 50, 35, 50, 35, 60, 20, 58, 58, 58, 55}, nullptr},
    {{16, 16},
     {13, 14},
     {35, 35, 35, 35, 35, 60, 20, 50, 58, 58, 58, 58, 58, 58, 55},
     " Maximum Forces for All Pile Properties (Cross Sections)"},
    {{18, 18},
     {13, 14},
     {35, 45, 35, 35, 35, 60, 20, 50, 58, 58, 58, 58, 58, 58, 55},
     "Maximum Forces for All Column Properties (Cross Sections)"},
    {{16, 16},
     {13, 14},
     {35, 45, 35, 35, 35, 60, 20, 50, 58, 58, 58, 58, 58, 58, 55},
     "Maximum Forces for All Extra Member Properties"},
    {{14, 14}, {12, 12}, {86, 86, 86, 86, 86, 86, 86, 86, 86, 86, 86, 86}, "Internal Forces at Pile Heads"},
}};
constexpr Widths kMaxAxialPlainWidths = {70, 35, 35, 58, 55, 45, 35, 58, 55};
constexpr std::size_t kLimitStateColumn = 5;  // left out without combinations
constexpr int kFirstColumn = 2;               // column 1 stays a narrow margin

constexpr std::string_view kTitleRow =
    "  <Row ss:Height=\"41\">\n"
    "    <Cell><Data ss:Type=\"String\">                                            </Data></Cell>\n"
    "    <Cell ss:MergeAcross=\"";

// The subtitles of the pile head table: blanks of the margin cell, text.
struct Subtitle {
    const char* margin;
    const char* text;
};
constexpr Subtitle kSubtitles[] = {
    {"                                     ", "(USE TO COMPARE TO PILE DRIVE CAPACITY)"},
    {"                                ", "MAXIMUM COMPRESSION AND MAXIMUM TENSION FORCES"},
};

std::vector<int> ColumnWidths(const CDataSet& data, TableId table) {
    Widths widths = kSheetForms[Index(table)].widths;
    const bool plain = !data.HasCombinations();
    if (table == kTableMaxAxial && plain) widths = kMaxAxialPlainWidths;
    const bool dropLimitState = plain && table != kTableMaxAxial && table != kTablePileHeads;
    std::vector<int> out;
    for (std::size_t i = 0; i < widths.size() && widths[i] > 0; ++i) {
        if (!dropLimitState || i != kLimitStateColumn) out.push_back(widths[i]);
    }
    return out;
}

void AppendSubtitles(std::string& out, int merged) {
    for (const Subtitle& subtitle : kSubtitles) {
        out.append("  <Row ss:Height=\"21\">\n    <Cell><Data ss:Type=\"String\">").append(subtitle.margin);
        out += "</Data></Cell>\n    <Cell ss:MergeAcross=\"";
        AppendInt(out, merged);
        out.append("\" ss:StyleID=\"s66\"><Data ss:Type=\"String\">").append(subtitle.text);
        out += "</Data></Cell>\n  </Row>\n";
    }
}

std::string Head(const CDataSet& data, TableId table, std::string_view name, long long rows) {
    const SheetForm& form = kSheetForms[Index(table)];
    const std::size_t mode = data.HasCombinations() ? 1 : 0;
    std::string out = "<Worksheet ss:Name=\"";
    out.append(name).append("\">\n<Table ss:ExpandedColumnCount=\"");
    AppendInt(out, form.columns[mode]);
    out += "\" ss:ExpandedRowCount=\"";
    AppendInt(out, rows);
    out += "\" x:FullColumns=\"1\"\nx:FullRows=\"1\" ss:DefaultRowHeight=\"15\">\n";
    int column = kFirstColumn;
    for (const int width : ColumnWidths(data, table)) {
        out += "  <Column ss:Index=\"";
        AppendInt(out, column++);
        out += "\"  ss:Width=\"";
        AppendFixed(out, width, 6);
        out += "\"/>\n";
    }
    out += kTitleRow;
    AppendInt(out, form.merged[mode]);
    out += table == kTableMaxAxial || table == kTablePileHeads ? "\"  ss:StyleID" : "\" ss:StyleID";
    out += "=\"s87\"><Data ss:Type=\"String\">";
    out += form.title != nullptr ? form.title : TableTitle(table, data.FirstPier().m_nStructureType);
    out += "</Data></Cell>\n  </Row>\n";
    if (table == kTableMaxAxial) AppendSubtitles(out, form.merged[mode]);
    if (table == kTableCapShear || table == kTableCapMoment) out += "<Row></Row>\n<Row></Row>\n";
    return out;
}

// ---- column heads

struct HeadForm {
    TableId table;
    std::string_view opening;
    std::array<std::string_view, 4> upper, lower;  // the columns before the step
    bool extremeColumn;                            // Max/Min over Force
    bool allForces;                                // else axial force and the two bending moments
    std::string_view closing;
};
constexpr std::array<std::string_view, 4> kNumbers = {"NO.", "NO.", "NO.", "NO."};
constexpr std::array<std::string_view, 4> kCapUpper = {"LOCATION", "ELEM", "PROP", "NODE "};
constexpr std::array<std::string_view, 4> kCapLower = {"&amp; SIDE", "NO. ", "NO. ", "NO. "};
constexpr std::string_view kHeadEnd = "  </Row>\n<Row></Row>\n";
constexpr std::array<HeadForm, 7> kHeadForms = {{
    {kTablePileDc,
     "  <Row></Row>\n<Row>",
     {"PROP", "PILE ", "ELEM ", "NODE "},
     kNumbers,
     false,
     true,
     kHeadEnd},
    {kTableColumnDc,
     "  <Row></Row>\n\t<Row>",
     {"PROP", "COLUMN ", "ELEM ", "NODE "},
     kNumbers,
     false,
     true,
     "  </Row>\n<Row></Row>"},
    {kTableCapShear, "\n\t<Row>", kCapUpper, kCapLower, false, true, kHeadEnd},
    {kTableCapMoment, "\n\t<Row>", kCapUpper, kCapLower, false, false, kHeadEnd},
    {kTablePileForces,
     "  <Row></Row>\n<Row>\n ",
     {"PROP", "PILE ", "ELEM ", "NODE "},
     kNumbers,
     true,
     true,
     kHeadEnd},
    {kTableColumnForces,
     "  <Row></Row>\n<Row>",
     {"PROP", "COLUMN ", "ELEM ", "NODE "},
     kNumbers,
     true,
     true,
     kHeadEnd},
    {kTableExtraMembers,
     "  <Row></Row>\n<Row>",
     {"PROP", "XMEMBR ", "ELEM ", "NODE "},
     kNumbers,
     true,
     true,
     kHeadEnd},
}};

void AppendHeadCell(std::string& out, std::string_view text, bool first = false) {
    out += "\t\t<Cell ";
    if (first) out += "ss:Index=\"2\" ";
    out.append("ss:StyleID=\"s65\"><Data ss:Type=\"String\">").append(text).append("</Data></Cell>\n");
}

void AppendHeadCells(std::string& out, const std::array<std::string_view, 4>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) AppendHeadCell(out, texts[i], i == 0);
}

void AppendUpperRow(std::string& out, const HeadForm& form, const CDataSet& data) {
    AppendHeadCells(out, form.upper);
    AppendHeadCell(out, std::string(StepWordsOf(data).upper) + " ");
    const std::string_view family = FamilyName(data.FirstPier().m_nCodeFamily);
    if (data.HasCombinations() && !family.empty()) AppendHeadCell(out, family);
    AppendHeadCell(out, "I/J");
    if (form.extremeColumn) AppendHeadCell(out, "Max/Min");
    AppendHeadCell(out, "FAX");
    if (form.allForces) {
        AppendHeadCell(out, "F22");
        AppendHeadCell(out, "F33");
    }
    AppendHeadCell(out, "M22");
    AppendHeadCell(out, "M33");
    if (form.allForces) AppendHeadCell(out, "TORQUE");
    AppendHeadCell(out, "D/C");
}

void AppendLowerRow(std::string& out, const HeadForm& form, const CDataSet& data) {
    const std::string force = "(" + data.m_sForceUnit + ")";
    const std::string moment = "(" + data.m_sMomentUnit + ")";
    AppendHeadCells(out, form.lower);
    AppendHeadCell(out, std::string(StepWordsOf(data).lower) + " ");
    if (data.HasCombinations()) AppendHeadCell(out, "");
    AppendHeadCell(out, "");
    if (form.extremeColumn) AppendHeadCell(out, "Force");
    for (int i = 0; i < (form.allForces ? 3 : 1); ++i) AppendHeadCell(out, force);
    for (int i = 0; i < (form.allForces ? 3 : 2); ++i) AppendHeadCell(out, moment);
    AppendHeadCell(out, "(Ratio)");
}

}  // namespace

std::string WorksheetHead(const CDataSet& data, TableId table, long long rows) {
    return Head(data, table, g_TableFileNames[Index(table)], rows);
}

std::string PileHeadWorksheetHead(const CDataSet& data, int pier, long long rows) {
    return Head(data, kTablePileHeads, FormatNumbered("Substructure %d", pier + 1), rows);
}

StepWords StepWordsOf(const CDataSet& data) {
    if (data.HasCombinations()) return {"LOAD", "COMB"};
    if (data.m_nAnalysisMode == kModeTimeSteps) return {"TIME", "STEP"};
    return {"LOAD", "CASE"};
}

std::string ColumnHeadRows(const CDataSet& data, TableId table) {
    const auto form = std::find_if(kHeadForms.begin(), kHeadForms.end(),
                                   [table](const HeadForm& entry) { return entry.table == table; });
    if (form == kHeadForms.end()) return {};
    std::string out(form->opening);
    AppendUpperRow(out, *form, data);
    out += "  </Row>\n  <Row>\n";
    AppendLowerRow(out, *form, data);
    return out.append(form->closing);
}

}  // namespace lumerin
