// SPDX-License-Identifier: MIT
#include "samples/Geometry.h"

#include <algorithm>
#include <string>

#include "samples/OutputFile.h"

namespace lumerin {

namespace samples {
namespace {

constexpr int kConnectorsPerColumn = 4;
constexpr int kConnectorSection = 1;
constexpr int kFirstColumnSection = 2;
constexpr std::size_t kLargestNodeList = 3501;

int Count(std::size_t n) {
    return static_cast<int>(n);
}

// Builds one substructure step by step; the steps follow the order of the host's node list.
class Builder {
  public:
    explicit Builder(const SubstructurePlan& plan) {
        m_result.plan = plan;
        m_result.columns = Count(plan.supportX.size());
        m_result.cantileverNodes = Count(plan.leftCantilever.size()) - 1;
        m_result.spanNodes = plan.spanNodes.empty() ? 0 : Count(plan.spanNodes.front().size());
    }

    Substructure Build() {
        CheckPlan();
        AddPileHeads();
        if (Plan().type == StructureType::PileBent) {
            AddBentNodes();
        } else if (m_result.columns > 0) {
            AddColumnNodes();
        } else {
            AddNode(CenterX(), 0.0, 0.0);  // a group is loaded at one node over its middle
        }
        CollectCapPoints();
        AddElements();
        AddExtraMembers();
        AddBearings();
        CheckNodeCount();
        return std::move(m_result);
    }

  private:
    const SubstructurePlan& Plan() const { return m_result.plan; }

    bool HasCap() const {
        return Plan().type == StructureType::Pier || Plan().type == StructureType::PileBent;
    }

    double CenterX() const {
        const auto& x = Plan().supportX;
        return x.empty() ? Plan().locationX : (x.front() + x.back()) / 2.0;
    }

    void CheckPlan() const {
        const auto& plan = Plan();
        if (plan.leftCantilever.size() != plan.rightCantilever.size()) {
            throw SampleError("the two cantilevers of a cap need the same number of nodes");
        }
        if (HasCap() && plan.spanNodes.size() + 1 != plan.supportX.size()) {
            throw SampleError("a cap needs one span less than supports");
        }
        for (const auto& span : plan.spanNodes) {
            if (Count(span.size()) != m_result.spanNodes) {
                throw SampleError("the spans of a cap need the same number of nodes");
            }
        }
        if (plan.type == StructureType::PileBent && m_result.PileCount() != m_result.columns) {
            throw SampleError("every pile of a bent carries its cap");
        }
    }

    int AddNode(double x, double y, double z) {
        m_result.nodes.push_back({x, y, z});
        return Count(m_result.nodes.size());
    }

    // The heads come first, so that a pile's head has the pile's number.
    void AddPileHeads() {
        const auto& plan = Plan();
        if (plan.type == StructureType::PileBent) {
            for (double x : plan.supportX) m_supportTops.push_back(AddNode(x, 0.0, plan.height));
            return;
        }
        const double x0 = CenterX() - plan.pileSpacing * (plan.pileColumns - 1) / 2.0;
        const double y0 = -plan.pileSpacing * (plan.pileRows - 1) / 2.0;
        for (int row = 0; row < plan.pileRows; ++row) {
            for (int column = 0; column < plan.pileColumns; ++column) {
                AddNode(x0 + plan.pileSpacing * column, y0 + plan.pileSpacing * row, -plan.pileSpacing / 2.0);
            }
        }
        if (m_result.columns > 0) m_result.foundationNodes = m_result.PileCount();
    }

    void AddRow(const std::vector<double>& x, std::vector<int>& numbers) {
        for (double value : x) numbers.push_back(AddNode(value, 0.0, Plan().height));
    }

    void AddBentNodes() {
        AddRow(Plan().leftCantilever, m_left);
        for (const auto& span : Plan().spanNodes) AddRow(span, m_spans.emplace_back());
        AddRow(Plan().rightCantilever, m_right);
    }

