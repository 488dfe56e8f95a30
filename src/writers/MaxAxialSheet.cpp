// SPDX-License-Identifier: MIT
// The worksheet of maximum axial forces at pile heads.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "framework/Index.h"
#include "tables/Catalogue.h"
#include "tables/TableLayout.h"
#include "tables/Words.h"
#include "writers/SheetCells.h"
#include "writers/SheetHeads.h"
#include "writers/SheetRows.h"
#include "writers/TableSheets.h"
#include "writers/WorkbookFrame.h"

namespace lumerin {

namespace {

// ---- headings of the limit classes

constexpr std::string_view kIndexedHeading =
    "    <Row ss:Index=\"5\">\t<Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">";
constexpr std::string_view kFirstSlotHeading =
    "    <Row>\t<Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">";
constexpr std::string_view kServiceHeading =
    "  <Row></Row>\n<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">";
constexpr std::string_view kExtremeHeading =
    "  <Row></Row>\n\t<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">";
constexpr std::string_view kHeadingEnd = "</Data></Cell>\n  </Row>\n";

// In this sheet load factor design has "CASES" where all other tables have "DATA"; AREMA's later
// substructures have "DATA" here too.
constexpr std::string_view kLoadFactorCases = "LOAD FACTOR DESIGN CASES";

std::string_view FirstSlotWords(CodeFamily family, std::size_t pier) {
    const bool cases = family == kFamilyLfd || (family == kFamilyArema && pier == 0);
    return cases ? kLoadFactorCases : ClassHeading(family, kStrength);
}

// The blank row before a later substructure's first heading.
std::string_view BlankRow(CodeFamily family, std::size_t pier) {
    if (pier == 1) return "\t<Row> </Row>\n";
    return family == kFamilyLfd ? "" : " <Row> </Row>\n";
}

std::string FirstSlotHeading(CodeFamily family, std::size_t pier) {
    std::string out;
    const std::string_view words = FirstSlotWords(family, pier);
    if (words.empty()) return out;
    if (pier > 0) out += BlankRow(family, pier);
    out.append(pier == 0 ? kIndexedHeading : kFirstSlotHeading);
    return out.append(g_MaximumWord).append(words).append(kHeadingEnd);
}

std::string SlotHeading(CodeFamily family, LimitClass slot, std::size_t pier) {
    if (slot == kStrength) return FirstSlotHeading(family, pier);
    std::string out(slot == kService ? kServiceHeading : kExtremeHeading);
    return out.append(g_MaximumWord).append(ClassHeading(family, slot)).append(kHeadingEnd);
}

// ---- column heads

constexpr std::string_view kHeadCell = "\t\t<Cell ss:StyleID=\"s65\"><Data ss:Type=\"String\">";

std::string PlainColumnHead(const CDataSet& data) {
    const StepWords words = StepWordsOf(data);
    const std::string unit = "(" + data.m_sForceUnit + ")";
    const std::array<std::string_view, 10> upper = {
        "", "SUBSTRUCTURE", "PILE", words.upper, "MAX TENSION", "D/C", "", words.upper, "MAX COMP", "D/C"};
    const std::array<std::string_view, 10> lower = {"",        "", "",          words.lower, unit,
                                                    "(ratio)", "", words.lower, unit,        "(ratio)"};
    std::string out = "\t<Row></Row>\n\t<Row>\n";
    for (const std::string_view text : upper) AppendTextCell(out, kHeadCell, text);
    out += "\t</Row>\n\t<Row>\n";
    for (const std::string_view text : lower) AppendTextCell(out, kHeadCell, text);
    return out += "\t</Row>\n\t<Row></Row>\n";
}

void AppendGroupHead(std::string& out, const CDataSet& data, std::string_view force) {
    const std::string_view family = FamilyName(data.FirstPier().m_nCodeFamily);
    AppendTextCell(out, kHeadCell, StepWordsOf(data).upper);
    if (!family.empty()) AppendTextCell(out, kHeadCell, family);
    AppendTextCell(out, kHeadCell, force);
    AppendTextCell(out, kHeadCell, "D/C");
}

// The lower row of this head has kips also in metric projects.
constexpr std::string_view kCombinationLowerRow =
    "\t</Row>\n\t<Row>\n"
    "    <Cell ss:StyleID=\"s65\" ss:Index=\"4\"><Data ss:Type=\"String\">COMB </Data></Cell>\n"
    "\t\t<Cell ss:StyleID=\"s65\" ss:Index=\"6\"><Data ss:Type=\"String\">(Kips)</Data></Cell>\n"
    "\t\t<Cell ss:StyleID=\"s65\" ss:Index=\"7\"><Data ss:Type=\"String\">(Ratio)</Data></Cell>\n"
    "    <Cell ss:StyleID=\"s65\" ss:Index=\"9\"><Data ss:Type=\"String\">COMB </Data></Cell>\n"
    "\t\t<Cell ss:StyleID=\"s65\" ss:Index=\"11\"><Data ss:Type=\"String\">(Kips)</Data></Cell>\n"
    "\t\t<Cell ss:StyleID=\"s65\" ss:Index=\"12\"><Data ss:Type=\"String\">(Ratio)</Data></Cell>\n"
    "\t</Row>\n<Row></Row>\n";

std::string CombinationColumnHead(const CDataSet& data) {
    std::string out =
        "\t<Row></Row>\n\t<Row >"
        "\t\t<Cell ss:Index=\"2\" ss:StyleID=\"s65\"><Data ss:Type=\"String\">SUBSTRUCTURE</Data></Cell>\n";
    AppendTextCell(out, kHeadCell, "PILE");
    AppendGroupHead(out, data, "MAX TENSION");
    out += "\t\t<Cell></Cell>";
    AppendGroupHead(out, data, "MAX COMP");
    return out.append(kCombinationLowerRow);
}

// ---- rows

// The load case of a pile's extreme, -1 where it has none.
int CaseOf(const std::vector<std::vector<int>>& table, LimitClass slot, std::size_t pile) {
    const std::size_t s = Index(slot);
    return s < table.size() && pile < table[s].size() ? table[s][pile] : -1;
}

// One half of a row: the pile's head in the load case of its extreme.
struct Group {
    const Report& report;
    const CPier& pier;
    std::size_t pile;
    int loadCase;

