// The worksheets of the section tables: maximum demand/capacity ratios (tables 1 and 2) and maximum forces
// (tables 5, 6 and 7). They share one walk; a table is a row of kForms.

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

struct SectionSheet {
    int table;
    CPier::MemberFamily family;
    CRecordTable CPier::*records;
    int CPier::*sections;
    std::string_view ratioRow;  // opening of a row of the ratio tables
    int firstProperty;          // number of the first section; extra members have their own
};
constexpr std::array<SectionSheet, 5> kForms = {{
    {kTablePileDc, CPier::kPileFamily, &CPier::m_PileDc, &CPier::m_nPileSections,
     "  <Row ss:Height=\"21\">\n", 1},
    {kTableColumnDc, CPier::kColumnFamily, &CPier::m_ColumnDc, &CPier::m_nColumnSections,
     "<Row ss:Height=\"21\">\n", 2},
    {kTablePileForces, CPier::kPileFamily, &CPier::m_PileForces, &CPier::m_nPileSections, "", 1},
    {kTableColumnForces, CPier::kColumnFamily, &CPier::m_ColumnForces, &CPier::m_nColumnSections, "", 2},
    {kTableExtraMembers, CPier::kXMemberFamily, &CPier::m_XMemberForces, &CPier::m_nXMemberSections, "", 0},
}};

const SectionSheet& FormOf(int table) {
    for (const SectionSheet& form : kForms) {
        if (form.table == table) return form;
    }
    return kForms.front();
}

constexpr std::string_view kPropertyCell =
    "    <Cell ss:Index=\"2\" ss:StyleID=\"s60\"><Data ss:Type=\"Number\">";
constexpr std::string_view kEndCell = "    <Cell ss:StyleID=\"s61\"><Data ss:Type=\"String\">";

// A record with the element that it points at; -1, and a record without result, where there is none.
struct Place {
    CMaxRecord record;
    int element;
};

Place PlaceOf(const SectionSheet& form, const CPier& pier, int section, int slot, int extreme) {
    const CRecordTable& table = pier.*form.records;
    Place place{kNotFoundRecord, -1};
    if (section >= table.Sections() || slot >= table.Slots()) return place;
    const CMaxRecord& record = table.At(section, slot, extreme);
    if (record.m_nLoadCase < 0 || record.m_nLoadCase >= static_cast<int>(pier.m_LoadCases.size()))
        return place;
    place.element = pier.FindElement(form.family, record.m_nMember, record.m_nElement);
    if (place.element >= 0) place.record = record;
    return place;
}

