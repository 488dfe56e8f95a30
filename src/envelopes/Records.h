// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "framework/Index.h"
#include "model/Element.h"

namespace lumerin {

// The place of an extreme, never its value: a table prints all forces that act at that place in that case.
// All six are -1 for nothing found.
struct CMaxRecord {
    int m_nLoadCase = 0;
    int m_nMember = 0;
    int m_nElement = 0;  // index inside the member
    int m_nElementNumber = 0;
    int m_nEnd = 0;  // 0 I, 1 J
    int m_nNode = 0;

    bool operator==(const CMaxRecord&) const = default;
};
inline constexpr CMaxRecord kNotFoundRecord{-1, -1, -1, -1, -1, -1};

inline constexpr int kExtremes = 13;  // the last is "Max D/C"
inline constexpr int kPrintedExtremes = 12;

// Records by section, slot and extreme (one extreme in the D/C tables), in one block.
class CRecordTable {
  public:
    void Allocate(int sections, int slots, int extremes) {
        m_nSections = sections;
        m_nSlots = slots;
        m_nExtremes = extremes;
        m_records.assign(Index(sections) * Index(slots) * Index(extremes), CMaxRecord{});
    }
    CMaxRecord& At(int section, int slot, int extreme = 0) {
        return m_records.at(Place(section, slot, extreme));
    }
    const CMaxRecord& At(int section, int slot, int extreme = 0) const {
        return m_records.at(Place(section, slot, extreme));
    }
    int Sections() const { return m_nSections; }
    int Slots() const { return m_nSlots; }
    int Extremes() const { return m_nExtremes; }

  private:
    std::size_t Place(int section, int slot, int extreme) const {
        return (Index(section) * Index(m_nSlots) + Index(slot)) * Index(m_nExtremes) + Index(extreme);
    }
    int m_nSections = 0, m_nSlots = 0, m_nExtremes = 0;
    std::vector<CMaxRecord> m_records;
};

// The result of a cap section for one slot and extreme.
struct CCapRecord {
    int m_nLoadCase = 0;       // -1: none
    int m_nSection = 0;        // PROP number
    int m_nElement = 0;        // index inside its member
    int m_nElementNumber = 0;  // ELEM number
    int m_nEnd = 0;            // 0 I, 1 J, 2 inside the element, -1 unset
    int m_nNode = 0;
    int m_nKind = 0;        // member kind of the place
    int m_nIndex = 0;       // member index of the place
    int m_nSecondNode = 0;  // for end 2 only
    int m_nMissing = 0;     // 1: the section has no result

    bool operator==(const CCapRecord&) const = default;
};
using CapValues = std::array<double, 7>;  // components 0 to 6

struct CCapEntry {
    CCapRecord record;
    CapValues values{};
};

// Cap results by position, slot, kind (or row and side) and extreme (0 maximum, 1 minimum), in one block.
class CCapTable {
  public:
    void Allocate(int positions, int slots, int kinds) {
        m_nPositions = positions;
        m_nSlots = slots;
        m_nKinds = kinds;
        m_entries.assign(Index(positions) * Index(slots) * Index(kinds) * 2, CCapEntry{});
    }
    CCapEntry& At(int position, int slot, int kind, int extreme) {
        return m_entries.at(Place(position, slot, kind, extreme));
    }
    const CCapEntry& At(int position, int slot, int kind, int extreme) const {
        return m_entries.at(Place(position, slot, kind, extreme));
    }
    const std::vector<CCapEntry>& Entries() const { return m_entries; }
    int Positions() const { return m_nPositions; }
    int Slots() const { return m_nSlots; }
    int Kinds() const { return m_nKinds; }

  private:
    std::size_t Place(int position, int slot, int kind, int extreme) const {
        return ((Index(position) * Index(m_nSlots) + Index(slot)) * Index(m_nKinds) + Index(kind)) * 2 +
               Index(extreme);
    }
    int m_nPositions = 0, m_nSlots = 0, m_nKinds = 0;
    std::vector<CCapEntry> m_entries;
};

// One design section on a support: the support's index and its location kind.
struct CSupportLocation {
    int m_nSupport = 0;
    int m_nKind = 0;
};

}  // namespace lumerin
