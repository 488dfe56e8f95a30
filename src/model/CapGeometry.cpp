// SPDX-License-Identifier: MIT
#include <algorithm>

#include "framework/Index.h"
#include "model/CapChain.h"

namespace lumerin {

namespace {

// Appends cap points, at most as many as the cap's elements can join.
class CapPointList {
  public:
    explicit CapPointList(CPier& pier) : m_pier(pier) {
        const CFrame& frame = pier.m_Frame;
        m_limit = Index(frame.m_Beam.m_nElements) + Index(frame.m_Cantilevers[0].m_nElements) +
                  Index(frame.m_Cantilevers[1].m_nElements) + 1;
    }
    bool IsFull() const { return m_pier.m_CapPointX.size() >= m_limit; }
    void Append(long long position, int node) {
        if (IsFull()) return;
        m_pier.m_CapPointX.push_back(NodeListX(m_pier, position));
        m_pier.m_CapPointNode.push_back(node);
    }
    // A run of consecutive nodes of the node list.
    void AppendRun(long long position, long long count) {
        const long long foundation = m_pier.m_nStructureType == kTypePier ? m_pier.m_nFoundationNodes : 0;
        for (long long i = 0; i < count && !IsFull(); ++i) {
            Append(position + i, static_cast<int>(position + i + foundation + 1));
        }
    }

  private:
    CPier& m_pier;
    std::size_t m_limit = 0;
};

// The first indices of the runs of cap nodes between the supports in the node list.
class CapRuns {
  public:
    explicit CapRuns(const CPier& pier)
        : m_pier(pier),
          m_supports(CapSupportCount(pier)),
          m_cantilever(HasCantilevers(pier) ? pier.m_nCantileverNodes + 1LL : 0),
          m_bent(pier.m_nStructureType == kTypePileBent) {}

    int Supports() const { return m_supports; }
    // The nodes of each cantilever.
    long long Cantilever() const { return m_cantilever; }
    long long LeftCantilever() const { return m_bent ? m_supports : m_pier.m_nColumnNodes + 2LL; }
    // The nodes right of a support; after the last support those of the right cantilever.
    long long RightOf(int support) const {
        if (m_bent) return m_supports + m_cantilever + static_cast<long long>(support) * m_pier.m_nSpanNodes;
        return SupportPosition(m_pier, support) + 1 + (support == 0 ? m_cantilever : 0);
    }

  private:
    const CPier& m_pier;
    int m_supports;
    long long m_cantilever;
    bool m_bent;
};

void BuildCapPoints(CPier& pier) {
    const CapRuns runs(pier);
    if (runs.Supports() == 0) return;
    CapPointList points(pier);
    points.AppendRun(runs.LeftCantilever(), runs.Cantilever());
    for (int c = 0; c < runs.Supports() && !points.IsFull(); ++c) {
        if (c > 0) points.AppendRun(runs.RightOf(c - 1), pier.m_nSpanNodes);
        points.Append(SupportPosition(pier, c), pier.GetSupportNode(c));
    }
    points.AppendRun(runs.RightOf(runs.Supports() - 1), runs.Cantilever());
}

int BearingsOfRow(const CPier& pier, std::size_t row) {
    return row < pier.m_BearingRows.size() ? static_cast<int>(pier.m_BearingRows[row].m_Bearings.size()) : 0;
}

// The bearings of the first row, and those of the second that are at no node of the first.
int CountBearingLocations(const CPier& pier) {
    int count = BearingsOfRow(pier, 0);
    if (pier.m_BearingRows.size() < 2) return count;
    std::vector<int> nodes;
    for (const CBearing& bearing : pier.m_BearingRows[0].m_Bearings) nodes.push_back(bearing.m_nNode);
    std::sort(nodes.begin(), nodes.end());
    for (const CBearing& bearing : pier.m_BearingRows[1].m_Bearings) {
        if (!std::binary_search(nodes.begin(), nodes.end(), bearing.m_nNode)) ++count;
    }
    return count;
}

// The counts depend only on the number of supports. Without cantilevers the shear list has two entries fewer
// than there are sections, and a face that a short cantilever does not have leaves an entry unused.
void CountCapSections(CPier& pier) {
    const int supports = CapSupportCount(pier);
    const bool cantilevers = HasCantilevers(pier);
    pier.m_nMaxRowBearings = std::max(BearingsOfRow(pier, 0), BearingsOfRow(pier, 1));
    pier.m_nCapBearings = CountBearingLocations(pier);
    pier.m_nCapMomentSupports = std::max(3 * supports - (cantilevers ? 0 : 2), 0);
    pier.m_nCapShearSupports = std::max(4 * supports - (cantilevers ? 0 : 4), 0);
    pier.m_nCapMomentPoints = pier.m_nCapMomentSupports + pier.m_nCapBearings;
    pier.m_nCapShearPoints = pier.m_nCapShearSupports + 2 * pier.m_nCapBearings;
}

enum RowCode { kLeftRow = 0, kRightRow = 1, kOnlyRow = 2, kBothRows = 3 };

class BearingListBuilder {
  public:
    explicit BearingListBuilder(CPier& pier) : m_pier(pier) {}

