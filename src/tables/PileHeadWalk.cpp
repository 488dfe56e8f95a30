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
        const int piles = static_cast<int>(pier.m_Piles.size());
        for (int pile = 0; pile < piles; ++pile) {
            m_row.clear();
            m_row += ' ';
            AppendInt(m_row, static_cast<long long>(p) + 1, 14);
            m_row += ' ';
            AppendInt(m_row, pile + 1, 6);
            m_row += ' ';
            AppendTension(pier, CaseOf(pier, results.maxTension, slot, pile), pile);
            m_row += ' ';
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
            m_row += "  ***";
            AppendNone();
            return;
        }
        AppendInt(m_row, loadCase + 1, 5);
        if (m_bLimitStates) AppendLimitState(loadCase);
        m_row += ' ';
        AppendHead(pier, loadCase, pile);
    }

    void AppendCompression(const CPier& pier, int loadCase, int pile) {
        if (loadCase < 0) {
            m_row += m_bLimitStates ? "    ***" : "  ***";
            AppendNone();
            return;
        }
        AppendInt(m_row, loadCase + 1, m_bLimitStates ? 7 : 5);
        if (m_bLimitStates) AppendLimitState(loadCase);
        m_row += ' ';
        AppendHead(pier, loadCase, pile);
    }

    void AppendNone() {
        if (m_bLimitStates) m_row += "            ***";
        m_row += "         none      ***";
    }

    void AppendLimitState(int loadCase) {
        AppendLeftPadded(m_row, LimitStateOf(m_report.data, loadCase), 15);
    }

    void AppendHead(const CPier& pier, int loadCase, int pile) {
        const ForceRow forces = m_report.Forces(pier, loadCase, pier.PileElement(pile, 0));
        AppendFixed(m_row, GetForce(forces, kEndJ, kAxial), 2, 12);
        AppendFixed(m_row, GetForce(forces, kEndJ, kDemandCapacity), 2, 9);
    }

    const Report& m_report;
    const TableLayout& m_layout;
    CLineSink& m_sink;
    bool m_bLimitStates;
    ColumnHead m_head;
    std::string m_row;  // reused, so that a row allocates no memory
};

}  // namespace

void WalkPileHeads(const Report& report, const TableLayout& layout, CLineSink& sink) {
    CPileHeadWalk(report, layout, sink).Run();
}

}  // namespace lumerin
