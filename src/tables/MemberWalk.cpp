// SPDX-License-Identifier: MIT
#include <array>

#include "framework/Index.h"
#include "tables/Catalogue.h"
#include "tables/RowText.h"
#include "tables/TableWalks.h"
#include "tables/Words.h"

namespace lumerin {

// Tables 1, 2, 5, 6 and 7: for every property of piles, columns or extra members the place of the greatest
// ratio, or of the greatest and the least of each force, with all forces there in the same case.
namespace {

class CMemberWalk {
  public:
    CMemberWalk(const Report& report, const TableLayout& layout, CLineSink& sink)
        : m_report(report),
          m_layout(layout),
          m_member(layout.member),
          m_sink(sink),
          m_bLimitStates(report.data.HasCombinations()) {
        for (std::size_t e = 0; e < m_extremeNames.size(); ++e) {
            m_extremeNames[e] = FormatCellText(g_ExtremeNames[e], 11, report.options.format);
            m_missingValues[e] = MissingForceColumns(static_cast<int>(e));
        }
    }

    void Run() {
        WriteTitleLine(m_report, m_layout, m_sink);
        m_sink.Gap(2);
        m_head = BuildColumnHead(m_report.data, m_layout);
        const CDataSet& data = m_report.data;
        for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
            const CPier& pier = data.m_Piers[p];
            if (m_member.family == kXMemberFamily && pier.m_nExtraMembers <= 0) continue;
            if (!WritePierHeading(pier, static_cast<int>(p) + 1)) continue;
            for (const LimitClass slot : data.FirstPier().Slots()) WriteBlock(p, slot);
            if (m_member.gapAfterPier) m_sink.Gap(2);
        }
    }

  private:
    // False: the substructure has no blocks in this table.
    bool WritePierHeading(const CPier& pier, int number) {
        const char* heading = m_member.pierHeading;
        if (pier.m_nStructureType == kTypeNoPileTables) heading = m_member.pierHeadingType8;
        const bool bent = pier.m_nStructureType == kTypePileBent && m_member.pierHeadingBent[0] != '\0';
        if (bent) heading = m_member.pierHeadingBent;
        m_sink.MayBreak(BreakPoint::pierHeading);
        m_sink.Line(FormatNumbered(heading, number));
        m_sink.Gap(1);
        return !bent;
    }

    void WriteBlock(std::size_t p, LimitClass slot) {
        const CPier& pier = m_report.data.m_Piers[p];
        if (!WriteSectionHeading(m_report, m_layout, slot, m_sink)) return;
        m_sink.MayBreak(BreakPoint::columnHead);
        m_sink.Head(m_head);
        m_sink.Block({p, slot, 0});
        const CRecordTable& records = RecordsOf(m_report.results.piers[p]);
        const int properties = PropertiesOf(pier);
        for (int property = 0; property < properties; ++property) {
            const int number = NumberOf(pier, property);
            if (m_member.sectionByNumber && !m_report.data.IsExtraMemberSection(p, number)) continue;
            WriteProperty(pier, records, property, number, slot);
            if (m_member.forces && property + 1 < properties) m_sink.Gap(1);
        }
        m_sink.Gap(2);
    }

    const CRecordTable& RecordsOf(const PierResults& results) const {
        switch (m_member.family) {
            case kPileFamily:
                return m_member.forces ? results.pileForces : results.pileDc;
            case kColumnFamily:
                return m_member.forces ? results.columnForces : results.columnDc;
            default:
                return results.extraMemberForces;
        }
    }

    int PropertiesOf(const CPier& pier) const {
        if (m_member.family == kPileFamily) return pier.m_nPileSections;
        return m_member.family == kColumnFamily ? pier.m_nColumnSections : pier.m_nXMemberSections;
    }

    int NumberOf(const CPier& pier, int property) const {
        return property + (m_member.sectionByNumber ? pier.m_nXMemberFirstSection : m_member.firstProperty);
    }

