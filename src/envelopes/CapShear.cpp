#include <algorithm>

#include "envelopes/CapSections.h"

namespace {

// The left side wins equal values.
CapChoice ChooseShear(int sense, const CapSide&, const CapSideResult& atLeft, const CapSide&,
                      const CapSideResult& atRight) {
    const bool right = sense == kMaximum ? atLeft.value < atRight.value : atRight.value < atLeft.value;
    return right ? CapChoice::right : CapChoice::left;
}

// A bearing has a result for each of its sides: the element that ends at its node, and the one that starts
// there.
void ComputeShearAtBearingSide(const CPier& pier, CCapTable& table, int bearing, int node, int row,
                               int side) {
    const int end = side == 0 ? kEndJ : kEndI;
    const int kind = 2 * row + side;
    CapSide search(pier, CapSide::kAtBearing, end);
    search.FindAtNode(node);
    for (int sense = kMaximum; sense <= kMinimum; ++sense) {
        for (int slot = 0; slot < table.Slots(); ++slot) {
            CCapEntry& entry = table.At(bearing, slot, kind, sense);
            if (!search.IsFound()) {
                StoreNoElement(entry.record);
                continue;
            }
            const int loadCase = search.Search(kF22, kNoTieBreak, slot, sense).loadCase;
            StorePlace(entry.record, search.Place(), loadCase);
            const CElement& identity = pier.Element(search.Element());
            entry.record.m_nMissing = 0;
            entry.record.m_nElementNumber = identity.m_nElementNumber;
            entry.record.m_nSection = identity.m_nSection;
            entry.record.m_nEnd = end;
            entry.record.m_nNode = identity.Node(end);
            StoreValues(search, loadCase, entry.values);
        }
    }
}

}  // namespace

const CapForm kShearForm{kF22, kNoTieBreak, 1, 4, true, ChooseShear};

void CPier::ComputeCapShearAtSupports() {
    if (!HasCapSections(*this)) return;
    ComputeCapAtSupports(*this, kShearForm, {m_ShearSupports, m_ShearSupportX, m_ShearSupportList});
}

void CPier::ComputeCapShearAtBearings() {
    if (!HasCapSections(*this)) return;
    const int rows = std::min(static_cast<int>(m_BearingRows.size()), m_ShearBearings.Kinds() / 2);
    for (int row = 0; row < rows; ++row) {
        const std::vector<CBearing>& bearings = m_BearingRows[static_cast<std::size_t>(row)].m_Bearings;
        const int count = std::min(static_cast<int>(bearings.size()), m_ShearBearings.Positions());
        for (int i = 0; i < count; ++i) {
            const int node = bearings[static_cast<std::size_t>(i)].m_nNode;
            for (int side = 0; side < 2; ++side) {
                ComputeShearAtBearingSide(*this, m_ShearBearings, i, node, row, side);
            }
        }
    }
}
