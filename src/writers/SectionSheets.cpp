// SPDX-License-Identifier: MIT
// The worksheets of the section tables: maximum demand/capacity ratios (tables 1 and 2) and maximum forces
// (tables 5, 6 and 7). They share one walk; a table is a row of kForms.

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

struct SectionSheet {
    TableId table;
    MemberFamily family;
    CRecordTable PierResults::*records;
    int CPier::*sections;
    std::string_view ratioRow;  // opening of a row of the ratio tables
    int firstProperty;          // number of the first section; extra members have their own
};
constexpr std::array<SectionSheet, 5> kForms = {{
    {kTablePileDc, kPileFamily, &PierResults::pileDc, &CPier::m_nPileSections, "  <Row ss:Height=\"21\">\n",
     1},
    {kTableColumnDc, kColumnFamily, &PierResults::columnDc, &CPier::m_nColumnSections,
     "<Row ss:Height=\"21\">\n", 2},
    {kTablePileForces, kPileFamily, &PierResults::pileForces, &CPier::m_nPileSections, "", 1},
    {kTableColumnForces, kColumnFamily, &PierResults::columnForces, &CPier::m_nColumnSections, "", 2},
    {kTableExtraMembers, kXMemberFamily, &PierResults::extraMemberForces, &CPier::m_nXMemberSections, "", 0},
}};

const SectionSheet& FormOf(TableId table) {
    for (const SectionSheet& form : kForms) {
        if (form.table == table) return form;
    }
    return kForms.front();
}

constexpr std::string_view kPropertyCell =
    "    <Cell ss:Index=\"2\" ss:StyleID=\"s60\"><Data ss:Type=\"Number\">";
constexpr std::string_view kEndCell = "    <Cell ss:StyleID=\"s61\"><Data ss:Type=\"String\">";

// A substructure with its results, as the rows of one table read them.
struct Sheet {
    const Report& report;
    const SectionSheet& form;
    std::size_t index;

    const CPier& Pier() const { return report.data.m_Piers[index]; }
    bool HasCombinations() const { return report.data.HasCombinations(); }
    std::string LimitState(int loadCase) const { return PadName15(LimitStateOf(report.data, loadCase)); }
};

// A record with the element that it points at; -1, and a record without result, where there is none.
struct Place {
    CMaxRecord record;
    int element;
};

Place PlaceOf(const Sheet& sheet, int section, LimitClass slot, int extreme) {
    const CRecordTable& table = sheet.report.results.piers[sheet.index].*sheet.form.records;
    const CPier& pier = sheet.Pier();
    Place place{kNotFoundRecord, -1};
    if (section >= table.Sections() || slot >= table.Slots()) return place;
    const CMaxRecord& record = table.At(section, slot, extreme);
    if (record.m_nLoadCase < 0 || record.m_nLoadCase >= static_cast<int>(pier.m_LoadCases.size()))
        return place;
    place.element = pier.FindElement(sheet.form.family, record.m_nMember, record.m_nElement);
    if (place.element >= 0) place.record = record;
    return place;
}

// The seven values; each cell but the last closes its line.
void AppendValues(std::string& out, const Sheet& sheet, const Place& place, std::string_view cell) {
    const ForceRow forces = sheet.report.Forces(sheet.Pier(), place.record.m_nLoadCase, place.element);
    const int end = place.record.m_nEnd == 0 ? kEndI : kEndJ;
    for (int component = 0; component < kComponents; ++component) {
        AppendDecimalCell(out, cell, GetForce(forces, end, component));
    }
    out.pop_back();
}

std::string_view EndWord(const Place& place) {
    return place.record.m_nEnd == 0 ? "I" : "J";
}

// ---- tables 1 and 2

void AppendRatioRow(std::string& out, const Sheet& sheet, int property, const Place& place) {
    const CMaxRecord& record = place.record;
    out += sheet.form.ratioRow;
    AppendIntCell(out, kPropertyCell, property);
    AppendIntCell(out, kNumberCell, record.m_nMember + 1);
    AppendIntCell(out, kNumberCell, record.m_nElementNumber);
    AppendIntCell(out, kNumberCell, record.m_nNode);
    AppendIntCell(out, kNumberCell, record.m_nLoadCase + 1);
    if (place.element < 0) {
        AppendMissingCells(out, sheet.HasCombinations() ? 9 : 8);
        out += "</Row>\n";
        return;
    }
    if (sheet.HasCombinations()) AppendTextCell(out, kTextCell, sheet.LimitState(record.m_nLoadCase));
    AppendTextCell(out, kEndCell, EndWord(place));
    AppendValues(out, sheet, place, kDecimalCell);
    out += "</Row>\n";
}

