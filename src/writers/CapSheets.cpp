// SPDX-License-Identifier: MIT
// The worksheets of the cap tables, shear (table 3) and moment (table 4).

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "framework/Index.h"
#include "tables/CapRows.h"
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

constexpr std::array<int, 7> kShearValues = {kAxial, kF22, kF33, kM22, kM33, kTorque, kDemandCapacity};
constexpr std::array<int, 4> kMomentValues = {kAxial, kM22, kM33, kDemandCapacity};

struct CapSheet {
    TableId table;
    const char* extremes[2];           // second heading row: maximum, minimum
    const char* maximumRemark;         // third heading row of the maximum block; null: none
    std::string_view blockOpening[2];  // before the heading rows
    std::string_view headingsEnd;      // after the last heading row
    std::string_view slotEnd;          // after a slot's rows
    std::string_view pierEnd;          // after a substructure that is not the last
    std::span<const int> values;
    // Cells of rows without result, less one with combinations: after "miss", after NODE where the side has
    // no result, and after "none".
    int missCells, sideCells, noneCells;
};
const std::array<CapSheet, 2> kForms = {{
    {kTableCapShear,
     {"Maximum (+) Shear Forces at the Left and Right of the Bearings and at the Left Face, Right Face and "
      "Centerline of Supports",
      "Minimum (-) Shear Forces at the Left and Right of the Bearings and at the Left Face, Right Face and "
      "Centerline of Supports"},
     nullptr,
     {"", "<Row></Row>\n"},
     "",
     "",
     "<Row></Row>/n",  // the last two characters are written as they are
     kShearValues,
     11,
     9,
     8},
    {kTableCapMoment,
     {"Maximum (+) Moment Forces at the Bearings and at the Left Face, Right Face and Centerline of Supports",
      "Minimum (-) Moment Forces at the Bearings and at the Left Face, Right Face and Centerline of "
      "Supports"},
     "(+M33 = Tension at Bottom)\n",  // the line feed is part of the cell
     {"", ""},
     "<Row></Row>\n",
     "<Row></Row>\n",
     "<Row></Row>\n",
     kMomentValues,
     8,
     6,
     8},
}};

const CapSheet& FormOf(TableId table) {
    return kForms[table == kTableCapShear ? 0 : 1];
}

constexpr std::string_view kHeadingRow =
    "<Row>\n    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">";
constexpr std::string_view kHeadingEnd = "</Data></Cell>  </Row>\n";

void AppendHeading(std::string& out, std::string_view text) {
    out.append(kHeadingRow).append(text).append(kHeadingEnd);
}

std::string BlockHeading(const CDataSet& data, const CapSheet& form, std::size_t pier, std::size_t extreme) {
    const StructureType type = data.m_Piers[pier].m_nStructureType;
    std::string out(form.blockOpening[extreme]);
    AppendHeading(out, TableTitle(form.table, type) +
                           FormatNumbered(", Substructure  %i:", static_cast<long long>(pier) + 1));
    AppendHeading(out, form.extremes[extreme]);
    if (extreme == 0 && form.maximumRemark != nullptr) AppendHeading(out, form.maximumRemark);
    return out.append(form.headingsEnd);
}

// ---- rows

void AppendNodeCell(std::string& out, const CCapRecord& record) {
    if (record.m_nEnd == kEndI || record.m_nEnd == kEndJ) {
        AppendIntCell(out, kWideNumberCell, record.m_nNode);
    } else if (record.m_nEnd == kInsideElement) {
        AppendTextCell(out, kWideTextCell,
                       FormatInt(record.m_nNode) + ", " + FormatInt(record.m_nSecondNode));
    } else {
        AppendTextCell(out, kWideTextCell, kNoValue);
    }
}

std::string_view EndWord(int end) {
    if (end == kEndI) return "I";
    if (end == kEndJ) return "J";
    return end == kInsideElement ? "I,J" : kNoValue;
}

