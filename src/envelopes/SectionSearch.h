// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "envelopes/Records.h"
#include "framework/Index.h"
#include "model/Pier.h"

namespace lumerin {

// The search for the extremes of cross sections: one pass over the elements of the selected cases serves all
// sections, slots and extremes of a table. It finds what a separate search for each of them would find: load
// cases in index order, members in order, elements in order, strict comparisons.

// Elements that follow one another in the element list and count for the same section of a table.
struct SectionRun {
    int firstElement = 0;  // index in the substructure's element list
    int elements = 0;
    int entry = 0;       // the section's entry in the result table
    int firstPlace = 0;  // index of the first element's place
};

// The place of an element in its family of members.
struct ElementPlace {
    int member = 0;
    int element = 0;      // inside the member
    int listElement = 0;  // in the substructure's element list
};

// The elements of one member family that belong to an entry of a table, in the order of the walk. An element
// of a section without an entry is left out.
class CSectionWalk {
  public:
    // `firstSection` is the section number of entry 0.
    CSectionWalk(const CPier& pier, MemberFamily family, int firstSection, int entries);

    const std::vector<SectionRun>& Runs() const { return m_runs; }
    const ElementPlace& Place(int place) const { return m_places[Index(place)]; }

  private:
    void AddMember(const CPier& pier, int member, int firstElement, int elements);
    void AddPiles(const CPier& pier);
    void AddColumns(const CPier& pier);
    void AddExtraMembers(const CPier& pier);

    int m_nFirstSection = 0, m_nEntries = 0;
    std::vector<SectionRun> m_runs;
    std::vector<ElementPlace> m_places;
};

// An extreme's place while the search runs.
struct FoundEnd {
    int loadCase = -1;  // -1: nothing found
    int place = 0;
    int end = 0;
};

// The highest D/C ratio of a section in a slot. The start below zero lets a ratio of exactly 0 be found, so
// that a section with elements but without ratio has a result; on a tie the I end is kept.
class CDcSearch {
  public:
    static constexpr int kExtremeCount = 1;
    void Examine(const float* forces, int elements, int loadCase, int firstPlace);
    const FoundEnd& Found(int) const { return m_found; }

  private:
    double m_dBest = -0.1;
    FoundEnd m_found;
};

// The thirteen extremes of a section in a slot. The first end that is seen seeds all of them, a not-a-number
// too, which no later value beats; on a tie the J end is kept.
class CForceSearch {
  public:
    static constexpr int kExtremeCount = kExtremes;
    CForceSearch();
    void Examine(const float* forces, int elements, int loadCase, int firstPlace);
    const FoundEnd& Found(int extreme) const { return m_found[Index(extreme)]; }

  private:
    static constexpr std::size_t kPair = 2 * kForcesPerElement;

    template <std::size_t count>
    bool MayBeat(const float* forces) const;
    void ExamineElement(const float* forces, int loadCase, int place);
    void ExamineExtreme(int extreme, const float* forces, int loadCase, int place);
    void Take(int extreme, float value);

    bool m_bSeen = false;
    std::array<float, kExtremes> m_best{};
    // The values to beat, repeated for both ends of two neighbouring elements, so that one comparison of
    // whole vectors passes over two elements that beat nothing, which are nearly all.
    std::array<float, kPair> m_greatest{}, m_least{};
    std::array<FoundEnd, kExtremes> m_found{};
};

}  // namespace lumerin
