// SPDX-License-Identifier: MIT
#include "figures/CapData.h"

#include <algorithm>

#include "framework/Index.h"
#include "model/CapChain.h"
#include "records/TableRows.h"
#include "tables/CapRows.h"
#include "tables/Words.h"

namespace lumerin {

namespace {

// The envelope of one class along the chain of cap elements.
class PanelBuilder {
  public:
    PanelBuilder(const Evaluation& evaluation, std::size_t p, CapForce force, LimitClass slot)
        : m_evaluation(evaluation),
          m_pier(evaluation.Data().m_Piers[p]),
          m_results(evaluation.Elements()[p]),
          m_tables(evaluation.Results().piers[p]),
          m_force(force),
          m_slot(slot) {}

    CapPanel Build() {
        m_panel.className = ClassNameIn(m_evaluation, m_slot);
        if (m_slot < m_results.classes) {
            for (int e = 0; e < m_results.capElements; ++e) AddElement(e);
        }
        for (const int extreme : {0, 1}) AddMarks(extreme);
        return std::move(m_panel);
    }

  private:
    double X(int node) const { return CapLocation(m_pier, m_pier.NodeCoordinate(node, 0)); }

    EndExtreme Greatest(const CapEnvelopeEnd& end) const {
        return m_force == CapForce::shear ? end.greatestShear : end.greatestMoment;
    }
    EndExtreme Least(const CapEnvelopeEnd& end) const {
        return m_force == CapForce::shear ? end.leastShear : end.leastMoment;
    }

    void AddElement(int e) {
        const int element = m_results.firstCapElement + e;
        if (m_pier.IsMasked(element)) {
            m_open = false;
            return;
        }
        const CElement& identity = m_pier.Element(element);
        const double from = X(identity.m_nNodeI), to = X(identity.m_nNodeJ);
        if (!m_open) m_panel.runs.emplace_back();
        AddPoint(from, m_results.Cap(m_slot, e, kEndI), m_open);
        AddPoint(to, m_results.Cap(m_slot, e, kEndJ), false);
        m_open = true;
        StripElement strip{from, to, 0.0F, identity.m_nElementNumber, false};
        for (const int end : {kEndI, kEndJ}) {
            const EndExtreme& ratio = m_results.Ratio(m_slot, element, end);
            if (ratio.loadCase < 0) continue;
            strip.ratio = strip.hasRatio ? std::max(strip.ratio, ratio.value) : ratio.value;
            strip.hasRatio = true;
        }
        m_panel.strip.push_back(strip);
    }

    // `joins`: the node is that of the run's last point.
    void AddPoint(double x, const CapEnvelopeEnd& end, bool joins) {
        BandRun& run = m_panel.runs.back();
        const EndExtreme greatest = Greatest(end), least = Least(end);
        if (!joins || run.empty()) {
            run.push_back({x, greatest, least});
            return;
        }
        BandPoint& point = run.back();
        const auto takes = [](const EndExtreme& held, const EndExtreme& other) {
            return other.loadCase >= 0 && held.loadCase < 0;
        };
        if (takes(point.greatest, greatest) || greatest.value > point.greatest.value)
            point.greatest = greatest;
        if (takes(point.least, least) || least.value < point.least.value) point.least = least;
    }

    void AddMarks(int extreme) {
        const TableId table = m_force == CapForce::shear ? kTableCapShear : kTableCapMoment;
        const std::vector<double>& points =
            m_force == CapForce::shear ? m_tables.shearPointX : m_tables.momentPointX;
        const std::size_t component = m_force == CapForce::shear ? kF22 : kM33;
        WalkCap({table, m_pier, m_tables, m_slot, extreme}, [&](const CCapRow& row) {
            const CCapRecord& record = row.pEntry->record;
            const auto at = Index(row.nPoint);
            if (row.bUnused || record.m_nMissing == 1 || !row.bSideHasResult || record.m_nLoadCase < 0 ||
                at >= points.size())
                return;
            // A result of an element end is drawn at its node: the printed place can be another one, where a
            // cap has no cantilevers (docs/quirks.md).
            const bool atEnd = record.m_nEnd == kEndI || record.m_nEnd == kEndJ;
            const double x = atEnd ? X(record.m_nNode) : CapLocation(m_pier, points[at]);
            m_panel.marks.push_back(
                {x, row.pEntry->values.at(component), record.m_nLoadCase, extreme == 0, row.sLabel});
        });
    }

    const Evaluation& m_evaluation;
    const CPier& m_pier;
    const ElementResults& m_results;
    const PierResults& m_tables;
    CapForce m_force;
    LimitClass m_slot;
    CapPanel m_panel;
    bool m_open = false;  // the last element continues
};

void DescribeSupports(const CPier& pier, CapPicture& picture) {
    for (int support = 0; support < CapSupportCount(pier); ++support) {
        picture.supports.push_back(
            {CapLocation(pier, pier.GetSupportX(support)), PrintedLength(pier, pier.GetSupportWidth(support)),
             std::string(MemberShortName(pier.m_nStructureType)) + " " + std::to_string(support + 1)});
    }
    for (std::size_t i = 0; i < pier.m_BearingList.size(); ++i) {
        picture.bearings.push_back({CapLocation(pier, pier.m_BearingX[i]),
                                    CapBearingLabel(kTableCapMoment, pier.m_BearingList[i], 0)});
    }
}

}  // namespace

CapPicture DescribeCap(const Evaluation& evaluation, std::size_t p, CapForce force) {
    const CPier& pier = evaluation.Data().m_Piers[p];
    CapPicture picture;
    if (!HasCapTables(pier) || pier.m_CapPointX.empty()) return picture;
    for (const LimitClass slot : ClassesOf(evaluation)) {
        picture.panels.push_back(PanelBuilder(evaluation, p, force, slot).Build());
    }
    const auto [least, greatest] = std::ranges::minmax(pier.m_CapPointX);
    picture.from = CapLocation(pier, least);
    picture.to = CapLocation(pier, greatest);
    DescribeSupports(pier, picture);
    return picture;
}

}  // namespace lumerin
