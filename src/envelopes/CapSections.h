// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "envelopes/CapSearch.h"

namespace lumerin {

// What shear and moment sections have in common: finding a section's two sides, and storing the result of the
// side that was chosen. The two tables differ in the data of this description alone.

enum class CapChoice { none, left, right };

struct CapForm {
    CapComponent component;
    int locateMode = 1;            // of CPier::LocateOnCap
    int kinds = 4;                 // location kinds of a support
    bool splitCenterline = false;  // two centreline entries, each reading one side only
    // Which side is the more critical where both have a result.
    CapChoice (*choose)(int sense, const CapSideResult& left, const CapSideResult& right) = nullptr;

    int RightFace() const { return kinds - 1; }
};
extern const CapForm kShearForm;
extern const CapForm kMomentForm;

// A face or centreline of a support with the two sides that are compared there.
struct CapSection {
    CSupportLocation location;
    double x = 0.0;
    bool atNode = false;
    int node = -1;
    CapSide left, right;
    bool oneSided = false;  // both sides are the same element, end and fraction
};

// The tables that a form's support search fills.
struct CapSupportTables {
    CCapTable& table;
    std::vector<double>& x;
    std::vector<CSupportLocation>& list;
    std::size_t& found;  // entries of the list that were written
};

// The search at all faces and centrelines of the supports.
class CapSupportSearch {
  public:
    CapSupportSearch(const PierInput& input, const CapForm& form);

    void Take(int loadCase, CaseForces forces) { m_places.Take(loadCase, forces); }
    // After the last case, as often as wanted. Writes the entries of the sections that exist.
    void Finish(CapSupportTables tables) const;

  private:
    void StoreResult(CapSection& section, int slot, int sense, CCapEntry& entry) const;

    PierInput m_input;
    const CapForm& m_form;
    CapPlaceList m_places;
    std::vector<CapSection> m_sections;
};

// A side of a bearing with its place in the bearing table.
struct CapBearing {
    int position = 0;  // inside its row
    int row = 0;
    CapSide left, right;
};

// The search on both sides of all bearings.
class CapBearingSearch {
  public:
    CapBearingSearch(const PierInput& input, const CapForm& form);

    void Take(int loadCase, CaseForces forces) { m_places.Take(loadCase, forces); }
    // The stored bearings and a side's result there.
    const std::vector<CapBearing>& Bearings() const { return m_bearings; }
    CapSideResult Result(CapSide& side, int slot, int sense) const {
        return side.Result(m_form.component, m_places, slot, sense);
    }

  private:
    const CapForm& m_form;
    CapPlaceList m_places;
    std::vector<CapBearing> m_bearings;
};

// The side that a section reports.
CapChoice ChooseSide(const CapForm& form, int sense, const CapSideResult& left, const CapSideResult& right);

// A bearing that is on no element: every word of the record says so.
void StoreNoElement(CCapRecord& record);
// The words that every section without a result loses; the others stay.
void StoreNoResult(CCapRecord& record);
void StorePlace(CCapRecord& record, const CCapPlace& place, int loadCase);
// The seven forces of the side; without a load case the earlier ones stay.
void StoreValues(const CapSideResult& result, CapValues& values);

// Write the entries of all bearings.
void StoreShearAtBearings(const CPier& pier, const CapBearingSearch& search, CCapTable& table);
void StoreMomentAtBearings(const CPier& pier, const CapBearingSearch& search, CCapTable& table);

}  // namespace lumerin
