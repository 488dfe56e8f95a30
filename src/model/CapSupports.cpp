// SPDX-License-Identifier: MIT
#include <algorithm>
#include <climits>

#include "framework/Index.h"
#include "model/CapChain.h"

namespace lumerin {

namespace {

constexpr double kNoCantilever = -999999.0;
constexpr int kMomentRightFace = 2;
constexpr int kShearRightFace = 3;

int NodeNumber(long long number) {
    return number < INT_MIN || number > INT_MAX ? -1 : static_cast<int>(number);
}

// Whether a face or centreline exists. The right face has another number in the moment list than in the shear
// list.
bool IsSection(const CPier& pier, int support, int kind, int rightFace) {
    const bool mast = pier.m_nStructureType == kTypeMast;
    if (!mast && !HasCapTables(pier)) return true;
    const bool first = support == 0;
    const bool last = support == CapSupportCount(pier) - 1;
    const double x = pier.GetSupportX(support);
    const double half = pier.GetSupportWidth(support) / 2;
    if (mast && first && kind == rightFace) return false;
    if (!mast && !HasCantilevers(pier)) return !(first && kind == 0) && !(last && kind == rightFace);
    // A cantilever that ends inside the support's width has no face section.
    if (first && kind == 0) return !(pier.GetCantileverEndX(0) > x - half);
    if (!mast && last && kind == rightFace) return !(x + half > pier.GetCantileverEndX(1));
    return true;
}

}  // namespace

int CapSupportCount(const CPier& pier) {
    const std::size_t members =
        pier.m_nStructureType == kTypePileBent ? pier.m_Piles.size() : pier.m_Frame.m_Columns.size();
    return std::clamp(pier.m_nColumns, 0, static_cast<int>(members));
}

double NodeListX(const CPier& pier, long long position) {
    if (position < 0 || position >= static_cast<long long>(pier.m_dNodes.size())) return 0.0;
    return pier.m_dNodes[Index(position)][0];
}

long long SupportPosition(const CPier& pier, int support) {
    if (support < 0 || support >= CapSupportCount(pier)) return -1;
    // The pile heads of a bent are first in the list.
    if (pier.m_nStructureType != kTypePier) return support;
    const long long c = support;
    long long position = (c + 1) * (pier.m_nColumnNodes + 1LL) + c * (pier.m_nSpanNodes + 1LL);
    // The nodes of the left cantilever follow those of the first column.
    if (c > 0 && HasCantilevers(pier)) position += pier.m_nCantileverNodes + 1LL;
    return position;
}

int CPier::GetSupportNode(int support) const {
    const long long c = support;
    const long long count = CapSupportCount(*this);
    if (c < 0 || c >= count) return -1;
    if (m_nStructureType == kTypePileBent) return support + 1;
    const long long column = m_nColumnNodes + 2LL;
    const long long span = m_nSpanNodes;
    const long long cantilever = HasCantilevers(*this) ? m_nCantileverNodes + 1LL : 0;
    const long long withoutCantilevers = m_nNodes - (count - 1) * span - column * count;
    if (m_nStructureType == kTypeMast) return NodeNumber(column + withoutCantilevers - cantilever);
    if (m_nStructureType != kTypePier) return -1;
    const long long first = withoutCantilevers - 2 * cantilever + 1;
    if (c == 0) return NodeNumber(m_nColumnNodes + 1LL + first);
    // Without cantilevers this is one node after the column's top. It is kept, and the sections there have
    // the forces of that node: the tables of such caps depend on it.
    const long long shift = HasCantilevers(*this) ? m_nCantileverNodes : 0;
    return NodeNumber((column + span) * c + first + column + shift);
}

double CPier::GetSupportX(int support) const {
    return NodeListX(*this, SupportPosition(*this, support));
}

double CPier::GetSupportWidth(int support) const {
    if (support < 0 || support >= CapSupportCount(*this)) return 0.0;
    switch (m_nStructureType) {
        case kTypePier:
        case kTypeMast: {
            const CColumn& column = m_Frame.m_Columns[Index(support)];
            if (m_nColumnNodes < 0 || m_nColumnNodes >= column.m_nElements) return 0.0;
            return SectionData(column.m_nFirstElement + m_nColumnNodes).m_dWidth;
        }
        case kTypePileBent:
            return m_Piles[Index(support)].m_dDimension;
        default:
            return 0.0;
    }
}

double CPier::GetCantileverEndX(int side) const {
    if (!HasCantilevers(*this)) return kNoCantilever;
    const long long count = CapSupportCount(*this);
    const bool left = side == 0;
    long long position = 0;
    if (m_nStructureType == kTypePier) {
        // With a single column the right tip comes out as the left cantilever's last node, which can cost the
        // column its right face.
        position = (left ? GetSupportNode(0)
                         : GetSupportNode(static_cast<int>(count) - 1) +
                               static_cast<long long>(m_nCantileverNodes)) -
                   static_cast<long long>(m_nFoundationNodes);
    } else if (m_nStructureType == kTypePileBent) {
        // The right tip of a bent comes out as the node before the tip.
        position = left ? count : (count - 1) * m_nSpanNodes + count + 2LL * m_nCantileverNodes;
    } else if (m_nStructureType == kTypeMast && left) {
        position = GetSupportNode(0);
    }
    return NodeListX(*this, position);
}

bool CPier::IsMomentSection(int support, int kind) const {
    return IsSection(*this, support, kind, kMomentRightFace);
}

bool CPier::IsShearSection(int support, int kind) const {
    return IsSection(*this, support, kind, kShearRightFace);
}

}  // namespace lumerin
