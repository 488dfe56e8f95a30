// The heading rows inside worksheets of tables 1 to 7. The blanks, line feeds and stray "<" between the
// elements differ from table to table; readers of these workbooks compare them, so they stay.

#include <string>
#include <string_view>

#include "model/DataSet.h"
#include "tables/Catalogue.h"
#include "text/Format.h"
#include "writers/SheetHeads.h"

namespace {

// A block's heading is opening, blank cell, words in the heading cell, "</Row>", closing.
struct SectionRow {
    int table, family, slot;
    std::string_view opening, words, closing;
};
// clang-format off
constexpr SectionRow kSectionRows[] = {
    {1, 0, 0, "  <Row>  </Row>\n  <Row>    ", "MAXIMUM STRENGTH CASE DATA", "\n"},
    {1, 0, 1, "  <Row>  </Row>\n  <Row>    ", "MAXIMUM SERVICE CASE DATA", "<\n"},
    {1, 0, 2, "  <Row>  </Row>\n  <Row>    ", "MAXIMUM EXTREME CASE DATA", "<\n"},
    {1, 1, 0, "  <Row>  </Row>\n  <Row>    ", "MAXIMUM LOAD FACTOR DESIGN DATA", "\n"},
    {1, 2, 0, "  <Row>  </Row>\n  <Row>    ", "MAXIMUM LOAD FACTOR DESIGN DATA", "\n"},
    {1, 2, 1, "  <Row>  </Row>\n  <Row>    ", "MAXIMUM SERVICE LOAD DESIGN DATA", "<\n"},
    {2, 0, 0, "  <Row></Row>\n\t<Row>    ", "MAXIMUM STRENGTH CASE DATA", "\n< "},
    {2, 0, 1, "  <Row></Row>\n\t<Row>    ", "MAXIMUM SERVICE CASE DATA", "\n  "},
    {2, 0, 2, "   <Row></Row>\n\t<Row>    ", "MAXIMUM EXTREME CASE DATA", "\n  "},
    {2, 1, 0, "   <Row></Row>\n\t<Row>    ", "MAXIMUM LOAD FACTOR DESIGN DATA", "\n "},
    {2, 2, 0, "  <Row></Row>\n\t<Row>    ", "MAXIMUM LOAD FACTOR DESIGN DATA", "\n< "},
    {2, 2, 1, "  <Row></Row>\n\t<Row>    ", "MAXIMUM SERVICE LOAD DESIGN DATA", "\n  "},
    {3, 0, 0, "  <Row></Row>\n<Row>    ", "STRENGTH CASE DATA", "\n<Row></Row>"},
    {3, 0, 1, "  <Row></Row>\n<Row>    ", "SERVICE CASE DATA", "\n<Row></Row>"},
    {3, 0, 2, "  <Row></Row>\n<Row>    ", "EXTREME CASE DATA", "\n<Row></Row>"},
    {3, 1, 0, "  <Row></Row>\n<Row>    ", "LOAD FACTOR DESIGN DATA", "\n<Row></Row>"},
    {3, 2, 0, "  <Row></Row>\n<Row>    ", "LOAD FACTOR DESIGN DATA", "\n<Row></Row>"},
    {3, 2, 1, "  <Row></Row>\n<Row>    ", "SERVICE LOAD DESIGN DATA", "\n<Row></Row>"},
    {4, 0, 0, "  <Row>    ", "STRENGTH CASE DATA", "\n<Row></Row>"},
    {4, 0, 1, "  <Row>    ", "SERVICE CASE DATA", "\n<Row></Row>"},
    {4, 0, 2, "  <Row>    ", "EXTREME CASE DATA", "\n<Row></Row>"},
    {4, 0, 3, "  <Row>    ", "FATIGUE CASE DATA", "\n<Row></Row>"},
    {4, 1, 0, "  <Row>    ", "LOAD FACTOR DESIGN DATA", "\n<Row></Row>"},
    {4, 2, 0, "  <Row>    ", "LOAD FACTOR DESIGN DATA", "\n<Row></Row>"},
    {4, 2, 1, "  <Row>    ", "SERVICE LOAD DESIGN DATA", "\n<Row></Row>"},
    {5, 0, 0, "   <Row></Row>\n\t<Row>    ", "STRENGTH CASE DATA", "\n"},
    {5, 0, 1, "  <Row></Row>\n<Row>\n    ", "SERVICE CASE DATA", "<\n"},
    {5, 0, 2, "   <Row></Row>\n\t<Row>\n    ", "EXTREME CASE DATA", "\n"},
    {5, 1, 0, "  <Row></Row>\n\t<Row>\n    ", "LOAD FACTOR DESIGN DATA", "\n"},
    {5, 2, 0, "   <Row></Row>\n\t<Row>    ", "LOAD FACTOR DESIGN DATA", "\n"},
    {5, 2, 1, "  <Row></Row>\n<Row>\n    ", "SERVICE LOAD DESIGN DATA", "<\n"},
    {6, 0, 0, "   <Row>\n    ", "STRENGTH CASE DATA", "\n"},
    {6, 0, 1, "  <Row>\n   ", "SERVICE CASE DATA", "\n"},
    {6, 0, 2, "   <Row>\n    ", "EXTREME CASE DATA", "\n"},
    {6, 1, 0, "  <Row>\n    ", "LOAD FACTOR DESIGN DATA", "\n"},
    {6, 2, 0, "   <Row>\n    ", "LOAD FACTOR DESIGN DATA", "\n"},
    {6, 2, 1, "  <Row>\n   ", "SERVICE LOAD DESIGN DATA", "\n"},
    {7, 0, 0, "   <Row>    ", "STRENGTH CASE DATA", "\n"},
    {7, 0, 1, "  <Row>    ", "SERVICE CASE DATA", "\n"},
    {7, 0, 2, "   <Row>    ", "EXTREME CASE DATA", "\n"},
    {7, 1, 0, "  <Row>    ", "LOAD FACTOR DESIGN DATA", "\n"},
    {7, 2, 0, "   <Row>    ", "LOAD FACTOR DESIGN DATA", "\n"},
    {7, 2, 1, "  <Row>    ", "SERVICE LOAD DESIGN DATA", "\n"},
};
// clang-format on

constexpr std::string_view kSectionCells =
    "<Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
    "    <Cell ss:Index=\"2\" ss:StyleID=\"s58\"><Data ss:Type=\"String\">";
constexpr std::string_view kSectionEnd = "</Data></Cell>  </Row>";

struct SubstructureRow {
    int table;
    std::string_view opening, closing;  // around the number
    bool bentRemark;                    // a pile bent has no rows in this table, and the heading says so
};
constexpr SubstructureRow kSubstructureRows[] = {
    {1,
     "  <Row>  </Row>\n  <Row ss:Height=\"21\" >\n"
     "    <Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "    <Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Pile Properties Data for Substructure ",
     "</Data></Cell>\n  </Row>\n", false},
    {2,
     "<Row></Row>\n<Row ss:Height=\"21\" >\n"
     "\t<Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "\t<Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Column Properties Data for Substructure ",
     "</Data></Cell>\n</Row>\n\n", true},
    {5,
     "\t<Row></Row>\n<Row ss:Height=\"21\" >\n"
     "    <Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "    <Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Pile Properties Data for Substructure ",
     "</Data></Cell>\n  </Row>\n", false},
    {6,
     "<Row></Row>\n<Row ss:Height=\"21\" >\n"
     "\t<Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "\t<Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Column Properties Data for Substructure ",
     "</Data></Cell>\n</Row>\n", true},
    {7,
     "\t<Row></Row>\n  <Row ss:Height=\"21\">\n"
     "    <Cell><Data ss:Type=\"String\">                                     </Data></Cell>\n"
     "    <Cell ss:StyleID=\"s86\"><Data ss:Type=\"String\">Extra Member Properties Data for Substructure ",
     "</Data></Cell>\n  </Row>\n", false},
};

}  // namespace

std::vector<int> BlockSlots(int table) {
    std::vector<int> slots;
    std::string heading;
    for (int slot = 0; slot < g_DataSet.FirstPier().SlotCount(); ++slot) {
        if (SectionHeading(table, slot, heading)) slots.push_back(slot);
    }
    return slots;
}

std::string SectionRows(int table, int slot) {
    const CPier& first = g_DataSet.FirstPier();
    if (!first.m_bCombinations) return {};
    const int family = first.m_nCodeFamily;
    for (const SectionRow& row : kSectionRows) {
        if (row.table != table || row.family != family || row.slot != slot) continue;
        std::string out(row.opening);
        return out.append(kSectionCells).append(row.words).append(kSectionEnd).append(row.closing);
    }
    return {};
}

std::string SubstructureHeading(int table, int pier) {
    const bool bent = g_DataSet.m_Piers.at(static_cast<std::size_t>(pier)).m_nStructureType == kTypePileBent;
    for (const SubstructureRow& row : kSubstructureRows) {
        if (row.table != table) continue;
        std::string out(row.opening);
        AppendInt(out, pier + 1);
        if (bent && row.bentRemark) out += " (Not applicable for Pile Bent)";
        return out.append(row.closing);
    }
    return {};
}
