#include "tables/TableWalks.h"

#include "model/DataSet.h"
#include "tables/Catalogue.h"

void WriteTitleLine(const TableLayout& layout, CLineSink& sink) {
    const TitleMargins& margins = sink.MarginsOf(layout);
    const bool wide =
        margins.byPierCount ? g_DataSet.m_Piers.size() == 1 : g_DataSet.FirstPier().m_bCombinations;
    const TitleMargin& margin = wide ? margins.wide : margins.narrow;
    std::string line(margin.tab ? "\t" : "");
    line.append(margin.blanks, ' ');
    sink.Line(line + TableHeadTitle(layout.table));
}

bool WriteSectionHeading(const TableLayout& layout, int slot, CLineSink& sink) {
    std::string heading;
    if (!SectionHeading(layout.table, slot, heading)) return false;
    if (heading.empty()) return true;
    sink.Line(heading);
    sink.Gap(1);
    return true;
}

int WritableTable(int table) {
    if (g_DataSet.IsPierless() || table < kTableMaxAxial || table > kTableExtraMembers) return -1;
    if (!g_DataSet.m_bTableEnabled[static_cast<std::size_t>(table)]) return -1;
    const int standIn = LayoutOf(table).handOverType8;
    if (standIn < 0 || g_DataSet.FirstPier().m_nStructureType != kTypeNoPileTables) return table;
    return WritableTable(standIn);
}

void WalkTable(int table, CLineSink& sink) {
    const TableLayout& layout = LayoutOf(table);
    switch (table) {
        case kTableMaxAxial:
            WalkPileHeads(layout, sink);
            break;
        case kTableCapShear:
        case kTableCapMoment:
            WalkCapTable(layout, sink);
            break;
        default:
            WalkMembers(layout, sink);
            break;
    }
    sink.EndTable();
}
