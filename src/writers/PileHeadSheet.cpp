// The internal forces at pile heads, load case by load case: a worksheet for each substructure. It can have
// millions of rows, so each row is built in one string that is used again and goes straight to the stream.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "model/DataSet.h"
#include "tables/Catalogue.h"
#include "tables/TableLayout.h"
#include "tables/WriteData.h"
#include "writers/SheetCells.h"
#include "writers/SheetHeads.h"
#include "writers/SheetRows.h"
#include "writers/WorkbookFrame.h"

namespace {

constexpr std::string_view kHeadCell = "\t\t<Cell ss:StyleID=\"s65\"><Data ss:Type=\"String\">";

// The decimals of a 32-bit number's exact value, as far as they matter to a comparison of two runs.
constexpr int kDecimals = 12;

std::string HeadRows(const std::string (&stepWords)[2]) {
    const std::string force = "(" + g_DataSet.m_sForceUnit + ")";
    const std::string moment = "(" + g_DataSet.m_sMomentUnit + ")";
    const std::array<std::string_view, 13> upper = {"",      "PILE",   "ELEM", "NODE", stepWords[0],
                                                    "LIMIT", "FAX",    "F22",  "F33",  "M22",
                                                    "M33",   "TORQUE", "D/C"};
    const std::array<std::string_view, 13> lower = {"",      "NO.",  "NO.",    "NO.", stepWords[1],
                                                    "STATE", force,  force,    force, moment,
                                                    moment,  moment, "(ratio)"};
    std::string out = "\t<Row></Row>\n\t<Row>\n";
    for (const std::string_view text : upper) AppendTextCell(out, kHeadCell, text);
    out += "\t</Row>\n\t<Row>\n";
    for (const std::string_view text : lower) AppendTextCell(out, kHeadCell, text);
    return out += "\t</Row>\n\t<Row></Row>\n";
}

void AppendRow(std::string& out, const CPier& pier, int pile, int loadCase, std::string_view limitState) {
    const int element = pier.PileElement(pile, 0);
    out.append("    <Row><Cell></Cell>").append(kNumberCell);
    AppendInt(out, pile + 1);
    out += "</Data></Cell>";  // the element's cell stands on the same line
    AppendIntCell(out, kNumberCell, pier.Element(element).m_nElementNumber);
    // The column headed NODE repeats the pile number: heads are found by pile.
    AppendIntCell(out, kNumberCell, pile + 1);
    AppendIntCell(out, kNumberCell, loadCase + 1);
    AppendTextCell(out, kWideTextCell, limitState);
    const ElementForces forces = pier.Forces(loadCase, element);
    for (int component = kAxial; component <= kTorque; ++component) {
        AppendDecimalCell(out, kForceCell, GetForce(forces, kEndJ, component), kDecimals);
    }
    AppendDecimalCell(out, kDecimalCell, GetForce(forces, kEndJ, kDemandCapacity), kDecimals);
    out += "  </Row>\n";
}

void WriteRows(StoredStream& out, const CPier& pier, bool combinations) {
    std::string row;
    const int cases = static_cast<int>(pier.m_LoadCases.size());
    const int piles = static_cast<int>(pier.m_Piles.size());
    for (int loadCase = 0; loadCase < cases; ++loadCase) {
        if (!pier.IsCaseSelected(loadCase)) continue;
        const std::string limitState =
            combinations ? PadName15(LimitStateOf(loadCase)) : std::string(kNoValue);
        for (int pile = 0; pile < piles; ++pile) {
            if (pier.FindElement(CPier::kPileFamily, pile, 0) < 0) continue;
            row.clear();
            AppendRow(row, pier, pile, loadCase, limitState);
            out << row;
        }
    }
}

}  // namespace

int CWriteData::WritePileHeadForcesSheet(StoredStream& out, bool embedded) {
    return WriteWorkbook(kTablePileHeads, out, embedded, [&] {
        SetStepWords();
        for (std::size_t p = 0; p < g_DataSet.m_Piers.size(); ++p) {
            const int number = static_cast<int>(p);
            out << PileHeadWorksheetHead(number, ExpandedRows(kTablePileHeads, number));
            out << HeadRows(m_sLoadWord);
            WriteRows(out, g_DataSet.m_Piers[p], g_DataSet.FirstPier().m_bCombinations);
            out << WorksheetEnd();
        }
    });
}
