// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Pier.h"
#include "results/ForceSource.h"

namespace lumerin {

// The kinds of members, left to right along a cap. Elements that belong to no member (section 1: the
// foundation) are `other`.
enum class MemberKind { pile, column, leftCantilever, span, rightCantilever, extraMember, other };
std::string_view MemberKindName(MemberKind kind);  // "pile", "left_cantilever", ...
// "pile", "column", "cap", "extra_member", "other": the families of a verdict.
std::string_view MemberFamilyName(MemberKind kind);
bool IsCap(MemberKind kind);

// Who an element is.
struct ElementIdentity {
    int element = 0;       // in the spans of a pass: of the element list, or one of the others after it
    long long record = 0;  // of a case's block, from 1; 0: none
    MemberKind kind = MemberKind::other;
    int member = 0;  // from 1; 0: of no member
    int index = 0;   // inside the member, from 1
    int number = 0;  // ELEM
    int nodeI = 0, nodeJ = 0;
    int section = 0;  // PROP; -1: none
    bool masked = false;

    int Node(int end) const { return end == kEndI ? nodeI : nodeJ; }
};

// The elements of a substructure: those with a force record in the order of their records, then the masked
// elements of the cap. A record that two elements have is given to the first of them.
std::vector<ElementIdentity> IdentifyElements(const CPier& pier, const ForceLayout& layout);

// The place of an element end in the engineer's words: "pile 5 head", "Col 1 CL", "Brg 2", "element 18 end
// I".
std::string PlaceOf(const CPier& pier, const ElementIdentity& identity, int end);

// A length of the model in ft or m.
double PrintedLength(const CPier& pier, double length);
// The location of a node along the cap in ft or m, as the printed cap tables count it from the
// substructure's own position.
double CapLocation(const CPier& pier, double x);

}  // namespace lumerin
