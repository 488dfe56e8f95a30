// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/Types.h"

namespace lumerin {

// The members of a substructure. Every load case has the same members, so they are stored once; each refers
// to a range of the substructure's element list. The forces of all cases are not here.

// A run of elements from left to right, or from the head down.
struct CMember {
    int m_nFirstElement = 0;
    int m_nElements = 0;
};

// Element 0 is at the head; its end J is the head.
struct CPile : CMember {
    int m_nNodes = 0;           // m_nElements + 1
    double m_dDimension = 0.0;  // width, as its first element's section record has it
};

// The element at index m_nColumnNodes of the substructure is the one at the cap.
struct CColumn : CMember {};

// The elements of all cap spans, span after span from left to right.
struct CBeam : CMember {};

struct CCantilever : CMember {};

// One element in every case.
struct CXMember : CMember {};

// The structure above ground.
struct CFrame {
    std::vector<CColumn> m_Columns;
    CBeam m_Beam;
    CCantilever m_Cantilevers[2];  // left, right
    std::vector<CXMember> m_XMembers;
};

struct CBearing {
    int m_nNode = 0;  // the node number that the bearing rests on
};

struct CBearingRow {
    std::vector<CBearing> m_Bearings;
};

// A row of the element table of the pile file.
struct CElementRow {
    int number = 0;                       // element number, from 1
    int nodeI = 0, nodeJ = 0, nodeK = 0;  // from 0
    int section = 0;                      // 1: neither column nor cap
    int last = 0;                         // not used
};

// The whole model as its file lists it, with the foundation, which no member of the substructure is part of.
// For pictures and for the identity of elements outside the members.
struct CModelLists {
    std::vector<std::array<double, 3>> m_Nodes;  // by node number less one
    std::vector<CElementRow> m_Rows;             // in the order of their force records
};

// A load case, combination or time step; its forces are in the substructure's force block.
struct CLoadCase {
    LimitClass m_nLimitClass = kStrength;
    int m_nNumber = 0;  // its own number in the host's list of combinations; 0 if not a combination
    std::string m_sName = "none";
    std::string m_sLimitState = "none";
};

}  // namespace lumerin
