// SPDX-License-Identifier: MIT
#include "web/PrintedTables.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "figures/Marks.h"
#include "framework/Index.h"
#include "model/Applicability.h"
#include "records/TableReason.h"
#include "records/TableRows.h"
#include "tables/CapRows.h"
#include "tables/Catalogue.h"
#include "tables/LineSink.h"
#include "tables/Words.h"
#include "web/HtmlTable.h"
#include "web/PrintedColumns.h"

namespace lumerin {

namespace {

// By table.
constexpr std::array<const char*, 8> kNames{"Axial Forces at Pile Heads",
                                            "Demand/Capacity Ratio of Piles",
                                            "Demand/Capacity Ratio of Columns",
                                            "Cap Shear Design",
                                            "Cap Moment Design",
                                            "Forces of Piles",
                                            "Forces of Columns",
                                            "Forces of Extra Members"};

// A table as the text form walks it, with the substructure, the class and the sign of a block, which the
// lines have in headings, as columns: so one list can be sorted over all blocks.
class TableSink : public CLineSink {
  public:
    TableSink(const Evaluation& evaluation, TableId table, Links& links, Html& html)
        : m_evaluation(evaluation),
          m_layout(LayoutOf(table)),
          m_links(links),
          m_html(html),
          m_rowsOf(evaluation.Data().m_Piers.size()),
          m_isCap(table == kTableCapShear || table == kTableCapMoment) {
        const CDataSet& data = evaluation.Data();
        m_showsPier = table != kTableMaxAxial && data.m_Piers.size() > 1;
        m_showsClass = !ClassNameIn(evaluation, data.FirstPier().Slots().front()).empty();
        if (m_showsPier) m_columns.push_back({"SUB", "", true});
        if (m_showsClass) m_columns.push_back({"CLASS", "", false});
        if (m_isCap) m_columns.push_back({"MAX/MIN", "", false});
        m_blockColumns = m_columns.size();
        for (HtmlColumn& column : PrintedColumns(data, m_layout)) m_columns.push_back(std::move(column));
        m_table.emplace(html, HtmlTableHead{PrintedTableId(table), PrintedTableName(data, table), Remark()},
                        m_columns);
    }

    const TitleMargins& MarginsOf(const TableLayout& layout) const override { return layout.text; }
    void Line(std::string_view) override {}
    void Gap(int, GapStyle) override {}
    void Head(const ColumnHead&) override {}
    void Key(std::string_view) override {}

    void Block(const TableBlock& block) override {
        m_block = block;
        m_pier = std::to_string(block.pier + 1);
        m_class = ClassNameIn(m_evaluation, block.slot);
    }

    void Row(const RowText& row) override {
        ++m_rowsOf[m_block.pier];
        const std::string mark = MarkOf(row);
        const bool hasMark = m_links.HasMark(mark);
        m_cells.clear();
        if (m_showsPier) m_cells.push_back({.text = m_pier});
        if (m_showsClass) m_cells.push_back({.text = m_class});
        if (m_isCap) m_cells.push_back({.text = m_block.extreme == 0 ? "max" : "min"});
        // Without limit states the cap tables have a filler that is a word longer than the head.
        const std::size_t cells = std::min(row.Cells().size(), m_columns.size() - m_blockColumns);
        for (std::size_t i = 0; i < cells; ++i) {
            const std::optional<double> ratio = row.Cells()[i].ratio;
            HtmlCell cell{.text = row.CellText(i)};
            cell.isOver = ratio && *ratio > m_evaluation.Bounds().ratio;
            if (hasMark && i == LinkColumn()) cell.link = mark;
            m_cells.push_back(cell);
        }
        if (m_cells.size() < m_columns.size()) {
            m_cells.back().span += static_cast<int>(m_columns.size() - m_cells.size());
        }
        ++m_rows;
        const std::string id = PrintedTableId(m_layout.table) + "-" + std::to_string(m_rows);
        const bool isTarget = hasMark && m_links.AddRow(mark, id);
        m_table->Row(m_cells, isTarget ? id : std::string());
    }

    void EndTable() override {
        m_table->Finish();
        for (std::size_t p = 0; p < m_rowsOf.size(); ++p) {
            if (m_rowsOf[p] > 0 || m_rowsOf.size() == 1) continue;
            const CPier& pier = m_evaluation.Data().m_Piers[p];
            m_html.Element("p class=\"soft\"", "Substructure " + std::to_string(p + 1) + " (" +
                                                   std::string(StructureTypeName(pier.m_nStructureType)) +
                                                   ") has no rows in this table.");
        }
        if (m_isCap) AppendKey();
    }