    void AddColumnNodes() {
        const auto& plan = Plan();
        for (int c = 0; c < m_result.columns; ++c) {
            const double x = plan.supportX[static_cast<std::size_t>(c)];
            m_columnFeet.push_back(Count(m_result.nodes.size()) + 1);
            for (int level = 0; level <= plan.columnNodes + 1; ++level) {
                AddNode(x, 0.0, plan.height * level / (plan.columnNodes + 1));
            }
            m_supportTops.push_back(Count(m_result.nodes.size()));
            if (!HasCap()) continue;
            if (c == 0) AddRow(plan.leftCantilever, m_left);
            if (c + 1 < m_result.columns) {
                AddRow(plan.spanNodes[static_cast<std::size_t>(c)], m_spans.emplace_back());
            }
        }
        if (HasCap()) AddRow(plan.rightCantilever, m_right);
    }

    void AddCapPoint(int node) {
        m_result.cap.push_back({node, m_result.nodes[static_cast<std::size_t>(node - 1)].x});
    }

    void CollectCapPoints() {
        if (!HasCap()) return;
        for (int node : m_left) AddCapPoint(node);
        for (std::size_t c = 0; c < m_supportTops.size(); ++c) {
            m_result.supportCapPoints.push_back(Count(m_result.cap.size()));
            AddCapPoint(m_supportTops[c]);
            if (c >= m_spans.size()) continue;
            for (int node : m_spans[c]) AddCapPoint(node);
        }
        for (int node : m_right) AddCapPoint(node);
        for (std::size_t i = 1; i < m_result.cap.size(); ++i) {
            if (m_result.cap[i].x <= m_result.cap[i - 1].x)
                throw SampleError("the cap's nodes must go from left to right");
        }
        m_result.capMissing.assign(m_result.cap.size() - 1, false);
        for (int place : Plan().missingSpanElements) {
            m_result.capMissing.at(m_left.size() + static_cast<std::size_t>(place)) = true;
        }
    }

    void AddElement(int nodeI, int nodeJ, int section, MemberKind kind, int member, int element) {
        m_result.elements.push_back({++m_number, nodeI, nodeJ, section, kind, member, element});
    }

    // The feet are on the four nearest pile heads.
    void AddConnectors() {
        for (int c = 0; c < m_result.columns; ++c) {
            const int foot = m_columnFeet[static_cast<std::size_t>(c)];
            const double x = m_result.nodes[static_cast<std::size_t>(foot - 1)].x;
            std::vector<int> heads;
            for (int p = 1; p <= m_result.PileCount(); ++p) heads.push_back(p);
            std::stable_sort(heads.begin(), heads.end(),
                             [&](int a, int b) { return DistanceSquared(a, x) < DistanceSquared(b, x); });
            for (int i = 0; i < kConnectorsPerColumn; ++i) {
                const int head = heads[static_cast<std::size_t>(i) % heads.size()];
                AddElement(head, foot, kConnectorSection, MemberKind::Connector, c, i);
            }
        }
    }

    double DistanceSquared(int node, double x) const {
        const Node& at = m_result.nodes[static_cast<std::size_t>(node - 1)];
        return (at.x - x) * (at.x - x) + at.y * at.y;
    }

    void AddColumn(int c) {
        const int foot = m_columnFeet[static_cast<std::size_t>(c)];
        const int elements = m_result.ColumnElements();
        for (int e = 0; e < elements; ++e) {
            const int section = kFirstColumnSection + e * Plan().columnSections / elements;
            AddElement(foot + e, foot + e + 1, section, MemberKind::Column, c, e);
        }
    }

    // The number of a missing element is not used again, so the numbers have a gap there.
    void AddCapElements(int first, int last) {
        const int section = kFirstColumnSection + std::max(Plan().columnSections, 1);
        for (int i = first; i < last; ++i) {
            const auto at = static_cast<std::size_t>(i);
            if (m_result.capMissing[at]) {
                ++m_number;
                ++m_result.elementGaps;
                continue;
            }
            AddElement(m_result.cap[at].node, m_result.cap[at + 1].node, section, MemberKind::Cap, i, 0);
        }
    }

