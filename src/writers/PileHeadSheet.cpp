// SPDX-License-Identifier: MIT
// The internal forces at pile heads, load case by load case: a worksheet for each substructure. It can have
// millions of rows, so each row is built in one string that is reused and written directly to the stream.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "tables/Catalogue.h"
#include "tables/TableLayout.h"
#include "writers/SheetCells.h"
#include "writers/SheetHeads.h"
#include "writers/SheetRows.h"
#include "writers/TableSheets.h"
#include "writers/WorkbookFrame.h"

namespace lumerin {

namespace {

constexpr std::string_view kHeadCell = "\t\t<Cell ss:StyleID=\"s65\"><Data ss:Type=\"String\">";

// The decimals of a 32-bit number's exact value, as far as they matter to a comparison of two runs.
constexpr int kDecimals = 12;

std::string HeadRows(const CDataSet& data) {
    const StepWords step = StepWordsOf(data);
    const std::string force = "(" + data.m_sForceUnit + ")";
    const std::string moment = "(" + data.m_sMomentUnit + ")";
    const std::array<std::string_view, 13> upper = {"",    "PILE", "ELEM", "NODE", step.upper, "LIMIT", "FAX",
                                                    "F22", "F33",  "M22",  "M33",  "TORQUE",   "D/C"};
    const std::array<std::string_view, 13> lower = {"",    "NO.", "NO.",  "NO.",  step.lower, "STATE",  force,
                                                    force, force, moment, moment, moment,     "(ratio)"};
    std::string out = "\t<Row></Row>\n\t<Row>\n";
    for (const std::string_view text : upper) AppendTextCell(out, kHeadCell, text);
    out += "\t</Row>\n\t<Row>\n";
    for (const std::string_view text : lower) AppendTextCell(out, kHeadCell, text);
    return out += "\t</Row>\n\t<Row></Row>\n";
}

// The head of a pile in one case.
struct HeadRow {
    int pile, loadCase;
    int elementNumber;
    std::string_view limitState;
    ElementForces forces;
};

void AppendRow(std::string& out, const HeadRow& row) {
    out.append("    <Row><Cell></Cell>").append(kNumberCell);
    AppendInt(out, row.pile + 1);
    out += "</Data></Cell>";  // the element's cell is on the same line
    AppendIntCell(out, kNumberCell, row.elementNumber);
    // The column headed NODE repeats the pile number: heads are found by pile.
    AppendIntCell(out, kNumberCell, row.pile + 1);
    AppendIntCell(out, kNumberCell, row.loadCase + 1);
    AppendTextCell(out, kWideTextCell, row.limitState);
    for (int component = kAxial; component <= kTorque; ++component) {
        AppendDecimalCell(out, kForceCell, GetForce(row.forces, kEndJ, component), kDecimals);
    }
    AppendDecimalCell(out, kDecimalCell, GetForce(row.forces, kEndJ, kDemandCapacity), kDecimals);
    out += "  </Row>\n";
}

void WriteRows(StoredStream& out, const Report& report, std::size_t p) {
    const CPier& pier = report.data.m_Piers[p];
    std::string text;
    report.rows.EachCase(p, [&](int loadCase, CaseForces forces) {
        if (!report.selection.IsCaseSelected(loadCase)) return;
        const std::string limitState = report.data.HasCombinations()
                                           ? PadName15(LimitStateOf(report.data, loadCase))
                                           : std::string(kNoValue);
        for (int pile = 0; pile < static_cast<int>(pier.m_Piles.size()); ++pile) {
            const int element = pier.FindElement(kPileFamily, pile, 0);
            if (element < 0) continue;
            text.clear();
            AppendRow(text, {pile, loadCase, pier.Element(element).m_nElementNumber, limitState,
                             ForcesOf(forces, element)});
            out << text;
        }
    });
}

}  // namespace

int WritePileHeadSheet(const Report& report, StoredStream& out, bool embedded) {
    const CDataSet& data = report.data;
    return WriteWorkbook(report, kTablePileHeads, out, embedded, [&] {
        for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
            const int number = static_cast<int>(p);
            out << PileHeadWorksheetHead(data, number, ExpandedRows(report, kTablePileHeads, number));
            out << HeadRows(data);
            WriteRows(out, report, p);
            out << WorksheetEnd(report.options);
        }
    });
}

}  // namespace lumerin
