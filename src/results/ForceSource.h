// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "framework/Index.h"
#include "model/Element.h"
#include "results/FiniteForces.h"

namespace lumerin {

// The forces of a substructure in one load case, fourteen floats an element: the elements in the order of its
// list, then those of the block's records that belong to none of them (ForceLayout::others).
using CaseForces = std::span<const float>;

inline ElementForces ForcesOf(CaseForces forces, int element) {
    return forces.subspan(Index(element) * kForcesPerElement).first<kForcesPerElement>();
}

// The fourteen floats of one element in one case.
using ForceRow = std::array<float, kForcesPerElement>;

// Receives a case (from 0) with its forces, which are valid during the call only.
using CaseTaker = std::function<void(int loadCase, CaseForces forces)>;

// Single cases of a substructure, for the rows that a table shows. An object keeps its file open as long as
// it exists.
class ForceRows {
  public:
    ForceRows() = default;
    ForceRows(const ForceRows&) = delete;
    ForceRows& operator=(const ForceRows&) = delete;
    virtual ~ForceRows() = default;

    // Both indices are those of the substructure. Throws CFileException.
    virtual ForceRow At(int loadCase, int element) = 0;
};

// How a substructure's forces are laid out in records, the same for every case.
struct ForceLayout {
    std::vector<long long> recordOf;  // by element of the list, its record in a case's block, from 1; 0: none
    // The records of a block that belong to no element of the list, rising: the foundation's, for one.
    std::vector<long long> others;
    long long block = 0;             // records of one case
    long long whole = 0;             // whole records that the file has
    long long firstFrameRecord = 0;  // after those of the piles: the first row of the model's element table

    bool HasRecord(int loadCase, long long record) const { return loadCase * block + record <= whole; }
};

// Where the forces of a substructure are. They are read when they are needed, never kept.
class ForceSource {
  public:
    ForceSource() = default;
    ForceSource(const ForceSource&) = delete;
    ForceSource& operator=(const ForceSource&) = delete;
    virtual ~ForceSource() = default;

    // Passes every case in order. Returns what is not finite in any of them. Throws CFileException.
    virtual FiniteForces ReadCases(const CaseTaker& take) const = 0;
    // Rows of the same elements, the others included.
    virtual std::unique_ptr<ForceRows> OpenRows() const = 0;
    virtual ForceLayout Layout() const = 0;
    // Whether the forces are still those that the project was loaded with.
    virtual bool IsUnchanged() const { return true; }
    // The file, for messages.
    virtual std::string Name() const { return {}; }
};

// By substructure.
using ForceSources = std::vector<std::unique_ptr<ForceSource>>;

}  // namespace lumerin
