// SPDX-License-Identifier: MIT
#include "envelopes/CapSearch.h"

#include <algorithm>

#include "framework/Index.h"

namespace lumerin {

double CapReading::Read(ElementForces forces, int component) const {
    if (!inside) return GetForce(forces, end, component);
    if (component < 0 || component >= kComponents) return 0.0;
    const float atI = forces[Index(component)];
    const float atJ = forces[kComponents + Index(component)];
    const float drop = atI - atJ;
    return static_cast<double>(atI) - static_cast<double>(drop) * t;
}

void CapPlaceSearch::Take(int loadCase, int slot, CaseForces forces) {
    const ElementForces own = ForcesOf(forces, m_element);
    const double value = m_reading.Read(own, m_component.component);
    std::array<CapHolder, 2>& holders = m_holders[Index(slot)];
    for (std::size_t sense = 0; sense < 2; ++sense) {
        CapHolder& holder = holders[sense];
        const bool better = sense == kMaximum ? value > holder.value : value < holder.value;
        const bool winsTie = value == holder.value && m_component.tieBreak != kNoTieBreak &&
                             m_reading.Read(own, m_component.tieBreak) >
                                 m_reading.Read(ElementForces(holder.forces), m_component.tieBreak);
        if (holder.loadCase < 0 || better || winsTie) Hold(holder, loadCase, value, forces);
    }
}

void CapPlaceSearch::Hold(CapHolder& holder, int loadCase, double value, CaseForces forces) const {
    holder.loadCase = loadCase;
    holder.value = value;
    std::ranges::copy(ForcesOf(forces, m_element), holder.forces.begin());
    if (m_beyond >= 0) std::ranges::copy(ForcesOf(forces, m_beyond), holder.beyond.begin());
}

void CapPlaceList::Take(int loadCase, CaseForces forces) {
    if (!m_input.selection.IsCaseSelected(loadCase)) return;
    const int slot = m_input.pier.SlotOf(loadCase);
    if (slot < 0 || slot >= m_input.pier.SlotCount()) return;
    for (CapPlaceSearch& place : m_places) place.Take(loadCase, slot, forces);
}

// A face so close to a node that its fraction rounds to that end is searched as an end. A side whose own end
// is the other end of the element then moves on to the neighbour.
bool CapSide::LeavesElement() const {
    if (m_kind != kInside) return false;
    return (m_place.m_dT == 0.0 && m_end == kEndJ) || (m_place.m_dT == 1.0 && m_end == kEndI);
}

CCapPlace CapSide::Neighbour() const {
    CCapPlace place = m_place;
    m_input.pier.StepAlongCap(m_end == kEndJ ? 1 : 0, place);
    return place;
}

// A face that rounds to an end is searched at that end.
std::size_t CapSide::AddPlace(CapComponent component, const CCapPlace& place, int beyond,
                              CapPlaceList& places) {
    const int element = ElementOf(m_input, place);
    if (element < 0) return kNoPlace;
    const bool inside = m_kind == kInside && place.m_dT != 0.0 && place.m_dT != 1.0;
    return places.Add(CapPlaceSearch(component, {m_end, place.m_dT, inside}, element, beyond));
}

void CapSide::AddPlaces(CapComponent component, CapPlaceList& places) {
    if (!m_found) return;
    int beyond = -1;
    if (LeavesElement()) {
        const CCapPlace neighbour = Neighbour();
        m_neighbourSearch = AddPlace(component, neighbour, -1, places);
        beyond = ElementOf(m_input, neighbour);
    }
    m_search = AddPlace(component, m_place, beyond, places);
}

CapReading CapSide::Reading(const CCapPlace& place) const {
    return m_kind == kInside ? CapReading{kInsideElement, place.m_dT, true} : CapReading{m_end, 0.0, false};
}

CapSideResult CapSide::Result(CapComponent component, const CapPlaceList& places, int slot, int sense) {
    if (!m_found || m_search == kNoPlace) return {};
    const CapHolder& holder = places.Holder(m_search, slot, sense);
    const bool masked = m_input.pier.IsMasked(Element());
    if (masked && m_kind != kAtBearing && holder.loadCase >= 0) return {};
    CapSideResult result;
    result.loadCase = holder.loadCase;
    const bool leaves = LeavesElement();
    if (leaves) {
        m_place = Neighbour();
        m_search = m_neighbourSearch;
    }
    if (holder.loadCase < 0) {
        result.status = 0;
        return result;
    }
    const int element = Element();
    if (element < 0 || m_input.pier.IsMasked(element)) return result;
    const CapReading reading = Reading(m_place);
    const ElementForces forces(leaves ? holder.beyond : holder.forces);
    for (std::size_t c = 0; c < result.values.size(); ++c) {
        result.values[c] = reading.Read(forces, static_cast<int>(c));
    }
    result.status = 0;
    result.value = result.values[Index(component.component)];
    return result;
}

}  // namespace lumerin