void WriteRatioRows(StoredStream& out, const Sheet& sheet, LimitClass slot) {
    std::string row;
    for (int section = 0; section < sheet.Pier().*sheet.form.sections; ++section) {
        row.clear();
        AppendRatioRow(row, sheet, section + sheet.form.firstProperty, PlaceOf(sheet, section, slot, 0));
        out << row;
    }
}

// ---- tables 5, 6 and 7

void AppendForceRow(std::string& out, const Sheet& sheet, int property, int extreme, const Place& place) {
    const std::string_view word = g_ExtremeNames[Index(extreme)];
    const CMaxRecord& record = place.record;
    out += "  <Row>\n";
    AppendIntCell(out, kPropertyCell, property);
    if (place.element < 0) {
        AppendMissingCells(out, sheet.HasCombinations() ? 6 : 5);
        AppendTextCell(out, kWideTextCell, word);
        AppendMissingCells(out, kComponents, extreme / 2);
        out += "</Row>\n";
        return;
    }
    AppendIntCell(out, kWideNumberCell, record.m_nMember + 1);
    AppendIntCell(out, kWideNumberCell, record.m_nElementNumber);
    AppendIntCell(out, kWideNumberCell, record.m_nNode);
    AppendIntCell(out, kWideNumberCell, record.m_nLoadCase + 1);
    if (sheet.HasCombinations()) AppendTextCell(out, kWideTextCell, sheet.LimitState(record.m_nLoadCase));
    AppendTextCell(out, kWideTextCell, EndWord(place));
    // A tab follows the word in its cell.
    out.append(kWideTextCell).append(word).append("\t").append(kCellEnd);
    AppendValues(out, sheet, place, kWideDecimalCell);
    out += "\n  </Row>\n";
}

void WriteForceRows(StoredStream& out, const Sheet& sheet, LimitClass slot) {
    const CPier& pier = sheet.Pier();
    const bool extraMembers = sheet.form.table == kTableExtraMembers;
    const int firstProperty = extraMembers ? pier.m_nXMemberFirstSection : sheet.form.firstProperty;
    const int sections = pier.*sheet.form.sections;
    std::string rows;
    for (int section = 0; section < sections; ++section) {
        const int property = firstProperty + section;
        if (extraMembers && !sheet.report.data.IsExtraMemberSection(sheet.index, property)) continue;
        rows.clear();
        for (int extreme = 0; extreme < kPrintedExtremes; ++extreme) {
            AppendForceRow(rows, sheet, property, extreme, PlaceOf(sheet, section, slot, extreme));
        }
        if (section + 1 < sections) rows += "<Row></Row>\n";
        out << rows;
    }
}

// ---- the walk

void WriteSections(const Report& report, TableId table, StoredStream& out) {
    const CDataSet& data = report.data;
    const SectionSheet& form = FormOf(table);
    const bool columns = form.family == kColumnFamily;
    const std::string columnHead = ColumnHeadRows(data, table);
    out << WorksheetHead(data, table, ExpandedRows(report, table));
    for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
        const Sheet sheet{report, form, p};
        if (table == kTableExtraMembers && sheet.Pier().m_nExtraMembers == 0) continue;
        out << SubstructureHeading(data, table, static_cast<int>(p));
        if (columns && sheet.Pier().m_nStructureType == kTypePileBent) continue;
        for (const LimitClass slot : BlockSlots(report, table)) {
            out << SectionRows(data, table, slot) << columnHead;
            if (form.ratioRow.empty()) {
                WriteForceRows(out, sheet, slot);
            } else {
                WriteRatioRows(out, sheet, slot);
            }
        }
    }
    out << WorksheetEnd(report.options);
}

}  // namespace

int WriteSectionSheet(const Report& report, TableId table, StoredStream& out, bool embedded) {
    return WriteWorkbook(report, table, out, embedded, [&] { WriteSections(report, table, out); });
}

}  // namespace lumerin