    void WriteProperty(const CPier& pier, const CRecordTable& records, int property, int number,
                       LimitClass slot) {
        const int rows = m_member.forces ? kPrintedExtremes : 1;
        for (int extreme = 0; extreme < rows; ++extreme) {
            m_row.Clear();
            m_line += ' ';
            AppendIntBlankZero(m_line, number, 4);
            m_row.EndCell();
            m_line += ' ';
            int element = -1;
            const CMaxRecord& record = Find(pier, records, property, slot, extreme, element);
            if (m_member.forces && element < 0) {
                AppendMissingForce(extreme);
            } else {
                AppendPlace(record);
                AppendResult(pier, record, element, extreme);
            }
            m_sink.Row(m_row);
        }
    }

    // A record that points at no case, member or element of the substructure counts as one without a result.
    const CMaxRecord& Find(const CPier& pier, const CRecordTable& records, int property, LimitClass slot,
                           int extreme, int& element) const {
        element = -1;
        if (property >= records.Sections() || slot >= records.Slots() || extreme >= records.Extremes()) {
            return kNotFoundRecord;
        }
        const CMaxRecord& record = records.At(property, slot, extreme);
        if (record.m_nLoadCase < 0) return record;
        if (Index(record.m_nLoadCase) >= pier.m_LoadCases.size()) return kNotFoundRecord;
        element = pier.FindElement(m_member.family, record.m_nMember, record.m_nElement);
        return element < 0 ? kNotFoundRecord : record;
    }

    void AppendPlace(const CMaxRecord& record) {
        if (m_member.blankBeforeMember) m_line += ' ';
        AppendIntBlankZero(m_line, record.m_nMember + 1, m_member.memberWidth);
        m_row.EndCell();
        m_line += ' ';
        AppendIntBlankZero(m_line, record.m_nElementNumber, 5);
        m_row.EndCell();
        m_line += ' ';
        AppendIntBlankZero(m_line, record.m_nNode, 5);
        m_row.EndCell();
        m_line += ' ';
    }

    void AppendResult(const CPier& pier, const CMaxRecord& record, int element, int extreme) {
        if (element < 0) {
            AppendMissingRatio();
            return;
        }
        AppendIntBlankZero(m_line, record.m_nLoadCase + 1, 5);
        m_row.EndCell();
        if (m_bLimitStates) {
            AppendLeftPadded(m_line, LimitStateOf(m_report.data, record.m_nLoadCase), 15);
            m_row.EndCell();
        }
        const int end = record.m_nEnd == kEndI ? kEndI : kEndJ;
        m_row.AppendWords(end == kEndI ? "    I" : "    J");
        if (m_member.forces) AppendExtremeName(extreme);
        const ForceRow forces = m_report.Forces(pier, record.m_nLoadCase, element);
        for (int component = kAxial; component < kDemandCapacity; ++component) {
            m_line += m_member.valueGap;
            AppendFixed(m_line, GetForce(forces, end, component), 2, 10);
            m_row.EndCell();
        }
        AppendFixed(m_line, GetForce(forces, end, kDemandCapacity), 2, 10);
        m_row.EndRatio(GetForce(forces, end, kDemandCapacity));
    }

    void AppendExtremeName(int extreme) {
        m_line += m_extremeNames[Index(extreme)];
        m_row.EndCell();
    }

    // A sentence is one cell, however many words it has.
    void AppendMissingRatio() {
        const char* words = m_member.missingRatio[m_bLimitStates ? 1 : 0];
        if (m_member.missingIsSentence) {
            m_line += words;
            m_row.EndCell();
        } else {
            m_row.AppendWords(words);
        }
    }

    void AppendMissingForce(int extreme) {
        m_row.AppendWords(m_member.missing);
        if (m_bLimitStates) m_row.AppendWords("            ***");
        m_row.AppendWords("  ***");
        AppendExtremeName(extreme);
        m_row.AppendWords(m_missingValues[Index(extreme)]);
    }

    const Report& m_report;
    const TableLayout& m_layout;
    const MemberRowTexts& m_member;
    CLineSink& m_sink;
    bool m_bLimitStates;
    ColumnHead m_head;
    std::array<std::string, kPrintedExtremes> m_extremeNames;
    std::array<std::string, kPrintedExtremes> m_missingValues;
    RowText m_row;  // reused, so that a row allocates no memory
    std::string& m_line = m_row.line;
};

}  // namespace

void WalkMembers(const Report& report, const TableLayout& layout, CLineSink& sink) {
    CMemberWalk(report, layout, sink).Run();
}

}  // namespace lumerin
