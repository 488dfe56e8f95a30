// SPDX-License-Identifier: MIT
#include "tables/TableWalks.h"

#include "tables/Catalogue.h"

namespace lumerin {

void WriteTitleLine(const Report& report, const TableLayout& layout, CLineSink& sink) {
    const TitleMargins& margins = sink.MarginsOf(layout);
    const bool wide = margins.byPierCount ? report.data.m_Piers.size() == 1 : report.data.HasCombinations();
    const TitleMargin& margin = wide ? margins.wide : margins.narrow;
    std::string line(margin.tab ? "\t" : "");
    line.append(margin.blanks, ' ');
    sink.Line(line + TableHeadTitle(layout.table, report.data));
}

bool WriteSectionHeading(const Report& report, const TableLayout& layout, LimitClass slot, CLineSink& sink) {
    std::string heading;
    if (!SectionHeading(report, layout.table, slot, heading)) return false;
    if (heading.empty()) return true;
    sink.Line(heading);
    sink.Gap(1);
    return true;
}

std::optional<TableId> WritableTable(const Report& report, TableId table) {
    if (report.data.IsPierless() || table < kTableMaxAxial || table > kTableExtraMembers) return std::nullopt;
    if (!report.enabled[table]) return std::nullopt;
    const std::optional<TableId> standIn = LayoutOf(table).handOverType8;
    if (!standIn || report.data.FirstPier().m_nStructureType != kTypeNoPileTables) return table;
    return WritableTable(report, *standIn);
}

void WalkTable(const Report& report, TableId table, CLineSink& sink) {
    const TableLayout& layout = LayoutOf(table);
    switch (table) {
        case kTableMaxAxial:
            WalkPileHeads(report, layout, sink);
            break;
        case kTableCapShear:
        case kTableCapMoment:
            WalkCapTable(report, layout, sink);
            break;
        default:
            WalkMembers(report, layout, sink);
            break;
    }
    sink.EndTable();
}

}  // namespace lumerin
