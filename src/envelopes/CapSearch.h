#pragma once

#include <array>

#include "model/Pier.h"

// The search over load cases that cap shears and cap moments share. One walk over the selected cases finds
// the maximum and the minimum of every slot at a place.

enum CapExtremeSense { kMaximum = 0, kMinimum = 1 };

// Where a value is read: at an end of an element of the list, or inside it at t.
struct CapReading {
    int element = -1;
    int end = kEndI;
    double t = 0.0;
    bool inside = false;
};

// The component there in a load case; the element must exist. I - J is formed in 32 bits, the rest in 64.
double ReadCapForce(const CPier& pier, const CapReading& reading, int loadCase, int component);

// The load case of each slot's maximum and minimum; -1 where no case takes part.
struct CapExtremes {
    std::array<std::array<int, 2>, kMaxSlots> loadCase{{{-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}}};
};

// The earliest case wins a tie; with a tie-break component (kNoTieBreak: none) the one in which that
// component is greatest, for both senses. A value that is not a number wins only as the first of its class.
CapExtremes FindCapExtremes(const CPier& pier, const CapReading& reading, int component, int tieBreak);

// Status 0 and the component at an end; status 1 and 0.0 for a masked or unknown element or load case.
int GetForceAtPlace(const CPier& pier, const CCapPlace& place, int end, int loadCase, int component,
                    double& out);
// The same at the place's t.
int InterpolateForce(const CPier& pier, const CCapPlace& place, int loadCase, int component, double& out);

// What one side of a section gives for one slot and sense. Status 1: nothing. Load case -1 with status 0: no
// case of the slot's class is selected; the value is then 0.0.
struct CapSideResult {
    int status = 1;
    int loadCase = -1;
    double value = 0.0;
};

// One side of a cap section: the element on the left of a node (end J) or on its right (end I), or the
// element that the section lies inside.
class CapSide {
  public:
    enum Kind {
        kAtNode,     // at an end; a masked element gives nothing
        kInside,     // by interpolation; a masked element gives nothing
        kAtBearing,  // at an end; the search itself sees masked elements too
    };
    CapSide(const CPier& pier, Kind kind, int end) : m_pier(pier), m_kind(kind), m_nEnd(end) {
        m_place.m_dT = end == kEndI ? 0.0 : 1.0;
    }

    void SetPlace(const CCapPlace& place) {
        m_place = place;
        m_bFound = true;
        m_bSearched = false;
    }
    void FindAtNode(int node) {
        CCapPlace place;
        if (m_pier.FindElementAtNode(node, place, m_nEnd)) SetPlace(place);
    }
    bool IsFound() const { return m_bFound; }
    const CCapPlace& Place() const { return m_place; }
    int End() const { return m_nEnd; }
    // The element in the list; -1 after the message for a place that is none.
    int Element() const { return m_pier.GetElement(m_place.m_nKind, m_place.m_nIndex, m_place.m_nElement); }
    // Whether t lies properly inside the element, as all but rounded faces do.
    bool HasInnerFraction() const { return m_place.m_dT != 0.0 && m_place.m_dT != 1.0; }

    // Searches for component and tie-break on the first call; the load cases are walked once.
    CapSideResult Search(int component, int tieBreak, int slot, int sense);
    // The component at the side in a load case; 0.0 for a masked element or no load case.
    double Value(int loadCase, int component) const;

  private:
    int ReadValue(int loadCase, int component, double& out) const;
    void MoveToOwnElement();

    const CPier& m_pier;
    Kind m_kind;
    int m_nEnd;
    CCapPlace m_place;
    bool m_bFound = false;
    bool m_bSearched = false;
    bool m_bMasked = false;
    CapExtremes m_extremes;
};
