// SPDX-License-Identifier: MIT
#include "framework/Index.h"
#include "tables/CapRows.h"
#include "tables/Catalogue.h"
#include "tables/RowText.h"
#include "tables/TableWalks.h"
#include "tables/Words.h"

namespace lumerin {

// Tables 3 and 4: for each design section of the cap, in order of position, the case with the maximum and the
// case with the minimum, and all forces there in the same case.
namespace {

constexpr std::size_t kKeyColumn = 43;

std::string CapKeyText(TableId table, const CDataSet& data) {
    std::string text = "\n\n \"Location & Side\" Key:\n\n";
    const std::vector<CCapKeyLine> key = CapKey(table, data);
    for (const CCapKeyLine& line : key) {
        text += "    ";
        // The moment table's last line has no right entry and ends with its left one; other lines keep the
        // column's blanks even where no entry follows.
        const bool open = !line.right && &line == &key.back();
        text += open ? line.left.Text() : PadRight(line.left.Text(), kKeyColumn);
        if (line.right) text += line.right->Text();
        text += '\n';
    }
    return text;
}

class CCapWalk {
  public:
    CCapWalk(const Report& report, const TableLayout& layout, CLineSink& sink)
        : m_report(report),
          m_layout(layout),
          m_cap(layout.cap),
          m_sink(sink),
          m_bLimitStates(report.data.HasCombinations()) {}

    void Run() {
        WriteTitleLine(m_report, m_layout, m_sink);
        m_sink.Gap(2);
        m_head = BuildColumnHead(m_report.data, m_layout);
        const std::size_t piers = m_report.data.m_Piers.size();
        for (std::size_t p = 0; p < piers; ++p) {
            WriteExtreme(p, 0);
            m_sink.Gap(3);
            WriteExtreme(p, 1);
            if (p + 1 < piers) m_sink.Gap(3);
        }
        m_sink.MayBreak(BreakPoint::key);
        m_sink.Key(CapKeyText(m_layout.table, m_report.data));
    }

  private:
    void WriteExtreme(std::size_t p, int extreme) {
        const CPier& pier = m_report.data.m_Piers[p];
        m_sink.MayBreak(BreakPoint::pierHeading);
        WriteHeading(pier, static_cast<int>(p) + 1, extreme);
        const std::span<const LimitClass> slots = m_report.data.FirstPier().Slots();
        for (const LimitClass slot : slots) {
            if (!WriteSectionHeading(m_report, m_layout, slot, m_sink)) continue;
            m_sink.MayBreak(BreakPoint::columnHead);
            m_sink.Head(m_head);
            m_sink.Block({p, slot, extreme});
            WriteRows({m_layout.table, pier, m_report.results.piers[p], slot, extreme});
            if (slot != slots.back()) m_sink.Gap(2);
        }
    }

    void WriteHeading(const CPier& pier, int number, int extreme) {
        std::string heading = TableTitle(m_layout.table, pier.m_nStructureType);
        AppendNumbered(heading, m_cap.blockHeading[Index(extreme)], number);
        const std::size_t feed = heading.find('\n');
        m_sink.Line(std::string_view(heading).substr(0, feed));
        m_sink.Line(std::string_view(heading).substr(feed + 1));
        if (extreme == 0 && m_cap.maximumRemark[0] != '\0') m_sink.Line(m_cap.maximumRemark);
        m_sink.Gap(2);
    }

    void WriteRows(const CapBlock& block) {
        WalkCap(block, [this](const CCapRow& row) {
            m_row.Clear();
            AppendLeftPadded(m_line, row.sLabel, 12);
            m_row.EndCell();
            m_line += ' ';
            AppendRow(row);
            m_sink.Row(m_row);
        });
    }

    void AppendRow(const CCapRow& row) {
        const CCapRecord& record = row.pEntry->record;
        const std::size_t form = m_bLimitStates ? 1 : 0;
        if (record.m_nMissing == 1) {
            m_row.AppendWords(m_cap.missing[form]);
            return;
        }
        AppendInt(m_line, record.m_nElementNumber, 5);
        m_row.EndCell();
        m_line += ' ';
        AppendInt(m_line, record.m_nSection, 5);
        m_row.EndCell();
        m_line += ' ';
        AppendNode(record, row.bBearing);
        if (!row.bSideHasResult) {
            m_row.AppendWords(m_cap.sideMissing[form]);
        } else if (record.m_nLoadCase < 0) {
            // This filler has the limit state column in either form; without one the row runs past the head.
            m_row.AppendWords(m_cap.noLoadCase);
        } else {
            AppendResult(record, row.pEntry->values);
        }
    }

    void AppendNode(const CCapRecord& record, bool bearing) {
        if (bearing || record.m_nEnd == kEndI || record.m_nEnd == kEndJ) {
            AppendInt(m_line, record.m_nNode, 10);
        } else if (record.m_nEnd == kInsideElement) {
            m_nodes.clear();
            AppendInt(m_nodes, record.m_nNode);
            m_nodes += ',';
            AppendInt(m_nodes, record.m_nSecondNode);
            m_line += ' ';
            AppendLeftPadded(m_line, m_nodes, 9);
        } else {
            m_line += "       ***";
        }
        m_row.EndCell();
        m_line += ' ';
    }

    void AppendResult(const CCapRecord& record, const CapValues& values) {
        AppendInt(m_line, record.m_nLoadCase + 1LL, 5);
        m_row.EndCell();
        if (m_bLimitStates) {
            AppendLeftPadded(m_line, LimitStateOf(m_report.data, record.m_nLoadCase), 15);
            m_row.EndCell();
        }
        AppendEnd(record.m_nEnd);
        for (std::size_t i = 0; i < m_cap.values; ++i) {
            const int component = m_cap.valueOrder[i];
            const double value = values[Index(component)];
            if (i + 1 < m_cap.values) m_line += "   ";
            AppendFixed(m_line, value, 2, 9);
            if (component == kDemandCapacity) {
                m_row.EndRatio(value);
            } else {
                m_row.EndCell();
            }
        }
    }

    void AppendEnd(int end) {
        static constexpr const char* kEnds[] = {"    I", "    J", "  I,J"};
        m_row.AppendWords(end >= kEndI && end <= kInsideElement ? kEnds[end] : "  ***");
    }

    const Report& m_report;
    const TableLayout& m_layout;
    const CapTexts& m_cap;
    CLineSink& m_sink;
    bool m_bLimitStates;
    ColumnHead m_head;
    RowText m_row;  // both are reused, so that a row allocates no memory
    std::string& m_line = m_row.line;
    std::string m_nodes;
};

}  // namespace

void WalkCapTable(const Report& report, const TableLayout& layout, CLineSink& sink) {
    CCapWalk(report, layout, sink).Run();
}

}  // namespace lumerin
