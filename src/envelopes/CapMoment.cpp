// SPDX-License-Identifier: MIT
#include "envelopes/CapSections.h"

namespace lumerin {

namespace {

// Equal moments, and such as are not numbers, are decided by D/C; the right side wins equal ratios too.
CapChoice ChooseMoment(int sense, const CapSideResult& left, const CapSideResult& right) {
    const bool leftGreater = left.value > right.value;
    const bool rightGreater = right.value > left.value;
    if (leftGreater || rightGreater) {
        return leftGreater == (sense == kMaximum) ? CapChoice::left : CapChoice::right;
    }
    return left.values[kDemandCapacity] > right.values[kDemandCapacity] ? CapChoice::left : CapChoice::right;
}

// When neither side has a result, the fields that are not named are unchanged.
void StoreBearingMoment(const CPier& pier, const CapBearingSearch& search, CapBearing& bearing, int slot,
                        int sense, CCapEntry& entry) {
    const CapSideResult left = search.Result(bearing.left, slot, sense);
    const CapSideResult right = search.Result(bearing.right, slot, sense);
    const CapChoice choice = ChooseSide(kMomentForm, sense, left, right);
    if (choice == CapChoice::none) {
        StoreNoResult(entry.record);
        return;
    }
    const CapSide& side = choice == CapChoice::left ? bearing.left : bearing.right;
    const CapSideResult& result = choice == CapChoice::left ? left : right;
    const int element = side.Element();
    if (element < 0) {
        StoreNoElement(entry.record);
        return;
    }
    const CElement& identity = pier.Element(element);
    StorePlace(entry.record, side.Place(), result.loadCase);
    entry.record.m_nMissing = 0;
    entry.record.m_nElementNumber = identity.m_nElementNumber;
    entry.record.m_nSection = identity.m_nSection;
    entry.record.m_nEnd = side.End();
    entry.record.m_nNode = identity.Node(side.End());
    StoreValues(result, entry.values);
}

}  // namespace

const CapForm kMomentForm{{kM33, kDemandCapacity}, 4, 3, false, ChooseMoment};

void StoreMomentAtBearings(const CPier& pier, const CapBearingSearch& search, CCapTable& table) {
    for (CapBearing bearing : search.Bearings()) {
        if (bearing.row >= table.Kinds() || bearing.position >= table.Positions()) continue;
        const bool onCap = bearing.left.IsFound() || bearing.right.IsFound();
        for (int sense = kMaximum; sense <= kMinimum; ++sense) {
            for (int slot = 0; slot < table.Slots(); ++slot) {
                CCapEntry& entry = table.At(bearing.position, slot, bearing.row, sense);
                if (onCap) {
                    StoreBearingMoment(pier, search, bearing, slot, sense, entry);
                } else {
                    StoreNoElement(entry.record);
                }
            }
        }
    }
}

}  // namespace lumerin