    double X(std::size_t row, std::size_t bearing) const {
        return m_pier.NodeCoordinate(Node(row, bearing), 0);
    }
    std::size_t Count(std::size_t row) const { return m_pier.m_BearingRows[row].m_Bearings.size(); }

    void Append(std::size_t row, std::size_t bearing, RowCode code) {
        if (m_next >= m_pier.m_BearingList.size()) return;
        const int node = Node(row, bearing);
        CBearingLocation& location = m_pier.m_BearingList[m_next];
        location.m_nBearing = static_cast<int>(bearing);
        location.m_nRowCode = code;
        location.m_bElementStarts = m_pier.IsCapElementEnd(node, kEndI);
        location.m_bElementEnds = m_pier.IsCapElementEnd(node, kEndJ);
        m_pier.m_BearingX[m_next] = X(row, bearing);
        ++m_next;
    }

  private:
    int Node(std::size_t row, std::size_t bearing) const {
        return m_pier.m_BearingRows[row].m_Bearings[bearing].m_nNode;
    }
    CPier& m_pier;
    std::size_t m_next = 0;
};

void MergeBearingRows(BearingListBuilder& list) {
    std::size_t left = 0, right = 0;
    while (left < list.Count(0) && right < list.Count(1)) {
        const double leftX = list.X(0, left), rightX = list.X(1, right);
        if (leftX < rightX) {
            list.Append(0, left++, kLeftRow);
        } else if (rightX < leftX) {
            list.Append(1, right++, kRightRow);
        } else {
            list.Append(0, left++, kBothRows);
            ++right;
        }
    }
    while (left < list.Count(0)) list.Append(0, left++, kLeftRow);
    while (right < list.Count(1)) list.Append(1, right++, kRightRow);
}

void BuildBearingList(CPier& pier) {
    BearingListBuilder list(pier);
    if (pier.m_BearingRows.size() >= 2) {
        MergeBearingRows(list);
    } else if (pier.m_BearingRows.size() == 1) {
        for (std::size_t i = 0; i < list.Count(0); ++i) list.Append(0, i, kOnlyRow);
    }
}

}  // namespace

void CPier::BuildCapGeometry() {
    m_CapPointX.clear();
    m_CapPointNode.clear();
    if (!HasCapTables(*this)) {
        m_nCapMomentSupports = m_nCapShearSupports = m_nCapMomentPoints = m_nCapShearPoints = 0;
        m_nCapBearings = m_nMaxRowBearings = 0;
        m_BearingList.clear();
        m_BearingX.clear();
        return;
    }
    BuildCapPoints(*this);
    CountCapSections(*this);
    m_BearingList.assign(Index(m_nCapBearings), CBearingLocation{});
    m_BearingX.assign(Index(m_nCapBearings), 0.0);
    BuildBearingList(*this);
}

}  // namespace lumerin
