// SPDX-License-Identifier: MIT
#include "envelopes/CapSections.h"

namespace lumerin {

namespace {

// The left side wins equal values.
CapChoice ChooseShear(int sense, const CapSideResult& left, const CapSideResult& right) {
    const bool takeRight = sense == kMaximum ? left.value < right.value : right.value < left.value;
    return takeRight ? CapChoice::right : CapChoice::left;
}

}  // namespace

const CapForm kShearForm{{kF22, kNoTieBreak}, 1, 4, true, ChooseShear};

// A bearing has a result for each of its sides: the element that ends at its node, and the one that starts
// there.
void StoreShearAtBearings(const CPier& pier, const CapBearingSearch& search, CCapTable& table) {
    for (CapBearing bearing : search.Bearings()) {
        if (2 * bearing.row + 1 >= table.Kinds() || bearing.position >= table.Positions()) continue;
        for (int half = 0; half < 2; ++half) {
            CapSide& side = half == 0 ? bearing.left : bearing.right;
            for (int sense = kMaximum; sense <= kMinimum; ++sense) {
                for (int slot = 0; slot < table.Slots(); ++slot) {
                    CCapEntry& entry = table.At(bearing.position, slot, 2 * bearing.row + half, sense);
                    if (!side.IsFound()) {
                        StoreNoElement(entry.record);
                        continue;
                    }
                    const CapSideResult result = search.Result(side, slot, sense);
                    const CElement& identity = pier.Element(side.Element());
                    StorePlace(entry.record, side.Place(), result.loadCase);
                    entry.record.m_nMissing = 0;
                    entry.record.m_nElementNumber = identity.m_nElementNumber;
                    entry.record.m_nSection = identity.m_nSection;
                    entry.record.m_nEnd = side.End();
                    entry.record.m_nNode = identity.Node(side.End());
                    StoreValues(result, entry.values);
                }
            }
        }
    }
}

}  // namespace lumerin
