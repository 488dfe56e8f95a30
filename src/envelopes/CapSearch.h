// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "envelopes/PierInput.h"
#include "envelopes/Records.h"
#include "framework/Index.h"

namespace lumerin {

// The search over load cases that cap shears and cap moments share. Each place on the cap takes the cases in
// order and keeps the maximum and the minimum of every slot.

enum CapExtremeSense { kMaximum = 0, kMinimum = 1 };

// The element of the list at a place; -1 where the cap has none.
inline int ElementOf(const PierInput& input, const CCapPlace& place) {
    return input.pier.GetElement(place.m_nKind, place.m_nIndex, place.m_nElement, input.messages);
}

// The component of an element at an end, or inside it at t. There I - J is formed in 32 bits, the rest in 64.
struct CapReading {
    int end = kEndI;
    double t = 0.0;
    bool inside = false;

    double Read(ElementForces forces, int component) const;
};

// A load case with an extreme at a place.
struct CapHolder {
    int loadCase = -1;  // -1: no case of the slot takes part
    double value = 0.0;
    std::array<float, kForcesPerElement> forces{};  // of the place's element
    // Of the element on the other side of the node, for a place whose side moves on to it.
    std::array<float, kForcesPerElement> beyond{};
};

// Which component is searched, and the component that decides a tie: the case in which it is greater wins,
// for both senses. Without one (kNoTieBreak) the earliest case wins.
struct CapComponent {
    int component = kF22;
    int tieBreak = kNoTieBreak;
};

// The extremes at one place. A value that is not a number wins only as the first of its class.
class CapPlaceSearch {
  public:
    // `element` must exist; `beyond` is -1 where no side moves on.
    CapPlaceSearch(CapComponent component, CapReading reading, int element, int beyond)
        : m_component(component), m_reading(reading), m_element(element), m_beyond(beyond) {}

    void Take(int loadCase, int slot, CaseForces forces);
    const CapHolder& Holder(int slot, int sense) const { return m_holders.at(Index(slot)).at(Index(sense)); }

  private:
    void Hold(CapHolder& holder, int loadCase, double value, CaseForces forces) const;

    CapComponent m_component;
    CapReading m_reading;
    int m_element, m_beyond;
    std::array<std::array<CapHolder, 2>, kLimitClasses> m_holders;
};

// The places of a cap table's search, which take each case once.
class CapPlaceList {
  public:
    explicit CapPlaceList(const PierInput& input) : m_input(input) {}

    std::size_t Add(const CapPlaceSearch& place) {
        m_places.push_back(place);
        return m_places.size() - 1;
    }
    void Take(int loadCase, CaseForces forces);
    // What a place holds for a slot. Without combinations there are no classes, and slot 0 serves every slot.
    const CapHolder& Holder(std::size_t place, int slot, int sense) const {
        return m_places[place].Holder(m_input.pier.m_bCombinations ? slot : 0, sense);
    }

  private:
    PierInput m_input;
    std::vector<CapPlaceSearch> m_places;
};

// What one side of a section gives for one slot and sense. Status 1: nothing. Load case -1 with status 0: no
// case of the slot's class is selected; the value is then 0.0.
struct CapSideResult {
    int status = 1;
    int loadCase = -1;
    double value = 0.0;
    CapValues values{};  // all components of the side in that case; 0.0 where it cannot be read
};

// One side of a cap section: the element on the left of a node (end J) or on its right (end I), or the
// element that contains the section.
class CapSide {
  public:
    enum Kind {
        kAtNode,     // at an end; a masked element gives nothing
        kInside,     // by interpolation; a masked element gives nothing
        kAtBearing,  // at an end; masked elements are searched, too
    };
    CapSide(const PierInput& input, Kind kind, int end) : m_input(input), m_kind(kind), m_end(end) {
        m_place.m_dT = end == kEndI ? 0.0 : 1.0;
    }

    void SetPlace(const CCapPlace& place) {
        m_place = place;
        m_found = true;
    }
    void FindAtNode(int node) {
        CCapPlace place;
        if (m_input.pier.FindElementAtNode(node, place, m_end)) SetPlace(place);
    }
    bool IsFound() const { return m_found; }
    const CCapPlace& Place() const { return m_place; }
    int End() const { return m_end; }
    int Element() const { return ElementOf(m_input, m_place); }
    // Whether t is strictly inside the element, as for all faces that are not rounded to an end.
    bool HasInnerFraction() const { return m_place.m_dT != 0.0 && m_place.m_dT != 1.0; }

    // Adds the places that the side is read at. Once, before the first case.
    void AddPlaces(CapComponent component, CapPlaceList& places);
    // The side's result, after the last case. The first call of a side whose face rounds to the far end of
    // its element moves it on to the neighbour: that call gives the neighbour's forces in the case that was
    // found at the element, later calls are the neighbour's own.
    CapSideResult Result(CapComponent component, const CapPlaceList& places, int slot, int sense);

  private:
    bool LeavesElement() const;
    CCapPlace Neighbour() const;
    CapReading Reading(const CCapPlace& place) const;
    std::size_t AddPlace(CapComponent component, const CCapPlace& place, int beyond, CapPlaceList& places);

    static constexpr std::size_t kNoPlace = static_cast<std::size_t>(-1);
    PierInput m_input;
    Kind m_kind;
    int m_end;
    CCapPlace m_place;
    bool m_found = false;
    std::size_t m_search = kNoPlace, m_neighbourSearch = kNoPlace;
};

}  // namespace lumerin
