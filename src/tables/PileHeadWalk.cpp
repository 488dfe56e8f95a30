#include "model/DataSet.h"
#include "tables/Catalogue.h"
#include "tables/RowText.h"
#include "tables/TableWalks.h"

// Table 0: for every pile the case that pulls hardest on its head and the case that pushes hardest.
namespace {

class CPileHeadWalk {
  public:
    CPileHeadWalk(const TableLayout& layout, CLineSink& sink)
        : m_layout(layout), m_sink(sink), m_bLimitStates(g_DataSet.FirstPier().m_bCombinations) {}

    void Run() {
        WriteTitle();
        m_head = BuildColumnHead(m_layout);
        const int slots = g_DataSet.FirstPier().SlotCount();
        int number = 0;
        for (const CPier& pier : g_DataSet.m_Piers) {
            ++number;
            for (int slot = 0; slot < slots; ++slot) WriteBlock(pier, number, slot);
            m_sink.Gap(2, GapStyle::blank);
        }
    }

  private:
    void WriteTitle() {
        WriteTitleLine(m_layout, m_sink);
        const TitleMargins& margins = m_sink.MarginsOf(m_layout);
        const auto& blanks = m_bLimitStates ? margins.furtherWide : margins.furtherNarrow;
        m_sink.Line(Blanks(blanks[0]) + "(USE TO COMPARE TO PILE DRIVE CAPACITY)");
        m_sink.Line(Blanks(blanks[1]) + "MAXIMUM COMPRESSION AND MAXIMUM TENSION FORCES");
        m_sink.Gap(2);
    }

    void WriteBlock(const CPier& pier, int number, int slot) {
        if (!WriteSectionHeading(m_layout, slot, m_sink)) return;
        m_sink.MayBreak(BreakPoint::columnHead);
        m_sink.Head(m_head);
        const int piles = static_cast<int>(pier.m_Piles.size());
        for (int pile = 0; pile < piles; ++pile) {
            m_row.clear();
            m_row += ' ';
            AppendInt(m_row, number, 14);
            m_row += ' ';
            AppendInt(m_row, pile + 1, 6);
            m_row += ' ';
            AppendTension(pier, CaseOf(pier, pier.m_ppMaxTension, slot, pile), pile);
            m_row += ' ';
            AppendCompression(pier, CaseOf(pier, pier.m_ppMaxCompression, slot, pile), pile);
            m_sink.Row(m_row);
        }
        if (m_bLimitStates && g_DataSet.HasLaterSection(slot, false)) m_sink.Gap(2, GapStyle::lineFeed);
    }

    // The stored case, or -1 where it is none of the substructure's or the pile has no head element.
    static int CaseOf(const CPier& pier, const std::vector<std::vector<int>>& cases, int slot, int pile) {
        const auto s = static_cast<std::size_t>(slot);
        const auto p = static_cast<std::size_t>(pile);
        if (s >= cases.size() || p >= cases[s].size()) return -1;
        const int loadCase = cases[s][p];
        if (loadCase < 0 || static_cast<std::size_t>(loadCase) >= pier.m_LoadCases.size()) return -1;
        return pier.FindElement(CPier::kPileFamily, pile, 0) < 0 ? -1 : loadCase;
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

    void AppendLimitState(int loadCase) { AppendLeftPadded(m_row, LimitStateOf(loadCase), 15); }

    void AppendHead(const CPier& pier, int loadCase, int pile) {
        const ElementForces forces = pier.Forces(loadCase, pier.PileElement(pile, 0));
        AppendFixed(m_row, GetForce(forces, kEndJ, kAxial), 2, 12);
        AppendFixed(m_row, GetForce(forces, kEndJ, kDemandCapacity), 2, 9);
    }

    const TableLayout& m_layout;
    CLineSink& m_sink;
    bool m_bLimitStates;
    ColumnHead m_head;
    std::string m_row;  // reused, so that a row takes no memory
};

}  // namespace

void WalkPileHeads(const TableLayout& layout, CLineSink& sink) {
    CPileHeadWalk(layout, sink).Run();
}