    void AddElements() {
        if (m_result.columns == 0) return AddGroupElements();
        const bool bent = Plan().type == StructureType::PileBent;
        const bool walls = Plan().type == StructureType::Walls;
        if (walls || m_result.foundationNodes >= 2) AddConnectors();
        for (int c = 0; c < m_result.columns; ++c) {
            if (!bent) AddColumn(c);
            if (!HasCap()) continue;
            const int top = m_result.supportCapPoints[static_cast<std::size_t>(c)];
            if (c == 0) AddCapElements(0, top);
            const bool isLast = c + 1 == m_result.columns;
            const int end = isLast ? Count(m_result.cap.size()) - 1
                                   : m_result.supportCapPoints[static_cast<std::size_t>(c) + 1];
            AddCapElements(top, end);
        }
    }

    // The load node of a group is connected to its corner piles.
    void AddGroupElements() {
        const int piles = m_result.PileCount();
        const int corners[] = {1, Plan().pileColumns, piles - Plan().pileColumns + 1, piles};
        for (int i = 0; i < kConnectorsPerColumn; ++i) {
            AddElement(corners[i], piles + 1, kConnectorSection, MemberKind::Connector, 0, i);
        }
    }

    void AddExtraMembers() {
        int member = 0;
        for (const auto& extra : Plan().extraMembers) {
            const int nodeI = m_result.foundationNodes + extra.positionI + 1;
            const int nodeJ = m_result.foundationNodes + extra.positionJ + 1;
            if (nodeI > Count(m_result.nodes.size()) || nodeJ > Count(m_result.nodes.size())) {
                throw SampleError("an extra member ends at a node that does not exist");
            }
            AddElement(nodeI, nodeJ, extra.section, MemberKind::Extra, member++, 0);
        }
    }

    Bearing PlaceBearing(const BearingPlan& plan) const {
        for (std::size_t i = 0; i < m_result.cap.size(); ++i) {
            if (plan.onCap && m_result.cap[i].x == plan.x) {
                return {m_result.cap[i].node, Count(i),
                        m_result.nodes[static_cast<std::size_t>(m_result.cap[i].node - 1)]};
            }
        }
        for (int foot : m_columnFeet) {
            const Node& at = m_result.nodes[static_cast<std::size_t>(foot)];
            if (!plan.onCap && at.x == plan.x) return {foot + 1, -1, at};
        }
        throw SampleError("no node for the bearing at x = " + std::to_string(plan.x));
    }

    void AddBearings() {
        for (const auto& row : Plan().bearingRows) {
            auto& bearings = m_result.bearingRows.emplace_back();
            for (const auto& plan : row) bearings.push_back(PlaceBearing(plan));
        }
    }

    void CheckNodeCount() const {
        const bool kept = Plan().type != StructureType::PileGroup;
        const auto skipped = static_cast<std::size_t>(m_result.foundationNodes);
        if (kept && m_result.nodes.size() - skipped > kLargestNodeList) {
            throw SampleError("a substructure of " + std::to_string(m_result.nodes.size() - skipped) +
                              " nodes is too large; 3501 are the most");
        }
    }

    Substructure m_result;
    int m_number = 0;
    std::vector<int> m_columnFeet;   // node numbers
    std::vector<int> m_supportTops;  // node numbers
    std::vector<int> m_left;
    std::vector<int> m_right;
    std::vector<std::vector<int>> m_spans;
};

}  // namespace

Substructure BuildSubstructure(const SubstructurePlan& plan) {
    return Builder(plan).Build();
}

int ColumnNodePosition(const SubstructurePlan& plan, int column, int level) {
    int position = (plan.columnNodes + 2) * column + level;
    if (column == 0) return position;
    position += Count(plan.leftCantilever.size());
    for (int c = 0; c < column; ++c) position += Count(plan.spanNodes.at(static_cast<std::size_t>(c)).size());
    return position;
}

}  // namespace samples

}  // namespace lumerin