// The seven values; each cell but the last closes its line.
void AppendValues(std::string& out, const CPier& pier, const Place& place, std::string_view cell) {
    const ElementForces forces = pier.Forces(place.record.m_nLoadCase, place.element);
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

void AppendRatioRow(std::string& out, const SectionSheet& form, const CPier& pier, int property,
                    const Place& place) {
    const bool combinations = g_DataSet.FirstPier().m_bCombinations;
    const CMaxRecord& record = place.record;
    out += form.ratioRow;
    AppendIntCell(out, kPropertyCell, property);
    AppendIntCell(out, kNumberCell, record.m_nMember + 1);
    AppendIntCell(out, kNumberCell, record.m_nElementNumber);
    AppendIntCell(out, kNumberCell, record.m_nNode);
    AppendIntCell(out, kNumberCell, record.m_nLoadCase + 1);
    if (place.element < 0) {
        AppendMissingCells(out, combinations ? 9 : 8);
        out += "</Row>\n";
        return;
    }
    if (combinations) AppendTextCell(out, kTextCell, PadName15(LimitStateOf(record.m_nLoadCase)));
    AppendTextCell(out, kEndCell, EndWord(place));
    AppendValues(out, pier, place, kDecimalCell);
    out += "</Row>\n";
}

void WriteRatioRows(StoredStream& out, const SectionSheet& form, const CPier& pier, int slot) {
    std::string row;
    for (int section = 0; section < pier.*form.sections; ++section) {
        row.clear();
        AppendRatioRow(row, form, pier, section + form.firstProperty, PlaceOf(form, pier, section, slot, 0));
        out << row;
    }
}

// ---- tables 5, 6 and 7

void AppendForceRow(std::string& out, const CPier& pier, int property, int extreme, const Place& place) {
    const bool combinations = g_DataSet.FirstPier().m_bCombinations;
    const std::string_view word = g_ExtremeNames[static_cast<std::size_t>(extreme)];
    const CMaxRecord& record = place.record;
    out += "  <Row>\n";
    AppendIntCell(out, kPropertyCell, property);
    if (place.element < 0) {
        AppendMissingCells(out, combinations ? 6 : 5);
        AppendTextCell(out, kWideTextCell, word);
        AppendMissingCells(out, kComponents, extreme / 2);
        out += "</Row>\n";
        return;
    }
    AppendIntCell(out, kWideNumberCell, record.m_nMember + 1);
    AppendIntCell(out, kWideNumberCell, record.m_nElementNumber);
    AppendIntCell(out, kWideNumberCell, record.m_nNode);
    AppendIntCell(out, kWideNumberCell, record.m_nLoadCase + 1);
    if (combinations) AppendTextCell(out, kWideTextCell, PadName15(LimitStateOf(record.m_nLoadCase)));
    AppendTextCell(out, kWideTextCell, EndWord(place));
    // A tab stays behind the word in its cell.
    out.append(kWideTextCell).append(word).append("\t").append(kCellEnd);
    AppendValues(out, pier, place, kWideDecimalCell);
    out += "\n  </Row>\n";
}

void WriteForceRows(StoredStream& out, const SectionSheet& form, std::size_t pierIndex, int slot) {
    const CPier& pier = g_DataSet.m_Piers[pierIndex];
    const bool extraMembers = form.table == kTableExtraMembers;
    const int firstProperty = extraMembers ? pier.m_nXMemberFirstSection : form.firstProperty;
    const int sections = pier.*form.sections;
    std::string rows;
    for (int section = 0; section < sections; ++section) {
        const int property = firstProperty + section;
        if (extraMembers && !g_DataSet.UsesExtraSection(static_cast<unsigned>(pierIndex), property)) continue;
        rows.clear();
        for (int extreme = 0; extreme < kPrintedExtremes; ++extreme) {
            AppendForceRow(rows, pier, property, extreme, PlaceOf(form, pier, section, slot, extreme));
        }
        if (section + 1 < sections) rows += "<Row></Row>\n";
        out << rows;
    }
}

// ---- the walk

// The head's step words are the writer's own.
void WriteSections(StoredStream& out, int table, const std::string (&stepWords)[2]) {
    const SectionSheet& form = FormOf(table);
    const bool columns = form.family == CPier::kColumnFamily;
    const std::string columnHead = ColumnHeadRows(table, stepWords);
    out << WorksheetHead(table, ExpandedRows(table));
    for (std::size_t p = 0; p < g_DataSet.m_Piers.size(); ++p) {
        const CPier& pier = g_DataSet.m_Piers[p];
        if (table == kTableExtraMembers && pier.m_nExtraMembers == 0) continue;
        out << SubstructureHeading(table, static_cast<int>(p));
        if (columns && pier.m_nStructureType == kTypePileBent) continue;
        for (const int slot : BlockSlots(table)) {
            out << SectionRows(table, slot) << columnHead;
            if (form.ratioRow.empty()) {
                WriteForceRows(out, form, p, slot);
            } else {
                WriteRatioRows(out, form, pier, slot);
            }
        }
    }
    out << CWriteData::WorksheetEnd();
}

}  // namespace

int CWriteData::WritePileDcSheet(StoredStream& out, bool embedded) {
    SetStepWords();
    return WriteWorkbook(kTablePileDc, out, embedded, [&] { WriteSections(out, kTablePileDc, m_sLoadWord); });
}

int CWriteData::WriteColumnDcSheet(StoredStream& out, bool embedded) {
    SetStepWords();
    return WriteWorkbook(kTableColumnDc, out, embedded,
                         [&] { WriteSections(out, kTableColumnDc, m_sLoadWord); });
}

int CWriteData::WritePileForcesSheet(StoredStream& out, bool embedded) {
    SetStepWords();
    return WriteWorkbook(kTablePileForces, out, embedded,
                         [&] { WriteSections(out, kTablePileForces, m_sLoadWord); });
}

int CWriteData::WriteColumnForcesSheet(StoredStream& out, bool embedded) {
    SetStepWords();
    return WriteWorkbook(kTableColumnForces, out, embedded,
                         [&] { WriteSections(out, kTableColumnForces, m_sLoadWord); });
}

int CWriteData::WriteExtraMemberForcesSheet(StoredStream& out, bool embedded) {
    SetStepWords();
    return WriteWorkbook(kTableExtraMembers, out, embedded,
                         [&] { WriteSections(out, kTableExtraMembers, m_sLoadWord); });
}
