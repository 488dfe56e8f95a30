// SPDX-License-Identifier: MIT
// The heading rows inside worksheets of tables 1 to 7. The blanks, line feeds and stray "<" between the
// elements differ from table to table; readers of these workbooks compare them, so they stay.

#include <string>
#include <string_view>

#include "framework/Index.h"
#include "tables/Catalogue.h"
#include "tables/Words.h"
#include "text/Format.h"
#include "writers/SheetHeads.h"

namespace lumerin {

namespace {

// A block's heading is opening, blank cell, the class in the heading cell, "</Row>", closing.
struct SectionRow {
    TableId table;
    CodeFamily family;
    LimitClass slot;
    std::string_view opening, closing;
};
// clang-format off
constexpr SectionRow kSectionRows[] = {
    {kTablePileDc, kFamilyLrfd, kStrength, "  <Row>  </Row>\n  <Row>    ", "\n"},
    {kTablePileDc, kFamilyLrfd, kService, "  <Row>  </Row>\n  <Row>    ", "<\n"},
    {kTablePileDc, kFamilyLrfd, kExtreme, "  <Row>  </Row>\n  <Row>    ", "<\n"},
    {kTablePileDc, kFamilyLfd, kStrength, "  <Row>  </Row>\n  <Row>    ", "\n"},
    {kTablePileDc, kFamilyArema, kStrength, "  <Row>  </Row>\n  <Row>    ", "\n"},
    {kTablePileDc, kFamilyArema, kService, "  <Row>  </Row>\n  <Row>    ", "<\n"},
    {kTableColumnDc, kFamilyLrfd, kStrength, "  <Row></Row>\n\t<Row>    ", "\n< "},
    {kTableColumnDc, kFamilyLrfd, kService, "  <Row></Row>\n\t<Row>    ", "\n  "},
    {kTableColumnDc, kFamilyLrfd, kExtreme, "   <Row></Row>\n\t<Row>    ", "\n  "},
    {kTableColumnDc, kFamilyLfd, kStrength, "   <Row></Row>\n\t<Row>    ", "\n "},
    {kTableColumnDc, kFamilyArema, kStrength, "  <Row></Row>\n\t<Row>    ", "\n< "},
    {kTableColumnDc, kFamilyArema, kService, "  <Row></Row>\n\t<Row>    ", "\n  "},
    {kTableCapShear, kFamilyLrfd, kStrength, "  <Row></Row>\n<Row>    ", "\n<Row></Row>"},
    {kTableCapShear, kFamilyLrfd, kService, "  <Row></Row>\n<Row>    ", "\n<Row></Row>"},
    {kTableCapShear, kFamilyLrfd, kExtreme, "  <Row></Row>\n<Row>    ", "\n<Row></Row>"},
    {kTableCapShear, kFamilyLfd, kStrength, "  <Row></Row>\n<Row>    ", "\n<Row></Row>"},
    {kTableCapShear, kFamilyArema, kStrength, "  <Row></Row>\n<Row>    ", "\n<Row></Row>"},
    {kTableCapShear, kFamilyArema, kService, "  <Row></Row>\n<Row>    ", "\n<Row></Row>"},
    {kTableCapMoment, kFamilyLrfd, kStrength, "  <Row>    ", "\n<Row></Row>"},
    {kTableCapMoment, kFamilyLrfd, kService, "  <Row>    ", "\n<Row></Row>"},
    {kTableCapMoment, kFamilyLrfd, kExtreme, "  <Row>    ", "\n<Row></Row>"},
    {kTableCapMoment, kFamilyLrfd, kFatigue, "  <Row>    ", "\n<Row></Row>"},
    {kTableCapMoment, kFamilyLfd, kStrength, "  <Row>    ", "\n<Row></Row>"},
    {kTableCapMoment, kFamilyArema, kStrength, "  <Row>    ", "\n<Row></Row>"},
    {kTableCapMoment, kFamilyArema, kService, "  <Row>    ", "\n<Row></Row>"},
    {kTablePileForces, kFamilyLrfd, kStrength, "   <Row></Row>\n\t<Row>    ", "\n"},
    {kTablePileForces, kFamilyLrfd, kService, "  <Row></Row>\n<Row>\n    ", "<\n"},
    {kTablePileForces, kFamilyLrfd, kExtreme, "   <Row></Row>\n\t<Row>\n    ", "\n"},
    {kTablePileForces, kFamilyLfd, kStrength, "  <Row></Row>\n\t<Row>\n    ", "\n"},
    {kTablePileForces, kFamilyArema, kStrength, "   <Row></Row>\n\t<Row>    ", "\n"},
    {kTablePileForces, kFamilyArema, kService, "  <Row></Row>\n<Row>\n    ", "<\n"},
    {kTableColumnForces, kFamilyLrfd, kStrength, "   <Row>\n    ", "\n"},
    {kTableColumnForces, kFamilyLrfd, kService, "  <Row>\n   ", "\n"},
    {kTableColumnForces, kFamilyLrfd, kExtreme, "   <Row>\n    ", "\n"},
    {kTableColumnForces, kFamilyLfd, kStrength, "  <Row>\n    ", "\n"},
    {kTableColumnForces, kFamilyArema, kStrength, "   <Row>\n    ", "\n"},
    {kTableColumnForces, kFamilyArema, kService, "  <Row>\n   ", "\n"},
    {kTableExtraMembers, kFamilyLrfd, kStrength, "   <Row>    ", "\n"},
    {kTableExtraMembers, kFamilyLrfd, kService, "  <Row>    ", "\n"},
    {kTableExtraMembers, kFamilyLrfd, kExtreme, "   <Row>    ", "\n"},
    {kTableExtraMembers, kFamilyLfd, kStrength, "  <Row>    ", "\n"},
    {kTableExtraMembers, kFamilyArema, kStrength, "   <Row>    ", "\n"},
    {kTableExtraMembers, kFamilyArema, kService, "  <Row>    ", "\n"},
};
// clang-format on

constexpr std::string_view kSectionCells =
    "<Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
    "    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">";
constexpr std::string_view kSectionEnd = "</Data></Cell>  </Row>";

struct SubstructureRow {
    TableId table;
    std::string_view opening, closing;  // around the number
    bool bentRemark;                    // a pile bent has no rows in this table, and the heading has a remark
};
constexpr SubstructureRow kSubstructureRows[] = {
    {kTablePileDc,
     "  <Row>  </Row>\n  <Row ss:Height=\"21\" >\n"
     "    <Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "    <Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Pile Properties Data for Substructure ",
     "</Data></Cell>\n  </Row>\n", false},
    {kTableColumnDc,
     "<Row></Row>\n<Row ss:Height=\"21\" >\n"
     "\t<Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "\t<Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Column Properties Data for Substructure ",
     "</Data></Cell>\n</Row>\n\n", true},
    {kTablePileForces,
     "\t<Row></Row>\n<Row ss:Height=\"21\" >\n"
     "    <Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "    <Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Pile Properties Data for Substructure ",
     "</Data></Cell>\n  </Row>\n", false},
    {kTableColumnForces,
     "<Row></Row>\n<Row ss:Height=\"21\" >\n"
     "\t<Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "\t<Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Column Properties Data for Substructure ",
     "</Data></Cell>\n</Row>\n", true},
    {kTableExtraMembers,
     "\t<Row></Row>\n  <Row ss:Height=\"21\">\n"
     "    <Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "    <Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Extra Member Properties Data for Substructure ",
     "</Data></Cell>\n  </Row>\n", false},
};

}  // namespace

std::vector<LimitClass> BlockSlots(const Report& report, TableId table) {
    std::vector<LimitClass> slots;
    std::string heading;
    for (const LimitClass slot : report.data.FirstPier().Slots()) {
        if (SectionHeading(report, table, slot, heading)) slots.push_back(slot);
    }
    return slots;
}

std::string SectionRows(const CDataSet& data, TableId table, LimitClass slot) {
    const CPier& first = data.FirstPier();
    if (!first.m_bCombinations) return {};
    const CodeFamily family = first.m_nCodeFamily;
    for (const SectionRow& row : kSectionRows) {
        if (row.table != table || row.family != family || row.slot != slot) continue;
        std::string out(row.opening);
        out.append(kSectionCells);
        if (table <= kTableColumnDc) out.append(g_MaximumWord);
        return out.append(ClassHeading(family, slot)).append(kSectionEnd).append(row.closing);
    }
    return {};
}

std::string SubstructureHeading(const CDataSet& data, TableId table, int pier) {
    const bool bent = data.m_Piers.at(Index(pier)).m_nStructureType == kTypePileBent;
    for (const SubstructureRow& row : kSubstructureRows) {
        if (row.table != table) continue;
        std::string out(row.opening);
        AppendInt(out, pier + 1);
        if (bent && row.bentRemark) out += " (Not applicable for Pile Bent)";
        return out.append(row.closing);
    }
    return {};
}

}  // namespace lumerin
