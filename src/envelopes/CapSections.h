#pragma once

#include "envelopes/CapSearch.h"

// What shear and moment sections have in common: finding a section's two sides, and storing the result of the
// side that was chosen. The two tables differ in the data of this description alone.

enum class CapChoice { none, left, right };

struct CapForm {
    int component = kF22;
    int tieBreak = kNoTieBreak;
    int locateMode = 1;            // of CPier::LocateOnCap
    int kinds = 4;                 // location kinds of a support
    bool splitCenterline = false;  // two centreline entries, each reading one side only
    // Which side is the more critical where both have a result.
    CapChoice (*choose)(int sense, const CapSide& left, const CapSideResult& atLeft, const CapSide& right,
                        const CapSideResult& atRight) = nullptr;

    int RightFace() const { return kinds - 1; }
};
extern const CapForm kShearForm;
extern const CapForm kMomentForm;

// The tables that a form's support search fills.
struct CapSupportTables {
    CCapTable& table;
    std::vector<double>& x;
    std::vector<CSupportLocation>& list;
};
void ComputeCapAtSupports(const CPier& pier, const CapForm& form, CapSupportTables tables);

// The side that a section reports.
CapChoice ChooseSide(const CapForm& form, int sense, const CapSide& left, const CapSideResult& atLeft,
                     const CapSide& right, const CapSideResult& atRight);

// Whether the cap computations apply: types 0 and 7, and a mast, whose tables are empty.
bool HasCapSections(const CPier& pier);

// A bearing that stands on no element: every word of the record says so.
void StoreNoElement(CCapRecord& record);
// The words that every section without a result loses; the others stay.
void StoreNoResult(CCapRecord& record);
void StorePlace(CCapRecord& record, const CCapPlace& place, int loadCase);
// The seven forces of the side in a load case; -1 leaves what stands.
void StoreValues(const CapSide& side, int loadCase, CapValues& values);
