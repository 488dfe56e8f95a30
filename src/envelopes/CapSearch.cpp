#include "envelopes/CapSearch.h"

#include <algorithm>

namespace {

// The holders of one slot's extremes during the walk.
struct SlotSearch {
    std::array<double, 2> best{};

    void Offer(const CPier& pier, const CapReading& reading, int tieBreak, int loadCase, double value,
               std::array<int, 2>& holders) {
        for (std::size_t sense = 0; sense < 2; ++sense) {
            int& holder = holders[sense];
            const bool better = sense == kMaximum ? value > best[sense] : value < best[sense];
            if (holder < 0 || better) {
                holder = loadCase;
                best[sense] = value;
            } else if (value == best[sense] && tieBreak != kNoTieBreak &&
                       ReadCapForce(pier, reading, loadCase, tieBreak) >
                           ReadCapForce(pier, reading, holder, tieBreak)) {
                holder = loadCase;
            }
        }
    }
};

int KnownCases(const CPier& pier) {
    return static_cast<int>(std::min(pier.m_LoadCases.size(), pier.m_CaseSelected.size()));
}

bool IsKnownCase(const CPier& pier, int loadCase) {
    return loadCase >= 0 && loadCase < static_cast<int>(pier.m_LoadCases.size());
}

int ReadUnmasked(const CPier& pier, const CapReading& reading, int loadCase, int component, double& out) {
    out = 0.0;
    if (reading.element < 0 || !IsKnownCase(pier, loadCase) || pier.IsMasked(reading.element)) return 1;
    out = ReadCapForce(pier, reading, loadCase, component);
    return 0;
}

}  // namespace

double ReadCapForce(const CPier& pier, const CapReading& reading, int loadCase, int component) {
    const ElementForces forces = pier.Forces(loadCase, reading.element);
    if (!reading.inside) return GetForce(forces, reading.end, component);
    if (component < 0 || component >= kComponents) return 0.0;
    const float atI = forces[static_cast<std::size_t>(component)];
    const float atJ = forces[kComponents + static_cast<std::size_t>(component)];
    const float drop = atI - atJ;
    return static_cast<double>(atI) - static_cast<double>(drop) * reading.t;
}

CapExtremes FindCapExtremes(const CPier& pier, const CapReading& reading, int component, int tieBreak) {
    CapExtremes extremes;
    std::array<SlotSearch, kMaxSlots> searches;
    const int cases = KnownCases(pier);
    const int slots = pier.SlotCount();
    for (int loadCase = 0; loadCase < cases; ++loadCase) {
        if (!pier.IsCaseSelected(loadCase)) continue;
        // Without combinations there are no classes, and what slot 0 holds serves every slot.
        const int slot =
            pier.m_bCombinations ? pier.m_LoadCases[static_cast<std::size_t>(loadCase)].m_nLimitClass : 0;
        if (slot < 0 || slot >= slots) continue;
        const std::size_t s = static_cast<std::size_t>(slot);
        searches[s].Offer(pier, reading, tieBreak, loadCase, ReadCapForce(pier, reading, loadCase, component),
                          extremes.loadCase[s]);
    }
    if (!pier.m_bCombinations) extremes.loadCase.fill(extremes.loadCase[0]);
    return extremes;
}

int GetForceAtPlace(const CPier& pier, const CCapPlace& place, int end, int loadCase, int component,
                    double& out) {
    const CapReading reading{pier.GetElement(place.m_nKind, place.m_nIndex, place.m_nElement), end, 0.0,
                             false};
    return ReadUnmasked(pier, reading, loadCase, component, out);
}

int InterpolateForce(const CPier& pier, const CCapPlace& place, int loadCase, int component, double& out) {
    const CapReading reading{pier.GetElement(place.m_nKind, place.m_nIndex, place.m_nElement), kInsideElement,
                             place.m_dT, true};
    return ReadUnmasked(pier, reading, loadCase, component, out);
}

CapSideResult CapSide::Search(int component, int tieBreak, int slot, int sense) {
    if (!m_bFound) return {};
    if (!m_bSearched) {
        const int element = Element();
        if (element < 0) return {};
        const bool inside = m_kind == kInside && HasInnerFraction();
        m_extremes = FindCapExtremes(m_pier, {element, m_nEnd, m_place.m_dT, inside}, component, tieBreak);
        m_bMasked = m_pier.IsMasked(element);
        m_bSearched = true;
    }
    CapSideResult result;
    result.loadCase = m_extremes.loadCase[static_cast<std::size_t>(slot)][static_cast<std::size_t>(sense)];
    if (m_bMasked && m_kind != kAtBearing && result.loadCase >= 0) return {};
    MoveToOwnElement();
    result.status = result.loadCase < 0 ? 0 : ReadValue(result.loadCase, component, result.value);
    return result;
}

// A face so close to a node that its fraction rounds to that end is searched as an end. A side whose own end
// lies at the other end of the element then moves on to the neighbour, and the next search looks there.
void CapSide::MoveToOwnElement() {
    if (m_kind != kInside || HasInnerFraction()) return;
    const bool back = m_place.m_dT == 0.0 && m_nEnd == kEndJ;
    const bool forward = m_place.m_dT == 1.0 && m_nEnd == kEndI;
    if (!back && !forward) return;
    m_pier.StepAlongCap(back ? 1 : 0, m_place);
    m_bSearched = false;
}

int CapSide::ReadValue(int loadCase, int component, double& out) const {
    if (m_kind == kInside) return InterpolateForce(m_pier, m_place, loadCase, component, out);
    return GetForceAtPlace(m_pier, m_place, m_nEnd, loadCase, component, out);
}

double CapSide::Value(int loadCase, int component) const {
    double value = 0.0;
    ReadValue(loadCase, component, value);
    return value;
}
