// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// Places along the cap of a substructure.

// A place on the cap chain: left cantilever, spans from left to right, right cantilever.
struct CCapPlace {
    int m_nKind = -1;     // 0 cantilever, 1 span
    int m_nIndex = -1;    // 0 left or 1 right; the span's index
    int m_nElement = -1;  // inside the member, left to right
    double m_dT = 0.0;    // fraction along the element, 0.0 at I
};
enum CapMemberKind { kCapCantilever = 0, kCapSpan = 1 };

// One entry of the bearing list, left to right along the cap.
struct CBearingLocation {
    int m_nBearing = 0;             // index inside its row
    int m_nRowCode = 0;             // 0 left row, 1 right row, 2 the only row, 3 both rows at this x
    bool m_bElementStarts = false;  // a cap element starts at the bearing's node
    bool m_bElementEnds = false;    // a cap element ends at the bearing's node

    int Row() const { return m_nRowCode == 1 ? 1 : 0; }
};

}  // namespace lumerin
