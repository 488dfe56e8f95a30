// SPDX-License-Identifier: MIT
#include "framework/Index.h"
#include "tables/Catalogue.h"
#include "tables/RowText.h"
#include "tables/TableWalks.h"

namespace lumerin {

// Table 0: for every pile the case that pulls hardest on its head and the case that pushes hardest.
namespace {

class CPileHeadWalk {
  public:
    CPileHeadWalk(const Report& report, const TableLayout& layout, CLineSink& sink)
        : m_report(report), m_layout(layout), m_sink(sink), m_bLimitStates(report.data.HasCombinations()) {}

    void Run() {
        WriteTitle();
        m_head = BuildColumnHead(m_report.data, m_layout);
        for (std::size_t p = 0; p < m_report.data.m_Piers.size(); ++p) {
            for (const LimitClass slot : m_report.data.FirstPier().Slots()) WriteBlock(p, slot);
            m_sink.Gap(2, GapStyle::blank);
        }
    }

  private:
    void WriteTitle() {
        WriteTitleLine(m_report, m_layout, m_sink);
        const TitleMargins& margins = m_sink.MarginsOf(m_layout);
        const auto& blanks = m_bLimitStates ? margins.furtherWide : margins.furtherNarrow;
        m_sink.Line(Blanks(blanks[0]) + "(USE TO COMPARE TO PILE DRIVE CAPACITY)");
        m_sink.Line(Blanks(blanks[1]) + "MAXIMUM COMPRESSION AND MAXIMUM TENSION FORCES");
        m_sink.Gap(2);
    }

    void WriteBlock(std::size_t p, LimitClass slot) {
        const CPier& pier = m_report.data.m_Piers[p];
        const PierResults& results = m_report.results.piers[p];
        if (!WriteSectionHeading(m_report, m_layout, slot, m_sink)) return;
        m_sink.MayBreak(BreakPoint::columnHead);
        m_sink.Head(m_head);
        m_sink.Block({p, slot, 0});
        const int piles = static_cast<int>(pier.m_Piles.size());
        for (int pile = 0; pile < piles; ++pile) {
            m_row.Clear();
            m_line += ' ';
            AppendInt(m_line, static_cast<long long>(p) + 1, 14);
            m_row.EndCell();
            m_line += ' ';
            AppendInt(m_line, pile + 1, 6);
            m_row.EndCell();
            m_line += ' ';
            AppendTension(pier, CaseOf(pier, results.maxTension, slot, pile), pile);
            m_line += ' ';
            AppendCompression(pier, CaseOf(pier, results.maxCompression, slot, pile), pile);
            m_sink.Row(m_row);
        }
        if (m_bLimitStates && m_report.data.HasLaterSection(m_report.selection, slot, false))
            m_sink.Gap(2, GapStyle::lineFeed);
    }

    // The stored case, or -1 where it is none of the substructure's or the pile has no head element.
    static int CaseOf(const CPier& pier, const std::vector<std::vector<int>>& cases, LimitClass slot,
                      int pile) {
        const auto s = Index(slot);
        const auto p = Index(pile);
        if (s >= cases.size() || p >= cases[s].size()) return -1;
        const int loadCase = cases[s][p];
        if (loadCase < 0 || Index(loadCase) >= pier.m_LoadCases.size()) return -1;
        return pier.FindElement(kPileFamily, pile, 0) < 0 ? -1 : loadCase;
    }

    void AppendTension(const CPier& pier, int loadCase, int pile) {
        if (loadCase < 0) {
            m_row.AppendWords("  ***");
            AppendNone();
            return;
        }
        AppendInt(m_line, loadCase + 1, 5);
        m_row.EndCell();
        if (m_bLimitStates) AppendLimitState(loadCase);
        m_line += ' ';
        AppendHead(pier, loadCase, pile);
    }

    void AppendCompression(const CPier& pier, int loadCase, int pile) {
        if (loadCase < 0) {
            m_row.AppendWords(m_bLimitStates ? "    ***" : "  ***");
            AppendNone();
            return;
        }
        AppendInt(m_line, loadCase + 1, m_bLimitStates ? 7 : 5);
        m_row.EndCell();
        if (m_bLimitStates) AppendLimitState(loadCase);
        m_line += ' ';
        AppendHead(pier, loadCase, pile);
    }

    void AppendNone() {
        if (m_bLimitStates) m_row.AppendWords("            ***");
        m_row.AppendWords("         none      ***");
    }

    void AppendLimitState(int loadCase) {
        AppendLeftPadded(m_line, LimitStateOf(m_report.data, loadCase), 15);
        m_row.EndCell();
    }

    void AppendHead(const CPier& pier, int loadCase, int pile) {
        const ForceRow forces = m_report.Forces(pier, loadCase, pier.PileElement(pile, 0));
        AppendFixed(m_line, GetForce(forces, kEndJ, kAxial), 2, 12);
        m_row.EndCell();
        AppendFixed(m_line, GetForce(forces, kEndJ, kDemandCapacity), 2, 9);
        m_row.EndRatio(GetForce(forces, kEndJ, kDemandCapacity));
    }

    const Report& m_report;
    const TableLayout& m_layout;
    CLineSink& m_sink;
    bool m_bLimitStates;
    ColumnHead m_head;
    RowText m_row;  // reused, so that a row allocates no memory
    std::string& m_line = m_row.line;
};

}  // namespace

void WalkPileHeads(const Report& report, const TableLayout& layout, CLineSink& sink) {
    CPileHeadWalk(report, layout, sink).Run();
}

}  // namespace lumerin