  private:
    // The one that names the place of the row.
    std::size_t LinkColumn() const { return m_isCap ? 0 : 1; }

    std::string Remark() const {
        if (m_layout.table == kTableMaxAxial)
            return "Use to compare to pile drive capacity. Tension positive.";
        return m_layout.table == kTableCapMoment ? "+M33 = tension at bottom" : "";
    }

    // The id of the mark that shows what the row says.
    std::string MarkOf(const RowText& row) const {
        const std::size_t substructure = m_block.pier + 1;
        if (m_isCap) {
            const std::string_view figure = m_layout.table == kTableCapShear ? "cap-shear" : "cap-moment";
            return Links::MarkId(figure, substructure,
                                 CapMarkName(m_class, m_block.extreme == 0, row.CellText(0)));
        }
        const std::string number(row.CellText(1));
        if (m_layout.table == kTableMaxAxial) {
            return Links::MarkId("pile-heads", substructure, MemberMarkName("pile " + number));
        }
        return Links::MarkId("dc", substructure, MemberMarkName(MemberWord() + number));
    }

    // As the figure of the members' ratios calls them.
    std::string MemberWord() const {
        if (m_layout.member.family == kXMemberFamily) return "extra member ";
        if (m_layout.member.family == kPileFamily) return "pile ";
        const StructureType type = m_evaluation.Data().m_Piers[m_block.pier].m_nStructureType;
        return type == kTypeWallA || type == kTypeWallB ? "wall " : "column ";
    }

    void AppendKey() {
        m_html.Raw("<dl class=\"words\">\n");
        const auto entry = [this](const CCapKeyEntry& key) {
            if (key.sShort.empty()) return;
            m_html.Element("dt", key.sShort).Element("dd", key.sLong);
        };
        for (const CCapKeyLine& line : CapKey(m_layout.table, m_evaluation.Data())) {
            entry(line.left);
            if (line.right) entry(*line.right);
        }
        m_html.Raw("</dl>\n");
    }

    const Evaluation& m_evaluation;
    const TableLayout& m_layout;
    Links& m_links;
    Html& m_html;
    std::vector<int> m_rowsOf;  // by substructure
    bool m_isCap, m_showsPier = false, m_showsClass = false;
    std::vector<HtmlColumn> m_columns;
    std::size_t m_blockColumns = 0;
    std::optional<HtmlTable> m_table;
    TableBlock m_block;
    std::string m_pier;
    std::string_view m_class;
    std::vector<HtmlCell> m_cells;
    int m_rows = 0;
};

}  // namespace

std::string PrintedTableId(TableId table) {
    return "t" + std::to_string(static_cast<int>(table));
}

std::string PrintedTableName(const CDataSet& data, TableId table) {
    std::string name = TableHeadTitle(table, data);
    while (name.ends_with(' ')) name.pop_back();
    // The type of the first substructure has no such table, so it has no title for it.
    return name.empty() ? std::string(kNames.at(Index(table))) : name;
}

void AppendPrintedTables(const Evaluation& evaluation, Links& links, Html& html) {
    const CDataSet& data = evaluation.Data();
    const TableFlags enabled = ApplicableTables(data, evaluation.Selection());
    ReportOptions options;
    options.format = kFormatText;
    const Report report{data,    evaluation.Selection(), evaluation.Results(), enabled,
                        options, evaluation.Rows()};
    for (const TableId table : kPrintedTables) {
        const std::string reason = WhyTableDoesNotApply(data, evaluation.Selection(), table);
        const std::optional<TableId> writable = WritableTable(report, table);
        // A table begins a page; a sentence does not.
        const bool isThere = reason.empty() && writable == table;
        html.Raw(isThere ? "<section class=\"sheet\"" : "<section");
        html.Raw(" id=\"s-" + PrintedTableId(table) + "\">\n");
        if (!isThere) html.Element("h3", PrintedTableName(data, table));
        if (!reason.empty()) {
            html.Element("p", "This table does not apply: " + reason + ".");
        } else if (!isThere) {
            html.Element("p", "The members of the first substructure are listed with the piles.");
        } else {
            TableSink sink(evaluation, table, links, html);
            WalkTable(report, table, sink);
        }
        html.Raw("</section>\n");
    }
}

}  // namespace lumerin
