#include <algorithm>

#include "envelopes/CapSections.h"

namespace {

// Equal moments, and such as are not numbers, are decided by D/C; the right side wins equal ratios too.
CapChoice ChooseMoment(int sense, const CapSide& left, const CapSideResult& atLeft, const CapSide& right,
                       const CapSideResult& atRight) {
    const bool leftGreater = atLeft.value > atRight.value;
    const bool rightGreater = atRight.value > atLeft.value;
    if (leftGreater || rightGreater) {
        return leftGreater == (sense == kMaximum) ? CapChoice::left : CapChoice::right;
    }
    return left.Value(atLeft.loadCase, kDemandCapacity) > right.Value(atRight.loadCase, kDemandCapacity)
               ? CapChoice::left
               : CapChoice::right;
}

// Where neither side has a result the words that are not named keep what they held.
void StoreBearingMoment(const CPier& pier, CapSide& left, CapSide& right, int slot, int sense,
                        CCapEntry& entry) {
    const CapSideResult atLeft = left.Search(kMomentForm.component, kMomentForm.tieBreak, slot, sense);
    const CapSideResult atRight = right.Search(kMomentForm.component, kMomentForm.tieBreak, slot, sense);
    const CapChoice choice = ChooseSide(kMomentForm, sense, left, atLeft, right, atRight);
    if (choice == CapChoice::none) {
        StoreNoResult(entry.record);
        return;
    }
    const CapSide& side = choice == CapChoice::left ? left : right;
    const int loadCase = choice == CapChoice::left ? atLeft.loadCase : atRight.loadCase;
    const int element = side.Element();
    if (element < 0) {
        StoreNoElement(entry.record);
        return;
    }
    const CElement& identity = pier.Element(element);
    StorePlace(entry.record, side.Place(), loadCase);
    entry.record.m_nMissing = 0;
    entry.record.m_nElementNumber = identity.m_nElementNumber;
    entry.record.m_nSection = identity.m_nSection;
    entry.record.m_nEnd = side.End();
    entry.record.m_nNode = identity.Node(side.End());
    StoreValues(side, loadCase, entry.values);
}

void ComputeMomentAtBearing(const CPier& pier, CCapTable& table, int bearing, int node, int row) {
    CapSide left(pier, CapSide::kAtBearing, kEndJ), right(pier, CapSide::kAtBearing, kEndI);
    left.FindAtNode(node);
    right.FindAtNode(node);
    const bool onCap = left.IsFound() || right.IsFound();
    for (int sense = kMaximum; sense <= kMinimum; ++sense) {
        for (int slot = 0; slot < table.Slots(); ++slot) {
            CCapEntry& entry = table.At(bearing, slot, row, sense);
            if (onCap) {
                StoreBearingMoment(pier, left, right, slot, sense, entry);
            } else {
                StoreNoElement(entry.record);
            }
        }
    }
}

}  // namespace

const CapForm kMomentForm{kM33, kDemandCapacity, 4, 3, false, ChooseMoment};

void CPier::ComputeCapMomentAtSupports() {
    if (!HasCapSections(*this)) return;
    ComputeCapAtSupports(*this, kMomentForm, {m_MomentSupports, m_MomentSupportX, m_MomentSupportList});
}

void CPier::ComputeCapMomentAtBearings() {
    if (!HasCapSections(*this)) return;
    const int rows = std::min(static_cast<int>(m_BearingRows.size()), m_MomentBearings.Kinds());
    for (int row = 0; row < rows; ++row) {
        const std::vector<CBearing>& bearings = m_BearingRows[static_cast<std::size_t>(row)].m_Bearings;
        const int count = std::min(static_cast<int>(bearings.size()), m_MomentBearings.Positions());
        for (int i = 0; i < count; ++i) {
            ComputeMomentAtBearing(*this, m_MomentBearings, i, bearings[static_cast<std::size_t>(i)].m_nNode,
                                   row);
        }
    }
}