void AppendRow(std::string& out, const CDataSet& data, const CapSheet& form, const CCapRow& row) {
    const bool combinations = data.HasCombinations();
    const CCapRecord& record = row.pEntry->record;
    const int further = combinations ? 1 : 0;
    out.append(" <Row>   <Cell ss:Index=\"2\" ss:StyleID=\"s60\"><Data ss:Type=\"String\">");
    out.append(row.sLabel).append(kCellEnd);
    if (record.m_nMissing == 1) {
        AppendTextCell(out, kWideTextCell, "miss");
        AppendMissingCells(out, form.missCells + further, 2);
        out += "\t</Row>\n";
        return;
    }
    AppendIntCell(out, kWideNumberCell, record.m_nElementNumber);
    AppendIntCell(out, kWideNumberCell, record.m_nSection);
    AppendNodeCell(out, record);
    if (!row.bSideHasResult) {
        AppendMissingCells(out, form.sideCells + further, 2);
        out += "\t</Row>\n";
    } else if (record.m_nLoadCase < 0) {
        AppendTextCell(out, kWideTextCell, kNoResult);
        AppendMissingCells(out, form.noneCells + further);
        out += "\t</Row>\n";
    } else {
        AppendIntCell(out, kWideNumberCell, record.m_nLoadCase + 1);
        if (combinations)
            AppendTextCell(out, kWideTextCell, PadName15(LimitStateOf(data, record.m_nLoadCase)));
        AppendTextCell(out, kWideTextCell, EndWord(record.m_nEnd));
        for (const int component : form.values) {
            AppendDecimalCell(out, kWideDecimalCell, row.pEntry->values[Index(component)]);
        }
        out += "  </Row>\n";
    }
}

void WriteBlocks(const Report& report, const CapSheet& form, std::size_t p, int extreme, StoredStream& out) {
    const CDataSet& data = report.data;
    std::string text;
    for (const LimitClass slot : BlockSlots(report, form.table)) {
        out << SectionRows(data, form.table, slot) << ColumnHeadRows(data, form.table);
        const CapBlock block{form.table, data.m_Piers[p], report.results.piers[p], slot, extreme};
        WalkCap(block, [&](const CCapRow& row) {
            text.clear();
            AppendRow(text, data, form, row);
            out << text;
        });
        out << form.slotEnd;
    }
}

// ---- key

// Columns of an entry's short form, equal sign and long text, and what closes these cells.
struct KeyCells {
    int column;
    std::string_view end;
};
constexpr KeyCells kLeftCells{2, "</Data></Cell>\n   "};
constexpr KeyCells kRightCells{9, "</Data></Cell>\n"};

void AppendKeyEntry(std::string& out, const CCapKeyEntry& entry, const KeyCells& cells) {
    int column = cells.column;
    for (const std::string_view text :
         {std::string_view(entry.sShort), std::string_view("="), std::string_view(entry.sLong)}) {
        out += "<Cell ss:Index=\"";
        AppendInt(out, column++);
        out.append("\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">").append(text).append(cells.end);
    }
}

std::string SectionKey(const CDataSet& data, TableId table) {
    std::string out = "<Row></Row>";
    AppendHeading(out, " Location &amp; Side Key:");
    for (const CCapKeyLine& line : CapKey(table, data)) {
        out += "<Row>\n    ";
        AppendKeyEntry(out, line.left, kLeftCells);
        if (line.right) AppendKeyEntry(out, *line.right, kRightCells);
        out += "    </Row>\n";
    }
    return out;
}

void WriteCap(const Report& report, TableId table, StoredStream& out) {
    const CDataSet& data = report.data;
    const CapSheet& form = FormOf(table);
    out << WorksheetHead(data, table, ExpandedRows(report, table));
    for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
        for (int extreme = 0; extreme < 2; ++extreme) {
            out << BlockHeading(data, form, p, Index(extreme));
            WriteBlocks(report, form, p, extreme, out);
        }
        if (p + 1 < data.m_Piers.size()) out << form.pierEnd;
    }
    out << SectionKey(data, table) << WorksheetEnd(report.options);
}

}  // namespace

int WriteCapSheet(const Report& report, TableId table, StoredStream& out, bool embedded) {
    return WriteWorkbook(report, table, out, embedded, [&] {
        WriteCap(report, table, out);
        if (!embedded) out << CoordsSheet(report, table);
    });
}

}  // namespace lumerin