    int HeadElement() const {
        const int element = pier.FindElement(kPileFamily, static_cast<int>(pile), 0);
        return loadCase >= 0 && loadCase < static_cast<int>(pier.m_LoadCases.size()) ? element : -1;
    }
    // The forces of the head's element; it must have one.
    ForceRow Forces(int element) const { return report.Forces(pier, loadCase, element); }
};

void AppendPlainGroup(std::string& out, const Group& group, std::string_view ratioCell) {
    const int element = group.HeadElement();
    if (element < 0) {
        for (const std::string_view text : {kNoValue, kNoResult, kNoValue}) {
            AppendTextCell(out, kTextCell, text);
        }
        return;
    }
    AppendIntCell(out, kNumberCell, group.loadCase + 1);
    const ForceRow forces = group.Forces(element);
    AppendDecimalCell(out, kForceCell, GetForce(forces, kEndJ, kAxial));
    AppendDecimalCell(out, ratioCell, GetForce(forces, kEndJ, kDemandCapacity));
}

constexpr std::string_view kMissingCell = "\t\t<Cell ss:StyleID=\"s60\"><Data ss:Type=\"String\">";

void AppendCombinationGroup(std::string& out, const Group& group, int ratioDecimals) {
    const int element = group.HeadElement();
    if (element < 0) {
        for (const std::string_view text : {kNoValue, kNoValue, kNoResult, kNoValue}) {
            AppendTextCell(out, kMissingCell, text);
        }
        return;
    }
    AppendIntCell(out, kNumberCell, group.loadCase + 1);
    AppendTextCell(out, kTextCell, PadName15(LimitStateOf(group.report.data, group.loadCase)));
    const ForceRow forces = group.Forces(element);
    AppendDecimalCell(out, kForceCell, GetForce(forces, kEndJ, kAxial));
    AppendDecimalCell(out, kDecimalCell, GetForce(forces, kEndJ, kDemandCapacity), ratioDecimals);
}

void AppendRowNumbers(std::string& out, std::size_t pierIndex, std::size_t pile) {
    out += "<Cell ss:Index=\"2\" ss:StyleID=\"s60\"><Data ss:Type=\"Number\">";
    AppendInt(out, static_cast<long long>(pierIndex) + 1);
    out.append(kCellEnd).append(kNumberCell);
    AppendInt(out, static_cast<long long>(pile) + 1);
    out += "</Data></Cell>";  // the load case's cell is on the same line
}

void AppendPlainRow(std::string& out, std::size_t pierIndex, const Group& tension, const Group& compression) {
    out += "    <Row>";
    AppendRowNumbers(out, pierIndex, tension.pile);
    AppendPlainGroup(out, tension, kDecimalCell);
    AppendTextCell(out, kTextCell, "");
    AppendPlainGroup(out, compression, kForceCell);
    out += "  </Row>\n";
}

void AppendCombinationRow(std::string& out, std::size_t pierIndex, LimitClass slot, const Group& tension,
                          const Group& compression) {
    // Only the tension ratio of the extreme class is cut to two decimals.
    constexpr int kFull = 6;
    out += "    <Row>\n\t";
    AppendRowNumbers(out, pierIndex, tension.pile);
    AppendCombinationGroup(out, tension, slot == kExtreme ? 2 : kFull);
    out += "<Cell></Cell>\n";
    AppendCombinationGroup(out, compression, kFull);
    out += "</Row>\n";
}

void WriteRows(StoredStream& out, const Report& report, std::size_t pierIndex, LimitClass slot) {
    const CPier& pier = report.data.m_Piers[pierIndex];
    const PierResults& results = report.results.piers[pierIndex];
    std::string row;
    for (std::size_t pile = 0; pile < pier.m_Piles.size(); ++pile) {
        const Group tension{report, pier, pile, CaseOf(results.maxTension, slot, pile)};
        const Group compression{report, pier, pile, CaseOf(results.maxCompression, slot, pile)};
        row.clear();
        if (report.data.HasCombinations()) {
            AppendCombinationRow(row, pierIndex, slot, tension, compression);
        } else {
            AppendPlainRow(row, pierIndex, tension, compression);
        }
        out << row;
    }
}

}  // namespace

int WriteMaxAxialSheet(const Report& report, StoredStream& out, bool embedded) {
    const CDataSet& data = report.data;
    return WriteWorkbook(report, kTableMaxAxial, out, embedded, [&] {
        const bool combinations = data.HasCombinations();
        out << WorksheetHead(data, kTableMaxAxial, ExpandedRows(report, kTableMaxAxial));
        for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
            for (const LimitClass slot : BlockSlots(report, kTableMaxAxial)) {
                if (combinations) out << SlotHeading(data.FirstPier().m_nCodeFamily, slot, p);
                out << (combinations ? CombinationColumnHead(data) : PlainColumnHead(data));
                WriteRows(out, report, p, slot);
            }
        }
        out << WorksheetEnd(report.options);
    });
}

}  // namespace lumerin
